// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PlotClock.h"
#include "QwtTestCompat.h"
#include "TestCase.h"
#include "UpdatablePlot.h"

#include <qwt_scale_draw.h>
#include <qwt_text.h>

namespace {

int pretendedSeconds = 0;

QDateTime pretendedTime()
{
    return PlotClock::startTime.addSecs(pretendedSeconds);
}

/// A clock that goes on whenever it is looked at.
QDateTime tickingTime()
{
    return PlotClock::startTime.addSecs(++pretendedSeconds);
}

void addSample(UpdatablePlot *plot, int second, int sample)
{
    pretendedSeconds = second;
    plot->updateData(sample);
}

/// The points of a chart, such as "0:5 1:7".
QString points(const UpdatablePlot &plot)
{
    const QwtPlotCurve &curve = compat::curveOf(plot);
    QStringList list;
    for (int i = 0; i < int(curve.dataSize()); ++i) {
        const QPointF point = compat::pointAt(curve, i);
        list.append(QString("%1:%2").arg(point.x()).arg(point.y()));
    }
    return list.join(" ");
}

double upperEnd(const UpdatablePlot &plot, int axis = QwtPlot::xBottom)
{
    return compat::scaleDiv(plot, axis).upperBound();
}

} // namespace

/// What the chart makes of a clock that goes on, stands still or is set.
class PlotClockTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void takesSamplesFromBeforeItsStart();
    void looksAtTheClockOnceForASample();
    void startsWithTheHalfHourOfTheProcess();
    void takesSamplesWhenTheClockIsSetFarBack();
    void fitsTheSizeAxisAnewWhenTheLargestSampleIsTooOld();
    void replacesTheSampleOfAClockThatStandsStill();
};

void PlotClockTest::initTestCase()
{
    PlotClock::currentDateTime = pretendedTime;
}

void PlotClockTest::takesSamplesFromBeforeItsStart()
{
    UpdatablePlot plot;
    pretendedSeconds = -50; // the clock was set back

    plot.updateData(5000);

    pretendedSeconds = 0;
    QCOMPARE(compat::pointAt(compat::curveOf(plot), 0), QPointF(-50, 5000));
    QCOMPARE(upperEnd(plot), -52.0);
}

void PlotClockTest::looksAtTheClockOnceForASample()
{
    UpdatablePlot plot;
    pretendedSeconds = 99;
    PlotClock::currentDateTime = tickingTime;

    plot.updateData(5000);

    PlotClock::currentDateTime = pretendedTime;
    QCOMPARE(pretendedSeconds, 100);
    QCOMPARE(compat::pointAt(compat::curveOf(plot), 0), QPointF(100, 5000));
    QCOMPARE(upperEnd(plot), 98.0);
}

void PlotClockTest::startsWithTheHalfHourOfTheProcess()
{
    pretendedSeconds = 0;
    UpdatablePlot early;
    pretendedSeconds = 7200;

    UpdatablePlot late; // it counts from the same moment

    early.replot();
    late.replot();
    QCOMPARE(upperEnd(late), upperEnd(early));
    QVERIFY(late.axisScaleDraw(QwtPlot::xBottom)->label(0)
            == early.axisScaleDraw(QwtPlot::xBottom)->label(0));
}

void PlotClockTest::takesSamplesWhenTheClockIsSetFarBack()
{
    UpdatablePlot plot;
    addSample(&plot, 10000, 9000);

    addSample(&plot, 5000, 1);
    addSample(&plot, 5001, 2);

    QCOMPARE(points(plot), QString("5000:1 5001:2 10000:9000"));
    QCOMPARE(upperEnd(plot), 4999.0);
}

void PlotClockTest::fitsTheSizeAxisAnewWhenTheLargestSampleIsTooOld()
{
    UpdatablePlot plot;
    addSample(&plot, 0, 9000);
    addSample(&plot, 1, 5000);
    addSample(&plot, 1801, 1);
    QCOMPARE(upperEnd(plot, QwtPlot::yLeft), 9000.0);

    addSample(&plot, 1802, 1);

    QCOMPARE(upperEnd(plot, QwtPlot::yLeft), 5000.0);
}

void PlotClockTest::replacesTheSampleOfAClockThatStandsStill()
{
    UpdatablePlot plot;
    addSample(&plot, 7, 9000);
    addSample(&plot, 7, 2000);

    QCOMPARE(points(plot), QString("7:2000"));
    QCOMPARE(upperEnd(plot, QwtPlot::yLeft), 2000.0); // the first one is forgotten
}

TESSALINE_TEST_MAIN(PlotClockTest)
#include "tst_plotclock.moc"
