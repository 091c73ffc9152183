// SPDX-License-Identifier: LGPL-3.0-or-later
// How the chart draws its curve. Qwt has the area below it filled as one polygon of thousands of
// edges, which was most of what a sample cost. Where the same picture comes of it, the area is
// filled as rectangles; everything else is left to Qwt.
#include "PixelArea.h"
#include "QtCompat.h"
#include "QwtCompat.h"
#include "UpdatablePlot.h"

#include <qwt_painter.h>
#include <qwt_plot_curve.h>
#include <qwt_scale_map.h>

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QPointF>
#include <QPolygonF>
#include <QRectF>
#include <QTransform>

#include <cmath>

namespace {

/// Whether all of a rectangle is seen on the painter's device. Edges that go beyond, QPainter cuts
/// before it fills.
bool isOnDevice(const QPainter &painter, const QRectF &rect)
{
    const QPaintDevice *device = painter.paintEngine()->paintDevice();
    return QRectF(0.0, 0.0, device->width(), device->height())
        .contains(painter.deviceTransform().mapRect(rect));
}

bool clipsInside(const QPainter &painter, const QRectF &rect)
{
    return painter.hasClipping()
        && !painter.clipBoundingRect().toAlignedRect().contains(rect.toAlignedRect());
}

bool keepsDirections(const QTransform &transform)
{
    return transform.type() <= QTransform::TxScale && transform.m11() > 0.0
        && transform.m22() > 0.0;
}

/// Whether the painter fills whole pixels, by rules that are known.
bool fillsPixels(QPainter *painter, const QRectF &canvasRect)
{
    return painter->isActive() && painter->paintEngine()->type() == QPaintEngine::Raster
        && QwtPainter::roundingAlignment(painter)
        && !painter->testRenderHint(QPainter::Antialiasing) && !compat::roundsAsQt4(*painter)
        && keepsDirections(painter->deviceTransform()) && isOnDevice(*painter, canvasRect)
        && !clipsInside(*painter, canvasRect);
}

/// Whether the curve looks as the chart makes it.
bool isOurs(const QwtPlotCurve &curve)
{
    return curve.brush().style() == Qt::SolidPattern && curve.brush().color().isValid()
        && curve.orientation() == Qt::Vertical && !curve.testCurveAttribute(QwtPlotCurve::Fitted)
        && curve.testPaintAttribute(QwtPlotCurve::ClipPolygons)
        && curve.testPaintAttribute(QwtPlotCurve::FilterPoints)
        && !compat::keepsExtremesOnly(curve);
}

// As Qwt rounds: halves go away from 0.
double rounded(double value)
{
    const double most = 1e9;
    if (value >= 0.0 && value < most) {
        // Far faster than what follows, and the same.
        return static_cast<int>(value + 0.5); // NOLINT(bugprone-incorrect-roundings)
    }
    return value >= 0.0 ? std::floor(value + 0.5) : std::ceil(value - 0.5);
}

/// The points of the canvas that a curve goes through. Empty if it does not go from left to right,
/// between the top of the canvas and the level.
QPolygonF lineOf(const QwtPlotCurve &curve, int from, int to, const QwtScaleMap &xMap,
                 const QwtScaleMap &yMap, double top, double level)
{
    QPolygonF line(to - from + 1);
    QPointF *const points = line.data();
    int count = 0;
    for (int i = from; i <= to; ++i) {
        const QPointF sample = curve.sample(i);
        const double x = rounded(xMap.transform(sample.x()));
        const double y = rounded(yMap.transform(sample.y()));
        const bool goesOn = count == 0 || x >= points[count - 1].x();
        if (!goesOn || !(y >= top && y <= level)) {
            return QPolygonF();
        }
        if (count == 0 || x != points[count - 1].x() || y != points[count - 1].y()) {
            points[count++] = QPointF(x, y);
        }
    }
    line.resize(count);
    return line;
}

QPointF crossing(const QPointF &before, const QPointF &after, double x)
{
    const double slope = (after.y() - before.y()) / (after.x() - before.x());
    return QPointF(x, before.y() + (x - before.x()) * slope);
}

/// The part of a line that lies between two ends, as Qwt clips it: a point that has one beyond the
/// end beside it gets a new one at the end, even if it is there itself.
QPolygonF partBetween(double left, double right, QPolygonF line)
{
    int hidden = 0;
    while (hidden < line.size() && line.at(hidden).x() < left) {
        ++hidden;
    }
    if (hidden > 0 && hidden < line.size()) {
        --hidden;
        line[hidden] = crossing(line.at(hidden), line.at(hidden + 1), left);
    }
    line.remove(0, hidden);
    int end = static_cast<int>(line.size());
    while (end > 0 && line.at(end - 1).x() > right) {
        --end;
    }
    if (end > 0 && end < line.size()) {
        line[end] = crossing(line.at(end - 1), line.at(end), right);
        ++end;
    }
    line.resize(end);
    return line;
}

void fillBelow(QPainter *painter, const QPolygonF &line, double level, const QBrush &brush)
{
    const QTransform toPixels = painter->deviceTransform();
    const PixelArea area(toPixels.isIdentity() ? line : toPixels.map(line),
                         toPixels.map(QPointF(0.0, level)).y());
    painter->save();
    painter->setWorldTransform(toPixels.inverted(), true);
    painter->setPen(Qt::NoPen);
    painter->setBrush(brush);
    painter->drawRects(area.rectangles());
    painter->restore();
}

} // namespace

void UpdatablePlot::Curve::drawLines(QPainter *painter, const QwtScaleMap &xMap,
                                     const QwtScaleMap &yMap, const QRectF &canvasRect, int from,
                                     int to) const
{
    const double level = rounded(yMap.transform(baseline()));
    QPolygonF line;
    if (isOurs(*this) && fillsPixels(painter, canvasRect) && level <= canvasRect.bottom()) {
        line = lineOf(*this, from, to, xMap, yMap, canvasRect.top(), level);
    }
    if (line.isEmpty()) {
        QwtPlotCurve::drawLines(painter, xMap, yMap, canvasRect, from, to);
        return;
    }
    fillBelow(painter, partBetween(canvasRect.left(), canvasRect.right(), line), level, brush());
    const double margin = qMax(1.0, painter->pen().widthF());
    QwtPainter::drawPolyline(
        painter, partBetween(canvasRect.left() - margin, canvasRect.right() + margin, line));
}
