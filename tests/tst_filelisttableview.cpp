// SPDX-License-Identifier: LGPL-3.0-or-later
#include "CellButton.h"
#include "FileListTableView.h"
#include "PagedModel.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QPointer>
#include <QScrollBar>

namespace {

/// Counts how often all rows are laid out.
class NotingView : public FileListTableView
{
public:
    void doItemsLayout() override
    {
        ++layouts;
        FileListTableView::doItemsLayout();
    }

    int layouts = 0;
};

/// A shown list of 600 x 400 pixels.
struct List
{
    List()
    {
        view.setModel(&model);
        showWindow(&view, 600, 400);
    }

    CellButton *button() const
    {
        for (int row = 0; row < model.rowCount(); ++row) {
            if (QWidget *widget = view.indexWidget(model.index(row, 0))) {
                return dynamic_cast<CellButton *>(widget);
            }
        }
        return nullptr;
    }

    /// The row and label of the button, such as "2 Next >>"; "none" without one.
    QString paging() const
    {
        const CellButton *next = button();
        return next ? QString("%1 %2").arg(next->index.row()).arg(next->text()) : QString("none");
    }

    void click() const
    {
        QTest::mouseClick(button(), Qt::LeftButton);
    }

    void clickHeader(int column)
    {
        QHeaderView *header = view.horizontalHeader();
        const QPoint place(header->sectionViewportPosition(column)
                               + header->sectionSize(column) / 2,
                           header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::KeyboardModifiers(), place);
    }

    /// Has so many rows and more to come.
    void fill(int rows)
    {
        view.StartLoadingData();
        model.deliver(rows, false);
        QCoreApplication::processEvents();
    }

    PagedModel model;
    NotingView view;
};

QString joined(const QList<QByteArray> &names)
{
    QStringList list;
    for (const QByteArray &name : names) {
        list.append(QString(name));
    }
    return list.join(",");
}

class GermanPaging : public compat::Translator
{
protected:
    QString find(const QByteArray &context, const QByteArray &source) const override
    {
        if (context != "FileListTableView") {
            return QString();
        }
        return source == "Common::Next" ? QString("Weiter")
            : source == "loading..."    ? QString("wird geladen")
                                        : QString();
    }
};

} // namespace

class FileListTableViewTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void listsItsMethodsInOrder_data();
    void listsItsMethodsInOrder();
    void startsAsAReadOnlyListWithoutGrid();
    void appendsARowWithAnUnlabelledButton();
    void asksForNoPageByItself();
    void asksForAPageOnceWhileOneIsOnItsWay();
    void goesFromPageToPage();
    void ignoresTheCountOfAPage_data();
    void ignoresTheCountOfAPage();
    void removesButtonAndRowAfterTheLastPage();
    void labelsTheButtonEvenWhenItGoes();
    void translatesItsLabels();
    void startsAnewWhenTheSessionChanges();
    void asksForNoSecondPageWhenTheSessionChangesWhileLoading();
    void startsAnewAfterTheLastPage();
    void acceptsAnAnswerAtOnce();
    void placesItsColumns_data();
    void placesItsColumns();
    void leavesRoomForTheScrollBar();
    void showsTheInitialWidthsUntilTheWidthChanges();
    void adjustsTheColumnsAfterAPage();
    void keepsAllRowsEighteenPixelsHigh();
    void sortsByClickAndKeepsThePagingRowLast_data();
    void sortsByClickAndKeepsThePagingRowLast();
    void sortsByCallAndKeepsThePagingRowLast();
    void sortsWhileAPageLoads();
    void keepsTheRowsWhenTheModelIsTakenAway();
    void cutsOffAModelThatIsReplaced();
    void givesTheSecondModelAButtonThatStays();
    void followsTheLastRowWhenAModelAppendsBehindIt();
    void leavesTheCurrentCellAloneWhenTheButtonIsClicked();
    void deletesItsButtonWithItself();
    void deletesAButtonThatNeverFoundACell();
    void hidesASortArrowThatAnApplicationShows();
    void leavesHeaderAndFrameOutOfAccount();
    void leavesRoomForTheScrollBarOnlyWhenTheRowsExceedTheView();
    void adjustsTheColumnsWithoutThePagingRow();
    void leavesAResizeToThePlainWidgetHandler();
    void laysOutAPageOnce();
    void keepsTheNewModelsRowsFromTheOldModelsSession();
    void keepsARequestUnderWayWhenTheSameModelIsSetAgain();
};

void FileListTableViewTest::listsItsMethodsInOrder_data()
{
    QTest::addColumn<int>("place");
    QTest::addColumn<QString>("signature");
    QTest::addColumn<QString>("names");
    QTest::addColumn<bool>("isSignal");

    QTest::newRow("request") << 0 << "requestItems()"
                             << "" << true;
    QTest::newRow("rows inserted") << 1 << "rowsInserted(QModelIndex,int,int)"
                                   << "rParentIndex,start,end" << false;
    QTest::newRow("start") << 2 << "StartLoadingData()"
                           << "" << false;
    QTest::newRow("finish") << 3 << "FinishLoadingData(qint64,bool)"
                            << "count,completed" << false;
    QTest::newRow("session") << 4 << "SessionChanged()"
                             << "" << false;
    QTest::newRow("sort") << 5 << "SortByColumn(int)"
                          << "column" << false;
}

void FileListTableViewTest::listsItsMethodsInOrder()
{
    QFETCH(int, place);
    QFETCH(QString, signature);
    QFETCH(bool, isSignal);
    const QMetaObject &metaObject = FileListTableView::staticMetaObject;

    const QMetaMethod method = metaObject.method(metaObject.methodOffset() + place);

    QCOMPARE(metaObject.indexOfMethod(signature.toLatin1().constData()),
             metaObject.methodOffset() + place);
    QCOMPARE(method.methodType() == QMetaMethod::Signal, isSignal);
    QCOMPARE(int(method.access()), isSignal ? int(compat::signalAccess) : int(QMetaMethod::Public));
    QTEST(joined(method.parameterNames()), "names");
    QCOMPARE(metaObject.propertyCount(), metaObject.propertyOffset());
    QCOMPARE(QString(metaObject.className()), QString("FileListTableView"));
    QCOMPARE(metaObject.methodCount() - metaObject.methodOffset(), 6);
}

void FileListTableViewTest::startsAsAReadOnlyListWithoutGrid()
{
    const FileListTableView view;

    QCOMPARE(int(view.editTriggers()), int(QAbstractItemView::NoEditTriggers));
    QCOMPARE(view.selectionMode(), QAbstractItemView::NoSelection);
    QCOMPARE(view.selectionBehavior(), QAbstractItemView::SelectRows);
    QVERIFY(view.verticalHeader()->isHidden());
    QCOMPARE(view.verticalHeader()->defaultSectionSize(), 18);
    QVERIFY(!view.wordWrap());
    QVERIFY(!view.showGrid());
    QVERIFY(view.isSortingEnabled());
    QVERIFY(!view.horizontalHeader()->highlightSections());
    QVERIFY(compat::sectionsClickable(view.horizontalHeader()));
}

void FileListTableViewTest::appendsARowWithAnUnlabelledButton()
{
    List list;

    QCOMPARE(list.model.rowCount(), 1);
    QCOMPARE(list.paging(), QString("0 "));
    QVERIFY(!list.button()->isFlat());
    QCOMPARE(list.button()->parentWidget(), list.view.viewport());
    QVERIFY(!list.model.item(0, 0));
}

void FileListTableViewTest::asksForNoPageByItself()
{
    List list;

    QCoreApplication::processEvents();

    QCOMPARE(list.model.requests, 0);
}

void FileListTableViewTest::asksForAPageOnceWhileOneIsOnItsWay()
{
    List list;
    QSignalSpy spy(&list.view, SIGNAL(requestItems()));

    list.click();
    list.click();

    QCOMPARE(spy.count(), 1);
    QCOMPARE(list.model.requests, 1);
    QCOMPARE(list.paging(), QString("0 loading..."));
}

void FileListTableViewTest::goesFromPageToPage()
{
    List list;
    list.click();
    list.model.deliver(3, false);
    QCOMPARE(list.paging(), QString("3 Next >>"));
    QCoreApplication::processEvents();

    list.click();
    QCOMPARE(list.paging(), QString("3 loading..."));
    list.model.deliver(2, false);

    QCOMPARE(list.paging(), QString("5 Next >>"));
    QCOMPARE(texts(list.model, 0), QString("file0,file1,file2,file3,file4,"));
    QCOMPARE(list.model.requests, 2);
}

void FileListTableViewTest::ignoresTheCountOfAPage_data()
{
    QTest::addColumn<qint64>("count");

    QTest::newRow("right") << qint64(2);
    QTest::newRow("none") << qint64(0);
    QTest::newRow("negative") << qint64(-1);
    QTest::newRow("largest") << Q_INT64_C(9223372036854775807);
}

void FileListTableViewTest::ignoresTheCountOfAPage()
{
    QFETCH(qint64, count);
    List list;
    list.view.StartLoadingData();
    list.model.insertPage(2);

    list.model.announce(count, false);

    QCOMPARE(list.paging(), QString("2 Next >>"));
}

void FileListTableViewTest::removesButtonAndRowAfterTheLastPage()
{
    List list;
    const QPointer<CellButton> button = list.button();
    list.click();

    list.model.deliver(2, true);

    QVERIFY(button.isNull()); // at once
    QCOMPARE(list.paging(), QString("none"));
    QCOMPARE(texts(list.model, 0), QString("file0,file1"));
}

void FileListTableViewTest::labelsTheButtonEvenWhenItGoes()
{
    List list;
    list.view.StartLoadingData();
    list.view.setModel(nullptr); // keeps the button

    list.view.FinishLoadingData(0, true);

    QCOMPARE(list.paging(), QString("0 Next >>"));
}

void FileListTableViewTest::translatesItsLabels()
{
    List list;
    GermanPaging german;
    QCoreApplication::installTranslator(&german);

    list.view.StartLoadingData();
    const QString loading = list.paging();
    list.model.deliver(1, false);
    const QString next = list.paging();

    QCoreApplication::removeTranslator(&german);
    QCOMPARE(loading, QString("0 wird geladen"));
    QCOMPARE(next, QString("1 Weiter >>"));
}

void FileListTableViewTest::startsAnewWhenTheSessionChanges()
{
    List list;
    list.fill(3);
    const QPointer<CellButton> old = list.button();

    list.model.changeSession();

    QVERIFY(old.isNull());
    QCOMPARE(list.model.rowCount(), 1);
    QCOMPARE(list.paging(), QString("0 loading..."));
    QCOMPARE(list.model.requests, 2);
}

void FileListTableViewTest::asksForNoSecondPageWhenTheSessionChangesWhileLoading()
{
    List list;
    list.view.StartLoadingData();
    list.model.insertPage(3);

    list.model.changeSession();

    QCOMPARE(list.model.requests, 1);
    QCOMPARE(list.paging(), QString("0 ")); // a new button without a text
    list.model.deliver(1, false);
    QCOMPARE(list.paging(), QString("1 Next >>"));
}

void FileListTableViewTest::startsAnewAfterTheLastPage()
{
    List list;
    list.view.StartLoadingData();
    list.model.deliver(3, true);

    list.model.changeSession();

    QCOMPARE(list.paging(), QString("0 loading..."));
    QCOMPARE(list.model.requests, 2);
}

void FileListTableViewTest::acceptsAnAnswerAtOnce()
{
    List list;
    list.model.answersAtOnce = 4;

    list.click(); // the button goes within its own click

    QCOMPARE(list.paging(), QString("none"));
    QCOMPARE(list.model.rowCount(), 4);
}

void FileListTableViewTest::placesItsColumns_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<QString>("widths");

    QTest::newRow("600") << 600 << "285,120,70,55,65";
    QTest::newRow("800") << 800 << "485,120,70,55,65";
    QTest::newRow("first column vanishes") << 315 << "0,120,70,55,65";
    QTest::newRow("narrower than the fixed columns") << 200 << "0,120,70,55,65";
    QTest::newRow("one pixel left") << 316 << "1,120,70,55,65";
}

void FileListTableViewTest::placesItsColumns()
{
    QFETCH(int, width);
    List list;
    list.view.resize(450, 400);

    list.view.resize(width, 400);
    QCoreApplication::processEvents();

    QTEST(widths(list.view), "widths");
}

void FileListTableViewTest::leavesRoomForTheScrollBar()
{
    List list;

    list.fill(22); // with the paging row 23 x 18 = 414 > 400
    list.fill(10);

    const int bar = list.view.verticalScrollBar()->width();
    QVERIFY(list.view.verticalScrollBar()->isVisible());
    QCOMPARE(list.view.horizontalHeader()->sectionSize(0), 600 - bar - 315);
}

void FileListTableViewTest::showsTheInitialWidthsUntilTheWidthChanges()
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

void FileListTableViewTest::adjustsTheColumnsAfterAPage()
{
    PagedModel model;
    FileListTableView view;
    view.resize(600, 400);
    view.setModel(&model);
    QCOMPARE(widths(view), QString("320,120,70,55,65"));

    view.FinishLoadingData(0, false);

    QCOMPARE(widths(view), QString("285,120,70,55,65"));
}

void FileListTableViewTest::keepsAllRowsEighteenPixelsHigh()
{
    List list;

    list.fill(3);

    for (int row = 0; row < 4; ++row) {
        QCOMPARE(list.view.verticalHeader()->sectionSize(row), 18);
    }
}

void FileListTableViewTest::sortsByClickAndKeepsThePagingRowLast_data()
{
    QTest::addColumn<int>("clicks");
    QTest::addColumn<QString>("order");

    QTest::newRow("first click ascends") << 1 << "file0,file1,file2,";
    QTest::newRow("second click descends") << 2 << "file2,file1,file0,";
    QTest::newRow("third click ascends") << 3 << "file0,file1,file2,";
}

void FileListTableViewTest::sortsByClickAndKeepsThePagingRowLast()
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

void FileListTableViewTest::sortsByCallAndKeepsThePagingRowLast()
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

void FileListTableViewTest::sortsWhileAPageLoads()
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

void FileListTableViewTest::keepsTheRowsWhenTheModelIsTakenAway()
{
    List list;
    list.fill(2);

    list.view.setModel(nullptr);
    list.click();

    QCOMPARE(list.view.model(), static_cast<QAbstractItemModel *>(&list.model));
    QCOMPARE(list.paging(), QString("2 loading..."));
    QCOMPARE(list.model.requests, 1); // nobody was asked
    list.model.announce(1, false);
    QCOMPARE(list.paging(), QString("2 loading...")); // nobody listens
}

void FileListTableViewTest::cutsOffAModelThatIsReplaced()
{
    List list;
    PagedModel second;

    list.view.setModel(&second);
    list.view.StartLoadingData();
    list.model.announce(1, true);
    list.model.changeSession();

    QCOMPARE(list.model.requests, 0);
    QCOMPARE(second.requests, 1);
    QCOMPARE(second.rowCount(), 1);
}

void FileListTableViewTest::givesTheSecondModelAButtonThatStays()
{
    List list;
    list.view.StartLoadingData(); // and never answers
    PagedModel second;

    list.view.setModel(&second);
    QCoreApplication::processEvents();
    compat::deliverDeferredDeletes();

    QVERIFY(list.view.indexWidget(second.index(0, 0)));
    QCOMPARE(buttonCount(list.view), 1);
    QTest::mouseClick(list.view.indexWidget(second.index(0, 0)), Qt::LeftButton);
    QCOMPARE(second.requests, 1);
}

void FileListTableViewTest::followsTheLastRowWhenAModelAppendsBehindIt()
{
    List list;
    list.fill(1);

    list.model.appendRow(new QStandardItem("misplaced"));
    QCoreApplication::processEvents();
    compat::deliverDeferredDeletes();

    QCOMPARE(list.paging(), QString("2 Next >>"));
    QCOMPARE(buttonCount(list.view), 1);
    list.click();
    QCOMPARE(list.model.requests, 2);
    list.model.announce(0, true);
    QCOMPARE(texts(list.model, 0), QString("file0,"));
}

void FileListTableViewTest::leavesTheCurrentCellAloneWhenTheButtonIsClicked()
{
    List list;
    list.fill(3);
    list.view.viewport()->setFocus();
    list.view.setCurrentIndex(list.model.index(0, 1));
    list.button()->setFocus();
    list.view.setCurrentIndex(list.model.index(0, 1));
    list.view.horizontalHeader()->setFocusPolicy(Qt::StrongFocus);
    list.view.horizontalHeader()->setFocus();

    list.click();

    QCOMPARE(list.view.currentIndex(), list.model.index(0, 1));
}

void FileListTableViewTest::deletesItsButtonWithItself()
{
    PagedModel model;
    FileListTableView *view = new FileListTableView;
    view->setModel(&model);
    const QPointer<QWidget> button = view->indexWidget(model.index(0, 0));
    QVERIFY(button);

    delete view;

    QVERIFY(button.isNull());
    QCOMPARE(model.rowCount(), 1);
}

void FileListTableViewTest::deletesAButtonThatNeverFoundACell()
{
    const int before = int(QApplication::topLevelWidgets().size());
    PagedModel model;
    model.setColumnCount(0);
    FileListTableView *view = new FileListTableView;
    view->setModel(&model);

    delete view;

    QCOMPARE(int(QApplication::topLevelWidgets().size()), before);
}

void FileListTableViewTest::hidesASortArrowThatAnApplicationShows()
{
    List list;
    list.fill(3);
    list.view.horizontalHeader()->setSortIndicatorShown(true);

    list.clickHeader(0);

    QVERIFY(!list.view.horizontalHeader()->isSortIndicatorShown());
}

void FileListTableViewTest::leavesHeaderAndFrameOutOfAccount()
{
    List list;

    list.fill(21); // with the paging row 22 x 18 = 396: more than the viewport, less than the view

    QTRY_VERIFY(list.view.verticalScrollBar()->isVisible());
    QCOMPARE(list.view.horizontalHeader()->sectionSize(0), 285);
}

void FileListTableViewTest::leavesRoomForTheScrollBarOnlyWhenTheRowsExceedTheView()
{
    List list;
    list.fill(21);
    list.view.resize(601, 22 * 18);
    QCoreApplication::processEvents();

    list.view.FinishLoadingData(0, false);

    QCOMPARE(list.view.horizontalHeader()->sectionSize(0), 286);
}

void FileListTableViewTest::adjustsTheColumnsWithoutThePagingRow()
{
    List list;
    list.fill(22); // 23 rows: more than the view
    QVERIFY(list.view.horizontalHeader()->sectionSize(0) < 285);

    list.model.announce(0, true); // 22 rows: less

    QCOMPARE(list.view.horizontalHeader()->sectionSize(0), 285);
}

void FileListTableViewTest::leavesAResizeToThePlainWidgetHandler()
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

void FileListTableViewTest::laysOutAPageOnce()
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

    QVERIFY(list.view.layouts <= 2);
}

void FileListTableViewTest::keepsTheNewModelsRowsFromTheOldModelsSession()
{
    List list;
    PagedModel second;
    list.view.setModel(&second);
    list.view.StartLoadingData();
    second.deliver(3, false);

    list.model.changeSession();

    QCOMPARE(second.rowCount(), 4);
    QCOMPARE(second.requests, 1);
}

void FileListTableViewTest::keepsARequestUnderWayWhenTheSameModelIsSetAgain()
{
    List list;
    list.view.StartLoadingData();

    list.view.setModel(&list.model);
    list.view.StartLoadingData();

    QCOMPARE(list.model.requests, 1);
}

TESSALINE_TEST_MAIN(FileListTableViewTest)
#include "tst_filelisttableview.moc"
