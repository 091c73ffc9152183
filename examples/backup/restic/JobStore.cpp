// SPDX-License-Identifier: LGPL-3.0-or-later
#include "JobStore.h"

#include <QDir>
#include <QSettings>
#include <QStandardPaths>

JobStore::JobStore(const QString &filePath)
    : m_filePath(filePath)
{
}

QString JobStore::defaultFilePath()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return QDir(folder).filePath("tessaline/backup.ini");
}

QList<BackupJob> JobStore::load() const
{
    QSettings settings(m_filePath, QSettings::IniFormat);
    QList<BackupJob> jobs;
    // Version 1.0 wrote no count.
    settings.beginGroup("jobs");
    const int count = int(settings.childGroups().size());
    settings.endGroup();
    settings.beginReadArray("jobs");
    for (int number = 0; number < count; ++number) {
        settings.setArrayIndex(number);
        BackupJob job;
        job.name = settings.value("name").toString();
        job.source = settings.value("source").toString();
        job.repository = settings.value("repository").toString();
        job.verify = settings.value("verify").toBool();
        if (!job.name.isEmpty() || !job.source.isEmpty() || !job.repository.isEmpty()) {
            jobs.append(job);
        }
    }
    return jobs;
}

bool JobStore::save(const QList<BackupJob> &jobs) const
{
    QSettings settings(m_filePath, QSettings::IniFormat);
    settings.remove("jobs");
    settings.beginWriteArray("jobs", int(jobs.size()));
    for (int number = 0; number < jobs.size(); ++number) {
        settings.setArrayIndex(number);
        settings.setValue("name", jobs.at(number).name);
        settings.setValue("source", jobs.at(number).source);
        settings.setValue("repository", jobs.at(number).repository);
        settings.setValue("verify", jobs.at(number).verify);
    }
    settings.endArray();
    settings.sync();
    // A format error is about what was in the file before, and has been written over.
    return settings.status() != QSettings::AccessError;
}
