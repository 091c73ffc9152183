// SPDX-License-Identifier: LGPL-3.0-or-later
#include "TableInEdit.h"
#include "TestCase.h"
#include "ViewHelpers.h"

namespace {

QString delegateNames(const EditableTableView &view)
{
    QStringList names;
    for (int column = 0; column < 3; ++column) {
        const QAbstractItemDelegate *delegate = view.itemDelegateForColumn(column);
        names.append(delegate ? delegate->metaObject()->className() : "none");
    }
    return names.join(",");
}

} // namespace

/// What holds when a slot declares columns that answers the commit of an editor, one that the user
/// ends or one that setColumns() finishes.
class DeclaringInSlotsTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void holdsTheListOfTheSlotAfterACommitByKey_data();
    void holdsTheListOfTheSlotAfterACommitByKey();
    void masksASecretThoughTheSlotDeclaresItsColumnPlain();
    void holdsTheLatterListWhenTheSlotDeclaresAnother();
    void deletesTheDelegatesOfBothLists();
    void writesOnceThoughTheSlotDeclaresColumnsToo();
    void keepsAnEditorThatTheSlotOpensAnewByTheNewDelegate();

public Q_SLOTS:
    void declare();
    void declareAndOpenAnew();

private:
    void answer(TableInEdit *table, const char *slot);
    bool isFirstTime();

    EditableTableView *view = nullptr;
    RecordingModel *model = nullptr;
    QStringList list;
    bool answered = false;
};

void DeclaringInSlotsTest::answer(TableInEdit *table, const char *slot)
{
    view = &table->view;
    model = table->model;
    answered = false;
    connect(model, SIGNAL(dataChanged(QModelIndex,QModelIndex)), slot);
}

bool DeclaringInSlotsTest::isFirstTime()
{
    const bool isFirst = !answered;
    answered = true;
    return isFirst;
}

void DeclaringInSlotsTest::declare()
{
    if (isFirstTime()) {
        view->setColumns(list);
    }
}

void DeclaringInSlotsTest::declareAndOpenAnew()
{
    if (isFirstTime()) {
        view->setColumns(list);
        view->closePersistentEditor(model->index(0, 0));
        view->edit(model->index(0, 0));
    }
}

void DeclaringInSlotsTest::holdsTheListOfTheSlotAfterACommitByKey_data()
{
    QTest::addColumn<QString>("declaration");
    QTest::addColumn<QString>("names");

    QTest::newRow("password") << "passwordbox"
                              << "PasswordItemDelegate,EditItemDelegate,none";
    QTest::newRow("check") << "checkbox"
                           << "CheckItemDelegate,EditItemDelegate,none";
    QTest::newRow("plain") << ""
                           << "none,EditItemDelegate,none";
    QTest::newRow("button") << "button"
                            << "none,EditItemDelegate,none";
}

void DeclaringInSlotsTest::holdsTheListOfTheSlotAfterACommitByKey()
{
    QFETCH(QString, declaration);
    TableInEdit table;
    QVERIFY(table.editor);
    list = QStringList() << declaration << "editbox";
    answer(&table, SLOT(declare()));

    QTest::keyClick(table.editor, Qt::Key_Return);
    goThroughEvents();

    QCOMPARE(table.view.getColumns(), list);
    QTEST(delegateNames(table.view), "names");
    QVERIFY(!table.editor);
    QCOMPARE(table.model->writes, QStringList("edit typed"));
    use(&table.view);
}

void DeclaringInSlotsTest::masksASecretThoughTheSlotDeclaresItsColumnPlain()
{
    TableInEdit table(2);
    QVERIFY(table.editor);
    list = QStringList();
    answer(&table, SLOT(declare()));

    QTest::keyClick(table.editor, Qt::Key_Return);
    goThroughEvents();

    const QModelIndex cell = table.model->index(0, 2);
    QCOMPARE(table.model->writes.filter("typed"), QStringList("secret typed"));
    QCOMPARE(cell.data().toString().size(), 5);
    QVERIFY(!table.editor);
}

void DeclaringInSlotsTest::holdsTheLatterListWhenTheSlotDeclaresAnother()
{
    TableInEdit table;
    QVERIFY(table.editor);
    list = QStringList() << "editbox"
                         << "button:Slot"
                         << "editbox";
    answer(&table, SLOT(declare()));

    table.view.setColumns(QStringList() << "checkbox"
                                        << "button:Latter");

    QCOMPARE(table.view.getColumns(),
             QStringList() << "checkbox"
                           << "button:Latter");
    QCOMPARE(delegateNames(table.view), QString("CheckItemDelegate,none,none"));
    table.model->insertRow(0);
    QCOMPARE(table.view.button(0, 1)->property("text").toString(), QString("Latter"));
}

void DeclaringInSlotsTest::deletesTheDelegatesOfBothLists()
{
    TableInEdit table;
    QVERIFY(table.editor);
    const QPointer<QObject> first = table.view.itemDelegateForColumn(0);
    list = QStringList("checkbox");
    answer(&table, SLOT(declare()));
    QTest::keyClick(table.editor, Qt::Key_Return);
    const QPointer<QObject> second = table.view.itemDelegateForColumn(0);
    goThroughEvents();

    table.view.setColumns(QStringList());
    goThroughEvents();

    QVERIFY(!first);
    QVERIFY(!second);
}

void DeclaringInSlotsTest::writesOnceThoughTheSlotDeclaresColumnsToo()
{
    TableInEdit table;
    QVERIFY(table.editor);
    list = QStringList("passwordbox");
    answer(&table, SLOT(declare()));

    table.view.setColumns(QStringList("checkbox"));
    goThroughEvents();

    QVERIFY(!table.editor);
    QCOMPARE(table.model->writes, QStringList("edit typed"));
}

void DeclaringInSlotsTest::keepsAnEditorThatTheSlotOpensAnewByTheNewDelegate()
{
    tolerateWarnings("QAbstractItemView::closeEditor"); // Qt 6 sees that it was closed before
    TableInEdit table;
    QVERIFY(table.editor);
    list = QStringList("passwordbox");
    answer(&table, SLOT(declareAndOpenAnew()));

    QTest::keyClick(table.editor, Qt::Key_Return);
    goThroughEvents();

    QVERIFY(!table.editor);
    QWidget *opened = table.view.indexWidget(table.model->index(0, 0));
    QVERIFY(opened);
    QCOMPARE(opened->accessibleDescription(), QString("EditableTableViewPassword column0"));
    QVERIFY(opened->isVisible());
}

TESSALINE_TEST_MAIN(DeclaringInSlotsTest)
#include "tst_declaringinslots.moc"
