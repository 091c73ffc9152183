// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ReportText.h"

#include <QCoreApplication>
#include <QLocale>

namespace {

QString translated(const char *text)
{
    return QCoreApplication::translate("ReportText", text);
}

QString phaseText(BackupPhase phase)
{
    switch (phase) {
    case BackupPhase::Preparing:
        return translated("Preparing");
    case BackupPhase::Scanning:
        return translated("Scanning");
    case BackupPhase::Copying:
        return translated("Copying");
    case BackupPhase::Removing:
        return translated("Removing");
    case BackupPhase::Finishing:
        return translated("Finishing");
    case BackupPhase::Verifying:
        return translated("Verifying");
    }
    return QString();
}

} // namespace

QString ReportText::progress(const BackupProgress &progress)
{
    const QLocale locale;
    return translated("%1: %2 of %3 files, %4 of %5  %6")
        .arg(phaseText(progress.phase), locale.toString(progress.filesDone),
             locale.toString(progress.filesTotal), locale.formattedDataSize(progress.bytesDone),
             locale.formattedDataSize(progress.bytesTotal), progress.currentFile);
}

QString ReportText::summary(const BackupSummary &summary)
{
    const QLocale locale;
    return translated("%1%2 new, %3 changed, %4 unchanged, %5 removed, %6 verified, %7 failed; "
                      "%8 copied; %9 problems")
        .arg(summary.cancelled ? translated("Cancelled: ") : QString(),
             locale.toString(summary.newFiles), locale.toString(summary.changedFiles),
             locale.toString(summary.unchangedFiles), locale.toString(summary.removedFiles),
             locale.toString(summary.verifiedFiles), locale.toString(summary.failedFiles),
             locale.formattedDataSize(summary.bytesCopied),
             locale.toString(summary.skippedProblems + summary.failedProblems
                             + summary.differentProblems));
}
