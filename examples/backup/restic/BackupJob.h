// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef BACKUPJOB_H
#define BACKUPJOB_H

#include <QString>

/// What the user wants backed up where. A plain value.
struct BackupJob
{
    QString name;
    /// A folder.
    QString source;
    /// A folder or any address that restic takes, such as "sftp:host:/path".
    QString repository;
    /// Lives in memory only; JobStore never writes it.
    QString password;
    /// Whether a backup is followed by reading everything back.
    bool verify = false;
};

#endif
