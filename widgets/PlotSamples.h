// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_PLOTSAMPLES_H
#define TESSALINE_PLOTSAMPLES_H

#include <QMap>
#include <QPointF>
#include <QTime>
#include <QVector>

class QDateTime;
class QVariant;

/// The arithmetic of UpdatablePlot, without a widget and without a clock. Times are in seconds
/// since the plot's start, samples in bytes.
namespace PlotSamples {

const int span = 1800; ///< What the time axis shows.
const int timeStep = 300; ///< Between its major ticks.

/// The time axis before the first sample: half an hour from the full five minutes at or before the
/// start.
struct InitialAxis
{
    explicit InitialAxis(const QDateTime &start);

    int lower;
    int upper;
    QTime base; ///< The time of day that the axis value 0 is labelled with.
};

/// Whole seconds from the start to `now`; negative when the clock was set back behind the start.
int secondsSince(const QDateTime &start, const QDateTime &now);

/// Reads a sample: a value whose text is a decimal integer of 64 bits. Returns false for others.
/// It is rounded as a double is, that is beyond 2^53.
bool parse(const QVariant &value, qint64 *sample);

/// Removes the samples that are older than 1801 seconds: one second more than can be seen.
void prune(QMap<int, qint64> *samples, int now);

/// Does to the points of a curve, which are sorted by their seconds, what was done to the samples:
/// takes over the one of `now`, and removes those before the first sample.
void follow(QVector<QPointF> *points, const QMap<int, qint64> &samples, int now);

/// The upper end of the size axis: the largest sample, and at least 1024.
qint64 maximum(const QVector<QPointF> &points);

/// The distance of the size axis's major ticks for this upper end: a fifth of it in whole units
/// (KB, MB, ...); 0, which leaves it to the plot, if that is less than one unit.
qint64 sizeStep(qint64 maximum);

} // namespace PlotSamples

#endif
