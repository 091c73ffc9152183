// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ByteSizeScaleDraw.h"

#include <qwt_text.h>

#include <cmath>

namespace {

// The unit is chosen before rounding: 1048575 is "1024 KB", on purpose.
int decimals(double size)
{
    const double magnitude = std::fabs(size);
    return magnitude >= 100.0 ? 0 : magnitude >= 10.0 ? 1 : 2;
}

} // namespace

ByteSizeScaleDraw::ByteSizeScaleDraw()
{
    const char *const names[] = {" B", "KB", "MB", "GB", "TB", "PB", "EB", "ZB", "YB"};
    int exponent = 0;
    for (const char *name : names) {
        units.insert(exponent++, QLatin1String(name));
    }
}

ByteSizeScaleDraw::~ByteSizeScaleDraw() = default;

QwtText ByteSizeScaleDraw::label(double value) const
{
    int exponent = 0;
    for (; value >= 1024.0 && units.contains(exponent); ++exponent) {
        value *= 1.0 / 1024.0;
    }
    if (!units.contains(exponent)) {
        return QwtText(QLatin1String(""));
    }
    return QwtText(QString::number(value, 'f', decimals(value)) + QLatin1Char(' ')
                   + units.value(exponent));
}
