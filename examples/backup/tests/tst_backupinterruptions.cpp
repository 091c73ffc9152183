// SPDX-License-Identifier: LGPL-3.0-or-later
#include "BackupTestTools.h"
#include "FileReader.h"

#include <QFile>
#include <QTest>

#include <functional>

namespace {

const qint64 mebibyte = 1024 * 1024;

// Calls back once, as soon as that much of the current phase's bytes have been copied.
Outcome runAndCall(const BackupFolders &folders, qint64 bytesDone,
                   const std::function<void(BackupEngine &)> &call)
{
    BackupEngine engine;
    bool isCalled = false;
    QObject::connect(&engine, &BackupEngine::progressChanged, &engine,
                     [&](const BackupProgress &progress) {
                         if (!isCalled && progress.phase == BackupPhase::Copying
                             && progress.bytesDone >= bytesDone) {
                             isCalled = true;
                             call(engine);
                         }
                     });
    QString refusal;
    const bool isStarted = engine.start(folders.job, &refusal);
    return outcomeOf(&engine, isStarted, refusal);
}

void appendTo(const QByteArray &path)
{
    QFile file(QFile::decodeName(path));
    QVERIFY(file.open(QIODevice::Append));
    file.write("more");
}

} // namespace

/// What a run does when it is cancelled, and when the source changes under it.
class tst_BackupInterruptions : public QObject
{
    Q_OBJECT

private slots:
    void cancellingLeavesNoPartOfAFile();
    void cancellingLeavesTheOldCopyWithItsLine();
    void cancellingKeepsAndListsWhatWasCopied();
    void cancellingRestoresReadOnlyFolders();
    void cancellingWhileListingTouchesNothing();
    void aFileThatChangesOnceIsCopiedAnew();
    void aFileThatKeepsChangingIsAProblem();
    void aFileThatGrowsAsFastAsItIsReadComesToAnEnd();
    void anOldCopyWithoutALineIsHashed();
    void aFileThatVanishesBeforeItsTurnIsAProblem();
    void aFileThatVanishesWhileItIsReadIsAProblem();
};

void tst_BackupInterruptions::cancellingLeavesNoPartOfAFile()
{
    BackupFolders folders;
    folders.write("large", QByteArray(100 * mebibyte, 'x'));

    const Outcome outcome = runAndCall(folders, mebibyte, std::mem_fn(&BackupEngine::cancel));

    QVERIFY(outcome.hasFinished);
    QVERIFY(outcome.summary.cancelled);
    QVERIFY(!outcome.summary.isComplete());
    QVERIFY(namesIn(folders.copy()).isEmpty());
    const QList<QByteArray> targetNames{"data", "manifest.sha256"};
    QCOMPARE(namesIn(folders.target()), targetNames);
    QCOMPARE(folders.manifest(), QByteArray());
}

void tst_BackupInterruptions::cancellingLeavesTheOldCopyWithItsLine()
{
    BackupFolders folders;
    folders.write("large", "old content");
    folders.run();
    const QByteArray manifest = folders.manifest();
    folders.write("large", QByteArray(100 * mebibyte, 'x'));

    runAndCall(folders, mebibyte, std::mem_fn(&BackupEngine::cancel));

    QCOMPARE(readFile(folders.copy("large")), QByteArray("old content"));
    QCOMPARE(folders.manifest(), manifest);
    QVERIFY(manifestIsAccepted(folders));
}

void tst_BackupInterruptions::cancellingKeepsAndListsWhatWasCopied()
{
    BackupFolders folders;
    folders.write("gone", "gone");
    for (int number = 0; number < 40; ++number) {
        folders.write("old" + QByteArray::number(number), "old");
    }
    folders.run();
    PosixFile::remove(folders.source("gone"), FileState::Regular);
    for (int number = 0; number < 40; ++number) {
        folders.write("old" + QByteArray::number(number), QByteArray(2 * mebibyte, 'n'));
    }

    const Outcome outcome = runAndCall(folders, 20 * mebibyte, std::mem_fn(&BackupEngine::cancel));

    QVERIFY(outcome.summary.changedFiles >= 1);
    QVERIFY(outcome.summary.changedFiles < 40);
    QCOMPARE(namesIn(folders.copy()).size(), 41);
    QCOMPARE(folders.manifest().count('\n'), 41);
    QVERIFY(manifestIsAccepted(folders));
    const Outcome rest = folders.run();
    QVERIFY(rest.summary.isComplete());
    QCOMPARE(rest.summary.unchangedFiles, outcome.summary.changedFiles);
    QCOMPARE(rest.summary.removedFiles, qint64(1));
}

void tst_BackupInterruptions::cancellingRestoresReadOnlyFolders()
{
    BackupFolders folders;
    folders.write("folder/large", QByteArray(100 * mebibyte, 'x'));
    PosixFile::setPermissions(folders.source("folder"), 0555);
    runAndCall(folders, mebibyte, std::mem_fn(&BackupEngine::cancel));
    QCOMPARE(stateOf(folders.copy("folder")).permissions, 0555u);
    PosixFile::setPermissions(folders.source("folder"), 0755);
}

void tst_BackupInterruptions::cancellingWhileListingTouchesNothing()
{
    BackupFolders folders;
    folders.write("file", "content");
    folders.run();
    const QByteArray manifest = folders.manifest();
    folders.write("file", "new content");
    BackupEngine engine;
    QString refusal;
    const bool isStarted = engine.start(folders.job, &refusal);
    engine.cancel();
    const Outcome outcome = outcomeOf(&engine, isStarted, refusal);
    QVERIFY(outcome.summary.cancelled);
    QCOMPARE(folders.manifest(), manifest);
    QCOMPARE(readFile(folders.copy("file")), QByteArray("content"));
    QVERIFY(!exists(folders.target("data.unfinished")));
}

void tst_BackupInterruptions::aFileThatChangesOnceIsCopiedAnew()
{
    BackupFolders folders;
    folders.write("large", QByteArray(40 * mebibyte, 'x'));

    const Outcome outcome = runAndCall(folders, mebibyte, [&folders](BackupEngine &) {
        appendTo(folders.source("large"));
    });

    QVERIFY(outcome.summary.isComplete());
    QCOMPARE(stateOf(folders.copy("large")).size, 40 * mebibyte + 4);
    QVERIFY(stateOf(folders.copy("large")).hasSameTime(stateOf(folders.source("large"))));
    QVERIFY(manifestIsAccepted(folders));
}

void tst_BackupInterruptions::aFileThatKeepsChangingIsAProblem()
{
    BackupFolders folders;
    folders.write("large", QByteArray(40 * mebibyte, 'x'));
    folders.write("other", "content");
    BackupEngine engine;
    connect(&engine, &BackupEngine::progressChanged, this, [&folders] {
        appendTo(folders.source("large"));
    });
    QString refusal;
    const Outcome outcome = outcomeOf(&engine, engine.start(folders.job, &refusal), refusal);

    QVERIFY(outcome.hasFinished);
    QVERIFY(outcome.hasProblem(QStringLiteral("large")));
    QCOMPARE(outcome.files.value(QStringLiteral("large")), FileResult::Failed);
    QVERIFY(!outcome.summary.isComplete());
    QCOMPARE(namesIn(folders.copy()), QList<QByteArray>() << "other");
}

void tst_BackupInterruptions::aFileThatGrowsAsFastAsItIsReadComesToAnEnd()
{
    BackupFolders folders;
    folders.write("log", "begin");
    FileReader reader;
    QVERIFY(reader.open(folders.source("log")));
    FileReader::Result result = FileReader::More;
    for (int block = 0; block < 100 && result == FileReader::More; ++block) {
        appendTo(folders.source("log"));
        result = reader.read(1024);
    }
    QCOMPARE(result, FileReader::Changed);
}

void tst_BackupInterruptions::anOldCopyWithoutALineIsHashed()
{
    BackupFolders folders;
    folders.write("large", "old content");
    folders.run();
    const QByteArray manifest = folders.manifest();
    writeFile(folders.target("manifest.sha256"), QByteArray());
    folders.write("large", QByteArray(40 * mebibyte, 'x'));

    runAndCall(folders, mebibyte, [&folders](BackupEngine &) {
        PosixFile::remove(folders.source("large"), FileState::Regular);
    });

    QCOMPARE(readFile(folders.copy("large")), QByteArray("old content"));
    QCOMPARE(folders.manifest(), manifest);
}

void tst_BackupInterruptions::aFileThatVanishesBeforeItsTurnIsAProblem()
{
    BackupFolders folders;
    folders.write("one", QByteArray(40 * mebibyte, '1'));
    folders.write("two", QByteArray(40 * mebibyte, '2'));
    BackupEngine engine;
    QByteArray gone;
    connect(&engine, &BackupEngine::fileDone, this, [&](const QString &path) {
        if (gone.isEmpty()) {
            gone = path == QLatin1String("one") ? "two" : "one";
            PosixFile::remove(folders.source(gone), FileState::Regular);
        }
    });
    QString refusal;
    const Outcome outcome = outcomeOf(&engine, engine.start(folders.job, &refusal), refusal);

    QCOMPARE(outcome.problems.size(), 1);
    const QString text = outcome.problemText(QString::fromLatin1(gone));
    QVERIFY2(text.contains(QLatin1String("No such file")), qPrintable(text));
    QCOMPARE(outcome.summary.newFiles, qint64(1));
    QVERIFY(manifestIsAccepted(folders));
}

void tst_BackupInterruptions::aFileThatVanishesWhileItIsReadIsAProblem()
{
    BackupFolders folders;
    folders.write("large", QByteArray(40 * mebibyte, 'x'));

    const Outcome outcome = runAndCall(folders, mebibyte, [&folders](BackupEngine &) {
        PosixFile::remove(folders.source("large"), FileState::Regular);
    });

    QVERIFY(outcome.hasProblem(QStringLiteral("large")));
    QVERIFY(namesIn(folders.copy()).isEmpty());
}

QTEST_GUILESS_MAIN(tst_BackupInterruptions)
#include "tst_backupinterruptions.moc"
