// SPDX-License-Identifier: LGPL-3.0-or-later
#include "CommandLine.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace {

const char *const exitStatusText = QT_TRANSLATE_NOOP(
    "CommandLine",
    "The password is the first line of the standard input; on a terminal it is asked for.\n"
    "Exit status:\n"
    "  0  done\n"
    "  1  failed\n"
    "  2  the arguments make no sense, or something is missing: restic, source, repository, "
    "password\n"
    "  3  backed up, but for some files that could not be read\n"
    "  4  verifying found damage\n"
    "  5  wrong password\n"
    "  6  the repository is locked\n");

void addOptions(QCommandLineParser *parser)
{
    parser->setApplicationDescription(CommandLine::tr("Backups, by restic."));
    parser->addOptions({
        {"source", CommandLine::tr("Back up FOLDER."), "FOLDER"},
        {"target", CommandLine::tr("A folder, or an address such as sftp:host:/path."),
         "REPOSITORY"},
        {"run", CommandLine::tr("Back up the source into the target.")},
        {"verify", CommandLine::tr("Read all of the target back; after the backup if with --run.")},
        {"restore",
         CommandLine::tr(
             "Restore SNAPSHOT, or the \"latest\", from the target into the folder named "
             "last, which must be empty or new."),
         "SNAPSHOT"},
        {"snapshots", CommandLine::tr("List the snapshots in the target.")},
        {"init", CommandLine::tr("Make the repository if it is not there.")},
        {"unlock", CommandLine::tr("Remove a lock that a dead program left.")},
        {"limit-upload", CommandLine::tr("Write RATE KB a second at most."), "RATE"},
        {"quiet", CommandLine::tr("Say nothing unless something is wrong.")},
        {"pictures", CommandLine::tr("Write pictures of the window into FOLDER."), "FOLDER"},
        {"version", CommandLine::tr("Show the version.")},
        {{"h", "help"}, CommandLine::tr("Show this help.")},
    });
}

CommandLine::Task taskOf(const QCommandLineParser &parser)
{
    const QPair<const char *, CommandLine::Task> tasks[]
        = {{"help", CommandLine::ShowHelp},         {"version", CommandLine::ShowVersion},
           {"pictures", CommandLine::TakePictures}, {"run", CommandLine::BackUp},
           {"restore", CommandLine::Restore},       {"snapshots", CommandLine::Snapshots},
           {"verify", CommandLine::Verify}};
    for (const auto &candidate : tasks) {
        if (parser.isSet(QLatin1String(candidate.first))) {
            return candidate.second;
        }
    }
    return CommandLine::OpenWindow;
}

QString errorOf(const QCommandLineParser &parser, const CommandLine &line)
{
    const int expected = line.task == CommandLine::Restore ? 1 : 0;
    if (parser.positionalArguments().size() > expected) {
        return CommandLine::tr("Unexpected argument: %1")
            .arg(parser.positionalArguments().constLast());
    }
    if (line.task == CommandLine::Restore && line.folder.isEmpty()) {
        return CommandLine::tr("--restore needs a snapshot and a folder.");
    }
    if (line.task == CommandLine::BackUp && line.job.source.isEmpty()) {
        return CommandLine::tr("--run needs --source.");
    }
    if (line.task >= CommandLine::BackUp && line.job.repository.isEmpty()) {
        return CommandLine::tr("This needs --target.");
    }
    if (line.task == CommandLine::OpenWindow && !parser.optionNames().isEmpty()) {
        return CommandLine::tr("What is to be done? Say --run, --verify, "
                               "--restore or --snapshots.");
    }
    if (parser.isSet("limit-upload") && line.uploadLimit <= 0) {
        return CommandLine::tr("--limit-upload needs a number above 0.");
    }
    return QString();
}

} // namespace

CommandLine CommandLine::parse(const QStringList &arguments)
{
    QCommandLineParser parser;
    addOptions(&parser);
    CommandLine line;
    if (!parser.parse(arguments)) {
        line.error = parser.errorText();
        return line;
    }
    line.task = taskOf(parser);
    line.job.source = parser.value("source");
    line.job.repository = parser.value("target");
    line.job.verify = parser.isSet("verify");
    line.snapshot = parser.value("restore");
    line.folder = parser.value("pictures") + parser.positionalArguments().value(0);
    line.uploadLimit = parser.value("limit-upload").toInt();
    line.createsRepository = parser.isSet("init");
    line.removesStaleLock = parser.isSet("unlock");
    line.isQuiet = parser.isSet("quiet");
    line.error = errorOf(parser, line);
    return line;
}

QString CommandLine::helpText()
{
    QCommandLineParser parser;
    addOptions(&parser);
    return parser.helpText() + QLatin1Char('\n') + tr(exitStatusText);
}

bool CommandLine::needsDisplay(int argumentCount, char *const arguments[])
{
    for (int index = 1; index < argumentCount; ++index) {
        if (QByteArray(arguments[index]).startsWith("--pictures")) {
            return true;
        }
    }
    // Qt's own options, such as -style, have one dash.
    const QByteArray first = argumentCount > 1 ? arguments[1] : "-style";
    return first.startsWith('-') && !first.startsWith("--") && first != "-h";
}
