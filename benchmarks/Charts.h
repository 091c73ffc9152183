// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_CHARTS_H
#define TESSALINE_CHARTS_H

#include "ByteSizeScaleDraw.h"
#include "PlotClock.h"
#include "PlotSamples.h"
#include "TimeScaleDraw.h"
#include "UpdatablePlot.h"

#include <qwt_plot_grid.h>
#include <qwt_plot_layout.h>
#include <qwt_scale_widget.h>

#include <algorithm>

#include <QBrush>
#include <QColor>
#include <QFont>
#include <QFontMetrics>
#include <QPen>
#include <QPointF>
#include <QPolygonF>

/// Charts of the last half hour that take a sample with add(), and the second that it is of.
namespace Charts {

const int shownSamples = 1802;

/// A transfer that goes faster and slower, in bytes per second. The peaks are alike, so that the
/// size axis keeps its labels, as it does nearly always.
inline qint64 sampleAt(int second)
{
    const qint64 kilobyte = 1024;
    const qint64 wave = qAbs(second % 300 - 150) * 40;
    const qint64 noise = qint64(second) * 7919 % 1009;
    return (1500 + wave + noise) * kilobyte;
}

inline QColor curveColor()
{
    QColor color(QStringLiteral("steelblue"));
    color.setAlpha(150);
    return color;
}

inline QPen curvePen()
{
    return QPen(QBrush(curveColor()), 1.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin);
}

inline QPen gridPen()
{
    return QPen(QBrush(QColor(56, 56, 56, 150)), 0);
}

inline QFont smallPrint()
{
    return QFont(QStringLiteral("Ms Shell Dlg 2"), 4);
}

/// The samples of the last half hour, kept by hand, and the ends of the axes that fit them.
class Window
{
public:
    Window()
        : now(0)
        , maximum(0)
    {
    }

    void add(int second)
    {
        now = second;
        samples.insert(now, sampleAt(now));
        while (samples.begin().key() < now - (shownSamples - 1)) {
            samples.erase(samples.begin());
        }
        maximum = std::max(qint64(1024), *std::max_element(samples.begin(), samples.end()));
    }

    double left() const
    {
        return now - PlotSamples::span;
    }

    double right() const
    {
        return now - 2;
    }

    double top() const
    {
        return static_cast<double>(maximum);
    }

    double step() const
    {
        return static_cast<double>(PlotSamples::sizeStep(maximum));
    }

    template <class Points> Points points() const
    {
        Points points;
        points.reserve(samples.size());
        for (auto sample = samples.begin(); sample != samples.end(); ++sample) {
            points.append(QPointF(sample.key(), static_cast<double>(sample.value())));
        }
        return points;
    }

    const QMap<int, qint64> &all() const
    {
        return samples;
    }

private:
    QMap<int, qint64> samples;
    int now;
    qint64 maximum;
};

/// Our chart, on a clock that it does not have to wait for.
class Updatable : public UpdatablePlot
{
public:
    Updatable()
    {
        setCurveColor(QStringLiteral("steelblue"));
        PlotClock::currentDateTime = drivenTime;
    }

    void add(int second)
    {
        now() = second;
        updateData(sampleAt(second));
    }

private:
    static QDateTime drivenTime()
    {
        return PlotClock::startTimeUtc.addSecs(now());
    }

    /// Of all such charts: there is one clock, and each sets it before it uses it.
    static int &now()
    {
        static int secondsSinceStart = 0;
        return secondsSinceStart;
    }
};

/// The baseline: the plot that ours is made of, with everything that ours sets up and calls.
class Bare : public QwtPlot
{
public:
    Bare()
    {
        setAutoReplot(false);
        plotLayout()->setAlignCanvasToScales(true);
        setCanvasBackground(QColor(Qt::white));

        setAxisScaleDraw(QwtPlot::xBottom,
                         new TimeScaleDraw(PlotSamples::InitialAxis(PlotClock::startTime).base));
        QwtScaleWidget *times = axisWidget(QwtPlot::xBottom);
        times->setFont(smallPrint());
        times->setMinBorderDist(
            0, 8 * QFontMetrics(times->font()).horizontalAdvance(QLatin1Char('8')));
        setAxisScaleDraw(QwtPlot::yLeft, new ByteSizeScaleDraw);
        axisWidget(QwtPlot::yLeft)->setFont(smallPrint());

        QwtPlotGrid *grid = new QwtPlotGrid; // the plot deletes it
        grid->enableX(false);
        grid->setPen(gridPen());
        grid->attach(this);

        curve.setBrush(curveColor());
        curve.setPen(curvePen());
        curve.attach(this);
    }

    void add(int second)
    {
        window.add(second);
        setAxisScale(QwtPlot::xBottom, window.left(), window.right(), PlotSamples::timeStep);
        setAxisScale(QwtPlot::yLeft, 0.0, window.top(), window.step());
        curve.setSamples(window.points<QPolygonF>());
        replot();
    }

private:
    QwtPlotCurve curve;
    Window window;
};

} // namespace Charts

#endif
