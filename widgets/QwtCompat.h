// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_QWTCOMPAT_H
#define TESSALINE_QWTCOMPAT_H

#include <qwt_text_engine.h>

#include <QBrush>
#include <QColor>
#include <QFont>
#include <QPolygonF>
#include <QString>

#include <utility>

/// What Qwt 5 and 6 call differently. No version is asked for: the compiler takes what is there.
namespace compat {

namespace detail {

template <class Curve>
auto setPoints(Curve *curve, const QPolygonF &points, int)
    -> decltype(curve->setSamples(points), void())
{
    curve->setSamples(points); // Qwt 6
}

template <class Curve> void setPoints(Curve *curve, const QPolygonF &points, long)
{
    curve->setData(points); // Qwt 5
}

inline QColor colorOf(const QColor &color)
{
    return color;
}

inline QColor colorOf(const QBrush &brush)
{
    return brush.color();
}

template <class Canvas>
auto forgetPainting(Canvas *canvas, int) -> decltype(canvas->invalidateBackingStore(), void())
{
    canvas->invalidateBackingStore(); // Qwt 6
}

template <class Canvas> void forgetPainting(Canvas *canvas, long)
{
    canvas->invalidatePaintCache(); // Qwt 5
}

template <class Curve>
auto keepsExtremesOnly(const Curve &curve, int)
    -> decltype(curve.testPaintAttribute(Curve::FilterPointsAggressive))
{
    return curve.testPaintAttribute(Curve::FilterPointsAggressive); // Qwt 6.2
}

template <class Curve> bool keepsExtremesOnly(const Curve &, long)
{
    return false;
}

template <class Margin>
Margin marginOf(void (QwtPlainTextEngine::*)(const QFont &, const QString &, Margin &, Margin &,
                                             Margin &, Margin &) const);

} // namespace detail

/// What texts are measured in: whole pixels in Qwt 5.
typedef decltype(std::declval<QwtPlainTextEngine>().textSize(QFont(), 0, QString())) TextSize;
typedef decltype(detail::marginOf(&QwtPlainTextEngine::textMargins)) TextMargin;

template <class Curve> void setPoints(Curve *curve, const QPolygonF &points)
{
    detail::setPoints(curve, points, 0);
}

/// Whether a curve is drawn through some of its points only.
template <class Curve> bool keepsExtremesOnly(const Curve &curve)
{
    return detail::keepsExtremesOnly(curve, 0);
}

/// Makes a canvas paint itself anew. It keeps what it has painted, and a new background alone does
/// not make it forget that.
template <class Canvas> void repaintCanvas(Canvas *canvas)
{
    detail::forgetPainting(canvas, 0);
    canvas->update();
}

template <class Plot> QColor canvasColor(const Plot &plot)
{
    return detail::colorOf(plot.canvasBackground());
}

} // namespace compat

#endif
