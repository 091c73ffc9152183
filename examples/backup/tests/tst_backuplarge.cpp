// SPDX-License-Identifier: LGPL-3.0-or-later
#include "BackupTestTools.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QStorageInfo>
#include <QTest>

#include <unistd.h>

namespace {

const qint64 bearableWait = 200; // milliseconds

/// Runs a job however long it takes, and finds out how long the event loop had to wait for it.
class LongRun : public QObject
{
public:
    explicit LongRun(const BackupJob &job)
    {
        connect(&m_ticker, &QTimer::timeout, this, [this] {
            noteTurn(m_sinceTurn.restart());
        });
        connect(&m_engine, &BackupEngine::progressChanged, this,
                [this](const BackupProgress &progress) {
                    lastProgress = progress;
                });
        connect(&m_engine, &BackupEngine::finished, this, [this](const BackupSummary &result) {
            noteTurn(m_sinceTurn.restart());
            summary = result;
            m_loop.quit();
        });
        QString refusal;
        if (m_engine.start(job, &refusal)) {
            m_sinceTurn.start();
            m_ticker.start(0);
            m_loop.exec();
        }
    }

    BackupSummary summary;
    BackupProgress lastProgress;
    // In milliseconds:
    qint64 duration = 0;
    qint64 longestWait = 0;
    qint64 unbearableWaits = 0; ///< All of them together.

private:
    void noteTurn(qint64 wait)
    {
        duration += wait;
        longestWait = qMax(longestWait, wait);
        unbearableWaits += wait > bearableWait ? wait : 0;
    }

    BackupEngine m_engine;
    QEventLoop m_loop;
    QTimer m_ticker;
    QElapsedTimer m_sinceTurn;
};

} // namespace

/// What takes long: sizes beyond 32 bits, and many files.
class tst_BackupLarge : public QObject
{
    Q_OBJECT

private slots:
    void copiesAndVerifiesMoreThanFourGibibytes();
    void staysResponsiveWithAHundredThousandFiles();
};

void tst_BackupLarge::copiesAndVerifiesMoreThanFourGibibytes()
{
    const qint64 size = (4ll << 30) + 5;
    BackupFolders folders;
    if (QStorageInfo(QFile::decodeName(folders.root())).bytesAvailable() < 2 * size) {
        QSKIP("There is no room for a copy of more than 4 GiB.");
    }
    folders.write("large", "begin");
    QCOMPARE(::truncate(folders.source("large").constData(), size), 0);
    folders.job.verifiesAfterRun = true;

    const LongRun run(folders.job);

    QVERIFY(run.summary.isComplete());
    QCOMPARE(run.summary.bytesCopied, size);
    QCOMPARE(run.summary.verifiedFiles, qint64(1));
    QCOMPARE(run.lastProgress.bytesDone, size);
    QCOMPARE(stateOf(folders.copy("large")).size, size);
    qInfo("The longest wait was %d ms.", static_cast<int>(run.longestWait));
}

void tst_BackupLarge::staysResponsiveWithAHundredThousandFiles()
{
    const int count = 100000;
    BackupFolders folders;
    for (int number = 0; number < count; ++number) {
        folders.write(QByteArray::number(number % 100) + '/' + QByteArray::number(number), "x");
    }

    const LongRun first(folders.job);
    const LongRun second(folders.job);

    QCOMPARE(first.summary.newFiles, qint64(count));
    QCOMPARE(second.summary.unchangedFiles, qint64(count));
    qInfo("The longest wait was %d ms, in the second run %d ms.",
          static_cast<int>(first.longestWait), static_cast<int>(second.longestWait));
    // A share, and a generous one, since a busy disk may hold up some calls.
    QVERIFY(first.unbearableWaits < first.duration / 5);
    QVERIFY(second.unbearableWaits < second.duration / 5);
}

QTEST_GUILESS_MAIN(tst_BackupLarge)
#include "tst_backuplarge.moc"
