// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ResticTestTools.h"

#include <QDir>
#include <QFile>
#include <QScopedPointer>
#include <QTest>

/// What comes back from the real restic is what went in.
class tst_Restore : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void theRestoredTreeEqualsTheSource();
    void anEarlierSnapshotIsRestored();
    void aFolderWithSomethingInItIsRefused();
    void anUnknownSnapshotFails();
    void aDamagedRepositoryIsTold();

private:
    QString target() const;
    /// restic puts the full path below the target.
    QByteArray restoredSource() const;

    QScopedPointer<Sandbox> m_sandbox;
};

void tst_Restore::initTestCase()
{
    NEEDS_RESTIC();
}

void tst_Restore::init()
{
    m_sandbox.reset(new Sandbox);
}

QString tst_Restore::target() const
{
    return QFile::decodeName(m_sandbox->path("restored"));
}

QByteArray tst_Restore::restoredSource() const
{
    return m_sandbox->path("restored") + m_sandbox->source();
}

void tst_Restore::theRestoredTreeEqualsTheSource()
{
    makeOddTree(m_sandbox->source());
    const QByteArray before = description(m_sandbox->source());
    QVERIFY(before.count('\n') > 60);
    QCOMPARE(m_sandbox->backUp().outcome.kind, Outcome::Done);
    const Outcome outcome = m_sandbox->restore(target()).outcome;
    QCOMPARE(outcome.kind, Outcome::Done);
    QVERIFY(outcome.text().contains(target()));
    QCOMPARE(description(restoredSource()), before);
    QCOMPARE(description(m_sandbox->source()), before);
}

void tst_Restore::anEarlierSnapshotIsRestored()
{
    m_sandbox->write("file", "old");
    const QString snapshot = m_sandbox->backUp().outcome.snapshot;
    m_sandbox->write("file", "newer");
    m_sandbox->backUp();
    QCOMPARE(m_sandbox->restore(target(), snapshot).outcome.kind, Outcome::Done);
    QCOMPARE(readFile(restoredSource() + "/file"), QByteArray("old"));
}

void tst_Restore::aFolderWithSomethingInItIsRefused()
{
    m_sandbox->write("file", "old");
    m_sandbox->backUp();
    m_sandbox->write("file", "newer");
    // Hidden, and broken, but there.
    QVERIFY(QDir().mkpath(target()));
    QVERIFY(QFile::link(QStringLiteral("/no/where"), target() + QStringLiteral("/.hidden")));
    QCOMPARE(m_sandbox->restore(target()).outcome.kind, Outcome::NotEmpty);
    QVERIFY(!QFile::exists(QFile::decodeName(restoredSource())));
    QCOMPARE(m_sandbox->restore(QStringLiteral("/")).outcome.kind, Outcome::NotEmpty);
    QCOMPARE(readFile(m_sandbox->source("file")), QByteArray("newer"));
}

void tst_Restore::anUnknownSnapshotFails()
{
    m_sandbox->write("file", "content");
    m_sandbox->backUp();
    for (const char *id : {"abcdef12", "--help"}) {
        const Outcome outcome = m_sandbox->restore(target(), QLatin1String(id)).outcome;
        QCOMPARE(outcome.kind, Outcome::Failed);
        QVERIFY2(outcome.text().size() > 20, qPrintable(outcome.text()));
    }
}

void tst_Restore::aDamagedRepositoryIsTold()
{
    m_sandbox->fillSource(1, 300000);
    m_sandbox->backUp();
    damage(m_sandbox->repository());
    const Outcome outcome = m_sandbox->restore(target()).outcome;
    QCOMPARE(outcome.kind, Outcome::Failed);
    QVERIFY(!outcome.details.isEmpty());
}

QTEST_GUILESS_MAIN(tst_Restore)
#include "tst_restore.moc"
