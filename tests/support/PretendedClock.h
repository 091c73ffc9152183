// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_PRETENDEDCLOCK_H
#define TESSALINE_PRETENDEDCLOCK_H

#include "PlotClock.h"

#include <QDateTime>

/// A clock for the chart, which stands still unless a test moves it.

/// The second after the program's start that it is.
inline int &pretendedSecond()
{
    static int second = 0;
    return second;
}

inline QDateTime pretendedTime()
{
    return PlotClock::startTimeUtc.addSecs(pretendedSecond());
}

#endif
