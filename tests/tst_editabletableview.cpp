// SPDX-License-Identifier: LGPL-3.0-or-later
#include "EditableTableView.h"
#include "TestCase.h"

#include <QHeaderView>
#include <QMetaProperty>
#include <QStandardItemModel>

namespace {

QString joined(const QList<QByteArray> &names)
{
    QStringList list;
    for (const QByteArray &name : names) {
        list.append(QString(name));
    }
    return list.join(",");
}

} // namespace

class EditableTableViewTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void listsItsMethodsInOrder_data();
    void listsItsMethodsInOrder();
    void hasNoOtherMethodsOrProperties();
    void declaresItsProperties_data();
    void declaresItsProperties();
    void knowsItsClasses_data();
    void knowsItsClasses();
    void startsAsAPlainTableWithoutRowHeader();
    void leavesTheBaseClassesDefaultsAlone();
    void makesHeaderClickableOnRequest();
    void keepsTheStretchSectionUnchecked_data();
    void keepsTheStretchSectionUnchecked();
};

void EditableTableViewTest::listsItsMethodsInOrder_data()
{
    QTest::addColumn<int>("place");
    QTest::addColumn<QString>("signature");
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("access");
    QTest::addColumn<QString>("names");
    QTest::addColumn<QString>("result");

    const int isSignal = QMetaMethod::Signal;
    const int isSlot = QMetaMethod::Slot;
    const int signalAccess = compat::signalAccess;
    const int isPublic = QMetaMethod::Public;
    const int isProtected = QMetaMethod::Protected;
    const int isPrivate = QMetaMethod::Private;

    QTest::newRow("click report") << 0 << "buttonClicked(QWidget*,int,int,QStringList)" << isSignal
                                  << signalAccess << "button,row,column,rowData"
                                  << "";
    QTest::newRow("resize report") << 1 << "resizeView()" << isSignal << signalAccess << ""
                                   << "";
    QTest::newRow("bind") << 2 << "bindModel(int,QObject*,int)" << isSlot << isPublic
                          << "columnIndex,model,modelColumn"
                          << "";
    QTest::newRow("bind first column")
        << 3 << "bindModel(int,QObject*)" << isSlot << isPublic << "columnIndex,model"
        << "";
    QTest::newRow("header") << 4 << "setHorizontalHeaderClickable(bool)" << isSlot << isPublic
                            << "clickable"
                            << "";
    QTest::newRow("button") << 5 << "button(int,int)" << isSlot << isPublic << "row,column"
                            << "QWidget*";
    QTest::newRow("rows inserted")
        << 6 << "rowsInserted(QModelIndex,int,int)" << isSlot << isProtected << "parent,start,end"
        << "";
    QTest::newRow("rows removed") << 7 << "rowsAboutToBeRemoved(QModelIndex,int,int)" << isSlot
                                  << isProtected << "parent,start,end"
                                  << "";
    QTest::newRow("click") << 8 << "buttonClicked()" << isSlot << isProtected << ""
                           << "";
    QTest::newRow("resized") << 9 << "resized()" << isSlot << isPrivate << ""
                             << "";
    QTest::newRow("section resized")
        << 10 << "sectionResized(int,int,int)" << isSlot << isPrivate << "index,oldSize,newSize"
        << "";
}

void EditableTableViewTest::listsItsMethodsInOrder()
{
    QFETCH(int, place);
    QFETCH(QString, result);
    const QMetaObject &metaObject = EditableTableView::staticMetaObject;

    const QMetaMethod method = metaObject.method(metaObject.methodOffset() + place);

    QTEST(QString(compat::methodSignature(method)), "signature");
    QTEST(int(method.methodType()), "type");
    QTEST(int(method.access()), "access");
    QTEST(joined(method.parameterNames()), "names");
    QCOMPARE(bool(method.attributes() & QMetaMethod::Cloned), place == 3);
    const QString typeName = method.typeName();
    QCOMPARE(typeName == "void" ? QString() : typeName, result);
}

void EditableTableViewTest::hasNoOtherMethodsOrProperties()
{
    const QMetaObject &metaObject = EditableTableView::staticMetaObject;

    QCOMPARE(metaObject.methodCount() - metaObject.methodOffset(), 11);
    QCOMPARE(metaObject.propertyCount() - metaObject.propertyOffset(), 2);
}

void EditableTableViewTest::declaresItsProperties_data()
{
    QTest::addColumn<int>("place");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("type");

    QTest::newRow("columns") << 0 << "columns"
                             << "QStringList";
    QTest::newRow("stretchSection") << 1 << "stretchSection"
                                    << "int";
}

void EditableTableViewTest::declaresItsProperties()
{
    QFETCH(int, place);
    const QMetaObject &metaObject = EditableTableView::staticMetaObject;
    EditableTableView view;

    const QMetaProperty property = metaObject.property(metaObject.propertyOffset() + place);

    QTEST(QString(property.name()), "name");
    QTEST(QString(property.typeName()), "type");
    QVERIFY(property.isReadable());
    QVERIFY(property.isWritable());
    QCOMPARE(compat::flags(property, &view), QList<bool>() << true << true << true);
    QVERIFY(!property.hasNotifySignal());
    QVERIFY(!property.isResettable());
}

void EditableTableViewTest::knowsItsClasses_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("known");

    QTest::newRow("own") << "EditableTableView" << true;
    QTest::newRow("base") << "QTableView" << true;
    QTest::newRow("far base") << "QWidget" << true;
    QTest::newRow("other") << "FileListTableView" << false;
}

void EditableTableViewTest::knowsItsClasses()
{
    QFETCH(QString, name);
    EditableTableView view;

    QTEST(view.inherits(name.toLatin1().constData()), "known");
    QTEST(view.qt_metacast(name.toLatin1().constData()) != nullptr, "known");
}

void EditableTableViewTest::startsAsAPlainTableWithoutRowHeader()
{
    const EditableTableView view;

    const QHeaderView *header = view.horizontalHeader();
    QVERIFY(view.verticalHeader()->isHidden());
    QVERIFY(!compat::sectionsClickable(header));
    QVERIFY(!header->highlightSections());
    QVERIFY(!header->stretchLastSection());
    QCOMPARE(view.getStretchSection(), 0);
    QCOMPARE(view.getColumns(), QStringList());
}

void EditableTableViewTest::leavesTheBaseClassesDefaultsAlone()
{
    const EditableTableView view;
    const QTableView plain;

    QCOMPARE(view.editTriggers(), plain.editTriggers());
    QCOMPARE(view.selectionMode(), plain.selectionMode());
    QCOMPARE(view.selectionBehavior(), plain.selectionBehavior());
    QCOMPARE(view.tabKeyNavigation(), plain.tabKeyNavigation());
    QCOMPARE(view.horizontalHeader()->defaultSectionSize(),
             plain.horizontalHeader()->defaultSectionSize());
    QCOMPARE(view.horizontalHeader()->minimumSectionSize(),
             plain.horizontalHeader()->minimumSectionSize());
}

void EditableTableViewTest::makesHeaderClickableOnRequest()
{
    EditableTableView view;

    view.setHorizontalHeaderClickable(true);

    QVERIFY(compat::sectionsClickable(view.horizontalHeader()));
    view.setHorizontalHeaderClickable(false);
    QVERIFY(!compat::sectionsClickable(view.horizontalHeader()));
}

void EditableTableViewTest::keepsTheStretchSectionUnchecked_data()
{
    QTest::addColumn<int>("section");

    QTest::newRow("beyond the columns") << 7;
    QTest::newRow("none") << -1;
    QTest::newRow("largest") << 2147483647;
}

void EditableTableViewTest::keepsTheStretchSectionUnchecked()
{
    QFETCH(int, section);
    QStandardItemModel model(2, 3);
    EditableTableView view;
    view.setModel(&model);

    view.setProperty("stretchSection", section);

    QCOMPARE(view.getStretchSection(), section);
}

TESSALINE_TEST_MAIN(EditableTableViewTest)
#include "tst_editabletableview.moc"
