// SPDX-License-Identifier: LGPL-3.0-or-later
#include "BackupTestTools.h"

#include <QCryptographicHash>
#include <QFile>
#include <QScopedPointer>
#include <QTest>

namespace {

// The definition of HMAC, RFC 2104, spelled out.
QByteArray hmacSha256(QByteArray key, const QByteArray &message)
{
    const int blockSize = 64;
    if (key.size() > blockSize) {
        key = QCryptographicHash::hash(key, QCryptographicHash::Sha256);
    }
    key += QByteArray(blockSize - static_cast<int>(key.size()), '\0');
    QByteArray inner = key;
    QByteArray outer = key;
    for (int index = 0; index < blockSize; ++index) {
        inner[index] = static_cast<char>(key.at(index) ^ 0x36);
        outer[index] = static_cast<char>(key.at(index) ^ 0x5c);
    }
    const QByteArray digest = QCryptographicHash::hash(inner + message, QCryptographicHash::Sha256);
    return QCryptographicHash::hash(outer + digest, QCryptographicHash::Sha256);
}

} // namespace

/// Signing, and reading everything back.
class tst_VerifyTask : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void theSignatureIsAnHmacOfTheManifest_data();
    void theSignatureIsAnHmacOfTheManifest();
    void theSignatureIsWhatOpensslPrints();
    void aRunWithoutPassphraseRemovesTheSignature();
    void anUntouchedCopyHasNoProblems_data();
    void anUntouchedCopyHasNoProblems();
    void findsWhatDiffers_data();
    void findsWhatDiffers();
    void aWrongPassphraseIsFound();
    void aWrongPassphraseDoesNotMatterIfNoneIsTyped();
    void aRunThatVerifiesFindsAnOldDamage();
    void aRunThatDoesNotVerifyDoesNotReadBack();
    void verifyingChangesNothing();
    void verifyingNeedsNoSource();
    void progressReachesItsTotals();
    void verifyingCanBeCancelled();

private:
    QScopedPointer<BackupFolders> m_folders;
};

void tst_VerifyTask::init()
{
    m_folders.reset(new BackupFolders);
    m_folders->write("file", "content");
    m_folders->write("folder/a\nb", "more content");
    m_folders->write("folder/empty", "");
    PosixFile::makeLink("nowhere", m_folders->source("link"));
    m_folders->job.passphrase = QStringLiteral("secret");
}

void tst_VerifyTask::theSignatureIsAnHmacOfTheManifest_data()
{
    QTest::addColumn<QByteArray>("passphrase");
    QTest::newRow("plain") << QByteArray("secret");
    QTest::newRow("unicode") << QByteArray("gr\xc3\xbc\xc3\x9f dich");
    QTest::newRow("longer than a block") << QByteArray(100, 'x');
}

void tst_VerifyTask::theSignatureIsAnHmacOfTheManifest()
{
    QFETCH(QByteArray, passphrase);
    m_folders->job.passphrase = QString::fromUtf8(passphrase);
    QVERIFY(m_folders->run().summary.isComplete());
    QCOMPARE(readFile(m_folders->target("manifest.sha256.hmac")),
             hmacSha256(passphrase, m_folders->manifest()).toHex() + '\n');
    for (const char *file : {"manifest.sha256", "manifest.sha256.hmac"}) {
        QVERIFY(!readFile(m_folders->target(file)).contains(passphrase));
    }
}

void tst_VerifyTask::theSignatureIsWhatOpensslPrints()
{
    QVERIFY(m_folders->run().summary.isComplete());
    QByteArray output;
    const QStringList arguments{QStringLiteral("dgst"), QStringLiteral("-sha256"),
                                QStringLiteral("-hmac"), m_folders->job.passphrase,
                                QStringLiteral("manifest.sha256")};
    if (runProgram(QStringLiteral("openssl"), arguments, m_folders->target(), &output) != 0) {
        QSKIP("There is no openssl program.");
    }
    const QByteArray signature = readFile(m_folders->target("manifest.sha256.hmac"));
    QVERIFY(output.endsWith("= " + signature));
}

void tst_VerifyTask::aRunWithoutPassphraseRemovesTheSignature()
{
    m_folders->run();
    QVERIFY(exists(m_folders->target("manifest.sha256.hmac")));
    m_folders->job.passphrase.clear();
    m_folders->run();
    QVERIFY(!exists(m_folders->target("manifest.sha256.hmac")));
}

void tst_VerifyTask::anUntouchedCopyHasNoProblems_data()
{
    QTest::addColumn<QString>("passphrase");
    QTest::newRow("signed") << QStringLiteral("secret");
    QTest::newRow("not signed") << QString();
}

void tst_VerifyTask::anUntouchedCopyHasNoProblems()
{
    QFETCH(QString, passphrase);
    m_folders->job.passphrase = passphrase;
    m_folders->run();
    const Outcome outcome = m_folders->verify();
    QVERIFY(outcome.summary.isComplete());
    QVERIFY(outcome.problems.isEmpty());
    QCOMPARE(outcome.summary.verifiedFiles, qint64(3));
    QCOMPARE(outcome.files.value(QStringLiteral("file")), FileResult::Verified);
}

void tst_VerifyTask::findsWhatDiffers_data()
{
    QTest::addColumn<QByteArray>("remove");
    QTest::addColumn<QByteArray>("write");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QStringList>("problems");
    QTest::newRow("different") << QByteArray() << QByteArray("data/file") << QByteArray("CONTENT")
                               << QStringList(QStringLiteral("file"));
    QTest::newRow("different odd name")
        << QByteArray() << QByteArray("data/folder/a\nb") << QByteArray("MORE CONTENT")
        << QStringList(QStringLiteral("folder/a\\x0ab"));
    QTest::newRow("shorter") << QByteArray() << QByteArray("data/file") << QByteArray()
                             << QStringList(QStringLiteral("file"));
    QTest::newRow("missing") << QByteArray("data/folder/empty") << QByteArray() << QByteArray()
                             << QStringList(QStringLiteral("folder/empty"));
    QTest::newRow("unexpected") << QByteArray() << QByteArray("data/folder/new") << QByteArray()
                                << QStringList(QStringLiteral("folder/new"));
    QTest::newRow("no manifest") << QByteArray("manifest.sha256") << QByteArray() << QByteArray()
                                 << QStringList(QStringLiteral("manifest.sha256"));
    QTest::newRow("no signature") << QByteArray("manifest.sha256.hmac") << QByteArray()
                                  << QByteArray()
                                  << QStringList(QStringLiteral("manifest.sha256.hmac"));
    QTest::newRow("spoiled signature")
        << QByteArray() << QByteArray("manifest.sha256.hmac") << QByteArray(64, '0')
        << QStringList(QStringLiteral("manifest.sha256.hmac"));
    QTest::newRow("spoiled manifest")
        << QByteArray() << QByteArray("manifest.sha256") << QByteArray("nonsense\n\n")
        << QStringList{QStringLiteral("file"), QStringLiteral("folder/a\\x0ab"),
                       QStringLiteral("folder/empty"), QStringLiteral("manifest.sha256"),
                       QStringLiteral("manifest.sha256.hmac")};
}

void tst_VerifyTask::findsWhatDiffers()
{
    QFETCH(QByteArray, remove);
    QFETCH(QByteArray, write);
    QFETCH(QByteArray, content);
    QFETCH(QStringList, problems);
    m_folders->run();
    if (!remove.isEmpty()) {
        QCOMPARE(PosixFile::remove(m_folders->target(remove), FileState::Regular), 0);
    }
    if (!write.isEmpty()) {
        const FileState state = stateOf(m_folders->target(write));
        writeFile(m_folders->target(write), content);
        PosixFile::setTime(m_folders->target(write), state);
    }

    const Outcome outcome = m_folders->verify();

    QStringList found;
    for (const BackupProblem &problem : outcome.problems) {
        QCOMPARE(problem.kind, BackupProblem::Different);
        QVERIFY(!problem.text.isEmpty());
        found << problem.path;
    }
    found.sort();
    QCOMPARE(found, problems);
    QVERIFY(!outcome.summary.isComplete());
}

void tst_VerifyTask::aWrongPassphraseIsFound()
{
    m_folders->run();
    m_folders->job.passphrase = QStringLiteral("guess");
    QVERIFY(m_folders->verify().hasProblem(QStringLiteral("manifest.sha256.hmac")));
}

void tst_VerifyTask::aWrongPassphraseDoesNotMatterIfNoneIsTyped()
{
    m_folders->run();
    m_folders->job.passphrase.clear();
    QVERIFY(m_folders->verify().summary.isComplete());
}

void tst_VerifyTask::aRunThatVerifiesFindsAnOldDamage()
{
    m_folders->run();
    const FileState state = stateOf(m_folders->copy("file"));
    writeFile(m_folders->copy("file"), "CONTENT");
    PosixFile::setTime(m_folders->copy("file"), state);
    m_folders->job.verifiesAfterRun = true;
    const Outcome outcome = m_folders->run();
    QCOMPARE(outcome.summary.unchangedFiles, qint64(4));
    QCOMPARE(outcome.summary.verifiedFiles, qint64(2));
    QCOMPARE(outcome.summary.differentProblems, qint64(1));
    QVERIFY(outcome.hasProblem(QStringLiteral("file")));
}

void tst_VerifyTask::aRunThatDoesNotVerifyDoesNotReadBack()
{
    QCOMPARE(m_folders->run().summary.verifiedFiles, qint64(0));
}

void tst_VerifyTask::verifyingChangesNothing()
{
    m_folders->run();
    writeFile(m_folders->copy("new"), "new");
    const FileState before = stateOf(m_folders->copy());
    const QByteArray manifest = m_folders->manifest();
    m_folders->verify();
    QVERIFY(stateOf(m_folders->copy()).hasSameTime(before));
    QCOMPARE(m_folders->manifest(), manifest);
    const QList<QByteArray> targetNames{"data", "manifest.sha256", "manifest.sha256.hmac"};
    QCOMPARE(namesIn(m_folders->target()), targetNames);
}

void tst_VerifyTask::verifyingNeedsNoSource()
{
    m_folders->run();
    m_folders->job.sourceFolder.clear();
    QVERIFY(m_folders->verify().summary.isComplete());
}

void tst_VerifyTask::progressReachesItsTotals()
{
    m_folders->run();
    BackupEngine engine;
    BackupProgress last;
    connect(&engine, &BackupEngine::progressChanged, this, [&last](const BackupProgress &progress) {
        last = progress;
    });
    QString refusal;
    outcomeOf(&engine, engine.startVerify(m_folders->job, &refusal), refusal);
    QCOMPARE(int(last.phase), int(BackupPhase::Verifying));
    QCOMPARE(last.filesTotal, qint64(3));
    QCOMPARE(last.filesDone, qint64(3));
    QCOMPARE(last.bytesTotal, qint64(19));
    QCOMPARE(last.bytesDone, qint64(19));
}

void tst_VerifyTask::verifyingCanBeCancelled()
{
    m_folders->run();
    BackupEngine engine;
    QString refusal;
    const bool isStarted = engine.startVerify(m_folders->job, &refusal);
    engine.cancel();
    const Outcome outcome = outcomeOf(&engine, isStarted, refusal);
    QVERIFY(outcome.summary.cancelled);
    QCOMPARE(outcome.summary.verifiedFiles, qint64(0));
}

QTEST_GUILESS_MAIN(tst_VerifyTask)
#include "tst_verifytask.moc"
