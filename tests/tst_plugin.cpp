// SPDX-License-Identifier: LGPL-3.0-or-later
// Drives the shared library as Designer does: from its file.
#include "SpinBox.h"
#include "TestCase.h"

#include <QDesignerCustomWidgetCollectionInterface>
#include <QLibrary>
#include <QPluginLoader>
#include <QPointer>
#include <QScopedPointer>

namespace {

QString pluginFile()
{
    return QString::fromUtf8(TESSALINE_PLUGIN_FILE);
}

QStringList offered()
{
    QStringList result = QStringList() << "EditableTableView"
                                       << "SpinBox";
#ifdef TESSALINE_HAS_PLOT
    result << "UpdatablePlot";
#endif
    return result;
}

QList<QDesignerCustomWidgetInterface *> descriptors(const QString &file)
{
    QPluginLoader loader(file);
    const QDesignerCustomWidgetCollectionInterface *collection
        = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(loader.instance());
    return collection ? collection->customWidgets() : QList<QDesignerCustomWidgetInterface *>();
}

QWidget *createWidget(const QString &file, const QString &name)
{
    for (QDesignerCustomWidgetInterface *descriptor : descriptors(file)) {
        if (descriptor->name() == name) {
            return descriptor->createWidget(nullptr);
        }
    }
    return nullptr;
}

} // namespace

class PluginTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void loadsAsAPlugin();
    void exportsItsEntryPoints();
    void givesACollectionOfItsWidgets();
    void isTheLibraryThatIsLinkedUnlessItIsACopy_data();
    void isTheLibraryThatIsLinkedUnlessItIsACopy();
    void remakesADeletedInstance();
};

void PluginTest::loadsAsAPlugin()
{
    QPluginLoader loader(pluginFile());

    QVERIFY2(loader.load(), qPrintable(loader.errorString()));
    QVERIFY(loader.instance());
}

void PluginTest::exportsItsEntryPoints()
{
    QVERIFY(QLibrary::resolve(pluginFile(), "qt_plugin_instance"));
    QVERIFY(QLibrary::resolve(pluginFile(), "qt_plugin_query_verification_data"));
}

void PluginTest::givesACollectionOfItsWidgets()
{
    QStringList names;
    for (const QDesignerCustomWidgetInterface *descriptor : descriptors(pluginFile())) {
        names.append(descriptor->name());
    }

    names.sort();
    QCOMPARE(names, offered());
}

void PluginTest::isTheLibraryThatIsLinkedUnlessItIsACopy_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("isLinked");

    QTest::newRow("the library's own file") << pluginFile() << true;
#ifdef Q_OS_WIN
    QTest::newRow("what Designer finds") << QString::fromUtf8(TESSALINE_DESIGNER_FILE) << false;
#else
    QTest::newRow("what Designer finds") << QString::fromUtf8(TESSALINE_DESIGNER_FILE) << true;
#endif
}

void PluginTest::isTheLibraryThatIsLinkedUnlessItIsACopy()
{
    QFETCH(QString, file);

    const QScopedPointer<QWidget> widget(createWidget(file, "SpinBox"));

    QVERIFY(!widget.isNull());
    QTEST(qobject_cast<SpinBox *>(widget.data()) != nullptr, "isLinked");
}

void PluginTest::remakesADeletedInstance()
{
    QPluginLoader loader(pluginFile());
    const QPointer<QObject> first = loader.instance();
    QCOMPARE(loader.instance(), first.data());
    delete first;

    QObject *second = loader.instance();

    QVERIFY(qobject_cast<QDesignerCustomWidgetCollectionInterface *>(second));
}

TESSALINE_TEST_MAIN(PluginTest)

#include "tst_plugin.moc"
