// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_QWTTESTCOMPAT_H
#define TESSALINE_QWTTESTCOMPAT_H

#include <qwt_global.h>
#include <qwt_plot.h>
#include <qwt_plot_curve.h>
#include <qwt_plot_grid.h>
#include <qwt_plot_item.h>
#include <qwt_scale_div.h>

#include <QPen>
#include <QPointF>

/// What the tests read off a plot that Qwt 5 and 6 offer differently.
namespace compat {

/// Whether axes have ticks before the first replot.
const bool axesStartWithTicks = QWT_VERSION >= 0x060000;

namespace detail {

inline const QwtScaleDiv &scaleDiv(const QwtScaleDiv &division)
{
    return division;
}

inline const QwtScaleDiv &scaleDiv(const QwtScaleDiv *division)
{
    return *division;
}

template <class Curve>
auto pointAt(const Curve &curve, int i, int) -> decltype(curve.sample(size_t(i)), QPointF())
{
    return curve.sample(i); // Qwt 6
}

template <class Curve> QPointF pointAt(const Curve &curve, int i, long)
{
    return QPointF(curve.x(i), curve.y(i)); // Qwt 5
}

template <class Grid> auto majorPen(const Grid &grid, int) -> decltype(grid.majorPen(), QPen())
{
    return grid.majorPen(); // Qwt 6
}

template <class Grid> QPen majorPen(const Grid &grid, long)
{
    return grid.majPen(); // Qwt 5
}

template <class Layout>
auto alignsCanvasToScales(const Layout &layout, int)
    -> decltype(layout.alignCanvasToScale(QwtPlot::xBottom))
{
    return layout.alignCanvasToScale(QwtPlot::xBottom); // Qwt 6
}

template <class Layout> bool alignsCanvasToScales(const Layout &layout, long)
{
    return layout.alignCanvasToScales(); // Qwt 5
}

template <class Curve>
auto fillSideways(Curve *curve, int) -> decltype(curve->setOrientation(Qt::Horizontal))
{
    curve->setOrientation(Qt::Horizontal); // Qwt 6
}

template <class Curve> void fillSideways(Curve *curve, long)
{
    curve->setCurveType(Curve::Xfy); // Qwt 5
}

template <class Curve>
auto keepExtremesOnly(Curve *curve, int)
    -> decltype(curve->setPaintAttribute(Curve::FilterPointsAggressive))
{
    curve->setPaintAttribute(Curve::FilterPointsAggressive); // Qwt 6.2
}

template <class Curve> void keepExtremesOnly(Curve *, long)
{
}

} // namespace detail

inline const QwtScaleDiv &scaleDiv(const QwtPlot &plot, int axis)
{
    return detail::scaleDiv(plot.axisScaleDiv(axis));
}

inline QPointF pointAt(const QwtPlotCurve &curve, int i)
{
    return detail::pointAt(curve, i, 0);
}

inline QPen majorPen(const QwtPlotGrid &grid)
{
    return detail::majorPen(grid, 0);
}

template <class Layout> bool alignsCanvasToScales(const Layout &layout)
{
    return detail::alignsCanvasToScales(layout, 0);
}

/// Has the area between the curve and the size axis filled.
inline void fillSideways(QwtPlotCurve *curve)
{
    detail::fillSideways(curve, 0);
}

/// Has a curve drawn through some of its points only, where Qwt can do so.
inline void keepExtremesOnly(QwtPlotCurve *curve)
{
    detail::keepExtremesOnly(curve, 0);
}

/// The first item of a kind, which Qwt 5 can't be asked for.
template <class Item> const Item *findItem(const QwtPlot &plot, int kind)
{
    const QwtPlotItemList items = plot.itemList();
    for (const QwtPlotItem *item : items) {
        if (item->rtti() == kind) {
            return static_cast<const Item *>(item);
        }
    }
    return nullptr;
}

inline const QwtPlotCurve &curveOf(const QwtPlot &plot)
{
    return *findItem<QwtPlotCurve>(plot, QwtPlotItem::Rtti_PlotCurve);
}

} // namespace compat

#endif
