// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Client.h"

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

private:
    QStringList target(const QStringList &more) const;

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

QTEST_GUILESS_MAIN(tst_Client)
#include "tst_client.moc"
