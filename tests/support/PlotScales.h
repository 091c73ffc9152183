// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_PLOTSCALES_H
#define TESSALINE_PLOTSCALES_H

#include "QwtTestCompat.h"

#include <QList>
#include <QString>

/// An axis's ends, such as "-300..1500".
inline QString ends(const QwtPlot &plot, int axis)
{
    const QwtScaleDiv &division = compat::scaleDiv(plot, axis);
    return QString("%1..%2")
        .arg(division.lowerBound(), 0, 'g', 19)
        .arg(division.upperBound(), 0, 'g', 19);
}

/// From one label of an axis to the next; 0 where there are fewer than two.
inline double majorStep(const QwtPlot &plot, int axis)
{
    const QList<double> ticks = compat::scaleDiv(plot, axis).ticks(QwtScaleDiv::MajorTick);
    return ticks.size() < 2 ? 0.0 : ticks.at(1) - ticks.at(0);
}

#endif
