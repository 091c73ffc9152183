// SPDX-License-Identifier: LGPL-3.0-or-later
// The model that a table shows is set once more, for the sake of rows that came in a block.
#include "ButtonTable.h"
#include "QtCompat.h"
#include "TestCase.h"
#include "ViewHelpers.h"

namespace {

/// Counts how often it looks where a cell is.
class CountingTable : public EditableTableView
{
public:
    QRect visualRect(const QModelIndex &index) const override
    {
        ++looks;
        return EditableTableView::visualRect(index);
    }

    mutable int looks = 0;
};

} // namespace

class ModelSetAgainTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void givesRowsOfABlockTheirButtons();
    void givesAHiddenTableItsButtons();
    void givesTheTopLevelItsButtonsThoughAnotherIsShown();
    void placesTheNewButtons();
    void looksAtEachCellAFewTimesOnly();
};

void ModelSetAgainTest::givesRowsOfABlockTheirButtons()
{
    ButtonTable table;
    showWindow(&table.view, 400, 300);
    table.model.insertRows(1, 3);
    QCOMPARE(buttonMarks(table.view, 1), QString("xx..xx"));

    table.view.setModel(&table.model);

    QCOMPARE(buttonMarks(table.view, 1), QString("xxxxxx"));
}

void ModelSetAgainTest::givesAHiddenTableItsButtons()
{
    ButtonTable table;
    table.model.insertRows(1, 3);

    table.view.setModel(&table.model);

    QCOMPARE(buttonMarks(table.view, 1), QString("xxxxxx"));
}

void ModelSetAgainTest::placesTheNewButtons()
{
    ButtonTable table;
    showWindow(&table.view, 400, 300);
    table.model.insertRows(1, 3);

    table.view.setModel(&table.model);

    QTRY_COMPARE(table.button(2)->geometry().center(),
                 table.view.visualRect(table.model.index(2, 1)).center());
}

void ModelSetAgainTest::looksAtEachCellAFewTimesOnly()
{
    QStandardItemModel model(100, 2);
    CountingTable view;
    view.setColumns(QStringList() << "editbox"
                                  << "button");
    view.setModel(&model);
    showWindow(&view, 400, 300);
    goThroughEvents();
    view.looks = 0;

    view.setModel(&model);

    goThroughEvents();
    if (compat::collapsingHoldsLayout) {
        QVERIFY(view.looks <= 500);
    }
}

void ModelSetAgainTest::givesTheTopLevelItsButtonsThoughAnotherIsShown()
{
    ButtonTable table;
    table.model.insertRows(1, 3);
    QStandardItem *parent = table.model.item(0);
    parent->setColumnCount(2);
    parent->setRowCount(2);
    table.view.setRootIndex(parent->index());

    table.view.setModel(&table.model);

    QCOMPARE(buttonMarks(table.view, 1), QString("xxxxxx"));
}

TESSALINE_TEST_MAIN(ModelSetAgainTest)
#include "tst_modelsetagain.moc"
