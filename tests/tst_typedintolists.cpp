// SPDX-License-Identifier: LGPL-3.0-or-later
#include "EditorFixture.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QComboBox>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QStandardItemModel>
#include <QStringListModel>

namespace {

/// A shown table of lists to choose from, or to type into, with red, green and blue in them.
struct Colours : EditorFixture
{
    explicit Colours(const QString &declaration = QString::fromLatin1("editcombobox"))
        : EditorFixture(declaration)
        , items(QStringList() << "red"
                              << "green"
                              << "blue")
    {
        view.bindModel(0, &items);
    }

    /// Opens the editor of the first cell and types over what stands in it.
    QComboBox *type(const QString &stored, const QString &typed)
    {
        QComboBox *box = qobject_cast<QComboBox *>(open(0, 0, stored));
        if (box) {
            box->lineEdit()->selectAll();
            QTest::keyClicks(box, typed);
        }
        return box;
    }

    QStringListModel items;
};

/// Items that show another text than they hold.
class ShownColours : public QStringListModel
{
public:
    ShownColours()
        : QStringListModel(QStringList() << "r"
                                         << "g")
    {
    }

    QVariant data(const QModelIndex &index, int role) const override
    {
        const QVariant held = QStringListModel::data(index, role);
        return role == Qt::DisplayRole ? held.toString() + "-shown" : held;
    }
};

/// Items that no others can join.
class FixedList : public QStringListModel
{
public:
    FixedList()
        : QStringListModel(QStringList() << "red"
                                         << "green")
    {
    }

    bool insertRows(int, int, const QModelIndex &) override
    {
        return false;
    }
};

/// Takes items without the blanks around them.
class TidyList : public QStringListModel
{
public:
    bool setData(const QModelIndex &index, const QVariant &value, int role) override
    {
        return QStringListModel::setData(index, value.toString().trimmed(), role);
    }
};

} // namespace

/// What the toolkit does with a text that is typed into a list, and what items are known by.
class TypedIntoListsTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void completesATextToAnItem();
    void addsATypedTextToTheBoundModelByReturn();
    void addsNoTextThatTheListHas();
    void writesATextThatTheListDoesNotTake();
    void writesATextThatCameWithoutAKeyAndTheListDoesNotTake();
    void writesWhatTheListMakesOfATypedText();
    void writesATextThatJoinsALaterColumn();
    void emptiesACellWhoseTextIsDeleted();
    void addsNothingWhenTheFieldIsLeft();
    void addsNothingWhenColumnsAreDeclaredAnew();
    void offersAnAddedTextInTheNextCell();
    void listsItemsThatComeWhileItIsOpen();
    void listsAnotherColumnOfTheSameModel();
    void knowsItemsByWhatTheyShow();
    void writesWhatAnItemShows();
    void writesAnItemThatWasDisabledSinceItWasChosen();
    void choosesANumberFromAListOfNumbers();
};

void TypedIntoListsTest::completesATextToAnItem()
{
    Colours table;
    QComboBox *box = table.type("red", "gr");
    QVERIFY(box);
    QCOMPARE(box->currentText(), QString("green"));

    commitEditor(box);

    QCOMPARE(table.model.writes, QStringList("edit green"));
}

void TypedIntoListsTest::addsATypedTextToTheBoundModelByReturn()
{
    Colours table;
    QWidget *box = table.type("red", "pink");
    QVERIFY(box);

    commitEditor(box);

    QCOMPARE(table.items.stringList().join(","), QString("red,green,blue,pink"));
    QCOMPARE(table.model.writes, QStringList("edit pink"));
}

void TypedIntoListsTest::addsNoTextThatTheListHas()
{
    Colours table;
    QWidget *box = table.type("red", "blue");
    QVERIFY(box);

    commitEditor(box);

    QCOMPARE(table.items.stringList().join(","), QString("red,green,blue"));
}

void TypedIntoListsTest::writesATextThatTheListDoesNotTake()
{
    FixedList items;
    Colours table;
    table.view.bindModel(0, &items);
    QWidget *box = table.type("red", "pink");
    QVERIFY(box);

    commitEditor(box);

    QCOMPARE(table.model.writes, QStringList("edit pink"));
    QCOMPARE(items.stringList().join(","), QString("red,green"));
}

void TypedIntoListsTest::writesATextThatJoinsALaterColumn()
{
    QStandardItemModel items(1, 2);
    items.setItem(0, 1, new QStandardItem("red"));
    Colours table;
    table.view.bindModel(0, &items, 1);
    QWidget *box = table.type("red", "pink");
    QVERIFY(box);

    commitEditor(box);

    QCOMPARE(table.model.writes, QStringList("edit pink"));
}

void TypedIntoListsTest::emptiesACellWhoseTextIsDeleted()
{
    Colours table;
    QComboBox *box = table.type("red", "pink");
    QVERIFY(box);
    box->lineEdit()->selectAll();
    QTest::keyClick(box, Qt::Key_Delete);

    commitEditor(box);

    QCOMPARE(table.model.writes, QStringList("edit "));
    QCOMPARE(table.items.rowCount(), 3);
}

void TypedIntoListsTest::addsNothingWhenTheFieldIsLeft()
{
    Colours table;
    QWidget *box = table.type("red", "pink");
    QVERIFY(box);

    QTest::keyClick(box, Qt::Key_Tab);
    goThroughEvents();

    QCOMPARE(table.items.stringList().join(","), QString("red,green,blue"));
    QCOMPARE(table.model.writes, QStringList("edit pink"));
}

void TypedIntoListsTest::addsNothingWhenColumnsAreDeclaredAnew()
{
    Colours table;
    QVERIFY(table.type("red", "pink"));

    table.view.setColumns(QStringList());
    goThroughEvents();

    QCOMPARE(table.items.stringList().join(","), QString("red,green,blue"));
    QCOMPARE(table.model.writes, QStringList("edit pink"));
}

void TypedIntoListsTest::offersAnAddedTextInTheNextCell()
{
    Colours table;
    QWidget *box = table.type("red", "pink");
    QVERIFY(box);
    commitEditor(box);

    QComboBox *next = qobject_cast<QComboBox *>(table.open(1, 0, "pink"));

    QVERIFY(next);
    QCOMPARE(next->currentIndex(), 3);
}

void TypedIntoListsTest::listsItemsThatComeWhileItIsOpen()
{
    Colours table("combobox");
    QComboBox *box = qobject_cast<QComboBox *>(table.open(0, 0, "blue"));
    QVERIFY(box);
    table.items.setStringList(QStringList() << "cyan"
                                            << "blue");
    QCOMPARE(box->count(), 2);
    QTest::keyClicks(box, "cyan");

    commitEditor(box);

    QCOMPARE(table.model.writes, QStringList("edit cyan"));
}

void TypedIntoListsTest::listsAnotherColumnOfTheSameModel()
{
    QStandardItemModel items(1, 2);
    items.setItem(0, 0, new QStandardItem("first"));
    items.setItem(0, 1, new QStandardItem("second"));
    EditorFixture fixture("combobox");
    fixture.view.bindModel(0, &items, 0);

    fixture.view.bindModel(0, &items, 1);

    QComboBox *box = qobject_cast<QComboBox *>(fixture.open(0, 0));
    QVERIFY(box);
    QCOMPARE(box->itemText(0), QString("second"));
}

void TypedIntoListsTest::knowsItemsByWhatTheyShow()
{
    ShownColours items;
    EditorFixture fixture("combobox");
    fixture.view.bindModel(0, &items);

    QComboBox *box = qobject_cast<QComboBox *>(fixture.open(0, 0, "g-shown"));

    QVERIFY(box);
    QCOMPARE(box->currentIndex(), 1);
}

void TypedIntoListsTest::writesWhatAnItemShows()
{
    ShownColours items;
    EditorFixture fixture("combobox");
    fixture.view.bindModel(0, &items);
    QWidget *box = fixture.open(0, 0, "r-shown");
    QVERIFY(box);
    QTest::keyClick(box, Qt::Key_Down);

    commitEditor(box);

    QCOMPARE(fixture.model.writes, QStringList("edit g-shown"));
}

void TypedIntoListsTest::choosesANumberFromAListOfNumbers()
{
    QStandardItemModel items(3, 1);
    for (int row = 0; row < 3; ++row) {
        items.setData(items.index(row, 0), row + 5, Qt::DisplayRole);
    }
    EditorFixture fixture("combobox");
    fixture.view.bindModel(0, &items);

    QComboBox *box = qobject_cast<QComboBox *>(fixture.open(0, 0, "6"));

    QVERIFY(box);
    QCOMPARE(box->currentIndex(), 1);
}

// By mouse, or by an input method as here.
void TypedIntoListsTest::writesATextThatCameWithoutAKeyAndTheListDoesNotTake()
{
    FixedList items;
    Colours table;
    table.view.bindModel(0, &items);
    QComboBox *box = qobject_cast<QComboBox *>(table.open(0, 0, "red"));
    QVERIFY(box);
    box->lineEdit()->selectAll();
    QInputMethodEvent input;
    input.setCommitString("pink");
    QApplication::sendEvent(box->lineEdit(), &input);
    QCOMPARE(box->currentText(), QString("pink"));

    commitEditor(box);

    QCOMPARE(table.model.writes, QStringList("edit pink"));
}

void TypedIntoListsTest::writesWhatTheListMakesOfATypedText()
{
    TidyList items;
    Colours table;
    table.view.bindModel(0, &items);
    QWidget *box = table.type("red", " pink ");
    QVERIFY(box);

    commitEditor(box);

    QCOMPARE(items.stringList().join(","), QString("pink"));
    QCOMPARE(table.model.writes, QStringList("edit pink"));
}

void TypedIntoListsTest::writesAnItemThatWasDisabledSinceItWasChosen()
{
    QStandardItemModel items;
    items.appendRow(new QStandardItem("red"));
    items.appendRow(new QStandardItem("green"));
    EditorFixture fixture("combobox");
    fixture.view.bindModel(0, &items);
    QWidget *box = fixture.open(0, 0, "red");
    QVERIFY(box);
    QTest::keyClick(box, Qt::Key_Down);
    items.item(1)->setEnabled(false);

    commitEditor(box);

    QCOMPARE(fixture.model.writes, QStringList("edit green"));
}

TESSALINE_TEST_MAIN(TypedIntoListsTest)
#include "tst_typedintolists.moc"
