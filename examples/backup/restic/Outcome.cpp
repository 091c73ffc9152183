// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Outcome.h"

#include "JobStore.h"

#include <QLocale>
#include <QRegularExpression>

namespace {

struct Ending
{
    Outcome::Kind kind;
    int exitStatus; ///< Ours.
    int resticStatus; ///< -1 if restic has none for this.
    const char *words; ///< In restic's error output.
    const char *text;
};

// In the order of Outcome::Kind. Versions before 0.17 end with 1 whatever happens, so their words
// are looked at too. A repository that cannot be reached is not a missing one: nobody should be
// asked to make it.
const Ending endings[] = {
    {Outcome::Done, 0, 0, nullptr, ""},
    {Outcome::Incomplete, 3, 3, "at least one source file could not be read",
     QT_TRANSLATE_NOOP("Outcome", "Some files could not be read; all others are backed up.")},
    {Outcome::Cancelled, 1, -1, nullptr,
     QT_TRANSLATE_NOOP("Outcome", "Cancelled. The next backup uses what was stored so far.")},
    {Outcome::Missing, 2, -1, nullptr,
     QT_TRANSLATE_NOOP("Outcome",
                       "There is no restic. Install the package \"restic\", or say where the "
                       "program is: restic=/path/of/restic at the top of %1.")},
    {Outcome::TooOld, 2, -1, nullptr,
     QT_TRANSLATE_NOOP("Outcome",
                       "This restic is too old: %1. Install version 0.14 or newer of the package "
                       "\"restic\".")},
    {Outcome::NoPassword, 2, -1, "empty password is not",
     QT_TRANSLATE_NOOP("Outcome", "A repository needs a password. Nothing was done.")},
    {Outcome::WrongPassword, 5, 12, "wrong password or no key found",
     QT_TRANSLATE_NOOP("Outcome",
                       "This is not the repository's password. Nothing was changed; type it "
                       "again.")},
    {Outcome::NoRepository, 2, 10, "open config file: .*(no such file|not exist|cannot find)",
     QT_TRANSLATE_NOOP("Outcome",
                       "There is no repository at this address. Is its disk connected?")},
    {Outcome::Locked, 6, 11, "repository is already locked",
     QT_TRANSLATE_NOOP("Outcome",
                       "The repository is locked. If no other program is using it, remove the "
                       "lock that one left behind; else run this again later.")},
    {Outcome::NoSpace, 1, -1, "no space left|not enough space|quota exceeded",
     QT_TRANSLATE_NOOP("Outcome",
                       "There is no space left. Make room, then run this again: earlier snapshots "
                       "are whole.")},
    {Outcome::NoSource, 2, -1, "directories/files do not exist",
     QT_TRANSLATE_NOOP("Outcome", "The source is not there. Is its disk connected?")},
    {Outcome::NotEmpty, 2, -1, nullptr,
     QT_TRANSLATE_NOOP("Outcome",
                       "The folder to restore into is not empty, so nothing was restored. "
                       "Choose an empty or a new one.")},
    {Outcome::Damaged, 4, -1, "repository contains errors|LoadIndex returned errors",
     QT_TRANSLATE_NOOP("Outcome",
                       "The repository is damaged. Save what its disk still gives, and see in "
                       "restic's manual how to repair it.")},
    {Outcome::Crashed, 1, 2, nullptr, // as programs in Go end when they fail by themselves
     QT_TRANSLATE_NOOP("Outcome",
                       "restic ended before it was done. Earlier snapshots are whole; run this "
                       "again.")},
    {Outcome::Failed, 1, -1, nullptr, QT_TRANSLATE_NOOP("Outcome", "restic failed: %1")},
};

} // namespace

QString sizeText(qint64 bytes)
{
    const QStringList units = {"B", "KB", "MB", "GB", "TB", "PB", "EB"};
    double size = static_cast<double>(bytes);
    int unit = 0;
    for (; size >= 1024.0; ++unit) {
        size /= 1024.0;
    }
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    const int decimals = unit == 0 || size >= 100.0 ? 0 : size >= 10.0 ? 1 : 2;
    return locale.toString(size, 'f', decimals) + ' ' + units.at(unit);
}

QString Outcome::text() const
{
    const QString reason = details.section("Fatal: ", -1).section('\n', 0, 0);
    const QString place = kind == Missing ? JobStore::defaultFilePath() : reason;
    QStringList sentences = QStringList(tr(endings[kind].text).replace("%1", place)) + achieved;
    if (skippedLines > 0) {
        sentences += tr("%n line(s) of restic's made no sense.", nullptr, skippedLines);
    }
    return sentences.join(' ').trimmed();
}

int Outcome::exitStatus() const
{
    return endings[kind].exitStatus;
}

Outcome::Kind Outcome::kindOf(int exitStatus, const QString &errors)
{
    for (const Ending &ending : endings) {
        const QRegularExpression words(QLatin1String(ending.words));
        if (exitStatus == ending.resticStatus || (ending.words && errors.contains(words))) {
            return ending.kind;
        }
    }
    return Failed;
}
