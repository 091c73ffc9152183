// SPDX-License-Identifier: LGPL-3.0-or-later
#include "CellButton.h"
#include "TestCase.h"
#include "TestCompat.h"
#include "ViewHelpers.h"

#include <QLineEdit>
#include <QStandardItemModel>

class CellButtonTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isMadeAsAsked_data();
    void isMadeAsAsked();
    void startsWithoutACell();
    void followsItsRow();
    void losesItsCellWithItsRow();
    void leavesTheFocusToItsParentWhenHidden_data();
    void leavesTheFocusToItsParentWhenHidden();
    void leavesTheFocusToAnotherWidgetWhenHidden();
    void keepsTheFocusOfItsWindowWhenTheTableIsHidden();
    void canBeAHiddenWindow();
    void hasNoMetaObjectOfItsOwn();
};

void CellButtonTest::isMadeAsAsked_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("flat");
    QTest::addColumn<bool>("hasParent");

    QTest::newRow("flat") << "Run" << true << false;
    QTest::newRow("raised in a parent") << "" << false << true;
}

void CellButtonTest::isMadeAsAsked()
{
    QFETCH(QString, text);
    QFETCH(bool, flat);
    QFETCH(bool, hasParent);
    QWidget window;
    QWidget *parent = hasParent ? &window : nullptr;

    const CellButton button(text, flat, parent);

    QCOMPARE(button.text(), text);
    QCOMPARE(button.isFlat(), flat);
    QCOMPARE(button.parentWidget(), parent);
    QVERIFY(button.autoFillBackground());
}

void CellButtonTest::startsWithoutACell()
{
    const CellButton button(QString(), true, nullptr);

    QVERIFY(!button.index.isValid());
}

void CellButtonTest::followsItsRow()
{
    QStandardItemModel model(3, 2);
    CellButton button(QString(), true, nullptr);
    button.index = model.index(1, 1);

    model.insertRow(0);

    QCOMPARE(button.index.row(), 2);
    QCOMPARE(button.index.column(), 1);
}

void CellButtonTest::losesItsCellWithItsRow()
{
    QStandardItemModel model(3, 2);
    CellButton button(QString(), true, nullptr);
    button.index = model.index(1, 1);

    model.removeRow(1);

    QVERIFY(!button.index.isValid());
}

void CellButtonTest::leavesTheFocusToItsParentWhenHidden_data()
{
    QTest::addColumn<bool>("isActive");

    QTest::newRow("in the active window") << true;
    QTest::newRow("in another window") << false;
}

void CellButtonTest::leavesTheFocusToItsParentWhenHidden()
{
    QFETCH(bool, isActive);
    QWidget other;
    QWidget window;
    QWidget *parent = new QWidget(&window);
    CellButton *button = new CellButton(QString(), true, parent);
    new QLineEdit(&window); // where the Tab key would lead
    showWindow(&other, 200, 100);
    showWindow(&window, 200, 100);
    button->setFocus();
    if (!isActive) {
        compat::activate(&other);
    }

    button->hide();

    QCOMPARE(window.focusWidget(), parent);
}

void CellButtonTest::leavesTheFocusToAnotherWidgetWhenHidden()
{
    QWidget window;
    QWidget *parent = new QWidget(&window);
    CellButton *button = new CellButton(QString(), true, parent);
    QLineEdit *field = new QLineEdit(&window);
    showWindow(&window, 200, 100);
    field->setFocus();

    button->hide();

    QCOMPARE(window.focusWidget(), static_cast<QWidget *>(field));
}

void CellButtonTest::keepsTheFocusOfItsWindowWhenTheTableIsHidden()
{
    QWidget other;
    QWidget window;
    QWidget *page = new QWidget(&window);
    CellButton *button = new CellButton(QString(), true, new QWidget(page));
    showWindow(&other, 200, 100);
    showWindow(&window, 200, 100);
    button->setFocus();
    compat::activate(&other);

    page->hide();

    QCOMPARE(window.focusWidget(), static_cast<QWidget *>(button));
}

void CellButtonTest::canBeAHiddenWindow()
{
    CellButton button("Run", true, nullptr);
    showWindow(&button, 200, 100);
    QVERIFY(button.hasFocus());

    button.hide();

    QVERIFY(!button.isVisible());
}

void CellButtonTest::hasNoMetaObjectOfItsOwn()
{
    const CellButton button(QString(), true, nullptr);

    QCOMPARE(QString(button.metaObject()->className()), QString("QPushButton"));
}

TESSALINE_TEST_MAIN(CellButtonTest)
#include "tst_cellbutton.moc"
