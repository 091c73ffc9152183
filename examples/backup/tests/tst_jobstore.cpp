// SPDX-License-Identifier: LGPL-3.0-or-later
#include "JobStore.h"
#include "Outcome.h"

#include <QDir>
#include <QFile>
#include <QLocale>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <limits>

class tst_JobStore : public QObject
{
    Q_OBJECT

private slots:
    void jobsComeBack();
    void passwordsAreNotKept();
    void savingReplacesAll();
    void otherSettingsStay();
    void jobsOfTheFirstVersionAreRead();
    void whatMakesNoSenseIsNoJob_data();
    void whatMakesNoSenseIsNoJob();
    void aFileThatCannotBeWrittenIsTold();
    void sizesHaveTheChartsUnits_data();
    void sizesHaveTheChartsUnits();

private:
    QString file() const;

    QTemporaryDir m_folder;
};

namespace {

BackupJob jobNamed(const QString &name)
{
    BackupJob job;
    job.name = name;
    job.source = QStringLiteral("/so;ur,ce \"x\"");
    job.repository = QString::fromUtf8("sftp:h:/gr\xc3\xbc\xc3\x9f");
    job.password = QStringLiteral("secret-7f");
    job.verify = true;
    return job;
}

} // namespace

QString tst_JobStore::file() const
{
    return m_folder.filePath(QStringLiteral("new folder/jobs.ini"));
}

void tst_JobStore::jobsComeBack()
{
    QVERIFY(
        JobStore(file()).save({jobNamed(QStringLiteral("one")), jobNamed(QStringLiteral("two"))}));
    const QList<BackupJob> jobs = JobStore(file()).load();
    QCOMPARE(jobs.size(), 2);
    QCOMPARE(jobs.last().name, QStringLiteral("two"));
    QCOMPARE(jobs.last().source, jobNamed(QString()).source);
    QCOMPARE(jobs.last().repository, jobNamed(QString()).repository);
    QVERIFY(jobs.last().verify);
}

void tst_JobStore::passwordsAreNotKept()
{
    QVERIFY(JobStore(file()).save({jobNamed(QStringLiteral("one"))}));
    QFile settings(file());
    QVERIFY(settings.open(QIODevice::ReadOnly));
    QVERIFY(!settings.readAll().contains("secret-7f"));
    QCOMPARE(JobStore(file()).load().first().password, QString());
}

void tst_JobStore::savingReplacesAll()
{
    JobStore(file()).save({jobNamed(QStringLiteral("one")), jobNamed(QStringLiteral("two"))});
    JobStore(file()).save({jobNamed(QStringLiteral("three"))});
    QCOMPARE(JobStore(file()).load().size(), 1);
    JobStore(file()).save({});
    QCOMPARE(JobStore(file()).load().size(), 0);
}

void tst_JobStore::otherSettingsStay()
{
    {
        QSettings settings(file(), QSettings::IniFormat);
        settings.setValue(QStringLiteral("restic"), QStringLiteral("/opt/restic"));
    }
    JobStore(file()).save({jobNamed(QStringLiteral("one"))});
    const QSettings settings(file(), QSettings::IniFormat);
    QCOMPARE(settings.value(QStringLiteral("restic")).toString(), QStringLiteral("/opt/restic"));
}

void tst_JobStore::jobsOfTheFirstVersionAreRead()
{
    QFile settings(m_folder.filePath(QStringLiteral("first.ini")));
    QVERIFY(settings.open(QIODevice::WriteOnly));
    settings.write("[jobs]\n1\\name=one\n1\\source=/s\n1\\target=/t\n2\\name=two\n");
    settings.close();
    const QList<BackupJob> jobs = JobStore(settings.fileName()).load();
    QCOMPARE(jobs.size(), 2);
    QCOMPARE(jobs.first().source, QStringLiteral("/s"));
    // A mirror is no repository.
    QCOMPARE(jobs.first().repository, QString());
}

void tst_JobStore::whatMakesNoSenseIsNoJob_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("noise") << QByteArray("\0\xff[jobs\n=\n", 10);
    QTest::newRow("other groups") << QByteArray("[jobs]\nx/name=a\n");
    QTest::newRow("more than there are") << QByteArray("[jobs]\nsize=1000\n");
    QTest::newRow("empty jobs") << QByteArray("[jobs]\nsize=2\n1\\name=\n2\\verify=true\n");
}

void tst_JobStore::whatMakesNoSenseIsNoJob()
{
    QFETCH(QByteArray, content);
    QFile settings(m_folder.filePath(QStringLiteral("odd.ini")));
    QVERIFY(settings.open(QIODevice::WriteOnly));
    settings.write(content);
    settings.close();
    QCOMPARE(JobStore(settings.fileName()).load().size(), 0);
}

void tst_JobStore::aFileThatCannotBeWrittenIsTold()
{
    const QString folder = m_folder.filePath(QStringLiteral("in the way"));
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(!JobStore(folder).save({jobNamed(QStringLiteral("one"))}));
}

void tst_JobStore::sizesHaveTheChartsUnits_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << qint64(0) << "0 B";
    QTest::newRow("bytes") << qint64(1023) << "1023 B";
    QTest::newRow("KB") << qint64(1024) << "1.00 KB";
    QTest::newRow("tens") << qint64(12700) << "12.4 KB";
    QTest::newRow("hundreds") << qint64(200 * 1024 * 1024) << "200 MB";
    QTest::newRow("all there can be") << std::numeric_limits<qint64>::max() << "8.00 EB";
}

void tst_JobStore::sizesHaveTheChartsUnits()
{
    QFETCH(qint64, bytes);
    QFETCH(QString, text);
    QLocale::setDefault(QLocale(QLocale::English));
    QCOMPARE(sizeText(bytes), text);
}

QTEST_GUILESS_MAIN(tst_JobStore)
#include "tst_jobstore.moc"
