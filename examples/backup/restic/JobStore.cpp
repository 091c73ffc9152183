// SPDX-License-Identifier: LGPL-3.0-or-later
#include "JobStore.h"

#include <QSettings>
#include <QStandardPaths>

QString JobStore::defaultFilePath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + "/tessaline/backup.ini";
}

QList<BackupJob> JobStore::load() const
{
    QSettings settings(m_filePath, QSettings::IniFormat);
    settings.beginGroup("jobs");
    QList<BackupJob> jobs;
    for (int number = 1; number <= settings.childGroups().size(); ++number) {
        const QString group = QString::number(number);
        BackupJob job;
        job.name = settings.value(group + "/name").toString();
        job.source = settings.value(group + "/source").toString();
        job.repository = settings.value(group + "/repository").toString();
        job.verify = settings.value(group + "/verify").toBool();
        if (!(job.name + job.source + job.repository).isEmpty()) {
            jobs.append(job);
        }
    }
    return jobs;
}

bool JobStore::save(const QList<BackupJob> &jobs) const
{
    QSettings settings(m_filePath, QSettings::IniFormat);
    settings.remove("jobs");
    settings.beginGroup("jobs");
    for (int number = 1; number <= jobs.size(); ++number) {
        const QString group = QString::number(number);
        const BackupJob &job = jobs.at(number - 1);
        settings.setValue(group + "/name", job.name);
        settings.setValue(group + "/source", job.source);
        settings.setValue(group + "/repository", job.repository);
        settings.setValue(group + "/verify", job.verify);
    }
    settings.sync();
    // A format error is about what was in the file before, and has been written over.
    return settings.status() != QSettings::AccessError;
}
