// SPDX-License-Identifier: LGPL-3.0-or-later
#include "JobStore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopedPointer>
#include <QTemporaryDir>
#include <QTest>

namespace {

BackupJob someJob(const QString &name)
{
    BackupJob job;
    job.name = name;
    job.sourceFolder = QStringLiteral("/home/me/") + name;
    job.targetFolder = QStringLiteral("/media/disk/") + name;
    return job;
}

} // namespace

class tst_JobStore : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void jobsLoadAsTheyWereSaved_data();
    void jobsLoadAsTheyWereSaved();
    void moreThanNineJobsKeepTheirOrder();
    void savingFewerJobsForgetsTheOthers();
    void passphrasesAreNotWritten();
    void noFileGivesNoJobs();
    void aFileThatMakesNoSenseGivesNoJobs_data();
    void aFileThatMakesNoSenseGivesNoJobs();
    void aFileThatMakesNoSenseIsReplaced();
    void aJobWithMissingFieldsIsLoaded();
    void savingWhereNothingCanBeWrittenFails();

private:
    void writeStore(const QByteArray &content) const;

    QScopedPointer<QTemporaryDir> m_folder;
    QString m_path;
};

void tst_JobStore::init()
{
    m_folder.reset(new QTemporaryDir);
    m_path = m_folder->filePath(QStringLiteral("new folder/jobs.ini"));
}

void tst_JobStore::writeStore(const QByteArray &content) const
{
    QVERIFY(QDir().mkpath(QFileInfo(m_path).path()));
    QFile file(m_path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

void tst_JobStore::jobsLoadAsTheyWereSaved_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("verifies");
    QTest::newRow("plain") << QStringLiteral("Documents") << true;
    QTest::newRow("not verified") << QStringLiteral("Documents") << false;
    QTest::newRow("separators") << QStringLiteral("a, b; c=d [e] \"f\" %20 \\x \n @g") << false;
    QTest::newRow("unicode") << QString::fromUtf8("Fotos \xc3\xa4\xf0\x9f\x90\xa2") << true;
    QTest::newRow("spaces") << QStringLiteral("  a  ") << true;
}

void tst_JobStore::jobsLoadAsTheyWereSaved()
{
    QFETCH(QString, name);
    QFETCH(bool, verifies);
    BackupJob job = someJob(name);
    job.verifiesAfterRun = verifies;
    QVERIFY(JobStore(m_path).save({job}));
    const QList<BackupJob> jobs = JobStore(m_path).load();
    QCOMPARE(jobs.size(), 1);
    QCOMPARE(jobs.first().name, job.name);
    QCOMPARE(jobs.first().sourceFolder, job.sourceFolder);
    QCOMPARE(jobs.first().targetFolder, job.targetFolder);
    QCOMPARE(jobs.first().verifiesAfterRun, verifies);
}

void tst_JobStore::moreThanNineJobsKeepTheirOrder()
{
    QList<BackupJob> jobs;
    for (int number = 0; number < 12; ++number) {
        jobs << someJob(QString::number(number));
    }
    JobStore(m_path).save(jobs);
    const QList<BackupJob> loaded = JobStore(m_path).load();
    QCOMPARE(loaded.size(), 12);
    for (int number = 0; number < 12; ++number) {
        QCOMPARE(loaded.at(number).name, QString::number(number));
    }
}

void tst_JobStore::savingFewerJobsForgetsTheOthers()
{
    JobStore(m_path).save({someJob(QStringLiteral("one")), someJob(QStringLiteral("two"))});
    JobStore(m_path).save({someJob(QStringLiteral("three"))});
    QCOMPARE(JobStore(m_path).load().size(), 1);
    QCOMPARE(JobStore(m_path).load().first().name, QStringLiteral("three"));
}

void tst_JobStore::passphrasesAreNotWritten()
{
    BackupJob job = someJob(QStringLiteral("Documents"));
    job.passphrase = QStringLiteral("xyzzy");
    QVERIFY(JobStore(m_path).save({job}));
    QFile file(m_path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray content = file.readAll();
    QVERIFY(content.contains("Documents"));
    QVERIFY(!content.contains("xyzzy"));
    QVERIFY(!content.contains(QByteArray("xyzzy").toBase64()));
    QVERIFY(!content.toLower().contains("pass"));
    QVERIFY(JobStore(m_path).load().first().passphrase.isEmpty());
}

void tst_JobStore::noFileGivesNoJobs()
{
    QVERIFY(JobStore(m_path).load().isEmpty());
}

void tst_JobStore::aFileThatMakesNoSenseGivesNoJobs_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("zeros") << QByteArray(5000, '\0');
    QTest::newRow("random bytes") << QByteArray("\xff\xfe[\x80]=\x01\n[[[\n===\n\\");
    QTest::newRow("huge size") << QByteArray("[jobs]\nsize=2000000000\n");
    QTest::newRow("no numbers") << QByteArray("[jobs]\nx\\name=a\n-1\\name=b\n");
    QTest::newRow("odd types") << QByteArray("[jobs]\n1\\name=@Variant(\\0\\0\\0\\xff)\n");
}

void tst_JobStore::aFileThatMakesNoSenseGivesNoJobs()
{
    QFETCH(QByteArray, content);
    writeStore(content);
    QVERIFY(JobStore(m_path).load().isEmpty());
}

void tst_JobStore::aFileThatMakesNoSenseIsReplaced()
{
    writeStore("[jobs\n1\\name=a\n\xff\n");
    QVERIFY(JobStore(m_path).save({someJob(QStringLiteral("Documents"))}));
    QCOMPARE(JobStore(m_path).load().size(), 1);
    QCOMPARE(JobStore(m_path).load().first().name, QStringLiteral("Documents"));
}

void tst_JobStore::aJobWithMissingFieldsIsLoaded()
{
    writeStore("[jobs]\n7\\source=/home/me\n7\\verify=perhaps\n");
    const QList<BackupJob> jobs = JobStore(m_path).load();
    QCOMPARE(jobs.size(), 1);
    QCOMPARE(jobs.first().sourceFolder, QStringLiteral("/home/me"));
    QVERIFY(jobs.first().targetFolder.isEmpty());
}

void tst_JobStore::savingWhereNothingCanBeWrittenFails()
{
    QVERIFY(!JobStore(QStringLiteral("/proc/nowhere/jobs.ini"))
                 .save({someJob(QStringLiteral("Documents"))}));
}

QTEST_GUILESS_MAIN(tst_JobStore)
#include "tst_jobstore.moc"
