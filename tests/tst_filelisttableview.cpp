// SPDX-License-Identifier: LGPL-3.0-or-later
#include "CellButton.h"
#include "ShownList.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QPointer>
#include <QScrollBar>

namespace {

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
    void goesOnAfterAnAnswerAtOnce();
    void keepsTheRowsWhenTheModelIsTakenAway();
    void cutsOffAModelThatIsReplaced();
    void givesTheSecondModelAButtonThatStays();
    void followsTheLastRowWhenAModelAppendsBehindIt();
    void leavesAnotherWidgetInTheLastRow();
    void leavesTheCurrentCellAloneWhenTheButtonIsClicked();
    void deletesItsButtonWithItself();
    void deletesAButtonThatNeverFoundACell();
    void keepsTheNewModelsRowsFromTheOldModelsSession();
    void keepsARequestUnderWayWhenTheSameModelIsSetAgain();
    void keepsItsOneButtonWhenTheSameModelIsSetAgain();

public Q_SLOTS:
    void deliverAPage();
    void coverTheLastRow();

private:
    PagedModel *asked;
    FileListTableView *covered;
    QPointer<QWidget> cover;
};

void FileListTableViewTest::deliverAPage()
{
    asked->deliver(2, false);
}

void FileListTableViewTest::coverTheLastRow()
{
    cover = new QWidget;
    covered->setIndexWidget(asked->index(asked->rowCount() - 1, 0), cover);
}

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

void FileListTableViewTest::goesOnAfterAnAnswerAtOnce()
{
    List list;
    asked = &list.model;
    connect(&list.view, SIGNAL(requestItems()), SLOT(deliverAPage()));

    list.click();
    QCOMPARE(list.paging(), QString("2 Next >>"));
    QCoreApplication::processEvents();
    list.click();

    QCOMPARE(list.paging(), QString("4 Next >>"));
}

void FileListTableViewTest::keepsTheRowsWhenTheModelIsTakenAway()
{
    List list;
    list.fill(2);
    QSignalSpy spy(&list.view, SIGNAL(requestItems()));

    list.view.setModel(nullptr);
    list.click();
    list.click();

    QCOMPARE(list.view.model(), static_cast<QAbstractItemModel *>(&list.model));
    QCOMPARE(list.paging(), QString("2 loading..."));
    QCOMPARE(spy.count(), 1);
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

void FileListTableViewTest::leavesAnotherWidgetInTheLastRow()
{
    PagedModel model;
    FileListTableView view;
    asked = &model;
    covered = &view;
    // Connected first, so the row has its widget when the view hears of it.
    connect(&model, SIGNAL(rowsInserted(QModelIndex,int,int)), SLOT(coverTheLastRow()));

    view.setModel(&model);
    goThroughEvents();

    QVERIFY(cover);
    QCOMPARE(view.indexWidget(model.index(0, 0)), cover.data());
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

void FileListTableViewTest::keepsItsOneButtonWhenTheSameModelIsSetAgain()
{
    List list;
    list.fill(2);

    list.view.setModel(&list.model);

    QCOMPARE(buttonCount(list.view), 1);
    QCOMPARE(list.paging(), QString("3 Next >>"));
}

TESSALINE_TEST_MAIN(FileListTableViewTest)
#include "tst_filelisttableview.moc"
