// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Client.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QScopedPointer>
#include <QTest>

namespace {

const QLatin1String initOption("--init");
const QLatin1String verifyOption("--verify");

} // namespace

/// The program without a window among what it finds and others see: a locale, a terminal, lists of
/// processes, another one like it, a disk that is full.
class tst_ClientSurroundings : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
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
    QByteArray listAtATerminal() const;

    QScopedPointer<Sandbox> m_sandbox;
    QScopedPointer<Client> m_client;
};

void tst_ClientSurroundings::initTestCase()
{
    NEEDS_RESTIC();
}

void tst_ClientSurroundings::init()
{
    m_sandbox.reset(new Sandbox);
    m_sandbox->write("file", "content");
    m_client.reset(new Client(*m_sandbox));
}

void tst_ClientSurroundings::namesNeedNoLocale_data()
{
    QTest::addColumn<QString>("locale");
    QTest::newRow("as in cron") << "C";
    QTest::newRow("one that is not there") << "xx_XX.UTF-8";
}

void tst_ClientSurroundings::namesNeedNoLocale()
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
void tst_ClientSurroundings::noHomeFolderIsNeeded()
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

void tst_ClientSurroundings::thePasswordIsSeenNowhere()
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
QByteArray tst_ClientSurroundings::listAtATerminal() const
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

void tst_ClientSurroundings::aTerminalIsAskedForThePassword()
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

void tst_ClientSurroundings::namesDoNotCommandATerminal()
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

void tst_ClientSurroundings::twoClientsAtOnceBothSucceed()
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

void tst_ClientSurroundings::twoClientsAtOnceMakeOneRepository()
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
void tst_ClientSurroundings::aFullDiskIsToldAndTheNextRunWorks()
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

QTEST_GUILESS_MAIN(tst_ClientSurroundings)
#include "tst_clientsurroundings.moc"
