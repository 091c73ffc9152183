// SPDX-License-Identifier: LGPL-3.0-or-later
// The plug-in is loaded, used, unloaded and loaded again in one program, which is not linked to it.
#include "TestCase.h"

#include <qwt_text.h>

#include <QAccessible>
#include <QDesignerCustomWidgetCollectionInterface>
#include <QLibrary>
#include <QPluginLoader>
#include <QScopedPointer>
#include <QSpinBox>

namespace {

QWidget *make(QPluginLoader *plugin, const QString &name)
{
    plugin->setLoadHints(QLibrary::LoadHints()); // by itself Qt keeps the code of plug-ins
    const QDesignerCustomWidgetCollectionInterface *collection
        = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(plugin->instance());
    const QList<QDesignerCustomWidgetInterface *> widgets = collection->customWidgets();
    for (QDesignerCustomWidgetInterface *widget : widgets) {
        if (widget->name() == name) {
            return widget->createWidget(nullptr);
        }
    }
    return nullptr;
}

int roleOf(QObject *object)
{
    return int(QAccessible::queryAccessibleInterface(object)->role());
}

} // namespace

class PluginReloadingTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void leavesTheWidgetsOfOthersToQtAfterwards();
    void leavesTheTextsOfOthersToQwtAfterwards();
    void tellsOfItsChartsEachTime();
};

void PluginReloadingTest::leavesTheWidgetsOfOthersToQtAfterwards()
{
    QPluginLoader plugin(QString::fromUtf8(TESSALINE_PLUGIN_FILE));
    delete make(&plugin, "UpdatablePlot");

    QVERIFY(plugin.unload());

    QSpinBox box;
    QCOMPARE(roleOf(&box), int(QAccessible::SpinBox));
}

void PluginReloadingTest::leavesTheTextsOfOthersToQwtAfterwards()
{
    QPluginLoader plugin(QString::fromUtf8(TESSALINE_PLUGIN_FILE));
    delete make(&plugin, "UpdatablePlot");

    QVERIFY(plugin.unload());

    QVERIFY(QwtText("12:05") == QwtText("12:05", QwtText::PlainText)); // else it would crash
}

void PluginReloadingTest::tellsOfItsChartsEachTime()
{
    for (int round = 0; round < 3; ++round) {
        QPluginLoader plugin(QString::fromUtf8(TESSALINE_PLUGIN_FILE));
        QScopedPointer<QWidget> chart(make(&plugin, "UpdatablePlot"));

        QCOMPARE(roleOf(chart.data()), int(QAccessible::Chart));

        chart.reset();
        QVERIFY(plugin.unload());
    }
}

TESSALINE_TEST_MAIN(PluginReloadingTest)
#include "tst_pluginreloading.moc"
