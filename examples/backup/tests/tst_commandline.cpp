// SPDX-License-Identifier: LGPL-3.0-or-later
#include "BackupTestTools.h"
#include "CommandLine.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QScopedPointer>
#include <QTest>

#include <csignal>

#include <unistd.h>

namespace {

/// What a child process said and how it ended.
struct ChildResult
{
    int status = -1;
    QByteArray output;
    QByteArray errors;
};

} // namespace

/// The test program runs itself as the command line program: with the argument below it is one.
static const char childArgument[] = "--as-backup-program";

class tst_CommandLine : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void readsTheOptions();
    void startingWithoutOptionsOpensTheWindow();
    void picturesBelongToTheWindow();
    void understandsWhetherAWindowIsNeeded_data();
    void understandsWhetherAWindowIsNeeded();
    void rejectsWhatMakesNoSense_data();
    void rejectsWhatMakesNoSense();
    void aRunCopiesAndSaysSo();
    void aRunWithVerifyReadsBack();
    void verifyAloneFindsDifferences();
    void aFailedFileGivesStatusOne();
    void aSkippedPipeGivesStatusZero();
    void aRefusalGivesStatusTwo();
    void theHelpNamesTheOptions();
    void thePassphraseComesFromTheStandardInput();
    void noProgressIsWrittenToAPipe();
    void interruptingEndsInGoodOrder_data();
    void interruptingEndsInGoodOrder();

private:
    ChildResult runChild(const QStringList &arguments,
                         const QByteArray &input = QByteArray()) const;
    QStringList folderArguments() const;

    QScopedPointer<BackupFolders> m_folders;
};

void tst_CommandLine::init()
{
    m_folders.reset(new BackupFolders);
    m_folders->write("file", "content");
}

ChildResult tst_CommandLine::runChild(const QStringList &arguments, const QByteArray &input) const
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(),
                  QStringList(QString::fromLatin1(childArgument)) + arguments);
    process.write(input);
    process.closeWriteChannel();
    ChildResult result;
    if (process.waitForFinished() && process.exitStatus() == QProcess::NormalExit) {
        result.status = process.exitCode();
    }
    result.output = process.readAllStandardOutput();
    result.errors = process.readAllStandardError();
    return result;
}

QStringList tst_CommandLine::folderArguments() const
{
    return {QStringLiteral("--source"), m_folders->job.sourceFolder, QStringLiteral("--target"),
            m_folders->job.targetFolder};
}

void tst_CommandLine::readsTheOptions()
{
    const CommandLine commandLine = CommandLine::parse(
        {QStringLiteral("backup"), QStringLiteral("--source"), QStringLiteral("/a b"),
         QStringLiteral("--target=/c"), QStringLiteral("--verify"), QStringLiteral("--run"),
         QStringLiteral("--passphrase-from-stdin")});
    QCOMPARE(commandLine.error, QString());
    QCOMPARE(commandLine.sourceFolder, QStringLiteral("/a b"));
    QCOMPARE(commandLine.targetFolder, QStringLiteral("/c"));
    QVERIFY(commandLine.wantsVerify);
    QVERIFY(commandLine.wantsRun);
    QVERIFY(commandLine.readsPassphraseFromStdin);
    QVERIFY(!commandLine.opensWindow());
}

void tst_CommandLine::startingWithoutOptionsOpensTheWindow()
{
    const CommandLine commandLine = CommandLine::parse({QStringLiteral("backup")});
    QVERIFY(commandLine.opensWindow());
    QVERIFY(!commandLine.wantsRun);
}

void tst_CommandLine::picturesBelongToTheWindow()
{
    const CommandLine commandLine = CommandLine::parse(
        {QStringLiteral("backup"), QStringLiteral("--pictures"), QStringLiteral("/p")});
    QVERIFY(commandLine.opensWindow());
    QCOMPARE(commandLine.picturesFolder, QStringLiteral("/p"));
}

void tst_CommandLine::understandsWhetherAWindowIsNeeded_data()
{
    QTest::addColumn<QByteArray>("argument");
    QTest::addColumn<bool>("needsNoWindow");
    QTest::newRow("run") << QByteArray("--run") << true;
    QTest::newRow("verify") << QByteArray("--verify") << true;
    QTest::newRow("help") << QByteArray("--help") << true;
    QTest::newRow("pictures") << QByteArray("--pictures") << false;
    QTest::newRow("platform") << QByteArray("-platform") << false;
}

void tst_CommandLine::understandsWhetherAWindowIsNeeded()
{
    QFETCH(QByteArray, argument);
    QFETCH(bool, needsNoWindow);
    char name[] = "--run";
    char *const arguments[] = {name, argument.data()};
    QCOMPARE(CommandLine::needsNoWindow(2, arguments), needsNoWindow);
}

void tst_CommandLine::rejectsWhatMakesNoSense_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("unknown option") << QStringList{QStringLiteral("--frobnicate")};
    QTest::newRow("missing value") << QStringList{QStringLiteral("--source")};
    QTest::newRow("stray argument") << QStringList{QStringLiteral("stray")};
    QTest::newRow("run without folders") << QStringList{QStringLiteral("--run")};
    QTest::newRow("run without target")
        << QStringList{QStringLiteral("--run"), QStringLiteral("--source"), QStringLiteral("/a")};
    QTest::newRow("run without source")
        << QStringList{QStringLiteral("--run"), QStringLiteral("--target"), QStringLiteral("/a")};
    QTest::newRow("verify without target") << QStringList{QStringLiteral("--verify")};
}

void tst_CommandLine::rejectsWhatMakesNoSense()
{
    QFETCH(QStringList, arguments);
    const ChildResult result = runChild(arguments);
    QCOMPARE(result.status, 2);
    QVERIFY(!result.errors.isEmpty());
    QVERIFY(result.output.isEmpty());
}

void tst_CommandLine::aRunCopiesAndSaysSo()
{
    const ChildResult result = runChild(folderArguments() << QStringLiteral("--run"));
    QCOMPARE(result.status, 0);
    QCOMPARE(readFile(m_folders->copy("file")), QByteArray("content"));
    QVERIFY(result.output.contains("1 new"));
    QVERIFY(result.output.contains("0 verified"));
    QVERIFY(result.output.contains("7 bytes"));
}

void tst_CommandLine::aRunWithVerifyReadsBack()
{
    const ChildResult result
        = runChild(folderArguments() << QStringLiteral("--run") << QStringLiteral("--verify"));
    QCOMPARE(result.status, 0);
    QVERIFY(result.output.contains("1 verified"));
}

void tst_CommandLine::verifyAloneFindsDifferences()
{
    m_folders->run();
    writeFile(m_folders->copy("file"), "damaged");
    const ChildResult result = runChild(
        {QStringLiteral("--verify"), QStringLiteral("--target"), m_folders->job.targetFolder});
    QCOMPARE(result.status, 1);
    QVERIFY(result.errors.startsWith("file: "));
    QCOMPARE(readFile(m_folders->copy("file")), QByteArray("damaged"));
}

void tst_CommandLine::aFailedFileGivesStatusOne()
{
    // No folder can be put in the place of the manifest, so the manifest cannot be written.
    PosixFile::makeFolder(m_folders->target());
    PosixFile::makeFolder(m_folders->target("manifest.sha256"));
    const ChildResult result = runChild(folderArguments() << QStringLiteral("--run"));
    QCOMPARE(result.status, 1);
    QVERIFY(result.errors.startsWith("manifest.sha256: "));
}

void tst_CommandLine::aSkippedPipeGivesStatusZero()
{
    runProgram(QStringLiteral("mkfifo"), {QFile::decodeName(m_folders->source("pipe"))});
    const ChildResult result = runChild(folderArguments() << QStringLiteral("--run"));
    QCOMPARE(result.status, 0);
    QVERIFY(result.errors.startsWith("pipe: "));
}

void tst_CommandLine::aRefusalGivesStatusTwo()
{
    m_folders->job.targetFolder = m_folders->job.sourceFolder;
    const ChildResult result = runChild(folderArguments() << QStringLiteral("--run"));
    QCOMPARE(result.status, 2);
    QVERIFY(result.errors.contains("same folder"));
}

void tst_CommandLine::theHelpNamesTheOptions()
{
    const ChildResult result = runChild({QStringLiteral("--help")});
    QCOMPARE(result.status, 0);
    for (const char *option : {"--source", "--target", "--run", "--verify", "--pictures"}) {
        QVERIFY(result.output.contains(option));
    }
}

void tst_CommandLine::thePassphraseComesFromTheStandardInput()
{
    const ChildResult result = runChild(
        folderArguments() << QStringLiteral("--run") << QStringLiteral("--passphrase-from-stdin"),
        "gr\xc3\xbc\xc3\x9f dich\nsecond line\n");
    QCOMPARE(result.status, 0);
    m_folders->job.passphrase = QString::fromUtf8("gr\xc3\xbc\xc3\x9f dich");
    QVERIFY(m_folders->verify().summary.isComplete());
}

void tst_CommandLine::noProgressIsWrittenToAPipe()
{
    const ChildResult result = runChild(folderArguments() << QStringLiteral("--run"));
    QVERIFY(result.errors.isEmpty());
    QVERIFY(!result.output.contains('\r'));
}

void tst_CommandLine::interruptingEndsInGoodOrder_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("interrupt") << SIGINT;
    QTest::newRow("terminate") << SIGTERM;
}

void tst_CommandLine::interruptingEndsInGoodOrder()
{
    QFETCH(int, number);
    // Large, but without a block on disk.
    QCOMPARE(::truncate(m_folders->source("file").constData(), 2000 * 1024 * 1024ll), 0);
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(),
                  QStringList(QString::fromLatin1(childArgument)) + folderArguments()
                      << QStringLiteral("--run"));
    // The work folder shows that copying has begun.
    QTRY_VERIFY(exists(m_folders->target("data.unfinished")));

    ::kill(static_cast<pid_t>(process.processId()), number);

    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 128 + number);
    QVERIFY(process.readAllStandardOutput().contains("Cancelled"));
    QVERIFY(!exists(m_folders->target("data.unfinished")));
    QVERIFY(namesIn(m_folders->copy()).isEmpty());
}

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QStringList arguments = application.arguments();
    if (arguments.removeAll(QString::fromLatin1(childArgument)) > 0) {
        return runFromCommandLine(CommandLine::parse(arguments));
    }
    tst_CommandLine test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_commandline.moc"
