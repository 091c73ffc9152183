// SPDX-License-Identifier: LGPL-3.0-or-later
#include "CellEditor.h"
#include "TableInEdit.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QAbstractItemDelegate>
#include <QEventLoop>
#include <QPointer>
#include <QStringListModel>
#include <QTimer>

namespace {

/// A shown table with one column of editors, one of which is open and changed.
struct TypedCell
{
    explicit TypedCell(const QString &declaration)
        : items(QStringList() << "typed")
    {
        view.setColumns(QStringList(declaration));
        view.bindModel(0, &items);
        view.setModel(&model);
        showWindow(&view, 400, 200);
        editor = openEditor(&view, model.index(0, 0));
        QTest::keyClicks(editor, "typed");
        QTest::keyClick(editor, Qt::Key_Space); // checks a box
    }

    QStringListModel items;
    TalkativeModel model;
    EditableTableView view;
    QPointer<QWidget> editor;
};

} // namespace

/// What happens when the application acts while an editor is being committed.
class CommitSafetyTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void commitsAnEditorOfAnotherTable();
    void commitsAnotherEditorOfATableThatIsCommitting();
    void keepsADelegateInUseThroughANestedEventLoop();
    void keepsAnEditorInUseThroughANestedEventLoop_data();
    void keepsAnEditorInUseThroughANestedEventLoop();
    void isCommittingWhileItWrites_data();
    void isCommittingWhileItWrites();
    void survivesColumnsDeclaredAnewDuringACommit_data();
    void survivesColumnsDeclaredAnewDuringACommit();
    void keepsADelegateThatClosesAnEditorWhichAnotherCommits();
    void keepsADelegateThatClosesAnEditorWhichAnotherMade();

public Q_SLOTS:
    void declareColumnsAnew();
    void declareColumnsAnewInALoop();
    void declareColumnsAnewAndLook();
    void goThroughALoop();
    void noteACommit();

private:
    QPointer<EditableTableView> actedOn;
    QPointer<QObject> delegateInUse;
    QPointer<QObject> editorInUse;
    bool wasAliveAfterTheLoop = false;
    bool wasAliveAfterwards = false;
    bool wasCommitting = false;
};

void CommitSafetyTest::declareColumnsAnew()
{
    actedOn->setColumns(declarations());
}

void CommitSafetyTest::declareColumnsAnewInALoop()
{
    if (!delegateInUse || wasAliveAfterTheLoop) {
        return;
    }
    QEventLoop loop;
    QTimer::singleShot(0, this, SLOT(declareColumnsAnew()));
    QTimer::singleShot(20, &loop, SLOT(quit()));
    loop.exec();
    compat::deliverDeferredDeletes();
    wasAliveAfterTheLoop = !delegateInUse.isNull();
}

void CommitSafetyTest::declareColumnsAnewAndLook()
{
    actedOn->setColumns(declarations());
    wasAliveAfterwards = !delegateInUse.isNull();
}

void CommitSafetyTest::goThroughALoop()
{
    if (editorInUse) {
        QCoreApplication::processEvents();
        compat::deliverDeferredDeletes();
        wasAliveAfterTheLoop = !editorInUse.isNull();
    }
}

void CommitSafetyTest::noteACommit()
{
    wasCommitting = CellEditor::Commit::isUnderWay(actedOn->itemDelegateForColumn(0));
}

void CommitSafetyTest::commitsAnEditorOfAnotherTable()
{
    RecordingModel otherModel(1, 3);
    EditableTableView other;
    other.setColumns(declarations());
    other.setModel(&otherModel);
    other.openPersistentEditor(otherModel.index(0, 0));
    QTest::keyClicks(other.indexWidget(otherModel.index(0, 0)), "other");
    TableInEdit table;
    QVERIFY(table.editor);
    actedOn = &other;
    connect(table.model, SIGNAL(dataChanged(QModelIndex,QModelIndex)), SLOT(declareColumnsAnew()));

    QTest::keyClick(table.editor, Qt::Key_Return);
    goThroughEvents();

    QCOMPARE(otherModel.index(0, 0).data().toString(), QString("other"));
    QCOMPARE(table.model->index(0, 0).data().toString(), QString("typed"));
}

void CommitSafetyTest::commitsAnotherEditorOfATableThatIsCommitting()
{
    TableInEdit table;
    QVERIFY(table.editor);
    table.view.openPersistentEditor(table.model->index(1, 0));
    QTest::keyClicks(table.view.indexWidget(table.model->index(1, 0)), "other");
    actedOn = &table.view;
    connect(table.model, SIGNAL(dataChanged(QModelIndex,QModelIndex)), SLOT(declareColumnsAnew()));

    QTest::keyClick(table.editor, Qt::Key_Return);
    goThroughEvents();

    QCOMPARE(texts(*table.model, 0), QString("typed,other,"));
}

void CommitSafetyTest::keepsADelegateInUseThroughANestedEventLoop()
{
    TableInEdit table;
    QVERIFY(table.editor);
    actedOn = &table.view;
    delegateInUse = table.view.itemDelegateForColumn(0);
    wasAliveAfterTheLoop = false;
    connect(table.model,
            SIGNAL(dataChanged(QModelIndex,QModelIndex)), SLOT(declareColumnsAnewInALoop()));

    QTest::keyClick(table.editor, Qt::Key_Return);
    goThroughEvents();

    QVERIFY(wasAliveAfterTheLoop);
    QVERIFY(delegateInUse.isNull()); // gone when nobody uses it any more
}

void CommitSafetyTest::keepsAnEditorInUseThroughANestedEventLoop_data()
{
    addRowsForTheEditors();
}

// The second key closes the editor in the loop that the first key's write brings about.
void CommitSafetyTest::keepsAnEditorInUseThroughANestedEventLoop()
{
    QFETCH(QString, declaration);
    tolerateWarnings("QAbstractItemView::closeEditor"); // Qt 6 sees that it was closed before
    TypedCell cell(declaration);
    QVERIFY(cell.editor);
    editorInUse = cell.editor;
    wasAliveAfterTheLoop = false;
    connect(&cell.model, SIGNAL(dataChanged(QModelIndex,QModelIndex)), SLOT(goThroughALoop()));

    QTest::keyClick(cell.editor, Qt::Key_Return);
    QTest::keyClick(cell.editor, Qt::Key_Return);
    goThroughEvents();

    QVERIFY(wasAliveAfterTheLoop);
    goThroughEvents();
    QVERIFY(editorInUse.isNull()); // gone when nobody uses it any more
}

void CommitSafetyTest::isCommittingWhileItWrites_data()
{
    addRowsForTheEditors();
}

void CommitSafetyTest::isCommittingWhileItWrites()
{
    QFETCH(QString, declaration);
    TypedCell cell(declaration);
    QVERIFY(cell.editor);
    actedOn = &cell.view;
    wasCommitting = false;
    connect(&cell.model, SIGNAL(itemChanged(QStandardItem*)), SLOT(noteACommit()));

    cell.view.itemDelegateForColumn(0)->setModelData(cell.editor, &cell.model,
                                                     cell.model.index(0, 0));

    QVERIFY(!cell.model.writes.isEmpty());
    QVERIFY(wasCommitting);
}

void CommitSafetyTest::survivesColumnsDeclaredAnewDuringACommit_data()
{
    QTest::addColumn<int>("column");

    QTest::newRow("edit") << 0;
    QTest::newRow("password") << 2;
}

void CommitSafetyTest::survivesColumnsDeclaredAnewDuringACommit()
{
    QFETCH(int, column);
    TableInEdit table(column);
    QVERIFY(table.editor);
    actedOn = &table.view;
    const QPointer<QObject> old = table.view.itemDelegateForColumn(column);
    connect(table.model, SIGNAL(dataChanged(QModelIndex,QModelIndex)), SLOT(declareColumnsAnew()));

    QTest::keyClick(table.editor, Qt::Key_Return);
    goThroughEvents();
    use(&table.view);

    QVERIFY(!table.editor);
    QVERIFY(old.isNull());
    const int role = column == 0 ? int(Qt::EditRole) : Qt::UserRole + 1;
    QCOMPARE(table.model->index(0, column).data(role).toString(), QString("typed"));
}

void CommitSafetyTest::keepsADelegateThatClosesAnEditorWhichAnotherCommits()
{
    tolerateWarnings("QAbstractItemView::"); // Qt 6 gives the editor up instead
    TalkativeModel model;
    EditableTableView view;
    view.setColumns(QStringList() << "editbox");
    view.setModel(&model);
    showWindow(&view, 400, 200);
    QWidget *field = openEditor(&view, model.index(0, 0));
    QVERIFY(field);
    QTest::keyClicks(field, "typed");
    delegateInUse = view.itemDelegateForColumn(0);
    actedOn = &view;
    wasAliveAfterwards = false;
    connect(&model,
            SIGNAL(dataChanged(QModelIndex,QModelIndex)), SLOT(declareColumnsAnewAndLook()));
    model.insertColumn(0); // the plain column's delegate commits the editor from now on

    view.setFocus();

    QVERIFY(wasAliveAfterwards || model.writes.isEmpty());
}

void CommitSafetyTest::keepsADelegateThatClosesAnEditorWhichAnotherMade()
{
    tolerateWarnings("QAbstractItemView::"); // Qt 6 gives the editor up instead
    TalkativeModel model;
    EditableTableView view;
    view.setModel(&model);
    showWindow(&view, 400, 200);
    view.openPersistentEditor(model.index(0, 0)); // by the plain column's delegate
    QWidget *field = view.indexWidget(model.index(0, 0));
    QVERIFY(field);
    view.setColumns(QStringList() << "editbox");
    field->setFocus();
    QVERIFY(field->hasFocus());
    view.setFocus(); // from now on the new delegate watches the field, too
    delegateInUse = view.itemDelegateForColumn(0);
    actedOn = &view;
    model.insertColumn(0); // and the plain column's delegate commits it again
    field->setFocus();
    QTest::keyClicks(field, "typed");
    wasAliveAfterwards = false;
    connect(&model,
            SIGNAL(dataChanged(QModelIndex,QModelIndex)), SLOT(declareColumnsAnewAndLook()));

    view.setFocus();

    QVERIFY(wasAliveAfterwards || model.writes.isEmpty());
}

TESSALINE_TEST_MAIN(CommitSafetyTest)
#include "tst_commitsafety.moc"
