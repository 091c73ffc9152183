// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Console.h"

#include "BackupRun.h"
#include "SnapshotListing.h"

#include <QCommandLineParser>
#include <QLocale>
#include <QProcess>

#include <cstdio>
#include <iostream>
#include <string>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace {

// Fits the narrowest usual terminal: a line that wraps could not be rewritten.
const int width = 78;
bool showsProgress = false;

bool isTerminal(std::FILE *stream)
{
#ifdef _WIN32
    return ::_isatty(::_fileno(stream)) != 0;
#else
    return ::isatty(::fileno(stream)) != 0;
#endif
}

void addOptions(QCommandLineParser *parser)
{
    parser->setApplicationDescription(Console::tr("Backups, by restic."));
    parser->addHelpOption();
    parser->addVersionOption();
    parser->addOptions({
        {"source", Console::tr("Back up FOLDER."), "FOLDER"},
        {"target", Console::tr("A folder, or an address such as sftp:host:/path."), "REPOSITORY"},
        {"run", Console::tr("Back up the source into the target.")},
        {"verify", Console::tr("Read all of the target back; after the backup if with --run.")},
        {"restore",
         Console::tr("Restore SNAPSHOT, or the \"latest\", from the target into the folder named "
                     "last, which must be empty or new."),
         "SNAPSHOT"},
        {"snapshots", Console::tr("List the snapshots in the target.")},
        {"init", Console::tr("Make the repository if it is not there.")},
        {"unlock", Console::tr("Remove a lock that a dead program left.")},
        {"limit-upload", Console::tr("Write RATE KB a second at most."), "RATE"},
        {"quiet", Console::tr("Say nothing unless something is wrong.")},
        {"pictures", Console::tr("Write pictures of the window into FOLDER."), "FOLDER"},
    });
}

bool makesSense(const QCommandLineParser &parser)
{
    const int folders = parser.isSet("restore") ? 1 : 0;
    const int others = parser.isSet("run") || parser.isSet("verify") ? 1 : 0;
    const bool isOneTask = folders + others + int(parser.isSet("snapshots")) == 1;
    const bool isSource = !parser.isSet("run") || !parser.value("source").isEmpty();
    const bool isLimit = !parser.isSet("limit-upload") || parser.value("limit-upload").toInt() > 0;
    return isOneTask && isSource && isLimit && !parser.value("target").isEmpty()
        && parser.positionalArguments().size() == folders;
}

// The line on a terminal that the next one takes the place of.
void clearProgress()
{
    if (showsProgress) {
        std::fprintf(stderr, "\r%*s\r", width, "");
    }
    showsProgress = false;
}

// A file's name may have in it what a terminal obeys.
QString harmless(QString text)
{
    for (QChar &character : text) {
        const bool isShown = character.isPrint() || character.isSurrogate() || character == '\n';
        character = isShown ? character : QLatin1Char('?');
    }
    return text;
}

void showProgress(const QString &text)
{
    if (!isTerminal(stderr)) {
        return;
    }
    clearProgress();
    std::fputs(qPrintable(harmless(text.left(width)).replace('\n', '?')), stderr);
    showsProgress = true;
}

/// Whether the terminal is to show what is typed, where that can be told to it.
void setEcho(bool on)
{
    QProcess stty;
    stty.setInputChannelMode(QProcess::ForwardedInputChannel);
    stty.start("stty", {on ? "echo" : "-echo"});
    stty.waitForFinished();
}

QString readPassword()
{
    const bool isTyped = isTerminal(stdin);
    if (isTyped) {
        setEcho(false);
        std::fputs(qPrintable(Console::tr("Password of the repository: ")), stderr);
    }
    std::string line;
    std::getline(std::cin, line);
    if (isTyped) {
        setEcho(true);
        std::fputs("\n", stderr);
    }
    return QString::fromStdString(line.substr(0, line.find('\r')));
}

void say(std::FILE *stream, const QString &text)
{
    clearProgress();
    if (!text.isEmpty()) {
        std::fprintf(stream, "%s\n", qPrintable(isTerminal(stream) ? harmless(text) : text));
    }
}

void listSnapshots(const QJsonDocument &message)
{
    const QList<Snapshot> snapshots = Snapshot::allIn(message);
    for (const Snapshot &snapshot : snapshots) {
        const QStringList columns
            = {snapshot.id.left(8), QLocale().toString(snapshot.time, QLocale::ShortFormat),
               snapshot.host, snapshot.paths.join(", ")};
        say(stdout, columns.join("  "));
    }
}

void end(const QCommandLineParser &parser, const Outcome &outcome)
{
    if (!outcome.isGood()) {
        say(stderr, outcome.details);
        say(stderr, outcome.text());
    } else if (!parser.isSet("quiet")) {
        say(stdout, outcome.text());
    }
    if (outcome.kind == Outcome::NoRepository && parser.isSet("run")) {
        say(stderr, Console::tr("--init makes a repository."));
    } else if (outcome.kind == Outcome::Locked) {
        say(stderr, Console::tr("--unlock removes a dead program's lock."));
    }
    QCoreApplication::exit(outcome.exitStatus());
}

void report(BackupRun *run, const QCommandLineParser &parser)
{
    if (!parser.isSet("quiet")) {
        QObject::connect(run, &BackupRun::progressChanged, [](const BackupProgress &progress) {
            showProgress(progress.text());
        });
    }
    QObject::connect(run, &BackupRun::problemFound, [](const QString &text) {
        say(stderr, text);
    });
    QObject::connect(run, &BackupRun::asked, [&parser, run](BackupRun::Question question) {
        run->answer(parser.isSet(question == BackupRun::CreateRepository ? "init" : "unlock"));
    });
    QObject::connect(run, &BackupRun::finished, [&parser](const Outcome &outcome) {
        end(parser, outcome);
    });
}

int work(const QCommandLineParser &parser)
{
    BackupJob job;
    job.source = parser.value("source");
    job.repository = parser.value("target");
    job.verify = parser.isSet("verify");
    job.uploadLimit = parser.value("limit-upload").toInt();
    job.password = readPassword();
    BackupRun run;
    report(&run, parser);
    ResticRun listing;
    QObject::connect(&listing, &ResticRun::message, listSnapshots);
    QObject::connect(&listing, &ResticRun::finished, [&parser](const Outcome &outcome) {
        end(parser, outcome);
    });
    if (parser.isSet("run")) {
        run.backUp(job);
    } else if (parser.isSet("restore")) {
        run.restore(job, parser.value("restore"), parser.positionalArguments().constFirst());
    } else if (parser.isSet("snapshots")) {
        listing.start(job, {"snapshots", "--json", "--no-lock"});
    } else {
        run.verify(job);
    }
    return QCoreApplication::exec();
}

} // namespace

int Console::run(const QStringList &arguments)
{
    QCommandLineParser parser;
    addOptions(&parser);
    const bool isUnderstood = parser.parse(arguments);
    if (parser.isSet("help") || parser.isSet("help-all")) {
        say(stdout,
            parser.helpText() + '\n'
                + tr("The password is the first line of the standard input; on a terminal it is "
                     "asked for.\n"
                     "Exit status:\n"
                     "  0  done\n"
                     "  1  failed\n"
                     "  2  the arguments make no sense, or something is missing: restic, source, "
                     "repository, password\n"
                     "  3  backed up, but for some files that could not be read\n"
                     "  4  verifying found damage\n"
                     "  5  wrong password\n"
                     "  6  the repository is locked\n"));
    } else if (parser.isSet("version")) {
        say(stdout, QCoreApplication::applicationVersion());
    } else if (!isUnderstood || !makesSense(parser)) {
        say(stderr, parser.errorText());
        say(stderr,
            tr("Say --target, and --run with --source, --verify, --snapshots, or "
               "--restore with a snapshot and a folder. --help tells more."));
        return 2;
    } else {
        return work(parser);
    }
    return 0;
}
