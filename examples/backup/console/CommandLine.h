// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef COMMANDLINE_H
#define COMMANDLINE_H

#include <QString>
#include <QStringList>

/// What the program was asked to do. A plain value.
struct CommandLine
{
    QString sourceFolder;
    QString targetFolder;
    /// For the window: the folder into which it writes pictures of itself.
    QString picturesFolder;
    bool wantsVerify = false;
    bool wantsRun = false;
    bool readsPassphraseFromStdin = false;
    bool wantsHelp = false;
    /// Empty, or why the arguments make no sense.
    QString error;

    /// False if runFromCommandLine() is to do the work.
    bool opensWindow() const;

    /// The arguments start with the program's name, as QCoreApplication::arguments() has them.
    static CommandLine parse(const QStringList &arguments);

    /// A first look at main()'s own arguments, to tell which application object is needed.
    static bool needsNoWindow(int argumentCount, char *const arguments[]);
};

/// Runs the backup on the terminal and returns the program's exit status. Needs an application
/// object whose event loop is not running.
///   0    everything was done, though pipes, sockets and devices may have been skipped
///   1    something failed or differs
///   2    the arguments make no sense, or the folders cannot be used
///   128 + signal number if interrupted
int runFromCommandLine(const CommandLine &commandLine);

#endif
