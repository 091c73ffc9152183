// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef CONSOLEREPORTER_H
#define CONSOLEREPORTER_H

#include "BackupReport.h"

#include <QElapsedTimer>
#include <QObject>

class BackupEngine;

/// Shows a run on the terminal: problems on the standard error output as they are found, a summary
/// on the standard output, and a line of progress that rewrites itself if there is a terminal.
class ConsoleReporter : public QObject
{
    Q_OBJECT

public:
    /// The engine stays the caller's and must outlive the reporter.
    explicit ConsoleReporter(BackupEngine *engine, QObject *parent = nullptr);

    /// 0 or 1, once the engine has finished.
    int exitStatus() const
    {
        return m_exitStatus;
    }

private:
    void showProgress(const BackupProgress &progress);
    void showProblem(const BackupProblem &problem);
    void showSummary(const BackupSummary &summary);
    void clearProgress();

    bool m_isTerminal;
    bool m_showsProgress = false;
    QElapsedTimer m_sinceProgress;
    int m_exitStatus = 0;
};

#endif
