// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ButtonTable.h"
#include "DisguisedModel.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QDialog>
#include <QVBoxLayout>

namespace {

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

} // namespace

class ButtonClicksTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void reportsAClick();
    void reportsNoPressThatEndsElsewhere();
    void reportsWhatCellsHoldNotWhatTheyShow();
    void reportsOnlyEditableCellsOfTheRow();
    void reportsTheCellsOfARowBelowAnother();
    void reportsTheCellsOfTheLatestDeclarations();
    void reportsTheRowWhereTheButtonIsNow();
    void reportsAKeyPress();
    void reportsAReturnKeyInADialog();
    void leavesTheCurrentCellAloneWhenAButtonGetsTheFocus();
};

void ButtonClicksTest::reportsAClick()
{
    ButtonTable table;
    showWindow(&table.view, 400, 200);
    QSignalSpy spy(&table.view, SIGNAL(buttonClicked(QWidget*,int,int,QStringList)));

    QTest::mouseClick(table.button(2), Qt::LeftButton);

    QCOMPARE(report(spy), QString("2/1:c"));
    QCOMPARE(spy.at(0).at(0).value<QWidget *>(), static_cast<QWidget *>(table.button(2)));
}

void ButtonClicksTest::reportsNoPressThatEndsElsewhere()
{
    ButtonTable table;
    showWindow(&table.view, 400, 200);
    QSignalSpy spy(&table.view, SIGNAL(buttonClicked(QWidget*,int,int,QStringList)));

    QTest::mousePress(table.button(1), Qt::LeftButton);
    QTest::mouseRelease(table.button(1), Qt::LeftButton, Qt::NoModifier, QPoint(-5, -5));

    QCOMPARE(report(spy), QString());
}

void ButtonClicksTest::reportsWhatCellsHoldNotWhatTheyShow()
{
    DisguisedModel model("held", 2);
    ButtonTable table;
    table.view.setModel(&model);
    showWindow(&table.view, 400, 200);
    QSignalSpy spy(&table.view, SIGNAL(buttonClicked(QWidget*,int,int,QStringList)));

    QTest::mouseClick(table.button(0), Qt::LeftButton);

    QCOMPARE(report(spy), QString("0/1:held"));
}

void ButtonClicksTest::reportsOnlyEditableCellsOfTheRow()
{
    ButtonTable table(QStringList() << "editbox"
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

void ButtonClicksTest::reportsTheCellsOfARowBelowAnother()
{
    ButtonTable table;
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

void ButtonClicksTest::reportsTheCellsOfTheLatestDeclarations()
{
    ButtonTable table(QStringList() << "editbox"
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

void ButtonClicksTest::reportsTheRowWhereTheButtonIsNow()
{
    ButtonTable table;
    showWindow(&table.view, 400, 200);
    CellButton *button = table.button(1);
    table.model.insertRow(0);
    QCoreApplication::processEvents();
    QSignalSpy spy(&table.view, SIGNAL(buttonClicked(QWidget*,int,int,QStringList)));

    QTest::mouseClick(button, Qt::LeftButton);

    QCOMPARE(report(spy), QString("2/1:b"));
}

void ButtonClicksTest::reportsAKeyPress()
{
    ButtonTable table;
    showWindow(&table.view, 400, 200);
    QSignalSpy spy(&table.view, SIGNAL(buttonClicked(QWidget*,int,int,QStringList)));
    table.button(0)->setFocus();

    QTest::keyClick(table.button(0), Qt::Key_Space);

    QCOMPARE(report(spy), QString("0/1:a"));
}

void ButtonClicksTest::leavesTheCurrentCellAloneWhenAButtonGetsTheFocus()
{
    ButtonTable table;
    showWindow(&table.view, 400, 200);
    table.view.setCurrentIndex(table.model.index(0, 0));
    // Straight from the table to a button Qt 4 does move the current cell.
    table.button(1)->setFocus();
    table.view.setCurrentIndex(table.model.index(0, 0));

    QTest::mouseClick(table.button(2), Qt::LeftButton);

    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget *>(table.button(2)));
    QCOMPARE(table.view.currentIndex(), table.model.index(0, 0));
    QVERIFY(!table.view.selectionModel()->isSelected(table.model.index(2, 1)));
}

void ButtonClicksTest::reportsAReturnKeyInADialog()
{
    QDialog dialog;
    ButtonTable table;
    QVBoxLayout *layout = new QVBoxLayout(&dialog);
    layout->addWidget(&table.view);
    showWindow(&dialog, 400, 200);
    QSignalSpy spy(&table.view, SIGNAL(buttonClicked(QWidget*,int,int,QStringList)));
    table.button(2)->setFocus();

    QTest::keyClick(table.button(2), Qt::Key_Return);

    QCOMPARE(report(spy), QString("2/1:c"));
}

TESSALINE_TEST_MAIN(ButtonClicksTest)
#include "tst_buttonclicks.moc"
