// SPDX-License-Identifier: LGPL-3.0-or-later
#include "TableInEdit.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QItemDelegate>
#include <QLineEdit>
#include <QStringListModel>

namespace {

QString delegateName(const EditableTableView &view, int column)
{
    const QAbstractItemDelegate *delegate = view.itemDelegateForColumn(column);
    return delegate ? QString(delegate->metaObject()->className()) : QString("none");
}

} // namespace

/// What becomes of a delegate that the application itself installed on a column, when columns are
/// declared.
class ApplicationDelegatesTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void giveWayToADeclaredEditor_data();
    void giveWayToADeclaredEditor();
    void giveWayWhenTheSameColumnIsDeclaredAgain();
    void stayWhereNoEditorIsDeclared_data();
    void stayWhereNoEditorIsDeclared();
    void areNeverDeleted();
    void seeNothingOfASecretTypedAfterThem();
    void seeNothingOfASecretTypedBeforeThem();
    void leaveTheBindingToTheColumn();
};

void ApplicationDelegatesTest::giveWayToADeclaredEditor_data()
{
    QTest::addColumn<QString>("declaration");
    QTest::addColumn<QString>("delegate");

    QTest::newRow("combobox") << "combobox"
                              << "ComboItemDelegate";
    QTest::newRow("editcombobox") << "editcombobox"
                                  << "EditComboItemDelegate";
    QTest::newRow("editbox") << "editbox"
                             << "EditItemDelegate";
    QTest::newRow("passwordbox") << "passwordbox"
                                 << "PasswordItemDelegate";
    QTest::newRow("checkbox") << "checkbox"
                              << "CheckItemDelegate";
}

void ApplicationDelegatesTest::giveWayToADeclaredEditor()
{
    QFETCH(QString, declaration);
    QItemDelegate own;
    EditableTableView view;
    view.setItemDelegateForColumn(1, &own);

    view.setColumns(QStringList() << "" << declaration);

    QTEST(delegateName(view, 1), "delegate");
}

void ApplicationDelegatesTest::giveWayWhenTheSameColumnIsDeclaredAgain()
{
    QItemDelegate own;
    EditableTableView view;
    view.setColumns(QStringList("passwordbox"));
    view.setItemDelegateForColumn(0, &own);

    view.setColumns(QStringList("passwordbox"));

    QCOMPARE(delegateName(view, 0), QString("PasswordItemDelegate"));
}

void ApplicationDelegatesTest::stayWhereNoEditorIsDeclared_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("declaration");

    QTest::newRow("plain column") << ""
                                  << "";
    QTest::newRow("button column") << ""
                                   << "button:Go";
    QTest::newRow("unknown keyword") << ""
                                     << "spinbox";
    QTest::newRow("was a password column") << "passwordbox"
                                           << "";
    QTest::newRow("becomes a button column") << "editbox"
                                             << "button";
}

void ApplicationDelegatesTest::stayWhereNoEditorIsDeclared()
{
    QFETCH(QString, before);
    QFETCH(QString, declaration);
    QItemDelegate own;
    EditableTableView view;
    view.setColumns(QStringList(before));
    view.setItemDelegateForColumn(0, &own);

    view.setColumns(QStringList(declaration));

    QCOMPARE(view.itemDelegateForColumn(0), static_cast<QAbstractItemDelegate *>(&own));
}

void ApplicationDelegatesTest::areNeverDeleted()
{
    const QPointer<QItemDelegate> own = new QItemDelegate;
    EditableTableView view;
    view.setColumns(QStringList("editbox"));
    view.setItemDelegateForColumn(0, own);

    view.setColumns(QStringList("checkbox"));
    view.setColumns(QStringList());
    goThroughEvents();

    QVERIFY(own);
    delete own.data();
}

void ApplicationDelegatesTest::seeNothingOfASecretTypedAfterThem()
{
    QItemDelegate own;
    TalkativeModel model;
    EditableTableView view;
    view.setItemDelegateForColumn(2, &own);
    view.setColumns(declarations());
    view.setModel(&model);
    showWindow(&view, 400, 200);
    QLineEdit *field = qobject_cast<QLineEdit *>(openEditor(&view, model.index(0, 2)));
    QVERIFY(field);
    QTest::keyClicks(field, "typed");

    commitEditor(field);

    QCOMPARE(model.writes.filter("typed"), QStringList("secret typed"));
    QVERIFY(!model.index(0, 2).data(Qt::EditRole).toString().contains("typed"));
}

// It is installed while the field is open.
void ApplicationDelegatesTest::seeNothingOfASecretTypedBeforeThem()
{
    QItemDelegate own;
    TableInEdit table(2);
    QVERIFY(table.editor);
    table.view.setItemDelegateForColumn(2, &own);

    table.view.setColumns(declarations());
    goThroughEvents();

    QCOMPARE(table.model->writes.filter("typed"), QStringList("secret typed"));
    QVERIFY(!table.editor);
}

void ApplicationDelegatesTest::leaveTheBindingToTheColumn()
{
    QStringListModel items(QStringList() << "one"
                                         << "two");
    QItemDelegate own;
    RecordingModel model(1, 1);
    EditableTableView view;
    view.setColumns(QStringList("combobox"));
    view.setModel(&model);
    showWindow(&view, 400, 200);
    QAbstractItemDelegate *declared = view.itemDelegateForColumn(0);
    view.setItemDelegateForColumn(0, &own);

    view.bindModel(0, &items);

    view.setItemDelegateForColumn(0, declared);
    QWidget *box = openEditor(&view, model.index(0, 0));
    QVERIFY(box);
    QCOMPARE(box->property("count").toInt(), 2);
}

TESSALINE_TEST_MAIN(ApplicationDelegatesTest)
#include "tst_applicationdelegates.moc"
