// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TERMINAL_H
#define TERMINAL_H

#include <QString>

/// What a terminal can and a file cannot.
namespace Terminal {

/// The first line of the standard input. At a terminal it is asked for, and not shown.
QString readPassword();

/// A line on the standard error output that the next one takes the place of, if that is a terminal.
void showProgress(const QString &text);
void clearProgress();

} // namespace Terminal

#endif
