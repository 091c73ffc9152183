// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef BACKUPPROGRESS_H
#define BACKUPPROGRESS_H

#include <QCoreApplication>
#include <QJsonObject>
#include <QString>

/// How far a run has come. A plain value.
struct BackupProgress
{
    Q_DECLARE_TR_FUNCTIONS(BackupProgress)

public:
    enum Phase { Preparing, BackingUp, Verifying, Restoring };

    Phase phase = Preparing;
    /// Of 0 to 1; less than 0 while unknown.
    double fraction = -1;
    /// The totals grow while restic still looks for files. Zero but for a backup.
    qint64 bytesDone = 0;
    qint64 bytesTotal = 0;
    qint64 filesDone = 0;
    qint64 filesTotal = 0;
    QString currentFile;

    /// From a message of the type "status".
    void read(const QJsonObject &status);
    /// One line, with the current file at its end.
    QString text() const;
};

#endif
