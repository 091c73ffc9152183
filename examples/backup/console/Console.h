// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef CONSOLE_H
#define CONSOLE_H

#include <QCoreApplication>

/// The program without its window: results go to the standard output, what is wrong, and progress,
/// to the standard error output.
class Console
{
    Q_DECLARE_TR_FUNCTIONS(Console)

public:
    /// Does what QCoreApplication::arguments() say. Returns the exit status, which "--help"
    /// explains. Needs an application object whose event loop is not running.
    static int run(const QStringList &arguments);
};

#endif
