// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_PIXELAREA_H
#define TESSALINE_PIXELAREA_H

#include <QPointF>
#include <QRect>
#include <QVector>

/// The pixels between a line that goes from left to right and a level below it: exactly those that
/// QPainter fills of that polygon, without antialiasing. As rectangles they cost a fraction of it,
/// because nothing looks for the edges of each row.
class PixelArea
{
public:
    /// `line` and `level` are in pixels of the device. The line is nowhere below the level.
    PixelArea(const QVector<QPointF> &line, double level);

    /// None overlaps another, and each is as wide as the area is there.
    QVector<QRect> rectangles() const;

private:
    struct Point; ///< In units of 1/64 of a pixel.

    void addEdge(const Point &from, const Point &to);

    int left; ///< The first column.
    int bottom; ///< The first row below the area.
    QVector<int> tops; ///< The first row of the area, for each column.
};

#endif
