// SPDX-License-Identifier: LGPL-3.0-or-later
#include "CommandLine.h"

#include "BackupEngine.h"
#include "ConsoleReporter.h"
#include "InterruptWatcher.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>
#include <cstring>
#include <string>

namespace {

const int refusedStatus = 2;

const QLatin1String sourceOption("source");
const QLatin1String targetOption("target");
const QLatin1String verifyOption("verify");
const QLatin1String runOption("run");
const QLatin1String passphraseOption("passphrase-from-stdin");
const QLatin1String picturesOption("pictures");
const QLatin1String helpOption("help");

void addOptions(QCommandLineParser *parser)
{
    const QString folder = QStringLiteral("DIR");
    parser->setApplicationDescription(
        QCoreApplication::translate("CommandLine", "Mirrors a folder and checks the copy."));
    parser->addOption({sourceOption,
                       QCoreApplication::translate("CommandLine", "Copy the content of DIR."),
                       folder});
    parser->addOption(
        {targetOption, QCoreApplication::translate("CommandLine", "Copy into DIR."), folder});
    parser->addOption(
        {runOption, QCoreApplication::translate("CommandLine", "Copy at once, without a window.")});
    parser->addOption({verifyOption,
                       QCoreApplication::translate(
                           "CommandLine", "Read the copy back; after copying if with --run.")});
    parser->addOption(
        {passphraseOption,
         QCoreApplication::translate("CommandLine",
                                     "Read the passphrase for the manifest's signature from the "
                                     "first line of the standard input.")});
    parser->addOption(
        {picturesOption,
         QCoreApplication::translate("CommandLine", "Write pictures of the window into DIR."),
         folder});
    parser->addOption({{QStringLiteral("h"), helpOption},
                       QCoreApplication::translate("CommandLine", "Show this help.")});
}

QString errorOf(const QCommandLineParser &parser, const CommandLine &commandLine)
{
    if (!parser.positionalArguments().isEmpty()) {
        return QCoreApplication::translate("CommandLine", "Unexpected argument: %1")
            .arg(parser.positionalArguments().constFirst());
    }
    if (commandLine.wantsRun && commandLine.sourceFolder.isEmpty()) {
        return QCoreApplication::translate("CommandLine", "--run needs --source.");
    }
    if (!commandLine.opensWindow() && commandLine.targetFolder.isEmpty()) {
        return QCoreApplication::translate("CommandLine", "--run and --verify need --target.");
    }
    return QString();
}

QString passphraseFromStdin()
{
    std::string line;
    for (int character = std::getchar(); character != EOF && character != '\n';
         character = std::getchar()) {
        line.push_back(static_cast<char>(character));
    }
    return QString::fromStdString(line);
}

BackupJob jobFrom(const CommandLine &commandLine)
{
    BackupJob job;
    job.sourceFolder = commandLine.sourceFolder;
    job.targetFolder = commandLine.targetFolder;
    job.verifiesAfterRun = commandLine.wantsVerify;
    if (commandLine.readsPassphraseFromStdin) {
        job.passphrase = passphraseFromStdin();
    }
    return job;
}

int showHelp()
{
    QCommandLineParser parser;
    addOptions(&parser);
    std::fputs(qPrintable(parser.helpText()), stdout);
    return 0;
}

int refuse(const QString &reason)
{
    std::fprintf(stderr, "%s\n", qPrintable(reason));
    return refusedStatus;
}

int runJob(const BackupJob &job, bool copies)
{
    BackupEngine engine;
    ConsoleReporter reporter(&engine);
    InterruptWatcher interrupts;
    QObject::connect(&interrupts, &InterruptWatcher::interrupted, &engine, &BackupEngine::cancel);
    QObject::connect(&engine, &BackupEngine::finished, qApp, &QCoreApplication::quit);
    QString refusal;
    if (!(copies ? engine.start(job, &refusal) : engine.startVerify(job, &refusal))) {
        return refuse(refusal);
    }
    QCoreApplication::exec();
    return interrupts.signalNumber() ? 128 + interrupts.signalNumber() : reporter.exitStatus();
}

} // namespace

bool CommandLine::opensWindow() const
{
    return !wantsRun && !wantsVerify && !wantsHelp && error.isEmpty();
}

CommandLine CommandLine::parse(const QStringList &arguments)
{
    QCommandLineParser parser;
    addOptions(&parser);
    CommandLine result;
    if (!parser.parse(arguments)) {
        result.error = parser.errorText();
        return result;
    }
    result.sourceFolder = parser.value(sourceOption);
    result.targetFolder = parser.value(targetOption);
    result.picturesFolder = parser.value(picturesOption);
    result.wantsVerify = parser.isSet(verifyOption);
    result.wantsRun = parser.isSet(runOption);
    result.readsPassphraseFromStdin = parser.isSet(passphraseOption);
    result.wantsHelp = parser.isSet(helpOption);
    result.error = result.wantsHelp ? QString() : errorOf(parser, result);
    return result;
}

bool CommandLine::needsNoWindow(int argumentCount, char *const arguments[])
{
    for (int index = 1; index < argumentCount; ++index) {
        for (const char *option : {"--run", "--verify", "--help", "-h"}) {
            if (std::strcmp(arguments[index], option) == 0) {
                return true;
            }
        }
    }
    return false;
}

int runFromCommandLine(const CommandLine &commandLine)
{
    if (commandLine.wantsHelp) {
        return showHelp();
    }
    if (!commandLine.error.isEmpty()) {
        return refuse(commandLine.error);
    }
    return runJob(jobFrom(commandLine), commandLine.wantsRun);
}
