// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ButtonTable.h"
#include "QtCompat.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QPointer>

class ButtonLayoutTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void coversItsCellInAShownView();
    void laysOutRowsAppendedToAShownView();
    void showsNoButtonInAWrongPlaceBeforeTheLayout();
    void laysOutABurstOfRowsOnce();
    void keepsAnEditorOpenWhenARowIsInserted();
};

void ButtonLayoutTest::coversItsCellInAShownView()
{
    ButtonTable table;
    showWindow(&table.view, 400, 200);

    for (int row = 0; row < 3; ++row) {
        QVERIFY(table.button(row)->isVisible());
        QCOMPARE(table.button(row)->geometry(), table.view.visualRect(table.model.index(row, 1)));
    }
}

void ButtonLayoutTest::laysOutRowsAppendedToAShownView()
{
    ButtonTable table;
    showWindow(&table.view, 400, 300);

    for (int row = 3; row < 6; ++row) {
        table.model.insertRow(row);
    }
    QCoreApplication::processEvents();

    for (int row = 0; row < 6; ++row) {
        QCOMPARE(table.button(row)->geometry(), table.view.visualRect(table.model.index(row, 1)));
    }
}

void ButtonLayoutTest::showsNoButtonInAWrongPlaceBeforeTheLayout()
{
    ButtonTable table;
    showWindow(&table.view, 400, 300);

    table.model.insertRow(3);
    table.model.insertRow(4);

    for (int row = 3; row < 5; ++row) {
        const QRect place = table.button(row)->geometry();
        QVERIFY(place.isEmpty() || place == table.view.visualRect(table.model.index(row, 1)));
    }
}

void ButtonLayoutTest::laysOutABurstOfRowsOnce()
{
    ButtonTable table;
    showWindow(&table.view, 400, 300);
    QCoreApplication::processEvents();
    table.view.layouts = 0;

    for (int row = 3; row < 23; ++row) {
        table.model.insertRow(row);
    }
    QCoreApplication::processEvents();

    const int most = compat::collapsingHoldsLayout ? 2 : 22; // else one more for each row
    QVERIFY(table.view.layouts <= most);
}

void ButtonLayoutTest::keepsAnEditorOpenWhenARowIsInserted()
{
    ButtonTable table;
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

TESSALINE_TEST_MAIN(ButtonLayoutTest)
#include "tst_buttonlayout.moc"
