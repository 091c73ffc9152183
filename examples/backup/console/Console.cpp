// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Console.h"

#include "Snapshot.h"
#include "Terminal.h"

#include <QLocale>

#include <cstdio>

namespace {

const int refusedStatus = 2;

int exitStatus(Outcome::Kind kind)
{
    switch (kind) {
    case Outcome::Done:
        return 0;
    case Outcome::Missing:
    case Outcome::TooOld:
    case Outcome::NoPassword:
    case Outcome::NoRepository:
    case Outcome::NoSource:
    case Outcome::NotEmpty:
        return refusedStatus;
    case Outcome::Incomplete:
        return 3;
    case Outcome::Damaged:
        return 4;
    case Outcome::WrongPassword:
        return 5;
    case Outcome::Locked:
        return 6;
    case Outcome::Cancelled:
    case Outcome::NoSpace:
    case Outcome::Crashed:
    case Outcome::Failed:
        break;
    }
    return 1;
}

void say(std::FILE *stream, const QString &text)
{
    Terminal::clearProgress();
    if (!text.isEmpty()) {
        std::fprintf(stream, "%s\n", qPrintable(text));
    }
}

} // namespace

Console::Console(const CommandLine &line)
    : m_line(line)
{
    m_run.setUploadLimit(line.uploadLimit);
    if (!line.isQuiet) {
        connect(&m_run, &BackupRun::progressChanged, this, [](const BackupProgress &progress) {
            Terminal::showProgress(progress.text());
        });
    }
    connect(&m_run, &BackupRun::problemFound, this, [](const QString &text) {
        say(stderr, text);
    });
    connect(&m_run, &BackupRun::asked, this, &Console::answer);
    connect(&m_run, &BackupRun::finished, this, &Console::end);
    connect(&m_listing, &ResticRun::message, this, &Console::listSnapshots);
    connect(&m_listing, &ResticRun::finished, this, &Console::end);
}

int Console::run(const CommandLine &line)
{
    if (!line.error.isEmpty()) {
        say(stderr, line.error);
        return refusedStatus;
    }
    if (line.task == CommandLine::ShowHelp || line.task == CommandLine::ShowVersion) {
        say(stdout,
            line.task == CommandLine::ShowHelp ? CommandLine::helpText()
                                               : QCoreApplication::applicationVersion());
        return 0;
    }
    return Console(line).work();
}

int Console::work()
{
    m_line.job.password = Terminal::readPassword();
    switch (m_line.task) {
    case CommandLine::BackUp:
        m_run.backUp(m_line.job);
        break;
    case CommandLine::Verify:
        m_run.verify(m_line.job);
        break;
    case CommandLine::Restore:
        m_run.restore(m_line.job, m_line.snapshot, m_line.folder);
        break;
    default:
        m_listing.start(m_line.job.repository, m_line.job.password,
                        {QStringLiteral("snapshots"), QStringLiteral("--json")});
        break;
    }
    return QCoreApplication::exec();
}

void Console::listSnapshots(const QJsonDocument &message)
{
    const QList<Snapshot> snapshots = Snapshot::allIn(message);
    for (const Snapshot &snapshot : snapshots) {
        say(stdout,
            QStringLiteral("%1  %2  %3  %4")
                .arg(snapshot.shortId, QLocale().toString(snapshot.time, QLocale::ShortFormat),
                     snapshot.host, snapshot.paths.join(QStringLiteral(", "))));
    }
}

void Console::answer(BackupRun::Question question)
{
    m_run.answer(question == BackupRun::CreateRepository ? m_line.createsRepository
                                                         : m_line.removesStaleLock);
}

void Console::end(const Outcome &outcome)
{
    if (!outcome.isGood()) {
        say(stderr, outcome.details);
        say(stderr, outcome.text());
    } else if (!m_line.isQuiet) {
        say(stdout, outcome.text());
    }
    if (outcome.kind == Outcome::NoRepository && m_line.task == CommandLine::BackUp) {
        say(stderr, tr("With --init it is made."));
    } else if (outcome.kind == Outcome::Locked && !m_line.removesStaleLock) {
        say(stderr, tr("With --unlock a lock that a dead program left is removed."));
    }
    QCoreApplication::exit(exitStatus(outcome.kind));
}
