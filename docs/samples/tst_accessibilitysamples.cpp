// SPDX-License-Identifier: LGPL-3.0-or-later
// What a screen reader reads in the cells of a table whose model says it.
#include "EditableTableView.h"
#include "SpokenJobs.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QAccessible>

namespace {

struct SpokenTable
{
    SpokenTable()
        : jobs(2, 3)
    {
        jobs.setData(jobs.index(0, SpokenJobs::Name), "Photos");
        jobs.setData(jobs.index(0, SpokenJobs::Verify), "1");
        jobs.setData(jobs.index(1, SpokenJobs::Name), "Letters");
        view.setColumns(QStringList() << "editbox"
                                      << "checkbox:Verify"
                                      << "button:Run");
        view.setModel(&jobs);
        showWindow(&view, 400, 200);
    }

    QString spoken(int row, int column)
    {
        QAccessibleInterface *table = QAccessible::queryAccessibleInterface(&view);
        return table->tableInterface()->cellAt(row, column)->text(QAccessible::Name);
    }

    SpokenJobs jobs;
    EditableTableView view;
};

} // namespace

class AccessibilitySamplesTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void readsACheckCell_data();
    void readsACheckCell();
    void readsACheckCellThatTheUserChecked();
    void readsAButtonCell();
    void readsOtherCellsAsTheyAre();
    void leavesWhatTheModelHolds();
};

void AccessibilitySamplesTest::readsACheckCell_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("spoken");

    QTest::newRow("checked") << 0 << "Verify, checked";
    QTest::newRow("not checked") << 1 << "Verify, not checked";
}

void AccessibilitySamplesTest::readsACheckCell()
{
    QFETCH(int, row);
    SpokenTable table;

    QTEST(table.spoken(row, SpokenJobs::Verify), "spoken");
}

void AccessibilitySamplesTest::readsACheckCellThatTheUserChecked()
{
    SpokenTable table;
    QWidget *editor = openEditor(&table.view, table.jobs.index(1, SpokenJobs::Verify));

    QTest::keyClick(editor, Qt::Key_Space);

    commitEditor(editor);
    QTRY_COMPARE(table.spoken(1, SpokenJobs::Verify), QString("Verify, checked"));
}

void AccessibilitySamplesTest::readsAButtonCell()
{
    SpokenTable table;

    QCOMPARE(table.spoken(1, SpokenJobs::Run), QString("Run Letters, button"));
}

void AccessibilitySamplesTest::readsOtherCellsAsTheyAre()
{
    SpokenTable table;

    QCOMPARE(table.spoken(0, SpokenJobs::Name), QString("Photos"));
}

void AccessibilitySamplesTest::leavesWhatTheModelHolds()
{
    const SpokenTable table;

    QCOMPARE(texts(table.jobs, SpokenJobs::Verify), QString("1,"));
    QCOMPARE(texts(table.jobs, SpokenJobs::Run), QString(","));
}

TESSALINE_TEST_MAIN(AccessibilitySamplesTest)
#include "tst_accessibilitysamples.moc"
