// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ButtonTable.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QAbstractButton>
#include <QFont>
#include <QPointer>

namespace {

class GermanCaptions : public compat::Translator
{
protected:
    QString find(const QByteArray &context, const QByteArray &source) const override
    {
        const bool isKnown = context == "EditableTableView" && source == "Delete";
        return isKnown ? QString("Entfernen") : QString();
    }
};

QList<QStandardItem *> itemRow(const QString &text)
{
    return QList<QStandardItem *>() << new QStandardItem(text) << new QStandardItem;
}

/// What a signal of clicks has reported, as "row/column:texts".
QStringList reports(const QSignalSpy &spy)
{
    QStringList lines;
    for (const QList<QVariant> &arguments : spy) {
        lines.append(QString("%1/%2:%3")
                         .arg(arguments.at(1).toInt())
                         .arg(arguments.at(2).toInt())
                         .arg(arguments.at(3).toStringList().join(",")));
    }
    return lines;
}

const char *const clickReport = SIGNAL(buttonClicked(QWidget*,int,int,QStringList));

} // namespace

/// What a button is called and reports when something has changed since its column was declared, or
/// since it was made.
class ChangedButtonsTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isCaptionedInTheLanguageOfItsMaking();
    void keepsItsCaptionWhenTheLanguageChanges();
    void isMadeByTheDeclarationsOfItsMaking();
    void isMadeInAHiddenColumn();
    void hasTheFontOfItsTable();
    void reportsTheColumnWhereItIsNow();
    void reportsTheCellsOfItsParentsRows();
    void reportsItsCellWhereverTheUserMovesThat_data();
    void reportsItsCellWhereverTheUserMovesThat();
    void reportsTheCellsOfHiddenColumns();
    void reportsAClickInADisabledCell();
    void isMadeInRowsOfAParentThatIsNotShown();
    void isFoundInRowsOfTheTopLevelOnly();
    void reportsWhatIsBeingTypedInItsRow();
    void reportsNothingOfWhatIsBeingTypedWhenClickedByProgram();
    void reportsWithoutWaitingForTheEventLoop();
    void reportsToItsOwnTableOnly();
    void reportsAfterItsColumnIsDeclaredPlain();
    void stopsTabNavigationWhenARowOfAnyParentGoes();
    void keepsTabNavigationWhenNoRowGoes_data();
    void keepsTabNavigationWhenNoRowGoes();
};

// The declarations hold source texts, whatever the language was when they were made.
void ChangedButtonsTest::isCaptionedInTheLanguageOfItsMaking()
{
    GermanCaptions german;
    QStandardItemModel model(1, 2);
    EditableTableView view;
    QCoreApplication::installTranslator(&german);
    view.setColumns(QStringList() << ""
                                  << "button:Delete");
    QCoreApplication::removeTranslator(&german);

    view.setModel(&model);

    QCOMPARE(labelOfButton(view), QString("Delete"));
}

void ChangedButtonsTest::keepsItsCaptionWhenTheLanguageChanges()
{
    GermanCaptions german;
    ButtonTable table;

    QCoreApplication::installTranslator(&german);
    goThroughEvents();

    QCoreApplication::removeTranslator(&german);
    QCOMPARE(table.button(0)->text(), QString("Delete"));
}

void ChangedButtonsTest::isMadeByTheDeclarationsOfItsMaking()
{
    ButtonTable table;
    table.view.setColumns(QStringList() << "button:First"
                                        << "editbox");

    table.model.insertRow(3);

    QVERIFY(table.button(3, 0));
    QCOMPARE(table.button(3, 0)->text(), QString("First"));
    QVERIFY(!table.button(3, 1));
}

void ChangedButtonsTest::reportsTheColumnWhereItIsNow()
{
    ButtonTable table;
    showWindow(&table.view, 400, 200);
    CellButton *button = table.button(1);
    table.model.insertColumn(0);
    table.model.setData(table.model.index(1, 0), "new");
    goThroughEvents();
    QSignalSpy spy(&table.view, clickReport);

    QTest::mouseClick(button, Qt::LeftButton);

    QCOMPARE(reports(spy), QStringList("1/2:new"));
}

void ChangedButtonsTest::reportsTheCellsOfItsParentsRows()
{
    ButtonTable table;
    QStandardItem *parent = table.model.item(1);
    parent->setColumnCount(2);
    table.view.setRootIndex(parent->index());
    parent->appendRow(itemRow("child"));
    QAbstractButton *button = qobject_cast<QAbstractButton *>(
        table.view.indexWidget(table.model.index(0, 1, parent->index())));
    QVERIFY(button);
    QSignalSpy spy(&table.view, clickReport);
    table.view.setRootIndex(QModelIndex());

    button->click();

    QCOMPARE(reports(spy), QStringList("0/1:child"));
}

void ChangedButtonsTest::isMadeInRowsOfAParentThatIsNotShown()
{
    ButtonTable table;
    QStandardItem *parent = table.model.item(1);
    parent->setColumnCount(2);
    showWindow(&table.view, 400, 200);

    parent->appendRow(itemRow("child"));
    goThroughEvents();

    QWidget *button = table.view.indexWidget(table.model.index(0, 1, parent->index()));
    QVERIFY(button);
    QVERIFY(!button->isVisible() || button->size().isEmpty());
    table.view.setRootIndex(parent->index());
    goThroughEvents();
    QVERIFY(button->isVisible());
    QCOMPARE(button->geometry(), table.view.visualRect(table.model.index(0, 1, parent->index())));
}

void ChangedButtonsTest::isFoundInRowsOfTheTopLevelOnly()
{
    ButtonTable table;
    QWidget *const first = table.button(0);
    QStandardItem *parent = table.model.item(1);
    parent->setColumnCount(2);
    parent->appendRow(itemRow("child"));

    table.view.setRootIndex(parent->index());

    QCOMPARE(table.view.button(0, 1), first);
}

// A press takes the focus from the editor, which is committed before the click is reported.
void ChangedButtonsTest::reportsWhatIsBeingTypedInItsRow()
{
    ButtonTable table;
    showWindow(&table.view, 400, 200);
    QWidget *editor = openEditor(&table.view, table.model.index(1, 0));
    QVERIFY(editor);
    QTest::keyClicks(editor, "typed");
    QSignalSpy spy(&table.view, clickReport);

    QTest::mouseClick(table.button(1), Qt::LeftButton);

    QCOMPARE(reports(spy), QStringList("1/1:typed"));
    QCOMPARE(texts(table.model, 0), QString("a,typed,c"));
}

void ChangedButtonsTest::reportsWithoutWaitingForTheEventLoop()
{
    ButtonTable table;
    QSignalSpy spy(&table.view, clickReport);

    table.button(2)->click();

    QCOMPARE(reports(spy), QStringList("2/1:c"));
}

void ChangedButtonsTest::reportsToItsOwnTableOnly()
{
    ButtonTable table;
    EditableTableView other;
    other.setColumns(QStringList() << ""
                                   << "button:Other");
    other.setModel(&table.model);
    QSignalSpy spy(&table.view, clickReport);
    QSignalSpy otherSpy(&other, clickReport);

    qobject_cast<QAbstractButton *>(other.button(1, 1))->click();

    QCOMPARE(reports(spy), QStringList());
    QCOMPARE(reports(otherSpy), QStringList("1/1:"));
    QCOMPARE(table.button(1)->text(), QString("Delete"));
}

void ChangedButtonsTest::reportsAfterItsColumnIsDeclaredPlain()
{
    ButtonTable table;
    table.view.setColumns(QStringList("editbox"));
    QSignalSpy spy(&table.view, clickReport);

    table.button(1)->click();

    QCOMPARE(reports(spy), QStringList("1/1:b"));
}

void ChangedButtonsTest::stopsTabNavigationWhenARowOfAnyParentGoes()
{
    ButtonTable table;
    QStandardItem *parent = table.model.item(1);
    parent->appendRow(new QStandardItem("child"));
    QVERIFY(table.view.tabKeyNavigation());

    parent->removeRow(0);

    QVERIFY(!table.view.tabKeyNavigation());
}

void ChangedButtonsTest::keepsTabNavigationWhenNoRowGoes_data()
{
    QTest::addColumn<QString>("change");

    QTest::newRow("rows inserted") << "insert";
    QTest::newRow("column removed") << "column";
    QTest::newRow("sorted") << "sort";
    QTest::newRow("cleared") << "clear";
    QTest::newRow("columns declared") << "declare";
    QTest::newRow("model replaced") << "model";
}

void ChangedButtonsTest::keepsTabNavigationWhenNoRowGoes()
{
    QFETCH(QString, change);
    QStandardItemModel other(1, 2);
    ButtonTable table;

    if (change == "insert") {
        table.model.insertRows(1, 2);
    } else if (change == "column") {
        table.model.removeColumn(1);
    } else if (change == "sort") {
        table.model.sort(0, Qt::DescendingOrder);
    } else if (change == "clear") {
        table.model.clear();
    } else if (change == "declare") {
        table.view.setColumns(QStringList("button"));
    } else {
        table.view.setModel(&other);
    }

    QVERIFY(table.view.tabKeyNavigation());
}

void ChangedButtonsTest::isMadeInAHiddenColumn()
{
    ButtonTable table;
    showWindow(&table.view, 400, 200);
    table.view.hideColumn(1);

    table.model.insertRow(3);

    table.view.showColumn(1);
    goThroughEvents();
    QVERIFY(table.button(3));
    QVERIFY(table.button(3)->isVisible());
}

void ChangedButtonsTest::hasTheFontOfItsTable()
{
    QFont font;
    ButtonTable table;
    font.setPointSize(20);
    table.view.setFont(font);
    table.model.insertRow(3);
    QCOMPARE(table.button(3)->font().pointSize(), 20);

    font.setPointSize(30);
    table.view.setFont(font);

    QCOMPARE(table.button(0)->font().pointSize(), 30);
    QCOMPARE(table.button(3)->font().pointSize(), 30);
}

void ChangedButtonsTest::reportsItsCellWhereverTheUserMovesThat_data()
{
    QTest::addColumn<bool>("movesRow");

    QTest::newRow("row moved") << true;
    QTest::newRow("column moved") << false;
}

void ChangedButtonsTest::reportsItsCellWhereverTheUserMovesThat()
{
    QFETCH(bool, movesRow);
    ButtonTable table;
    showWindow(&table.view, 400, 200);
    (movesRow ? table.view.verticalHeader() : table.view.horizontalHeader())->moveSection(1, 0);
    goThroughEvents();
    QSignalSpy spy(&table.view, clickReport);

    QTest::mouseClick(table.button(1), Qt::LeftButton);

    QCOMPARE(reports(spy), QStringList("1/1:b"));
}

void ChangedButtonsTest::reportsTheCellsOfHiddenColumns()
{
    ButtonTable table;
    table.view.hideColumn(0);
    showWindow(&table.view, 400, 200);
    QSignalSpy spy(&table.view, clickReport);

    QTest::mouseClick(table.button(1), Qt::LeftButton);

    QCOMPARE(reports(spy), QStringList("1/1:b"));
}

void ChangedButtonsTest::reportsAClickInADisabledCell()
{
    ButtonTable table;
    const QList<QStandardItem *> row = itemRow("d");
    row.at(1)->setEnabled(false);
    table.model.appendRow(row);
    showWindow(&table.view, 400, 300);
    QSignalSpy spy(&table.view, clickReport);

    QTest::mouseClick(table.button(3), Qt::LeftButton);

    QCOMPARE(reports(spy), QStringList("3/1:d"));
}

// Nothing takes the focus from the editor.
void ChangedButtonsTest::reportsNothingOfWhatIsBeingTypedWhenClickedByProgram()
{
    ButtonTable table;
    showWindow(&table.view, 400, 200);
    const QPointer<QWidget> editor = openEditor(&table.view, table.model.index(1, 0));
    QVERIFY(editor);
    QTest::keyClicks(editor, "typed");
    QSignalSpy spy(&table.view, clickReport);

    table.button(1)->click();

    QCOMPARE(reports(spy), QStringList("1/1:b"));
    goThroughEvents();
    QVERIFY(editor);
    QCOMPARE(table.view.button(1, 0), editor.data());
}

TESSALINE_TEST_MAIN(ChangedButtonsTest)
#include "tst_changedbuttons.moc"
