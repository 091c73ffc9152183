// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ResticTestTools.h"

#include <QFile>
#include <QRegularExpression>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QTest>

/// Backups by the real restic.
class tst_BackupRun : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void aBackupMakesTheRepositoryAfterAQuestion();
    void withoutConsentNothingIsMade();
    void aSecondRunStoresWhatHasChanged();
    void verifyingReadsTheRepositoryBack();
    void aFlippedByteIsDamage_data();
    void aFlippedByteIsDamage();
    void aWrongPasswordIsToldAndLosesNothing();
    void anEmptyPasswordIsRefused();
    void whatIsMissingIsTold_data();
    void whatIsMissingIsTold();
    void unreadableFilesMakeTheBackupIncomplete();
    void aRepositoryInsideTheSourceIsNotBackedUp();
    void aSourceInsideTheRepositoryIsBackedUp();
    void aLinkToTheSourceIsFollowed();
    void theHomeFolderMayBeATilde();
    void theLimitSlowsTheNextRun();
    void progressIsTold();
    void onlyOneRunAtATime();
    void cancellingEndsTheRunAndLeavesNoLock();
    void cancellingDuringAQuestionEndsTheRun();
    void aRunEndsWithoutATemporaryFolder();
    void aStaleLockIsRemovedAfterAQuestion();
    void aStaleLockStaysWithoutConsent();
    void aLiveLockIsNotRemoved();
    void twoRunsAtOnceBothSucceed();
    void aRunMayBeDestroyedAtAnyTime();

private:
    QScopedPointer<Sandbox> m_sandbox;
};

void tst_BackupRun::initTestCase()
{
    NEEDS_RESTIC();
}

void tst_BackupRun::init()
{
    m_sandbox.reset(new Sandbox);
    m_sandbox->write("file", "content");
}

void tst_BackupRun::aBackupMakesTheRepositoryAfterAQuestion()
{
    const Record record = m_sandbox->backUp();
    QCOMPARE(record.outcome.kind, Outcome::Done);
    QCOMPARE(record.questions, {BackupRun::CreateRepository});
    QVERIFY2(record.outcome.text().startsWith("Snapshot " + record.outcome.snapshot.left(8)
                                              + ": 1 new, 0 changed, 0 unchanged files; 7 B read"),
             qPrintable(record.outcome.text()));
    QCOMPARE(record.outcome.skippedLines, 0);
    QCOMPARE(m_sandbox->snapshotCount(), 1);
}

void tst_BackupRun::withoutConsentNothingIsMade()
{
    const Record record = m_sandbox->backUp(false);
    QCOMPARE(record.outcome.kind, Outcome::NoRepository);
    QVERIFY(!QFile::exists(m_sandbox->job.repository));
}

void tst_BackupRun::aSecondRunStoresWhatHasChanged()
{
    m_sandbox->write("same", "same");
    m_sandbox->backUp();
    m_sandbox->write("file", "other content");
    m_sandbox->write("new", "new");
    const Record record = m_sandbox->backUp();
    QCOMPARE(record.outcome.kind, Outcome::Done);
    QCOMPARE(record.questions.size(), 0);
    QVERIFY2(record.outcome.text().contains("1 new, 1 changed, 1 unchanged"),
             qPrintable(record.outcome.text()));
    QCOMPARE(m_sandbox->snapshotCount(), 2);
}

void tst_BackupRun::verifyingReadsTheRepositoryBack()
{
    m_sandbox->job.verify = true;
    const Record record = m_sandbox->backUp();
    QCOMPARE(record.outcome.kind, Outcome::Done);
    QVERIFY(record.outcome.text().contains(QLatin1String("no errors")));
    QCOMPARE(record.progress.constLast(), QStringLiteral("Verifying"));
}

void tst_BackupRun::aFlippedByteIsDamage_data()
{
    QTest::addColumn<QByteArray>("kind");
    QTest::newRow("in a pack") << QByteArray("data");
    QTest::newRow("in the index") << QByteArray("index");
}

void tst_BackupRun::aFlippedByteIsDamage()
{
    QFETCH(QByteArray, kind);
    m_sandbox->fillSource(1, 100000);
    m_sandbox->backUp();
    damage(m_sandbox->repository(), kind);
    const Record record = m_sandbox->verify();
    QCOMPARE(record.outcome.kind, Outcome::Damaged);
    QVERIFY(!record.outcome.text().contains("no errors"));
    QVERIFY(!record.outcome.details.isEmpty());
}

void tst_BackupRun::aWrongPasswordIsToldAndLosesNothing()
{
    m_sandbox->backUp();
    const QString right = m_sandbox->job.password;
    m_sandbox->job.password = QStringLiteral("wrong");
    QCOMPARE(m_sandbox->backUp().outcome.kind, Outcome::WrongPassword);
    m_sandbox->job.password = right;
    QCOMPARE(m_sandbox->snapshotCount(), 1);
    QVERIFY(m_sandbox->isSound());
}

void tst_BackupRun::anEmptyPasswordIsRefused()
{
    m_sandbox->job.password.clear();
    QCOMPARE(m_sandbox->backUp().outcome.kind, Outcome::NoPassword);
    QVERIFY(!QFile::exists(m_sandbox->job.repository + QStringLiteral("/config")));
}

void tst_BackupRun::whatIsMissingIsTold_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("repository");
    QTest::addColumn<QString>("program");
    QTest::addColumn<int>("kind");
    QTest::newRow("source") << "/no/such/folder"
                            << ""
                            << "" << int(Outcome::NoSource);
    QTest::newRow("no source typed") << " "
                                     << ""
                                     << "" << int(Outcome::NoSource);
    QTest::newRow("no repository typed") << ""
                                         << " "
                                         << "" << int(Outcome::NoRepository);
    QTest::newRow("restic") << ""
                            << ""
                            << "/no/such/restic" << int(Outcome::Missing);
}

void tst_BackupRun::whatIsMissingIsTold()
{
    QFETCH(QString, source);
    QFETCH(QString, repository);
    QFETCH(QString, program);
    QFETCH(int, kind);
    if (!program.isEmpty()) {
        m_sandbox->useProgram(program);
    }
    m_sandbox->job.source = source.isEmpty() ? m_sandbox->job.source : source;
    m_sandbox->job.repository = repository.isEmpty() ? m_sandbox->job.repository : repository;
    const Outcome outcome = m_sandbox->backUp().outcome;
    QCOMPARE(int(outcome.kind), kind);
    QVERIFY(!outcome.text().isEmpty());
}

void tst_BackupRun::unreadableFilesMakeTheBackupIncomplete()
{
    // Files that not even root may read.
    m_sandbox->job.source = QStringLiteral("/proc/sys/vm");
    if (QFile(QStringLiteral("/proc/sys/vm/compact_memory")).open(QIODevice::ReadOnly)) {
        QSKIP("Everything here can be read.");
    }
    const Record record = m_sandbox->backUp();
    QCOMPARE(record.outcome.kind, Outcome::Incomplete);
    QVERIFY(record.problems.join(QLatin1Char('\n')).contains(QLatin1String("/compact_memory: ")));
    QVERIFY2(record.outcome.details.isEmpty(), qPrintable(record.outcome.details));
    QCOMPARE(m_sandbox->snapshotCount(), 1);
}

void tst_BackupRun::aRepositoryInsideTheSourceIsNotBackedUp()
{
    m_sandbox->job.repository = m_sandbox->job.source + QStringLiteral("/a [b] *");
    m_sandbox->write("a b", "has a name that the pattern might mean");
    const QString first = m_sandbox->backUp().outcome.text();
    QVERIFY2(first.contains("2 new, 0 changed, 0 unchanged"), qPrintable(first));
    const Record record = m_sandbox->backUp();
    QCOMPARE(record.outcome.kind, Outcome::Done);
    QVERIFY2(record.outcome.text().contains("0 new, 0 changed, 2 unchanged"),
             qPrintable(record.outcome.text()));
}

// As with a whole disk as the repository and a folder on it as the source.
void tst_BackupRun::aSourceInsideTheRepositoryIsBackedUp()
{
    m_sandbox->job.repository = QFile::decodeName(m_sandbox->path());
    QVERIFY(m_sandbox->backUp().outcome.text().contains("1 new"));
}

void tst_BackupRun::aLinkToTheSourceIsFollowed()
{
    const QString link = m_sandbox->job.source + QStringLiteral("-link");
    QVERIFY(QFile::link(m_sandbox->job.source, link));
    m_sandbox->job.source = link;
    QVERIFY(m_sandbox->backUp().outcome.text().contains("1 new"));
}

void tst_BackupRun::theHomeFolderMayBeATilde()
{
    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", m_sandbox->path());
    m_sandbox->job.source = QStringLiteral("~/source");
    m_sandbox->job.repository = QStringLiteral("~/repository at home");
    const Record record = m_sandbox->backUp();
    qputenv("HOME", home);
    QVERIFY(record.outcome.text().contains("1 new"));
    QVERIFY(QFile::exists(QFile::decodeName(m_sandbox->path("repository at home/config"))));
}

void tst_BackupRun::theLimitSlowsTheNextRun()
{
    m_sandbox->backUp();
    m_sandbox->fillSource(1, 300000);
    BackupRun run;
    m_sandbox->job.uploadLimit = 100;
    QElapsedTimer timer;
    timer.start();
    run.backUp(m_sandbox->job);
    QCOMPARE(recordOf(&run).outcome.kind, Outcome::Done);
    // 300 KB at 100 KB a second; what was saved up before the start is free.
    QVERIFY2(timer.elapsed() > 1500, qPrintable(QString::number(timer.elapsed())));
}

void tst_BackupRun::progressIsTold()
{
    m_sandbox->fillSource(10, 100000);
    m_sandbox->backUp();
    m_sandbox->fillSource(30, 100000);
    BackupRun run;
    m_sandbox->job.uploadLimit = 600; // so that there is time to tell
    run.backUp(m_sandbox->job);
    const Record record = recordOf(&run);
    QVERIFY(record.progress.join('|').contains(QRegularExpression("[0-9]+ %  Backing up: ")));
    QCOMPARE(run.bytesDone(), 3000007);
}

void tst_BackupRun::onlyOneRunAtATime()
{
    BackupRun run;
    QVERIFY(run.backUp(m_sandbox->job));
    QVERIFY(!run.backUp(m_sandbox->job));
    QVERIFY(!run.verify(m_sandbox->job));
    QVERIFY(!run.restore(m_sandbox->job, QStringLiteral("latest"), QStringLiteral("/nowhere")));
    QCOMPARE(recordOf(&run).outcome.kind, Outcome::Done);
    QVERIFY(!run.isRunning());
    QVERIFY(run.verify(m_sandbox->job));
    QCOMPARE(recordOf(&run).outcome.kind, Outcome::Done);
}

void tst_BackupRun::cancellingEndsTheRunAndLeavesNoLock()
{
    m_sandbox->backUp();
    m_sandbox->fillSource(100, 1000000);
    BackupRun run;
    m_sandbox->job.uploadLimit = 100;
    QObject::connect(&run, &BackupRun::progressChanged, [&run](const BackupProgress &progress) {
        if (progress.bytesDone > 0) {
            run.cancel();
        }
    });
    run.backUp(m_sandbox->job);
    QCOMPARE(recordOf(&run).outcome.kind, Outcome::Cancelled);
    QVERIFY(!m_sandbox->isLocked());
    m_sandbox->job.uploadLimit = 0;
    m_sandbox->job.verify = true;
    QCOMPARE(m_sandbox->backUp(false).outcome.kind, Outcome::Done);
}

void tst_BackupRun::cancellingDuringAQuestionEndsTheRun()
{
    BackupRun run;
    QObject::connect(&run, &BackupRun::asked, &run, &BackupRun::cancel);
    QSignalSpy finished(&run, &BackupRun::finished);
    run.backUp(m_sandbox->job);
    QTRY_COMPARE(finished.count(), 1);
    QCOMPARE(finished.first().first().value<Outcome>().kind, Outcome::Cancelled);
    QVERIFY(!run.isRunning());
    run.answer(true);
    QVERIFY(!run.isRunning());
}

// restic needs one too, so it fails later; but nothing waits for ever.
void tst_BackupRun::aRunEndsWithoutATemporaryFolder()
{
    const QByteArray usual = qgetenv("TMPDIR");
    qputenv("TMPDIR", "/proc"); // where not even root can make a file
    BackupRun run;
    Record record;
    ::record(&run, &record, true);
    run.backUp(m_sandbox->job);
    const bool hasFinished = QTest::qWaitFor(
        [&record] {
            return record.hasFinished;
        },
        60000);
    usual.isEmpty() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", usual);
    QVERIFY(hasFinished);
    QVERIFY(QFile::exists(m_sandbox->job.repository + QStringLiteral("/config")));
}

void tst_BackupRun::aStaleLockIsRemovedAfterAQuestion()
{
    m_sandbox->leaveExclusiveLock();
    const Record record = m_sandbox->backUp();
    QCOMPARE(record.questions, {BackupRun::RemoveStaleLock});
    QCOMPARE(record.outcome.kind, Outcome::Done);
    QCOMPARE(m_sandbox->snapshotCount(), 2);
}

void tst_BackupRun::aStaleLockStaysWithoutConsent()
{
    m_sandbox->leaveExclusiveLock();
    const Record record = m_sandbox->backUp(false);
    QCOMPARE(record.outcome.kind, Outcome::Locked);
    QVERIFY(m_sandbox->isLocked());
}

void tst_BackupRun::aLiveLockIsNotRemoved()
{
    m_sandbox->backUp();
    m_sandbox->fillSource(20, 1000000);
    BackupRun slow;
    m_sandbox->job.uploadLimit = 100;
    slow.backUp(m_sandbox->job);
    QTRY_VERIFY_WITH_TIMEOUT(m_sandbox->isLocked(), 30000);
    const Record record = m_sandbox->verify();
    QCOMPARE(record.questions, {BackupRun::RemoveStaleLock});
    QCOMPARE(record.outcome.kind, Outcome::Locked);
    QVERIFY(m_sandbox->isLocked());
    slow.cancel();
    QCOMPARE(recordOf(&slow).outcome.kind, Outcome::Cancelled);
}

void tst_BackupRun::twoRunsAtOnceBothSucceed()
{
    m_sandbox->backUp();
    m_sandbox->fillSource(50, 100000);
    BackupRun first;
    BackupRun second;
    Record records[2];
    record(&first, &records[0], true);
    record(&second, &records[1], true);
    first.backUp(m_sandbox->job);
    second.backUp(m_sandbox->job);
    QTRY_VERIFY_WITH_TIMEOUT(records[0].hasFinished && records[1].hasFinished, 60000);
    QCOMPARE(records[0].outcome.kind, Outcome::Done);
    QCOMPARE(records[1].outcome.kind, Outcome::Done);
    QCOMPARE(m_sandbox->snapshotCount(), 3);
    QVERIFY(m_sandbox->isSound());
}

void tst_BackupRun::aRunMayBeDestroyedAtAnyTime()
{
    m_sandbox->backUp();
    m_sandbox->fillSource(10, 1000000);
    for (int milliseconds = 0; milliseconds < 200; milliseconds += 40) {
        QScopedPointer<BackupRun> run(new BackupRun);
        run->backUp(m_sandbox->job);
        QElapsedTimer timer;
        timer.start();
        QTRY_VERIFY(timer.elapsed() > milliseconds);
    }
    QCOMPARE(m_sandbox->backUp().outcome.kind, Outcome::Done);
    QVERIFY(m_sandbox->isSound());
}

QTEST_GUILESS_MAIN(tst_BackupRun)
#include "tst_backuprun.moc"
