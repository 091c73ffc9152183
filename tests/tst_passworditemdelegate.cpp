// SPDX-License-Identifier: LGPL-3.0-or-later
#include "EditorFixture.h"
#include "GridModel.h"
#include "PasswordItemDelegate.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QLineEdit>
#include <QStyle>

namespace {

const int secretRole = Qt::UserRole + 1;

QString mask(const EditorFixture &fixture, int length)
{
    const int character
        = fixture.view.style()->styleHint(QStyle::SH_LineEdit_PasswordCharacter, nullptr, nullptr);
    return QString(length, QChar(ushort(character)));
}

void changeColumns(GridModel *model, const QString &change, int column, int destination)
{
    if (change == "insert") {
        model->insertColumns(column, 1);
    } else if (change == "remove") {
        model->removeColumns(column, 1);
    } else if (change == "move") {
        model->shiftColumn(column, destination);
    } else {
        model->mirrorColumns();
    }
}

} // namespace

class PasswordItemDelegateTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void opensAMaskedLineEditOverTheCell();
    void opensWithTheMaskAndNeverWithTheSecret();
    void storesATypedSecretApartFromItsMask();
    void rewritesTheMaskOnlyWhenCommittedUntouched();
    void writesNothingIntoAnEmptyCellLeftEmpty();
    void clearingTheFieldClearsSecretAndMask();
    void decidesOnTheMaskByWhatTheModelHolds_data();
    void decidesOnTheMaskByWhatTheModelHolds();
    void asksTheModelOnlyForWhatDecides_data();
    void asksTheModelOnlyForWhatDecides();
    void masksWhatWasTypedThoughTheFieldIsLoadedAgain();
    void survivesARowThatGoesWithItsFirstWrite();
    void givesAFieldUpWhoseColumnMoves_data();
    void givesAFieldUpWhoseColumnMoves();
    void keepsAFieldWhenColumnsOfOtherCellsMove();
    void watchesMovesFromOneRowToAnother_data();
    void watchesMovesFromOneRowToAnother();
    void leavesAForeignEditorAlone();
};

void PasswordItemDelegateTest::opensAMaskedLineEditOverTheCell()
{
    EditorFixture fixture("passwordbox");

    QLineEdit *field = qobject_cast<QLineEdit *>(fixture.open(1, 1));

    QVERIFY(field);
    QVERIFY(!field->hasFrame());
    QCOMPARE(field->echoMode(), QLineEdit::Password);
    QCOMPARE(QString(field->metaObject()->className()), QString("QLineEdit"));
    verifyDressed(&fixture, field, 1, 1, "EditableTableViewPassword column1");
}

void PasswordItemDelegateTest::opensWithTheMaskAndNeverWithTheSecret()
{
    EditorFixture fixture("passwordbox");
    fixture.model.put(0, 0, "secret", secretRole);

    QLineEdit *field = qobject_cast<QLineEdit *>(fixture.open(0, 0, "******"));

    QVERIFY(field);
    QCOMPARE(field->text(), QString("******"));
}

void PasswordItemDelegateTest::storesATypedSecretApartFromItsMask()
{
    EditorFixture fixture("passwordbox");
    QWidget *field = fixture.open(0, 0);
    QVERIFY(field);
    QTest::keyClicks(field, "abc");

    commitEditor(field);

    QCOMPARE(fixture.model.writes,
             QStringList() << "secret abc" << QString("display " + mask(fixture, 3)));
    QCOMPARE(fixture.cell(0, 0, secretRole).toString(), QString("abc"));
    QCOMPARE(fixture.cell(0, 0, Qt::DisplayRole).toString(), mask(fixture, 3));
    QCOMPARE(fixture.cell(0, 0, Qt::EditRole).toString(), mask(fixture, 3));
}

void PasswordItemDelegateTest::rewritesTheMaskOnlyWhenCommittedUntouched()
{
    EditorFixture fixture("passwordbox");
    fixture.model.put(0, 0, "secret", secretRole);
    QWidget *field = fixture.open(0, 0, mask(fixture, 6));
    QVERIFY(field);

    commitEditor(field);

    QCOMPARE(fixture.model.writes, QStringList() << QString("display " + mask(fixture, 6)));
    QCOMPARE(fixture.cell(0, 0, secretRole).toString(), QString("secret"));
}

void PasswordItemDelegateTest::writesNothingIntoAnEmptyCellLeftEmpty()
{
    EditorFixture fixture("passwordbox");
    QWidget *field = fixture.open(0, 0);
    QVERIFY(field);

    commitEditor(field);

    QCOMPARE(fixture.model.writes, QStringList());
}

void PasswordItemDelegateTest::clearingTheFieldClearsSecretAndMask()
{
    EditorFixture fixture("passwordbox");
    fixture.model.put(0, 0, "secret", secretRole);
    QWidget *field = fixture.open(0, 0, mask(fixture, 6));
    QVERIFY(field);
    QTest::keyClick(field, Qt::Key_Delete); // the text is selected

    commitEditor(field);

    QCOMPARE(fixture.model.writes,
             QStringList() << "secret "
                           << "display ");
    QCOMPARE(fixture.cell(0, 0, secretRole).toString(), QString());
    QCOMPARE(fixture.cell(0, 0, Qt::DisplayRole).toString(), QString());
}

void PasswordItemDelegateTest::decidesOnTheMaskByWhatTheModelHolds_data()
{
    QTest::addColumn<QString>("fieldText");
    QTest::addColumn<QString>("secret");
    QTest::addColumn<QString>("display");
    QTest::addColumn<bool>("writesMask");

    QTest::newRow("all empty") << ""
                               << ""
                               << "" << false;
    QTest::newRow("field only") << "x"
                                << ""
                                << "" << true;
    QTest::newRow("secret only") << ""
                                 << "s"
                                 << "" << true;
    QTest::newRow("display only") << ""
                                  << ""
                                  << "*" << true;
}

void PasswordItemDelegateTest::decidesOnTheMaskByWhatTheModelHolds()
{
    QFETCH(QString, fieldText);
    QFETCH(QString, secret);
    QFETCH(QString, display);
    QFETCH(bool, writesMask);
    RecordingModel model(1, 1);
    model.put(0, 0, display, Qt::DisplayRole);
    model.put(0, 0, secret, secretRole);
    const PasswordItemDelegate delegate;
    QLineEdit field;
    field.setEchoMode(QLineEdit::Password);
    field.setText(fieldText); // as loaded, not as typed

    delegate.setModelData(&field, &model, model.index(0, 0));

    const QStringList mask(QString("display ") + field.displayText());
    QCOMPARE(model.writes, writesMask ? mask : QStringList());
}

namespace {

/// Notes which roles are read.
class ReadModel : public RecordingModel
{
public:
    ReadModel()
        : RecordingModel(1, 1)
    {
    }

    QVariant data(const QModelIndex &index, int role) const override
    {
        reads.append(role == secretRole ? "secret" : role == Qt::DisplayRole ? "display" : "other");
        return RecordingModel::data(index, role);
    }

    mutable QStringList reads;
};

} // namespace

void PasswordItemDelegateTest::asksTheModelOnlyForWhatDecides_data()
{
    QTest::addColumn<QString>("fieldText");
    QTest::addColumn<QString>("secret");
    QTest::addColumn<QString>("reads");

    QTest::newRow("text in the field") << "x"
                                       << "s"
                                       << "";
    QTest::newRow("a secret") << ""
                              << "s"
                              << "secret";
    QTest::newRow("neither") << ""
                             << ""
                             << "secret,display";
}

void PasswordItemDelegateTest::asksTheModelOnlyForWhatDecides()
{
    QFETCH(QString, fieldText);
    QFETCH(QString, secret);
    ReadModel model;
    model.put(0, 0, secret, secretRole);
    QLineEdit field(fieldText);
    model.reads.clear();

    PasswordItemDelegate().setModelData(&field, &model, model.index(0, 0));

    QTEST(model.reads.join(","), "reads");
}

void PasswordItemDelegateTest::masksWhatWasTypedThoughTheFieldIsLoadedAgain()
{
    EditorFixture fixture("passwordbox");
    fixture.model.put(0, 0, "old", secretRole);
    QWidget *field = fixture.open(0, 0, mask(fixture, 3));
    QVERIFY(field);
    QTest::keyClicks(field, "longer");

    commitEditor(field);

    QCOMPARE(fixture.cell(0, 0, secretRole).toString(), QString("longer"));
    QCOMPARE(fixture.cell(0, 0, Qt::DisplayRole).toString(), mask(fixture, 6));
}

namespace {

/// Removes a row as soon as it is written into.
class RowEater : public RecordingModel
{
public:
    RowEater()
        : RecordingModel(1, 1)
    {
    }

    bool setData(const QModelIndex &index, const QVariant &value, int role) override
    {
        const int row = index.row();
        RecordingModel::setData(index, value, role);
        return removeRow(row);
    }
};

} // namespace

void PasswordItemDelegateTest::survivesARowThatGoesWithItsFirstWrite()
{
    RowEater model;
    const PasswordItemDelegate delegate;
    QLineEdit field;
    QTest::keyClicks(&field, "abc");

    delegate.setModelData(&field, &model, model.index(0, 0));

    QCOMPARE(model.writes, QStringList() << "secret abc");
}

void PasswordItemDelegateTest::givesAFieldUpWhoseColumnMoves_data()
{
    QTest::addColumn<int>("columnCount");
    QTest::addColumn<QString>("change");
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("destination");
    QTest::addColumn<bool>("isGivenUp");

    QTest::newRow("inserted before it") << 5 << "insert" << 0 << 0 << true;
    QTest::newRow("inserted in its place") << 5 << "insert" << 2 << 0 << true;
    QTest::newRow("inserted behind it") << 5 << "insert" << 3 << 0 << false;
    QTest::newRow("removed before it") << 5 << "remove" << 0 << 0 << true;
    QTest::newRow("removed itself") << 5 << "remove" << 2 << 0 << true;
    QTest::newRow("removed behind it") << 5 << "remove" << 3 << 0 << false;
    QTest::newRow("moved from before it to behind it") << 5 << "move" << 1 << 3 << true;
    QTest::newRow("moved from behind it to before it") << 5 << "move" << 4 << 2 << true;
    QTest::newRow("moved before it") << 5 << "move" << 0 << 2 << false;
    QTest::newRow("moved behind it") << 5 << "move" << 4 << 3 << false;
    QTest::newRow("moved away") << 5 << "move" << 2 << 5 << true;
    QTest::newRow("mirrored to another place") << 6 << "mirror" << 0 << 0 << true;
    QTest::newRow("mirrored to its own place") << 5 << "mirror" << 0 << 0 << false;
}

void PasswordItemDelegateTest::givesAFieldUpWhoseColumnMoves()
{
    QFETCH(int, columnCount);
    QFETCH(QString, change);
    QFETCH(int, column);
    QFETCH(int, destination);
    GridModel model(1, columnCount);
    const PasswordItemDelegate delegate;
    QWidget parent;
    QWidget *field = delegate.createEditor(&parent, QStyleOptionViewItem(), model.index(0, 2));

    changeColumns(&model, change, column, destination);

    QTEST(!field->isEnabled(), "isGivenUp");
}

void PasswordItemDelegateTest::keepsAFieldWhenColumnsOfOtherCellsMove()
{
    QStandardItemModel model(1, 3);
    const PasswordItemDelegate delegate;
    QWidget parent;
    QWidget *field = delegate.createEditor(&parent, QStyleOptionViewItem(), model.index(0, 2));

    QVERIFY(model.insertColumn(0, model.index(0, 0)));

    QVERIFY(field->isEnabled());
}

void PasswordItemDelegateTest::watchesMovesFromOneRowToAnother_data()
{
    QTest::addColumn<int>("fromRow");
    QTest::addColumn<int>("toRow");
    QTest::addColumn<int>("toColumn");
    QTest::addColumn<bool>("isGivenUp");

    QTest::newRow("away from its row") << 0 << 1 << 0 << true;
    QTest::newRow("into its row") << 1 << 0 << 0 << true;
    QTest::newRow("into its row, behind it") << 1 << 0 << 2 << false;
    QTest::newRow("between other rows") << 1 << 2 << 0 << false;
}

// No model of Qt's own can move columns, so its signal is played.
void PasswordItemDelegateTest::watchesMovesFromOneRowToAnother()
{
    QFETCH(int, fromRow);
    QFETCH(int, toRow);
    QFETCH(int, toColumn);
    QStandardItemModel model(3, 1);
    model.insertColumns(0, 2, model.index(0, 0));
    model.insertRow(0, model.index(0, 0));
    const PasswordItemDelegate delegate;
    QWidget parent;
    QWidget *field = delegate.createEditor(&parent, QStyleOptionViewItem(),
                                           model.index(0, 1, model.index(0, 0)));

    QMetaObject::invokeMethod(field->children().last(), "move",
                              Q_ARG(QModelIndex, model.index(fromRow, 0)), Q_ARG(int, 0),
                              Q_ARG(int, 0), Q_ARG(QModelIndex, model.index(toRow, 0)),
                              Q_ARG(int, toColumn));

    QTEST(!field->isEnabled(), "isGivenUp");
}

void PasswordItemDelegateTest::leavesAForeignEditorAlone()
{
    verifyLeavesForeignEditorAlone("passwordbox");
}

TESSALINE_TEST_MAIN(PasswordItemDelegateTest)
#include "tst_passworditemdelegate.moc"
