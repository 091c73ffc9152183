// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PlotClock.h"

namespace {

QDateTime wallClock()
{
    return QDateTime::currentDateTime();
}

} // namespace

namespace PlotClock {

// Loading the library is the event that counts, so this has to be a static object.
const QDateTime startTime = wallClock(); // clazy:exclude=non-pod-global-static

QDateTime (*currentDateTime)() = wallClock;

} // namespace PlotClock
