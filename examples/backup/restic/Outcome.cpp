// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Outcome.h"

#include "JobStore.h"
#include "Restic.h"
#include "SizeText.h"

#include <QLocale>

namespace {

bool hasOneOf(const QString &text, const QStringList &parts)
{
    for (const QString &part : parts) {
        if (text.contains(part, Qt::CaseInsensitive)) {
            return true;
        }
    }
    return false;
}

// A repository that cannot be reached is not a missing one: nobody should be asked to make it.
bool isMissingRepository(const QString &errors)
{
    return errors.contains(QLatin1String("Is there a repository at the following location"))
        && hasOneOf(errors,
                    {QStringLiteral("no such file"), QStringLiteral("not exist"),
                     QStringLiteral("cannot find the")});
}

Outcome::Kind kindOf(int exitStatus, const QString &errors)
{
    if (exitStatus == 0) {
        return Outcome::Done;
    }
    if (exitStatus == 3) {
        return Outcome::Incomplete;
    }
    if (exitStatus == 12 || errors.contains(QLatin1String("wrong password or no key found"))) {
        return Outcome::WrongPassword;
    }
    if (exitStatus == 11 || errors.contains(QLatin1String("repository is already locked"))) {
        return Outcome::Locked;
    }
    if (exitStatus == 10 || isMissingRepository(errors)) {
        return Outcome::NoRepository;
    }
    if (hasOneOf(errors,
                 {QStringLiteral("no space left"), QStringLiteral("not enough space"),
                  QStringLiteral("quota exceeded")})) {
        return Outcome::NoSpace;
    }
    if (errors.contains(QLatin1String("directories/files do not exist"))) {
        return Outcome::NoSource;
    }
    return errors.contains(QLatin1String("repository contains errors")) ? Outcome::Damaged
                                                                        : Outcome::Failed;
}

QString numberText(qint64 number)
{
    return QLocale().toString(number);
}

QString successText(const Outcome &outcome)
{
    QString text;
    if (!outcome.restoredInto.isEmpty()) {
        text = Outcome::tr("Restored below %1.").arg(outcome.restoredInto);
    } else if (!outcome.snapshot.isEmpty()) {
        text
            = Outcome::tr("Snapshot %1: %2 new, %3 changed, %4 unchanged files; %5 read, %6 added.")
                  .arg(outcome.snapshot.left(8), numberText(outcome.newFiles),
                       numberText(outcome.changedFiles), numberText(outcome.unchangedFiles),
                       sizeText(outcome.bytesRead), sizeText(outcome.bytesAdded));
    }
    if (outcome.wasVerified) {
        text += QLatin1Char(' ') + Outcome::tr("All of the repository was read back: no errors.");
    }
    return text.trimmed();
}

QString kindText(const Outcome &outcome)
{
    switch (outcome.kind) {
    case Outcome::Done:
        return successText(outcome);
    case Outcome::Incomplete:
        return Outcome::tr("Some files could not be read; all others are backed up.");
    case Outcome::Cancelled:
        return Outcome::tr("Cancelled. What was stored so far is used by the next run.");
    case Outcome::Missing:
        return Outcome::tr("There is no restic. Install the package \"restic\", or say where the "
                           "program is: restic=/path/of/restic at the top of %1.")
            .arg(JobStore::defaultFilePath());
    case Outcome::TooOld:
        return Outcome::tr("This restic is too old (%1). Install version %2 or newer of the "
                           "package \"restic\".")
            .arg(outcome.details, Restic::minimumVersion().toString());
    case Outcome::WrongPassword:
        return Outcome::tr("This is not the repository's password. Nothing was changed; type it "
                           "again.");
    case Outcome::NoPassword:
        return Outcome::tr("A repository needs a password. Nothing was done.");
    case Outcome::NoRepository:
        return Outcome::tr("There is no repository at this address. Is its disk connected?");
    case Outcome::Locked:
        return Outcome::tr("The repository is locked. If no other program is using it, remove the "
                           "lock that one left behind; else run this again later.");
    case Outcome::NoSpace:
        return Outcome::tr("There is no space left for the repository. Make room, then run this "
                           "again: earlier snapshots are whole.");
    case Outcome::NoSource:
        return Outcome::tr("The source is not there. Is its disk connected?");
    case Outcome::NotEmpty:
        return Outcome::tr("The folder to restore into is not empty, so nothing was restored. "
                           "Choose an empty one or a new one.");
    case Outcome::Damaged:
        return Outcome::tr("The repository is damaged. Save what its disk still gives, and see "
                           "\"restic repair\" in restic's manual.");
    case Outcome::Crashed:
        return Outcome::tr("restic ended before it was done. Earlier snapshots are whole; run this "
                           "again.");
    case Outcome::Failed:
        break;
    }
    return Outcome::tr("restic failed: %1")
        .arg(outcome.details.section(QLatin1Char('\n'), -1).remove(QStringLiteral("Fatal: ")));
}

} // namespace

Outcome Outcome::ofExit(int exitStatus, const QStringList &errors)
{
    Outcome outcome;
    outcome.details = errors.join(QLatin1Char('\n'));
    outcome.kind = kindOf(exitStatus, outcome.details);
    return outcome;
}

QString Outcome::text() const
{
    QString text = kindText(*this);
    if (!isGood() && !successText(*this).isEmpty()) {
        text += QLatin1Char(' ') + successText(*this);
    }
    if (skippedLines > 0) {
        text += QLatin1Char(' ')
            + tr("%n line(s) of restic's could not be read.", nullptr, skippedLines);
    }
    return text;
}
