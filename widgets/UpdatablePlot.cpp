// SPDX-License-Identifier: LGPL-3.0-or-later
#include "UpdatablePlot.h"

#include "ByteSizeScaleDraw.h"
#include "ChartAccessibility.h"
#include "LabelEngine.h"
#include "PlotClock.h"
#include "PlotSamples.h"
#include "QtCompat.h"
#include "QwtCompat.h"
#include "TimeScaleDraw.h"

#include <qwt_plot_canvas.h>
#include <qwt_plot_grid.h>
#include <qwt_plot_layout.h>
#include <qwt_scale_div.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_widget.h>
#include <qwt_text.h>

#include <QBrush>
#include <QColor>
#include <QFont>
#include <QFontMetrics>
#include <QPen>
#include <QPointF>
#include <QPolygonF>
#include <QVariant>

namespace {

const int translucent = 150; // alpha, of 255

// Very small on purpose: the chart is made for a corner of a window.
QFont smallPrint()
{
    return QFont(QLatin1String("Ms Shell Dlg 2"), 4);
}

} // namespace

UpdatablePlot::UpdatablePlot(QWidget *parent)
    : QwtPlot(parent)
    , sizeScaleDraw(nullptr)
    , timeScaleDraw(nullptr)
    , latest(0)
{
    ChartAccessibility::install();
    const LabelEngine::Turn turn;
    setAutoReplot(false);
    plotLayout()->setAlignCanvasToScales(true);
    setCanvasBackground(QColor(Qt::white));
    setUpTimeAxis();
    setUpSizeAxis();
    setUpGrid();
    curve.attach(this);
}

UpdatablePlot::~UpdatablePlot() = default;

QString UpdatablePlot::bgColor() const
{
    const QColor none;
    return canvas() ? compat::canvasColor(*this).name() : none.name();
}

void UpdatablePlot::setBgColor(const QString &text)
{
    if (!canvas()) {
        return; // Qwt would colour it all the same
    }
    setCanvasBackground(compat::namedColor(text));
    if (QwtPlotCanvas *own = qobject_cast<QwtPlotCanvas *>(canvas())) {
        compat::repaintCanvas(own);
    }
}

QString UpdatablePlot::curveColor() const
{
    return curve.brush().color().name();
}

void UpdatablePlot::setCurveColor(const QString &text)
{
    QColor color = compat::namedColor(text);
    color.setAlpha(translucent);
    const QBrush brush(color, Qt::SolidPattern);
    curve.setBrush(brush);
    curve.setPen(QPen(brush, 1.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    drawAnew();
}

QString UpdatablePlot::xTitle() const
{
    return axisTitle(QwtPlot::xBottom).text();
}

void UpdatablePlot::setXTitle(const QString &text)
{
    setAxisTitle(QwtPlot::xBottom, QwtText(text, QwtText::PlainText));
}

QString UpdatablePlot::yTitle() const
{
    return axisTitle(QwtPlot::yLeft).text();
}

void UpdatablePlot::setYTitle(const QString &text)
{
    setAxisTitle(QwtPlot::yLeft, QwtText(text, QwtText::PlainText));
}

void UpdatablePlot::updateData(const QVariant &val)
{
    qint64 sample = 0;
    if (!PlotSamples::parse(val, &sample)) {
        qDebug("Invalid value.");
        return;
    }
    const int now
        = PlotSamples::secondsSince(PlotClock::startTimeUtc, PlotClock::currentDateTime());
    samples.insert(now, sample);
    latest = sample;
    PlotSamples::prune(&samples, now);
    PlotSamples::follow(&points, samples, now);

    // The axis ends short of the newest sample, on purpose: the curve runs out of the picture.
    setAxisScale(QwtPlot::xBottom, now - PlotSamples::span, now - 2, PlotSamples::timeStep);
    const qint64 maximum = PlotSamples::maximum(points);
    setAxisScale(QwtPlot::yLeft, 0.0, static_cast<double>(maximum),
                 static_cast<double>(PlotSamples::sizeStep(maximum)));
    compat::setPoints(&curve, points);
    drawAnew();
    ChartAccessibility::announceValue(this, sample);
}

void UpdatablePlot::drawAnew()
{
    if (canvas()) { // without one, Qwt would lay out what is not there
        const LabelEngine::Turn turn;
        replot();
    }
}

void UpdatablePlot::setUpTimeAxis()
{
    const PlotSamples::InitialAxis axis(PlotClock::startTimeUtc);
    timeScaleDraw = new TimeScaleDraw(axis.base);
    installScaleDraw(QwtPlot::xBottom, timeScaleDraw);
    setAxisScale(QwtPlot::xBottom, axis.lower, axis.upper, PlotSamples::timeStep);
    QwtScaleWidget *widget = axisWidget(QwtPlot::xBottom);
    widget->setFont(smallPrint());
    const int digit = compat::charWidth(QFontMetrics(widget->font()), QLatin1Char('8'));
    widget->setMinBorderDist(0, 8 * digit);
}

void UpdatablePlot::setUpSizeAxis()
{
    sizeScaleDraw = new ByteSizeScaleDraw;
    installScaleDraw(QwtPlot::yLeft, sizeScaleDraw);
    setAxisScale(QwtPlot::yLeft, 0.0, 1024.0, 0.0);
    axisWidget(QwtPlot::yLeft)->setFont(smallPrint());
}

// An axis measures all labels when it gets its scale draw, of a scale that nobody will see. For as
// long it goes without ticks: this makes a fifth of the plot's construction.
void UpdatablePlot::installScaleDraw(int axis, QwtScaleDraw *scaleDraw)
{
    const QwtScaleDiv scale = axisScaleDraw(axis)->scaleDiv();
    axisScaleDraw(axis)->setScaleDiv(QwtScaleDiv());
    setAxisScaleDraw(axis, scaleDraw);
    scaleDraw->setScaleDiv(scale);
}

void UpdatablePlot::setUpGrid()
{
    QwtPlotGrid *grid = new QwtPlotGrid; // the plot deletes it
    grid->enableX(false);
    // A pen of a brush and width 0: a pen of a colour is no longer cosmetic since Qt 5.
    grid->setPen(QPen(QBrush(QColor(56, 56, 56, translucent)), 0));
    grid->attach(this);
}
