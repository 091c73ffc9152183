// SPDX-License-Identifier: LGPL-3.0-or-later
#include "CheckItemDelegate.h"
#include "EditComboItemDelegate.h"
#include "EditableTableView.h"
#include "PasswordItemDelegate.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QPointer>
#include <QStandardItemModel>

namespace {

QString delegateName(const EditableTableView &view, int column)
{
    const QAbstractItemDelegate *delegate = view.itemDelegateForColumn(column);
    return delegate ? QString(delegate->metaObject()->className()) : QString("none");
}

QString baseOfDelegate(const EditableTableView &view, int column)
{
    const QAbstractItemDelegate *delegate = view.itemDelegateForColumn(column);
    return delegate ? QString(delegate->metaObject()->superClass()->className()) : QString("none");
}

} // namespace

/// What the columns of an editable table are declared as, and the delegates that this installs.
class ColumnDelegatesTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void returnsTheColumnsAsGiven();
    void installsADelegateByKeyword_data();
    void installsADelegateByKeyword();
    void declaresEachStringsOwnPosition();
    void anEmptyListMakesAllColumnsPlain();
    void replacesADelegateByOneOfAnotherKind();
    void deletesOldDelegatesInOrderOfColumns();
    void deletesOldDelegatesBesideAnObjectOfTheApplications();
    void deletesOldDelegatesBesideAnEditorWhoseRowHasGone();
    void leavesAnApplicationsOwnDelegateInstalled();
    void givesItsDelegatesNoParent();
    void leavesItsDelegatesAloneWhenDestroyed();
    void setsColumnsThroughTheProperty();

protected Q_SLOTS:
    void noteColumnOfDeleted(QObject *delegate);

private:
    QMap<QObject *, int> columnOfDelegate;
    QList<int> deletedColumns;
};

void ColumnDelegatesTest::returnsTheColumnsAsGiven()
{
    const QStringList given = QStringList() << " EditBox "
                                            << "BUTTON: Go : now "
                                            << ""
                                            << "what?";
    EditableTableView view;

    view.setColumns(given);

    QCOMPARE(view.getColumns(), given);
}

void ColumnDelegatesTest::installsADelegateByKeyword_data()
{
    QTest::addColumn<QString>("declaration");
    QTest::addColumn<QString>("delegate");
    QTest::addColumn<QString>("base");

    QTest::newRow("combobox") << "combobox"
                              << "ComboItemDelegate"
                              << "QItemDelegate";
    QTest::newRow("editcombobox") << "editcombobox"
                                  << "EditComboItemDelegate"
                                  << "ComboItemDelegate";
    QTest::newRow("editbox") << "editbox"
                             << "EditItemDelegate"
                             << "QItemDelegate";
    QTest::newRow("passwordbox") << "passwordbox"
                                 << "PasswordItemDelegate"
                                 << "EditItemDelegate";
    QTest::newRow("checkbox") << "checkbox"
                              << "CheckItemDelegate"
                              << "QItemDelegate";
    QTest::newRow("checkbox with label") << "checkbox:Verify"
                                         << "CheckItemDelegate"
                                         << "QItemDelegate";
    QTest::newRow("button") << "button:Run"
                            << "none"
                            << "none";
    QTest::newRow("mixed case and blanks") << " ComboBox "
                                           << "ComboItemDelegate"
                                           << "QItemDelegate";
    QTest::newRow("inner blank") << "combo box"
                                 << "none"
                                 << "none";
    QTest::newRow("unknown") << "spinbox"
                             << "none"
                             << "none";
    QTest::newRow("empty") << ""
                           << "none"
                           << "none";
}

void ColumnDelegatesTest::installsADelegateByKeyword()
{
    QFETCH(QString, declaration);
    EditableTableView view;

    view.setColumns(QStringList() << "" << declaration);

    QTEST(delegateName(view, 1), "delegate");
    QTEST(baseOfDelegate(view, 1), "base");
}

void ColumnDelegatesTest::declaresEachStringsOwnPosition()
{
    EditableTableView view;

    view.setColumns(QStringList() << "editbox"
                                  << ""
                                  << "nonsense"
                                  << "button"
                                  << "passwordbox");

    QCOMPARE(delegateName(view, 0), QString("EditItemDelegate"));
    QCOMPARE(delegateName(view, 1), QString("none"));
    QCOMPARE(delegateName(view, 2), QString("none"));
    QCOMPARE(delegateName(view, 3), QString("none"));
    QCOMPARE(delegateName(view, 4), QString("PasswordItemDelegate"));
    QCOMPARE(delegateName(view, 5), QString("none"));
}

void ColumnDelegatesTest::anEmptyListMakesAllColumnsPlain()
{
    QStandardItemModel model(1, 2);
    EditableTableView view;
    view.setColumns(QStringList() << "editbox"
                                  << "button:Go");
    const QPointer<QObject> old = view.itemDelegateForColumn(0);

    view.setColumns(QStringList());
    view.setModel(&model);

    QVERIFY(old.isNull());
    QCOMPARE(delegateName(view, 0), QString("none"));
    QCOMPARE(buttonMarks(view, 1), QString("."));
}

void ColumnDelegatesTest::replacesADelegateByOneOfAnotherKind()
{
    EditableTableView view;
    view.setColumns(QStringList() << ""
                                  << ""
                                  << "editbox");
    const QPointer<QObject> old = view.itemDelegateForColumn(2);

    view.setColumns(QStringList() << ""
                                  << ""
                                  << "checkbox");

    QVERIFY(old.isNull());
    QCOMPARE(delegateName(view, 2), QString("CheckItemDelegate"));
}

void ColumnDelegatesTest::noteColumnOfDeleted(QObject *delegate)
{
    deletedColumns.append(columnOfDelegate.value(delegate, -1));
}

void ColumnDelegatesTest::deletesOldDelegatesInOrderOfColumns()
{
    EditableTableView view;
    view.setColumns(QStringList() << "editbox"
                                  << "button"
                                  << "checkbox"
                                  << "combobox"
                                  << "passwordbox");
    deletedColumns.clear();
    columnOfDelegate.clear();
    const QList<int> columns = QList<int>() << 4 << 0 << 3 << 2;
    for (int column : columns) {
        QObject *delegate = view.itemDelegateForColumn(column);
        columnOfDelegate.insert(delegate, column);
        connect(delegate, SIGNAL(destroyed(QObject*)), SLOT(noteColumnOfDeleted(QObject*)));
    }

    view.setColumns(QStringList());

    QCOMPARE(deletedColumns, QList<int>() << 0 << 2 << 3 << 4);
}

void ColumnDelegatesTest::leavesAnApplicationsOwnDelegateInstalled()
{
    EditableTableView view;
    view.setColumns(QStringList() << "editbox");
    QItemDelegate own;
    view.setItemDelegateForColumn(0, &own);

    view.setColumns(QStringList());

    QCOMPARE(view.itemDelegateForColumn(0), static_cast<QAbstractItemDelegate *>(&own));
}

void ColumnDelegatesTest::givesItsDelegatesNoParent()
{
    EditableTableView view;

    view.setColumns(QStringList() << "combobox"
                                  << "editcombobox"
                                  << "editbox"
                                  << "passwordbox"
                                  << "checkbox");

    for (int column = 0; column < 5; ++column) {
        QVERIFY(view.itemDelegateForColumn(column));
        QVERIFY(!view.itemDelegateForColumn(column)->parent());
        const QMetaObject *metaObject = view.itemDelegateForColumn(column)->metaObject();
        QCOMPARE(metaObject->methodCount(), metaObject->methodOffset());
        QCOMPARE(metaObject->propertyCount(), metaObject->propertyOffset());
    }
}

void ColumnDelegatesTest::leavesItsDelegatesAloneWhenDestroyed()
{
    EditableTableView *view = new EditableTableView;
    view->setColumns(QStringList() << "editbox");
    const QPointer<QObject> delegate = view->itemDelegateForColumn(0);

    delete view;

    QVERIFY(!delegate.isNull());
    delete delegate.data();
}

void ColumnDelegatesTest::setsColumnsThroughTheProperty()
{
    EditableTableView view;

    view.setProperty("columns", QStringList() << "editbox");

    QCOMPARE(delegateName(view, 0), QString("EditItemDelegate"));
    QCOMPARE(view.property("columns").toStringList(), QStringList() << "editbox");
}

void ColumnDelegatesTest::deletesOldDelegatesBesideAnObjectOfTheApplications()
{
    EditableTableView view;
    view.setColumns(QStringList("editbox"));
    const QPointer<QAbstractItemDelegate> old = view.itemDelegateForColumn(0);
    new QObject(view.viewport());

    view.setColumns(QStringList());

    QVERIFY(!old);
}

void ColumnDelegatesTest::deletesOldDelegatesBesideAnEditorWhoseRowHasGone()
{
    QStandardItemModel model(2, 1);
    EditableTableView view;
    view.setColumns(QStringList("editbox"));
    view.setModel(&model);
    view.openPersistentEditor(model.index(1, 0));
    const QPointer<QAbstractItemDelegate> old = view.itemDelegateForColumn(0);
    model.removeRow(1);

    view.setColumns(QStringList());

    QVERIFY(!old);
}

TESSALINE_TEST_MAIN(ColumnDelegatesTest)
#include "tst_columndelegates.moc"
