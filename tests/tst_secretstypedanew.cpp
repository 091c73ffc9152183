// SPDX-License-Identifier: LGPL-3.0-or-later
#include "EditorFixture.h"
#include "PasswordItemDelegate.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QLineEdit>
#include <QStyle>

namespace {

const int secretRole = Qt::UserRole + 1;

/// A shown table whose first cell holds the secret "abc", and its mask.
struct Secret : EditorFixture
{
    Secret()
        : EditorFixture(QString::fromLatin1("passwordbox"))
    {
        model.put(0, 0, "abc", secretRole);
        model.put(0, 0, mask(3), Qt::DisplayRole);
    }

    QString mask(int length) const
    {
        const int character = view.style()->styleHint(QStyle::SH_LineEdit_PasswordCharacter);
        return QString(length, QChar(ushort(character)));
    }

    QLineEdit *open()
    {
        return qobject_cast<QLineEdit *>(EditorFixture::open(0, 0, mask(3)));
    }
};

/// Takes no secrets, and says so.
class RefusingModel : public RecordingModel
{
public:
    RefusingModel()
        : RecordingModel(1, 1)
    {
    }

    bool setData(const QModelIndex &index, const QVariant &value, int role) override
    {
        RecordingModel::setData(index, value, role);
        return role != secretRole;
    }
};

/// Gets another row on top as soon as it is written into, once.
class GrowingModel : public RecordingModel
{
public:
    GrowingModel()
        : RecordingModel(1, 1)
    {
    }

    bool setData(const QModelIndex &index, const QVariant &value, int role) override
    {
        const bool done = RecordingModel::setData(index, value, role);
        return rowCount() > 1 ? done : insertRow(0);
    }
};

} // namespace

/// Secrets that are written again, in whole or in part, over others or over the same.
class SecretsTypedAnewTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void writesTheSameSecretAgain();
    void writesAMaskThatIsTypedAsTheSecret();
    void writesWhatIsTypedBehindTheMask();
    void writesTheSameMaskAgain();
    void writesNoMaskWhereTheSecretAloneWasCleared();
    void masksASecretThatTheModelRefuses();
    void masksTheCellWhereverItsFirstWriteMovesIt();
    void masksEachCharacter_data();
    void masksEachCharacter();
    void writesASecretOnce();
    void losesASecretThatIsEscaped();
    void writesASecretWhenTheTableIsDisabled();
    void leavesTheFocusOfOthersAloneWhenItGivesAFieldUp();
    void takesAFieldThatItGaveUpAway();
    void leavesTheFocusToTheTableWhenItGivesAFieldUp_data();
    void leavesTheFocusToTheTableWhenItGivesAFieldUp();
};

void SecretsTypedAnewTest::writesTheSameSecretAgain()
{
    Secret table;
    QWidget *field = table.open();
    QVERIFY(field);
    QTest::keyClicks(field, "abc"); // over the mask, which is selected

    commitEditor(field);

    QCOMPARE(table.model.writes,
             QStringList() << "secret abc" << QString("display " + table.mask(3)));
}

void SecretsTypedAnewTest::writesAMaskThatIsTypedAsTheSecret()
{
    Secret table;
    QLineEdit *field = table.open();
    QVERIFY(field);
    QTest::keyClicks(field, "x");
    field->selectAll();
    field->insert(table.mask(3)); // as if pasted

    commitEditor(field);

    QCOMPARE(table.cell(0, 0, secretRole).toString(), table.mask(3));
}

void SecretsTypedAnewTest::writesWhatIsTypedBehindTheMask()
{
    Secret table;
    QWidget *field = table.open();
    QVERIFY(field);
    QTest::keyClick(field, Qt::Key_End);
    QTest::keyClicks(field, "d");

    commitEditor(field);

    QCOMPARE(table.cell(0, 0, secretRole).toString(), QString(table.mask(3) + "d"));
    QCOMPARE(table.cell(0, 0, Qt::DisplayRole).toString(), table.mask(4));
}

void SecretsTypedAnewTest::writesTheSameMaskAgain()
{
    Secret table;
    QWidget *field = table.open();
    QVERIFY(field);

    commitEditor(field);

    QCOMPARE(table.model.writes, QStringList(QString("display " + table.mask(3))));
}

void SecretsTypedAnewTest::writesNoMaskWhereTheSecretAloneWasCleared()
{
    RecordingModel model(1, 1);
    model.put(0, 0, "abc", secretRole);
    QLineEdit field("x");
    QTest::keyClick(&field, Qt::Key_Backspace);

    PasswordItemDelegate().setModelData(&field, &model, model.index(0, 0));

    QCOMPARE(model.writes, QStringList("secret ")); // now there is nothing to be masked
}

void SecretsTypedAnewTest::masksASecretThatTheModelRefuses()
{
    RefusingModel model;
    QLineEdit field;
    field.setEchoMode(QLineEdit::Password);
    QTest::keyClicks(&field, "abc");

    PasswordItemDelegate().setModelData(&field, &model, model.index(0, 0));

    QCOMPARE(model.writes,
             QStringList() << "secret abc" << QString("display " + field.displayText()));
}

void SecretsTypedAnewTest::masksTheCellWhereverItsFirstWriteMovesIt()
{
    GrowingModel model;
    QLineEdit field;
    field.setEchoMode(QLineEdit::Password);
    QTest::keyClicks(&field, "abc");

    PasswordItemDelegate().setModelData(&field, &model, model.index(0, 0));

    QCOMPARE(model.index(0, 0).data().toString(), QString());
    QCOMPARE(model.index(1, 0).data().toString(), field.displayText());
}

void SecretsTypedAnewTest::masksEachCharacter_data()
{
    QTest::addColumn<QString>("secret");

    QTest::newRow("one") << "a";
    QTest::newRow("blanks") << "   ";
    QTest::newRow("many") << QString(40, QLatin1Char('z'));
    QTest::newRow("as many as a key has") << QString(200, QLatin1Char('k'));
}

void SecretsTypedAnewTest::masksEachCharacter()
{
    QFETCH(QString, secret);
    Secret table;
    QWidget *field = table.open();
    QVERIFY(field);
    QTest::keyClicks(field, secret);

    commitEditor(field);

    QCOMPARE(table.cell(0, 0, Qt::DisplayRole).toString(), table.mask(int(secret.size())));
    QCOMPARE(table.cell(0, 0, secretRole).toString(), secret);
}

void SecretsTypedAnewTest::writesASecretOnce()
{
    Secret table;
    QWidget *field = table.open();
    QVERIFY(field);
    QTest::keyClicks(field, "new");
    commitEditor(field);
    table.model.put(0, 0, "from elsewhere", secretRole);
    field = table.open();
    QVERIFY(field);

    commitEditor(field);

    QCOMPARE(table.cell(0, 0, secretRole).toString(), QString("from elsewhere"));
}

void SecretsTypedAnewTest::losesASecretThatIsEscaped()
{
    Secret table;
    QWidget *field = table.open();
    QVERIFY(field);
    QTest::keyClicks(field, "new");

    QTest::keyClick(field, Qt::Key_Escape);
    goThroughEvents();

    QCOMPARE(table.model.writes, QStringList());
    QCOMPARE(table.cell(0, 0, secretRole).toString(), QString("abc"));
}

void SecretsTypedAnewTest::leavesTheFocusOfOthersAloneWhenItGivesAFieldUp()
{
    Secret table;
    table.view.openPersistentEditor(table.model.index(0, 0));
    QLineEdit other(&table.view);
    other.show();
    other.setFocus();
    QVERIFY(other.hasFocus());

    table.model.insertColumn(0);

    QVERIFY(other.hasFocus());
}

void SecretsTypedAnewTest::takesAFieldThatItGaveUpAway()
{
    RecordingModel model(1, 2);
    QWidget parent;
    const QPointer<QWidget> field
        = PasswordItemDelegate().createEditor(&parent, QStyleOptionViewItem(), model.index(0, 1));
    parent.show();
    field->show();

    model.insertColumn(0);

    QVERIFY(!field->isVisible());
    goThroughEvents();
    QVERIFY(!field);
}

void SecretsTypedAnewTest::leavesTheFocusToTheTableWhenItGivesAFieldUp_data()
{
    QTest::addColumn<bool>("isActive");

    QTest::newRow("in an active window") << true;
    QTest::newRow("in another window's shade") << false;
}

void SecretsTypedAnewTest::leavesTheFocusToTheTableWhenItGivesAFieldUp()
{
    QFETCH(bool, isActive);
    tolerateWarnings("QAbstractItemView::"); // Qt 6 has given the editor up before
    Secret table;
    table.view.openPersistentEditor(table.model.index(0, 0));
    QWidget *field = table.view.indexWidget(table.model.index(0, 0));
    QLineEdit next(&table.view);
    next.show();
    QWidget other;
    if (!isActive) {
        showWindow(&other, 100, 100);
    }
    field->setFocus();
    QCOMPARE(table.view.window()->focusWidget(), field);

    table.model.insertColumn(0);

    QCOMPARE(table.view.window()->focusWidget(), static_cast<QWidget *>(&table.view));
}

void SecretsTypedAnewTest::writesASecretWhenTheTableIsDisabled()
{
    Secret table;
    QWidget *field = table.open();
    QVERIFY(field);
    QTest::keyClicks(field, "new");

    table.view.setEnabled(false);
    goThroughEvents();

    QCOMPARE(table.cell(0, 0, secretRole).toString(), QString("new"));
}

TESSALINE_TEST_MAIN(SecretsTypedAnewTest)
#include "tst_secretstypedanew.moc"
