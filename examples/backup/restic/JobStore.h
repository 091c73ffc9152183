// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef JOBSTORE_H
#define JOBSTORE_H

#include <QList>
#include <QString>

/// What the user wants backed up where. A plain value.
struct BackupJob
{
    QString name;
    QString source;
    /// A folder or any address that restic takes, such as "sftp:host:/path".
    QString repository;
    /// Lives in memory only; JobStore never writes it.
    QString password;
    /// Whether a backup is followed by reading everything back.
    bool verify = false;
    /// In KB a second, for one run: not stored. 0 is none.
    int uploadLimit = 0;
};

/// Keeps the jobs, without their passwords, in an INI file: an array [jobs]. The file may also have
/// a line "restic=/path/of/the/program" at its top.
class JobStore
{
public:
    /// The file is created, with its folder, by the first save().
    explicit JobStore(const QString &filePath = defaultFilePath())
        : m_filePath(filePath)
    {
    }
    /// In the user's configuration folder.
    static QString defaultFilePath();

    /// Whatever can be understood; no file or one that makes no sense gives an empty list.
    QList<BackupJob> load() const;
    /// Replaces all the jobs. Returns false if the file cannot be written.
    bool save(const QList<BackupJob> &jobs) const;

private:
    QString m_filePath;
};

#endif
