// SPDX-License-Identifier: LGPL-3.0-or-later
// What a button in a cell does to the current cell, the selection and the scroll bars of its table:
// nothing, however the user comes to it.
#include "ButtonTable.h"
#include "ShownList.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QItemSelectionModel>
#include <QLineEdit>
#include <QScrollBar>

namespace {

QString name(const QModelIndex &index)
{
    return index.isValid() ? QString("%1/%2").arg(index.row()).arg(index.column())
                           : QString("none");
}

/// The current cell, the selected ones and the places of the scroll bars.
QString stateOf(const QTableView &view)
{
    QStringList selected;
    const QModelIndexList cells = view.selectionModel()->selectedIndexes();
    for (const QModelIndex &cell : cells) {
        selected.append(name(cell));
    }
    return QString("%1 of %2 at %3, %4")
        .arg(name(view.currentIndex()), selected.join(","))
        .arg(view.horizontalScrollBar()->value())
        .arg(view.verticalScrollBar()->value());
}

/// A table of 30 rows that is scrolled, so that a button may be seen in part.
struct LongTable : ButtonTable
{
    LongTable()
    {
        model.setRowCount(30);
        view.setModel(nullptr);
        view.setModel(&model);
        view.setTabKeyNavigation(false);
        showWindow(&view, 400, 205);
        view.setFocus();
    }
};

/// The button that is cut by the lower edge of a view.
int lowestRow(const QTableView &view)
{
    return view.rowAt(view.viewport()->height() - 1);
}

void click(QWidget *button)
{
    QTest::mouseClick(button, Qt::LeftButton, Qt::KeyboardModifiers(), QPoint(20, 3));
}

void press(Qt::Key key)
{
    QTest::keyClick(QApplication::focusWidget(), key);
}

/// Counts how often the focus leaves it.
template <class View> class LeftView : public View
{
public:
    int focusOuts = 0;

protected:
    void focusOutEvent(QFocusEvent *event) override
    {
        ++focusOuts;
        View::focusOutEvent(event);
    }
};

} // namespace

class ButtonFocusTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void leavesAllAsItIsWhenClickedFromTheTable_data();
    void leavesAllAsItIsWhenClickedFromTheTable();
    void leavesAllAsItIsWhenClickedFromAnotherWidget();
    void leavesAllAsItIsWhenClickedFromAnotherButton();
    void leavesAllAsItIsWhenReachedByTab();
    void leavesAllAsItIsWhenReachedBackwards();
    void leavesAllAsItIsWhenPressedBySpace();
    void leavesAllAsItIsWhenClickedFromAnEditor();
    void leavesAllAsItIsWhenAPersistentEditorIsClosed();
    void announcesNoCurrentCellWhenClickedFromAnEditor();
    void announcesThatTheTableLosesTheFocus();
    void keepsTheCellThatTheEndOfAnEditMovesTo();
    void announcesThatTheFileListLosesTheFocus();
    void leavesTheCellOfAnotherWidgetToTheTable();
    void leavesTheCurrentCellOfTheFileListAsItIs_data();
    void leavesTheCurrentCellOfTheFileListAsItIs();
    void leavesTheCurrentCellOfTheFileListAsItIsWhenClickedFromAnEditor();
};

void ButtonFocusTest::leavesAllAsItIsWhenClickedFromTheTable_data()
{
    QTest::addColumn<int>("currentRow");
    QTest::addColumn<int>("behavior");

    QTest::newRow("no current cell") << -1 << static_cast<int>(QTableView::SelectItems);
    QTest::newRow("a current cell") << 1 << static_cast<int>(QTableView::SelectItems);
    QTest::newRow("a selected row") << 1 << static_cast<int>(QTableView::SelectRows);
    QTest::newRow("a current cell out of sight") << 25 << static_cast<int>(QTableView::SelectRows);
}

void ButtonFocusTest::leavesAllAsItIsWhenClickedFromTheTable()
{
    QFETCH(int, currentRow);
    QFETCH(int, behavior);
    LongTable table;
    table.view.setSelectionBehavior(static_cast<QTableView::SelectionBehavior>(behavior));
    table.view.setCurrentIndex(table.model.index(currentRow, 0));
    table.view.verticalScrollBar()->setValue(2);
    const QString before = stateOf(table.view);
    QSignalSpy spy(&table.view, SIGNAL(buttonClicked(QWidget*,int,int,QStringList)));

    click(table.button(lowestRow(table.view)));

    QCOMPARE(spy.count(), 1);
    QCOMPARE(stateOf(table.view), before);
}

void ButtonFocusTest::leavesAllAsItIsWhenClickedFromAnotherWidget()
{
    LongTable table;
    QLineEdit field;
    showWindow(&field, 100, 40);
    field.setFocus();
    const QString before = stateOf(table.view);

    click(table.button(lowestRow(table.view)));

    QCOMPARE(stateOf(table.view), before);
}

void ButtonFocusTest::leavesAllAsItIsWhenClickedFromAnotherButton()
{
    LongTable table;
    table.view.setCurrentIndex(table.model.index(1, 0));
    const QString before = stateOf(table.view);
    click(table.button(2));

    click(table.button(lowestRow(table.view)));

    QCOMPARE(stateOf(table.view), before);
}

void ButtonFocusTest::leavesAllAsItIsWhenReachedByTab()
{
    LongTable table;
    table.view.setCurrentIndex(table.model.index(1, 0));
    const QString before = stateOf(table.view);

    press(Qt::Key_Tab);

    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget *>(table.button(0)));
    QCOMPARE(stateOf(table.view), before);
}

void ButtonFocusTest::leavesAllAsItIsWhenReachedBackwards()
{
    LongTable table;
    table.view.setCurrentIndex(table.model.index(1, 0));
    const QString before = stateOf(table.view);

    press(Qt::Key_Backtab);

    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget *>(table.button(29)));
    QCOMPARE(stateOf(table.view), before);
}

void ButtonFocusTest::leavesAllAsItIsWhenPressedBySpace()
{
    LongTable table;
    table.view.setCurrentIndex(table.model.index(1, 0));
    const QString before = stateOf(table.view);
    QSignalSpy spy(&table.view, SIGNAL(buttonClicked(QWidget*,int,int,QStringList)));
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);

    press(Qt::Key_Space);

    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(1).toInt(), 1);
    QCOMPARE(stateOf(table.view), before);
}

void ButtonFocusTest::leavesAllAsItIsWhenClickedFromAnEditor()
{
    LongTable table;
    QWidget *editor = openEditor(&table.view, table.model.index(1, 0));
    QTest::keyClicks(editor, "typed");
    const QString before = stateOf(table.view);

    click(table.button(lowestRow(table.view)));

    QCOMPARE(table.model.index(1, 0).data().toString(), QString("typed"));
    QVERIFY(!table.view.indexWidget(table.model.index(1, 0)));
    QCOMPARE(stateOf(table.view), before);
}

void ButtonFocusTest::leavesAllAsItIsWhenAPersistentEditorIsClosed()
{
    LongTable table;
    table.view.setCurrentIndex(table.model.index(1, 0));
    table.view.openPersistentEditor(table.model.index(3, 0));
    click(table.button(4));
    const QString before = stateOf(table.view);

    table.view.setColumns(QStringList() << "editbox"
                                        << "button:Delete");

    QVERIFY(!table.view.indexWidget(table.model.index(3, 0)));
    QCOMPARE(stateOf(table.view), before);
}

void ButtonFocusTest::announcesNoCurrentCellWhenClickedFromAnEditor()
{
    LongTable table;
    openEditor(&table.view, table.model.index(1, 0));
    QItemSelectionModel *selection = table.view.selectionModel();
    QSignalSpy spy(selection, SIGNAL(currentChanged(QModelIndex,QModelIndex)));

    click(table.button(3));

    QCOMPARE(spy.count(), 0);
    table.view.setCurrentIndex(table.model.index(5, 0));
    QCOMPARE(spy.count(), 1);
}

void ButtonFocusTest::announcesThatTheTableLosesTheFocus()
{
    ButtonTable table;
    LeftView<EditableTableView> view;
    view.setColumns(table.view.getColumns());
    view.setModel(&table.model);
    showWindow(&view, 400, 200);
    view.setFocus();

    click(view.button(1, 1));

    QCOMPARE(view.focusOuts, 1);
}

void ButtonFocusTest::leavesTheCellOfAnotherWidgetToTheTable()
{
    LongTable table;
    QLineEdit *field = new QLineEdit;
    table.view.setIndexWidget(table.model.index(3, 0), field);
    goThroughEvents();

    click(field);

    QCOMPARE(name(table.view.currentIndex()), QString("3/0"));
}

void ButtonFocusTest::leavesTheCurrentCellOfTheFileListAsItIs_data()
{
    QTest::addColumn<bool>("byMouse");

    QTest::newRow("by mouse") << true;
    QTest::newRow("by Tab and Space") << false;
}

void ButtonFocusTest::leavesTheCurrentCellOfTheFileListAsItIs()
{
    QFETCH(bool, byMouse);
    List list;
    list.fill(3);
    list.view.setTabKeyNavigation(false);
    list.view.setSelectionMode(QTableView::SingleSelection);
    list.view.setFocus();
    list.view.setCurrentIndex(list.model.index(1, 0));
    const QString before = stateOf(list.view);
    QSignalSpy spy(&list.view, SIGNAL(requestItems()));

    if (byMouse) {
        click(list.button());
    } else {
        press(Qt::Key_Tab);
        press(Qt::Key_Space);
    }

    QCOMPARE(spy.count(), 1);
    QCOMPARE(stateOf(list.view), before);
}

void ButtonFocusTest::leavesTheCurrentCellOfTheFileListAsItIsWhenClickedFromAnEditor()
{
    List list;
    list.fill(3);
    list.view.setEditTriggers(QTableView::EditKeyPressed);
    openEditor(&list.view, list.model.index(1, 1));
    const QString before = stateOf(list.view);

    click(list.button());

    QCOMPARE(stateOf(list.view), before);
}

void ButtonFocusTest::keepsTheCellThatTheEndOfAnEditMovesTo()
{
    LongTable table;
    table.view.setCurrentIndex(table.model.index(1, 0));
    table.view.openPersistentEditor(table.model.index(3, 0));
    QWidget *editor = table.view.indexWidget(table.model.index(3, 0));
    click(table.button(4));

    QMetaObject::invokeMethod(
        &table.view, "closeEditor", Q_ARG(QWidget *, editor),
        Q_ARG(QAbstractItemDelegate::EndEditHint, QAbstractItemDelegate::EditNextItem));

    QVERIFY(table.view.currentIndex() != table.model.index(1, 0));
    QVERIFY(table.view.indexWidget(table.view.currentIndex())); // it is edited
}

void ButtonFocusTest::announcesThatTheFileListLosesTheFocus()
{
    PagedModel model;
    LeftView<FileListTableView> view;
    view.setModel(&model);
    model.insertPage(1);
    showWindow(&view, 600, 200);
    view.setFocus();

    click(view.indexWidget(model.index(1, 0)));

    QCOMPARE(view.focusOuts, 1);
}

TESSALINE_TEST_MAIN(ButtonFocusTest)
#include "tst_buttonfocus.moc"
