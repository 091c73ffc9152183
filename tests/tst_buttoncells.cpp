// SPDX-License-Identifier: LGPL-3.0-or-later
#include "CellButton.h"
#include "DisguisedModel.h"
#include "EditableTableView.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QAbstractItemModel>
#include <QPointer>
#include <QStandardItemModel>

namespace {

/// Lets a test announce a row, and notes the rows that are announced and how often all are laid
/// out.
class OpenTableView : public EditableTableView
{
public:
    void doItemsLayout() override
    {
        ++layouts;
        EditableTableView::doItemsLayout();
    }

    QStringList announced;
    int layouts = 0;

protected:
    void rowsInserted(const QModelIndex &parent, int start, int end) override
    {
        announced.append(QString("%1-%2").arg(start).arg(end));
        EditableTableView::rowsInserted(parent, start, end);
    }

public:
    void announce(int row)
    {
        rowsInserted(QModelIndex(), row, row);
    }
};

/// An "editbox" and a "button:Delete" column over the rows "a", "b", "c".
struct Table
{
    explicit Table(const QStringList &columns = QStringList() << "editbox"
                                                              << "button:Delete",
                   int columnCount = 2)
        : model(3, columnCount)
    {
        for (int row = 0; row < 3; ++row) {
            model.setData(model.index(row, 0), QString(QChar('a' + row)));
        }
        view.setColumns(columns);
        view.setModel(&model);
    }

    CellButton *button(int row, int column = 1)
    {
        return dynamic_cast<CellButton *>(view.button(row, column));
    }

    /// The rows that the buttons of column 1 believe to stand in, read from the top.
    QString buttonRows()
    {
        QStringList rows;
        for (int row = 0; row < model.rowCount(); ++row) {
            CellButton *cell = button(row);
            rows.append(cell ? QString::number(cell->index.row()) : QString("-"));
        }
        return rows.join(",");
    }

    QStandardItemModel model;
    OpenTableView view;
};

QString report(const QSignalSpy &spy)
{
    QStringList lines;
    for (const QList<QVariant> &arguments : spy) {
        lines.append(QString("%1/%2:%3")
                         .arg(arguments.at(1).toInt())
                         .arg(arguments.at(2).toInt())
                         .arg(arguments.at(3).toStringList().join(",")));
    }
    return lines.join(" ");
}

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
    void reportsAClick();
    void reportsNoPressThatEndsElsewhere();
    void reportsWhatCellsHoldNotWhatTheyShow();
    void reportsOnlyEditableCellsOfTheRow();
    void reportsTheCellsOfARowBelowAnother();
    void reportsTheCellsOfTheLatestDeclarations();
    void reportsTheRowWhereTheButtonIsNow();
    void reportsTheCellsOfARowUnderItsParent();
    void reportsAKeyPress();
    void leavesTheCurrentCellAloneWhenAButtonGetsTheFocus();
    void buttonsFollowTheirRows_data();
    void buttonsFollowTheirRows();
    void releasesTheButtonsOfRemovedRows();
    void releasesAllButtonsWithTheModel();
    void stopsTabNavigationForGoodAtTheFirstRemoval();
    void findsTheWidgetOfACell();
    void bindsAComboColumn_data();
    void bindsAComboColumn();
    void coversItsCellInAShownView();
    void laysOutRowsAppendedToAShownView();
    void showsNoButtonInAWrongPlaceBeforeTheLayout();
    void laysOutABurstOfRowsOnce();
    void keepsAnEditorOpenWhenARowIsInserted();
};

void ButtonCellsTest::givesEveryRowOfAModelAFlatButton()
{
    Table table;

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
    Table table(QStringList() << "button:A"
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
    Table table;

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

    Table table(QStringList() << "" << declaration);

    QVERIFY(table.button(0));
    QTEST(table.button(0)->text(), "caption");
}

void ButtonCellsTest::translatesACaptionWhenTheButtonIsMade()
{
    GermanCaptions german;
    Table table;
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

    Table table(QStringList() << "" << QString::fromUtf8("button:L\xc3\xb6schen"));

    QCoreApplication::removeTranslator(&german);
    QCOMPARE(table.button(0)->text(), QString("Weg damit"));
}

void ButtonCellsTest::givesTheFirstRowOfABlockItsButtonsOnly()
{
    Table table;

    table.model.insertRows(3, 3);

    QCOMPARE(buttonMarks(table.view, 1), QString("xxxx.."));
}

void ButtonCellsTest::givesACellOneButtonOnly()
{
    Table table;
    const QPointer<CellButton> first = table.button(1);

    table.view.announce(1);

    QCOMPARE(table.button(1), first.data());
    QCOMPARE(buttonCount(table.view), 3);
}

void ButtonCellsTest::makesButtonsInEachButtonColumn()
{
    Table table(QStringList() << "button:A"
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
    Table table(QStringList() << "editbox"
                              << ""
                              << "button:Beyond",
                2);

    table.model.insertRow(0);

    QCOMPARE(buttonCount(table.view), 0);
}

void ButtonCellsTest::keepsExistingButtonsWhenColumnsAreDeclaredAnew()
{
    Table table;

    table.view.setColumns(QStringList() << "editbox"
                                        << "button:New");
    table.model.insertRow(0);

    QCOMPARE(table.button(0)->text(), QString("New"));
    QCOMPARE(table.button(1)->text(), QString("Delete"));
}

void ButtonCellsTest::makesNoButtonsForShownRowsWhenColumnsAreDeclared()
{
    Table table(QStringList() << "editbox");

    table.view.setColumns(QStringList() << "editbox"
                                        << "button:Late");

    QCOMPARE(buttonMarks(table.view, 1), QString("..."));
}

void ButtonCellsTest::makesTheMissingButtonsWhenTheModelIsSetAgain()
{
    Table table(QStringList() << "editbox");
    table.view.setColumns(QStringList() << "editbox"
                                        << "button:Late");

    table.view.setModel(&table.model);

    QCOMPARE(buttonMarks(table.view, 1), QString("xxx"));
}

void ButtonCellsTest::leavesAnotherWidgetInAButtonCell()
{
    Table table(QStringList() << "button:A"
                              << "button:B");
    table.model.insertRows(3, 2); // the second row of them gets no buttons
    QWidget *own = new QWidget;
    table.view.setIndexWidget(table.model.index(4, 0), own);

    table.view.announce(4);

    QCOMPARE(table.view.indexWidget(table.model.index(4, 0)), own);
    QVERIFY(table.button(4, 1));
}

void ButtonCellsTest::reportsAClick()
{
    Table table;
    showWindow(&table.view, 400, 200);
    QSignalSpy spy(&table.view, SIGNAL(buttonClicked(QWidget*,int,int,QStringList)));

    QTest::mouseClick(table.button(2), Qt::LeftButton);

    QCOMPARE(report(spy), QString("2/1:c"));
    QCOMPARE(spy.at(0).at(0).value<QWidget *>(), static_cast<QWidget *>(table.button(2)));
}

void ButtonCellsTest::reportsNoPressThatEndsElsewhere()
{
    Table table;
    showWindow(&table.view, 400, 200);
    QSignalSpy spy(&table.view, SIGNAL(buttonClicked(QWidget*,int,int,QStringList)));

    QTest::mousePress(table.button(1), Qt::LeftButton);
    QTest::mouseRelease(table.button(1), Qt::LeftButton, Qt::NoModifier, QPoint(-5, -5));

    QCOMPARE(report(spy), QString());
}

void ButtonCellsTest::reportsWhatCellsHoldNotWhatTheyShow()
{
    DisguisedModel model("held", 2);
    Table table;
    table.view.setModel(&model);
    showWindow(&table.view, 400, 200);
    QSignalSpy spy(&table.view, SIGNAL(buttonClicked(QWidget*,int,int,QStringList)));

    QTest::mouseClick(table.button(0), Qt::LeftButton);

    QCOMPARE(report(spy), QString("0/1:held"));
}

void ButtonCellsTest::reportsOnlyEditableCellsOfTheRow()
{
    Table table(QStringList() << "editbox"
                              << "button"
                              << "checkbox"
                              << ""
                              << "combobox"
                              << "editcombobox"
                              << "passwordbox"
                              << "button"
                              << "editbox",
                8);
    table.model.setData(table.model.index(1, 2), "1");
    table.model.setData(table.model.index(1, 3), "plain");
    table.model.setData(table.model.index(1, 4), 1000000.0);
    table.model.setData(table.model.index(1, 5), "typed");
    table.model.setData(table.model.index(1, 6), "***");
    table.model.setData(table.model.index(1, 6), "secret", Qt::UserRole + 1);
    showWindow(&table.view, 900, 200);
    QSignalSpy spy(&table.view, SIGNAL(buttonClicked(QWidget*,int,int,QStringList)));

    QTest::mouseClick(table.button(1, 7), Qt::LeftButton);

    // The model has no column 8, whose declaration still takes its place.
    QCOMPARE(report(spy), QString("1/7:b,1,1000000,typed,***,"));
}

void ButtonCellsTest::reportsTheCellsOfARowBelowAnother()
{
    Table table;
    QStandardItem *parent = table.model.item(1);
    table.view.setRootIndex(parent->index());
    parent->appendRow(QList<QStandardItem *>() << new QStandardItem("child") << new QStandardItem);
    QSignalSpy spy(&table.view, SIGNAL(buttonClicked(QWidget*,int,int,QStringList)));
    const QModelIndex cell = table.model.index(0, 1, parent->index());
    QPushButton *button = qobject_cast<QPushButton *>(table.view.indexWidget(cell));
    QVERIFY(button);

    button->click();

    QCOMPARE(report(spy), QString("0/1:child"));
}

void ButtonCellsTest::reportsTheCellsOfTheLatestDeclarations()
{
    Table table(QStringList() << "editbox"
                              << "button"
                              << "editbox",
                3);
    table.view.setColumns(QStringList() << ""
                                        << "button"
                                        << "checkbox");
    table.model.setData(table.model.index(0, 2), "1");
    QSignalSpy spy(&table.view, SIGNAL(buttonClicked(QWidget*,int,int,QStringList)));

    table.button(0)->click();

    QCOMPARE(report(spy), QString("0/1:1"));
}

void ButtonCellsTest::reportsTheRowWhereTheButtonIsNow()
{
    Table table;
    showWindow(&table.view, 400, 200);
    CellButton *button = table.button(1);
    table.model.insertRow(0);
    QCoreApplication::processEvents();
    QSignalSpy spy(&table.view, SIGNAL(buttonClicked(QWidget*,int,int,QStringList)));

    QTest::mouseClick(button, Qt::LeftButton);

    QCOMPARE(report(spy), QString("2/1:b"));
}

void ButtonCellsTest::reportsTheCellsOfARowUnderItsParent()
{
    Table table;
    QStandardItem *parent = table.model.item(1, 0);
    table.view.setRootIndex(parent->index());
    parent->appendRow(QList<QStandardItem *>() << new QStandardItem("child") << new QStandardItem);
    QSignalSpy spy(&table.view, SIGNAL(buttonClicked(QWidget*,int,int,QStringList)));

    qobject_cast<QPushButton *>(table.view.indexWidget(parent->child(0, 1)->index()))->click();

    QCOMPARE(report(spy), QString("0/1:child"));
}

void ButtonCellsTest::reportsAKeyPress()
{
    Table table;
    showWindow(&table.view, 400, 200);
    QSignalSpy spy(&table.view, SIGNAL(buttonClicked(QWidget*,int,int,QStringList)));
    table.button(0)->setFocus();

    QTest::keyClick(table.button(0), Qt::Key_Space);

    QCOMPARE(report(spy), QString("0/1:a"));
}

void ButtonCellsTest::leavesTheCurrentCellAloneWhenAButtonGetsTheFocus()
{
    Table table;
    showWindow(&table.view, 400, 200);
    table.view.setCurrentIndex(table.model.index(0, 0));
    // Straight from the table to a button the base class does move the current cell, in every Qt.
    table.button(1)->setFocus();
    table.view.setCurrentIndex(table.model.index(0, 0));

    QTest::mouseClick(table.button(2), Qt::LeftButton);

    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget *>(table.button(2)));
    QCOMPARE(table.view.currentIndex(), table.model.index(0, 0));
    QVERIFY(!table.view.selectionModel()->isSelected(table.model.index(2, 1)));
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
    Table table;
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
    Table table;
    const QPointer<CellButton> removed = table.button(1);

    table.model.removeRows(1, 1);

    compat::deliverDeferredDeletes();
    QVERIFY(removed.isNull());
    QCOMPARE(buttonCount(table.view), 2);
    QCOMPARE(buttonMarks(table.view, 1), QString("xx"));
}

void ButtonCellsTest::releasesAllButtonsWithTheModel()
{
    Table table;
    QStandardItemModel other(1, 2);

    table.view.setModel(&other);

    QCOMPARE(buttonCount(table.view), 1);
    QVERIFY(table.button(0));
    QVERIFY(table.button(0)->index.model() == &other);
}

void ButtonCellsTest::stopsTabNavigationForGoodAtTheFirstRemoval()
{
    Table table;
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
    Table table;
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
    Table table(QStringList() << columns);
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

void ButtonCellsTest::coversItsCellInAShownView()
{
    Table table;
    showWindow(&table.view, 400, 200);

    for (int row = 0; row < 3; ++row) {
        QVERIFY(table.button(row)->isVisible());
        QCOMPARE(table.button(row)->geometry(), table.view.visualRect(table.model.index(row, 1)));
    }
}

void ButtonCellsTest::laysOutRowsAppendedToAShownView()
{
    Table table;
    showWindow(&table.view, 400, 300);

    for (int row = 3; row < 6; ++row) {
        table.model.insertRow(row);
    }
    QCoreApplication::processEvents();

    for (int row = 0; row < 6; ++row) {
        QCOMPARE(table.button(row)->geometry(), table.view.visualRect(table.model.index(row, 1)));
    }
}

void ButtonCellsTest::showsNoButtonInAWrongPlaceBeforeTheLayout()
{
    Table table;
    showWindow(&table.view, 400, 300);

    table.model.insertRow(3);
    table.model.insertRow(4);

    for (int row = 3; row < 5; ++row) {
        const QRect place = table.button(row)->geometry();
        QVERIFY(place.isEmpty() || place == table.view.visualRect(table.model.index(row, 1)));
    }
}

void ButtonCellsTest::laysOutABurstOfRowsOnce()
{
    Table table;
    showWindow(&table.view, 400, 300);
    QCoreApplication::processEvents();
    table.view.layouts = 0;

    for (int row = 3; row < 23; ++row) {
        table.model.insertRow(row);
    }
    QCoreApplication::processEvents();

    QVERIFY(table.view.layouts <= 2);
}

void ButtonCellsTest::keepsAnEditorOpenWhenARowIsInserted()
{
    Table table;
    showWindow(&table.view, 400, 200);
    QPointer<QWidget> editor = openEditor(&table.view, table.model.index(1, 0));
    QVERIFY(editor);
    QTest::keyClicks(editor, "typed");

    table.model.insertRow(0);
    QCoreApplication::processEvents();

    QVERIFY(editor);
    QCOMPARE(editor->geometry(), table.view.visualRect(table.model.index(2, 0)));
    commitEditor(editor);
    QCOMPARE(texts(table.model, 0), QString(",a,typed,c"));
}

TESSALINE_TEST_MAIN(ButtonCellsTest)
#include "tst_buttoncells.moc"
