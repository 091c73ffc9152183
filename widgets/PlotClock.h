// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_PLOTCLOCK_H
#define TESSALINE_PLOTCLOCK_H

#include <QDateTime>

/// The time by which plots go.
namespace PlotClock {

/// When the chart's code was loaded, in local time. The time axis of every plot counts from here.
extern const QDateTime startTime;

/// Tells the time of day: QDateTime::currentDateTime(), unless a test puts its own clock here.
extern QDateTime (*currentDateTime)();

} // namespace PlotClock

#endif
