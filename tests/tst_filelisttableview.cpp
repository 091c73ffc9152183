// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ShownList.h"
#include "TestCase.h"

#include <QPointer>

namespace {

QString joined(const QList<QByteArray> &names)
{
    QStringList list;
    for (const QByteArray &name : names) {
        list.append(QString(name));
    }
    return list.join(",");
}

} // namespace

class FileListTableViewTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void listsItsMethodsInOrder_data();
    void listsItsMethodsInOrder();
    void startsAsAReadOnlyListWithoutGrid();
    void appendsARowWithAnUnlabelledButton();
    void followsTheLastRowWhenAModelAppendsBehindIt();
    void leavesAnotherWidgetInTheLastRow();
    void leavesTheCurrentCellAloneWhenTheButtonIsClicked();
    void deletesItsButtonWithItself();
    void deletesAButtonThatNeverFoundACell();

public Q_SLOTS:
    void coverTheLastRow();

private:
    PagedModel *asked;
    FileListTableView *covered;
    QPointer<QWidget> cover;
};

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

TESSALINE_TEST_MAIN(FileListTableViewTest)
#include "tst_filelisttableview.moc"
