// SPDX-License-Identifier: LGPL-3.0-or-later
#include "JobStore.h"

#include <QDir>
#include <QSettings>
#include <QStandardPaths>
#include <QStringList>

#include <algorithm>

namespace {

const QLatin1String jobsGroup("jobs");
const QLatin1String nameKey("name");
const QLatin1String sourceKey("source");
const QLatin1String repositoryKey("repository");
const QLatin1String verifyKey("verify");

BackupJob readJob(const QSettings &settings)
{
    BackupJob job;
    job.name = settings.value(nameKey).toString();
    job.source = settings.value(sourceKey).toString();
    job.repository = settings.value(repositoryKey).toString();
    job.verify = settings.value(verifyKey).toBool();
    return job;
}

void writeJob(QSettings *settings, const BackupJob &job)
{
    settings->setValue(nameKey, job.name);
    settings->setValue(sourceKey, job.source);
    settings->setValue(repositoryKey, job.repository);
    settings->setValue(verifyKey, job.verify);
}

bool isEmpty(const BackupJob &job)
{
    return job.name.isEmpty() && job.source.isEmpty() && job.repository.isEmpty();
}

// The subgroups that are numbers, in their order; others are not ours.
QStringList numberedGroups(const QSettings &settings)
{
    QStringList groups;
    const QStringList all = settings.childGroups();
    for (const QString &group : all) {
        bool isNumber = false;
        group.toUInt(&isNumber);
        if (isNumber) {
            groups.append(group);
        }
    }
    std::sort(groups.begin(), groups.end(), [](const QString &left, const QString &right) {
        return left.toUInt() < right.toUInt();
    });
    return groups;
}

} // namespace

JobStore::JobStore(const QString &filePath)
    : m_filePath(filePath)
{
}

QString JobStore::defaultFilePath()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return QDir(folder).filePath(QStringLiteral("tessaline/backup.ini"));
}

QList<BackupJob> JobStore::load() const
{
    QSettings settings(m_filePath, QSettings::IniFormat);
    settings.beginGroup(jobsGroup);
    QList<BackupJob> jobs;
    const QStringList groups = numberedGroups(settings);
    for (const QString &group : groups) {
        settings.beginGroup(group);
        const BackupJob job = readJob(settings);
        settings.endGroup();
        if (!isEmpty(job)) {
            jobs.append(job);
        }
    }
    return jobs;
}

bool JobStore::save(const QList<BackupJob> &jobs) const
{
    QSettings settings(m_filePath, QSettings::IniFormat);
    settings.remove(jobsGroup);
    settings.beginGroup(jobsGroup);
    int number = 0;
    for (const BackupJob &job : jobs) {
        settings.beginGroup(QString::number(++number));
        writeJob(&settings, job);
        settings.endGroup();
    }
    settings.endGroup();
    settings.sync();
    // A format error is about what was in the file before, and has been written over.
    return settings.status() != QSettings::AccessError;
}
