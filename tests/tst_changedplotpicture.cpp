// SPDX-License-Identifier: LGPL-3.0-or-later
// A chart that a program changes, and one that is not painted on a screen, look as a bare plot
// does.
#include "TestCase.h"
#include "TwoPlots.h"

#include <QPicture>

#include <cmath>

namespace {

/// Something done to a chart and a bare plot alike.
typedef void (*Change)(QwtPlot *plot);

template <class Plot> QByteArray recordedCanvas(Plot *plot)
{
    QPicture picture;
    QPainter painter(&picture);
    plot->drawCanvas(&painter);
    painter.end();
    return QByteArray(picture.data(), static_cast<int>(picture.size()));
}

void antialias(QwtPlot *plot)
{
    curveOf(plot)->setRenderHint(QwtPlotItem::RenderAntialiased);
}

void drawSteps(QwtPlot *plot)
{
    curveOf(plot)->setStyle(QwtPlotCurve::Steps);
}

void fit(QwtPlot *plot)
{
    curveOf(plot)->setCurveAttribute(QwtPlotCurve::Fitted);
}

void hatch(QwtPlot *plot)
{
    curveOf(plot)->setBrush(QBrush(Qt::red, Qt::BDiagPattern));
}

void shade(QwtPlot *plot)
{
    QLinearGradient gradient(0, 0, 0, 100);
    gradient.setColorAt(0, Qt::red);
    gradient.setColorAt(1, Qt::transparent);
    curveOf(plot)->setBrush(gradient);
}

void fillOpaquely(QwtPlot *plot)
{
    curveOf(plot)->setBrush(QColor(Qt::red));
}

void fillWithoutColor(QwtPlot *plot)
{
    curveOf(plot)->setBrush(QBrush(QColor(), Qt::SolidPattern));
}

void leaveAllPoints(QwtPlot *plot)
{
    curveOf(plot)->setPaintAttribute(QwtPlotCurve::FilterPoints, false);
}

void leaveWhatIsOutside(QwtPlot *plot)
{
    curveOf(plot)->setPaintAttribute(QwtPlotCurve::ClipPolygons, false);
}

void hideTheLine(QwtPlot *plot)
{
    curveOf(plot)->setPen(QPen(Qt::NoPen));
}

void widenTheLine(QwtPlot *plot)
{
    curveOf(plot)->setPen(QPen(translucent("red"), 5.5));
}

void raiseTheLevel(QwtPlot *plot)
{
    curveOf(plot)->setBaseline(4000000);
}

void endTheAxisEarly(QwtPlot *plot)
{
    plot->setAxisScale(QwtPlot::yLeft, 0, 5000000);
}

void startTheAxisLate(QwtPlot *plot)
{
    plot->setAxisScale(QwtPlot::yLeft, 4000000, 8000000);
}

void startTheAxisBelow(QwtPlot *plot)
{
    plot->setAxisScale(QwtPlot::yLeft, -4000000, 8000000);
}

void showOneMinute(QwtPlot *plot)
{
    plot->setAxisScale(QwtPlot::xBottom, lastSecond - 100.5, lastSecond - 40.25);
}

void turnTheSizesRound(QwtPlot *plot)
{
    plot->setAxisScale(QwtPlot::yLeft, 8000000, 0);
}

void turnTheTimesRound(QwtPlot *plot)
{
    plot->setAxisScale(QwtPlot::xBottom, lastSecond, lastSecond - 1800);
}

void goToAndFro(QwtPlot *plot)
{
    QPolygonF points;
    for (int i = 0; i < 900; ++i) {
        points.append(QPointF(lastSecond - 900 + 800 * std::sin(i / 50.0),
                              static_cast<double>(chance(i) * 7000)));
    }
    compat::setPoints(curveOf(plot), points);
}

void antialiasPainter(QPainter *painter)
{
    painter->setRenderHint(QPainter::Antialiasing);
}

void shift(QPainter *painter)
{
    painter->translate(10, 20);
}

void shiftByHalves(QPainter *painter)
{
    painter->translate(0.5, 10.5);
}

void scale(QPainter *painter)
{
    painter->scale(1.3, 0.7);
}

void mirror(QPainter *painter)
{
    painter->translate(200, 0);
    painter->scale(-1, 1);
}

void rotate(QPainter *painter)
{
    painter->rotate(10);
}

void showOnePart(QPainter *painter)
{
    painter->setClipRect(QRect(40, 20, 60, 90));
}

void showHalfOfIt(QPainter *painter)
{
    painter->setOpacity(0.5);
}

void seeThroughAWindow(QPainter *painter)
{
    painter->setWindow(-10, -10, 400, 300);
}

void removeWhatIsThere(QPainter *painter)
{
    painter->setCompositionMode(QPainter::CompositionMode_Xor);
}

} // namespace

Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(PainterChange)

class ChangedPlotPictureTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void paintsTheSameWhenItIsChanged_data();
    void paintsTheSameWhenItIsChanged();
    void paintsTheSameOnAPainterThatIsChanged_data();
    void paintsTheSameOnAPainterThatIsChanged();
    void recordsWhatABarePlotRecords();
};

void ChangedPlotPictureTest::initTestCase()
{
    PlotClock::currentDateTime = pretendedTime;
}

void ChangedPlotPictureTest::paintsTheSameWhenItIsChanged_data()
{
    QTest::addColumn<Change>("change");

    QTest::newRow("antialiased") << Change(antialias);
    QTest::newRow("steps") << Change(drawSteps);
    QTest::newRow("fitted") << Change(fit);
    QTest::newRow("hatched") << Change(hatch);
    QTest::newRow("shaded") << Change(shade);
    QTest::newRow("opaque") << Change(fillOpaquely);
    QTest::newRow("without a colour") << Change(fillWithoutColor);
    QTest::newRow("unfiltered") << Change(leaveAllPoints);
    QTest::newRow("unclipped") << Change(leaveWhatIsOutside);
    QTest::newRow("without a line") << Change(hideTheLine);
    QTest::newRow("a wide line") << Change(widenTheLine);
    QTest::newRow("a level among the samples") << Change(raiseTheLevel);
    QTest::newRow("an axis that ends among the samples") << Change(endTheAxisEarly);
    QTest::newRow("an axis that starts among the samples") << Change(startTheAxisLate);
    QTest::newRow("an axis that starts below 0") << Change(startTheAxisBelow);
    QTest::newRow("one minute") << Change(showOneMinute);
    QTest::newRow("upside down") << Change(turnTheSizesRound);
    QTest::newRow("right to left") << Change(turnTheTimesRound);
    QTest::newRow("to and fro") << Change(goToAndFro);
}

void ChangedPlotPictureTest::paintsTheSameWhenItIsChanged()
{
    QFETCH(Change, change);
    TwoPlots plots(samplesOf(noise, 1802));
    for (QwtPlot *plot : plots.both()) {
        change(plot);
        plot->replot();
    }

    QCOMPARE(differencesBySize(&plots, someSizes()), noDifferences(someSizes()));
    QCOMPARE(differences(canvasPicture(&plots.chart, 2.0), canvasPicture(&plots.bare, 2.0)), 0);
}

void ChangedPlotPictureTest::paintsTheSameOnAPainterThatIsChanged_data()
{
    QTest::addColumn<PainterChange>("change");

    QTest::newRow("antialiased") << PainterChange(antialiasPainter);
    QTest::newRow("shifted") << PainterChange(shift);
    QTest::newRow("shifted by halves") << PainterChange(shiftByHalves);
    QTest::newRow("scaled") << PainterChange(scale);
    QTest::newRow("mirrored") << PainterChange(mirror);
    QTest::newRow("rotated") << PainterChange(rotate);
    QTest::newRow("clipped") << PainterChange(showOnePart);
    QTest::newRow("half opaque") << PainterChange(showHalfOfIt);
    QTest::newRow("with coordinates of its own") << PainterChange(seeThroughAWindow);
    QTest::newRow("by another rule") << PainterChange(removeWhatIsThere);
}

void ChangedPlotPictureTest::paintsTheSameOnAPainterThatIsChanged()
{
    QFETCH(PainterChange, change);
    TwoPlots plots(samplesOf(noise, 1802));
    plots.resize(QSize(333, 217));

    const QImage picture = canvasPicture(&plots.chart, 1.0, change);

    QCOMPARE(differences(picture, canvasPicture(&plots.bare, 1.0, change)), 0);
}

void ChangedPlotPictureTest::recordsWhatABarePlotRecords()
{
    TwoPlots plots(samplesOf(noise, 1802));

    const QByteArray recorded = recordedCanvas(&plots.chart);

    QVERIFY(recorded == recordedCanvas(&plots.bare));
}

TESSALINE_TEST_MAIN(ChangedPlotPictureTest)
#include "tst_changedplotpicture.moc"
