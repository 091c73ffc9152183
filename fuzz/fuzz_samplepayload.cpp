// SPDX-License-Identifier: LGPL-3.0-or-later
// The input is text, one sample a line: a letter for the type of the value, by how many seconds the
// clock goes on, a blank, and the value's text. "s1 2048" is a string, a second after the last one.
#include "PlotClock.h"
#include "PlotSamples.h"
#include "Require.h"
#include "UpdatablePlot.h"

#include <qwt_scale_div.h>

#include <QApplication>
#include <QBitArray>
#include <QDate>
#include <QPointF>
#include <QStringList>
#include <QUrl>
#include <QVariant>

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>

namespace {

const int keptSpan = 1801;

qint64 secondsNow = 0;
int complaints = 0;

QDateTime fuzzedClock()
{
    return PlotClock::startTime.addSecs(secondsNow);
}

void countComplaint(QtMsgType, const QMessageLogContext &, const QString &message)
{
    complaints += message == QLatin1String("Invalid value.");
}

struct Line
{
    explicit Line(const QByteArray &line)
        : type(line.isEmpty() ? 's' : line.at(0))
        , seconds(std::strtoll(line.mid(1, line.indexOf(' ')).constData(), nullptr, 10))
        , text(line.contains(' ') ? line.mid(line.indexOf(' ') + 1) : QByteArray())
    {
    }

    QVariant value() const;

    char type;
    qint64 seconds;
    QByteArray text;
};

QVariant Line::value() const
{
    const QString string = QString::fromUtf8(text);
    const double number = std::strtod(text.constData(), nullptr);
    switch (type) {
    case 'i':
        return string.toInt();
    case 'u':
        return string.toUInt();
    case 'l':
        return string.toLongLong();
    case 'L':
        return string.toULongLong();
    case 'd':
        return number;
    case 'f':
        return QVariant(static_cast<float>(qBound(-3e38, number, 3e38)));
    case 'b':
        return !text.isEmpty();
    case 'c':
        return string.isEmpty() ? QVariant() : QVariant(string.at(0));
    case 'y':
        return text;
    case 'S':
        return string.split(QLatin1Char(','));
    case 'V':
        return QVariantList() << string;
    case 'D':
        return QDate::fromJulianDay(string.toInt());
    case 'U':
        return QUrl(string);
    case 'B':
        return QBitArray(text.size());
    default:
        return string;
    }
}

bool isAscii(const QByteArray &text)
{
    return std::all_of(text.begin(), text.end(), [](char c) {
        return c > 0;
    });
}

// Reads a decimal integer, with blanks around it, digit by digit.
bool readInteger(const QByteArray &text, qint64 *result)
{
    QByteArray digits = text.trimmed();
    const bool isNegative = digits.startsWith('-');
    if (isNegative || digits.startsWith('+')) {
        digits = digits.mid(1);
    }
    const quint64 limit = (quint64(1) << 63) - (isNegative ? 0 : 1);
    quint64 magnitude = 0;
    for (char c : digits) {
        const quint64 digit = static_cast<quint64>(c - '0');
        if (c < '0' || c > '9' || magnitude > (limit - digit) / 10) {
            return false;
        }
        magnitude = magnitude * 10 + digit;
    }
    *result = static_cast<qint64>(isNegative ? 0 - magnitude : magnitude);
    return !digits.isEmpty();
}

bool isHalf(double number)
{
    return number != std::trunc(number) && 2.0 * number == std::trunc(2.0 * number);
}

// The text that counts, where it is known without asking the library.
bool knownText(const Line &line, const QVariant &value, QByteArray *text)
{
    char buffer[64];
    switch (line.type) {
    case 's':
    case 'y':
        *text = line.text;
        return isAscii(line.text);
    case 'd':
    case 'f':
        std::snprintf(buffer, sizeof buffer, line.type == 'd' ? "%.15g" : "%.6g", value.toDouble());
        *text = buffer;
        return !isHalf(value.toDouble()); // which Qt and C round differently
    case 'i':
    case 'u':
    case 'l':
        *text = QByteArray::number(value.toLongLong());
        return true;
    case 'L':
        *text = QByteArray::number(value.toULongLong());
        return true;
    case 'b':
    case 'V':
    case 'B':
        *text = "never an integer";
        return true;
    default:
        return false;
    }
}

// A double holds 53 bits; of those of 2^63, which it rounds the largest integers to, none is lost
// but one.
void requireRounded(qint64 exact, qint64 sample, const QString &about)
{
    const long double rounded = static_cast<double>(exact);
    const long double largest = std::numeric_limits<qint64>::max();
    require(static_cast<long double>(sample) == std::min(rounded, largest),
            "the sample is the integer, rounded to a double", about);
}

void checkParsed(const Line &line, const QVariant &value, bool isAccepted, qint64 sample)
{
    const QString about = QString::fromUtf8(line.text);
    QByteArray text;
    if (knownText(line, value, &text)) {
        qint64 exact = 0;
        require(isAccepted == readInteger(text, &exact), "decimal integers, and only they, count",
                about);
        if (isAccepted) {
            requireRounded(exact, sample, about);
        }
    }
    qint64 again = 0;
    if (isAccepted) {
        require(PlotSamples::parse(QString::number(sample), &again) && again == sample,
                "a sample is read again as itself", about);
    }
}

/// The samples as the plot should keep them.
struct Expected
{
    void add(int now, qint64 sample)
    {
        samples[now] = sample;
        samples.erase(samples.begin(), samples.lower_bound(now - keptSpan));
        maximum = 1024;
        for (const auto &entry : samples) {
            maximum = std::max(maximum, entry.second);
        }
    }

    // In floating point, where the library shifts integers.
    double step() const
    {
        const long double bits = std::log2(static_cast<long double>(maximum));
        const qint64 unit = static_cast<qint64>(std::pow(1024.0L, std::floor(bits / 10.0L)));
        return static_cast<double>(maximum / unit / 5 * unit);
    }

    std::map<int, qint64> samples;
    qint64 maximum = 1024;
};

const QwtPlotCurve *curveOf(const QwtPlot &plot)
{
    return static_cast<const QwtPlotCurve *>(plot.itemList(QwtPlotItem::Rtti_PlotCurve).value(0));
}

void checkCurve(const QwtPlot &plot, const Expected &expected)
{
    const QwtPlotCurve *curve = curveOf(plot);
    require(curve && curve->dataSize() == expected.samples.size(), "each sample has its point",
            QString());
    size_t i = 0;
    for (const auto &entry : expected.samples) {
        const QPointF point = curve->sample(static_cast<int>(i++));
        require(point == QPointF(entry.first, static_cast<double>(entry.second)),
                "a point is its sample", QString::number(entry.first));
        require(point.y() == std::floor(point.y()), "a sample is an integer", QString());
    }
}

void checkAxes(const UpdatablePlot &plot, const Expected &expected, int now)
{
    const QwtScaleDiv &times = plot.axisScaleDiv(QwtPlot::xBottom);
    require(times.lowerBound() == now - 1800 && times.upperBound() == now - 2,
            "the time axis ends short of now", QString::number(now));
    const QwtScaleDiv &sizes = plot.axisScaleDiv(QwtPlot::yLeft);
    require(sizes.lowerBound() == 0.0
                && sizes.upperBound() == static_cast<double>(expected.maximum),
            "the size axis ends at the largest sample", QString::number(expected.maximum));
    require(plot.axisStepSize(QwtPlot::yLeft) == expected.step(),
            "the step is a fifth in whole units", QString::number(expected.maximum));
}

void update(UpdatablePlot *plot, Expected *expected, const Line &line)
{
    const qint64 farthest = 2000000000;
    secondsNow
        = qBound(-farthest, secondsNow + qBound(-farthest, line.seconds, farthest), farthest);
    const int now = static_cast<int>(secondsNow);
    const QVariant value = line.value();
    qint64 sample = 0;
    const bool isAccepted = PlotSamples::parse(value, &sample);
    checkParsed(line, value, isAccepted, sample);

    complaints = 0;
    plot->updateData(value);
    require(complaints == (isAccepted ? 0 : 1), "what is refused is complained of, once",
            QString::fromUtf8(line.text));
    if (isAccepted) {
        expected->add(now, sample);
        checkAxes(*plot, *expected, now);
    }
    checkCurve(*plot, *expected);
}

} // namespace

int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    new QApplication(*argc, *argv); // stays to the end, as the fuzzer does
    qInstallMessageHandler(countComplaint);
    PlotClock::currentDateTime = fuzzedClock;
    return 0;
}

int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    secondsNow = 0;
    UpdatablePlot plot;
    Expected expected;
    foreach (const QByteArray &line, bytesOf(data, size).split('\n')) {
        update(&plot, &expected, Line(line));
    }
    return 0;
}
