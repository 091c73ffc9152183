// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ResticTestTools.h"
#include "SnapshotListing.h"

#include <QFile>
#include <QJsonDocument>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QTest>

Q_DECLARE_METATYPE(QList<SnapshotFile>)

class tst_SnapshotListing : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void pagesAreWhatWasAskedFor_data();
    void pagesAreWhatWasAskedFor();
    void aPageComesBeforeTheListIsWritten();
    void linesThatAreNoFilesAreLeftOut();
    void brokenLinesAreCountedAndTold();
    void theRealResticListsASnapshot();
    void aFailureIsTold();
    void aListThatIsCutOffIsTold_data();
    void aListThatIsCutOffIsTold();
    void theRealResticTellsOfAListThatIsCutOff();
    void noSnapshotHasNoFilesAndNeedsNoProgram();
    void anotherSnapshotStartsOver();
    void snapshotsAreRead();

private:
    void fake(const QByteArray &output, const QByteArray &status = "0");
    QString page(int count);

    QScopedPointer<Sandbox> m_sandbox;
    QScopedPointer<SnapshotListing> m_listing;
};

namespace {

QByteArray lineOf(int number)
{
    return "{\"path\":\"/f" + QByteArray::number(number)
        + "\",\"type\":\"file\",\"size\":3,\"mtime\":\"2026-11-21T21:08:37.490169155+01:00\","
          "\"struct_type\":\"node\"}\n";
}

QByteArray lines(int count)
{
    QByteArray result = "{\"struct_type\":\"snapshot\",\"paths\":[\"/\"]}\n";
    for (int number = 0; number < count; ++number) {
        result += lineOf(number);
    }
    return result;
}

} // namespace

void tst_SnapshotListing::init()
{
    qRegisterMetaType<QList<SnapshotFile>>("QList<SnapshotFile>");
    m_sandbox.reset(new Sandbox);
    m_listing.reset(new SnapshotListing);
    m_sandbox->write("file", "content");
}

void tst_SnapshotListing::cleanup()
{
    m_listing.reset();
    qunsetenv("FAKERESTIC_OUTPUT");
    qunsetenv("FAKERESTIC_ERRORS");
    qunsetenv("FAKERESTIC_STATUS");
}

void tst_SnapshotListing::fake(const QByteArray &output, const QByteArray &status)
{
    m_sandbox->useProgram(fakeRestic());
    writeFile(m_sandbox->path("output"), output);
    qputenv("FAKERESTIC_OUTPUT", m_sandbox->path("output"));
    qputenv("FAKERESTIC_STATUS", status);
    m_listing->open(m_sandbox->job, QStringLiteral("latest"));
}

/// First and last path, their number, and whether that was the last page.
QString tst_SnapshotListing::page(int count)
{
    QSignalSpy pages(m_listing.data(), &SnapshotListing::pageRead);
    m_listing->requestPage(count);
    if (!pages.wait(30000)) {
        return QStringLiteral("no answer");
    }
    const QList<SnapshotFile> files = pages.first().first().value<QList<SnapshotFile>>();
    const QString text = files.isEmpty()
        ? QStringLiteral("none")
        : files.first().path + QLatin1Char(' ') + files.last().path;
    return text + QLatin1Char(' ') + QString::number(files.size())
        + (pages.first().at(1).toBool() ? QStringLiteral(" end") : QString());
}

void tst_SnapshotListing::pagesAreWhatWasAskedFor_data()
{
    QTest::addColumn<int>("files");
    QTest::addColumn<int>("pageSize");
    QTest::addColumn<QStringList>("pages");
    QTest::newRow("none") << 0 << 5 << QStringList{QStringLiteral("none 0 end")};
    QTest::newRow("fewer") << 3 << 5 << QStringList{QStringLiteral("/f0 /f2 3 end")};
    QTest::newRow("just one page") << 5 << 5 << QStringList{QStringLiteral("/f0 /f4 5 end")};
    QTest::newRow("two pages") << 6 << 5
                               << QStringList{QStringLiteral("/f0 /f4 5"),
                                              QStringLiteral("/f5 /f5 1 end")};
    QTest::newRow("large pages") << 5000 << 4000
                                 << QStringList{QStringLiteral("/f0 /f3999 4000"),
                                                QStringLiteral("/f4000 /f4999 1000 end")};
}

void tst_SnapshotListing::pagesAreWhatWasAskedFor()
{
    QFETCH(int, files);
    QFETCH(int, pageSize);
    QFETCH(QStringList, pages);
    fake(lines(files));
    for (const QString &expected : pages) {
        QCOMPARE(page(pageSize), expected);
    }
}

void tst_SnapshotListing::aPageComesBeforeTheListIsWritten()
{
    fake(lines(20) + "{\"path\":\"/unfin", "hang");
    QCOMPARE(page(10), QStringLiteral("/f0 /f9 10"));
    QSignalSpy pages(m_listing.data(), &SnapshotListing::pageRead);
    m_listing->requestPage(10);
    QVERIFY(!pages.wait(300));
}

void tst_SnapshotListing::linesThatAreNoFilesAreLeftOut()
{
    fake("reading repository password from stdin\n" + lineOf(1) + "{}\nbroken\n[1]\n\n" + lineOf(2)
         + "{\"struct_type\":\"node\",\"path\":\"\"}\n{\"cut");
    QCOMPARE(page(10), QStringLiteral("/f1 /f2 2 end"));
}

void tst_SnapshotListing::brokenLinesAreCountedAndTold()
{
    fake("reading repository password from stdin\n" + lineOf(1) + "{}\n\nbroken\n" + lineOf(2)
         + "{\"cut");
    QSignalSpy failures(m_listing.data(), &SnapshotListing::failed);
    QCOMPARE(page(1), QStringLiteral("/f1 /f1 1"));
    QCOMPARE(failures.count(), 0);
    QCOMPARE(page(1), QStringLiteral("/f2 /f2 1 end"));
    QCOMPARE(failures.count(), 1);
    const Outcome outcome = failures.first().first().value<Outcome>();
    QCOMPARE(outcome.kind, Outcome::Done);
    QCOMPARE(outcome.skippedLines, 2);
}

void tst_SnapshotListing::theRealResticListsASnapshot()
{
    NEEDS_RESTIC();
    m_sandbox->backUp();
    m_listing->open(m_sandbox->job, QStringLiteral("latest"));
    const QString pages = page(1000);
    QVERIFY2(pages.endsWith(QStringLiteral("/source/file %1 end")
                                .arg(m_sandbox->job.source.count(QLatin1Char('/')) + 1)),
             qPrintable(pages));
}

void tst_SnapshotListing::aFailureIsTold()
{
    NEEDS_RESTIC();
    m_sandbox->backUp();
    m_sandbox->job.password = QStringLiteral("wrong");
    m_listing->open(m_sandbox->job, QStringLiteral("latest"));
    QSignalSpy failures(m_listing.data(), &SnapshotListing::failed);
    QCOMPARE(page(10), QStringLiteral("none 0 end"));
    QCOMPARE(failures.count(), 1);
    QCOMPARE(failures.first().first().value<Outcome>().kind, Outcome::WrongPassword);
}

void tst_SnapshotListing::aListThatIsCutOffIsTold_data()
{
    QTest::addColumn<QByteArray>("words");
    QTest::addColumn<int>("kind");
    QTest::newRow("old") << QByteArray(
        "JSON encode failed: write /dev/stdout: no space left on device")
                         << int(Outcome::NoSpace);
    QTest::newRow("new") << QByteArray("write failed: write /dev/stdout: no space left on device")
                         << int(Outcome::NoSpace);
    QTest::newRow("another reason")
        << QByteArray("write failed: write /dev/stdout: input/output error")
        << int(Outcome::Failed);
}

// The program ends with 0 nevertheless.
void tst_SnapshotListing::aListThatIsCutOffIsTold()
{
    QFETCH(QByteArray, words);
    QFETCH(int, kind);
    writeFile(m_sandbox->path("errors"), words + '\n' + words + '\n');
    qputenv("FAKERESTIC_ERRORS", m_sandbox->path("errors"));
    fake(lines(3));
    QSignalSpy failures(m_listing.data(), &SnapshotListing::failed);
    QCOMPARE(page(10), QStringLiteral("/f0 /f2 3 end"));
    QCOMPARE(failures.count(), 1);
    QCOMPARE(int(failures.first().first().value<Outcome>().kind), kind);
}

void tst_SnapshotListing::theRealResticTellsOfAListThatIsCutOff()
{
    NEEDS_RESTIC();
    if (!QFile::exists(QStringLiteral("/dev/full"))) {
        QSKIP("There is no /dev/full.");
    }
    m_sandbox->backUp();
    ResticRun restic;
    QSignalSpy finished(&restic, &ResticRun::finished);
    restic.start(m_sandbox->job,
                 {QStringLiteral("ls"), QStringLiteral("--json"), QStringLiteral("latest")},
                 QStringLiteral("/dev/full"));
    QVERIFY(finished.wait(60000));
    QCOMPARE(finished.first().first().value<Outcome>().kind, Outcome::NoSpace);
}

void tst_SnapshotListing::noSnapshotHasNoFilesAndNeedsNoProgram()
{
    m_sandbox->useProgram(QStringLiteral("/no/such/program"));
    QSignalSpy failures(m_listing.data(), &SnapshotListing::failed);
    QCOMPARE(page(10), QStringLiteral("none 0 end"));
    m_listing->open(m_sandbox->job, QString());
    QCOMPARE(page(10), QStringLiteral("none 0 end"));
    QCOMPARE(failures.count(), 0);
}

void tst_SnapshotListing::anotherSnapshotStartsOver()
{
    fake(lines(20), "hang");
    QCOMPARE(page(10), QStringLiteral("/f0 /f9 10"));
    m_listing->requestPage(100);
    fake(lines(3));
    QCOMPARE(page(10), QStringLiteral("/f0 /f2 3 end"));
}

void tst_SnapshotListing::snapshotsAreRead()
{
    const QList<Snapshot> snapshots = Snapshot::allIn(QJsonDocument::fromJson(
        "[{\"id\":\"aa\",\"time\":\"2026-11-21T18:08:40Z\"},7,{},"
        "{\"id\":\"bb\",\"short_id\":\"b\",\"time\":\"2026-11-21T21:08:40.417065835+02:00\","
        "\"paths\":[\"/a\",\"/b\"],\"hostname\":\"h\"}]"));
    QCOMPARE(snapshots.size(), 2);
    QCOMPARE(snapshots.first().id, QStringLiteral("aa"));
    QCOMPARE(snapshots.last().paths.size(), 2);
    QCOMPARE(snapshots.last().host, QStringLiteral("h"));
    QCOMPARE(snapshots.last().time.toUTC().time(), QTime(19, 8, 40, 417));
}

QTEST_GUILESS_MAIN(tst_SnapshotListing)
#include "tst_snapshotlisting.moc"
