// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_QWTCOMPAT_H
#define TESSALINE_QWTCOMPAT_H

#include <QBrush>
#include <QColor>
#include <QPolygonF>

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

} // namespace detail

template <class Curve> void setPoints(Curve *curve, const QPolygonF &points)
{
    detail::setPoints(curve, points, 0);
}

template <class Plot> QColor canvasColor(const Plot &plot)
{
    return detail::colorOf(plot.canvasBackground());
}

} // namespace compat

#endif
