// SPDX-License-Identifier: LGPL-3.0-or-later
#include "EditableTableView.h"
#include "FileListTableView.h"
#include "FileListTableViewPlugin.h"
#include "PlainObject.h"
#include "SpinBox.h"
#include "Tessaline.h"
#include "TestCase.h"
#ifdef TESSALINE_HAS_PLOT
#include "QwtTestCompat.h"
#include "UpdatablePlot.h"
#endif

#include <QScopedPointer>

namespace {

/// What the widget that a descriptor makes has otherwise than one that an application makes.
QString differencesOf(QDesignerCustomWidgetInterface *descriptor, const QWidget &plain)
{
    const QScopedPointer<QWidget> designed(descriptor->createWidget(nullptr));
    return differences(*designed, plain);
}

class AllTranslated : public compat::Translator
{
protected:
    QString find(const QByteArray &, const QByteArray &) const override
    {
        return QString("translated");
    }
};

/// What Designer says of the widgets.
QStringList descriptionsBy(const Tessaline &collection)
{
    QStringList texts;
    const QList<QDesignerCustomWidgetInterface *> widgets = collection.customWidgets();
    for (const QDesignerCustomWidgetInterface *widget : widgets) {
        texts << widget->name() << widget->group() << widget->toolTip() << widget->whatsThis();
    }
    return texts;
}

} // namespace

/// What forms and Designer get of the descriptors, the second time too.
class DesignedWidgetsTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void makesATableAsAnApplicationDoes();
    void makesASpinBoxAsAnApplicationDoes();
    void makesAFileListAsAnApplicationDoes();
#ifdef TESSALINE_HAS_PLOT
    void makesAChartAsAnApplicationDoes();
    void makesAChartWithoutTitleAndSamples();
#endif
    void describesItsWidgetsTheSameInAnyLanguage();
    void makesAnotherWidgetEachTime();
    void givesTheSameDescriptorsAgain();
    void keepsItsDescriptorsWhenTheGivenListChanges();
    void initializesOneDescriptorOnly();
};

void DesignedWidgetsTest::makesATableAsAnApplicationDoes()
{
    const Tessaline collection;

    QCOMPARE(differencesOf(collection.customWidgets().first(), EditableTableView()), QString());
}

void DesignedWidgetsTest::makesASpinBoxAsAnApplicationDoes()
{
    const Tessaline collection;

    QCOMPARE(differencesOf(collection.customWidgets().last(), SpinBox()), QString());
}

void DesignedWidgetsTest::makesAFileListAsAnApplicationDoes()
{
    FileListTableViewPlugin descriptor;

    QCOMPARE(differencesOf(&descriptor, FileListTableView()), QString());
}

#ifdef TESSALINE_HAS_PLOT
void DesignedWidgetsTest::makesAChartAsAnApplicationDoes()
{
    const Tessaline collection;

    QCOMPARE(differencesOf(collection.customWidgets().at(1), UpdatablePlot()), QString());
}
#endif

void DesignedWidgetsTest::makesAnotherWidgetEachTime()
{
    const Tessaline collection;
    QWidget form;

    for (QDesignerCustomWidgetInterface *descriptor : collection.customWidgets()) {
        QVERIFY(descriptor->createWidget(&form) != descriptor->createWidget(&form));
    }
}

void DesignedWidgetsTest::givesTheSameDescriptorsAgain()
{
    const Tessaline collection;
    const QList<QDesignerCustomWidgetInterface *> first = collection.customWidgets();

    QCOMPARE(collection.customWidgets(), first);
    QVERIFY(!first.isEmpty());
}

void DesignedWidgetsTest::keepsItsDescriptorsWhenTheGivenListChanges()
{
    const Tessaline collection;
    QList<QDesignerCustomWidgetInterface *> given = collection.customWidgets();
    const int before = int(given.size());

    given.clear();

    QCOMPARE(int(collection.customWidgets().size()), before);
}

void DesignedWidgetsTest::initializesOneDescriptorOnly()
{
    const Tessaline collection;
    const Tessaline other;

    collection.customWidgets().last()->initialize(nullptr);

    QVERIFY(collection.customWidgets().last()->isInitialized());
    QVERIFY(!collection.customWidgets().first()->isInitialized());
    QVERIFY(!other.customWidgets().last()->isInitialized());
}

#ifdef TESSALINE_HAS_PLOT
void DesignedWidgetsTest::makesAChartWithoutTitleAndSamples()
{
    const Tessaline collection;
    const QScopedPointer<QWidget> designed(collection.customWidgets().at(1)->createWidget(nullptr));

    const UpdatablePlot *chart = qobject_cast<UpdatablePlot *>(designed.data());

    QVERIFY(chart);
    QVERIFY(chart->title().isEmpty());
    QCOMPARE(int(compat::curveOf(*chart).dataSize()), 0);
}
#endif

void DesignedWidgetsTest::describesItsWidgetsTheSameInAnyLanguage()
{
    const Tessaline collection;
    const QStringList before = descriptionsBy(collection);
    AllTranslated translator;
    QCoreApplication::installTranslator(&translator);

    const QStringList after = descriptionsBy(collection);

    QCoreApplication::removeTranslator(&translator);
    QCOMPARE(after, before);
}

TESSALINE_TEST_MAIN(DesignedWidgetsTest)
#include "tst_designedwidgets.moc"
