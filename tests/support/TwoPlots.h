// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_TWOPLOTS_H
#define TESSALINE_TWOPLOTS_H

#include "ByteSizeScaleDraw.h"
#include "PlotSamples.h"
#include "PretendedClock.h"
#include "QtCompat.h"
#include "QwtCompat.h"
#include "QwtTestCompat.h"
#include "TestCompat.h"
#include "TimeScaleDraw.h"
#include "UpdatablePlot.h"
#include "ViewHelpers.h"

#include <qwt_plot_layout.h>
#include <qwt_scale_widget.h>

#include <QImage>
#include <QPainter>
#include <QStringList>

#include <limits>

/// A chart and a bare plot that is told the same, and how their pictures differ.

const int lastSecond = 5000; // of all samples

typedef QMap<int, qint64> Samples; ///< By the second that they are of.

inline QFont smallPrint()
{
    return QFont("Ms Shell Dlg 2", 4);
}

inline QColor translucent(const QString &name)
{
    QColor color(name);
    color.setAlpha(150);
    return color;
}

inline QwtPlotCurve *curveOf(QwtPlot *plot)
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

inline BarePlot::BarePlot()
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

inline void BarePlot::setCurveColor(const QString &name)
{
    const QBrush brush(translucent(name), Qt::SolidPattern);
    curve.setBrush(brush);
    curve.setPen(QPen(brush, 1.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    replot();
}

inline void BarePlot::take(const Samples &samples)
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
            pretendedSecond() = sample.key();
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
inline qint64 chance(int i)
{
    return (i + 7LL) * (i + 13LL) * 7919 % 1009;
}

inline qint64 flat(int)
{
    return 5000;
}

inline qint64 noise(int i)
{
    return 3000000 + chance(i) * 4000;
}

inline qint64 storm(int i)
{
    return chance(i) * 1000000;
}

inline qint64 spikes(int i)
{
    return i % 2 == 0 ? 0 : 1000000;
}

inline qint64 ramp(int i)
{
    return i * 1000;
}

inline qint64 aroundZero(int i)
{
    return (chance(i) - 500) * 1000;
}

inline qint64 extremes(int i)
{
    return i % 3 == 0 ? std::numeric_limits<qint64>::max() : -std::numeric_limits<qint64>::max();
}

inline qint64 gentle(int i)
{
    return qAbs(i % 300 - 150) * 40 + 1500;
}

inline Samples withGaps()
{
    Samples samples;
    for (int i = 0; i < 1802; i += 1 + static_cast<int>(chance(i) % 90)) {
        samples.insert(lastSecond - i, chance(i));
    }
    return samples;
}

inline QStringList someSizes()
{
    return QStringList() << "45x37"
                         << "333x217";
}

inline QStringList sizes()
{
    return QStringList() << "20x20"
                         << "45x37"
                         << "180x140"
                         << "333x217"
                         << "800x400"
                         << "1600x900";
}

inline QSize sizeOf(const QString &text)
{
    const QStringList sides = text.split('x');
    return QSize(sides.at(0).toInt(), sides.at(1).toInt());
}

inline int differences(const QImage &one, const QImage &other)
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
inline QString differencesBySize(TwoPlots *plots, const QStringList &all)
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

inline QString noDifferences(const QStringList &all)
{
    return all.join(":0 ") + ":0";
}

inline void changeNothing(QPainter *)
{
}

/// The plot's canvas, drawn on a screen that has so many pixels for one of the window's.
template <class Plot>
inline QImage canvasPicture(Plot *plot, double pixelRatio, PainterChange change = changeNothing)
{
    QImage image(plot->size() * pixelRatio, QImage::Format_RGB32);
    compat::setPixelRatio(&image, pixelRatio);
    image.fill(Qt::white);
    QPainter painter(&image);
    change(&painter);
    plot->drawCanvas(&painter);
    return image;
}

Q_DECLARE_METATYPE(Samples)

#endif
