// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef COMMANDLINE_H
#define COMMANDLINE_H

#include "JobStore.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

/// What the program was asked to do. A plain value.
struct CommandLine
{
    Q_DECLARE_TR_FUNCTIONS(CommandLine)

public:
    enum Task {
        OpenWindow,
        TakePictures,
        ShowHelp,
        ShowVersion,
        BackUp,
        Verify,
        Restore,
        Snapshots
    };

    Task task = OpenWindow;
    /// Without a password.
    BackupJob job;
    QString snapshot;
    /// To restore into, or for the pictures.
    QString folder;
    bool createsRepository = false;
    bool removesStaleLock = false;
    bool isQuiet = false;
    int uploadLimit = 0;
    /// Empty, or why the arguments make no sense.
    QString error;

    /// The arguments start with the program's name, as QCoreApplication::arguments() has them.
    static CommandLine parse(const QStringList &arguments);
    static QString helpText();
    /// A first look at main()'s own arguments: all but the window and its pictures does without a
    /// display.
    static bool needsDisplay(int argumentCount, char *const arguments[]);
};

#endif
