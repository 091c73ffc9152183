// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef FOLDERCHECK_H
#define FOLDERCHECK_H

#include "BackupJob.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

/// Decides whether a job's folders can be used at all, before anything is touched.
class FolderCheck
{
    Q_DECLARE_TR_FUNCTIONS(FolderCheck)

public:
    explicit FolderCheck(const BackupJob &job);

    /// Creates the target folder if nothing else speaks against the run. Returns false, with a
    /// refusal(), if the run cannot be started.
    bool allowsRun();
    bool allowsVerify();

    /// Why not, in a sentence for the user.
    QString refusal() const
    {
        return m_refusal;
    }
    /// The folders without symbolic links, valid once the check has passed.
    QByteArray source() const
    {
        return m_source;
    }
    QByteArray target() const
    {
        return m_target;
    }

private:
    bool checkPaths();
    bool checkSource();
    bool checkTarget();
    bool checkNesting();
    bool checkLayout();
    bool checkOwnership();
    bool createTarget();
    bool refuse(const QString &reason);

    BackupJob m_job;
    QByteArray m_source;
    QByteArray m_target;
    QString m_refusal;
};

#endif
