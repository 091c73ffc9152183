// SPDX-License-Identifier: LGPL-3.0-or-later
#include "BackupTestTools.h"
#include "FileCopier.h"
#include "FileReader.h"
#include "TreeScanner.h"

#include <QFile>
#include <QTest>

#include <unistd.h>

namespace {

/// Mounts something over a path for as long as it lives.
class Mount
{
public:
    Mount(const QStringList &arguments, const QByteArray &path)
        : m_path(QFile::decodeName(path))
    {
        m_isMounted = runProgram(QStringLiteral("mount"), arguments + QStringList(m_path)) == 0;
    }

    ~Mount()
    {
        if (m_isMounted) {
            runProgram(QStringLiteral("umount"), {m_path});
        }
    }

    bool isMounted() const
    {
        return m_isMounted;
    }

private:
    QString m_path;
    bool m_isMounted = false;
};

} // namespace

/// What a run does when the system refuses something.
class tst_BackupFailures : public QObject
{
    Q_OBJECT

private slots:
    void aFileThatBecomesAPipeIsAProblem();
    void anUnreadableFileKeepsItsOldCopy();
    void anUnreadableFolderKeepsItsOldCopy();
    void aFolderThatMayNotBeEnteredKeepsItsLines();
    void aFileTheSystemCannotReadIsAProblem();
    void aReadErrorEndsTheRunOfOneFileOnly();
    void aFolderThatVanishesWhileListingIsUncertain();
    void aFullTargetIsOneProblemPerFile();
    void aFullTargetKeepsTheOldCopy();
};

void tst_BackupFailures::aFileThatBecomesAPipeIsAProblem()
{
    BackupFolders folders;
    const QByteArray path = folders.source("pipe");
    QCOMPARE(runProgram(QStringLiteral("mkfifo"), {QFile::decodeName(path)}), 0);
    FileReader reader;
    QVERIFY(!reader.open(path));
    QVERIFY(!reader.error().isEmpty());
}

void tst_BackupFailures::anUnreadableFileKeepsItsOldCopy()
{
    if (isSuperuser()) {
        QSKIP("The superuser may read every file.");
    }
    BackupFolders folders;
    folders.write("file", "old");
    folders.run();
    const QByteArray manifest = folders.manifest();
    folders.write("file", "new content");
    PosixFile::setPermissions(folders.source("file"), 0);
    const Outcome outcome = folders.run();
    QVERIFY(outcome.problemText(QStringLiteral("file")).contains(QLatin1String("denied")));
    QCOMPARE(readFile(folders.copy("file")), QByteArray("old"));
    QCOMPARE(folders.manifest(), manifest);
}

void tst_BackupFailures::anUnreadableFolderKeepsItsOldCopy()
{
    if (isSuperuser()) {
        QSKIP("The superuser may read every folder.");
    }
    BackupFolders folders;
    folders.write("folder/deeper/file", "content");
    folders.run();
    const QByteArray manifest = folders.manifest();
    PosixFile::setPermissions(folders.source("folder"), 0);
    const Outcome outcome = folders.run();
    PosixFile::setPermissions(folders.source("folder"), 0700);
    QVERIFY(outcome.problemText(QStringLiteral("folder")).contains(QLatin1String("denied")));
    QCOMPARE(readFile(folders.copy("folder/deeper/file")), QByteArray("content"));
    QCOMPARE(folders.manifest(), manifest);
}

void tst_BackupFailures::aFolderThatMayNotBeEnteredKeepsItsLines()
{
    if (isSuperuser()) {
        QSKIP("The superuser may enter every folder.");
    }
    BackupFolders folders;
    folders.write("folder/deeper/file", "content");
    folders.run();
    const QByteArray manifest = folders.manifest();
    PosixFile::setPermissions(folders.source("folder"), 0);
    PosixFile::setPermissions(folders.copy("folder/deeper"), 0);
    folders.run();
    PosixFile::setPermissions(folders.source("folder"), 0700);
    PosixFile::setPermissions(folders.copy("folder/deeper"), 0700);
    QCOMPARE(folders.manifest(), manifest);
}

void tst_BackupFailures::aFileTheSystemCannotReadIsAProblem()
{
    // A process's memory is a regular file whose first page cannot be read, not even by root.
    BackupFolders folders;
    FileCopier copier(folders.root() + "/copy");
    QVERIFY(copier.start("/proc/self/mem"));
    QCOMPARE(copier.step(4096), FileReader::Failed);
    QVERIFY(!copier.isActive());
    QVERIFY2(copier.error().contains(QLatin1String("Input/output error")),
             qPrintable(copier.error()));
    QCOMPARE(namesIn(folders.root()), QList<QByteArray>() << "source");
}

void tst_BackupFailures::aReadErrorEndsTheRunOfOneFileOnly()
{
    BackupFolders folders;
    folders.write("bad", "content");
    folders.write("good", "content");
    folders.run();
    const Mount mount({QStringLiteral("--bind"), QStringLiteral("/proc/%1/mem").arg(::getpid())},
                      folders.source("bad"));
    if (!mount.isMounted()) {
        QSKIP("This user may not mount anything.");
    }
    folders.write("good", "new content");

    const Outcome outcome = folders.run();

    QVERIFY(outcome.hasProblem(QStringLiteral("bad")));
    QCOMPARE(outcome.summary.changedFiles, qint64(1));
    QCOMPARE(readFile(folders.copy("bad")), QByteArray("content"));
    QCOMPARE(readFile(folders.copy("good")), QByteArray("new content"));
    QVERIFY(manifestIsAccepted(folders));
    QCOMPARE(folders.manifest().count('\n'), 2);
}

void tst_BackupFailures::aFolderThatVanishesWhileListingIsUncertain()
{
    BackupFolders folders;
    PosixFile::makeFolder(folders.source("folder"));
    TreeScanner scanner(folders.source());
    while (!scanner.contains("folder")) {
        QVERIFY(scanner.step());
    }
    PosixFile::remove(folders.source("folder"), FileState::Folder);
    while (scanner.step()) { }
    QCOMPARE(scanner.faults().size(), 1);
    QVERIFY(scanner.isUncertain("folder"));
    QVERIFY(scanner.isUncertain("folder/deeper/file"));
    QVERIFY(!scanner.isUncertain("folder2"));
}

void tst_BackupFailures::aFullTargetIsOneProblemPerFile()
{
    BackupFolders folders;
    PosixFile::makeFolder(folders.target());
    const Mount mount({QStringLiteral("-t"), QStringLiteral("tmpfs"), QStringLiteral("-o"),
                       QStringLiteral("size=1m"), QStringLiteral("none")},
                      folders.target());
    if (!mount.isMounted()) {
        QSKIP("This user may not mount anything.");
    }
    for (const char *name : {"a", "b", "c", "d"}) {
        folders.write(name, QByteArray(700 * 1024, *name));
    }

    const Outcome outcome = folders.run();

    QVERIFY(outcome.hasFinished);
    QCOMPARE(outcome.summary.newFiles, qint64(1));
    QCOMPARE(outcome.summary.failedFiles, qint64(3));
    QCOMPARE(outcome.problems.size(), 3);
    for (const BackupProblem &problem : outcome.problems) {
        QVERIFY2(problem.text.contains(QLatin1String("No space left")), qPrintable(problem.text));
    }
    QCOMPARE(namesIn(folders.copy()).size(), 1);
    QVERIFY(manifestIsAccepted(folders));
    QVERIFY(!exists(folders.target("data.unfinished")));
}

void tst_BackupFailures::aFullTargetKeepsTheOldCopy()
{
    BackupFolders folders;
    PosixFile::makeFolder(folders.target());
    const Mount mount({QStringLiteral("-t"), QStringLiteral("tmpfs"), QStringLiteral("-o"),
                       QStringLiteral("size=1m"), QStringLiteral("none")},
                      folders.target());
    if (!mount.isMounted()) {
        QSKIP("This user may not mount anything.");
    }
    folders.write("file", "old content");
    folders.run();
    // Only the very last block finds too little room, and is taken in part.
    folders.write("file", QByteArray(1023 * 1024, 'x'));

    const Outcome outcome = folders.run();

    QVERIFY(outcome.hasProblem(QStringLiteral("file")));
    QCOMPARE(readFile(folders.copy("file")), QByteArray("old content"));
    QVERIFY(manifestIsAccepted(folders));
}

QTEST_GUILESS_MAIN(tst_BackupFailures)
#include "tst_backupfailures.moc"
