// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ColumnDeclaration.h"
#include "TestCase.h"

class ColumnDeclarationTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void readsTypeAndText_data();
    void readsTypeAndText();
};

void ColumnDeclarationTest::readsTypeAndText_data()
{
    QTest::addColumn<QString>("declaration");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("text");

    QTest::newRow("combobox") << "combobox" << int(ColumnDeclaration::Combo) << "";
    QTest::newRow("editcombobox") << "editcombobox" << int(ColumnDeclaration::EditCombo) << "";
    QTest::newRow("editbox") << "editbox" << int(ColumnDeclaration::Edit) << "";
    QTest::newRow("passwordbox") << "passwordbox" << int(ColumnDeclaration::Password) << "";
    QTest::newRow("checkbox") << "checkbox" << int(ColumnDeclaration::Check) << "";
    QTest::newRow("button") << "button" << int(ColumnDeclaration::Button) << "";

    QTest::newRow("mixed case") << "ComboBox" << int(ColumnDeclaration::Combo) << "";
    QTest::newRow("capitals") << "PASSWORDBOX" << int(ColumnDeclaration::Password) << "";
    QTest::newRow("blanks around") << "  EditBox \t" << int(ColumnDeclaration::Edit) << "";
    QTest::newRow("line feed around") << "\nbutton\n:Go" << int(ColumnDeclaration::Button) << "Go";
    QTest::newRow("blank inside") << "combo box" << int(ColumnDeclaration::Plain) << "";
    QTest::newRow("longer word") << "editboxes" << int(ColumnDeclaration::Plain) << "";
    QTest::newRow("shorter word") << "edit" << int(ColumnDeclaration::Plain) << "";
    QTest::newRow("unknown") << "spinbox" << int(ColumnDeclaration::Plain) << "";
    QTest::newRow("empty") << "" << int(ColumnDeclaration::Plain) << "";
    QTest::newRow("colon only") << ":" << int(ColumnDeclaration::Plain) << "";
    QTest::newRow("keyword as text") << ":button" << int(ColumnDeclaration::Plain) << "button";

    QTest::newRow("text") << "button:Delete" << int(ColumnDeclaration::Button) << "Delete";
    QTest::newRow("text trimmed") << "button: Remove " << int(ColumnDeclaration::Button)
                                  << "Remove";
    QTest::newRow("text with colon") << "button:a:b" << int(ColumnDeclaration::Button) << "a:b";
    QTest::newRow("text begins with colon")
        << "button::b" << int(ColumnDeclaration::Button) << ":b";
    QTest::newRow("text ends with colon") << "button:a:" << int(ColumnDeclaration::Button) << "a:";
    QTest::newRow("text of colons") << "button:::" << int(ColumnDeclaration::Button) << "::";
    QTest::newRow("inner blanks kept")
        << "checkbox:  Check  me :now " << int(ColumnDeclaration::Check) << "Check  me :now";
    QTest::newRow("no text behind colon") << "checkbox:" << int(ColumnDeclaration::Check) << "";
    QTest::newRow("ignored text") << "editbox:nothing" << int(ColumnDeclaration::Edit) << "nothing";
}

void ColumnDeclarationTest::readsTypeAndText()
{
    QFETCH(QString, declaration);

    const ColumnDeclaration declared(declaration);

    QTEST(int(declared.type), "type");
    QTEST(declared.text, "text");
}

TESSALINE_TEST_MAIN(ColumnDeclarationTest)
#include "tst_columndeclaration.moc"
