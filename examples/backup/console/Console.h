// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef CONSOLE_H
#define CONSOLE_H

#include "BackupRun.h"
#include "CommandLine.h"

/// Does without a window what the command line asks for: results on the standard output, what is
/// wrong, and progress, on the standard error output.
class Console : public QObject
{
    Q_OBJECT

public:
    /// Returns the program's exit status, which CommandLine::helpText() explains. Needs an
    /// application object whose event loop is not running.
    static int run(const CommandLine &line);

private:
    explicit Console(const CommandLine &line);

    int work();
    void listSnapshots(const QJsonDocument &message);
    void answer(BackupRun::Question question);
    void end(const Outcome &outcome);

    CommandLine m_line;
    BackupRun m_run;
    ResticRun m_listing;
};

#endif
