// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef RESTIC_H
#define RESTIC_H

#include "BackupJob.h"

#include <QProcessEnvironment>
#include <QStringList>
#include <QVersionNumber>

/// The program that does the work: where it is, and how it is spoken to.
namespace Restic {

/// What the setting "restic" in the file of the jobs says, else the one in PATH.
QString program();

/// Older ones call a restore done that has left files out.
QVersionNumber minimumVersion();
/// Of what "restic version" prints.
bool isNewEnough(const QString &version);

/// This process's environment, without what would beat the password from the standard input.
QProcessEnvironment environment(const QString &repository);

/// What each command but "version" begins with.
QStringList globalOptions();
/// What the user typed, with "~" for the home folder.
QString address(const QString &typed);
/// A file to be locked by who makes this repository.
QString creationLock(const QString &repository);
/// What a backup is called with; a limit of 0 is none.
QStringList backUpArguments(const BackupJob &job, int kibibytesPerSecond);
/// An absolute path without links, which restic would store in place of what they lead to.
QString sourcePath(const QString &typed);

} // namespace Restic

#endif
