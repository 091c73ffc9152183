// SPDX-License-Identifier: LGPL-3.0-or-later
#include "TableInEdit.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QLineEdit>

namespace {

/// Notes what it is told to do with what was written, as models of a database are. It may refuse
/// what is written, and have the focus taken meanwhile, as by a dialog that tells the user.
class CollectingModel : public RecordingModel
{
public:
    CollectingModel()
        : RecordingModel(3, 3)
        , refuses(false)
        , dialog(nullptr)
    {
    }

    bool setData(const QModelIndex &index, const QVariant &value, int role) override
    {
        if (!refuses) {
            return RecordingModel::setData(index, value, role);
        }
        writes.append("refused " + value.toString());
        if (dialog) {
            dialog->setFocus();
        }
        return false;
    }

    bool submit() override
    {
        orders.append("submit");
        return true;
    }

    void revert() override
    {
        orders.append("revert");
    }

    QStringList orders;
    bool refuses;
    QWidget *dialog;
};

struct Table
{
    Table()
    {
        view.setColumns(declarations());
        view.setModel(&model);
        showWindow(&view, 400, 300);
    }

    /// Types into an editor that stays open in a cell.
    QPointer<QWidget> type(int row, const QString &text, int column = 0)
    {
        view.openPersistentEditor(model.index(row, column));
        const QPointer<QWidget> editor = view.indexWidget(model.index(row, column));
        QTest::keyClicks(editor, text);
        return editor;
    }

    CollectingModel model;
    EditableTableView view;
};

} // namespace

/// What setColumns() makes of editors that the application holds open, and of others beside them.
class PersistentEditorsTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void areCommittedInEachRow();
    void areCommittedOutOfSight_data();
    void areCommittedOutOfSight();
    void keepWhatIsCommittedFromTheCurrentCell();
    void areClosedThoughTheSameColumnsAreDeclared();
    void areOutOfSightAtOnce();
    void areNotCommittedAgainWhenTheyGo();
    void areCommittedOnceWhereTheModelRefuses_data();
    void areCommittedOnceWhereTheModelRefuses();
    void handTheFocusToTheTable_data();
    void handTheFocusToTheTable();
    void leaveTheFocusOfOthersAlone();
    void canBeOpenedAgain();
    void letTheUserEditTheNextCell_data();
    void letTheUserEditTheNextCell();
    void stayInAnotherTableOfTheSameModel();
};

void PersistentEditorsTest::areCommittedInEachRow()
{
    Table table;
    table.type(0, "a");
    table.type(1, "b");
    table.type(2, "secret", 2);

    table.view.setColumns(QStringList());

    QCOMPARE(texts(table.model, 0), QString("a,b,"));
    QCOMPARE(table.model.index(2, 2).data(Qt::UserRole + 1).toString(), QString("secret"));
}

void PersistentEditorsTest::keepWhatIsCommittedFromTheCurrentCell()
{
    Table table;
    const QPointer<QWidget> editor = table.type(1, "typed");
    table.view.setCurrentIndex(table.model.index(1, 0));
    table.model.orders.clear();

    table.view.setColumns(QStringList());
    goThroughEvents();

    QVERIFY(!editor);
    QCOMPARE(table.model.writes, QStringList("edit typed"));
    QCOMPARE(table.model.orders, QStringList());
}

void PersistentEditorsTest::areClosedThoughTheSameColumnsAreDeclared()
{
    Table table;
    const QPointer<QWidget> editor = table.type(1, "typed");

    table.view.setColumns(declarations());
    goThroughEvents();

    QVERIFY(!editor);
    QCOMPARE(texts(table.model, 0), QString(",typed,"));
}

void PersistentEditorsTest::areOutOfSightAtOnce()
{
    Table table;
    const QPointer<QWidget> editor = table.type(1, "typed");

    table.view.setColumns(QStringList());

    QVERIFY(!editor || !editor->isVisible());
    QVERIFY(!table.view.indexWidget(table.model.index(1, 0)));
}

void PersistentEditorsTest::areNotCommittedAgainWhenTheyGo()
{
    Table table;
    const QPointer<QWidget> editor = table.type(1, "typed");
    editor->setFocus();

    table.view.setColumns(QStringList("passwordbox"));
    goThroughEvents();

    QCOMPARE(table.model.writes, QStringList("edit typed"));
}

void PersistentEditorsTest::areCommittedOnceWhereTheModelRefuses_data()
{
    QTest::addColumn<bool>("persistent");
    QTest::addColumn<int>("column");
    QTest::addColumn<bool>("asks");

    QTest::newRow("persistent") << true << 0 << false;
    QTest::newRow("persistent, by a dialog") << true << 0 << true;
    QTest::newRow("persistent, a password") << true << 2 << false;
    QTest::newRow("opened by key") << false << 0 << false;
    QTest::newRow("opened by key, by a dialog") << false << 0 << true;
    QTest::newRow("opened by key, a password, by a dialog") << false << 2 << true;
}

void PersistentEditorsTest::areCommittedOnceWhereTheModelRefuses()
{
    QFETCH(bool, persistent);
    QFETCH(int, column);
    QFETCH(bool, asks);
    Table table;
    const QPointer<QWidget> editor = persistent
        ? table.type(1, "", column)
        : QPointer<QWidget>(openEditor(&table.view, table.model.index(1, column)));
    editor->setFocus();
    QTest::keyClicks(editor, "typed");
    table.model.refuses = true;
    table.model.dialog = asks ? table.view.button(0, 1) : nullptr;

    table.view.setColumns(QStringList());
    goThroughEvents();

    QCOMPARE(table.model.writes.count("refused typed"), 1);
}

void PersistentEditorsTest::handTheFocusToTheTable_data()
{
    QTest::addColumn<bool>("persistent");

    QTest::newRow("persistent") << true;
    QTest::newRow("opened by key") << false;
}

void PersistentEditorsTest::handTheFocusToTheTable()
{
    QFETCH(bool, persistent);
    Table table;
    const QPointer<QWidget> editor = persistent
        ? table.type(1, "typed")
        : QPointer<QWidget>(openEditor(&table.view, table.model.index(1, 0)));
    QVERIFY(editor);
    editor->setFocus();
    QVERIFY(editor->hasFocus());

    table.view.setColumns(QStringList());
    goThroughEvents();

    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget *>(&table.view));
}

void PersistentEditorsTest::leaveTheFocusOfOthersAlone()
{
    Table table;
    table.type(1, "typed");
    QLineEdit *other = new QLineEdit(&table.view);
    other->show();
    other->setFocus();

    table.view.setColumns(QStringList());
    goThroughEvents();

    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget *>(other));
}

void PersistentEditorsTest::canBeOpenedAgain()
{
    Table table;
    const QPointer<QWidget> editor = table.type(1, "typed");
    table.view.setColumns(QStringList("checkbox"));

    table.view.openPersistentEditor(table.model.index(1, 0));
    goThroughEvents();

    QVERIFY(!editor);
    QWidget *box = table.view.indexWidget(table.model.index(1, 0));
    QVERIFY(box);
    QVERIFY(box->inherits("QCheckBox"));
}

void PersistentEditorsTest::letTheUserEditTheNextCell_data()
{
    QTest::addColumn<int>("currentRow");

    QTest::newRow("from the edited cell") << 0;
    QTest::newRow("from another cell") << 2;
}

void PersistentEditorsTest::letTheUserEditTheNextCell()
{
    QFETCH(int, currentRow);
    Table table;
    table.view.setCurrentIndex(table.model.index(currentRow, 0));
    table.view.edit(table.model.index(0, 0));
    QVERIFY(table.view.indexWidget(table.model.index(0, 0)));

    table.view.setColumns(QStringList("editbox"));

    QVERIFY(openEditor(&table.view, table.model.index(1, 0)));
}

void PersistentEditorsTest::stayInAnotherTableOfTheSameModel()
{
    Table table;
    EditableTableView other;
    other.setColumns(declarations());
    other.setModel(&table.model);
    other.openPersistentEditor(table.model.index(0, 0));
    const QPointer<QWidget> editor = other.indexWidget(table.model.index(0, 0));
    QTest::keyClicks(editor, "unfinished");
    table.type(1, "typed");

    table.view.setColumns(QStringList());
    goThroughEvents();

    QVERIFY(editor);
    QCOMPARE(other.indexWidget(table.model.index(0, 0)), editor.data());
    QCOMPARE(table.model.writes, QStringList("edit typed"));
}

void PersistentEditorsTest::areCommittedOutOfSight_data()
{
    QTest::addColumn<bool>("inAHiddenColumn");

    QTest::newRow("in a hidden column") << true;
    QTest::newRow("in a hidden row") << false;
}

void PersistentEditorsTest::areCommittedOutOfSight()
{
    QFETCH(bool, inAHiddenColumn);
    Table table;
    const QPointer<QWidget> editor = table.type(1, "typed");
    table.view.setColumnHidden(0, inAHiddenColumn);
    table.view.setRowHidden(1, !inAHiddenColumn);
    goThroughEvents();
    QVERIFY(!editor->isVisible());

    table.view.setColumns(QStringList());
    goThroughEvents();

    QVERIFY(!editor);
    QCOMPARE(texts(table.model, 0), QString(",typed,"));
}

TESSALINE_TEST_MAIN(PersistentEditorsTest)
#include "tst_persistenteditors.moc"
