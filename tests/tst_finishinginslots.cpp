// SPDX-License-Identifier: LGPL-3.0-or-later
#include "TableInEdit.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QLineEdit>

/// What a slot may do to a table and its editors that answers the commit of an editor which
/// setColumns() finishes.
class FinishingInSlotsTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void closesAnEditorThatTheSlotOpensAnew_data();
    void closesAnEditorThatTheSlotOpensAnew();
    void writesNothingIntoAModelThatTheSlotSets();
    void skipsAnEditorWhoseRowTheSlotRemoves();
    void skipsAnEditorThatTheSlotGetsRidOf();
    void canBeDeletedByTheSlot();

public Q_SLOTS:
    void openAnew();
    void setOtherModel();
    void removeLastRow();
    void closeLastRow();
    void deleteView();

private:
    void answer(TableInEdit *table, const char *slot);
    bool isFirstTime();

    EditableTableView *view = nullptr;
    RecordingModel *model = nullptr;
    QPointer<QAbstractItemModel> otherModel;
    int column = 0;
    bool answered = false;
};

void FinishingInSlotsTest::answer(TableInEdit *table, const char *slot)
{
    view = &table->view;
    model = table->model;
    answered = false;
    connect(model, SIGNAL(dataChanged(QModelIndex,QModelIndex)), slot);
}

bool FinishingInSlotsTest::isFirstTime()
{
    const bool isFirst = !answered;
    answered = true;
    return isFirst;
}

void FinishingInSlotsTest::openAnew()
{
    if (isFirstTime()) {
        const QModelIndex cell = model->index(0, column);
        view->closePersistentEditor(model->index(0, 0));
        view->setCurrentIndex(cell);
        view->edit(cell);
    }
}

void FinishingInSlotsTest::setOtherModel()
{
    view->setModel(otherModel);
}

void FinishingInSlotsTest::removeLastRow()
{
    if (isFirstTime()) {
        model->removeRow(2);
    }
}

void FinishingInSlotsTest::closeLastRow()
{
    if (isFirstTime()) {
        view->closePersistentEditor(model->index(2, 0));
        compat::deliverDeferredDeletes();
    }
}

void FinishingInSlotsTest::deleteView()
{
    if (isFirstTime()) {
        delete view;
    }
}

void FinishingInSlotsTest::closesAnEditorThatTheSlotOpensAnew_data()
{
    QTest::addColumn<int>("newColumn");

    QTest::newRow("in the same cell") << 0;
    QTest::newRow("in a cell with a secret") << 2;
}

// Nobody could close it when its delegate is gone, and what is typed there would go to another.
void FinishingInSlotsTest::closesAnEditorThatTheSlotOpensAnew()
{
    QFETCH(int, newColumn);
    TableInEdit table;
    QVERIFY(table.editor);
    column = newColumn;
    answer(&table, SLOT(openAnew()));

    table.view.setColumns(QStringList());

    QVERIFY(answered);
    QVERIFY(!table.view.indexWidget(table.model->index(0, newColumn)));
    goThroughEvents();
    QVERIFY(!table.view.viewport()->findChild<QLineEdit *>());
    QWidget *opened = openEditor(&table.view, table.model->index(0, newColumn));
    QVERIFY(opened);
    QCOMPARE(opened->accessibleDescription(), QString()); // a plain column's own
}

void FinishingInSlotsTest::writesNothingIntoAModelThatTheSlotSets()
{
    RecordingModel other(3, 3);
    otherModel = &other;
    TableInEdit table;
    QVERIFY(table.editor);
    table.view.openPersistentEditor(table.model->index(2, 0));
    QTest::keyClicks(table.view.indexWidget(table.model->index(2, 0)), "last");
    answer(&table, SLOT(setOtherModel()));

    table.view.setColumns(QStringList("checkbox"));
    goThroughEvents();

    QCOMPARE(table.model->writes.first(), QString("edit typed"));
    QCOMPARE(other.writes, QStringList());
    QCOMPARE(table.view.getColumns(), QStringList("checkbox"));
    use(&table.view);
}

void FinishingInSlotsTest::skipsAnEditorWhoseRowTheSlotRemoves()
{
    TableInEdit table;
    QVERIFY(table.editor);
    table.view.openPersistentEditor(table.model->index(2, 0));
    QTest::keyClicks(table.view.indexWidget(table.model->index(2, 0)), "last");
    answer(&table, SLOT(removeLastRow()));

    table.view.setColumns(QStringList("checkbox"));
    goThroughEvents();

    QCOMPARE(table.model->writes, QStringList("edit typed"));
    QCOMPARE(texts(*table.model, 0), QString("typed,"));
}

void FinishingInSlotsTest::skipsAnEditorThatTheSlotGetsRidOf()
{
    TableInEdit table;
    QVERIFY(table.editor);
    table.view.openPersistentEditor(table.model->index(2, 0));
    QTest::keyClicks(table.view.indexWidget(table.model->index(2, 0)), "last");
    answer(&table, SLOT(closeLastRow()));

    table.view.setColumns(QStringList("checkbox"));
    goThroughEvents();

    QCOMPARE(table.model->writes, QStringList("edit typed"));
    QVERIFY(!table.editor);
}

void FinishingInSlotsTest::canBeDeletedByTheSlot()
{
    TalkativeModel talkative;
    const QPointer<EditableTableView> table = new EditableTableView;
    table->setColumns(declarations());
    table->setModel(&talkative);
    showWindow(table, 400, 200);
    QWidget *field = openEditor(table, talkative.index(0, 0));
    QVERIFY(field);
    QTest::keyClicks(field, "typed");
    view = table;
    answered = false;
    connect(&talkative, SIGNAL(dataChanged(QModelIndex,QModelIndex)), SLOT(deleteView()));

    table->setColumns(QStringList("checkbox"));

    QVERIFY(!table);
    QCOMPARE(talkative.writes, QStringList("edit typed"));
}

TESSALINE_TEST_MAIN(FinishingInSlotsTest)
#include "tst_finishinginslots.moc"
