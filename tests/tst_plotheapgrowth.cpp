// SPDX-License-Identifier: LGPL-3.0-or-later
#include "HeapCounter.h"
#include "PlotClock.h"
#include "TestCase.h"
#include "UpdatablePlot.h"
#include "ViewHelpers.h"

namespace {

const int cycles = 1000;

// Each plot sees the same times, so that the labels that Qt keeps are soon all known.
int secondsSinceStart = 0;

QDateTime pretendedTime()
{
    return PlotClock::startTime.addSecs(secondsSinceStart);
}

void usePlot(UpdatablePlot *plot)
{
    plot->setBgColor("white");
    plot->setCurveColor("steelblue");
    plot->setXTitle("time");
    plot->setYTitle("bytes");
    for (secondsSinceStart = 0; secondsSinceStart < 4000; secondsSinceStart += 800) {
        plot->updateData(1000 * secondsSinceStart);
    }
    plot->resize(300, 200);
    compat::grab(plot);
}

void plotCycle()
{
    {
        UpdatablePlot plot;
        plot.show();
        usePlot(&plot);
        goThroughEvents();
    }
    goThroughEvents();
}

} // namespace

/// A thousand charts that were made, used and destroyed leave nothing on the heap.
class PlotHeapGrowthTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void doesNotGrowByPlots();
};

void PlotHeapGrowthTest::doesNotGrowByPlots()
{
    PlotClock::currentDateTime = pretendedTime;

    const QString growth = HeapCounter::growth(cycles, plotCycle);

    QCOMPARE(growth, QString("0 blocks, 0 pointers a cycle"));
}

TESSALINE_TEST_MAIN(PlotHeapGrowthTest)
#include "tst_plotheapgrowth.moc"
