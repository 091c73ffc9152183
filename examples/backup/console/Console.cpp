// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Console.h"

#include "BackupRun.h"
#include "CommandLine.h"
#include "SnapshotListing.h"
#include "Terminal.h"

#include <QHash>
#include <QLocale>

#include <cstdio>

namespace {

const int refusedStatus = 2;

int exitStatus(Outcome::Kind kind)
{
    static const QHash<int, int> others
        = {{Outcome::Done, 0},          {Outcome::Incomplete, 3}, {Outcome::Damaged, 4},
           {Outcome::WrongPassword, 5}, {Outcome::Locked, 6},     {Outcome::Failed, 1},
           {Outcome::Crashed, 1},       {Outcome::NoSpace, 1},    {Outcome::Cancelled, 1}};
    return others.value(kind, refusedStatus);
}

void say(std::FILE *stream, const QString &text)
{
    Terminal::clearProgress();
    if (!text.isEmpty()) {
        std::fprintf(stream, "%s\n", qPrintable(text));
    }
}

void listSnapshots(const QJsonDocument &message)
{
    const QList<Snapshot> snapshots = Snapshot::allIn(message);
    for (const Snapshot &snapshot : snapshots) {
        const QStringList columns
            = {snapshot.shortId, QLocale().toString(snapshot.time, QLocale::ShortFormat),
               snapshot.host, snapshot.paths.join(", ")};
        say(stdout, columns.join("  "));
    }
}

void end(const CommandLine &line, const Outcome &outcome)
{
    if (!outcome.isGood()) {
        say(stderr, outcome.details);
        say(stderr, outcome.text());
    } else if (!line.isQuiet) {
        say(stdout, outcome.text());
    }
    if (outcome.kind == Outcome::NoRepository && line.task == CommandLine::BackUp) {
        say(stderr, CommandLine::tr("With --init it is made."));
    } else if (outcome.kind == Outcome::Locked && !line.removesStaleLock) {
        say(stderr, CommandLine::tr("With --unlock a lock that a dead program left is removed."));
    }
    QCoreApplication::exit(exitStatus(outcome.kind));
}

void report(BackupRun *run, const CommandLine &line)
{
    QObject::connect(run, &BackupRun::progressChanged, [&line](const BackupProgress &progress) {
        if (!line.isQuiet) {
            Terminal::showProgress(progress.text());
        }
    });
    QObject::connect(run, &BackupRun::problemFound, [](const QString &text) {
        say(stderr, text);
    });
    QObject::connect(run, &BackupRun::asked, [&line, run](BackupRun::Question question) {
        const bool isMissing = question == BackupRun::CreateRepository;
        run->answer(isMissing ? line.createsRepository : line.removesStaleLock);
    });
    QObject::connect(run, &BackupRun::finished, [&line](const Outcome &outcome) {
        end(line, outcome);
    });
}

int work(const CommandLine &line)
{
    BackupJob job = line.job;
    job.password = Terminal::readPassword();
    BackupRun run;
    report(&run, line);
    run.setUploadLimit(line.uploadLimit);
    ResticRun listing;
    QObject::connect(&listing, &ResticRun::message, listSnapshots);
    QObject::connect(&listing, &ResticRun::finished, [&line](const Outcome &outcome) {
        end(line, outcome);
    });
    if (line.task == CommandLine::BackUp) {
        run.backUp(job);
    } else if (line.task == CommandLine::Verify) {
        run.verify(job);
    } else if (line.task == CommandLine::Restore) {
        run.restore(job, line.snapshot, line.folder);
    } else {
        listing.start(job.repository, job.password, {"snapshots", "--json"});
    }
    return QCoreApplication::exec();
}

} // namespace

int Console::run(const CommandLine &line)
{
    if (!line.error.isEmpty()) {
        say(stderr, line.error);
        return refusedStatus;
    }
    if (line.task == CommandLine::ShowHelp) {
        say(stdout, CommandLine::helpText());
        return 0;
    }
    if (line.task == CommandLine::ShowVersion) {
        say(stdout, QCoreApplication::applicationVersion());
        return 0;
    }
    return work(line);
}
