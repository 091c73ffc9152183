// SPDX-License-Identifier: LGPL-3.0-or-later
#include "FileListModel.h"
#include "ResticTestTools.h"
#include "WindowTools.h"

#include <FileListTableView.h>

#include <QAbstractItemModelTester>
#include <QPushButton>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QtTest>

namespace {

QByteArray line(const QByteArray &path, int size, const QByteArray &time)
{
    return R"({"name":"x","type":"file","path":")" + path + R"(","size":)"
        + QByteArray::number(size) + R"(,"mtime":")" + time
        + R"(","mode":420,"struct_type":"node"})" + '\n';
}

/// A list over a snapshot whose files are what a program prints that is no restic.
class Listing
{
public:
    Listing()
        : tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest)
    {
        sandbox.useProgram(fakeRestic());
        qputenv("FAKERESTIC_OUTPUT", sandbox.path("listing"));
        qputenv("FAKERESTIC_ERRORS", "");
        qputenv("FAKERESTIC_STATUS", "0");
        model.setPageSize(3);
        view.setModel(&model);
        view.resize(600, 300);
        view.show();
    }

    void write(const QByteArray &lines) const
    {
        writeFile(sandbox.path("listing"), lines);
    }

    void writeFiles(int count) const
    {
        QByteArray lines;
        for (int number = 0; number < count; ++number) {
            lines += line("/f" + QByteArray::number(number), number, "2026-11-21T10:00:00Z");
        }
        write(lines);
    }

    /// Asks for the next page and waits for it; returns how often a page was announced.
    int load()
    {
        QSignalSpy pages(&model, &FileListModel::pageLoaded);
        view.StartLoadingData();
        pages.wait(60000);
        return int(pages.count());
    }

    /// The snapshot from its start, the first page included.
    void open()
    {
        QSignalSpy pages(&model, &FileListModel::pageLoaded);
        model.setSnapshot(sandbox.job, QStringLiteral("0123abcd"));
        pages.wait(60000);
    }

    void openAll()
    {
        open();
        while (button()) {
            load();
        }
    }

    QPushButton *button() const
    {
        const QModelIndex last = model.index(model.rowCount() - 1, 0);
        return qobject_cast<QPushButton *>(view.indexWidget(last));
    }

    QString column(FileListModel::Column column) const
    {
        QStringList texts;
        for (int row = 0; row < model.rowCount() - (button() ? 1 : 0); ++row) {
            texts.append(model.index(row, column).data().toString());
        }
        return texts.join(QLatin1Char(' '));
    }

    Sandbox sandbox;
    FileListModel model;
    QAbstractItemModelTester tester;
    FileListTableView view;
};

} // namespace

class tst_FileListModel : public QObject
{
    Q_OBJECT

private slots:
    void isEmptyWithoutASnapshot();
    void deliversPagesInOneInsertionEach();
    void endsWithTheLastPage_data();
    void endsWithTheLastPage();
    void endsWhereResticFailed();
    void sortsByColumn_data();
    void sortsByColumn();
    void keepsThePagingRowLastWhenSorted();
    void startsAnewWithAnotherSnapshot();
    void answersWithTheNewSnapshotWhenItChangesWhileLoading();
    void showsSizesInTheUnitsOfTheChart();
    void showsRightsAsNumbers();
    void showsNamesAsTheyAreInToolTips();
    void holdsOnlyThePagesAskedFor();
};

void tst_FileListModel::isEmptyWithoutASnapshot()
{
    Listing listing;

    listing.model.setSnapshot(listing.sandbox.job, QString());

    QTRY_COMPARE(listing.model.rowCount(), 0);
}

void tst_FileListModel::deliversPagesInOneInsertionEach()
{
    Listing listing;
    listing.writeFiles(8);
    listing.open();
    QCOMPARE(listing.model.rowCount(), 4);
    QSignalSpy insertions(&listing.model, &FileListModel::rowsInserted);

    QCOMPARE(listing.load(), 1);

    QCOMPARE(int(insertions.count()), 1);
    QCOMPARE(insertions.at(0).at(1).toInt(), 3);
    QCOMPARE(insertions.at(0).at(2).toInt(), 5);
    QCOMPARE(listing.button()->text(), QStringLiteral("Next >>"));
}

void tst_FileListModel::endsWithTheLastPage_data()
{
    QTest::addColumn<int>("files");
    QTest::addColumn<int>("pages");

    QTest::newRow("no file") << 0 << 1;
    QTest::newRow("part of a page") << 2 << 1;
    QTest::newRow("just a page") << 3 << 1;
    QTest::newRow("a page and a file") << 4 << 2;
    QTest::newRow("many") << 31 << 11;
}

void tst_FileListModel::endsWithTheLastPage()
{
    QFETCH(int, files);
    Listing listing;
    listing.writeFiles(files);
    QSignalSpy spy(&listing.model, &FileListModel::pageLoaded);

    listing.openAll();

    QTEST(int(spy.count()), "pages");
    QCOMPARE(spy.last().at(1).toBool(), true);
    QCOMPARE(listing.model.rowCount(), files);
}

void tst_FileListModel::endsWhereResticFailed()
{
    Listing listing;
    listing.writeFiles(4);
    qputenv("FAKERESTIC_STATUS", "12");
    QSignalSpy failures(&listing.model, &FileListModel::failed);

    listing.openAll();

    QCOMPARE(int(failures.count()), 1);
    QCOMPARE(failures.at(0).at(0).value<Outcome>().kind, Outcome::WrongPassword);
    QVERIFY(!listing.button());
}

void tst_FileListModel::sortsByColumn_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<bool>("ascends");
    QTest::addColumn<QString>("names");

    QTest::newRow("name up") << int(FileListModel::Name) << true << "/a.z /b.y /c.x";
    QTest::newRow("name down") << int(FileListModel::Name) << false << "/c.x /b.y /a.z";
    QTest::newRow("size up, by value") << int(FileListModel::Size) << true << "/b.y /a.z /c.x";
    QTest::newRow("size down") << int(FileListModel::Size) << false << "/c.x /a.z /b.y";
    QTest::newRow("type up") << int(FileListModel::Type) << true << "/c.x /b.y /a.z";
    QTest::newRow("modified up") << int(FileListModel::Modified) << true << "/c.x /b.y /a.z";
}

void tst_FileListModel::sortsByColumn()
{
    QFETCH(int, column);
    QFETCH(bool, ascends);
    Listing listing;
    listing.write(line("/a.z", 200, "2026-03-01T10:00:00Z")
                  + line("/b.y", 30, "2026-02-01T10:00:00Z")
                  + line("/c.x", 1000, "2026-01-01T10:00:00Z"));
    listing.openAll();

    listing.view.sortByColumn(column, ascends ? Qt::AscendingOrder : Qt::DescendingOrder);

    QTEST(listing.column(FileListModel::Name), "names");
}

void tst_FileListModel::keepsThePagingRowLastWhenSorted()
{
    Listing listing;
    listing.writeFiles(5);
    listing.open();

    listing.view.sortByColumn(0, Qt::DescendingOrder);

    QVERIFY(listing.button());
    QCOMPARE(listing.model.rowCount(), 4);
    QCOMPARE(listing.load(), 1);
    QCOMPARE(listing.column(FileListModel::Name), QStringLiteral("/f2 /f1 /f0 /f3 /f4"));
}

void tst_FileListModel::startsAnewWithAnotherSnapshot()
{
    Listing listing;
    listing.writeFiles(5);
    listing.open();
    listing.write(line("/other", 1, "2026-11-21T10:00:00Z"));

    listing.open();

    QCOMPARE(listing.column(FileListModel::Name), QStringLiteral("/other"));
}

void tst_FileListModel::answersWithTheNewSnapshotWhenItChangesWhileLoading()
{
    Listing listing;
    listing.writeFiles(5);
    QSignalSpy pages(&listing.model, &FileListModel::pageLoaded);
    listing.model.setSnapshot(listing.sandbox.job, QStringLiteral("0123abcd"));
    listing.write(line("/other", 1, "2026-11-21T10:00:00Z"));

    listing.model.setSnapshot(listing.sandbox.job, QStringLiteral("4567abcd"));

    QVERIFY(pages.wait(60000));
    QCoreApplication::processEvents();
    QCOMPARE(int(pages.count()), 1);
    QCOMPARE(listing.column(FileListModel::Name), QStringLiteral("/other"));
}

void tst_FileListModel::showsSizesInTheUnitsOfTheChart()
{
    Listing listing;
    listing.write(line("/a", 1536, "2026-11-21T10:00:00Z"));

    listing.openAll();

    QCOMPARE(listing.column(FileListModel::Size), QStringLiteral("1.50 KB"));
    QVERIFY(listing.view.fontMetrics().horizontalAdvance(QStringLiteral("1023 MB"))
            < listing.view.columnWidth(FileListModel::Size));
}

void tst_FileListModel::showsRightsAsNumbers()
{
    Listing listing;
    listing.writeFiles(1);

    listing.openAll();

    QCOMPARE(listing.column(FileListModel::Rights), QStringLiteral("644"));
}

void tst_FileListModel::showsNamesAsTheyAreInToolTips()
{
    Listing listing;
    listing.write(line("/x/<b>a</b> &amp; b", 3, "2026-11-21T10:00:00Z"));

    listing.openAll();

    const QModelIndex name = listing.model.index(0, FileListModel::Name);
    const QString tip = name.data(Qt::ToolTipRole).toString();
    QVERIFY(Qt::mightBeRichText(tip));
    QCOMPARE(QTextDocumentFragment::fromHtml(tip).toPlainText(), name.data().toString());
}

void tst_FileListModel::holdsOnlyThePagesAskedFor()
{
    Listing listing;
    listing.writeFiles(500000);
    listing.model.setPageSize(500);
    int turns = 0;
    QTimer heartbeat;
    connect(&heartbeat, &QTimer::timeout, &heartbeat, [&turns] {
        ++turns;
    });
    heartbeat.start(0);

    listing.open();
    listing.load();

    QCOMPARE(listing.model.rowCount(), 1001);
    QCOMPARE(listing.model.index(999, 0).data().toString(), QStringLiteral("/f999"));
    QVERIFY(turns >= 2); // the event loop went on while the pages were read
}

int main(int argc, char **argv)
{
    tst_FileListModel test;
    return runTests(&test, argc, argv);
}

#include "tst_filelistmodel.moc"
