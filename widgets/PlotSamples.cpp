// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PlotSamples.h"

#include "QtCompat.h"

#include <QDateTime>

#include <algorithm>
#include <limits>

namespace {

const int keptSpan = PlotSamples::span + 1;

// The largest integers become 2^63 as doubles, for which there is no 64-bit integer.
qint64 toInteger(double value)
{
    return value >= 9223372036854775808.0 ? std::numeric_limits<qint64>::max()
                                          : static_cast<qint64>(value);
}

bool isBefore(const QPointF &point, double second)
{
    return point.x() < second;
}

} // namespace

namespace PlotSamples {

InitialAxis::InitialAxis(const QDateTime &start)
{
    const qint64 milliseconds = start.toMSecsSinceEpoch();
    const qint64 boundary = milliseconds / 1000 / timeStep * timeStep;
    lower = static_cast<int>((boundary * 1000 - milliseconds) / 1000);
    upper = static_cast<int>(((boundary + span) * 1000 - milliseconds) / 1000);
    base = compat::fromSecs(boundary).time();
}

int secondsSince(const QDateTime &start, const QDateTime &now)
{
    const qint64 farthest = 2000000000; // 63 years; leaves room to reckon with the span
    return static_cast<int>(qBound(-farthest, compat::secsTo(start, now), farthest));
}

bool parse(const QVariant &value, qint64 *sample)
{
    bool isInteger = false;
    // The way into a double and back is part of the format.
    *sample = toInteger(static_cast<double>(compat::text(value).toLongLong(&isInteger, 10)));
    return isInteger;
}

void prune(QMap<int, qint64> *samples, int now)
{
    while (!samples->isEmpty() && samples->begin().key() < now - keptSpan) {
        samples->erase(samples->begin());
    }
}

void follow(QVector<QPointF> *points, const QMap<int, qint64> &samples, int now)
{
    const QPointF point(now, static_cast<double>(samples.value(now)));
    auto place = std::lower_bound(points->begin(), points->end(), point.x(), isBefore);
    if (place != points->end() && place->x() == point.x()) {
        *place = point;
    } else {
        points->insert(place, point);
    }
    const auto begin = points->begin();
    points->erase(begin, std::lower_bound(begin, points->end(), samples.begin().key(), isBefore));
}

qint64 maximum(const QVector<QPointF> &points)
{
    double largest = 1024.0;
    for (const QPointF &point : points) {
        largest = qMax(largest, static_cast<double>(point.y()));
    }
    return toInteger(largest);
}

qint64 sizeStep(qint64 maximum)
{
    qint64 unit = 1;
    for (qint64 rest = maximum; rest >= 1024; rest /= 1024) {
        unit *= 1024;
    }
    return maximum / unit / 5 * unit;
}

} // namespace PlotSamples
