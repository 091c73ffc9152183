// SPDX-License-Identifier: LGPL-3.0-or-later
#include "FileListTableViewPlugin.h"
#include "Tessaline.h"
#include "TestCase.h"
#include "ViewHelpers.h"

#include <QIcon>
#include <QPixmap>
#include <QPointer>
#include <QScopedPointer>

extern "C" QObject *qt_plugin_instance();
extern "C" const char *qt_plugin_query_verification_data();

namespace {

QStringList names(const QList<QDesignerCustomWidgetInterface *> &descriptors)
{
    QStringList result;
    for (const QDesignerCustomWidgetInterface *descriptor : descriptors) {
        result.append(descriptor->name());
    }
    return result;
}

QDesignerCustomWidgetInterface *find(const Tessaline &collection, const QString &name)
{
    for (QDesignerCustomWidgetInterface *descriptor : collection.customWidgets()) {
        if (descriptor->name() == name) {
            return descriptor;
        }
    }
    return nullptr;
}

/// Each name that a descriptor or the collection may be cast to, and what comes of it: itself, its
/// interface, or nothing.
QString castsOf(QObject *object, const QStringList &typeNames)
{
    QStringList result;
    for (const QString &typeName : typeNames) {
        const void *cast = object->qt_metacast(typeName.toLatin1().constData());
        result.append(cast == nullptr ? "none" : cast == object ? "itself" : "interface");
    }
    return result.join(QLatin1String(","));
}

void addRowsForTheOffered()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("table") << "EditableTableView";
#ifdef TESSALINE_HAS_PLOT
    QTest::newRow("chart") << "UpdatablePlot";
#endif
    QTest::newRow("spin box") << "SpinBox";
}

} // namespace

class DesignerPluginsTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void offersItsWidgetsInOrder();
    void offersNoFileList();
    void ownsItsDescriptors();
    void describesEachWidget_data();
    void describesEachWidget();
    void saysTheSameInToolTipAndWhatsThis_data();
    void saysTheSameInToolTipAndWhatsThis();
    void writesItsDomXml_data();
    void writesItsDomXml();
    void isInitializedOnceAndForAll_data();
    void isInitializedOnceAndForAll();
    void createsAWidgetOfItsClass_data();
    void createsAWidgetOfItsClass();
    void createsATopLevelWidgetWithoutAParent_data();
    void createsATopLevelWidgetWithoutAParent();
    void createsAWidgetThatWorksWithoutAModelAndData_data();
    void createsAWidgetThatWorksWithoutAModelAndData();
    void answersCastsOfEachDescriptor();
    void answersCastsOfTheCollection();
    void declaresNothingOfItsOwn();
    void describesTheFileListOutsideTheCollection();
    void initializesTheFileListOnceAndForAll();
    void givesOneInstanceUntilItIsDeleted();
    void tellsTheBuildItWasMadeFor();
};

void DesignerPluginsTest::offersItsWidgetsInOrder()
{
    const Tessaline collection;
#ifdef TESSALINE_HAS_PLOT
    const QStringList offered = QStringList() << "EditableTableView"
                                              << "UpdatablePlot"
                                              << "SpinBox";
#else
    const QStringList offered = QStringList() << "EditableTableView"
                                              << "SpinBox";
#endif

    QCOMPARE(names(collection.customWidgets()), offered);
}

void DesignerPluginsTest::offersNoFileList()
{
    const Tessaline collection;

    QVERIFY(!names(collection.customWidgets()).contains("FileListTableView"));
    QVERIFY(collection.findChildren<FileListTableViewPlugin *>().isEmpty());
}

void DesignerPluginsTest::ownsItsDescriptors()
{
    QScopedPointer<Tessaline> collection(new Tessaline);
    QList<QPointer<QObject>> descriptors;
    for (QObject *child : collection->children()) {
        descriptors.append(child);
    }
    QCOMPARE(descriptors.size(), collection->customWidgets().size());

    collection.reset();

    for (const QPointer<QObject> &descriptor : descriptors) {
        QVERIFY(descriptor.isNull());
    }
}

void DesignerPluginsTest::describesEachWidget_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("toolTip");
    QTest::addColumn<QString>("includeFile");
    QTest::newRow("table") << "EditableTableView"
                           << "Editable Table View"
                           << "EditableTableView.h";
#ifdef TESSALINE_HAS_PLOT
    QTest::newRow("chart") << "UpdatablePlot"
                           << "Data Plot"
                           << "UpdatablePlot.h";
#endif
    QTest::newRow("spin box") << "SpinBox"
                              << "Spin Box"
                              << "SpinBox.h";
}

void DesignerPluginsTest::describesEachWidget()
{
    QFETCH(QString, name);
    QFETCH(QString, toolTip);
    QFETCH(QString, includeFile);
    const Tessaline collection;
    const QDesignerCustomWidgetInterface *descriptor = find(collection, name);
    QVERIFY(descriptor);

    QCOMPARE(descriptor->toolTip(), toolTip);
    QCOMPARE(descriptor->includeFile(), includeFile);
    QCOMPARE(descriptor->group(), QString("Vantrel Extra"));
    QVERIFY(descriptor->icon().isNull());
    QVERIFY(!descriptor->isContainer());
    QCOMPARE(descriptor->codeTemplate(), QString());
}

void DesignerPluginsTest::saysTheSameInToolTipAndWhatsThis_data()
{
    addRowsForTheOffered();
}

void DesignerPluginsTest::saysTheSameInToolTipAndWhatsThis()
{
    QFETCH(QString, name);
    const Tessaline collection;
    const QDesignerCustomWidgetInterface *descriptor = find(collection, name);

    QCOMPARE(descriptor->whatsThis(), descriptor->toolTip());
}

void DesignerPluginsTest::writesItsDomXml_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::newRow("table")
        << "EditableTableView"
        << "<widget class=\"EditableTableView\" name=\"editableTableView\">\n <property "
           "name=\"geometry\">\n  <rect>\n   <x>0</x>\n   <y>0</y>\n   <width>136</width>\n   "
           "<height>136</height>\n  </rect>\n </property>\n</widget>\n";
#ifdef TESSALINE_HAS_PLOT
    QTest::newRow("chart")
        << "UpdatablePlot"
        << "<widget class=\"UpdatablePlot\" name=\"dataPlot\">\n <property "
           "name=\"geometry\">\n  <rect>\n   <x>0</x>\n   <y>0</y>\n   <width>180</width>\n   "
           "<height>140</height>\n  </rect>\n </property>\n</widget>\n";
#endif
    QTest::newRow("spin box")
        << "SpinBox"
        << "<widget class=\"SpinBox\" name=\"spinBox\">\n <property "
           "name=\"geometry\">\n  <rect>\n   <x>0</x>\n   <y>0</y>\n   <width>100</width>\n   "
           "<height>25</height>\n  </rect>\n </property>\n</widget>\n";
}

void DesignerPluginsTest::writesItsDomXml()
{
    QFETCH(QString, name);
    QFETCH(QString, text);
    const Tessaline collection;

    QCOMPARE(find(collection, name)->domXml(), text);
}

void DesignerPluginsTest::isInitializedOnceAndForAll_data()
{
    addRowsForTheOffered();
}

void DesignerPluginsTest::isInitializedOnceAndForAll()
{
    QFETCH(QString, name);
    const Tessaline collection;
    QDesignerCustomWidgetInterface *descriptor = find(collection, name);
    QVERIFY(!descriptor->isInitialized());

    descriptor->initialize(nullptr);
    QVERIFY(descriptor->isInitialized());

    descriptor->initialize(nullptr);
    QVERIFY(descriptor->isInitialized());
    QVERIFY(collection.findChildren<QWidget *>().isEmpty());
}

void DesignerPluginsTest::createsAWidgetOfItsClass_data()
{
    addRowsForTheOffered();
}

void DesignerPluginsTest::createsAWidgetOfItsClass()
{
    QFETCH(QString, name);
    const Tessaline collection;
    QWidget form;

    const QWidget *widget = find(collection, name)->createWidget(&form);

    QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), name);
    QCOMPARE(widget->parentWidget(), &form);
    QCOMPARE(widget->objectName(), QString());
}

void DesignerPluginsTest::createsATopLevelWidgetWithoutAParent_data()
{
    addRowsForTheOffered();
}

void DesignerPluginsTest::createsATopLevelWidgetWithoutAParent()
{
    QFETCH(QString, name);
    const Tessaline collection;

    const QScopedPointer<QWidget> widget(find(collection, name)->createWidget(nullptr));

    QVERIFY(widget->isWindow());
}

void DesignerPluginsTest::createsAWidgetThatWorksWithoutAModelAndData_data()
{
    addRowsForTheOffered();
}

void DesignerPluginsTest::createsAWidgetThatWorksWithoutAModelAndData()
{
    QFETCH(QString, name);
    const Tessaline collection;
    const QScopedPointer<QWidget> widget(find(collection, name)->createWidget(nullptr));
    showWindow(widget.data(), 136, 136);

    const QList<QSize> sizes = QList<QSize>() << QSize(1, 1) << QSize(4000, 20) << QSize(180, 140);
    for (const QSize &size : sizes) {
        widget->resize(size);
        goThroughEvents();
        const QPixmap picture = compat::grab(widget.data());
        QCOMPARE(picture.size(), widget->size() * compat::pixelRatio(*widget));
    }
    widget->hide();
    widget->show();

    QVERIFY(widget->isVisible());
}

void DesignerPluginsTest::answersCastsOfEachDescriptor()
{
    const Tessaline collection;
    FileListTableViewPlugin fileList;
    const QObjectList descriptors = collection.children() + (QObjectList() << &fileList);
    const QStringList typeNames = QStringList()
        << "QDesignerCustomWidgetInterface"
        << qobject_interface_iid<QDesignerCustomWidgetInterface *>() << "QObject"
        << "QDesignerCustomWidgetCollectionInterface"
        << "Tessaline"
        << "WidgetDescriptor";

    for (QObject *descriptor : descriptors) {
        const QDesignerCustomWidgetInterface *widget
            = qobject_cast<QDesignerCustomWidgetInterface *>(descriptor);
        QVERIFY(widget);
        const QString className = widget->name() + "Plugin";
        QCOMPARE(castsOf(descriptor, QStringList(className) + typeNames),
                 QString("itself,interface,interface,itself,none,none,none"));
    }
}

void DesignerPluginsTest::answersCastsOfTheCollection()
{
    Tessaline collection;
    const QStringList typeNames = QStringList()
        << "Tessaline"
        << "QDesignerCustomWidgetCollectionInterface"
        << qobject_interface_iid<QDesignerCustomWidgetCollectionInterface *>() << "QObject"
        << "QDesignerCustomWidgetInterface";

    QCOMPARE(castsOf(&collection, typeNames), QString("itself,interface,interface,itself,none"));
    QCOMPARE(qobject_cast<QDesignerCustomWidgetCollectionInterface *>(&collection),
             static_cast<QDesignerCustomWidgetCollectionInterface *>(&collection));
}

void DesignerPluginsTest::declaresNothingOfItsOwn()
{
    const Tessaline collection;
    const FileListTableViewPlugin fileList;
    QList<const QObject *> objects = QList<const QObject *>() << &collection << &fileList;
    for (const QObject *child : collection.children()) {
        objects.append(child);
    }

    for (const QObject *object : objects) {
        const QMetaObject *type = object->metaObject();
        QCOMPARE(type->superClass(), &QObject::staticMetaObject);
        QCOMPARE(type->methodCount(), QObject::staticMetaObject.methodCount());
        QCOMPARE(type->propertyCount(), QObject::staticMetaObject.propertyCount());
    }
}

void DesignerPluginsTest::describesTheFileListOutsideTheCollection()
{
    FileListTableViewPlugin descriptor;
    const QScopedPointer<QWidget> widget(descriptor.createWidget(nullptr));

    QCOMPARE(descriptor.name(), QString("FileListTableView"));
    QCOMPARE(descriptor.includeFile(), QString("FileListTableView.h"));
    QCOMPARE(descriptor.group(), QString("Vantrel Extra"));
    QCOMPARE(descriptor.toolTip(), QString("File List Table View"));
    QCOMPARE(descriptor.whatsThis(), descriptor.toolTip());
    QVERIFY(descriptor.icon().isNull());
    QVERIFY(!descriptor.isContainer());
    QVERIFY(descriptor.domXml().startsWith("<widget class=\"FileListTableView\" name=\""));
    QCOMPARE(QString(widget->metaObject()->className()), QString("FileListTableView"));
}

void DesignerPluginsTest::initializesTheFileListOnceAndForAll()
{
    FileListTableViewPlugin descriptor;
    QVERIFY(!descriptor.isInitialized());

    descriptor.initialize(nullptr);
    descriptor.initialize(nullptr);

    QVERIFY(descriptor.isInitialized());
}

void DesignerPluginsTest::givesOneInstanceUntilItIsDeleted()
{
    const QPointer<QObject> instance = qt_plugin_instance();
    QVERIFY(qobject_cast<QDesignerCustomWidgetCollectionInterface *>(instance.data()));
    QVERIFY(!instance->parent());
    QCOMPARE(qt_plugin_instance(), instance.data());
    delete instance;

    const QScopedPointer<QObject> next(qt_plugin_instance());

    QVERIFY(!next.isNull());
    QCOMPARE(qt_plugin_instance(), next.data());
    QCOMPARE(QString(next->metaObject()->className()), QString("Tessaline"));
}

void DesignerPluginsTest::tellsTheBuildItWasMadeFor()
{
    const QStringList lines
        = QString::fromLatin1(qt_plugin_query_verification_data()).split(QLatin1Char('\n'));

    QCOMPARE(lines.size(), 4);
    QCOMPARE(lines.at(0), QString("pattern=QT_PLUGIN_VERIFICATION_DATA"));
    QCOMPARE(lines.at(1), QLatin1String("version=") + QLatin1String(compat::builtVersion));
    QCOMPARE(lines.at(2), QString(compat::builtForDebugging ? "debug=true" : "debug=false"));
    const QStringList buildKey = lines.at(3).split(QLatin1Char(' '));
    QCOMPARE(buildKey.size(), 4);
    QVERIFY2(buildKey.first().startsWith("buildkey="), qPrintable(lines.at(3)));
    QCOMPARE(buildKey.last(), QString("full-config"));
}

TESSALINE_TEST_MAIN(DesignerPluginsTest)
#include "tst_designerplugins.moc"
