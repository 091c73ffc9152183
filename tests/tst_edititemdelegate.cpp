// SPDX-License-Identifier: LGPL-3.0-or-later
#include "DisguisedModel.h"
#include "EditItemDelegate.h"
#include "EditorFixture.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QLineEdit>

class EditItemDelegateTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void opensAFramelessLineEditOverTheCell();
    void opensWithTheStoredText_data();
    void opensWithTheStoredText();
    void writesOnlyATextThatDiffers_data();
    void writesOnlyATextThatDiffers();
    void escapeDiscardsWhatWasTyped();
    void emptiesACellWhoseTextIsDeleted();
    void leavesAForeignEditorAlone();
    void readsWhatACellHoldsNotWhatItShows();
};

void EditItemDelegateTest::opensAFramelessLineEditOverTheCell()
{
    EditorFixture fixture("editbox");

    QLineEdit *field = qobject_cast<QLineEdit *>(fixture.open(1, 3));

    QVERIFY(field);
    QVERIFY(!field->hasFrame());
    QCOMPARE(field->echoMode(), QLineEdit::Normal);
    verifyDressed(&fixture, field, 1, 3, "EditableTableViewEdit column3");
}

void EditItemDelegateTest::opensWithTheStoredText_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QString>("text");

    QTest::newRow("text") << QVariant(QString("abc")) << "abc";
    QTest::newRow("blanks kept") << QVariant(QString(" a ")) << " a ";
    QTest::newRow("nothing") << QVariant() << "";
    QTest::newRow("number") << QVariant(42) << "42";
    QTest::newRow("million") << QVariant(1000000.0) << "1000000";
}

void EditItemDelegateTest::opensWithTheStoredText()
{
    QFETCH(QVariant, stored);
    EditorFixture fixture("editbox");

    QLineEdit *field = qobject_cast<QLineEdit *>(fixture.open(0, 0, stored));

    QVERIFY(field);
    QTEST(field->text(), "text");
}

void EditItemDelegateTest::writesOnlyATextThatDiffers_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("writes");

    QTest::newRow("typed over") << QVariant(QString("abc")) << "xyz"
                                << "edit xyz";
    QTest::newRow("typed in other case") << QVariant(QString("abc")) << "ABC"
                                         << "edit ABC";
    QTest::newRow("typed with blanks") << QVariant(QString("abc")) << " x "
                                       << "edit  x ";
    QTest::newRow("typed into nothing") << QVariant() << "x"
                                        << "edit x";
    QTest::newRow("typed a number over a text") << QVariant(QString("a")) << "7"
                                                << "edit 7";
    QTest::newRow("typed the same") << QVariant(QString("abc")) << "abc"
                                    << "";
    QTest::newRow("typed the same number") << QVariant(7) << "7"
                                           << "";
    QTest::newRow("untouched") << QVariant(QString("abc")) << ""
                               << "";
    QTest::newRow("untouched number") << QVariant(1000000.0) << ""
                                      << "";
    QTest::newRow("untouched nothing") << QVariant() << ""
                                       << "";
}

void EditItemDelegateTest::writesOnlyATextThatDiffers()
{
    QFETCH(QVariant, stored);
    QFETCH(QString, typed);
    EditorFixture fixture("editbox");
    QWidget *field = fixture.open(0, 0, stored);
    QVERIFY(field);
    QTest::keyClicks(field, typed); // over the selected text

    commitEditor(field);

    QTEST(fixture.model.writes.join("|"), "writes");
}

void EditItemDelegateTest::escapeDiscardsWhatWasTyped()
{
    EditorFixture fixture("editbox");
    QWidget *field = fixture.open(0, 0, "abc");
    QVERIFY(field);
    QTest::keyClicks(field, "xyz");

    QTest::keyClick(field, Qt::Key_Escape);

    QCOMPARE(fixture.model.writes, QStringList());
    QCOMPARE(fixture.cell(0, 0).toString(), QString("abc"));
}

void EditItemDelegateTest::leavesAForeignEditorAlone()
{
    verifyLeavesForeignEditorAlone("editbox");
}

void EditItemDelegateTest::readsWhatACellHoldsNotWhatItShows()
{
    DisguisedModel model("held");
    const EditItemDelegate delegate;
    QLineEdit field;
    delegate.setEditorData(&field, model.index(0, 0));
    QCOMPARE(field.text(), QString("held"));
    field.setText("shown");

    delegate.setModelData(&field, &model, model.index(0, 0));

    QCOMPARE(model.writes, QStringList("edit shown"));
}

void EditItemDelegateTest::emptiesACellWhoseTextIsDeleted()
{
    EditorFixture fixture("editbox");
    QWidget *field = fixture.open(0, 0, "abc");
    QVERIFY(field);
    QTest::keyClick(field, Qt::Key_Delete); // the text is selected

    commitEditor(field);

    QCOMPARE(fixture.model.writes, QStringList("edit "));
}

TESSALINE_TEST_MAIN(EditItemDelegateTest)
#include "tst_edititemdelegate.moc"
