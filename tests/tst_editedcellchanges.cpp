// SPDX-License-Identifier: LGPL-3.0-or-later
#include "EditorFixture.h"
#include "QtCompat.h"
#include "TableInEdit.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFont>
#include <QHeaderView>
#include <QLineEdit>
#include <QStringListModel>

namespace {

/// A shown table of one kind of editor, whose lists have the texts of these tests.
struct EditedTable : EditorFixture
{
    explicit EditedTable(const QString &declaration)
        : EditorFixture(declaration)
        , items(QStringList() << "old"
                              << "new")
    {
        if (declaration == "combobox") {
            items.insertRow(2);
            items.setData(items.index(2), "typed"); // which others would complete to an item
        }
        view.bindModel(0, &items);
    }

    /// Changes the cell, of which the view does not learn.
    void changeUnnoticed(const QString &value)
    {
        model.blockSignals(true);
        model.put(0, 0, value);
        model.blockSignals(false);
    }

    QStringListModel items;
};

/// What an editor shows, a check box as "on" or "off".
QString shownBy(const QWidget *editor)
{
    if (const QCheckBox *box = qobject_cast<const QCheckBox *>(editor)) {
        return box->isChecked() ? "on" : "off";
    }
    const QComboBox *list = qobject_cast<const QComboBox *>(editor);
    const QLineEdit *field = qobject_cast<const QLineEdit *>(editor);
    return list ? list->currentText() : field ? field->text() : QString("no editor");
}

/// Types "typed" over what an editor shows, chooses that item, or checks or unchecks a box.
void typeInto(QWidget *editor)
{
    if (QLineEdit *field = editor->findChild<QLineEdit *>()) {
        field->selectAll();
    }
    if (qobject_cast<QCheckBox *>(editor)) {
        QTest::keyClick(editor, Qt::Key_Space);
    } else {
        QTest::keyClicks(editor, "typed");
    }
}

} // namespace

/// The model changes a cell that is being edited.
class EditedCellChangesTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void showsAValueThatChangesInTheMidstOfTyping_data();
    void showsAValueThatChangesInTheMidstOfTyping();
    void writesNothingOfWhatAChangedValueReplaced_data();
    void writesNothingOfWhatAChangedValueReplaced();
    void writesWhatItShowsOverAValueThatChangedUnnoticed_data();
    void writesWhatItShowsOverAValueThatChangedUnnoticed();
    void writesNothingOverItsLikeThatCameUnnoticed_data();
    void writesNothingOverItsLikeThatCameUnnoticed();
    void bringsNothingBackThatACellGotMeanwhile_data();
    void bringsNothingBackThatACellGotMeanwhile();
    void showsTheFirstOfEqualItemsWhenItsCellChanges();
    void tellsOfAChoiceThatTheModelMakes();
    void staysOverItsCellWhenThatChangesItsSize_data();
    void staysOverItsCellWhenThatChangesItsSize();
    void staysOverACellThatBecomesLow_data();
    void staysOverACellThatBecomesLow();
    void staysOverItsCellInAViewFromRightToLeft_data();
    void staysOverItsCellInAViewFromRightToLeft();
    void hasTheFontThatItsViewHasByNow_data();
    void hasTheFontThatItsViewHasByNow();
};

void EditedCellChangesTest::showsAValueThatChangesInTheMidstOfTyping_data()
{
    QTest::addColumn<QString>("declaration");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");

    QTest::newRow("combobox") << "combobox"
                              << "typed"
                              << "new";
    QTest::newRow("editcombobox") << "editcombobox"
                                  << "typed"
                                  << "new";
    QTest::newRow("editbox") << "editbox"
                             << "typed"
                             << "new";
    QTest::newRow("passwordbox") << "passwordbox"
                                 << "typed"
                                 << "new";
    QTest::newRow("checkbox") << "checkbox"
                              << "off"
                              << "on";
}

void EditedCellChangesTest::showsAValueThatChangesInTheMidstOfTyping()
{
    QFETCH(QString, declaration);
    EditedTable table(declaration);
    QWidget *editor = table.open(0, 0, "old");
    QVERIFY(editor);
    typeInto(editor);
    QTEST(shownBy(editor), "typed");

    table.model.put(0, 0, "new");

    QTEST(shownBy(editor), "shown");
}

void EditedCellChangesTest::writesNothingOfWhatAChangedValueReplaced_data()
{
    QTest::addColumn<QString>("declaration");
    QTest::addColumn<int>("writes");

    QTest::newRow("combobox") << "combobox" << 0;
    QTest::newRow("editcombobox") << "editcombobox" << 0;
    QTest::newRow("editbox") << "editbox" << 0;
    QTest::newRow("passwordbox, the mask only") << "passwordbox" << 1;
    QTest::newRow("checkbox") << "checkbox" << 0;
}

void EditedCellChangesTest::writesNothingOfWhatAChangedValueReplaced()
{
    QFETCH(QString, declaration);
    EditedTable table(declaration);
    QWidget *editor = table.open(0, 0, "old");
    QVERIFY(editor);
    typeInto(editor);
    table.model.put(0, 0, "new");

    commitEditor(editor);

    QTEST(int(table.model.writes.size()), "writes");
    QVERIFY(!table.model.writes.join(" ").contains("typed"));
    QVERIFY(!table.cell(0, 0, Qt::UserRole + 1).isValid());
}

void EditedCellChangesTest::writesWhatItShowsOverAValueThatChangedUnnoticed_data()
{
    QTest::addColumn<QString>("declaration");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("unnoticed");
    QTest::addColumn<QString>("writes");

    QTest::newRow("combobox") << "combobox"
                              << "old"
                              << "new"
                              << "edit old";
    QTest::newRow("editcombobox") << "editcombobox"
                                  << "old"
                                  << "new"
                                  << "edit old";
    QTest::newRow("editbox") << "editbox"
                             << "old"
                             << "new"
                             << "edit old";
    QTest::newRow("checked box") << "checkbox"
                                 << "old"
                                 << ""
                                 << "edit 1";
    QTest::newRow("unchecked box") << "checkbox"
                                   << ""
                                   << "new"
                                   << "edit ";
}

// Not all models tell of each change, and what the user saw when he ended the edit is what he
// wants.
void EditedCellChangesTest::writesWhatItShowsOverAValueThatChangedUnnoticed()
{
    QFETCH(QString, declaration);
    QFETCH(QString, stored);
    QFETCH(QString, unnoticed);
    EditedTable table(declaration);
    QWidget *editor = table.open(0, 0, stored);
    QVERIFY(editor);
    table.changeUnnoticed(unnoticed);

    commitEditor(editor);

    QTEST(table.model.writes.join("|"), "writes");
}

void EditedCellChangesTest::writesNothingOverItsLikeThatCameUnnoticed_data()
{
    QTest::addColumn<QString>("declaration");
    QTest::addColumn<QString>("unnoticed");

    QTest::newRow("combobox") << "combobox"
                              << "typed";
    QTest::newRow("editcombobox") << "editcombobox"
                                  << "typed";
    QTest::newRow("editbox") << "editbox"
                             << "typed";
    QTest::newRow("unchecked box") << "checkbox"
                                   << "";
}

void EditedCellChangesTest::writesNothingOverItsLikeThatCameUnnoticed()
{
    QFETCH(QString, declaration);
    QFETCH(QString, unnoticed);
    EditedTable table(declaration);
    QWidget *editor = table.open(0, 0, "old");
    QVERIFY(editor);
    typeInto(editor);
    table.changeUnnoticed(unnoticed);

    commitEditor(editor);

    QCOMPARE(table.model.writes, QStringList());
}

void EditedCellChangesTest::staysOverItsCellWhenThatChangesItsSize_data()
{
    addRowsForTheEditors();
}

void EditedCellChangesTest::staysOverItsCellWhenThatChangesItsSize()
{
    QFETCH(QString, declaration);
    EditedTable table(declaration);
    QWidget *editor = table.open(1, 1, "old");
    QVERIFY(editor);
    const QRect before = editor->geometry();

    table.view.resizeSection(0, 150);
    table.view.resizeSection(1, 60);
    table.view.verticalHeader()->resizeSection(1, 50);
    goThroughEvents();

    QVERIFY(editor->geometry() != before);
    QCOMPARE(editor->geometry(), table.view.visualRect(table.model.index(1, 1)));
}

void EditedCellChangesTest::bringsNothingBackThatACellGotMeanwhile_data()
{
    QTest::addColumn<QString>("declaration");

    QTest::newRow("editcombobox") << "editcombobox";
    QTest::newRow("editbox") << "editbox";
    QTest::newRow("passwordbox") << "passwordbox";
}

// A text that the cell holds is loaded, though it stands in the field: nobody typed it any more.
void EditedCellChangesTest::bringsNothingBackThatACellGotMeanwhile()
{
    QFETCH(QString, declaration);
    EditedTable table(declaration);
    table.items.setStringList(QStringList("typed"));
    QWidget *editor = table.open(0, 0, "old");
    QVERIFY(editor);
    QComboBox *list = qobject_cast<QComboBox *>(editor);
    QLineEdit *field = list ? list->lineEdit() : qobject_cast<QLineEdit *>(editor);
    field->setCompleter(nullptr); // which would type itself
    typeInto(editor);
    QVERIFY(field->isModified());

    table.model.put(0, 0, "typed");

    QCOMPARE(field->text(), QString("typed"));
    QVERIFY(!field->isModified());
    QVERIFY(!field->isUndoAvailable());
}

void EditedCellChangesTest::showsTheFirstOfEqualItemsWhenItsCellChanges()
{
    EditedTable table("combobox");
    table.items.setStringList(QStringList() << "old"
                                            << "new"
                                            << "old");
    QComboBox *box = qobject_cast<QComboBox *>(table.open(0, 0, "old"));
    QVERIFY(box);
    QTest::keyClick(box, Qt::Key_End);
    QCOMPARE(box->currentIndex(), 2);

    table.model.put(0, 0, "a hint", Qt::ToolTipRole);

    QCOMPARE(box->currentIndex(), 0);
}

void EditedCellChangesTest::tellsOfAChoiceThatTheModelMakes()
{
    EditedTable table("combobox");
    QWidget *box = table.open(0, 0, "old");
    QVERIFY(box);
    QSignalSpy spy(box, SIGNAL(currentIndexChanged(int)));

    table.model.put(0, 0, "new");

    QCOMPARE(int(spy.size()), 1);
    QCOMPARE(spy.at(0).at(0).toInt(), 1);
}

void EditedCellChangesTest::staysOverACellThatBecomesLow_data()
{
    addRowsForTheEditors();
}

void EditedCellChangesTest::staysOverACellThatBecomesLow()
{
    QFETCH(QString, declaration);
    EditedTable table(declaration);
    QWidget *editor = table.open(1, 1, "old");
    QVERIFY(editor);

    compat::resizeSection(table.view.verticalHeader(), 1, 8);
    goThroughEvents();

    QCOMPARE(editor->geometry(), table.view.visualRect(table.model.index(1, 1)));
}

void EditedCellChangesTest::staysOverItsCellInAViewFromRightToLeft_data()
{
    addRowsForTheEditors();
}

void EditedCellChangesTest::staysOverItsCellInAViewFromRightToLeft()
{
    QFETCH(QString, declaration);
    EditedTable table(declaration);
    table.view.setLayoutDirection(Qt::RightToLeft);
    QWidget *editor = table.open(1, 1, "old");
    QVERIFY(editor);

    table.view.resizeSection(1, 60);
    goThroughEvents();

    QCOMPARE(editor->geometry(), table.view.visualRect(table.model.index(1, 1)));
}

void EditedCellChangesTest::hasTheFontThatItsViewHasByNow_data()
{
    addRowsForTheEditors();
}

void EditedCellChangesTest::hasTheFontThatItsViewHasByNow()
{
    QFETCH(QString, declaration);
    EditedTable table(declaration);
    QWidget *editor = table.open(1, 1, "old");
    QVERIFY(editor);
    QFont font = table.view.font();
    font.setPointSize(25);

    table.view.setFont(font);

    QCOMPARE(editor->font().pointSize(), 25);
}

TESSALINE_TEST_MAIN(EditedCellChangesTest)
#include "tst_editedcellchanges.moc"
