// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PlotClock.h"

namespace PlotClock {

// Loading the library is the event that counts, so these have to be static objects.
const QDateTime startTime = QDateTime::currentDateTime(); // clazy:exclude=non-pod-global-static
const QDateTime startTimeUtc = startTime.toUTC(); // clazy:exclude=non-pod-global-static

QDateTime (*currentDateTime)() = QDateTime::currentDateTimeUtc;

} // namespace PlotClock
