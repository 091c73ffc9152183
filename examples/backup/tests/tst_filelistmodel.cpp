// SPDX-License-Identifier: LGPL-3.0-or-later
#include "BackupTestTools.h"
#include "FileListModel.h"

#include <FileListTableView.h>

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QElapsedTimer>
#include <QPersistentModelIndex>
#include <QPushButton>
#include <QtTest>

namespace {

/// A list over a source folder, watched by the model tester.
class Listing
{
public:
    Listing()
        : tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest)
    {
        model.setPageSize(3);
        view.setModel(&model);
        view.resize(600, 300);
        view.show();
    }

    void writeFiles(int count) const
    {
        for (int number = 0; number < count; ++number) {
            folders.write("f" + QByteArray::number(number), QByteArray(number, 'x'));
        }
    }

    /// Asks for the next page and waits for it; returns how often a page was announced.
    int load()
    {
        QSignalSpy pages(&model, &FileListModel::pageLoaded);
        view.StartLoadingData();
        pages.wait();
        return int(pages.count());
    }

    /// The list of another job, its first page included.
    void list(const BackupJob &job)
    {
        QSignalSpy pages(&model, &FileListModel::pageLoaded);
        model.setJob(job);
        pages.wait();
    }

    void listAll()
    {
        list(folders.job);
        while (button()) {
            load();
        }
    }

    QPushButton *button() const
    {
        const QModelIndex last = model.index(model.rowCount() - 1, 0);
        return qobject_cast<QPushButton *>(view.indexWidget(last));
    }

    QStringList column(FileListModel::Column column) const
    {
        QStringList texts;
        for (int row = 0; row < model.rowCount() - (button() ? 1 : 0); ++row) {
            texts.append(model.index(row, column).data().toString());
        }
        return texts;
    }

    QString state(const QString &name) const
    {
        const int row = int(column(FileListModel::Name).indexOf(name));
        return model.index(row, FileListModel::State).data().toString();
    }

    BackupFolders folders;
    FileListModel model;
    QAbstractItemModelTester tester;
    FileListTableView view;
};

QStringList sorted(QStringList list)
{
    list.sort();
    return list;
}

} // namespace

class tst_FileListModel : public QObject
{
    Q_OBJECT

private slots:
    void readsNothingBeforeItIsAsked();
    void deliversPagesInOneInsertionEach();
    void endsWithTheLastPage_data();
    void endsWithTheLastPage();
    void listsFoldersBelow();
    void listsAnEmptyOrMissingFolder_data();
    void listsAnEmptyOrMissingFolder();
    void comparesWithTheTarget();
    void followsARunningBackup();
    void sortsByColumn_data();
    void sortsByColumn();
    void keepsThePagingRowLastWhenSorted();
    void startsAnewWithAnotherJob();
    void answersWithTheNewJobWhenItChangesWhileLoading();
    void staysResponsiveInALargeFolder();
};

void tst_FileListModel::readsNothingBeforeItIsAsked()
{
    Listing listing;
    listing.writeFiles(5);

    QCoreApplication::processEvents();

    QCOMPARE(listing.model.rowCount(), 1);
}

void tst_FileListModel::deliversPagesInOneInsertionEach()
{
    Listing listing;
    listing.writeFiles(8);
    listing.list(listing.folders.job);
    QCOMPARE(listing.model.rowCount(), 4);
    QSignalSpy insertions(&listing.model, &FileListModel::rowsInserted);

    QCOMPARE(listing.load(), 1);

    QCOMPARE(insertions.count(), 1);
    QCOMPARE(insertions.at(0).at(1).toInt(), 3);
    QCOMPARE(insertions.at(0).at(2).toInt(), 5);
    QCOMPARE(listing.button()->text(), QStringLiteral("Next >>"));
}

void tst_FileListModel::endsWithTheLastPage_data()
{
    QTest::addColumn<int>("files");
    QTest::addColumn<int>("pages");

    QTest::newRow("part of a page") << 2 << 1;
    QTest::newRow("just a page") << 3 << 1;
    QTest::newRow("a page and a file") << 4 << 2;
    QTest::newRow("many") << 31 << 11;
}

void tst_FileListModel::endsWithTheLastPage()
{
    QFETCH(int, files);
    QFETCH(int, pages);
    Listing listing;
    listing.writeFiles(files);
    QSignalSpy spy(&listing.model, &FileListModel::pageLoaded);

    listing.listAll();

    QCOMPARE(int(spy.count()), pages);
    QCOMPARE(spy.last().at(1).toBool(), true);
    QCOMPARE(listing.model.rowCount(), files);
}

void tst_FileListModel::listsFoldersBelow()
{
    Listing listing;
    listing.folders.write("a", "1");
    listing.folders.write("b/c/d", "2");
    listing.folders.write(".hidden", "3");

    listing.listAll();

    QCOMPARE(
        sorted(listing.column(FileListModel::Name)),
        QStringList({QStringLiteral(".hidden"), QStringLiteral("a"), QStringLiteral("b/c/d")}));
}

void tst_FileListModel::listsAnEmptyOrMissingFolder_data()
{
    QTest::addColumn<QString>("source");

    QTest::newRow("missing") << QStringLiteral("/does/not/exist");
    QTest::newRow("none") << QString();
    QTest::newRow("a file") << QStringLiteral("/etc/passwd");
}

void tst_FileListModel::listsAnEmptyOrMissingFolder()
{
    QFETCH(QString, source);
    Listing listing;
    BackupJob job;
    job.sourceFolder = source;

    listing.list(job);

    QCOMPARE(listing.model.rowCount(), 0);
}

void tst_FileListModel::comparesWithTheTarget()
{
    Listing listing;
    listing.folders.write("same", "1");
    listing.folders.write("touched", "2");
    listing.folders.run();
    listing.folders.write("touched", "22");
    listing.folders.write("added", "3");

    listing.listAll();

    QCOMPARE(listing.state(QStringLiteral("same")), QStringLiteral("saved"));
    QCOMPARE(listing.state(QStringLiteral("touched")), QStringLiteral("changed"));
    QCOMPARE(listing.state(QStringLiteral("added")), QStringLiteral("new"));
}

void tst_FileListModel::followsARunningBackup()
{
    Listing listing;
    listing.writeFiles(5);
    listing.listAll();
    BackupEngine engine;
    connect(&engine, &BackupEngine::fileDone, &listing.model, &FileListModel::noteFile);
    QSignalSpy finished(&engine, &BackupEngine::finished);
    QString refusal;

    QVERIFY(engine.start(listing.folders.job, &refusal));

    QVERIFY(finished.wait());
    QCOMPARE(listing.column(FileListModel::State).count(QStringLiteral("saved")), 5);
}

void tst_FileListModel::sortsByColumn_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<bool>("ascends");
    QTest::addColumn<QString>("names");

    QTest::newRow("name up") << int(FileListModel::Name) << true << "a.z b.y c.x";
    QTest::newRow("name down") << int(FileListModel::Name) << false << "c.x b.y a.z";
    QTest::newRow("size up, by value") << int(FileListModel::Size) << true << "b.y a.z c.x";
    QTest::newRow("size down") << int(FileListModel::Size) << false << "c.x a.z b.y";
    QTest::newRow("type up") << int(FileListModel::Type) << true << "c.x b.y a.z";
    QTest::newRow("modified up") << int(FileListModel::Modified) << true << "c.x b.y a.z";
}

void tst_FileListModel::sortsByColumn()
{
    QFETCH(int, column);
    QFETCH(bool, ascends);
    Listing listing;
    listing.folders.write("a.z", QByteArray(200, 'x'));
    listing.folders.write("b.y", QByteArray(30, 'x'));
    listing.folders.write("c.x", QByteArray(1000, 'x'));
    setTime(listing.folders.source("c.x"), 1000, 0);
    setTime(listing.folders.source("b.y"), 2000, 0);
    setTime(listing.folders.source("a.z"), 3000, 0);
    listing.listAll();

    listing.view.sortByColumn(column, ascends ? Qt::AscendingOrder : Qt::DescendingOrder);

    QTEST(listing.column(FileListModel::Name).join(QLatin1Char(' ')), "names");
}

void tst_FileListModel::keepsThePagingRowLastWhenSorted()
{
    Listing listing;
    listing.writeFiles(5);
    listing.list(listing.folders.job);
    const QPersistentModelIndex first = listing.model.index(0, 0);
    const QString name = first.data().toString();

    listing.view.sortByColumn(0, Qt::DescendingOrder);
    listing.view.sortByColumn(0, Qt::AscendingOrder);

    QVERIFY(listing.button());
    QCOMPARE(listing.model.rowCount(), 4);
    QCOMPARE(first.data().toString(), name); // indexes follow their files
    QCOMPARE(listing.load(), 1);
    QCOMPARE(listing.model.rowCount(), 5);
}

void tst_FileListModel::startsAnewWithAnotherJob()
{
    Listing listing;
    listing.writeFiles(5);
    listing.list(listing.folders.job);
    BackupFolders others;
    others.write("other", "1");

    listing.list(others.job);

    QCOMPARE(listing.column(FileListModel::Name), QStringList(QStringLiteral("other")));
}

void tst_FileListModel::answersWithTheNewJobWhenItChangesWhileLoading()
{
    Listing listing;
    listing.writeFiles(5);
    BackupFolders others;
    others.write("other", "1");
    QSignalSpy pages(&listing.model, &FileListModel::pageLoaded);
    listing.model.setJob(listing.folders.job);

    listing.model.setJob(others.job);

    QVERIFY(pages.wait());
    QCoreApplication::processEvents();
    QCOMPARE(int(pages.count()), 1);
    QCOMPARE(listing.column(FileListModel::Name), QStringList(QStringLiteral("other")));
}

void tst_FileListModel::staysResponsiveInALargeFolder()
{
    Listing listing;
    listing.writeFiles(20000);
    listing.model.setPageSize(20000);
    QSignalSpy pages(&listing.model, &FileListModel::pageLoaded);
    int turns = 0;
    QTimer heartbeat;
    connect(&heartbeat, &QTimer::timeout, &heartbeat, [&turns]() {
        ++turns;
    });
    heartbeat.start(0);

    listing.model.setJob(listing.folders.job);

    QTRY_COMPARE_WITH_TIMEOUT(int(pages.count()), 1, 60000);
    QCOMPARE(listing.model.rowCount(), 20000);
    QVERIFY(turns >= 5); // the event loop went on while the page was read
}

int main(int argc, char **argv)
{
    if (qgetenv("QT_QPA_PLATFORM").isEmpty()) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    tst_FileListModel test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_filelistmodel.moc"
