// SPDX-License-Identifier: LGPL-3.0-or-later
// The input is text, one number a line, as strtod reads it: decimal, hexadecimal ("0x1.8p10"),
// "inf" or "nan". Each labels both axes; the first is the base of the time axis, too.
#include "ByteSizeScaleDraw.h"
#include "Require.h"
#include "TimeScaleDraw.h"

#include <qwt_text.h>

#include <QList>
#include <QRegExp>

#include <cmath>
#include <limits>

namespace {

const char *const units[] = {" B", "KB", "MB", "GB", "TB", "PB", "EB", "ZB", "YB"};
const int unitCount = 9;
const double secondsOfDay = 86400.0;

int exponentOf(const QString &label)
{
    for (int exponent = 0; exponent < unitCount; ++exponent) {
        if (label.endsWith(QLatin1Char(' ') + QLatin1String(units[exponent]))) {
            return exponent;
        }
    }
    return unitCount;
}

// What the label says is the value, as exactly as its decimals can tell.
void requireValue(const QString &label, double value)
{
    const int exponent = exponentOf(label);
    require(exponent < unitCount, "a size has a unit", label);
    const QString number = label.left(label.size() - 3);
    const double scaled = std::ldexp(value, -10 * exponent);
    require(exponent == 0 || scaled >= 1.0, "the unit is not too large", label);
    require(scaled < 1024.0, "the unit is not too small", label);

    const int decimals = number.size() - 1 - number.indexOf(QLatin1Char('.'));
    const bool isWhole = !number.contains(QLatin1Char('.'));
    const double half = 0.5 * std::pow(10.0, isWhole ? 0 : -decimals);
    const double slack = half * 1e-9 + std::fabs(scaled) * 1e-15;
    require(std::fabs(number.toDouble() - scaled) <= half + slack, "the number is the value",
            label);
    const double magnitude = std::fabs(scaled);
    const int expected = magnitude < 10.0 ? 2 : magnitude < 100.0 ? 1 : 0;
    require(isWhole ? expected == 0 : decimals == expected, "three digits or so", label);
}

void checkSize(const ByteSizeScaleDraw &draw, double value)
{
    static const QRegExp form(
        QLatin1String("-?[0-9]+(\\.[0-9]{1,2})? ( B|KB|MB|GB|TB|PB|EB|ZB|YB)"));
    const QString label = draw.label(value).text();
    require(label == draw.label(value).text(), "a size has one label", label);
    if (value >= std::ldexp(1.0, 10 * unitCount)) {
        require(label.isEmpty(), "beyond the units there is no label", label);
    } else if (std::isfinite(value)) {
        require(form.exactMatch(label), "a size has the right form", label);
        requireValue(label, value);
    } else {
        require(!label.isEmpty(), "a label is not empty", label);
    }
}

// Reckons in doubles only, where the widget adds to a QTime; exact, as long as value is whole.
QString expectedTime(double base, double value)
{
    double second = std::fmod(base + std::fmod(std::trunc(value), secondsOfDay), secondsOfDay);
    second = second < 0.0 ? second + secondsOfDay : second;
    const int minute = static_cast<int>(second) / 60;
    return QString::fromLatin1("%1:%2")
        .arg(minute / 60, 2, 10, QLatin1Char('0'))
        .arg(minute % 60, 2, 10, QLatin1Char('0'));
}

void checkTime(const TimeScaleDraw &draw, double base, double value)
{
    const QString label = draw.label(value).text();
    const QString expected = expectedTime(base, std::isfinite(value) ? value : 0.0);
    require(label == expected, "a time is the base and the seconds",
            label + QLatin1String(" not ") + expected);
    require(label == draw.label(value).text(), "a time has one label", label);
}

QList<double> numbersOf(const QByteArray &input)
{
    QList<double> numbers;
    foreach (const QByteArray &line, input.split('\n')) {
        numbers.append(std::strtod(line.constData(), nullptr));
    }
    return numbers;
}

double baseOf(double number)
{
    return std::isfinite(number) ? std::trunc(std::fmod(std::fabs(number), secondsOfDay)) : 0.0;
}

} // namespace

int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    const QList<double> numbers = numbersOf(bytesOf(data, size));
    const double base = baseOf(numbers.first());
    const ByteSizeScaleDraw sizes;
    const TimeScaleDraw times(QTime(0, 0).addSecs(static_cast<int>(base)));
    const double infinity = std::numeric_limits<double>::infinity();
    for (double number : numbers) {
        const double around[] = {number, -number, std::nextafter(number, infinity),
                                 std::nextafter(number, -infinity)};
        for (double value : around) {
            checkSize(sizes, value);
            checkTime(times, base, value);
        }
    }
    return 0;
}
