// SPDX-License-Identifier: LGPL-3.0-or-later
// What the manual says of rows that come in blocks.
#include "EditableTableView.h"
#include "Samples.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QLineEdit>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>

namespace {

/// A table of the jobs "a0", "b1", "a2", "b3" ..., all of which a filter lets through at first.
struct FilteredTable
{
    explicit FilteredTable(int rows = 6)
        : jobs(rows, 2)
    {
        for (int row = 0; row < rows; ++row) {
            jobs.setData(jobs.index(row, 0), QString("%1%2").arg(row % 2 ? "b" : "a").arg(row));
        }
        shown.setSourceModel(&jobs);
        view.setColumns(QStringList() << "editbox"
                                      << "button:Run");
        view.setModel(&shown);
        showWindow(&view, 400, 300);
    }

    QString marks() const
    {
        return buttonMarks(view, 1);
    }

    QStandardItemModel jobs;
    QSortFilterProxyModel shown;
    EditableTableView view;
};

} // namespace

class BlockSamplesTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void givesOnlyTheFirstRowOfABlockItsButtonByItself();
    void givesEachRowItsButtonsAfterAFilterChanged();
    void keepsTheButtonsThatAreThere();
    void keepsAnOpenEditorAndTheCurrentCell();
    void givesEachRowItsButtonsWheneverABlockComes();
    void givesEachRowItsButtonsAfterAReset();
    void leavesAnotherModelAlone();
    void reportsTheClicksOfSuchButtons();
};

void BlockSamplesTest::givesOnlyTheFirstRowOfABlockItsButtonByItself()
{
    FilteredTable table;
    table.shown.setFilterFixedString("none");

    table.shown.setFilterFixedString("");

    QCOMPARE(table.marks(), QString("x....."));
}

void BlockSamplesTest::givesEachRowItsButtonsAfterAFilterChanged()
{
    FilteredTable table;
    samples::showJobsWith("none", &table.shown, &table.view);

    samples::showJobsWith("", &table.shown, &table.view);

    QCOMPARE(table.marks(), QString("xxxxxx"));
}

void BlockSamplesTest::keepsTheButtonsThatAreThere()
{
    FilteredTable table;
    samples::showJobsWith("a", &table.shown, &table.view);
    const QWidget *button = table.view.button(1, 1);

    samples::showJobsWith("", &table.shown, &table.view);

    QCOMPARE(table.marks(), QString("xxxxxx"));
    QCOMPARE(static_cast<const QWidget *>(table.view.button(2, 1)), button);
    goThroughEvents();
    QCOMPARE(buttonCount(table.view), 6);
}

void BlockSamplesTest::keepsAnOpenEditorAndTheCurrentCell()
{
    FilteredTable table;
    samples::showJobsWith("a", &table.shown, &table.view);
    QLineEdit *editor = qobject_cast<QLineEdit *>(openEditor(&table.view, table.shown.index(1, 0)));
    QTest::keyClicks(editor, "typed");

    samples::showJobsWith("", &table.shown, &table.view);

    QCOMPARE(table.view.currentIndex(), table.shown.index(2, 0));
    QCOMPARE(table.view.indexWidget(table.shown.index(2, 0)), static_cast<QWidget *>(editor));
    QCOMPARE(editor->text(), QString("typed"));
}

void BlockSamplesTest::givesEachRowItsButtonsWheneverABlockComes()
{
    FilteredTable table;
    samples::keepAllButtons(&table.view);
    const QString before = table.marks();

    table.jobs.insertRows(2, 3);

    QCOMPARE(before, QString("xxxxxx"));
    QTRY_COMPARE(table.marks(), QString("xxxxxxxxx"));
}

void BlockSamplesTest::givesEachRowItsButtonsAfterAReset()
{
    FilteredTable table;
    samples::keepAllButtons(&table.view);
    QStandardItemModel others(3, 2);

    table.shown.setSourceModel(&others);

    QTRY_COMPARE(table.marks(), QString("xxx"));
}

void BlockSamplesTest::leavesAnotherModelAlone()
{
    FilteredTable table;
    samples::keepAllButtons(&table.view);
    table.jobs.insertRows(2, 3);

    table.view.setModel(nullptr);

    goThroughEvents();
    QVERIFY(!table.view.model());
}

void BlockSamplesTest::reportsTheClicksOfSuchButtons()
{
    FilteredTable table;
    samples::showJobsWith("none", &table.shown, &table.view);
    samples::showJobsWith("", &table.shown, &table.view);
    goThroughEvents();
    QSignalSpy spy(&table.view, SIGNAL(buttonClicked(QWidget*,int,int,QStringList)));

    QTest::mouseClick(table.view.button(4, 1), Qt::LeftButton);

    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(3).toStringList(), QStringList() << "a4");
}

TESSALINE_TEST_MAIN(BlockSamplesTest)
#include "tst_blocksamples.moc"
