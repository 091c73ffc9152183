// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef REPORTTEXT_H
#define REPORTTEXT_H

#include "BackupReport.h"

/// Puts a report into words, the same ones on the terminal and in the window.
namespace ReportText {

/// One line: the phase, files, bytes and the current file.
QString progress(const BackupProgress &progress);

/// One line: all counts of a run.
QString summary(const BackupSummary &summary);

} // namespace ReportText

#endif
