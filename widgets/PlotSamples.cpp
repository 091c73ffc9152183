// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PlotSamples.h"

#include "QtCompat.h"

#include <limits>

namespace {

const int keptSpan = PlotSamples::span + 1;

// The way into a double and back is part of the format. The largest integers become 2^63, for which
// there is no 64-bit integer.
qint64 throughDouble(qint64 value)
{
    const double rounded = static_cast<double>(value);
    return rounded >= 9223372036854775808.0 ? std::numeric_limits<qint64>::max()
                                            : static_cast<qint64>(rounded);
}

} // namespace

namespace PlotSamples {

InitialAxis::InitialAxis(const QDateTime &start)
{
    const qint64 boundary = compat::toSecs(start) / timeStep * timeStep;
    lower = static_cast<int>(compat::secsTo(start, compat::fromSecs(boundary)));
    upper = static_cast<int>(compat::secsTo(start, compat::fromSecs(boundary + span)));
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
    *sample = throughDouble(compat::text(value).toLongLong(&isInteger, 10));
    return isInteger;
}

void prune(QMap<int, qint64> *samples, int now)
{
    while (!samples->isEmpty() && samples->begin().key() < now - keptSpan) {
        samples->erase(samples->begin());
    }
}

qint64 maximum(const QMap<int, qint64> &samples)
{
    qint64 largest = 1024;
    for (qint64 sample : samples) {
        largest = qMax(largest, sample);
    }
    return largest;
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
