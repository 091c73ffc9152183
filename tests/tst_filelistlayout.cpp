// SPDX-License-Identifier: LGPL-3.0-or-later
#include "QtCompat.h"
#include "ShownList.h"
#include "TestCase.h"

#include <QFont>
#include <QScrollBar>

class FileListLayoutTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void placesItsColumns_data();
    void placesItsColumns();
    void leavesRoomForTheScrollBar();
    void leavesRoomForTheScrollBarOnlyWhenTheRowsExceedTheView();
    void leavesHeaderAndFrameOutOfAccount();
    void showsTheInitialWidthsUntilTheWidthChanges();
    void restoresTheFixedColumnsWhenTheWidthChanges();
    void keepsTheInitialWidthsOfAListWithoutWidth();
    void fitsTheColumnsOfAModelThatComesToAShownList();
    void keepsItsWidthsFromASessionToItsPage();
    void countsHiddenRowsForTheScrollBar();
    void placesHiddenColumnsToo();
    void keepsItsFixedColumnsUnderALargeFont();
    void staysWhereItIsScrolledWhenAPageComes_data();
    void staysWhereItIsScrolledWhenAPageComes();
    void turnsTheOrderAcrossSessions();
    void hidesTheSortArrowOfAListThatDoesNotSort();
    void adjustsTheColumnsAfterAPage();
    void adjustsTheColumnsWithoutThePagingRow();
    void leavesAResizeToThePlainWidgetHandler();
    void keepsAllRowsEighteenPixelsHigh();
    void laysOutAPageOnce();
    void sortsByClickAndKeepsThePagingRowLast_data();
    void sortsByClickAndKeepsThePagingRowLast();
    void sortsByCallAndKeepsThePagingRowLast();
    void sortsWhileAPageLoads();
    void hidesASortArrowThatAnApplicationShows();
};

void FileListLayoutTest::placesItsColumns_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("widths");

    QTest::newRow("600") << 600 << "285,120,70,55,65";
    QTest::newRow("800") << 800 << "485,120,70,55,65";
    QTest::newRow("first column vanishes") << 315 << "0,120,70,55,65";
    QTest::newRow("narrower than the fixed columns") << 200 << "0,120,70,55,65";
    QTest::newRow("one pixel left") << 316 << "1,120,70,55,65";
}

void FileListLayoutTest::placesItsColumns()
{
    QFETCH(int, width);
    List list;
    list.view.resize(450, 400);

    list.view.resize(width, 400);
    QCoreApplication::processEvents();

    QTEST(widths(list.view), "widths");
}

void FileListLayoutTest::leavesRoomForTheScrollBar()
{
    List list;

    list.fill(22); // with the paging row 23 x 18 = 414 > 400
    list.fill(10);

    const int bar = list.view.verticalScrollBar()->width();
    QVERIFY(list.view.verticalScrollBar()->isVisible());
    QCOMPARE(list.view.horizontalHeader()->sectionSize(0), 600 - bar - 315);
}

void FileListLayoutTest::leavesRoomForTheScrollBarOnlyWhenTheRowsExceedTheView()
{
    List list;
    list.fill(21);
    list.view.resize(601, 22 * 18);
    QCoreApplication::processEvents();

    list.view.FinishLoadingData(0, false);

    QCOMPARE(list.view.horizontalHeader()->sectionSize(0), 286);
}

void FileListLayoutTest::leavesHeaderAndFrameOutOfAccount()
{
    List list;

    list.fill(21); // with the paging row 22 x 18 = 396: more than the viewport, less than the view

    QTRY_VERIFY(list.view.verticalScrollBar()->isVisible());
    QCOMPARE(list.view.horizontalHeader()->sectionSize(0), 285);
}

void FileListLayoutTest::showsTheInitialWidthsUntilTheWidthChanges()
{
    List list;
    PagedModel second;

    list.view.setModel(&second);

    QCOMPARE(widths(list.view), QString("320,120,70,55,65"));
    list.view.StartLoadingData();
    second.deliver(1, false); // adjusts, but to a width that it knows already
    QCOMPARE(widths(list.view), QString("320,120,70,55,65"));
    list.view.resize(601, 400);
    QCoreApplication::processEvents();
    QCOMPARE(widths(list.view), QString("286,120,70,55,65"));
}

void FileListLayoutTest::restoresTheFixedColumnsWhenTheWidthChanges()
{
    List list;
    setWidths(&list.view, "300,50,200,20,100");
    list.fill(1);
    QCOMPARE(widths(list.view), QString("300,50,200,20,100")); // the user's, at the same width

    list.view.resize(601, 400);
    QCoreApplication::processEvents();

    QCOMPARE(widths(list.view), QString("286,120,70,55,65"));
}

void FileListLayoutTest::adjustsTheColumnsAfterAPage()
{
    PagedModel model;
    FileListTableView view;
    view.resize(600, 400);
    view.setModel(&model);
    QCOMPARE(widths(view), QString("320,120,70,55,65"));

    view.FinishLoadingData(0, false);

    QCOMPARE(widths(view), QString("285,120,70,55,65"));
}

void FileListLayoutTest::adjustsTheColumnsWithoutThePagingRow()
{
    List list;
    list.fill(22); // 23 rows: more than the view
    QVERIFY(list.view.horizontalHeader()->sectionSize(0) < 285);

    list.model.announce(0, true); // 22 rows: less

    QCOMPARE(list.view.horizontalHeader()->sectionSize(0), 285);
}

void FileListLayoutTest::leavesAResizeToThePlainWidgetHandler()
{
    PagedModel model;
    QWidget window;
    FileListTableView *view = new FileListTableView;
    view->setParent(&window);
    view->setModel(&model);
    view->resize(600, 300);
    showWindow(&window, 900, 400);
    QCoreApplication::processEvents();
    const int before = view->horizontalHeader()->width();

    view->resize(700, 300);

    QCOMPARE(view->horizontalHeader()->width(), before); // the item view has not reacted
    QTRY_COMPARE(view->horizontalHeader()->width(), view->viewport()->width());
}

void FileListLayoutTest::keepsAllRowsEighteenPixelsHigh()
{
    List list;

    list.fill(3);

    for (int row = 0; row < 4; ++row) {
        QCOMPARE(list.view.verticalHeader()->sectionSize(row), 18);
    }
}

void FileListLayoutTest::laysOutAPageOnce()
{
    List list;
    list.fill(3);
    list.view.StartLoadingData();
    QCoreApplication::processEvents();
    list.view.layouts = 0;

    for (int row = 0; row < 20; ++row) {
        list.model.insertPage(1);
    }
    list.model.announce(20, false);
    QCoreApplication::processEvents();

    const int most = compat::collapsingHoldsLayout ? 2 : 22; // else one more for each row
    QVERIFY(list.view.layouts <= most);
}

void FileListLayoutTest::sortsByClickAndKeepsThePagingRowLast_data()
{
    QTest::addColumn<int>("clicks");
    QTest::addColumn<QString>("order");

    QTest::newRow("first click ascends") << 1 << "file0,file1,file2,";
    QTest::newRow("second click descends") << 2 << "file2,file1,file0,";
    QTest::newRow("third click ascends") << 3 << "file0,file1,file2,";
}

void FileListLayoutTest::sortsByClickAndKeepsThePagingRowLast()
{
    QFETCH(int, clicks);
    List list;
    list.fill(3);

    for (int i = 0; i < clicks; ++i) {
        list.clickHeader(0);
        QVERIFY(!list.view.horizontalHeader()->isSortIndicatorShown());
    }

    QTEST(texts(list.model, 0), "order");
    QCOMPARE(list.paging(), QString("3 Next >>"));
}

void FileListLayoutTest::sortsByCallAndKeepsThePagingRowLast()
{
    List list;
    list.fill(3);

    list.view.sortByColumn(0, Qt::DescendingOrder);

    QCOMPARE(texts(list.model, 0), QString("file2,file1,file0,"));
    QCOMPARE(list.paging(), QString("3 Next >>"));
    QVERIFY(!list.view.horizontalHeader()->isSortIndicatorShown());
    QCoreApplication::processEvents();
    QCOMPARE(list.button()->geometry(), list.view.visualRect(list.model.index(3, 0)));
}

void FileListLayoutTest::sortsWhileAPageLoads()
{
    List list;
    list.fill(2);
    list.click();

    list.clickHeader(0);
    list.clickHeader(0);
    list.model.deliver(1, false);

    QCOMPARE(texts(list.model, 0), QString("file1,file0,file2,"));
    QCOMPARE(list.paging(), QString("3 Next >>"));
}

void FileListLayoutTest::hidesASortArrowThatAnApplicationShows()
{
    List list;
    list.fill(3);
    list.view.horizontalHeader()->setSortIndicatorShown(true);

    list.clickHeader(0);

    QVERIFY(!list.view.horizontalHeader()->isSortIndicatorShown());
}

void FileListLayoutTest::keepsTheInitialWidthsOfAListWithoutWidth()
{
    PagedModel model;
    FileListTableView view;
    view.resize(0, 100);
    view.setModel(&model);

    view.FinishLoadingData(0, false);

    QCOMPARE(widths(view), QString("320,120,70,55,65"));
}

void FileListLayoutTest::fitsTheColumnsOfAModelThatComesToAShownList()
{
    PagedModel model;
    FileListTableView view;
    view.horizontalHeader()->hide(); // which would resize the viewport as it gets its columns
    showWindow(&view, 600, 400);
    view.setModel(&model);

    view.FinishLoadingData(0, false);

    QCOMPARE(widths(view), QString("285,120,70,55,65"));
}

void FileListLayoutTest::keepsItsWidthsFromASessionToItsPage()
{
    PagedModel model;
    FileListTableView view;
    view.resize(600, 100);
    view.setModel(&model);
    model.deliver(20, false); // more than fit
    const QString before = widths(view);

    model.changeSession();

    QCOMPARE(widths(view), before);
    model.deliver(1, false);
    QCOMPARE(widths(view), QString("285,120,70,55,65"));
}

void FileListLayoutTest::countsHiddenRowsForTheScrollBar()
{
    List list;
    list.fill(30); // more than fit
    const int bar = list.view.verticalScrollBar()->width();
    for (int row = 0; row < 20; ++row) {
        list.view.hideRow(row);
    }
    QTRY_VERIFY(!list.view.verticalScrollBar()->isVisible());

    list.view.FinishLoadingData(0, false);

    QCOMPARE(list.view.horizontalHeader()->sectionSize(0), 285 - bar);
}

void FileListLayoutTest::placesHiddenColumnsToo()
{
    List list;
    setWidths(&list.view, "285,120,200,55,65");
    list.view.hideColumn(2);

    list.view.resize(601, 400);
    QCoreApplication::processEvents();

    list.view.showColumn(2);
    QCOMPARE(widths(list.view), QString("286,120,70,55,65"));
}

void FileListLayoutTest::keepsItsFixedColumnsUnderALargeFont()
{
    List list;
    QFont large = list.view.horizontalHeader()->font();
    large.setPixelSize(150); // sections would be as wide as its widest character
    list.view.horizontalHeader()->setFont(large);

    list.view.resize(601, 400);
    QCoreApplication::processEvents();

    QCOMPARE(widths(list.view), QString("286,120,70,55,65"));
}

void FileListLayoutTest::staysWhereItIsScrolledWhenAPageComes_data()
{
    QTest::addColumn<bool>("completed");

    QTest::newRow("more to come") << false;
    QTest::newRow("the last page") << true;
}

void FileListLayoutTest::staysWhereItIsScrolledWhenAPageComes()
{
    QFETCH(bool, completed);
    List list;
    list.fill(60);
    list.view.setCurrentIndex(list.model.index(0, 0)); // else it is the button's, which goes
    list.view.verticalScrollBar()->setValue(5);
    QCOMPARE(list.view.verticalScrollBar()->value(), 5);

    list.model.deliver(3, completed);
    QCoreApplication::processEvents();

    QCOMPARE(list.view.verticalScrollBar()->value(), 5);
}

void FileListLayoutTest::turnsTheOrderAcrossSessions()
{
    List list;
    list.fill(1);
    list.clickHeader(0);
    list.model.changeSession();
    list.model.deliver(2, false);

    list.clickHeader(0);

    QCOMPARE(texts(list.model, 0), QString("file2,file1,"));
}

void FileListLayoutTest::hidesTheSortArrowOfAListThatDoesNotSort()
{
    List list;
    list.fill(3);
    list.view.setSortingEnabled(false);
    list.view.horizontalHeader()->setSortIndicatorShown(true);

    list.clickHeader(0);

    QVERIFY(!list.view.horizontalHeader()->isSortIndicatorShown());
}

TESSALINE_TEST_MAIN(FileListLayoutTest)
#include "tst_filelistlayout.moc"
