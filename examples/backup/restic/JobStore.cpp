// SPDX-License-Identifier: LGPL-3.0-or-later
#include "JobStore.h"

#include <QDir>
#include <QSettings>
#include <QStandardPaths>

namespace {

const QLatin1String jobsArray("jobs");
const QLatin1String nameKey("name");
const QLatin1String sourceKey("source");
const QLatin1String repositoryKey("repository");
const QLatin1String verifyKey("verify");

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
    QList<BackupJob> jobs;
    // Version 1.0 wrote no count.
    settings.beginGroup(jobsArray);
    const int count = int(settings.childGroups().size());
    settings.endGroup();
    settings.beginReadArray(jobsArray);
    for (int number = 0; number < count; ++number) {
        settings.setArrayIndex(number);
        BackupJob job;
        job.name = settings.value(nameKey).toString();
        job.source = settings.value(sourceKey).toString();
        job.repository = settings.value(repositoryKey).toString();
        job.verify = settings.value(verifyKey).toBool();
        if (!job.name.isEmpty() || !job.source.isEmpty() || !job.repository.isEmpty()) {
            jobs.append(job);
        }
    }
    return jobs;
}

bool JobStore::save(const QList<BackupJob> &jobs) const
{
    QSettings settings(m_filePath, QSettings::IniFormat);
    settings.remove(jobsArray);
    settings.beginWriteArray(jobsArray, int(jobs.size()));
    for (int number = 0; number < jobs.size(); ++number) {
        settings.setArrayIndex(number);
        settings.setValue(nameKey, jobs.at(number).name);
        settings.setValue(sourceKey, jobs.at(number).source);
        settings.setValue(repositoryKey, jobs.at(number).repository);
        settings.setValue(verifyKey, jobs.at(number).verify);
    }
    settings.endArray();
    settings.sync();
    // A format error is about what was in the file before, and has been written over.
    return settings.status() != QSettings::AccessError;
}
