// SPDX-License-Identifier: LGPL-3.0-or-later
// What a screen reader learns of a chart.
#include "PlotClock.h"
#include "TestCase.h"
#include "UpdatablePlot.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QDateTime>

namespace {

QAccessibleInterface *interfaceOf(QObject *object)
{
    return QAccessible::queryAccessibleInterface(object);
}

double currentValue(QObject *chart)
{
    return interfaceOf(chart)->valueInterface()->currentValue().toDouble();
}

double maximumValue(QObject *chart)
{
    return interfaceOf(chart)->valueInterface()->maximumValue().toDouble();
}

int pretendedSecond = 10;

QDateTime pretendedTime()
{
    return PlotClock::startTimeUtc.addSecs(pretendedSecond);
}

class DerivedPlot : public UpdatablePlot
{
    Q_OBJECT
};

/// One that the application has an interface for.
class DrawnPlot : public UpdatablePlot
{
    Q_OBJECT
};

QAccessibleInterface *interfaceOfDrawnPlot(const QString &className, QObject *object)
{
    return className == QLatin1String(DrawnPlot::staticMetaObject.className())
        ? new QAccessibleWidget(static_cast<QWidget *>(object), QAccessible::Graphic)
        : nullptr;
}

} // namespace

class ChartAccessibilityTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void isAChart();
    void leavesNameAndDescriptionToTheApplication();
    void hasNoTextBeforeTheFirstSample();
    void tellsTheLatestSample();
    void tellsTheLatestSampleAfterTheClockWasSetBack();
    void tellsASampleBeyondAnInt();
    void tellsTheLatestSampleAsTheAxisLabelsIt();
    void tellsTheUpperEndOfTheSizeAxis_data();
    void tellsTheUpperEndOfTheSizeAxis();
    void startsAtNothing();
    void canNotBeSet();
    void leavesOtherWidgetsToQt();
    void leavesPlotsThatAreNotItsOwnToQt();
    void readsADerivedChart();
    void leavesADerivedChartToItsOwnInterface();
};

void ChartAccessibilityTest::initTestCase()
{
    PlotClock::currentDateTime = pretendedTime;
    // Before there is a chart: Qt asks last for what was installed first.
    QAccessible::installFactory(interfaceOfDrawnPlot);
}

void ChartAccessibilityTest::isAChart()
{
    UpdatablePlot plot;

    QCOMPARE(int(interfaceOf(&plot)->role()), int(QAccessible::Chart));
}

void ChartAccessibilityTest::leavesNameAndDescriptionToTheApplication()
{
    UpdatablePlot plot;
    plot.setAccessibleName("Throughput");
    plot.setAccessibleDescription("Of the last half hour");
    plot.updateData(2048);

    QCOMPARE(interfaceOf(&plot)->text(QAccessible::Name), QString("Throughput"));
    QCOMPARE(interfaceOf(&plot)->text(QAccessible::Description), QString("Of the last half hour"));
}

void ChartAccessibilityTest::hasNoTextBeforeTheFirstSample()
{
    UpdatablePlot plot;

    QCOMPARE(interfaceOf(&plot)->text(QAccessible::Value), QString());
    QCOMPARE(currentValue(&plot), 0.0);
}

void ChartAccessibilityTest::tellsTheLatestSample()
{
    UpdatablePlot plot;
    plot.updateData(5000);
    ++pretendedSecond;

    plot.updateData(3000);

    QCOMPARE(currentValue(&plot), 3000.0);
}

void ChartAccessibilityTest::tellsTheLatestSampleAfterTheClockWasSetBack()
{
    UpdatablePlot plot;
    plot.updateData(5000);
    pretendedSecond -= 5;

    plot.updateData(3000);

    QCOMPARE(currentValue(&plot), 3000.0);
}

void ChartAccessibilityTest::tellsTheLatestSampleAsTheAxisLabelsIt()
{
    UpdatablePlot plot;

    plot.updateData(1536);

    QCOMPARE(interfaceOf(&plot)->text(QAccessible::Value), QString("1.50 KB"));
}

void ChartAccessibilityTest::tellsTheUpperEndOfTheSizeAxis_data()
{
    QTest::addColumn<int>("sample");
    QTest::addColumn<double>("maximum");

    QTest::newRow("small samples") << 12 << 1024.0;
    QTest::newRow("large samples") << 5000000 << 5000000.0;
}

void ChartAccessibilityTest::tellsTheUpperEndOfTheSizeAxis()
{
    QFETCH(int, sample);
    QFETCH(double, maximum);
    UpdatablePlot plot;
    plot.updateData(sample);
    ++pretendedSecond;

    plot.updateData(1);

    QCOMPARE(maximumValue(&plot), maximum);
}

void ChartAccessibilityTest::startsAtNothing()
{
    UpdatablePlot plot;
    const QAccessibleValueInterface *value = interfaceOf(&plot)->valueInterface();

    QCOMPARE(value->minimumValue().toDouble(), 0.0);
    QCOMPARE(value->minimumStepSize().toDouble(), 1.0);
    QCOMPARE(value->maximumValue().toDouble(), 1024.0);
}

void ChartAccessibilityTest::canNotBeSet()
{
    UpdatablePlot plot;
    plot.updateData(5000);

    interfaceOf(&plot)->valueInterface()->setCurrentValue(7);

    QCOMPARE(currentValue(&plot), 5000.0);
}

void ChartAccessibilityTest::leavesOtherWidgetsToQt()
{
    UpdatablePlot plot;
    QWidget widget;
    QWidget child(&plot);

    QVERIFY(!interfaceOf(&widget)->valueInterface());
    QVERIFY(!interfaceOf(&child)->valueInterface());
    QVERIFY(!interfaceOf(plot.canvas())->valueInterface());
}

void ChartAccessibilityTest::leavesPlotsThatAreNotItsOwnToQt()
{
    const UpdatablePlot ours;
    QwtPlot plot;

    QVERIFY(!interfaceOf(&plot)->valueInterface());
    QVERIFY(int(interfaceOf(&plot)->role()) != int(QAccessible::Chart));
}

void ChartAccessibilityTest::readsADerivedChart()
{
    DerivedPlot plot;
    plot.updateData(5000);

    QCOMPARE(int(interfaceOf(&plot)->role()), int(QAccessible::Chart));
    QCOMPARE(currentValue(&plot), 5000.0);
}

void ChartAccessibilityTest::leavesADerivedChartToItsOwnInterface()
{
    DrawnPlot plot;

    QCOMPARE(int(interfaceOf(&plot)->role()), int(QAccessible::Graphic));
}

void ChartAccessibilityTest::tellsASampleBeyondAnInt()
{
    UpdatablePlot plot;

    plot.updateData(Q_INT64_C(3000000000));

    QCOMPARE(currentValue(&plot), 3e9);
}

TESSALINE_TEST_MAIN(ChartAccessibilityTest)
#include "tst_chartaccessibility.moc"
