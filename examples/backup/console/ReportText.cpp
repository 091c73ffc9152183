// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ReportText.h"

#include <QCoreApplication>
#include <QLocale>

namespace {

QString phaseText(BackupPhase phase)
{
    switch (phase) {
    case BackupPhase::Preparing:
        return QCoreApplication::translate("ReportText", "Preparing");
    case BackupPhase::Scanning:
        return QCoreApplication::translate("ReportText", "Scanning");
    case BackupPhase::Copying:
        return QCoreApplication::translate("ReportText", "Copying");
    case BackupPhase::Removing:
        return QCoreApplication::translate("ReportText", "Removing");
    case BackupPhase::Finishing:
        return QCoreApplication::translate("ReportText", "Finishing");
    case BackupPhase::Verifying:
        return QCoreApplication::translate("ReportText", "Verifying");
    }
    return QString();
}

} // namespace

QString ReportText::progress(const BackupProgress &progress)
{
    const QLocale locale;
    return QCoreApplication::translate("ReportText", "%1: %2 of %3 files, %4 of %5  %6")
        .arg(phaseText(progress.phase), locale.toString(progress.filesDone),
             locale.toString(progress.filesTotal), locale.formattedDataSize(progress.bytesDone),
             locale.formattedDataSize(progress.bytesTotal), progress.currentFile);
}

QString ReportText::summary(const BackupSummary &summary)
{
    const QLocale locale;
    return QCoreApplication::translate(
               "ReportText",
               "%1%2 new, %3 changed, %4 unchanged, %5 removed, %6 verified, %7 failed; "
               "%8 copied; %9 problems")
        .arg(summary.cancelled ? QCoreApplication::translate("ReportText", "Cancelled: ")
                               : QString(),
             locale.toString(summary.newFiles), locale.toString(summary.changedFiles),
             locale.toString(summary.unchangedFiles), locale.toString(summary.removedFiles),
             locale.toString(summary.verifiedFiles), locale.toString(summary.failedFiles),
             locale.formattedDataSize(summary.bytesCopied),
             locale.toString(summary.skippedProblems + summary.failedProblems
                             + summary.differentProblems));
}
