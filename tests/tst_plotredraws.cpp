// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ByteSizeScaleDraw.h"
#include "LabelEngine.h"
#include "PlainObject.h"
#include "PlotClock.h"
#include "QwtTestCompat.h"
#include "TestCase.h"
#include "TimeScaleDraw.h"
#include "UpdatablePlot.h"
#include "ViewHelpers.h"

#include <qwt_plot_canvas.h>
#include <qwt_plot_layout.h>
#include <qwt_scale_draw.h>
#include <qwt_text.h>

namespace {

int pretendedSeconds = 0;

QDateTime pretendedTime()
{
    return PlotClock::startTime.addSecs(pretendedSeconds);
}

/// Counts how often it is drawn anew.
class NotingPlot : public UpdatablePlot
{
public:
    void replot() override
    {
        ++replots;
        UpdatablePlot::replot();
    }

    int replots = 0;
};

double upperEnd(const QwtPlot &plot, int axis)
{
    return compat::scaleDiv(plot, axis).upperBound();
}

} // namespace

/// When the chart is drawn anew, and what it takes back of an application's changes then.
class PlotRedrawsTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void isDrawnOnceForEachSample();
    void isDrawnForTheSameSampleAgain();
    void followsItsSamplesWhileItIsNotSeen_data();
    void followsItsSamplesWhileItIsNotSeen();
    void isNotDrawnForAnInvalidValue();
    void isDrawnForTheCurveColorOnly_data();
    void isDrawnForTheCurveColorOnly();
    void fitsItsAxesToEachSample();
    void leavesItsAxesToTheApplicationWhenAValueIsInvalid();
    void takesATitleThatReadsTheSameAsPlainText_data();
    void takesATitleThatReadsTheSameAsPlainText();
    void keepsTheBlanksOfATitle();
    void takesATitleAwayAgain();
    void labelsItsAxesInTextsOfAutomaticFormat();
    void isAPlotWithItsDefaults();
    void drawsItsCurveOverTheGrid();
};

void PlotRedrawsTest::initTestCase()
{
    PlotClock::currentDateTime = pretendedTime;
}

void PlotRedrawsTest::isDrawnOnceForEachSample()
{
    NotingPlot plot;

    plot.updateData(5000);

    QCOMPARE(plot.replots, 1);
}

void PlotRedrawsTest::isDrawnForTheSameSampleAgain()
{
    NotingPlot plot;
    plot.updateData(5000);
    plot.replots = 0;

    plot.updateData(5000);

    QCOMPARE(plot.replots, 1);
}

void PlotRedrawsTest::isNotDrawnForAnInvalidValue()
{
    NotingPlot plot;
    plot.updateData(5000);
    plot.replots = 0;
    expectDebugMessage("Invalid value.");

    plot.updateData("many");

    QCOMPARE(plot.replots, 0);
}

void PlotRedrawsTest::isDrawnForTheCurveColorOnly_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<int>("replots");

    QTest::newRow("background") << QByteArray("bgColor") << 0;
    QTest::newRow("curve") << QByteArray("curveColor") << 1;
    QTest::newRow("time title") << QByteArray("xTitle") << 0;
    QTest::newRow("size title") << QByteArray("yTitle") << 0;
}

void PlotRedrawsTest::isDrawnForTheCurveColorOnly()
{
    QFETCH(QByteArray, property);
    NotingPlot plot;

    plot.setProperty(property.constData(), QString("red"));

    QTEST(plot.replots, "replots");
}

void PlotRedrawsTest::fitsItsAxesToEachSample()
{
    UpdatablePlot plot;
    pretendedSeconds = 100;
    plot.updateData(5000);
    plot.setAxisScale(QwtPlot::xBottom, 0.0, 7.0);
    plot.setAxisScale(QwtPlot::yLeft, 0.0, 7.0);

    plot.updateData(5000); // in the same second

    QCOMPARE(upperEnd(plot, QwtPlot::xBottom), 98.0);
    QCOMPARE(upperEnd(plot, QwtPlot::yLeft), 5000.0);
}

void PlotRedrawsTest::leavesItsAxesToTheApplicationWhenAValueIsInvalid()
{
    UpdatablePlot plot;
    plot.updateData(5000);
    plot.setAxisScale(QwtPlot::xBottom, 0.0, 7.0);
    plot.setAxisScale(QwtPlot::yLeft, 0.0, 7.0);
    expectDebugMessage("Invalid value.");

    plot.updateData("many");
    plot.replot();

    QCOMPARE(upperEnd(plot, QwtPlot::xBottom), 7.0);
    QCOMPARE(upperEnd(plot, QwtPlot::yLeft), 7.0);
}

void PlotRedrawsTest::takesATitleThatReadsTheSameAsPlainText_data()
{
    QTest::addColumn<int>("axis");
    QTest::addColumn<QByteArray>("property");

    QTest::newRow("time") << int(QwtPlot::xBottom) << QByteArray("xTitle");
    QTest::newRow("size") << int(QwtPlot::yLeft) << QByteArray("yTitle");
}

void PlotRedrawsTest::takesATitleThatReadsTheSameAsPlainText()
{
    QFETCH(int, axis);
    QFETCH(QByteArray, property);
    const QString text("<b>bold</b>");
    UpdatablePlot plot;
    plot.setAxisTitle(axis, QwtText(text, QwtText::RichText));

    plot.setProperty(property.constData(), text);

    QVERIFY(plot.axisTitle(axis) == QwtText(text, QwtText::PlainText));
    QVERIFY(!(plot.axisTitle(axis) == QwtText(text, QwtText::RichText)));
}

void PlotRedrawsTest::keepsTheBlanksOfATitle()
{
    UpdatablePlot plot;

    plot.setXTitle(" Time ");
    plot.setYTitle(" Size ");

    QCOMPARE(plot.xTitle(), QString(" Time "));
    QCOMPARE(plot.yTitle(), QString(" Size "));
}

void PlotRedrawsTest::takesATitleAwayAgain()
{
    UpdatablePlot plot;
    plot.setXTitle("Time");
    plot.setYTitle("Size");

    plot.setXTitle("");
    plot.setYTitle("");

    QVERIFY(plot.axisTitle(QwtPlot::xBottom).isEmpty());
    QVERIFY(plot.axisTitle(QwtPlot::yLeft).isEmpty());
}

void PlotRedrawsTest::labelsItsAxesInTextsOfAutomaticFormat()
{
    const LabelEngine::Turn turn; // takes texts of automatic format

    const QwtText size = ByteSizeScaleDraw().label(1536);
    const QwtText time = TimeScaleDraw(QTime(12, 0)).label(60);

    QVERIFY(size == QwtText("1.50 KB", QwtText::AutoText));
    QVERIFY(!(size == QwtText("1.50 KB", QwtText::PlainText)));
    QVERIFY(time == QwtText("12:01", QwtText::AutoText));
}

void PlotRedrawsTest::isAPlotWithItsDefaults()
{
    const UpdatablePlot plot;
    QwtPlot plain;
    plain.setCanvasBackground(QColor(Qt::white));

    QCOMPARE(differences(plot, plain), QString());
    QCOMPARE(plot.plotLayout()->spacing(), plain.plotLayout()->spacing());
    QCOMPARE(plot.plotLayout()->canvasMargin(QwtPlot::yLeft),
             plain.plotLayout()->canvasMargin(QwtPlot::yLeft));
    QCOMPARE(plot.canvas()->isEnabled(), plain.canvas()->isEnabled());
    QCOMPARE(plot.axisMaxMinor(QwtPlot::xBottom), plain.axisMaxMinor(QwtPlot::xBottom));
    QCOMPARE(plot.axisMaxMinor(QwtPlot::yLeft), plain.axisMaxMinor(QwtPlot::yLeft));
}

void PlotRedrawsTest::drawsItsCurveOverTheGrid()
{
    const UpdatablePlot plot;
    const QwtPlotCurve plainCurve;
    const QwtPlotGrid plainGrid;

    const QwtPlotCurve &curve = compat::curveOf(plot);
    const QwtPlotGrid *grid = compat::findItem<QwtPlotGrid>(plot, QwtPlotItem::Rtti_PlotGrid);

    QVERIFY(grid);
    QCOMPARE(curve.z(), plainCurve.z());
    QCOMPARE(grid->z(), plainGrid.z());
    QCOMPARE(int(curve.xAxis()), int(QwtPlot::xBottom));
    QCOMPARE(int(curve.yAxis()), int(QwtPlot::yLeft));
    QCOMPARE(int(grid->yAxis()), int(QwtPlot::yLeft));
    QVERIFY(!curve.testRenderHint(QwtPlotItem::RenderAntialiased));
}

void PlotRedrawsTest::followsItsSamplesWhileItIsNotSeen_data()
{
    QTest::addColumn<bool>("isHeldBack");
    QTest::addColumn<bool>("isMinimized");
    QTest::addColumn<bool>("isDisabled");

    QTest::newRow("updates are held back") << true << false << false;
    QTest::newRow("the window is minimised") << false << true << false;
    QTest::newRow("disabled") << false << false << true;
}

void PlotRedrawsTest::followsItsSamplesWhileItIsNotSeen()
{
    QFETCH(bool, isHeldBack);
    QFETCH(bool, isMinimized);
    QFETCH(bool, isDisabled);
    UpdatablePlot plot;
    showWindow(&plot, 300, 200);
    plot.setUpdatesEnabled(!isHeldBack);
    if (isMinimized) {
        plot.showMinimized();
    }
    plot.setDisabled(isDisabled);

    plot.updateData(5000);

    QCOMPARE(upperEnd(plot, QwtPlot::yLeft), 5000.0);
}

TESSALINE_TEST_MAIN(PlotRedrawsTest)
#include "tst_plotredraws.moc"
