// SPDX-License-Identifier: LGPL-3.0-or-later
#include "TimeScaleDraw.h"

#include <qwt_text.h>

#include <cmath>

namespace {

// Whole days go before the cast: QTime counts milliseconds in an int, and not every double fits
// one.
int secondsOfDay(double value)
{
    return std::isfinite(value) ? static_cast<int>(std::fmod(value, 86400.0)) : 0;
}

} // namespace

TimeScaleDraw::TimeScaleDraw(const QTime &base)
    : baseTime(base)
{
}

QwtText TimeScaleDraw::label(double value) const
{
    return QwtText(baseTime.addSecs(secondsOfDay(value)).toString(QLatin1String("hh:mm")));
}
