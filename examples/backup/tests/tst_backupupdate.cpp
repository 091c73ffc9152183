// SPDX-License-Identifier: LGPL-3.0-or-later
#include "BackupTestTools.h"

#include <QFile>
#include <QPair>
#include <QTest>

/// What a run does to the copy of an earlier run.
class tst_BackupUpdate : public QObject
{
    Q_OBJECT

private slots:
    void aSecondRunTouchesNothing();
    void aSecondRunCopiesOnlyWhatChanged_data();
    void aSecondRunCopiesOnlyWhatChanged();
    void replacesALinkWithAnotherTextOfTheSameTime();
    void changedPermissionsAreKeptWithoutCopying();
    void removesWhatTheSourceNoLongerHas();
    void removesTheCopyOfWhatBecameAPipe();
    void neverFollowsLinksOutOfTheCopy();
    void replacesOneKindByAnother_data();
    void replacesOneKindByAnother();
    void updatesReadOnlyFilesAndFolders();
    void aFileWithoutALineInTheManifestIsHashed();
    void afterARunThatWasCutOffNoOldLineIsTrusted();
};

void tst_BackupUpdate::aSecondRunTouchesNothing()
{
    BackupFolders folders;
    folders.write("folder/file", "content");
    PosixFile::makeLink("file", folders.source("folder/link"));
    folders.run();
    const QByteArray manifest = folders.manifest();
    const quint64 file = inodeOf(folders.copy("folder/file"));
    const quint64 link = inodeOf(folders.copy("folder/link"));
    // Another content of the same size and time would show if the file were read again.
    const FileState state = stateOf(folders.source("folder/file"));
    folders.write("folder/file", "CONTENT");
    PosixFile::setTime(folders.source("folder/file"), state);

    const Outcome outcome = folders.run();

    QVERIFY(outcome.summary.isComplete());
    QCOMPARE(outcome.summary.unchangedFiles, qint64(2));
    QCOMPARE(outcome.summary.bytesCopied, qint64(0));
    QCOMPARE(folders.manifest(), manifest);
    QCOMPARE(inodeOf(folders.copy("folder/file")), file);
    QCOMPARE(inodeOf(folders.copy("folder/link")), link);
    QCOMPARE(readFile(folders.copy("folder/file")), QByteArray("content"));
}

void tst_BackupUpdate::aSecondRunCopiesOnlyWhatChanged_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<qint64>("nanoseconds");
    QTest::newRow("other size") << QByteArray("longer content") << qint64(5);
    QTest::newRow("same size, a nanosecond later") << QByteArray("CONTENT") << qint64(6);
}

void tst_BackupUpdate::aSecondRunCopiesOnlyWhatChanged()
{
    QFETCH(QByteArray, content);
    QFETCH(qint64, nanoseconds);
    BackupFolders folders;
    folders.write("other", "other");
    folders.write("file", "content");
    setTime(folders.source("file"), 1000000000, 5);
    folders.run();
    const quint64 other = inodeOf(folders.copy("other"));
    folders.write("file", content);
    setTime(folders.source("file"), 1000000000, nanoseconds);

    const Outcome outcome = folders.run();

    QCOMPARE(outcome.files.value(QStringLiteral("file")), FileResult::Changed);
    QCOMPARE(outcome.files.value(QStringLiteral("other")), FileResult::Unchanged);
    QCOMPARE(outcome.summary.bytesCopied, qint64(content.size()));
    QCOMPARE(readFile(folders.copy("file")), content);
    QCOMPARE(inodeOf(folders.copy("other")), other);
    QVERIFY(manifestIsAccepted(folders));
}

void tst_BackupUpdate::replacesALinkWithAnotherTextOfTheSameTime()
{
    BackupFolders folders;
    PosixFile::makeLink("before", folders.source("link"));
    setTime(folders.source("link"), 1000000000, 5);
    folders.run();
    PosixFile::remove(folders.source("link"), FileState::Link);
    PosixFile::makeLink("after", folders.source("link"));
    setTime(folders.source("link"), 1000000000, 5);
    QCOMPARE(folders.run().summary.changedFiles, qint64(1));
    QCOMPARE(linkText(folders.copy("link")), QByteArray("after"));
}

void tst_BackupUpdate::changedPermissionsAreKeptWithoutCopying()
{
    BackupFolders folders;
    folders.write("file", "content");
    folders.run();
    const quint64 inode = inodeOf(folders.copy("file"));
    PosixFile::setPermissions(folders.source("file"), 0640);
    const Outcome outcome = folders.run();
    QCOMPARE(outcome.summary.changedFiles, qint64(1));
    QCOMPARE(outcome.summary.bytesCopied, qint64(0));
    QCOMPARE(inodeOf(folders.copy("file")), inode);
    QCOMPARE(stateOf(folders.copy("file")).permissions, 0640u);
}

void tst_BackupUpdate::removesWhatTheSourceNoLongerHas()
{
    BackupFolders folders;
    folders.write("kept", "kept");
    folders.write("gone", "gone");
    folders.write("folder/deeper/file", "gone");
    folders.write("folder/file", "gone");
    PosixFile::setPermissions(folders.source("folder/deeper"), 0555);
    folders.run();
    PosixFile::setPermissions(folders.source("folder/deeper"), 0755);
    removeTree(folders.source("folder"));
    PosixFile::remove(folders.source("folder"), FileState::Folder);
    PosixFile::remove(folders.source("gone"), FileState::Regular);

    const Outcome outcome = folders.run();

    QVERIFY(outcome.summary.isComplete());
    QCOMPARE(outcome.summary.removedFiles, qint64(3));
    QCOMPARE(namesIn(folders.copy()), QList<QByteArray>() << "kept");
    QCOMPARE(folders.manifest().count('\n'), 1);
    QVERIFY(manifestIsAccepted(folders));
}

void tst_BackupUpdate::removesTheCopyOfWhatBecameAPipe()
{
    BackupFolders folders;
    folders.write("it", "content");
    folders.run();
    PosixFile::remove(folders.source("it"), FileState::Regular);
    const QStringList arguments(QFile::decodeName(folders.source("it")));
    QCOMPARE(runProgram(QStringLiteral("mkfifo"), arguments), 0);

    const Outcome outcome = folders.run();

    QVERIFY(outcome.hasProblem(QStringLiteral("it")));
    QCOMPARE(outcome.summary.removedFiles, qint64(1));
    QVERIFY(namesIn(folders.copy()).isEmpty());
    QVERIFY(folders.manifest().isEmpty());
}

void tst_BackupUpdate::neverFollowsLinksOutOfTheCopy()
{
    BackupFolders folders;
    const QByteArray outside = folders.root() + "/outside";
    PosixFile::makeFolder(outside);
    writeFile(outside + "/file", "precious");
    folders.write("folder/file", "content");
    folders.run();
    removeTree(folders.copy("folder"));
    PosixFile::remove(folders.copy("folder"), FileState::Folder);
    PosixFile::makeLink(outside, folders.copy("folder"));
    PosixFile::makeLink(outside, folders.copy("surplus"));
    PosixFile::makeLink(outside + "/file", folders.copy("file"));
    folders.write("file", "content");

    const Outcome outcome = folders.run();

    QVERIFY(outcome.summary.isComplete());
    QCOMPARE(readFile(outside + "/file"), QByteArray("precious"));
    QCOMPARE(namesIn(outside), QList<QByteArray>() << "file");
    QCOMPARE(readFile(folders.copy("folder/file")), QByteArray("content"));
    QCOMPARE(readFile(folders.copy("file")), QByteArray("content"));
    QVERIFY(!exists(folders.copy("surplus")));
}

void tst_BackupUpdate::replacesOneKindByAnother_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("after");
    const QList<QPair<const char *, int>> kinds{
        {"file", FileState::Regular}, {"folder", FileState::Folder}, {"link", FileState::Link}};
    for (const QPair<const char *, int> &before : kinds) {
        for (const QPair<const char *, int> &after : kinds) {
            const QByteArray name = QByteArray(before.first) + " by " + after.first;
            QTest::newRow(name.constData()) << before.second << after.second;
        }
    }
}

void tst_BackupUpdate::replacesOneKindByAnother()
{
    QFETCH(int, before);
    QFETCH(int, after);
    BackupFolders folders;
    const auto make = [&folders](int kind, const QByteArray &content) {
        if (kind == FileState::Regular) {
            folders.write("it", content);
        } else if (kind == FileState::Folder) {
            folders.write("it/" + content, content);
        } else {
            PosixFile::makeLink(content, folders.source("it"));
        }
    };
    make(before, "before");
    folders.run();
    removeTree(folders.source());
    make(after, "and after");

    QVERIFY(folders.run().summary.isComplete());

    QCOMPARE(int(stateOf(folders.copy("it")).kind), after);
    const QByteArray content = after == FileState::Link ? linkText(folders.copy("it"))
        : after == FileState::Regular                   ? readFile(folders.copy("it"))
                                                        : readFile(folders.copy("it/and after"));
    QCOMPARE(content, QByteArray("and after"));
    QVERIFY(!exists(folders.copy("it/before")));
    QVERIFY(!exists(folders.target("data.unfinished")));
    QVERIFY(after == FileState::Link || manifestIsAccepted(folders));
}

void tst_BackupUpdate::updatesReadOnlyFilesAndFolders()
{
    BackupFolders folders;
    folders.write("folder/file", "content");
    PosixFile::setPermissions(folders.source("folder/file"), 0444);
    PosixFile::setPermissions(folders.source("folder"), 0555);
    folders.run();
    PosixFile::setPermissions(folders.source("folder"), 0755);
    PosixFile::setPermissions(folders.source("folder/file"), 0644);
    folders.write("folder/file", "new content");
    folders.write("folder/new", "new");
    PosixFile::setPermissions(folders.source("folder/file"), 0444);
    PosixFile::setPermissions(folders.source("folder"), 0555);

    const Outcome outcome = folders.run();

    QVERIFY(outcome.summary.isComplete());
    QCOMPARE(readFile(folders.copy("folder/file")), QByteArray("new content"));
    QCOMPARE(readFile(folders.copy("folder/new")), QByteArray("new"));
    QCOMPARE(stateOf(folders.copy("folder/file")).permissions, 0444u);
    QCOMPARE(stateOf(folders.copy("folder")).permissions, 0555u);
}

void tst_BackupUpdate::aFileWithoutALineInTheManifestIsHashed()
{
    BackupFolders folders;
    folders.write("file", "content");
    folders.run();
    const QByteArray manifest = folders.manifest();
    const quint64 inode = inodeOf(folders.copy("file"));
    writeFile(folders.target("manifest.sha256"), "nothing that makes sense\n");
    QVERIFY(folders.run().summary.isComplete());
    QCOMPARE(folders.manifest(), manifest);
    QCOMPARE(inodeOf(folders.copy("file")), inode);
}

void tst_BackupUpdate::afterARunThatWasCutOffNoOldLineIsTrusted()
{
    BackupFolders folders;
    folders.write("file", "content");
    folders.run();
    const QByteArray oldManifest = folders.manifest();
    folders.write("file", "new content");
    folders.run();
    const QByteArray manifest = folders.manifest();
    writeFile(folders.target("manifest.sha256"), oldManifest);
    PosixFile::makeFolder(folders.target("data.unfinished"));
    writeFile(folders.target("data.unfinished/copy.Xyz123"), "half a fi");

    QVERIFY(folders.run().summary.isComplete());

    QVERIFY(oldManifest != manifest);
    QCOMPARE(folders.manifest(), manifest);
    QVERIFY(!exists(folders.target("data.unfinished")));
}

QTEST_GUILESS_MAIN(tst_BackupUpdate)
#include "tst_backupupdate.moc"
