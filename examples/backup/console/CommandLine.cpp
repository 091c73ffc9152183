// SPDX-License-Identifier: LGPL-3.0-or-later
#include "CommandLine.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace {

const struct
{
    const char *name;
    const char *value;
    const char *description;
} options[] = {
    {"source", "FOLDER", QT_TRANSLATE_NOOP("CommandLine", "Back up FOLDER.")},
    {"target", "REPOSITORY",
     QT_TRANSLATE_NOOP("CommandLine", "A folder, or an address such as sftp:host:/path.")},
    {"run", "", QT_TRANSLATE_NOOP("CommandLine", "Back up the source into the target.")},
    {"verify", "",
     QT_TRANSLATE_NOOP("CommandLine",
                       "Read all of the target back; after the backup if with --run.")},
    {"restore", "SNAPSHOT",
     QT_TRANSLATE_NOOP("CommandLine",
                       "Restore SNAPSHOT, or the \"latest\", from the target into the "
                       "folder named last, which must be empty or new.")},
    {"snapshots", "", QT_TRANSLATE_NOOP("CommandLine", "List the snapshots in the target.")},
    {"init", "", QT_TRANSLATE_NOOP("CommandLine", "Make the repository if it is not there.")},
    {"unlock", "", QT_TRANSLATE_NOOP("CommandLine", "Remove a lock that a dead program left.")},
    {"limit-upload", "RATE", QT_TRANSLATE_NOOP("CommandLine", "Write RATE KB a second at most.")},
    {"quiet", "", QT_TRANSLATE_NOOP("CommandLine", "Say nothing unless something is wrong.")},
    {"pictures", "FOLDER",
     QT_TRANSLATE_NOOP("CommandLine", "Write pictures of the window into FOLDER.")},
    {"version", "", QT_TRANSLATE_NOOP("CommandLine", "Show the version.")},
    {"help", "", QT_TRANSLATE_NOOP("CommandLine", "Show this help.")},
};

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
    for (const auto &option : options) {
        QStringList names(QLatin1String(option.name));
        if (names.first() == QLatin1String("help")) {
            names.prepend(QStringLiteral("h"));
        }
        parser->addOption(
            {names, CommandLine::tr(option.description), QLatin1String(option.value)});
    }
}

CommandLine::Task taskOf(const QCommandLineParser &parser)
{
    const struct
    {
        const char *option;
        CommandLine::Task task;
    } tasks[] = {{"help", CommandLine::ShowHelp},         {"version", CommandLine::ShowVersion},
                 {"pictures", CommandLine::TakePictures}, {"run", CommandLine::BackUp},
                 {"restore", CommandLine::Restore},       {"snapshots", CommandLine::Snapshots},
                 {"verify", CommandLine::Verify}};
    for (const auto &candidate : tasks) {
        if (parser.isSet(QLatin1String(candidate.option))) {
            return candidate.task;
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
    if (parser.isSet(QStringLiteral("limit-upload")) && line.uploadLimit <= 0) {
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
    line.job.source = parser.value(QStringLiteral("source"));
    line.job.repository = parser.value(QStringLiteral("target"));
    line.job.verify = parser.isSet(QStringLiteral("verify"));
    line.snapshot = parser.value(QStringLiteral("restore"));
    line.folder = parser.value(QStringLiteral("pictures")) + parser.positionalArguments().value(0);
    line.uploadLimit = parser.value(QStringLiteral("limit-upload")).toInt();
    line.createsRepository = parser.isSet(QStringLiteral("init"));
    line.removesStaleLock = parser.isSet(QStringLiteral("unlock"));
    line.isQuiet = parser.isSet(QStringLiteral("quiet"));
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
