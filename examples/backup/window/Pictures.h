// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef PICTURES_H
#define PICTURES_H

#include <QString>

struct CommandLine;

/// Runs the window through a backup and writes a picture of each state into the folder, for the
/// documentation. The user's own jobs are neither shown nor changed. With a source and a target on
/// the command line that backup is run, else one of a small tree made up for it. Returns the
/// program's exit status: 1 if a picture could not be written or the backup failed.
int takePictures(const CommandLine &commandLine);

#endif
