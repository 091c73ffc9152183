// SPDX-License-Identifier: LGPL-3.0-or-later
// A chart that a program changes, or that is not painted on a screen as it is, looks as a bare plot
// does.
#include "TestCase.h"
#include "TwoPlots.h"

#include <cmath>

namespace {

/// Something done to a chart and a bare plot alike.
typedef void (*Change)(QwtPlot *plot);

/// A widget that shows a plot's canvas and nothing else.
template <class Plot> class CanvasCopy : public QWidget
{
public:
    explicit CanvasCopy(Plot *shown)
        : plot(shown)
    {
        resize(plot->size());
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        plot->drawCanvas(&painter);
    }

private:
    Plot *plot;
};

/// What a view makes of a widget in it that is turned or magnified: the widget's own painter knows
/// nothing of that.
template <class Plot> QImage renderedCanvas(Plot *plot, PainterChange change)
{
    QImage image(plot->size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    change(&painter);
    CanvasCopy<Plot>(plot).render(&painter, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
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

void leaveExtremesOnly(QwtPlot *plot)
{
    compat::keepExtremesOnly(curveOf(plot));
}

void leaveAllPoints(QwtPlot *plot)
{
    curveOf(plot)->setPaintAttribute(QwtPlotCurve::FilterPoints, false);
}

void leaveWhatIsOutside(QwtPlot *plot)
{
    curveOf(plot)->setPaintAttribute(QwtPlotCurve::ClipPolygons, false);
    plot->setAxisScale(QwtPlot::xBottom, lastSecond - 100.5, lastSecond - 40.25);
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

void fillToTheSide(QwtPlot *plot)
{
    compat::fillSideways(curveOf(plot));
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

void roundAsQt4(QPainter *painter)
{
    shiftByHalves(painter);
    compat::roundAsQt4(painter);
}

void scale(QPainter *painter)
{
    painter->scale(0.9, 0.7);
}

void mirror(QPainter *painter)
{
    painter->translate(333, 0);
    painter->scale(-1, 1);
}

void standOnItsHead(QPainter *painter)
{
    painter->translate(0, 217);
    painter->scale(1, -1);
}

void magnify(QPainter *painter)
{
    painter->translate(-36000, -22500);
    painter->scale(150, 150);
}

void rotate(QPainter *painter)
{
    painter->translate(60, 0);
    painter->rotate(10);
    painter->scale(0.5, 0.5);
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
    void paintsTheSameWhateverPartIsShown_data();
    void paintsTheSameWhateverPartIsShown();
    void paintsTheSameInAWidgetThatIsTransformed_data();
    void paintsTheSameInAWidgetThatIsTransformed();
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
    QTest::newRow("filtered more") << Change(leaveExtremesOnly);
    QTest::newRow("unfiltered") << Change(leaveAllPoints);
    QTest::newRow("unclipped") << Change(leaveWhatIsOutside);
    QTest::newRow("without a line") << Change(hideTheLine);
    QTest::newRow("a wide line") << Change(widenTheLine);
    QTest::newRow("a level among the samples") << Change(raiseTheLevel);
    QTest::newRow("an axis that ends among the samples") << Change(endTheAxisEarly);
    QTest::newRow("an axis that starts among the samples") << Change(startTheAxisLate);
    QTest::newRow("an axis that starts below 0") << Change(startTheAxisBelow);
    QTest::newRow("filled to the side") << Change(fillToTheSide);
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
    QTest::newRow("by the rules of Qt 4") << PainterChange(roundAsQt4);
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
    TwoPlots plots(withGaps());
    plots.resize(QSize(333, 217));

    const QImage picture = canvasPicture(&plots.chart, 1.0, change);

    QCOMPARE(differences(picture, canvasPicture(&plots.bare, 1.0, change)), 0);
}

void ChangedPlotPictureTest::paintsTheSameWhateverPartIsShown_data()
{
    QTest::addColumn<double>("width");

    QTest::newRow("the thinnest line") << 0.0;
    QTest::newRow("a thin line") << 1.0;
    QTest::newRow("a wide line") << 16.0;
}

// A few samples are seen, and those beside them, where the line is cut; before all and after them
// there are none.
void ChangedPlotPictureTest::paintsTheSameWhateverPartIsShown()
{
    QFETCH(double, width);
    TwoPlots plots(withGaps());
    plots.resize(QSize(333, 217));

    for (int i = 0; i < 60; ++i) {
        const double begin = lastSecond - 1950 + 33.7 * i;
        for (QwtPlot *plot : plots.both()) {
            curveOf(plot)->setPen(QPen(translucent("red"), width));
            plot->setAxisScale(QwtPlot::xBottom, begin, begin + 60.0);
            plot->replot();
        }
        QCOMPARE(differences(canvasPicture(&plots.chart, 1.0), canvasPicture(&plots.bare, 1.0)), 0);
    }
}

void ChangedPlotPictureTest::paintsTheSameInAWidgetThatIsTransformed_data()
{
    QTest::addColumn<PainterChange>("change");

    QTest::newRow("scaled") << PainterChange(scale);
    QTest::newRow("magnified") << PainterChange(magnify);
    QTest::newRow("mirrored") << PainterChange(mirror);
    QTest::newRow("upside down") << PainterChange(standOnItsHead);
    QTest::newRow("rotated") << PainterChange(rotate);
}

void ChangedPlotPictureTest::paintsTheSameInAWidgetThatIsTransformed()
{
    QFETCH(PainterChange, change);
    TwoPlots plots(withGaps());
    plots.resize(QSize(333, 217));

    const QImage picture = renderedCanvas(&plots.chart, change);

    QCOMPARE(differences(picture, renderedCanvas(&plots.bare, change)), 0);
}

TESSALINE_TEST_MAIN(ChangedPlotPictureTest)
#include "tst_changedplotpicture.moc"
