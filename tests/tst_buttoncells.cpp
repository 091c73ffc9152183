// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ButtonTable.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QPointer>

namespace {

class GermanCaptions : public compat::Translator
{
protected:
    QString find(const QByteArray &context, const QByteArray &source) const override
    {
        if (context != "EditableTableView") {
            return QString();
        }
        return source == "Delete"                             ? QString::fromUtf8("L\xc3\xb6schen")
            : source == compat::sourceBytes("L\xc3\xb6schen") ? QString("Weg damit")
                                                              : QString();
    }
};

} // namespace

class ButtonCellsTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void givesEveryRowOfAModelAFlatButton();
    void describesAButtonByItsColumn();
    void announcesTheRowsOfAModelOneByOne();
    void captionsItsButtons_data();
    void captionsItsButtons();
    void translatesACaptionWhenTheButtonIsMade();
    void translatesACaptionBeyondAscii();
    void givesTheFirstRowOfABlockItsButtonsOnly();
    void givesACellOneButtonOnly();
    void makesButtonsInEachButtonColumn();
    void ignoresAButtonColumnThatTheModelLacks();
    void keepsExistingButtonsWhenColumnsAreDeclaredAnew();
    void makesNoButtonsForShownRowsWhenColumnsAreDeclared();
    void makesTheMissingButtonsWhenTheModelIsSetAgain();
    void leavesAnotherWidgetInAButtonCell();
    void buttonsFollowTheirRows_data();
    void buttonsFollowTheirRows();
    void releasesTheButtonsOfRemovedRows();
    void releasesAllButtonsWithTheModel();
    void stopsTabNavigationForGoodAtTheFirstRemoval();
    void findsTheWidgetOfACell();
    void bindsAComboColumn_data();
    void bindsAComboColumn();
};

void ButtonCellsTest::givesEveryRowOfAModelAFlatButton()
{
    ButtonTable table;

    for (int row = 0; row < 3; ++row) {
        QVERIFY(table.button(row));
        QVERIFY(table.button(row)->isFlat());
        QCOMPARE(table.button(row)->text(), QString("Delete"));
        QCOMPARE(table.button(row)->parentWidget(), table.view.viewport());
    }
    QCOMPARE(table.buttonRows(), QString("0,1,2"));
}

void ButtonCellsTest::describesAButtonByItsColumn()
{
    ButtonTable table(QStringList() << "button:A"
                                    << ""
                                    << ""
                                    << ""
                                    << "button:B",
                      5);

    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(table.button(0, 4));

    QCOMPARE(table.button(0, 0)->accessibleDescription(),
             QString("EditableTableViewButton column0"));
    QVERIFY(accessible);
    QCOMPARE(compat::accessibleDescription(accessible), QString("EditableTableViewButton column4"));
}

void ButtonCellsTest::announcesTheRowsOfAModelOneByOne()
{
    ButtonTable table;

    QCOMPARE(table.view.announced,
             QStringList() << "0-0"
                           << "1-1"
                           << "2-2");
}

void ButtonCellsTest::captionsItsButtons_data()
{
    QTest::addColumn<QString>("declaration");
    QTest::addColumn<QString>("caption");

    QTest::newRow("plain") << "button:Run"
                           << "Run";
    QTest::newRow("trimmed") << "Button : Run now "
                             << "Run now";
    QTest::newRow("none") << "button"
                          << "";
    QTest::newRow("colon") << "button:a:b"
                           << "a:b";
    QTest::newRow("Latin-1") << QString::fromUtf8("button:L\xc3\xb6schen")
                             << QString::fromUtf8("L\xc3\xb6schen");
    QTest::newRow("beyond Latin-1") << QString::fromUtf8("button:\xd0\x94\xd0\xb0") << "??";
}

void ButtonCellsTest::captionsItsButtons()
{
    QFETCH(QString, declaration);

    ButtonTable table(QStringList() << "" << declaration);

    QVERIFY(table.button(0));
    QTEST(table.button(0)->text(), "caption");
}

void ButtonCellsTest::translatesACaptionWhenTheButtonIsMade()
{
    GermanCaptions german;
    ButtonTable table;
    QCoreApplication::installTranslator(&german);

    table.model.appendRow(QList<QStandardItem *>() << new QStandardItem << new QStandardItem);

    QCoreApplication::removeTranslator(&german);
    QCOMPARE(table.button(0)->text(), QString("Delete"));
    QCOMPARE(table.button(3)->text(), QString::fromUtf8("L\xc3\xb6schen"));
}

void ButtonCellsTest::translatesACaptionBeyondAscii()
{
    GermanCaptions german;
    QCoreApplication::installTranslator(&german);

    ButtonTable table(QStringList() << "" << QString::fromUtf8("button:L\xc3\xb6schen"));

    QCoreApplication::removeTranslator(&german);
    QCOMPARE(table.button(0)->text(), QString("Weg damit"));
}

void ButtonCellsTest::givesTheFirstRowOfABlockItsButtonsOnly()
{
    ButtonTable table;

    table.model.insertRows(3, 3);

    QCOMPARE(buttonMarks(table.view, 1), QString("xxxx.."));
}

void ButtonCellsTest::givesACellOneButtonOnly()
{
    ButtonTable table;
    const QPointer<CellButton> first = table.button(1);

    table.view.announce(1);

    QCOMPARE(table.button(1), first.data());
    QCOMPARE(buttonCount(table.view), 3);
}

void ButtonCellsTest::makesButtonsInEachButtonColumn()
{
    ButtonTable table(QStringList() << "button:A"
                                    << "editbox"
                                    << "button:B",
                      3);

    QCOMPARE(buttonMarks(table.view, 0), QString("xxx"));
    QCOMPARE(buttonMarks(table.view, 1), QString("..."));
    QCOMPARE(buttonMarks(table.view, 2), QString("xxx"));
    QCOMPARE(table.button(0, 2)->text(), QString("B"));
}

void ButtonCellsTest::ignoresAButtonColumnThatTheModelLacks()
{
    ButtonTable table(QStringList() << "editbox"
                                    << ""
                                    << "button:Beyond",
                      2);

    table.model.insertRow(0);

    QCOMPARE(buttonCount(table.view), 0);
}

void ButtonCellsTest::keepsExistingButtonsWhenColumnsAreDeclaredAnew()
{
    ButtonTable table;

    table.view.setColumns(QStringList() << "editbox"
                                        << "button:New");
    table.model.insertRow(0);

    QCOMPARE(table.button(0)->text(), QString("New"));
    QCOMPARE(table.button(1)->text(), QString("Delete"));
}

void ButtonCellsTest::makesNoButtonsForShownRowsWhenColumnsAreDeclared()
{
    ButtonTable table(QStringList() << "editbox");

    table.view.setColumns(QStringList() << "editbox"
                                        << "button:Late");

    QCOMPARE(buttonMarks(table.view, 1), QString("..."));
}

void ButtonCellsTest::makesTheMissingButtonsWhenTheModelIsSetAgain()
{
    ButtonTable table(QStringList() << "editbox");
    table.view.setColumns(QStringList() << "editbox"
                                        << "button:Late");

    table.view.setModel(&table.model);

    QCOMPARE(buttonMarks(table.view, 1), QString("xxx"));
}

void ButtonCellsTest::leavesAnotherWidgetInAButtonCell()
{
    ButtonTable table(QStringList() << "button:A"
                                    << "button:B");
    table.model.insertRows(3, 2); // the second row of them gets no buttons
    QWidget *own = new QWidget;
    table.view.setIndexWidget(table.model.index(4, 0), own);

    table.view.announce(4);

    QCOMPARE(table.view.indexWidget(table.model.index(4, 0)), own);
    QVERIFY(table.button(4, 1));
}

void ButtonCellsTest::buttonsFollowTheirRows_data()
{
    QTest::addColumn<QString>("change");
    QTest::addColumn<QString>("texts");

    QTest::newRow("row inserted above") << "insert"
                                        << ",a,b,c";
    QTest::newRow("row removed above") << "remove"
                                       << "b,c";
    QTest::newRow("sorted descending") << "sort"
                                       << "c,b,a";
}

void ButtonCellsTest::buttonsFollowTheirRows()
{
    QFETCH(QString, change);
    ButtonTable table;
    showWindow(&table.view, 400, 200);
    const QPointer<CellButton> lastRows = table.button(2);

    if (change == "insert") {
        table.model.insertRow(0);
    } else if (change == "remove") {
        table.model.removeRow(0);
    } else {
        table.model.sort(0, Qt::DescendingOrder);
    }
    QCoreApplication::processEvents();

    QTEST(texts(table.model, 0), "texts");
    QVERIFY(!lastRows.isNull());
    const QModelIndex cell = lastRows->index;
    QCOMPARE(cell.sibling(cell.row(), 0).data().toString(), QString("c"));
    QCOMPARE(table.view.indexWidget(cell), static_cast<QWidget *>(lastRows.data()));
    QCOMPARE(lastRows->geometry(), table.view.visualRect(cell));
}

void ButtonCellsTest::releasesTheButtonsOfRemovedRows()
{
    ButtonTable table;
    const QPointer<CellButton> removed = table.button(1);

    table.model.removeRows(1, 1);

    compat::deliverDeferredDeletes();
    QVERIFY(removed.isNull());
    QCOMPARE(buttonCount(table.view), 2);
    QCOMPARE(buttonMarks(table.view, 1), QString("xx"));
}

void ButtonCellsTest::releasesAllButtonsWithTheModel()
{
    ButtonTable table;
    QStandardItemModel other(1, 2);

    table.view.setModel(&other);

    QCOMPARE(buttonCount(table.view), 1);
    QVERIFY(table.button(0));
    QVERIFY(table.button(0)->index.model() == &other);
}

void ButtonCellsTest::stopsTabNavigationForGoodAtTheFirstRemoval()
{
    ButtonTable table;
    QVERIFY(table.view.tabKeyNavigation());

    table.model.removeRow(0);

    QVERIFY(!table.view.tabKeyNavigation());
    table.model.insertRow(0);
    QVERIFY(!table.view.tabKeyNavigation());
    table.model.removeRow(0);
    QVERIFY(!table.view.tabKeyNavigation());
}

void ButtonCellsTest::findsTheWidgetOfACell()
{
    ButtonTable table;
    showWindow(&table.view, 400, 200);

    QVERIFY(!table.view.button(0, 0));
    QVERIFY(table.button(0, 1));
    QVERIFY(!table.view.button(9, 1));
    QWidget *editor = openEditor(&table.view, table.model.index(0, 0));
    QVERIFY(editor);
    QCOMPARE(table.view.button(0, 0), editor);
}

void ButtonCellsTest::bindsAComboColumn_data()
{
    QTest::addColumn<QString>("columns");
    QTest::addColumn<int>("modelColumn");
    QTest::addColumn<QString>("first");

    QTest::newRow("first column by default") << "combobox" << -1 << "0";
    QTest::newRow("third column") << "combobox" << 2 << "2";
    QTest::newRow("editable combo") << "editcombobox" << 1 << "1";
}

void ButtonCellsTest::bindsAComboColumn()
{
    QFETCH(QString, columns);
    QFETCH(int, modelColumn);
    QStandardItemModel items(1, 3);
    for (int column = 0; column < 3; ++column) {
        items.setData(items.index(0, column), QString::number(column));
    }
    ButtonTable table(QStringList() << columns);
    showWindow(&table.view, 400, 200);

    const bool bound = modelColumn < 0
        ? QMetaObject::invokeMethod(&table.view, "bindModel", Q_ARG(int, 0),
                                    Q_ARG(QObject *, &items))
        : QMetaObject::invokeMethod(&table.view, "bindModel", Q_ARG(int, 0),
                                    Q_ARG(QObject *, &items), Q_ARG(int, modelColumn));

    QVERIFY(bound);
    QWidget *box = openEditor(&table.view, table.model.index(0, 0));
    QVERIFY(box);
    QCOMPARE(box->property("count").toInt(), 1);
    QTest::keyClick(box, Qt::Key_Down);
    commitEditor(box);
    QTEST(table.model.index(0, 0).data().toString(), "first");
}

TESSALINE_TEST_MAIN(ButtonCellsTest)
#include "tst_buttoncells.moc"
