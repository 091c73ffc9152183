// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PixelArea.h"

namespace {

// The first pixel whose centre is not before a coordinate, which is in 1/64 of a pixel.
int pixelFrom(qint64 coordinate)
{
    return static_cast<int>((coordinate + 32) >> 6);
}

} // namespace

struct PixelArea::Point
{
    explicit Point(const QPointF &point)
        : x(qRound64(point.x() * 64.0))
        , y(qRound64(point.y() * 64.0))
    {
    }

    qint64 x;
    qint64 y;
};

PixelArea::PixelArea(const QVector<QPointF> &line, double level)
    : left(0)
    , bottom(pixelFrom(Point(QPointF(0.0, level)).y))
{
    if (line.size() < 2) {
        return;
    }
    left = pixelFrom(Point(line.first()).x);
    tops.reserve(pixelFrom(Point(line.last()).x) - left);
    for (int i = 1; i < line.size(); ++i) {
        if (line.at(i).x() > line.at(i - 1).x()) { // most edges of a full chart are vertical
            addEdge(Point(line.at(i - 1)), Point(line.at(i)));
        }
    }
}

// Where an edge crosses the middle of a row is reckoned in the steps of QPainter's rasteriser, in
// 1/65536 of a pixel: a step is cut off, so long edges stray, and halves fall as they do there.
void PixelArea::addEdge(const Point &from, const Point &to)
{
    const int end = pixelFrom(to.x);
    const Point &upper = from.y < to.y ? from : to;
    const Point &lower = from.y < to.y ? to : from;
    const int top = pixelFrom(upper.y);
    const qint64 rows = pixelFrom(lower.y) - top;
    const qint64 step = rows == 0
        ? 0
        : static_cast<qint64>(static_cast<double>(lower.x - upper.x)
                              / static_cast<double>(lower.y - upper.y) * 65536.0);
    const qint64 down = top * qint64(65536) + 32768 - upper.y * 1024;
    const qint64 start = 32768 + upper.x * 1024 + ((step * down) >> 16);
    const qint64 stride = qMax(qint64(1), qAbs(step));
    for (int column = left + static_cast<int>(tops.size()); column < end; ++column) {
        const qint64 columnEnd = (column + 1) * qint64(65536);
        const qint64 distance = step > 0 ? columnEnd - start : start - columnEnd + 1;
        const qint64 row = (distance + stride - 1) / stride;
        tops.append(top + static_cast<int>(qBound(qint64(0), row, rows)));
    }
}

// Goes from left to right over what is still open to the right, ever higher. A lower column closes
// what is above it.
QVector<QRect> PixelArea::rectangles() const
{
    struct Open
    {
        int column;
        int top;
    };
    QVector<QRect> rectangles;
    QVector<Open> open;
    rectangles.reserve(tops.size());
    for (int i = 0; i <= tops.size(); ++i) {
        const int top = i < tops.size() ? tops.at(i) : bottom;
        int column = i;
        while (!open.isEmpty() && open.last().top < top) {
            const Open closed = open.last();
            open.removeLast();
            const int level = open.isEmpty() ? top : qMin(top, open.last().top);
            column = closed.column;
            rectangles.append(QRect(left + column, closed.top, i - column, level - closed.top));
        }
        if (open.isEmpty() ? top < bottom : open.last().top > top) {
            open.append({column, top});
        }
    }
    return rectangles;
}
