// SPDX-License-Identifier: LGPL-3.0-or-later
#include "EditableTableView.h"
#include "RecordingModel.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QLineEdit>
#include <QPointer>
#include <QStringListModel>

/// A model that collects what is written, as those of data bases do, until it is told what to do.
class CollectingModel : public RecordingModel
{
    Q_OBJECT

public:
    CollectingModel()
        : RecordingModel(2, 2)
    {
    }

public Q_SLOTS:
    bool submit() override
    {
        orders.append("submit");
        return true;
    }

    void revert() override
    {
        orders.append("revert");
    }

public:
    QStringList orders;
};

namespace {

/// A shown table with an open editor, into which something was typed.
struct Table
{
    explicit Table(const QString &declaration)
        : items(QStringList() << "first"
                              << "typed")
    {
        model.put(0, 0, "first");
        view.setColumns(QStringList() << declaration << declaration);
        view.bindModel(0, &items);
        view.setModel(&model);
        showWindow(&view, 400, 200);
        editor = openEditor(&view, model.index(0, 0));
        QTest::keyClicks(editor, "typed");
        QTest::keyClick(editor, Qt::Key_Space); // unchecks a box
        model.writes.clear();
        model.orders.clear();
    }

    void press(Qt::Key key) const
    {
        QTest::keyClick(editor, key);
        goThroughEvents();
    }

    QStringListModel items;
    CollectingModel model;
    EditableTableView view;
    QPointer<QWidget> editor;
};

void addRowsForTheEditors()
{
    QTest::addColumn<QString>("declaration");

    const QStringList editors = QStringList() << "combobox"
                                              << "editcombobox"
                                              << "editbox"
                                              << "passwordbox"
                                              << "checkbox";
    for (const QString &declaration : editors) {
        QTest::newRow(qPrintable(declaration)) << declaration;
    }
}

} // namespace

/// What a model is told to do with what it has collected, when an editor is finished.
class FinishedEditorsTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void submitsByReturn_data();
    void submitsByReturn();
    void revertsByEscape_data();
    void revertsByEscape();
    void orderNothingWhenColumnsAreDeclaredAnew_data();
    void orderNothingWhenColumnsAreDeclaredAnew();
    void orderNothingWhenColumnsMoveBelowASecret();
};

void FinishedEditorsTest::submitsByReturn_data()
{
    addRowsForTheEditors();
}

void FinishedEditorsTest::submitsByReturn()
{
    QFETCH(QString, declaration);
    Table table(declaration);
    QVERIFY(table.editor);

    table.press(Qt::Key_Return);

    QVERIFY(!table.model.writes.isEmpty());
    QCOMPARE(table.model.orders, QStringList("submit"));
}

void FinishedEditorsTest::revertsByEscape_data()
{
    addRowsForTheEditors();
}

void FinishedEditorsTest::revertsByEscape()
{
    QFETCH(QString, declaration);
    Table table(declaration);
    QVERIFY(table.editor);

    table.press(Qt::Key_Escape);

    QCOMPARE(table.model.writes, QStringList());
    QCOMPARE(table.model.orders, QStringList("revert"));
    QCOMPARE(table.items.rowCount(), 2);
}

void FinishedEditorsTest::orderNothingWhenColumnsAreDeclaredAnew_data()
{
    addRowsForTheEditors();
}

// It is not said whether the application wants to keep what was collected.
void FinishedEditorsTest::orderNothingWhenColumnsAreDeclaredAnew()
{
    QFETCH(QString, declaration);
    Table table(declaration);
    QVERIFY(table.editor);

    table.view.setColumns(QStringList());
    goThroughEvents();

    QVERIFY(!table.editor);
    QVERIFY(!table.model.writes.isEmpty());
    QCOMPARE(table.model.orders, QStringList());
}

void FinishedEditorsTest::orderNothingWhenColumnsMoveBelowASecret()
{
    tolerateWarnings("QAbstractItemView::"); // Qt 6 has given the editor up before
    Table table("passwordbox");
    QVERIFY(table.editor);

    table.model.insertColumn(0);
    goThroughEvents();

    QVERIFY(!table.editor);
    QCOMPARE(table.model.orders, QStringList());
}

TESSALINE_TEST_MAIN(FinishedEditorsTest)
#include "tst_finishededitors.moc"
