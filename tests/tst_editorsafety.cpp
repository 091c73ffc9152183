// SPDX-License-Identifier: LGPL-3.0-or-later
#include "GridModel.h"
#include "TableInEdit.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QAbstractItemDelegate>
#include <QLineEdit>
#include <QPointer>
#include <QStringListModel>

namespace {

QStringList rowTexts(const QAbstractItemModel &model)
{
    QStringList texts;
    for (int column = 0; column < model.columnCount(); ++column) {
        texts.append(model.index(0, column).data(Qt::EditRole).toString());
    }
    return texts;
}

} // namespace

/// What happens to an open editor, and to what was typed, when things change under it.
class EditorSafetyTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void survivesAModelThatDiesDuringAnEdit();
    void commitsAnOpenEditorWhenColumnsAreDeclaredAnew();
    void keepsAnUnfinishedSecretOutOfTheTextWhenColumnsAreDeclaredAnew();
    void keepsASecretTypedAwayFromTheCurrentCellOutOfTheText();
    void keepsASecretOutOfTheTextWhenColumnsMoveBelowIt_data();
    void keepsASecretOutOfTheTextWhenColumnsMoveBelowIt();
    void keepsASecretOutOfTheTextWhenItsColumnIsHiddenAndMoves_data();
    void keepsASecretOutOfTheTextWhenItsColumnIsHiddenAndMoves();
    void writesNothingWhenItGivesASecretUp();
    void takesNoKeysIntoAFieldThatItGaveUp();
    void commitsAndClosesAPersistentEditor();
    void leavesAnApplicationsOwnWidgetAlone();
    void leavesACellAloneWhoseEditorWasNotTouched();
    void leavesACellAloneWhoseEditorWasEscaped();
    void survivesModelsReplacedDuringAnEdit_data();
    void survivesModelsReplacedDuringAnEdit();
    void writesNothingIntoAModelThatComesDuringAnEdit_data();
    void writesNothingIntoAModelThatComesDuringAnEdit();
    void survivesARowRemovedDuringAnEdit();
    void commitsAnEditorInTheRowItMovedTo();
    void closesAnEditorThatHasNoDelegateAnyMore();
};

void EditorSafetyTest::survivesAModelThatDiesDuringAnEdit()
{
    tolerateWarnings("QAbstractItemView::");
    tolerateWarnings("QItemSelectionModel: Selecting when no model");
    TableInEdit table;
    QVERIFY(table.editor);

    compat::deleteModel(table.model, &table.view);
    if (table.editor) {
        QTest::keyClick(table.editor, Qt::Key_Return);
    }
    table.view.resize(450, 200);
    goThroughEvents();
    compat::grab(&table.view);

    QVERIFY(!table.view.model());
    QVERIFY(!table.editor);
}

void EditorSafetyTest::commitsAnOpenEditorWhenColumnsAreDeclaredAnew()
{
    TableInEdit table;
    QVERIFY(table.editor);
    const QPointer<QObject> old = table.view.itemDelegateForColumn(0);

    table.view.setColumns(QStringList() << "checkbox");

    QVERIFY(old.isNull());
    goThroughEvents();
    QVERIFY(!table.editor);
    QCOMPARE(table.model->writes, QStringList() << "edit typed");
    use(&table.view);
}

void EditorSafetyTest::keepsAnUnfinishedSecretOutOfTheTextWhenColumnsAreDeclaredAnew()
{
    TableInEdit table(2);
    QVERIFY(table.editor);

    table.view.setColumns(QStringList());
    table.view.setCurrentIndex(table.model->index(1, 0));
    goThroughEvents();

    QCOMPARE(table.model->index(0, 2).data(Qt::UserRole + 1).toString(), QString("typed"));
    QCOMPARE(table.model->writes.filter("typed"), QStringList() << "secret typed");
}

void EditorSafetyTest::keepsASecretTypedAwayFromTheCurrentCellOutOfTheText()
{
    RecordingModel model(3, 3);
    EditableTableView view;
    view.setColumns(declarations());
    view.setModel(&model);
    showWindow(&view, 400, 200);
    view.setCurrentIndex(model.index(2, 0));
    view.edit(model.index(0, 2));
    QWidget *field = view.indexWidget(model.index(0, 2));
    QVERIFY(field);
    QTest::keyClicks(field, "typed");

    view.setColumns(QStringList() << "editbox"
                                  << "button"
                                  << "editbox");
    view.setCurrentIndex(model.index(0, 2));
    view.setCurrentIndex(model.index(1, 0));
    goThroughEvents();

    QCOMPARE(model.index(0, 2).data(Qt::UserRole + 1).toString(), QString("typed"));
    QCOMPARE(model.writes.filter("typed"), QStringList() << "secret typed");
}

void EditorSafetyTest::keepsASecretOutOfTheTextWhenColumnsMoveBelowIt_data()
{
    QTest::addColumn<QString>("declaration");
    QTest::addColumn<bool>("persistent");

    QTest::newRow("edit column") << "editbox" << false;
    QTest::newRow("plain column") << "" << false;
    QTest::newRow("plain column, persistent editor") << "" << true;
}

void EditorSafetyTest::keepsASecretOutOfTheTextWhenColumnsMoveBelowIt()
{
    QFETCH(QString, declaration);
    QFETCH(bool, persistent);
    tolerateWarnings("QAbstractItemView::"); // Qt 6 has given the editor up before
    TalkativeModel model;
    EditableTableView view;
    view.setColumns(declarations() << declaration);
    view.setModel(&model);
    showWindow(&view, 400, 200);
    if (persistent) {
        view.openPersistentEditor(model.index(0, 2));
    }
    const QPointer<QWidget> field = openEditor(&view, model.index(0, 2));
    QVERIFY(field);
    QTest::keyClicks(field, "typed");

    model.insertColumn(0); // the field would now stand in the last column
    goThroughEvents();

    QVERIFY(!field);
    QCOMPARE(model.writes.filter("typed"), QStringList());
    use(&view);
}

void EditorSafetyTest::keepsASecretOutOfTheTextWhenItsColumnIsHiddenAndMoves_data()
{
    QTest::addColumn<QString>("change");

    QTest::newRow("a column inserted before") << "insert";
    QTest::newRow("a column removed before") << "remove";
    QTest::newRow("the columns mirrored") << "mirror";
}

// The view hides the field, which loses the focus and is committed, in the midst of the move.
void EditorSafetyTest::keepsASecretOutOfTheTextWhenItsColumnIsHiddenAndMoves()
{
    QFETCH(QString, change);
    tolerateWarnings("QAbstractItemView::"); // Qt 6 has given the editor up before
    GridModel model(1, 4);
    EditableTableView view;
    view.setColumns(declarations());
    view.setModel(&model);
    showWindow(&view, 400, 200);
    QWidget *field = openEditor(&view, model.index(0, 2));
    QVERIFY(field);
    QTest::keyClicks(field, "typed");
    view.hideColumn(2);

    if (change == "insert") {
        model.insertColumns(0, 1);
    } else if (change == "remove") {
        model.removeColumns(0, 1);
    } else {
        model.mirrorColumns();
    }
    goThroughEvents();

    QVERIFY(!rowTexts(model).contains("typed"));
}

void EditorSafetyTest::writesNothingWhenItGivesASecretUp()
{
    tolerateWarnings("QAbstractItemView::"); // Qt 6 has given the editor up before
    TableInEdit table(2, "***");
    QVERIFY(table.editor);

    table.model->insertColumn(0);

    QCOMPARE(table.model->writes, QStringList());
    QCOMPARE(table.model->index(0, 3).data().toString(), QString("***"));
}

// Until it is deleted the view may show it again.
void EditorSafetyTest::takesNoKeysIntoAFieldThatItGaveUp()
{
    tolerateWarnings("QAbstractItemView::"); // Qt 6 has given the editor up before
    TableInEdit table(2);
    QVERIFY(table.editor);

    table.model->insertColumn(0);

    QVERIFY(!table.editor || !table.editor->isEnabled());
    QVERIFY(QApplication::focusWidget() != table.editor);
}

void EditorSafetyTest::commitsAndClosesAPersistentEditor()
{
    RecordingModel model(3, 3);
    EditableTableView view;
    view.setColumns(declarations());
    view.setModel(&model);
    showWindow(&view, 400, 200);
    view.openPersistentEditor(model.index(1, 0));
    const QPointer<QWidget> field = view.indexWidget(model.index(1, 0));
    QVERIFY(field);
    QTest::keyClicks(field, "typed");

    view.setColumns(QStringList() << "checkbox");
    goThroughEvents();

    QVERIFY(!field);
    QCOMPARE(model.writes, QStringList() << "edit typed");
}

void EditorSafetyTest::leavesAnApplicationsOwnWidgetAlone()
{
    RecordingModel model(3, 3);
    EditableTableView view;
    view.setColumns(declarations());
    view.setModel(&model);
    QLineEdit *own = new QLineEdit("mine");
    view.setIndexWidget(model.index(0, 0), own);
    view.setCurrentIndex(model.index(0, 0));

    view.setColumns(declarations());
    goThroughEvents();

    QCOMPARE(view.indexWidget(model.index(0, 0)), static_cast<QWidget *>(own));
    QCOMPARE(model.writes, QStringList());
}

void EditorSafetyTest::leavesACellAloneWhoseEditorWasNotTouched()
{
    RecordingModel model(1, 3);
    model.put(0, 0, 7);
    EditableTableView view;
    view.setColumns(declarations());
    view.setModel(&model);
    showWindow(&view, 400, 200);
    const QPointer<QWidget> field = openEditor(&view, model.index(0, 0));
    QVERIFY(field);

    view.setColumns(declarations());
    goThroughEvents();

    QVERIFY(!field);
    QCOMPARE(model.writes, QStringList());
    QCOMPARE(model.index(0, 0).data().toInt(), 7);
}

void EditorSafetyTest::leavesACellAloneWhoseEditorWasEscaped()
{
    TableInEdit table;
    QVERIFY(table.editor);
    QTest::keyClick(table.editor, Qt::Key_Escape);
    QVERIFY(table.editor); // until the event loop turns

    table.view.setColumns(declarations());

    QCOMPARE(table.model->writes, QStringList());
}

void EditorSafetyTest::survivesModelsReplacedDuringAnEdit_data()
{
    QTest::addColumn<bool>("byNone");

    QTest::newRow("by another") << false;
    QTest::newRow("by none") << true;
}

// Twenty, since Qt goes through the widgets in cells in the order of their addresses.
void EditorSafetyTest::survivesModelsReplacedDuringAnEdit()
{
    QFETCH(bool, byNone);
    tolerateWarnings("QAbstractItemView::");
    for (int i = 0; i < 20; ++i) {
        QStandardItemModel other(2, 3);
        TableInEdit table;
        QVERIFY(table.editor);

        table.view.setModel(byNone ? nullptr : &other);
        use(&table.view);

        QVERIFY(!table.editor);
        QCOMPARE(buttonCount(table.view), byNone ? 0 : 2);
    }
}

void EditorSafetyTest::writesNothingIntoAModelThatComesDuringAnEdit_data()
{
    addRowsForTheEditors();
}

void EditorSafetyTest::writesNothingIntoAModelThatComesDuringAnEdit()
{
    QFETCH(QString, declaration);
    QStringListModel items(QStringList() << "typed");
    QStringListModel first(QStringList() << "");
    QStringListModel second(QStringList() << "");
    EditableTableView view;
    view.setColumns(QStringList(declaration));
    view.bindModel(0, &items);
    view.setModel(&first);
    view.setTabKeyNavigation(false); // as after the removal of a row
    showWindow(&view, 400, 200);
    QWidget *editor = openEditor(&view, first.index(0));
    QVERIFY(editor);
    QTest::keyClicks(editor, "typed");
    QTest::keyClick(editor, Qt::Key_Space); // checks a box

    view.setModel(&second);
    goThroughEvents();

    QCOMPARE(second.stringList(), QStringList(""));
}

void EditorSafetyTest::survivesARowRemovedDuringAnEdit()
{
    tolerateWarnings("QAbstractItemView::");
    TableInEdit table;
    QVERIFY(table.editor);

    table.model->removeRow(0);
    use(&table.view);

    QVERIFY(!table.editor);
    QCOMPARE(buttonMarks(table.view, 1), QString("xx"));
}

void EditorSafetyTest::commitsAnEditorInTheRowItMovedTo()
{
    TableInEdit table;
    QVERIFY(table.editor);
    table.model->insertRow(0);

    table.view.setColumns(QStringList("checkbox"));
    goThroughEvents();

    QVERIFY(!table.editor);
    QCOMPARE(texts(*table.model, 0), QString(",typed,,"));
}

void EditorSafetyTest::closesAnEditorThatHasNoDelegateAnyMore()
{
    tolerateWarnings("QAbstractItemView::"); // Qt 6 gives the editor up at once
    TalkativeModel model;
    EditableTableView view;
    view.setColumns(QStringList("editbox"));
    view.setModel(&model);
    showWindow(&view, 400, 200);
    const QPointer<QWidget> field = openEditor(&view, model.index(0, 0));
    QVERIFY(field);
    QTest::keyClicks(field, "typed");
    model.insertColumn(0); // the editor now stands in a plain column

    view.setColumns(QStringList("checkbox"));
    goThroughEvents();

    QVERIFY(!field);
    QCOMPARE(model.writes, QStringList());
}

TESSALINE_TEST_MAIN(EditorSafetyTest)
#include "tst_editorsafety.moc"
