// SPDX-License-Identifier: LGPL-3.0-or-later
#include "SizeText.h"

#include <QLocale>

QString sizeText(qint64 bytes)
{
    const char *const units[] = {"B", "KB", "MB", "GB", "TB", "PB", "EB"};
    double size = static_cast<double>(bytes);
    int exponent = 0;
    for (; size >= 1024.0; ++exponent) {
        size /= 1024.0;
    }
    const int decimals = exponent == 0 || size >= 100.0 ? 0 : size >= 10.0 ? 1 : 2;
    return QLocale().toString(size, 'f', decimals) + QLatin1Char(' ')
        + QLatin1String(units[exponent]);
}
