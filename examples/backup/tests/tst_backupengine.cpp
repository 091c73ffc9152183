// SPDX-License-Identifier: LGPL-3.0-or-later
#include "BackupTestTools.h"

#include <QFile>
#include <QTest>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

// The manifest writes a carriage return as sha256sum has done since coreutils 9; older ones can't
// read that.
bool sha256sumCanRead(const BackupFolders &folders, const QByteArray &name)
{
    if (!name.contains('\r')) {
        return true;
    }
    QByteArray line;
    runProgram(QStringLiteral("sha256sum"), {QFile::decodeName(name)}, folders.source(), &line);
    return line.startsWith('\\');
}

} // namespace

/// What a first run copies and keeps, and how it behaves on the event loop.
class tst_BackupEngine : public QObject
{
    Q_OBJECT

private slots:
    void copiesFilesFoldersAndLinks();
    void keepsModificationTimesToTheNanosecond_data();
    void keepsModificationTimesToTheNanosecond();
    void keepsPermissions_data();
    void keepsPermissions();
    void copiesAnyName_data();
    void copiesAnyName();
    void copiesFoldersWhoseNamesAreNoText();
    void skipsWhatIsNeitherFileNorFolderNorLink();
    void reportsProgressUpToTheTotals();
    void letsTheEventLoopRunBetweenSlices();
    void refusesASecondRunMeanwhile();
};

void tst_BackupEngine::copiesFilesFoldersAndLinks()
{
    BackupFolders folders;
    const QByteArray large(3 * 1024 * 1024 + 17, 'x');
    folders.write("folder/deeper/file", "content");
    folders.write(".hidden/.file", "hidden");
    folders.write("empty", "");
    folders.write("large", large);
    PosixFile::makeFolder(folders.source("empty folder"));
    PosixFile::makeLink("folder/deeper", folders.source("linkToFolder"));
    PosixFile::makeLink("no where", folders.source("dangling"));

    const Outcome outcome = folders.run();

    QVERIFY(outcome.summary.isComplete());
    QVERIFY(outcome.problems.isEmpty());
    QCOMPARE(outcome.summary.newFiles, qint64(6));
    QCOMPARE(outcome.summary.bytesCopied, qint64(7 + 6) + large.size());
    QCOMPARE(outcome.files.value(QStringLiteral("folder/deeper/file")), FileResult::New);
    QCOMPARE(readFile(folders.copy("folder/deeper/file")), QByteArray("content"));
    QCOMPARE(readFile(folders.copy(".hidden/.file")), QByteArray("hidden"));
    QCOMPARE(stateOf(folders.copy("empty")).kind, FileState::Regular);
    QVERIFY(readFile(folders.copy("large")) == large);
    QCOMPARE(stateOf(folders.copy("empty folder")).kind, FileState::Folder);
    QCOMPARE(linkText(folders.copy("linkToFolder")), QByteArray("folder/deeper"));
    QCOMPARE(linkText(folders.copy("dangling")), QByteArray("no where"));
    const QList<QByteArray> targetNames{"data", "manifest.sha256"};
    QCOMPARE(namesIn(folders.target()), targetNames);
    QVERIFY(manifestIsAccepted(folders));
    QCOMPARE(folders.manifest().count('\n'), 4);
}

void tst_BackupEngine::keepsModificationTimesToTheNanosecond_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::newRow("file") << QByteArray("folder/file");
    QTest::newRow("folder") << QByteArray("folder");
    QTest::newRow("link") << QByteArray("link");
    QTest::newRow("root") << QByteArray();
}

void tst_BackupEngine::keepsModificationTimesToTheNanosecond()
{
    QFETCH(QByteArray, path);
    BackupFolders folders;
    folders.write("folder/file", "content");
    PosixFile::makeLink("folder", folders.source("link"));
    setTime(folders.source(path), 1234567890, 123456789);
    QVERIFY(folders.run().summary.isComplete());
    QCOMPARE(stateOf(folders.copy(path)).seconds, qint64(1234567890));
    QCOMPARE(stateOf(folders.copy(path)).nanoseconds, qint64(123456789));
}

void tst_BackupEngine::keepsPermissions_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<unsigned>("permissions");
    QTest::addColumn<unsigned>("kept");
    QTest::newRow("private file") << QByteArray("folder/file") << 0600u << 0600u;
    QTest::newRow("read-only file") << QByteArray("folder/file") << 0444u << 0444u;
    QTest::newRow("file for everyone") << QByteArray("folder/file") << 0777u << 0777u;
    QTest::newRow("set-user file") << QByteArray("folder/file") << 04755u << 0755u;
    QTest::newRow("private folder") << QByteArray("folder") << 0700u << 0700u;
    QTest::newRow("read-only folder") << QByteArray("folder") << 0555u << 0555u;
    QTest::newRow("sticky folder") << QByteArray("folder") << 01777u << 01777u;
    QTest::newRow("root") << QByteArray() << 0750u << 0750u;
}

void tst_BackupEngine::keepsPermissions()
{
    QFETCH(QByteArray, path);
    QFETCH(unsigned, permissions);
    QFETCH(unsigned, kept);
    BackupFolders folders;
    folders.write("folder/file", "content");
    PosixFile::setPermissions(folders.source(path), permissions);
    QVERIFY(folders.run().summary.isComplete());
    struct stat status;
    QCOMPARE(::lstat(folders.copy(path).constData(), &status), 0);
    QCOMPARE(status.st_mode & 07777u, kept);
    QCOMPARE(folders.run().summary.changedFiles, qint64(0));
}

void tst_BackupEngine::copiesAnyName_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("display");
    QTest::newRow("space") << QByteArray(" a b ") << QStringLiteral(" a b ");
    QTest::newRow("leading dash") << QByteArray("-rf") << QStringLiteral("-rf");
    QTest::newRow("quotes") << QByteArray("\"'`$*?") << QStringLiteral("\"'`$*?");
    QTest::newRow("backslash") << QByteArray("a\\nb") << QStringLiteral("a\\nb");
    QTest::newRow("newline") << QByteArray("a\nb") << QStringLiteral("a\\x0ab");
    QTest::newRow("carriage return") << QByteArray("a\r") << QStringLiteral("a\\x0d");
    QTest::newRow("unicode") << QByteArray("\xc3\xa4\xf0\x9f\x90\xa2")
                             << QString::fromUtf8("\xc3\xa4\xf0\x9f\x90\xa2");
    QTest::newRow("not UTF-8") << QByteArray("caf\xe9") << QStringLiteral("caf\\xe9");
    QTest::newRow("255 bytes") << QByteArray(255, 'n') << QString(255, QLatin1Char('n'));
    QTest::newRow("named like our own")
        << QByteArray("manifest.sha256") << QStringLiteral("manifest.sha256");
}

void tst_BackupEngine::copiesAnyName()
{
    QFETCH(QByteArray, name);
    QFETCH(QString, display);
    BackupFolders folders;
    folders.write(name, "content");
    const Outcome outcome = folders.run();
    QVERIFY(outcome.summary.isComplete());
    QCOMPARE(outcome.files.keys(), QList<QString>() << display);
    QCOMPARE(namesIn(folders.copy()), QList<QByteArray>() << name);
    QCOMPARE(readFile(folders.copy(name)), QByteArray("content"));
    QVERIFY(manifestIsAccepted(folders) || !sha256sumCanRead(folders, name));
    QVERIFY(folders.manifest().contains("data/"));
    QCOMPARE(folders.run().summary.unchangedFiles, qint64(1));
}

void tst_BackupEngine::copiesFoldersWhoseNamesAreNoText()
{
    BackupFolders folders;
    folders.write("\xff/\xfe/file", "content");
    QVERIFY(folders.run().summary.isComplete());
    QCOMPARE(readFile(folders.copy("\xff/\xfe/file")), QByteArray("content"));
    QVERIFY(manifestIsAccepted(folders));
}

void tst_BackupEngine::skipsWhatIsNeitherFileNorFolderNorLink()
{
    BackupFolders folders;
    folders.write("file", "content");
    QCOMPARE(::mkfifo(folders.source("pipe").constData(), 0600), 0);
    struct sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    qstrncpy(address.sun_path, folders.source("socket").constData(), sizeof address.sun_path);
    const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
    QCOMPARE(::bind(socket, reinterpret_cast<sockaddr *>(&address), sizeof address), 0);

    const Outcome outcome = folders.run();
    ::close(socket);

    QVERIFY(outcome.hasFinished);
    QVERIFY(outcome.hasProblem(QStringLiteral("pipe")));
    QVERIFY(outcome.hasProblem(QStringLiteral("socket")));
    QCOMPARE(outcome.summary.skippedProblems, qint64(2));
    QVERIFY(outcome.summary.isComplete());
    QCOMPARE(namesIn(folders.copy()), QList<QByteArray>() << "file");
}

void tst_BackupEngine::reportsProgressUpToTheTotals()
{
    BackupFolders folders;
    folders.write("large", QByteArray(20 * 1024 * 1024, 'x'));
    folders.write("small", "content");
    PosixFile::makeLink("small", folders.source("link"));
    BackupEngine engine;
    QList<BackupProgress> steps;
    connect(&engine, &BackupEngine::progressChanged, this,
            [&steps](const BackupProgress &progress) {
                steps << progress;
            });
    QString refusal;
    outcomeOf(&engine, engine.start(folders.job, &refusal), refusal);

    QVERIFY(steps.size() > 3);
    for (int index = 1; index < steps.size(); ++index) {
        QVERIFY(steps.at(index).bytesDone >= steps.at(index - 1).bytesDone);
        QVERIFY(steps.at(index).bytesDone <= steps.at(index).bytesTotal);
    }
    QCOMPARE(steps.last().bytesTotal, qint64(20 * 1024 * 1024 + 7));
    QCOMPARE(steps.last().bytesDone, steps.last().bytesTotal);
    QCOMPARE(steps.last().filesTotal, qint64(3));
    QCOMPARE(steps.last().filesDone, qint64(3));
}

void tst_BackupEngine::letsTheEventLoopRunBetweenSlices()
{
    BackupFolders folders;
    folders.write("large", QByteArray(64 * 1024 * 1024, 'x'));
    BackupEngine engine;
    int turns = 0;
    QTimer ticker;
    connect(&ticker, &QTimer::timeout, this, [&turns] {
        ++turns;
    });
    ticker.start(0);
    QString refusal;
    outcomeOf(&engine, engine.start(folders.job, &refusal), refusal);
    QVERIFY2(turns > 5, qPrintable(QString::number(turns)));
}

void tst_BackupEngine::refusesASecondRunMeanwhile()
{
    BackupFolders folders;
    folders.write("file", "content");
    BackupEngine engine;
    QString refusal;
    QVERIFY(engine.start(folders.job, &refusal));
    QVERIFY(engine.isRunning());
    QString secondRefusal;
    QVERIFY(!engine.start(folders.job, &secondRefusal));
    QVERIFY(!engine.startVerify(folders.job, &secondRefusal));
    QVERIFY(!secondRefusal.isEmpty());
    QVERIFY(outcomeOf(&engine, true, refusal).summary.isComplete());
    QVERIFY(!engine.isRunning());
}

QTEST_GUILESS_MAIN(tst_BackupEngine)
#include "tst_backupengine.moc"
