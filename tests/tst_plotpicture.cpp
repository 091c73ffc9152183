// SPDX-License-Identifier: LGPL-3.0-or-later
// The chart has its curve drawn in ways of its own. What comes of it is what a bare plot draws that
// is told the same, pixel by pixel.
#include "ByteSizeScaleDraw.h"
#include "PlotClock.h"
#include "PlotSamples.h"
#include "QtCompat.h"
#include "QwtCompat.h"
#include "QwtTestCompat.h"
#include "TestCase.h"
#include "TimeScaleDraw.h"
#include "UpdatablePlot.h"
#include "ViewHelpers.h"

#include <qwt_plot_canvas.h>
#include <qwt_plot_layout.h>
#include <qwt_scale_engine.h>
#include <qwt_scale_widget.h>

#include <QPainter>
#include <QPicture>

#include <cmath>
#include <limits>

namespace {

const int lastSecond = 5000; // of all samples
int pretendedSecond = 0;

QDateTime pretendedTime()
{
    return PlotClock::startTimeUtc.addSecs(pretendedSecond);
}

typedef QMap<int, qint64> Samples; ///< By the second that they are of.

QFont smallPrint()
{
    return QFont("Ms Shell Dlg 2", 4);
}

QColor translucent(const QString &name)
{
    QColor color(name);
    color.setAlpha(150);
    return color;
}

QwtPlotCurve *curveOf(QwtPlot *plot)
{
    return const_cast<QwtPlotCurve *>(&compat::curveOf(*plot));
}

/// What the chart is made of, put together by hand.
class BarePlot : public QwtPlot
{
public:
    BarePlot();

    void setCurveColor(const QString &name);
    void take(const Samples &samples);

    using QwtPlot::drawCanvas;

private:
    QwtPlotCurve curve;
};

BarePlot::BarePlot()
{
    setAutoReplot(false);
    plotLayout()->setAlignCanvasToScales(true);
    setCanvasBackground(QColor(Qt::white));

    const PlotSamples::InitialAxis axis(PlotClock::startTime);
    setAxisScaleDraw(QwtPlot::xBottom, new TimeScaleDraw(axis.base));
    setAxisScale(QwtPlot::xBottom, axis.lower, axis.upper, 300.0);
    QwtScaleWidget *times = axisWidget(QwtPlot::xBottom);
    times->setFont(smallPrint());
    times->setMinBorderDist(0,
                            8 * compat::charWidth(QFontMetrics(times->font()), QLatin1Char('8')));

    setAxisScaleDraw(QwtPlot::yLeft, new ByteSizeScaleDraw);
    setAxisScale(QwtPlot::yLeft, 0.0, 1024.0, 0.0);
    axisWidget(QwtPlot::yLeft)->setFont(smallPrint());

    QwtPlotGrid *grid = new QwtPlotGrid; // the plot deletes it
    grid->enableX(false);
    grid->setPen(QPen(QBrush(QColor(56, 56, 56, 150)), 0));
    grid->attach(this);
    curve.attach(this);
}

void BarePlot::setCurveColor(const QString &name)
{
    const QBrush brush(translucent(name), Qt::SolidPattern);
    curve.setBrush(brush);
    curve.setPen(QPen(brush, 1.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    replot();
}

void BarePlot::take(const Samples &samples)
{
    QPolygonF points;
    qint64 maximum = 1024;
    for (auto sample = samples.begin(); sample != samples.end(); ++sample) {
        points.append(QPointF(sample.key(), static_cast<double>(sample.value())));
        maximum = qMax(maximum, sample.value());
    }
    setAxisScale(QwtPlot::xBottom, lastSecond - 1800, lastSecond - 2, 300.0);
    setAxisScale(QwtPlot::yLeft, 0.0, static_cast<double>(maximum),
                 static_cast<double>(PlotSamples::sizeStep(maximum)));
    compat::setPoints(&curve, points);
    replot();
}

/// The chart, fed with all samples, each in its second.
class Chart : public UpdatablePlot
{
public:
    explicit Chart(const Samples &fed)
    {
        for (auto sample = fed.begin(); sample != fed.end(); ++sample) {
            pretendedSecond = sample.key();
            updateData(sample.value());
        }
    }

    using UpdatablePlot::drawCanvas;
};

/// Both, shown, coloured and told the same.
struct TwoPlots
{
    explicit TwoPlots(const Samples &samples, const QString &color = "steelblue")
        : chart(samples)
    {
        if (!samples.isEmpty()) {
            bare.take(samples);
        }
        if (!color.isEmpty()) {
            chart.setCurveColor(color);
            bare.setCurveColor(color);
        }
        showWindow(&chart, 100, 100);
        showWindow(&bare, 100, 100);
    }

    QList<QwtPlot *> both()
    {
        return QList<QwtPlot *>() << &chart << &bare;
    }

    /// Has both laid out anew, too: Qwt's axes start where the last layout left them.
    void resize(const QSize &size)
    {
        for (QwtPlot *plot : both()) {
            plot->resize(size);
            plot->replot();
        }
    }

    Chart chart;
    BarePlot bare;
};

/// Something done to a chart and a bare plot alike.
typedef void (*Change)(QwtPlot *plot);
typedef void (*PainterChange)(QPainter *painter);

/// A sample each so many seconds, up to the last one.
template <class Value> Samples samplesOf(Value value, int count, int interval = 1)
{
    Samples samples;
    for (int i = count - 1; i >= 0; --i) {
        samples.insert(lastSecond - i * interval, value(i));
    }
    return samples;
}

// A sequence that looks like chance and is the same everywhere.
qint64 chance(int i)
{
    return (i + 7LL) * (i + 13LL) * 7919 % 1009;
}

qint64 flat(int)
{
    return 5000;
}

qint64 noise(int i)
{
    return 3000000 + chance(i) * 4000;
}

qint64 storm(int i)
{
    return chance(i) * 1000000;
}

qint64 spikes(int i)
{
    return i % 2 == 0 ? 0 : 1000000;
}

qint64 ramp(int i)
{
    return i * 1000;
}

qint64 aroundZero(int i)
{
    return (chance(i) - 500) * 1000;
}

qint64 extremes(int i)
{
    return i % 3 == 0 ? std::numeric_limits<qint64>::max() : -std::numeric_limits<qint64>::max();
}

qint64 gentle(int i)
{
    return qAbs(i % 300 - 150) * 40 + 1500;
}

Samples withGaps()
{
    Samples samples;
    for (int i = 0; i < 1802; i += 1 + static_cast<int>(chance(i) % 90)) {
        samples.insert(lastSecond - i, chance(i));
    }
    return samples;
}

QStringList someSizes()
{
    return QStringList() << "45x37"
                         << "333x217";
}

QStringList sizes()
{
    return QStringList() << "20x20"
                         << "45x37"
                         << "180x140"
                         << "333x217"
                         << "800x400"
                         << "1600x900";
}

QSize sizeOf(const QString &text)
{
    const QStringList sides = text.split('x');
    return QSize(sides.at(0).toInt(), sides.at(1).toInt());
}

int differences(const QImage &one, const QImage &other)
{
    if (one == other) {
        return 0;
    }
    if (one.size() != other.size()) {
        return std::numeric_limits<int>::max();
    }
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            count += one.pixel(x, y) == other.pixel(x, y) ? 0 : 1;
        }
    }
    return count;
}

/// How many pixels differ in plots of some sizes, such as "20x20:0 180x140:3".
QString differencesBySize(TwoPlots *plots, const QStringList &all)
{
    QStringList texts;
    for (const QString &size : all) {
        plots->resize(sizeOf(size));
        const int count = differences(compat::grab(&plots->chart).toImage(),
                                      compat::grab(&plots->bare).toImage());
        texts.append(QString("%1:%2").arg(size).arg(count));
    }
    return texts.join(" ");
}

QString noDifferences(const QStringList &all)
{
    return all.join(":0 ") + ":0";
}

void changeNothing(QPainter *)
{
}

/// The plot's canvas, drawn on a screen that has so many pixels for one of the window's.
template <class Plot>
QImage canvasPicture(Plot *plot, double pixelRatio, PainterChange change = changeNothing)
{
    QImage image(plot->size() * pixelRatio, QImage::Format_RGB32);
    compat::setPixelRatio(&image, pixelRatio);
    image.fill(Qt::white);
    QPainter painter(&image);
    change(&painter);
    plot->drawCanvas(&painter);
    return image;
}

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

Q_DECLARE_METATYPE(Samples)
Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(PainterChange)

class PlotPictureTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void paintsWhatABarePlotPaints_data();
    void paintsWhatABarePlotPaints();
    void paintsTheSameBeforeItHasAColor();
    void paintsTheSameOnADarkPalette();
    void paintsTheSameAtEachPixelRatio_data();
    void paintsTheSameAtEachPixelRatio();
    void paintsTheSameWhenItIsChanged_data();
    void paintsTheSameWhenItIsChanged();
    void paintsTheSameOnAPainterThatIsChanged_data();
    void paintsTheSameOnAPainterThatIsChanged();
    void recordsWhatABarePlotRecords();
};

void PlotPictureTest::initTestCase()
{
    PlotClock::currentDateTime = pretendedTime;
}

void PlotPictureTest::paintsWhatABarePlotPaints_data()
{
    QTest::addColumn<Samples>("samples");

    QTest::newRow("no sample") << Samples();
    QTest::newRow("one") << samplesOf(flat, 1);
    QTest::newRow("two") << samplesOf(ramp, 2);
    QTest::newRow("two, half an hour apart") << samplesOf(storm, 2, 1801);
    QTest::newRow("ten") << samplesOf(noise, 10);
    QTest::newRow("ten, over the half hour") << samplesOf(storm, 10, 200);
    QTest::newRow("a hundred, over the half hour") << samplesOf(storm, 100, 18);
    QTest::newRow("half a chart") << samplesOf(noise, 900);
    QTest::newRow("with gaps") << withGaps();
    QTest::newRow("flat") << samplesOf(flat, 1802);
    QTest::newRow("nothing but 0") << samplesOf(
        [](int) {
            return qint64(0);
        },
        1802);
    QTest::newRow("ramp") << samplesOf(ramp, 1802);
    QTest::newRow("gentle") << samplesOf(gentle, 1802);
    QTest::newRow("noise") << samplesOf(noise, 1802);
    QTest::newRow("storm") << samplesOf(storm, 1802);
    QTest::newRow("a spike a second") << samplesOf(spikes, 1802);
    QTest::newRow("below 0") << samplesOf(aroundZero, 1802);
    QTest::newRow("the ends of 64 bits") << samplesOf(extremes, 1802);
}

void PlotPictureTest::paintsWhatABarePlotPaints()
{
    QFETCH(Samples, samples);
    TwoPlots plots(samples);

    QCOMPARE(differencesBySize(&plots, sizes()), noDifferences(sizes()));
}

void PlotPictureTest::paintsTheSameBeforeItHasAColor()
{
    TwoPlots plots(samplesOf(noise, 1802), QString());

    QCOMPARE(differencesBySize(&plots, someSizes()), noDifferences(someSizes()));
}

void PlotPictureTest::paintsTheSameOnADarkPalette()
{
    TwoPlots plots(samplesOf(noise, 1802));
    const QPalette before = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(53, 53, 53)));

    const QString differences = differencesBySize(&plots, someSizes());

    QApplication::setPalette(before);
    QCOMPARE(differences, noDifferences(someSizes()));
}

void PlotPictureTest::paintsTheSameAtEachPixelRatio_data()
{
    QTest::addColumn<double>("pixelRatio");
    QTest::addColumn<Samples>("samples");

    QTest::newRow("1, noise") << 1.0 << samplesOf(noise, 1802);
    QTest::newRow("1.5, noise") << 1.5 << samplesOf(noise, 1802);
    QTest::newRow("1.5, storm") << 1.5 << samplesOf(storm, 1802);
    QTest::newRow("1.5, a hundred") << 1.5 << samplesOf(storm, 100, 18);
    QTest::newRow("2, noise") << 2.0 << samplesOf(noise, 1802);
    QTest::newRow("2, storm") << 2.0 << samplesOf(storm, 1802);
    QTest::newRow("2, a hundred") << 2.0 << samplesOf(storm, 100, 18);
}

void PlotPictureTest::paintsTheSameAtEachPixelRatio()
{
    QFETCH(double, pixelRatio);
    QFETCH(Samples, samples);
    TwoPlots plots(samples);

    QStringList found;
    const QStringList all = someSizes();
    for (const QString &size : all) {
        plots.resize(sizeOf(size));
        found.append(QString("%1:%2").arg(size).arg(differences(
            canvasPicture(&plots.chart, pixelRatio), canvasPicture(&plots.bare, pixelRatio))));
    }

    QCOMPARE(found.join(" "), noDifferences(all));
}

void PlotPictureTest::paintsTheSameWhenItIsChanged_data()
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

void PlotPictureTest::paintsTheSameWhenItIsChanged()
{
    QFETCH(Change, change);
    TwoPlots plots(samplesOf(noise, 1802));
    for (QwtPlot *plot : plots.both()) {
        change(plot);
        plot->replot();
    }

    QCOMPARE(differencesBySize(&plots, someSizes()), noDifferences(someSizes()));
}

void PlotPictureTest::paintsTheSameOnAPainterThatIsChanged_data()
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

void PlotPictureTest::paintsTheSameOnAPainterThatIsChanged()
{
    QFETCH(PainterChange, change);
    TwoPlots plots(samplesOf(noise, 1802));
    plots.resize(QSize(333, 217));

    const QImage picture = canvasPicture(&plots.chart, 1.0, change);

    QCOMPARE(differences(picture, canvasPicture(&plots.bare, 1.0, change)), 0);
}

void PlotPictureTest::recordsWhatABarePlotRecords()
{
    TwoPlots plots(samplesOf(noise, 1802));

    const QByteArray recorded = recordedCanvas(&plots.chart);

    QVERIFY(recorded == recordedCanvas(&plots.bare));
}

TESSALINE_TEST_MAIN(PlotPictureTest)
#include "tst_plotpicture.moc"
