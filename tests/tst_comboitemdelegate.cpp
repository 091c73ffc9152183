// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ComboItemDelegate.h"
#include "EditorFixture.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QComboBox>
#include <QStandardItemModel>

namespace {

/// A list of two columns: red, green, blue and 5, 6, 7.
struct Colours : QStandardItemModel
{
    Colours()
    {
        appendRow(QList<QStandardItem *>() << text("red") << text("5"));
        appendRow(QList<QStandardItem *>() << text("green") << text("6"));
        appendRow(QList<QStandardItem *>() << text("blue") << text("7"));
    }

    static QStandardItem *text(const char *value)
    {
        return new QStandardItem(QString::fromLatin1(value));
    }
};

QString items(const QComboBox &box)
{
    QStringList all;
    for (int i = 0; i < box.count(); ++i) {
        all.append(box.itemText(i));
    }
    return all.join(QLatin1String(","));
}

} // namespace

class ComboItemDelegateTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void opensAFramelessComboBoxOverTheCell();
    void listsTheBoundColumn_data();
    void listsTheBoundColumn();
    void opensEmptyWithoutABinding();
    void opensEmptyWhenTheBoundModelIsGone();
    void opensEmptyWhenTheBindingIsTakenAway();
    void opensEmptyWhenColumnsWereDeclaredAnew();
    void keepsTheListOfAnOpenEditorWhenBoundAgain();
    void choosesTheStoredText_data();
    void choosesTheStoredText();
    void choosesALargeDoubleByAllItsDigits();
    void writesOnlyAChoiceThatDiffers_data();
    void writesOnlyAChoiceThatDiffers();
    void leavesAForeignEditorAlone();
};

void ComboItemDelegateTest::opensAFramelessComboBoxOverTheCell()
{
    EditorFixture fixture("combobox");

    QComboBox *box = qobject_cast<QComboBox *>(fixture.open(1, 2));

    QVERIFY(box);
    QVERIFY(!box->isEditable());
    QVERIFY(!box->hasFrame());
    verifyDressed(&fixture, box, 1, 2, "EditableTableViewCombo column2");
}

void ComboItemDelegateTest::listsTheBoundColumn_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("list");

    QTest::newRow("first") << 0 << "red,green,blue";
    QTest::newRow("second") << 1 << "5,6,7";
}

void ComboItemDelegateTest::listsTheBoundColumn()
{
    QFETCH(int, column);
    Colours colours;
    EditorFixture fixture("combobox");
    fixture.view.bindModel(0, &colours, column);

    QComboBox *box = qobject_cast<QComboBox *>(fixture.open(0, 0));

    QVERIFY(box);
    QTEST(items(*box), "list");
}

void ComboItemDelegateTest::opensEmptyWithoutABinding()
{
    EditorFixture fixture("combobox");

    QComboBox *box = qobject_cast<QComboBox *>(fixture.open(0, 0, "red"));

    QVERIFY(box);
    QCOMPARE(box->count(), 0);
    QCOMPARE(box->modelColumn(), 0);
}

void ComboItemDelegateTest::opensEmptyWhenTheBoundModelIsGone()
{
    Colours *colours = new Colours;
    EditorFixture fixture("combobox");
    fixture.view.bindModel(0, colours, 1);
    delete colours;

    QComboBox *box = qobject_cast<QComboBox *>(fixture.open(0, 0, "red"));

    QVERIFY(box);
    QCOMPARE(box->count(), 0);
    QCOMPARE(box->modelColumn(), 1);
}

void ComboItemDelegateTest::opensEmptyWhenTheBindingIsTakenAway()
{
    Colours colours;
    EditorFixture fixture("combobox");
    fixture.view.bindModel(0, &colours);

    fixture.view.bindModel(0, nullptr, 1);

    QComboBox *box = qobject_cast<QComboBox *>(fixture.open(0, 0, "red"));
    QVERIFY(box);
    QCOMPARE(box->count(), 0);
    QCOMPARE(box->modelColumn(), 1);
}

void ComboItemDelegateTest::opensEmptyWhenColumnsWereDeclaredAnew()
{
    Colours colours;
    EditorFixture fixture("combobox");
    fixture.view.bindModel(0, &colours);

    fixture.view.setColumns(fixture.view.getColumns());

    QComboBox *box = qobject_cast<QComboBox *>(fixture.open(0, 0, "red"));
    QVERIFY(box);
    QCOMPARE(box->count(), 0);
}

void ComboItemDelegateTest::keepsTheListOfAnOpenEditorWhenBoundAgain()
{
    Colours colours;
    EditorFixture fixture("combobox");
    fixture.view.bindModel(0, &colours);
    QComboBox *box = qobject_cast<QComboBox *>(fixture.open(0, 0));

    fixture.view.bindModel(0, &colours, 1);

    QVERIFY(box);
    QCOMPARE(items(*box), QString("red,green,blue"));
}

void ComboItemDelegateTest::choosesTheStoredText_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("current");

    QTest::newRow("in the list") << QVariant(QString("green")) << 0 << 1;
    QTest::newRow("other case") << QVariant(QString("Green")) << 0 << -1;
    QTest::newRow("part of an item") << QVariant(QString("gre")) << 0 << -1;
    QTest::newRow("not in the list") << QVariant(QString("pink")) << 0 << -1;
    QTest::newRow("empty") << QVariant(QString()) << 0 << -1;
    QTest::newRow("number") << QVariant(7) << 1 << 2;
    QTest::newRow("double") << QVariant(6.0) << 1 << 1;
}

void ComboItemDelegateTest::choosesTheStoredText()
{
    QFETCH(QVariant, stored);
    QFETCH(int, column);
    Colours colours;
    EditorFixture fixture("combobox");
    fixture.view.bindModel(0, &colours, column);

    QComboBox *box = qobject_cast<QComboBox *>(fixture.open(0, 0, stored));

    QVERIFY(box);
    QTEST(box->currentIndex(), "current");
}

void ComboItemDelegateTest::choosesALargeDoubleByAllItsDigits()
{
    QStandardItemModel numbers;
    numbers.appendRow(new QStandardItem("1e+06"));
    numbers.appendRow(new QStandardItem("1000000"));
    EditorFixture fixture("combobox");
    fixture.view.bindModel(0, &numbers);

    QComboBox *box = qobject_cast<QComboBox *>(fixture.open(0, 0, 1000000.0));

    QVERIFY(box);
    QCOMPARE(box->currentIndex(), 1);
}

void ComboItemDelegateTest::writesOnlyAChoiceThatDiffers_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<int>("keyDowns");
    QTest::addColumn<QString>("writes");

    QTest::newRow("next item") << "red" << 1 << "edit green";
    QTest::newRow("last item") << "red" << 2 << "edit blue";
    QTest::newRow("unchanged") << "green" << 0 << "";
    QTest::newRow("nothing chosen over an unknown text") << "pink" << 0 << "";
    QTest::newRow("nothing chosen over the other case") << "Green" << 0 << "";
    QTest::newRow("nothing chosen over nothing") << "" << 0 << "";
    QTest::newRow("chosen over an unknown text") << "pink" << 1 << "edit red";
}

void ComboItemDelegateTest::writesOnlyAChoiceThatDiffers()
{
    QFETCH(QString, stored);
    QFETCH(int, keyDowns);
    Colours colours;
    EditorFixture fixture("combobox");
    fixture.view.bindModel(0, &colours);
    QWidget *box = fixture.open(0, 0, stored);
    QVERIFY(box);
    for (int i = 0; i < keyDowns; ++i) {
        QTest::keyClick(box, Qt::Key_Down);
    }

    commitEditor(box);

    QTEST(fixture.model.writes.join("|"), "writes");
}

void ComboItemDelegateTest::leavesAForeignEditorAlone()
{
    verifyLeavesForeignEditorAlone("combobox");
}

TESSALINE_TEST_MAIN(ComboItemDelegateTest)
#include "tst_comboitemdelegate.moc"
