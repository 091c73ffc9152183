// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef BACKUPJOB_H
#define BACKUPJOB_H

#include <QString>

/// What the user wants copied where. A plain value.
struct BackupJob
{
    QString name;
    QString sourceFolder;
    QString targetFolder;
    /// Signs and checks the manifest. Lives in memory only; JobStore never writes it.
    QString passphrase;
    /// Whether a run is followed by reading everything back.
    bool verifiesAfterRun = false;
};

#endif
