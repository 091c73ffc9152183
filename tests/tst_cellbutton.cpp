// SPDX-License-Identifier: LGPL-3.0-or-later
#include "CellButton.h"
#include "TestCase.h"

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

void CellButtonTest::hasNoMetaObjectOfItsOwn()
{
    const CellButton button(QString(), true, nullptr);

    QCOMPARE(QString(button.metaObject()->className()), QString("QPushButton"));
}

TESSALINE_TEST_MAIN(CellButtonTest)
#include "tst_cellbutton.moc"
