// SPDX-License-Identifier: LGPL-3.0-or-later
#include "BackupTestTools.h"
#include "BandwidthLimit.h"

#include <QElapsedTimer>
#include <QtTest>

class tst_BandwidthLimit : public QObject
{
    Q_OBJECT

private slots:
    void delaysByWhatWasWritten_data();
    void delaysByWhatWasWritten();
    void savesUpAMomentOnly();
    void startsAnewWhenItIsSet();
    void slowsACopyDown();
    void isLiftedWhileACopyWaits();
    void cancelsACopyThatWaits();
};

void tst_BandwidthLimit::delaysByWhatWasWritten_data()
{
    QTest::addColumn<qint64>("limit");
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<qint64>("now");
    QTest::addColumn<qint64>("delay");

    QTest::newRow("no limit") << qint64(0) << qint64(1) << qint64(0) << qint64(0);
    QTest::newRow("negative is no limit") << qint64(-5) << qint64(1) << qint64(0) << qint64(0);
    QTest::newRow("nothing written") << qint64(1000) << qint64(0) << qint64(0) << qint64(0);
    QTest::newRow("a second's worth") << qint64(1000) << qint64(1000) << qint64(0) << qint64(1000);
    QTest::newRow("half of it is over")
        << qint64(1000) << qint64(1000) << qint64(500) << qint64(500);
    QTest::newRow("all of it is over") << qint64(1000) << qint64(1000) << qint64(1001) << qint64(0);
    QTest::newRow("very much") << qint64(1) << qint64(1) << qint64(0) << qint64(1000);
    QTest::newRow("beyond 64 bits of thousandths")
        << Q_INT64_C(1000000000) << Q_INT64_C(1000000000000000000) << qint64(0)
        << Q_INT64_C(1000000000000);
}

void tst_BandwidthLimit::delaysByWhatWasWritten()
{
    QFETCH(qint64, limit);
    QFETCH(qint64, bytes);
    QFETCH(qint64, now);
    BandwidthLimit bandwidth;
    bandwidth.setBytesPerSecond(limit, 0);

    bandwidth.addBytes(bytes);

    QTEST(bandwidth.delay(now), "delay");
}

void tst_BandwidthLimit::savesUpAMomentOnly()
{
    BandwidthLimit bandwidth;
    bandwidth.setBytesPerSecond(1000, 0);
    QCOMPARE(bandwidth.delay(60000), qint64(0)); // a minute in which nothing was written

    bandwidth.addBytes(1000);

    QCOMPARE(bandwidth.delay(60000), qint64(900));
}

void tst_BandwidthLimit::startsAnewWhenItIsSet()
{
    BandwidthLimit bandwidth;
    bandwidth.setBytesPerSecond(1, 0);
    bandwidth.addBytes(1000);

    bandwidth.setBytesPerSecond(1000, 0);

    QCOMPARE(bandwidth.delay(0), qint64(0));
}

void tst_BandwidthLimit::slowsACopyDown()
{
    const BackupFolders folders;
    folders.write("file", QByteArray(2 * 1024 * 1024, 'x'));
    BackupEngine engine;
    engine.setBytesPerSecond(4 * 1024 * 1024);
    QElapsedTimer timer;
    timer.start();
    QString refusal;

    const Outcome outcome = outcomeOf(&engine, engine.start(folders.job, &refusal), refusal);

    QVERIFY(outcome.summary.isComplete());
    QVERIFY(timer.elapsed() >= 350); // half a second, less the moment and the last block
    QCOMPARE(engine.bytesCopied(), qint64(2 * 1024 * 1024));
}

void tst_BandwidthLimit::isLiftedWhileACopyWaits()
{
    const BackupFolders folders;
    folders.write("file", QByteArray(2 * 1024 * 1024, 'x'));
    BackupEngine engine;
    engine.setBytesPerSecond(1024); // would take half an hour
    QSignalSpy finished(&engine, &BackupEngine::finished);
    QString refusal;
    QVERIFY(engine.start(folders.job, &refusal));
    QTRY_VERIFY(engine.bytesCopied() > 0);

    engine.setBytesPerSecond(0);

    QTRY_COMPARE(int(finished.count()), 1);
}

void tst_BandwidthLimit::cancelsACopyThatWaits()
{
    const BackupFolders folders;
    folders.write("file", QByteArray(2 * 1024 * 1024, 'x'));
    BackupEngine engine;
    engine.setBytesPerSecond(1024);
    QSignalSpy finished(&engine, &BackupEngine::finished);
    QString refusal;
    QVERIFY(engine.start(folders.job, &refusal));
    QTRY_VERIFY(engine.bytesCopied() > 0);

    engine.cancel();

    QTRY_COMPARE(int(finished.count()), 1);
    QVERIFY(finished.at(0).at(0).value<BackupSummary>().cancelled);
}

QTEST_GUILESS_MAIN(tst_BandwidthLimit)
#include "tst_bandwidthlimit.moc"
