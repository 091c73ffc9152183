// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef CLIENT_H
#define CLIENT_H

#include "ResticTestTools.h"

/// The program itself, without a window, in a process of its own.
class Client
{
public:
    explicit Client(const Sandbox &sandbox);
    /// Kills what is still running.
    ~Client();

    /// What goes to its standard input; the sandbox's password and an end of line if not set.
    QByteArray input;
    QProcess process;

    void start(const QStringList &arguments);
    /// Waits for its end; the exit status, or -1 if it crashed or did not end.
    int wait();
    int run(const QStringList &arguments);
    /// The process id of the restic that it runs; 0 if there is none now.
    qint64 restic() const;

    QByteArray output;
    QByteArray errors;
};

/// The program's file.
QString clientProgram();
/// "--source", "--target" and what is added.
QStringList backUpArguments(const Sandbox &sandbox, const QStringList &more = {});

#endif
