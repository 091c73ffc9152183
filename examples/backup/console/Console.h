// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef CONSOLE_H
#define CONSOLE_H

struct CommandLine;

/// The program without its window: results go to the standard output, what is wrong, and progress,
/// to the standard error output.
namespace Console {

/// Returns the exit status, which CommandLine::helpText() explains. Needs an application object
/// whose event loop is not running.
int run(const CommandLine &line);

} // namespace Console

#endif
