// SPDX-License-Identifier: LGPL-3.0-or-later
#include "EditableTableView.h"
#include "FileListTableView.h"
#include "HeapCounter.h"
#include "PagedModel.h"
#include "SpinBox.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QAbstractItemDelegate>
#include <QFocusEvent>
#include <QPointer>
#include <QPushButton>
#include <QStandardItemModel>

namespace {

const int cycles = 1000;
const int buttonColumn = 5;
const int typedColumns = 5; // those before the buttons
const QString none = QString("0 blocks, 0 pointers a cycle");

typedef QList<QPointer<QAbstractItemDelegate>> Delegates;

// Of all cycles so far: tables that are gone, and their delegates that are still there.
int tables = 0;
int livingDelegates = 0;

QStringList declarations()
{
    return QStringList() << "combobox"
                         << "editcombobox"
                         << "editbox"
                         << "passwordbox"
                         << "checkbox:Verify"
                         << "button:Run"
                         << "plain";
}

// Those of the last declarations; a plain or a button column has none of its own.
Delegates delegatesOf(const EditableTableView &view)
{
    Delegates delegates;
    for (int column = 0; column < declarations().size(); ++column) {
        if (QAbstractItemDelegate *delegate = view.itemDelegateForColumn(column)) {
            delegates.append(delegate);
        }
    }
    return delegates;
}

void editEachColumn(EditableTableView *view, const QAbstractItemModel &model)
{
    for (int column = 0; column < typedColumns; ++column) {
        QWidget *editor = openEditor(view, model.index(0, column));
        QVERIFY(editor);
        QTest::keyClicks(editor, "ab"); // no blank, which opens a combo box
        commitEditor(editor);
    }
}

void useTable(EditableTableView *view, QStandardItemModel *model)
{
    editEachColumn(view, *model);
    model->appendRow(new QStandardItem("new"));
    QTest::mouseClick(view->button(1, buttonColumn), Qt::LeftButton);
    model->removeRow(0);
    openEditor(view, model->index(0, 2)); // and leaves it open
    use(view);
}

Delegates makeAndDestroyTable()
{
    QStandardItemModel model(3, 7);
    QStandardItemModel choices(4, 1);
    EditableTableView view;
    view.setColumns(declarations()); // whose delegates go with the next declarations
    view.setColumns(declarations());
    view.bindModel(0, &choices);
    view.setModel(&model);
    view.show();
    goThroughEvents();
    useTable(&view, &model);
    return delegatesOf(view);
}

void tableCycle()
{
    const Delegates delegates = makeAndDestroyTable();
    goThroughEvents();
    ++tables;
    for (const QPointer<QAbstractItemDelegate> &delegate : delegates) {
        livingDelegates += delegate ? 1 : 0;
        delete delegate; // which nobody else would do
    }
}

void useList(FileListTableView *view, PagedModel *model)
{
    view->StartLoadingData();
    model->deliver(5, false);
    goThroughEvents();
    QTest::mouseClick(view->indexWidget(model->index(5, 0)), Qt::LeftButton);
    model->deliver(5, true);
    use(view); // which sorts
    model->changeSession();
    model->deliver(3, false);
    goThroughEvents();
}

void listCycle()
{
    {
        PagedModel first;
        PagedModel second;
        FileListTableView view;
        view.setModel(&first);
        view.resize(600, 200);
        view.show();
        useList(&view, &first);
        view.setModel(&second);
        useList(&view, &second);
        second.clear();
        goThroughEvents();
    }
    goThroughEvents();
}

void sendFocus(QWidget *widget, QEvent::Type type)
{
    QFocusEvent event(type, Qt::TabFocusReason);
    QApplication::sendEvent(widget, &event);
}

void spinBoxCycle()
{
    {
        SpinBox box;
        box.show();
        sendFocus(&box, QEvent::FocusIn);
        QTest::keyClicks(&box, "42");
        QTest::mouseClick(&box, Qt::LeftButton);
        compat::grab(&box);
        sendFocus(&box, QEvent::FocusOut); // else Qt 5.15.2 leaves a connection behind
    }
    goThroughEvents();
}

void keepAString()
{
    static QList<QString> kept;
    kept.append(QString(100, QLatin1Char('x')));
}

void lengthenAString()
{
    static QString kept;
    kept.append(QString(8, QLatin1Char('x')));
}

} // namespace

/// A thousand widgets that were made, used and destroyed leave nothing on the heap, apart from the
/// tables' delegates, which live on by design.
class HeapGrowthTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void growsByTheTablesDelegatesOnly();
    void doesNotGrowByLists();
    void doesNotGrowBySpinBoxes();
    void noticesALeakedBlock();
    void noticesABlockThatGrows();
};

void HeapGrowthTest::growsByTheTablesDelegatesOnly()
{
    QCOMPARE(HeapCounter::growth(cycles, tableCycle), none);
    QVERIFY(tables > cycles);
    QCOMPARE(livingDelegates, tables * typedColumns);
}

void HeapGrowthTest::doesNotGrowByLists()
{
    QCOMPARE(HeapCounter::growth(cycles, listCycle), none);
}

void HeapGrowthTest::doesNotGrowBySpinBoxes()
{
    QCOMPARE(HeapCounter::growth(cycles, spinBoxCycle), none);
}

void HeapGrowthTest::noticesALeakedBlock()
{
    QVERIFY(HeapCounter::growth(cycles, keepAString).startsWith("100 blocks"));
}

void HeapGrowthTest::noticesABlockThatGrows()
{
    const QString growth = HeapCounter::growth(cycles, lengthenAString);

    QVERIFY2(growth.startsWith("0 blocks") && growth != none, qPrintable(growth));
}

TESSALINE_TEST_MAIN(HeapGrowthTest)
#include "tst_heapgrowth.moc"
