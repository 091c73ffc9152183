// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_PLOTCLOCK_H
#define TESSALINE_PLOTCLOCK_H

#include <QDateTime>

/// The time by which plots go.
namespace PlotClock {

/// When the chart's code was loaded, in local time. The time axis of every plot counts from here.
extern const QDateTime startTime;

/// The same moment in UTC, to count seconds from: at each conversion of a local time the C library
/// asks the system whether the time zone has changed.
extern const QDateTime startTimeUtc;

/// Tells the time: QDateTime::currentDateTimeUtc(), unless a test puts its own clock here.
extern QDateTime (*currentDateTime)();

} // namespace PlotClock

#endif
