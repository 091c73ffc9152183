// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Outcome.h"

#include "JobStore.h"
#include "ResticRun.h"

#include <QLocale>
#include <QRegularExpression>

namespace {

// Versions before 0.17 end with 1 whatever happens, so their words are looked at too. A repository
// that cannot be reached is not a missing one: nobody should be asked to make it.
const struct
{
    Outcome::Kind kind;
    int exitStatus;
    const char *pattern;
} signs[] = {
    {Outcome::WrongPassword, 12, "wrong password or no key found"},
    {Outcome::NoPassword, -1, "empty password is not"},
    {Outcome::Locked, 11, "repository is already locked"},
    {Outcome::NoRepository, 10, "open config file: .*(no such file|not exist|cannot find)"},
    {Outcome::NoSpace, -1, "no space left|not enough space|quota exceeded"},
    {Outcome::NoSource, -1, "directories/files do not exist"},
    {Outcome::Damaged, -1, "repository contains errors"},
    {Outcome::Incomplete, 3, "at least one source file could not be read"},
};

QString successText(const Outcome &outcome)
{
    const QLocale locale;
    QString text;
    if (!outcome.restoredInto.isEmpty()) {
        text = Outcome::tr("Restored below %1.").arg(outcome.restoredInto);
    } else if (!outcome.snapshot.isEmpty()) {
        text
            = Outcome::tr("Snapshot %1: %2 new, %3 changed, %4 unchanged files; %5 read, %6 added.")
                  .arg(outcome.snapshot.left(8), locale.toString(outcome.newFiles),
                       locale.toString(outcome.changedFiles),
                       locale.toString(outcome.unchangedFiles), sizeText(outcome.bytesRead),
                       sizeText(outcome.bytesAdded));
    }
    if (outcome.wasVerified) {
        text += QLatin1Char(' ') + Outcome::tr("All of the repository was read back: no errors.");
    }
    return text.trimmed();
}

QString failureText(const Outcome &outcome)
{
    switch (outcome.kind) {
    case Outcome::Done:
        return QString();
    case Outcome::Incomplete:
        return Outcome::tr("Some files could not be read; all others are backed up.");
    case Outcome::Cancelled:
        return Outcome::tr("Cancelled. What was stored so far is used by the next run.");
    case Outcome::Missing:
        return Outcome::tr("There is no restic. Install the package \"restic\", or say where the "
                           "program is: restic=/path/of/restic at the top of %1.")
            .arg(JobStore::defaultFilePath());
    case Outcome::TooOld:
        return Outcome::tr("This restic is too old: %1. Install version %2 or newer of the package "
                           "\"restic\".")
            .arg(outcome.details, Restic::minimumVersion().toString());
    case Outcome::NoPassword:
        return Outcome::tr("A repository needs a password. Nothing was done.");
    case Outcome::WrongPassword:
        return Outcome::tr("This is not the repository's password. Nothing was changed; type it "
                           "again.");
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
                           "Choose an empty or a new one.");
    case Outcome::Damaged:
        return Outcome::tr("The repository is damaged. Save what its disk still gives, and see "
                           "\"restic repair\" in restic's manual.");
    case Outcome::Crashed:
        return Outcome::tr("restic ended before it was done. Earlier snapshots are whole; run this "
                           "again.");
    case Outcome::Failed:
        break;
    }
    const QString reason = outcome.details.section("Fatal: ", -1);
    return Outcome::tr("restic failed: %1").arg(reason.section(QLatin1Char('\n'), 0, 0));
}

} // namespace

QString sizeText(qint64 bytes)
{
    const char *const units[] = {"B", "KB", "MB", "GB", "TB", "PB", "EB"};
    double size = static_cast<double>(bytes);
    int exponent = 0;
    for (; size >= 1024.0; ++exponent) {
        size /= 1024.0;
    }
    const int decimals = exponent == 0 || size >= 100.0 ? 0 : size >= 10.0 ? 1 : 2;
    return QLocale().toString(size, 'f', decimals) + QLatin1Char(' ')
        + QLatin1String(units[exponent]);
}

QString Outcome::text() const
{
    QStringList sentences = {failureText(*this), successText(*this)};
    if (skippedLines > 0) {
        sentences += tr("%n line(s) of restic's made no sense.", nullptr, skippedLines);
    }
    sentences.removeAll(QString());
    return sentences.join(QLatin1Char(' '));
}

void Outcome::readSummary(const QJsonObject &summary)
{
    const auto number = [&summary](const char *key) {
        return static_cast<qint64>(summary.value(QLatin1String(key)).toDouble());
    };
    snapshot = summary.value("snapshot_id").toString();
    newFiles = number("files_new");
    changedFiles = number("files_changed");
    unchangedFiles = number("files_unmodified");
    bytesRead = number("total_bytes_processed");
    bytesAdded = number("data_added");
}

Outcome::Kind Outcome::kindOf(int exitStatus, const QString &errors)
{
    if (exitStatus == 0) {
        return Done;
    }
    for (const auto &sign : signs) {
        const QRegularExpression pattern(QLatin1String(sign.pattern));
        if (exitStatus == sign.exitStatus || errors.contains(pattern)) {
            return sign.kind;
        }
    }
    return Failed;
}
