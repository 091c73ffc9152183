// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ResticTestTools.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

/// What is made of output that the real restic does not give: a program that fakes it runs instead.
class tst_ResticRun : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void messagesComeLineByLine();
    void whatIsNoMessageIsSkippedAndCounted_data();
    void whatIsNoMessageIsSkippedAndCounted();
    void unknownMessagesAreIgnored();
    void aLineThatNeverEndsDoesNotFillTheMemory();
    void problemsAreTold();
    void manyErrorsAreNotAllKept();
    void otherVersionsAreRefusedOrTaken_data();
    void otherVersionsAreRefusedOrTaken();
    void aProgramThatIsReplacedIsLookedAtAgain();
    void aCrashIsTold();
    void aProgramThatDoesNotStartIsMissing_data();
    void aProgramThatDoesNotStartIsMissing();
    void cancellingEndsIt_data();
    void cancellingEndsIt();
    void exitStatusAndWordsAreUnderstood_data();
    void exitStatusAndWordsAreUnderstood();
    void thePasswordGoesToTheStandardInputOnly();
    void theOutputGoesIntoAFile();
    void aFileThatCannotBeWrittenIsAFailure();
    void theCacheMovesOnlyWhereThereIsNoPlaceForIt_data();
    void theCacheMovesOnlyWhereThereIsNoPlaceForIt();

private:
    void fake(const QByteArray &output, const QByteArray &errors = QByteArray(),
              const QByteArray &status = "0") const;
    Outcome run(ResticRun *run, const QStringList &arguments = {QStringLiteral("--json")},
                const QString &outputFile = QString()) const;
    Outcome backUp() const;

    QScopedPointer<Sandbox> m_sandbox;
};

void tst_ResticRun::init()
{
    m_sandbox.reset(new Sandbox);
    m_sandbox->useProgram(fakeRestic());
}

void tst_ResticRun::cleanup()
{
    for (const char *name : {"VERSION", "OUTPUT", "ERRORS", "STATUS"}) {
        qunsetenv(QByteArray("FAKERESTIC_").append(name));
    }
}

void tst_ResticRun::fake(const QByteArray &output, const QByteArray &errors,
                         const QByteArray &status) const
{
    writeFile(m_sandbox->path("output"), output);
    writeFile(m_sandbox->path("errors"), errors);
    qputenv("FAKERESTIC_OUTPUT", m_sandbox->path("output"));
    qputenv("FAKERESTIC_ERRORS", m_sandbox->path("errors"));
    qputenv("FAKERESTIC_STATUS", status);
}

Outcome tst_ResticRun::run(ResticRun *run, const QStringList &arguments,
                           const QString &outputFile) const
{
    QSignalSpy finished(run, &ResticRun::finished);
    run->start(m_sandbox->job, arguments, outputFile);
    return finished.wait(30000) ? finished.first().first().value<Outcome>() : Outcome();
}

Outcome tst_ResticRun::backUp() const
{
    return m_sandbox->backUp(false).outcome;
}

void tst_ResticRun::messagesComeLineByLine()
{
    fake("reading repository password from stdin\n{\"a\":1}\n\n[2]\n{\"unfinished line\":3}");
    ResticRun restic;
    QSignalSpy messages(&restic, &ResticRun::message);
    QCOMPARE(run(&restic).skippedLines, 0);
    QCOMPARE(messages.count(), 3);
    QCOMPARE(messages.at(0).first().toJsonDocument().object().value(QStringLiteral("a")).toInt(),
             1);
    QCOMPARE(messages.at(1).first().toJsonDocument().array().size(), 1);
}

void tst_ResticRun::whatIsNoMessageIsSkippedAndCounted_data()
{
    QTest::addColumn<QByteArray>("output");
    QTest::newRow("text") << QByteArray("hello\n");
    QTest::newRow("cut off") << QByteArray("{\"message_type\":\"stat");
    QTest::newRow("two on a line") << QByteArray("{\"a\":1}{\"b\":2}\n");
    QTest::newRow("zeros") << QByteArray("\0\0\0\n", 4);
    QTest::newRow("no UTF-8") << QByteArray("\xff\xfe{}\n");
    QTest::newRow("deep") << QByteArray(100000, '[') + '\n';
}

void tst_ResticRun::whatIsNoMessageIsSkippedAndCounted()
{
    QFETCH(QByteArray, output);
    fake("{\"message_type\":\"summary\",\"files_new\":7,\"snapshot_id\":\"abc\"}\n" + output);
    const Outcome outcome = backUp();
    QCOMPARE(outcome.kind, Outcome::Done);
    QVERIFY(outcome.text().contains(QLatin1String("7 new")));
    QCOMPARE(outcome.skippedLines, 1);
    QVERIFY(outcome.text().contains(QLatin1String("1 line")));
}

void tst_ResticRun::unknownMessagesAreIgnored()
{
    fake("{\"message_type\":\"novelty\",\"files_new\":3}\n[]\n{}\n"
         "{\"message_type\":\"status\",\"current_files\":7,\"percent_done\":\"half\"}\n"
         "{\"message_type\":\"summary\",\"files_new\":\"many\",\"snapshot_id\":\"abc\"}\n");
    const Outcome outcome = backUp();
    QCOMPARE(outcome.kind, Outcome::Done);
    QVERIFY(outcome.text().contains(QLatin1String("0 new")));
    QCOMPARE(outcome.skippedLines, 0);
}

void tst_ResticRun::aLineThatNeverEndsDoesNotFillTheMemory()
{
    fake(QByteArray(100 * 1024 * 1024, 'x') + "\n{\"after\":1}\n");
    ResticRun restic;
    QSignalSpy messages(&restic, &ResticRun::message);
    QVERIFY(run(&restic).skippedLines > 0);
    QCOMPARE(messages.count(), 1);
    QFile status(QStringLiteral("/proc/self/status"));
    if (status.open(QIODevice::ReadOnly)) {
        const QByteArray text = status.readAll();
        const QByteArray peak = text.mid(text.indexOf("VmHWM:") + 6, 20).simplified();
        // The test itself has held the 100 MB, and its file's name; restic's output must not add
        // them.
        QVERIFY2(peak.split(' ').first().toInt() < 350 * 1024, peak.constData());
    }
}

void tst_ResticRun::problemsAreTold()
{
    QByteArray errors;
    for (int number = 0; number < 10000; ++number) {
        errors += "{\"message_type\":\"error\",\"error\":{\"message\":\"no\"},\"item\":\"/f"
            + QByteArray::number(number) + "\"}\n";
    }
    fake("", errors + "Fatal: oh\n", "1");
    const Record record = m_sandbox->backUp();
    QCOMPARE(record.problems.size(), 10000);
    QCOMPARE(record.problems.last(), QStringLiteral("/f9999: no"));
    // Not those that have been told.
    QCOMPARE(record.outcome.details, QStringLiteral("Fatal: oh"));
}

void tst_ResticRun::manyErrorsAreNotAllKept()
{
    QByteArray errors;
    for (int number = 0; number < 10000; ++number) {
        errors += "no " + QByteArray::number(number) + '\n';
    }
    fake("", errors, "1");
    ResticRun restic;
    const QString details = run(&restic).details;
    QCOMPARE(details.count(QLatin1Char('\n')), 19);
    QVERIFY(details.endsWith(QLatin1String("no 9999")));
}

void tst_ResticRun::otherVersionsAreRefusedOrTaken_data()
{
    QTest::addColumn<QByteArray>("version");
    QTest::addColumn<int>("kind");
    QTest::newRow("ancient") << QByteArray("restic 0.9.6 compiled with go") << int(Outcome::TooOld);
    QTest::newRow("before") << QByteArray("restic 0.13.1 compiled with go") << int(Outcome::TooOld);
    QTest::newRow("first") << QByteArray("restic 0.14.0 compiled with go") << int(Outcome::Done);
    QTest::newRow("later") << QByteArray("restic 0.18.1-dev compiled") << int(Outcome::Done);
    QTest::newRow("far ahead") << QByteArray("restic 2.0 compiled") << int(Outcome::Done);
    QTest::newRow("another program") << QByteArray("grep 3.8") << int(Outcome::TooOld);
}

void tst_ResticRun::otherVersionsAreRefusedOrTaken()
{
    QFETCH(QByteArray, version);
    QFETCH(int, kind);
    fake("");
    qputenv("FAKERESTIC_VERSION", version);
    const Outcome outcome = backUp();
    QCOMPARE(int(outcome.kind), kind);
    QCOMPARE(outcome.text().contains(QString::fromLatin1(version)), kind == int(Outcome::TooOld));
}

void tst_ResticRun::aProgramThatIsReplacedIsLookedAtAgain()
{
    fake("");
    qputenv("FAKERESTIC_VERSION", "restic 0.1 compiled");
    QCOMPARE(backUp().kind, Outcome::TooOld);
    qputenv("FAKERESTIC_VERSION", "restic 1.1 compiled");
    QCOMPARE(backUp().kind, Outcome::Done);
}

void tst_ResticRun::aCrashIsTold()
{
    fake("{\"message_type\":\"status\",\"bytes_done\":5}\n", "panic: oh\n", "crash");
    const Outcome outcome = backUp();
    QCOMPARE(outcome.kind, Outcome::Crashed);
    QCOMPARE(outcome.details, QStringLiteral("panic: oh"));
}

void tst_ResticRun::aProgramThatDoesNotStartIsMissing_data()
{
    QTest::addColumn<QString>("program");
    QTest::newRow("nothing") << "/no/such/program";
    QTest::newRow("a folder") << "/";
    QTest::newRow("a setting left blank") << "";
}

void tst_ResticRun::aProgramThatDoesNotStartIsMissing()
{
    QFETCH(QString, program);
    m_sandbox->useProgram(program);
    ResticRun restic;
    const Outcome outcome = run(&restic);
    QCOMPARE(outcome.kind, Outcome::Missing);
    QVERIFY(outcome.text().contains(QLatin1String("Install the package \"restic\"")));
}

void tst_ResticRun::cancellingEndsIt_data()
{
    QTest::addColumn<bool>("atOnce");
    QTest::newRow("before it has started") << true;
    QTest::newRow("while it runs") << false;
}

void tst_ResticRun::cancellingEndsIt()
{
    QFETCH(bool, atOnce);
    fake("{\"a\":1}\n", "", "hang");
    ResticRun restic;
    if (atOnce) {
        QTimer::singleShot(0, &restic, &ResticRun::cancel);
    } else {
        QObject::connect(&restic, &ResticRun::message, &restic, &ResticRun::cancel);
    }
    QCOMPARE(run(&restic).kind, Outcome::Cancelled);
    fake("");
    QCOMPARE(run(&restic).kind, Outcome::Done);
}

void tst_ResticRun::exitStatusAndWordsAreUnderstood_data()
{
    QTest::addColumn<QByteArray>("status");
    QTest::addColumn<QByteArray>("words");
    QTest::addColumn<int>("kind");
    const auto row = [](const char *name, const char *status, const char *words, int kind) {
        QTest::newRow(name) << QByteArray(status) << QByteArray(words) << kind;
    };
    row("all well", "0", "warning: something\n", Outcome::Done);
    row("anything", "1", "Fatal: oh\n", Outcome::Failed);
    row("a crash of its own", "2", "panic: oh\ngoroutine 1 [running]:\n", Outcome::Crashed);
    row("without a word", "1", "", Outcome::Failed);
    row("some files not read", "3", "", Outcome::Incomplete);
    row("old, wrong password", "1", "Fatal: wrong password or no key found\n",
        Outcome::WrongPassword);
    row("new, wrong password", "12", "", Outcome::WrongPassword);
    row("old, locked", "1", "unable to create lock: repository is already locked by PID 7\n",
        Outcome::Locked);
    row("new, locked", "11", "", Outcome::Locked);
    row("old, no repository", "1",
        "Fatal: unable to open config file: stat r/config: no such file or directory\n"
        "Is there a repository at the following location?\nr\n",
        Outcome::NoRepository);
    row("old, no repository on a server", "1",
        "Fatal: unable to open config file: Stat: The specified key does not exist.\n",
        Outcome::NoRepository);
    row("new, no repository", "10", "", Outcome::NoRepository);
    row("no access to the repository", "1",
        "Fatal: unable to open config file: stat r/config: permission denied\n"
        "Is there a repository at the following location?\nr\n",
        Outcome::Failed);
    row("no server", "1",
        "Fatal: unable to open config file: dial tcp: connection refused\n"
        "Is there a repository at the following location?\nr\n",
        Outcome::Failed);
    row("disk full", "1", "Save(<data/1>) failed: write r/x: no space left on device\n",
        Outcome::NoSpace);
    row("quota", "1", "write r/x: disk quota exceeded\n", Outcome::NoSpace);
    row("vanished source", "1",
        "/s does not exist, skipping\nFatal: all target directories/files do not exist\n",
        Outcome::NoSource);
    row("damage", "1", "Pack ID does not match\nFatal: repository contains errors\n",
        Outcome::Damaged);
    row("new, in JSON", "1",
        "{\"message_type\":\"exit_error\",\"code\":1,\"message\":\"Fatal: wrong password or no key "
        "found\"}\n",
        Outcome::WrongPassword);
}

void tst_ResticRun::exitStatusAndWordsAreUnderstood()
{
    QFETCH(QByteArray, status);
    QFETCH(QByteArray, words);
    QFETCH(int, kind);
    fake("", words, status);
    ResticRun restic;
    const Outcome outcome = run(&restic);
    QCOMPARE(int(outcome.kind), kind);
    QCOMPARE(outcome.text().isEmpty(), kind == Outcome::Done);
}

void tst_ResticRun::thePasswordGoesToTheStandardInputOnly()
{
    const char *const beating[] = {"RESTIC_PASSWORD", "RESTIC_PASSWORD_FILE",
                                   "RESTIC_PASSWORD_COMMAND", "RESTIC_REPOSITORY_FILE"};
    for (const char *name : beating) {
        qputenv(name, "another");
    }
    const QString program = QFile::decodeName(m_sandbox->path("restic"));
    writeFile(m_sandbox->path("restic"),
              "#!/bin/sh\n[ \"$1\" = version ] && echo restic 9.9 && exit\n"
              "env > \"$0.environment\"; echo \"$@\" > \"$0.arguments\"; cat > \"$0.input\"\n");
    QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner);
    m_sandbox->useProgram(program);
    m_sandbox->job.password = QString::fromUtf8("gr\xc3\xbc\xc3\x9f $dich \"");
    ResticRun restic;
    run(&restic, {QStringLiteral("backup"), QStringLiteral("--json")});
    for (const char *name : beating) {
        qunsetenv(name);
    }
    QCOMPARE(readFile(m_sandbox->path("restic.input")), m_sandbox->job.password.toUtf8() + '\n');
    QCOMPARE(readFile(m_sandbox->path("restic.arguments")), QByteArray("backup --json\n"));
    const QByteArray environment = readFile(m_sandbox->path("restic.environment"));
    QVERIFY(environment.contains("RESTIC_REPOSITORY=" + m_sandbox->repository() + '\n'));
    QVERIFY(!environment.contains("=another"));
    QVERIFY(!environment.contains("dich"));
}

void tst_ResticRun::theOutputGoesIntoAFile()
{
    fake("{\"a\":1}\nanything\n");
    ResticRun restic;
    QSignalSpy messages(&restic, &ResticRun::message);
    QSignalSpy finished(&restic, &ResticRun::finished);
    restic.start(m_sandbox->job, {QStringLiteral("--json")},
                 QFile::decodeName(m_sandbox->path("list")));
    QVERIFY(finished.wait(30000));
    QCOMPARE(finished.first().first().value<Outcome>().skippedLines, 0);
    QCOMPARE(messages.count(), 0);
    QCOMPARE(readFile(m_sandbox->path("list")), QByteArray("{\"a\":1}\nanything\n"));
}

void tst_ResticRun::aFileThatCannotBeWrittenIsAFailure()
{
    fake("{}\n");
    ResticRun restic;
    const Outcome outcome = run(&restic, {}, QStringLiteral("/no/such/folder/list"));
    QCOMPARE(outcome.kind, Outcome::Failed);
    QVERIFY2(outcome.text().size() > 20, qPrintable(outcome.text()));
}

void tst_ResticRun::theCacheMovesOnlyWhereThereIsNoPlaceForIt_data()
{
    QTest::addColumn<QByteArray>("place");
    QTest::addColumn<bool>("moves");
    QTest::newRow("none") << QByteArray() << true;
    QTest::newRow("a home") << QByteArray("HOME") << false;
    QTest::newRow("one on Windows") << QByteArray("LOCALAPPDATA") << false;
}

void tst_ResticRun::theCacheMovesOnlyWhereThereIsNoPlaceForIt()
{
    QFETCH(QByteArray, place);
    QFETCH(bool, moves);
    const QByteArray home = qgetenv("HOME");
    qunsetenv("HOME");
    qunsetenv("RESTIC_CACHE_DIR");
    qputenv(place.isEmpty() ? "UNUSED" : place.constData(), "/somewhere");
    const QProcessEnvironment environment = Restic::environment(QStringLiteral("/repository"));
    qunsetenv(place.isEmpty() ? "UNUSED" : place.constData());
    qputenv("HOME", home);
    QCOMPARE(environment.contains(QStringLiteral("RESTIC_CACHE_DIR")), moves);
}

QTEST_GUILESS_MAIN(tst_ResticRun)
#include "tst_resticrun.moc"
