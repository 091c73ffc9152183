// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Client.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QScopedPointer>
#include <QTest>

#include <csignal>

/// Whatever is killed, and whenever: the next run succeeds, and reads everything back without a
/// fault. TESSALINE_KILLS says how often, TESSALINE_KILL_SEED when.
class tst_Interruptions : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void theNextRunSucceedsAfterAKill_data();
    void theNextRunSucceedsAfterAKill();
    void anInterruptedClientEndsWithRestic();
    void aResticThatCrashesLeavesNoLock();

private:
    QStringList arguments() const;

    QScopedPointer<Sandbox> m_sandbox;
    int m_duration = 0;
};

void tst_Interruptions::initTestCase()
{
    NEEDS_RESTIC();
    m_sandbox.reset(new Sandbox);
    m_sandbox->backUp();
    QElapsedTimer timer;
    timer.start();
    m_sandbox->fillSource(30, 100000);
    Client client(*m_sandbox);
    QCOMPARE(client.run(arguments()), 0);
    m_duration = int(timer.elapsed());
}

QStringList tst_Interruptions::arguments() const
{
    return backUpArguments(*m_sandbox, {QStringLiteral("--verify"), QStringLiteral("--unlock")});
}

void tst_Interruptions::theNextRunSucceedsAfterAKill_data()
{
    QTest::addColumn<bool>("killsRestic");
    QTest::addColumn<int>("milliseconds");
    const QByteArray kills = qgetenv("TESSALINE_KILLS");
    const QByteArray seed = qgetenv("TESSALINE_KILL_SEED");
    const quint32 usedSeed
        = seed.isEmpty() ? QRandomGenerator::global()->generate() : seed.toUInt();
    qDebug("seed %u, of %d ms", usedSeed, m_duration);
    QRandomGenerator dice(usedSeed);
    for (int number = 0; number < (kills.isEmpty() ? 4 : kills.toInt()); ++number) {
        const bool killsRestic = number % 2 == 0;
        const int milliseconds = dice.bounded(m_duration);
        const QByteArray name = QByteArray(killsRestic ? "restic" : "client") + " after "
            + QByteArray::number(milliseconds) + " ms, kill " + QByteArray::number(number);
        QTest::newRow(name.constData()) << killsRestic << milliseconds;
    }
}

void tst_Interruptions::theNextRunSucceedsAfterAKill()
{
    QFETCH(bool, killsRestic);
    QFETCH(int, milliseconds);
    m_sandbox->write("filler/" + QByteArray::number(milliseconds), QByteArray(500000, 'x'));
    m_sandbox->fillSource(10, 100000 + milliseconds);
    Client killed(*m_sandbox);
    killed.start(arguments());
    qint64 restic = 0;
    if (!killed.process.waitForFinished(milliseconds)) {
        restic = killed.restic();
        const qint64 victim = killsRestic ? restic : killed.process.processId();
        if (victim > 0) {
            ::kill(pid_t(victim), SIGKILL);
        }
    }
    const int status = killed.wait();
    QVERIFY2(status == 0 || status == 1 || !killsRestic, killed.errors.constData());
    // The restic of a killed client ends at its next word to it, or when it is done. Until somebody
    // has taken note of its end, it looks alive to others.
    QTRY_VERIFY_WITH_TIMEOUT(restic == 0 || ::kill(pid_t(restic), 0) != 0, 60000);
    Client next(*m_sandbox);
    const int nextStatus = next.run(arguments());
    QVERIFY2(nextStatus == 0, (next.output + next.errors).constData());
    QVERIFY2(next.output.contains("no errors"), next.output.constData());
}

// As at a terminal, where Ctrl+C reaches both.
void tst_Interruptions::anInterruptedClientEndsWithRestic()
{
    m_sandbox->fillSource(10, 300000);
    Client client(*m_sandbox);
    client.start(arguments() << QStringLiteral("--limit-upload") << QStringLiteral("100"));
    QTRY_VERIFY(client.restic() > 0 || client.process.state() == QProcess::NotRunning);
    const qint64 restic = client.restic();
    ::kill(pid_t(restic), SIGINT);
    ::kill(pid_t(client.process.processId()), SIGINT);
    QCOMPARE(client.wait(), -1);
    QTRY_VERIFY_WITH_TIMEOUT(::kill(pid_t(restic), 0) != 0, 20000);
    Client next(*m_sandbox);
    QCOMPARE(next.run(arguments()), 0);
}

// A crash of its own ends it with a status; SIGQUIT makes it do what it does then.
void tst_Interruptions::aResticThatCrashesLeavesNoLock()
{
    m_sandbox->fillSource(10, 310000);
    Client client(*m_sandbox);
    client.start(
        backUpArguments(*m_sandbox, {QStringLiteral("--limit-upload"), QStringLiteral("100")}));
    QTRY_VERIFY_WITH_TIMEOUT(m_sandbox->isLocked(), 30000);
    ::kill(pid_t(client.restic()), SIGQUIT);
    QCOMPARE(client.wait(), 1);
    QVERIFY2(client.errors.contains("run this again"), client.errors.constData());
    QVERIFY(!m_sandbox->isLocked());
}

QTEST_GUILESS_MAIN(tst_Interruptions)
#include "tst_interruptions.moc"
