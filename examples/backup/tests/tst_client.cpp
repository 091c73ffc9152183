// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Client.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QHash>
#include <QScopedPointer>
#include <QTest>

namespace {

const QLatin1String initOption("--init");
const QLatin1String verifyOption("--verify");

} // namespace

/// The program without a window, and the real restic.
class tst_Client : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void backsUpVerifiesListsAndRestores();
    void exitStatusTellsWhatHappened_data();
    void exitStatusTellsWhatHappened();
    void refusesWhatMakesNoSense_data();
    void refusesWhatMakesNoSense();
    void theHelpNamesOptionsAndExitStatus_data();
    void theHelpNamesOptionsAndExitStatus();
    void incompleteBackupsEndWithThree();
    void damageEndsWithFour();
    void aLiveLockEndsWithSix();
    void aLockedRepositoryIsListed();
    void aSecondRepositoryIsNotMadeUnasked();
    void initIsAdvisedToBackupsOnly_data();
    void initIsAdvisedToBackupsOnly();
    void aMissingProgramIsOneSentence();
    void quietSaysNothingUnlessSomethingIsWrong();
    void namesNeedNoLocale_data();
    void namesNeedNoLocale();
    void noHomeFolderIsNeeded();
    void thePasswordIsSeenNowhere();
    void aTerminalIsAskedForThePassword();
    void namesDoNotCommandATerminal();
    void twoClientsAtOnceBothSucceed();
    void twoClientsAtOnceMakeOneRepository();
    void aFullDiskIsToldAndTheNextRunWorks();

private:
    QStringList target(const QStringList &more) const;
    QByteArray listAtATerminal() const;

    QScopedPointer<Sandbox> m_sandbox;
    QScopedPointer<Client> m_client;
};

void tst_Client::initTestCase()
{
    NEEDS_RESTIC();
}

void tst_Client::init()
{
    m_sandbox.reset(new Sandbox);
    m_sandbox->write("file", "content");
    m_client.reset(new Client(*m_sandbox));
}

QStringList tst_Client::target(const QStringList &more) const
{
    return QStringList{QStringLiteral("--target"), m_sandbox->job.repository} + more;
}

void tst_Client::backsUpVerifiesListsAndRestores()
{
    const QString folder = QFile::decodeName(m_sandbox->path("restored"));
    QCOMPARE(m_client->run(backUpArguments(*m_sandbox, {initOption, verifyOption})), 0);
    QVERIFY(m_client->output.contains("1 new"));
    QVERIFY(m_client->output.contains("no errors"));
    QCOMPARE(m_client->errors, QByteArray());
    QCOMPARE(m_client->run(target({QStringLiteral("--snapshots")})), 0);
    QVERIFY(m_client->output.contains(m_sandbox->source()));
    const QString id = QString::fromLatin1(m_client->output.left(8));
    QCOMPARE(m_client->run(target({QStringLiteral("--restore"), id, folder})), 0);
    QCOMPARE(readFile(m_sandbox->path("restored") + m_sandbox->source("file")),
             QByteArray("content"));
    QCOMPARE(m_client->run(target({verifyOption})), 0);
}

void tst_Client::exitStatusTellsWhatHappened_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QByteArray>("input");
    QTest::addColumn<int>("status");
    const QByteArray password = "correct horse\n";
    const auto row
        = [](const char *name, const char *arguments, const QByteArray &input, int status) {
              QTest::newRow(name) << QString::fromLatin1(arguments).split(QLatin1Char(' ')) << input
                                  << status;
          };
    row("done", "--source S --target R --run", password, 0);
    row("a password without an end of line", "--source S --target R --run", "correct horse", 0);
    row("a password and more", "--source S --target R --run", password + "second line\n", 0);
    row("a password from another system", "--source S --target R --run", "correct horse\r\n", 0);
    row("unknown snapshot", "--target R --restore abcdef12 N", password, 1);
    row("no repository", "--source S --target N --run", password, 2);
    row("no repository to list", "--target N --snapshots", password, 2);
    row("no source", "--source N --target R --run", password, 2);
    row("no password", "--source S --target R --run", "", 2);
    row("empty password for a new one", "--source S --target N --run --init", "\n", 2);
    row("restore into what is not empty", "--target R --restore latest S", password, 2);
    row("wrong password", "--source S --target R --run", "wrong\n", 5);
    row("wrong password to list", "--target R --snapshots", "wrong\n", 5);
    row("wrong password to restore", "--target R --restore latest N", "wrong\n", 5);
    row("wrong password to verify", "--target R --verify", "wrong\n", 5);
}

void tst_Client::exitStatusTellsWhatHappened()
{
    QFETCH(QStringList, arguments);
    QFETCH(QByteArray, input);
    QFETCH(int, status);
    m_sandbox->backUp();
    const QHash<QString, QString> names
        = {{QStringLiteral("S"), m_sandbox->job.source},
           {QStringLiteral("R"), m_sandbox->job.repository},
           {QStringLiteral("N"), QFile::decodeName(m_sandbox->path("nothing"))}};
    for (QString &argument : arguments) {
        argument = names.value(argument, argument);
    }
    m_client->input = input;
    QCOMPARE(m_client->run(arguments), status);
    QCOMPARE(m_client->errors.isEmpty(), status == 0);
    QCOMPARE(m_client->output.isEmpty(), status != 0);
}

void tst_Client::refusesWhatMakesNoSense_data()
{
    QTest::addColumn<QString>("line");
    for (const char *line : {"--frobnicate",
                             "stray",
                             "--source",
                             "--run",
                             "--run --source s",
                             "--run --target t",
                             "--verify",
                             "--snapshots",
                             "--restore id f",
                             "--target t --restore id",
                             "--target t --restore id f stray",
                             "--target t --snapshots stray",
                             "--target t --snapshots --verify",
                             "--target t --restore id --snapshots f",
                             "--target t --restore id --verify f",
                             "--source s --target t --run --restore id f",
                             "--source s --target t --run --snapshots",
                             "--source s --target t",
                             "--init",
                             "--quiet",
                             "--source s --target t --run --limit-upload fast",
                             "--source s --target t --run --limit-upload 0",
                             "--source s --target t --run --limit-upload -5",
                             "--source= --target t --run",
                             "--source s --target= --run"}) {
        QTest::newRow(line) << QString::fromLatin1(line);
    }
}

void tst_Client::refusesWhatMakesNoSense()
{
    QFETCH(QString, line);
    QCOMPARE(m_client->run(line.split(QLatin1Char(' '))), 2);
    QVERIFY(m_client->errors.contains("--help"));
    QCOMPARE(m_client->output, QByteArray());
}

void tst_Client::theHelpNamesOptionsAndExitStatus_data()
{
    QTest::addColumn<QString>("option");
    QTest::newRow("usual") << "--help";
    QTest::newRow("with Qt's") << "--help-all";
}

void tst_Client::theHelpNamesOptionsAndExitStatus()
{
    QFETCH(QString, option);
    QCOMPARE(m_client->run({option}), 0);
    for (const char *text :
         {"--source", "--target", "--run", "--verify", "--restore", "--snapshots", "--init",
          "--unlock", "--limit-upload", "--quiet", "--pictures", "--version", "--help",
          "Exit status", "standard input"}) {
        QVERIFY2(m_client->output.contains(text), text);
    }
}

void tst_Client::incompleteBackupsEndWithThree()
{
    if (QFile(QStringLiteral("/proc/sys/vm/compact_memory")).open(QIODevice::ReadOnly)) {
        QSKIP("Everything here can be read.");
    }
    m_sandbox->job.source = QStringLiteral("/proc/sys/vm");
    QCOMPARE(m_client->run(backUpArguments(*m_sandbox, {initOption})), 3);
    // Some versions name the file once more in the reason.
    QCOMPARE(('\n' + m_client->errors).count("\n/proc/sys/vm/compact_memory: "), 1);
}

void tst_Client::damageEndsWithFour()
{
    m_sandbox->fillSource(1, 100000);
    m_sandbox->backUp();
    damage(m_sandbox->repository());
    QCOMPARE(m_client->run(backUpArguments(*m_sandbox, {verifyOption})), 4);
    QVERIFY(m_client->errors.contains("damaged"));
}

void tst_Client::aLiveLockEndsWithSix()
{
    m_sandbox->backUp();
    m_sandbox->fillSource(20, 1000000);
    Client slow(*m_sandbox);
    slow.start(
        backUpArguments(*m_sandbox, {QStringLiteral("--limit-upload"), QStringLiteral("100")}));
    QTRY_VERIFY_WITH_TIMEOUT(m_sandbox->isLocked(), 30000);
    QCOMPARE(m_client->run(target({verifyOption})), 6);
    QVERIFY(m_client->errors.contains("--unlock"));
    QCOMPARE(m_client->run(target({verifyOption, QStringLiteral("--unlock")})), 6);
    QCOMPARE(slow.process.state(), QProcess::Running);
}

void tst_Client::aLockedRepositoryIsListed()
{
    m_sandbox->leaveExclusiveLock();
    QCOMPARE(m_client->run(target({QStringLiteral("--snapshots")})), 0);
    QVERIFY(m_client->output.contains(m_sandbox->source()));
}

void tst_Client::aSecondRepositoryIsNotMadeUnasked()
{
    QCOMPARE(m_client->run(backUpArguments(*m_sandbox)), 2);
    QVERIFY(m_client->errors.contains("--init"));
    QVERIFY(!QFile::exists(m_sandbox->job.repository));
}

void tst_Client::initIsAdvisedToBackupsOnly_data()
{
    QTest::addColumn<QString>("task");
    QTest::newRow("verify") << "--verify";
    QTest::newRow("list") << "--snapshots";
    QTest::newRow("restore") << "--restore latest /no/such/folder";
}

void tst_Client::initIsAdvisedToBackupsOnly()
{
    QFETCH(QString, task);
    QCOMPARE(m_client->run(target(task.split(QLatin1Char(' ')))), 2);
    QVERIFY(m_client->errors.contains("no repository"));
    QVERIFY2(!m_client->errors.contains("--init"), m_client->errors.constData());
}

void tst_Client::aMissingProgramIsOneSentence()
{
    m_sandbox->useProgram(QStringLiteral("/no/such/restic"));
    QCOMPARE(m_client->run(backUpArguments(*m_sandbox)), 2);
    QVERIFY(m_client->errors.contains("package \"restic\""));
    QCOMPARE(m_client->errors.count('\n'), 1);
}

void tst_Client::quietSaysNothingUnlessSomethingIsWrong()
{
    const QString quiet = QStringLiteral("--quiet");
    QCOMPARE(m_client->run(backUpArguments(*m_sandbox, {initOption, verifyOption, quiet})), 0);
    QCOMPARE(m_client->output + m_client->errors, QByteArray());
    QCOMPARE(m_client->run(target({QStringLiteral("--restore"), QStringLiteral("none"),
                                   QFile::decodeName(m_sandbox->path("r")), quiet})),
             1);
    QVERIFY(!m_client->errors.isEmpty());
}

void tst_Client::namesNeedNoLocale_data()
{
    QTest::addColumn<QString>("locale");
    QTest::newRow("as in cron") << "C";
    QTest::newRow("one that is not there") << "xx_XX.UTF-8";
}

void tst_Client::namesNeedNoLocale()
{
    QFETCH(QString, locale);
    QProcessEnvironment environment = m_client->process.processEnvironment();
    environment.remove(QStringLiteral("LC_ALL"));
    environment.remove(QStringLiteral("LC_CTYPE"));
    environment.insert(QStringLiteral("LANG"), locale);
    m_client->process.setProcessEnvironment(environment);
    const QString name = QString::fromUtf8("/gr\xc3\xbc\xc3\x9f \xe2\x82\xac");
    QVERIFY(QDir().mkpath(QString::fromUtf8(m_sandbox->path()) + name));
    writeFile(m_sandbox->path() + name.toUtf8() + "/file", "content");
    m_sandbox->job.source = QString::fromUtf8(m_sandbox->path()) + name;
    QCOMPARE(m_client->run(backUpArguments(*m_sandbox, {initOption})), 0);
    QVERIFY(m_client->output.contains("1 new"));
}

// There is none in the first place: see Client.
void tst_Client::noHomeFolderIsNeeded()
{
    QProcessEnvironment environment = m_client->process.processEnvironment();
    environment.remove(QStringLiteral("RESTIC_CACHE_DIR"));
    environment.remove(QStringLiteral("XDG_CACHE_HOME"));
    m_client->process.setProcessEnvironment(environment);
    QCOMPARE(m_client->run(backUpArguments(*m_sandbox, {initOption, verifyOption})), 0);
}

namespace {

QByteArray allFiles(const QByteArray &folder)
{
    QByteArray result;
    QDirIterator files(QFile::decodeName(folder), QDir::Files | QDir::Hidden,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        result += readFile(QFile::encodeName(files.next())) + '\n';
    }
    return result;
}

} // namespace

void tst_Client::thePasswordIsSeenNowhere()
{
    m_sandbox->job.password = QStringLiteral("pw-8f3a91c7e2");
    m_sandbox->fillSource(10, 60000);
    const QByteArray secret = m_sandbox->job.password.toLatin1();
    QDir().mkpath(QFile::decodeName(m_sandbox->path("temporary")));
    qputenv("TMPDIR", m_sandbox->path("temporary"));
    Client client(*m_sandbox);
    client.start(backUpArguments(
        *m_sandbox,
        {initOption, verifyOption, QStringLiteral("--limit-upload"), QStringLiteral("300")}));
    int looks = 0;
    while (!client.process.waitForFinished(20)) {
        const QByteArray seen = allProcesses();
        QVERIFY(!seen.contains(secret));
        looks += seen.contains(QByteArray("RESTIC_REPOSITORY=") + m_sandbox->repository()) ? 1 : 0;
    }
    qunsetenv("TMPDIR");
    QCOMPARE(client.wait(), 0);
    QVERIFY2(looks > 5, qPrintable(QString::number(looks)));
    QVERIFY(!(client.output + client.errors).contains(secret));
    const QByteArray files = allFiles(m_sandbox->path());
    QVERIFY(files.contains("scrypt"));
    QVERIFY(!files.contains(secret));
}

/// What a terminal gets to see of a listing; empty if there is no "script", which runs a command at
/// a terminal of its own that shows what is typed if told to.
QByteArray tst_Client::listAtATerminal() const
{
    QProcess terminal;
    const QString command = QStringLiteral("'%1' --target '%2' --snapshots; echo status $?")
                                .arg(clientProgram(), m_sandbox->job.repository);
    terminal.start(
        QStringLiteral("script"),
        {QStringLiteral("-q"), QStringLiteral("-c"), command, QStringLiteral("/dev/null")});
    QByteArray seen;
    while (!seen.contains("Password") && terminal.waitForReadyRead(20000)) {
        seen += terminal.readAll();
    }
    terminal.write(m_sandbox->job.password.toUtf8() + '\n');
    while (!seen.contains("status") && terminal.waitForReadyRead(20000)) {
        seen += terminal.readAll();
    }
    terminal.closeWriteChannel();
    terminal.waitForFinished();
    return seen;
}

void tst_Client::aTerminalIsAskedForThePassword()
{
    m_sandbox->backUp();
    const QByteArray seen = listAtATerminal();
    if (seen.isEmpty()) {
        QSKIP("There is no \"script\".");
    }
    QVERIFY2(seen.contains("status 0"), seen.constData());
    QVERIFY2(!seen.contains("correct horse"), seen.constData());
    QVERIFY2(seen.contains(m_sandbox->source()), seen.constData());
}

void tst_Client::namesDoNotCommandATerminal()
{
    m_sandbox->job.source = QFile::decodeName(m_sandbox->source("\x1b[31mred \xe2\x82\xac"));
    m_sandbox->write("\x1b[31mred \xe2\x82\xac/file", "content");
    m_sandbox->backUp();
    const QByteArray seen = listAtATerminal();
    if (seen.isEmpty()) {
        QSKIP("There is no \"script\".");
    }
    QVERIFY2(seen.contains("/?[31mred \xe2\x82\xac"), seen.constData());
    QVERIFY(!seen.contains("\x1b[31m"));
}

void tst_Client::twoClientsAtOnceBothSucceed()
{
    m_sandbox->backUp();
    m_sandbox->fillSource(50, 100000);
    Client first(*m_sandbox);
    Client second(*m_sandbox);
    first.start(backUpArguments(*m_sandbox));
    second.start(backUpArguments(*m_sandbox));
    QCOMPARE(first.wait(), 0);
    QCOMPARE(second.wait(), 0);
    QCOMPARE(m_sandbox->snapshotCount(), 3);
    QVERIFY(m_sandbox->isSound());
}

void tst_Client::twoClientsAtOnceMakeOneRepository()
{
    Client first(*m_sandbox);
    Client second(*m_sandbox);
    first.start(backUpArguments(*m_sandbox, {initOption}));
    second.start(backUpArguments(*m_sandbox, {initOption}));
    QCOMPARE(first.wait(), 0);
    QCOMPARE(second.wait(), 0);
    QCOMPARE(m_sandbox->snapshotCount(), 2);
    QVERIFY(m_sandbox->isSound());
}

// On a disk of 6 MB, which exists for this script only.
void tst_Client::aFullDiskIsToldAndTheNextRunWorks()
{
    const QString script = QStringLiteral("mount -t tmpfs -o size=6m none \"$1\" || exit 77\n"
                                          "disk=$1 client=$2 source=$3\n"
                                          "read -r password\n"
                                          "run() { echo \"$password\" | \"$client\" --source "
                                          "\"$source\" --target \"$disk/r\" --run $1\n"
                                          "    echo \"status $?\"; }\n"
                                          "run --init\n"
                                          "head -c 3000000 /dev/zero > \"$disk/filler\"\n"
                                          "head -c 4000000 /dev/urandom > \"$source/more\"\n"
                                          "run\n"
                                          "rm \"$disk/filler\" \"$source/more\"\n"
                                          "run --verify\n");
    const QString disk = QFile::decodeName(m_sandbox->path("disk"));
    QDir().mkpath(disk);
    m_sandbox->fillSource(20, 100000);
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QStringLiteral("unshare"),
                  {QStringLiteral("--user"), QStringLiteral("--map-root-user"),
                   QStringLiteral("--mount"), QStringLiteral("sh"), QStringLiteral("-c"), script,
                   QStringLiteral("sh"), disk, clientProgram(), m_sandbox->job.source});
    process.write(m_sandbox->job.password.toUtf8() + '\n');
    process.closeWriteChannel();
    QVERIFY(process.waitForFinished(120000));
    const QByteArray output = process.readAll();
    if (process.exitCode() != 0) {
        QSKIP("This system lets nobody mount a small disk.");
    }
    const auto full = output.indexOf("status 1\n");
    QVERIFY2(full > 0 && output.indexOf("status 0\n") < full, output.constData());
    QVERIFY2(output.left(full).contains("There is no space left."), output.constData());
    QVERIFY2(output.mid(full).contains("no errors"), output.constData());
    QVERIFY2(output.endsWith("status 0\n"), output.constData());
}

QTEST_GUILESS_MAIN(tst_Client)
#include "tst_client.moc"
