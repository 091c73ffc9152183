// SPDX-License-Identifier: LGPL-3.0-or-later
#include "BackupTestTools.h"
#include "FolderCheck.h"

#include <QDir>
#include <QFile>
#include <QScopedPointer>
#include <QTest>

class tst_FolderCheck : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void refusesWhatCannotBeRun_data();
    void refusesWhatCannotBeRun();
    void refusesASourceItMayNotRead();
    void refusesATargetItMayNotWrite();
    void createsTheTargetWithTheFoldersAboveIt();
    void allowsNeighbours_data();
    void allowsNeighbours();
    void understandsRelativePaths();
    void refusesToVerifyWhatIsNotThere();
    void verifyingNeedsNoSource();

private:
    /// Below the temporary folder, unless absolute or empty.
    QString path(const char *relative) const;

    QScopedPointer<BackupFolders> m_folders;
};

void tst_FolderCheck::init()
{
    m_folders.reset(new BackupFolders);
    m_folders->write("folder/file", "content");
}

QString tst_FolderCheck::path(const char *relative) const
{
    if (*relative == '\0' || *relative == '/') {
        return QFile::decodeName(relative);
    }
    return QFile::decodeName(m_folders->root() + '/' + relative);
}

void tst_FolderCheck::refusesWhatCannotBeRun_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QByteArray>("target");
    QTest::newRow("no source") << QByteArray() << QByteArray("target");
    QTest::newRow("no target") << QByteArray("source") << QByteArray();
    QTest::newRow("missing source") << QByteArray("missing") << QByteArray("target");
    QTest::newRow("source is a file") << QByteArray("source/folder/file") << QByteArray("target");
    QTest::newRow("same") << QByteArray("source") << QByteArray("source");
    QTest::newRow("same with a detour") << QByteArray("source") << QByteArray("x/../source/");
    QTest::newRow("same through a link") << QByteArray("source") << QByteArray("toSource");
    QTest::newRow("target inside") << QByteArray("source") << QByteArray("source/folder");
    QTest::newRow("new target inside") << QByteArray("source") << QByteArray("source/a/b");
    QTest::newRow("new target inside through a link")
        << QByteArray("source") << QByteArray("toSource/a/b");
    QTest::newRow("target inside a linked source")
        << QByteArray("toSource") << QByteArray("source/a");
    QTest::newRow("source is the data") << QByteArray("used/data") << QByteArray("used");
    QTest::newRow("source inside the data") << QByteArray("used/data/a") << QByteArray("used");
    QTest::newRow("source inside the work folder")
        << QByteArray("used/data.unfinished") << QByteArray("used");
    QTest::newRow("target is a file") << QByteArray("source") << QByteArray("file");
    QTest::newRow("target below a file") << QByteArray("source") << QByteArray("file/a/b");
    QTest::newRow("target is a dangling link") << QByteArray("source") << QByteArray("dangling");
    QTest::newRow("target cannot be created") << QByteArray("source") << QByteArray("/proc/a");
    QTest::newRow("data is a link") << QByteArray("source") << QByteArray("linked");
    QTest::newRow("data is a file") << QByteArray("source") << QByteArray("blocked");
    QTest::newRow("data is somebody else's") << QByteArray("source") << QByteArray("foreign");
}

void tst_FolderCheck::refusesWhatCannotBeRun()
{
    QFETCH(QByteArray, source);
    QFETCH(QByteArray, target);
    QDir root(path("."));
    for (const char *folder :
         {"used/data/a", "used/data.unfinished", "linked", "blocked", "foreign/data"}) {
        root.mkpath(QString::fromLatin1(folder));
    }
    writeFile(m_folders->root() + "/file", "content");
    writeFile(m_folders->root() + "/blocked/data", "content");
    writeFile(m_folders->root() + "/foreign/data/file", "content");
    PosixFile::makeLink("source", m_folders->root() + "/toSource");
    PosixFile::makeLink("nowhere", m_folders->root() + "/dangling");
    PosixFile::makeLink("../source", m_folders->root() + "/linked/data");
    m_folders->job.sourceFolder = path(source.constData());
    m_folders->job.targetFolder = path(target.constData());

    const Outcome outcome = m_folders->run();

    QVERIFY(!outcome.hasFinished);
    QVERIFY(!outcome.refusal.isEmpty());
    QVERIFY(!outcome.refusal.contains(QLatin1String("%1")));
    QCOMPARE(namesIn(m_folders->source()), QList<QByteArray>() << "folder");
    QCOMPARE(namesIn(m_folders->source("folder")), QList<QByteArray>() << "file");
    QVERIFY(!exists(m_folders->target()));
    QCOMPARE(readFile(m_folders->root() + "/file"), QByteArray("content"));
    QCOMPARE(readFile(m_folders->root() + "/foreign/data/file"), QByteArray("content"));
}

void tst_FolderCheck::refusesASourceItMayNotRead()
{
    if (isSuperuser()) {
        QSKIP("The superuser may read every folder.");
    }
    PosixFile::setPermissions(m_folders->source(), 0);
    FolderCheck check(m_folders->job);
    QVERIFY(!check.allowsRun());
    PosixFile::setPermissions(m_folders->source(), 0700);
    QVERIFY(check.refusal().contains(QLatin1String("cannot be read")));
}

void tst_FolderCheck::refusesATargetItMayNotWrite()
{
    if (isSuperuser()) {
        QSKIP("The superuser may write to every folder.");
    }
    PosixFile::makeFolder(m_folders->target());
    PosixFile::setPermissions(m_folders->target(), 0500);
    FolderCheck check(m_folders->job);
    QVERIFY(!check.allowsRun());
    QVERIFY(check.refusal().contains(QLatin1String("not writable")));
}

void tst_FolderCheck::createsTheTargetWithTheFoldersAboveIt()
{
    m_folders->job.targetFolder = path("a/b/../c/target");
    FolderCheck check(m_folders->job);
    QVERIFY(check.allowsRun());
    QCOMPARE(stateOf(m_folders->root() + "/a/c/target").kind, FileState::Folder);
    QCOMPARE(check.target(), PosixFile::canonicalPath(m_folders->root()) + "/a/c/target");
}

void tst_FolderCheck::allowsNeighbours_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QByteArray>("target");
    QTest::newRow("name that starts alike") << QByteArray("source") << QByteArray("source2");
    QTest::newRow("source inside the target")
        << QByteArray("source/folder") << QByteArray("source");
}

void tst_FolderCheck::allowsNeighbours()
{
    QFETCH(QByteArray, source);
    QFETCH(QByteArray, target);
    m_folders->job.sourceFolder = path(source.constData());
    m_folders->job.targetFolder = path(target.constData());
    FolderCheck check(m_folders->job);
    QVERIFY2(check.allowsRun(), qPrintable(check.refusal()));
}

void tst_FolderCheck::understandsRelativePaths()
{
    const QString before = QDir::currentPath();
    QDir::setCurrent(path("."));
    m_folders->job.sourceFolder = QStringLiteral("source");
    m_folders->job.targetFolder = QStringLiteral("./source/new");
    FolderCheck check(m_folders->job);
    const bool isAllowed = check.allowsRun();
    QDir::setCurrent(before);
    QVERIFY(!isAllowed);
    QVERIFY(check.refusal().contains(QLatin1String("inside")));
}

void tst_FolderCheck::refusesToVerifyWhatIsNotThere()
{
    FolderCheck check(m_folders->job);
    QVERIFY(!check.allowsVerify());
    QVERIFY(!check.refusal().isEmpty());
    QVERIFY(!exists(m_folders->target()));
}

void tst_FolderCheck::verifyingNeedsNoSource()
{
    PosixFile::makeFolder(m_folders->target());
    m_folders->job.sourceFolder.clear();
    FolderCheck check(m_folders->job);
    QVERIFY(check.allowsVerify());
}

QTEST_GUILESS_MAIN(tst_FolderCheck)
#include "tst_foldercheck.moc"
