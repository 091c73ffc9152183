// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PlotScales.h"
#include "PretendedClock.h"
#include "QwtTestCompat.h"
#include "TestCase.h"
#include "UpdatablePlot.h"

#include <qwt_text.h>

namespace {

/// The last points, such as "0:5 1:7".
QString points(const QwtPlot &plot, int most = 5)
{
    const QwtPlotCurve &curve = compat::curveOf(plot);
    const int count = int(curve.dataSize());
    QStringList list;
    for (int i = qMax(0, count - most); i < count; ++i) {
        const QPointF point = compat::pointAt(curve, i);
        list.append(QString("%1:%2").arg(point.x()).arg(point.y(), 0, 'g', 19));
    }
    return list.join(" ");
}

void setSecond(int second)
{
    pretendedSecond() = second;
}

} // namespace

/// What a chart makes of the samples that it is told.
class PlotUpdatesTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void countsFromItsStartInUniversalTime();
    void addsASampleAtTheCurrentSecond();
    void keepsOneSampleASecond();
    void movesTheTimeAxisWithTheClock();
    void fitsTheSizeAxisToTheLargestSample_data();
    void fitsTheSizeAxisToTheLargestSample();
    void keepsHalfAnHourAndASecond();
    void rejectsAValueAndChangesNothing();
    void saysOnTheDebugOutputThatAValueIsInvalid();
    void takesSamplesByName();
    void keepsSamplesAheadOfAClockSetBack();
    void dropsAllWhenTheClockJumpsAhead();
    void takesNegativeValues();
    void takesTheEndsOf64Bits();
    void leavesTheTextsOfOthersToQwt();
};

void PlotUpdatesTest::initTestCase()
{
    PlotClock::currentDateTime = pretendedTime;
}

void PlotUpdatesTest::countsFromItsStartInUniversalTime()
{
    QCOMPARE(PlotClock::startTime.timeSpec(), Qt::LocalTime);
    QCOMPARE(PlotClock::startTimeUtc.timeSpec(), Qt::UTC);
    QCOMPARE(PlotClock::startTimeUtc.toMSecsSinceEpoch(), PlotClock::startTime.toMSecsSinceEpoch());
}

void PlotUpdatesTest::addsASampleAtTheCurrentSecond()
{
    UpdatablePlot plot(nullptr);
    setSecond(42);
    refuseMessage("Invalid value.");

    plot.updateData(2048);

    QCOMPARE(points(plot), QString("42:2048"));
}

void PlotUpdatesTest::keepsOneSampleASecond()
{
    UpdatablePlot plot(nullptr);
    setSecond(7);
    plot.updateData(1);
    plot.updateData(2);
    setSecond(8);

    plot.updateData(3);

    QCOMPARE(points(plot), QString("7:2 8:3"));
}

void PlotUpdatesTest::movesTheTimeAxisWithTheClock()
{
    UpdatablePlot plot(nullptr);
    setSecond(3600);

    plot.updateData(1);

    QCOMPARE(ends(plot, QwtPlot::xBottom), QString("1800..3598"));
    QCOMPARE(majorStep(plot, QwtPlot::xBottom), 300.0);
}

void PlotUpdatesTest::fitsTheSizeAxisToTheLargestSample_data()
{
    QTest::addColumn<qint64>("sample");
    QTest::addColumn<QString>("axis");
    QTest::addColumn<double>("step");

    QTest::newRow("small") << qint64(100) << "0..1024" << 200.0; // as Qwt chooses
    QTest::newRow("10000") << qint64(10000) << "0..10000" << 1024.0;
    QTest::newRow("100 MB") << qint64(104857600) << "0..104857600" << 20971520.0;
}

void PlotUpdatesTest::fitsTheSizeAxisToTheLargestSample()
{
    QFETCH(qint64, sample);
    UpdatablePlot plot(nullptr);
    setSecond(1);
    plot.updateData(1);
    setSecond(2);

    plot.updateData(sample);

    QTEST(ends(plot, QwtPlot::yLeft), "axis");
    QTEST(majorStep(plot, QwtPlot::yLeft), "step");
}

void PlotUpdatesTest::keepsHalfAnHourAndASecond()
{
    UpdatablePlot plot(nullptr);

    for (int second = 0; second < 31 * 60; ++second) {
        setSecond(second);
        plot.updateData(second);
    }

    QCOMPARE(int(compat::curveOf(plot).dataSize()), 1802);
    QCOMPARE(compat::pointAt(compat::curveOf(plot), 0), QPointF(58, 58)); // 1859 - 1801
    QCOMPARE(points(plot, 1), QString("1859:1859"));
}

void PlotUpdatesTest::rejectsAValueAndChangesNothing()
{
    UpdatablePlot plot(nullptr);
    setSecond(10);
    plot.updateData(5000);
    const QString time = ends(plot, QwtPlot::xBottom);
    setSecond(20);
    expectDebugMessage("Invalid value.");

    plot.updateData(QString("many"));

    QCOMPARE(points(plot), QString("10:5000"));
    QCOMPARE(ends(plot, QwtPlot::xBottom), time);
    QCOMPARE(ends(plot, QwtPlot::yLeft), QString("0..5000"));
}

void PlotUpdatesTest::saysOnTheDebugOutputThatAValueIsInvalid()
{
    UpdatablePlot plot(nullptr);
    QTest::ignoreMessage(QtDebugMsg, "Invalid value."); // fails if it does not come

    plot.updateData(QVariant());

    QCOMPARE(points(plot), QString());
}

void PlotUpdatesTest::takesSamplesByName()
{
    UpdatablePlot plot(nullptr);
    setSecond(3);

    QVERIFY(QMetaObject::invokeMethod(&plot, "updateData", Q_ARG(QVariant, QString("77"))));

    QCOMPARE(points(plot), QString("3:77"));
}

void PlotUpdatesTest::keepsSamplesAheadOfAClockSetBack()
{
    UpdatablePlot plot(nullptr);
    setSecond(5000);
    plot.updateData(9000);
    setSecond(4000);

    plot.updateData(1);

    QCOMPARE(points(plot), QString("4000:1 5000:9000"));
    QCOMPARE(ends(plot, QwtPlot::xBottom), QString("2200..3998"));
    QCOMPARE(ends(plot, QwtPlot::yLeft), QString("0..9000")); // it still counts
    setSecond(6802);
    plot.updateData(1);
    QCOMPARE(points(plot), QString("6802:1"));
}

void PlotUpdatesTest::dropsAllWhenTheClockJumpsAhead()
{
    UpdatablePlot plot(nullptr);
    setSecond(100);
    plot.updateData(9000);
    setSecond(100 + 1802);

    plot.updateData(1);

    QCOMPARE(points(plot), QString("1902:1"));
    QCOMPARE(ends(plot, QwtPlot::yLeft), QString("0..1024"));
}

void PlotUpdatesTest::takesNegativeValues()
{
    UpdatablePlot plot(nullptr);
    setSecond(1);

    plot.updateData(-5000);

    QCOMPARE(points(plot), QString("1:-5000"));
    QCOMPARE(ends(plot, QwtPlot::yLeft), QString("0..1024"));
}

void PlotUpdatesTest::takesTheEndsOf64Bits()
{
    UpdatablePlot plot(nullptr);
    setSecond(1);
    plot.updateData(Q_INT64_C(9223372036854775807));
    setSecond(2);

    plot.updateData(QString("-9223372036854775808"));

    QCOMPARE(points(plot), QString("1:9223372036854775808 2:-9223372036854775808"));
    QCOMPARE(ends(plot, QwtPlot::yLeft), QString("0..9223372036854775808"));
}

void PlotUpdatesTest::leavesTheTextsOfOthersToQwt()
{
    UpdatablePlot plot;

    plot.updateData(5000);

    QVERIFY(QwtText("12:05") == QwtText("12:05", QwtText::PlainText));
}

TESSALINE_TEST_MAIN(PlotUpdatesTest)
#include "tst_plotupdates.moc"
