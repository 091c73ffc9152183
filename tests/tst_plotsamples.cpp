// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PlotSamples.h"
#include "TestCase.h"

#include <QDateTime>
#include <QVariant>

#include <ctime>
#include <limits>

namespace {

typedef QMap<int, qint64> Samples;

const qint64 largest = std::numeric_limits<qint64>::max();
const qint64 smallest = std::numeric_limits<qint64>::min();

QString keys(const Samples &samples)
{
    QStringList list;
    for (int key : samples.keys()) {
        list.append(QString::number(key));
    }
    return list.join(",");
}

QString texts(const QVector<QPointF> &points)
{
    QStringList list;
    for (const QPointF &point : points) {
        list.append(QString("%1:%2").arg(point.x()).arg(point.y()));
    }
    return list.join(",");
}

/// Local time in a zone of the test's choice, put back at the end.
class TimeZone
{
public:
    explicit TimeZone(const QByteArray &name)
        : previous(qgetenv("TZ"))
    {
        qputenv("TZ", name);
        tzset();
    }

    ~TimeZone()
    {
        if (previous.isNull()) {
            compat::unsetVariable("TZ");
        } else {
            qputenv("TZ", previous);
        }
        tzset();
    }

private:
    QByteArray previous;
};

QDateTime utc(const QString &text)
{
    return QDateTime::fromString(text + "Z", Qt::ISODate);
}

} // namespace

class PlotSamplesTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void startsTheAxisAtTheFullFiveMinutes_data();
    void startsTheAxisAtTheFullFiveMinutes();
    void labelsTheStartInLocalTime_data();
    void labelsTheStartInLocalTime();
    void countsWholeSeconds_data();
    void countsWholeSeconds();
    void acceptsIntegersOnly_data();
    void acceptsIntegersOnly();
    void forgetsWhatIsTooOld_data();
    void forgetsWhatIsTooOld();
    void followsTheSamples_data();
    void followsTheSamples();
    void fitsTheSizeAxis_data();
    void fitsTheSizeAxis();
    void stepsInWholeUnits_data();
    void stepsInWholeUnits();
};

void PlotSamplesTest::startsTheAxisAtTheFullFiveMinutes_data()
{
    QTest::addColumn<QString>("start");
    QTest::addColumn<int>("lower");
    QTest::addColumn<int>("upper");

    QTest::newRow("on the boundary") << "2026-03-01 12:35:00.000" << 0 << 1800;
    QTest::newRow("just behind it") << "2026-03-01 12:35:01.000" << -1 << 1799;
    QTest::newRow("a second before the next") << "2026-03-01 12:39:59.000" << -299 << 1501;
    QTest::newRow("fraction is cut off") << "2026-03-01 12:35:01.700" << -1 << 1798;
    QTest::newRow("over midnight") << "2026-03-01 23:57:30.000" << -150 << 1650;
}

void PlotSamplesTest::startsTheAxisAtTheFullFiveMinutes()
{
    QFETCH(QString, start);

    const PlotSamples::InitialAxis axis(utc(start));

    QTEST(axis.lower, "lower");
    QTEST(axis.upper, "upper");
}

void PlotSamplesTest::labelsTheStartInLocalTime_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<QString>("start");
    QTest::addColumn<QTime>("base");

    QTest::newRow("UTC") << QByteArray("UTC0") << "2026-03-01 12:38:10.000" << QTime(12, 35);
    QTest::newRow("half an hour beside")
        << QByteArray("IST-5:30") << "2026-03-01 12:38:10.000" << QTime(18, 5);
#ifndef Q_OS_WIN // its C library reads no rules for summer time in TZ
    QTest::newRow("before the clock goes forward")
        << QByteArray("CET-1CEST,M3.5.0,M10.5.0/3") << "2026-03-29 00:58:00.000" << QTime(1, 55);
    QTest::newRow("after the clock went forward")
        << QByteArray("CET-1CEST,M3.5.0,M10.5.0/3") << "2026-03-29 01:01:00.000" << QTime(3, 0);
#endif
}

void PlotSamplesTest::labelsTheStartInLocalTime()
{
    QFETCH(QByteArray, zone);
    QFETCH(QString, start);
    const TimeZone local(zone);

    const PlotSamples::InitialAxis axis(utc(start).toLocalTime());

    QTEST(axis.base, "base");
}

void PlotSamplesTest::countsWholeSeconds_data()
{
    QTest::addColumn<QString>("now");
    QTest::addColumn<int>("seconds");

    QTest::newRow("at once") << "2026-03-01 23:59:59.000" << 0;
    QTest::newRow("less than a second") << "2026-03-01 23:59:59.999" << 0;
    QTest::newRow("1.4 s over midnight") << "2026-03-02 00:00:00.400" << 1;
    QTest::newRow("a day") << "2026-03-02 23:59:59.000" << 86400;
    QTest::newRow("set back") << "2026-03-01 23:59:49.000" << -10;
    QTest::newRow("set back by a fraction") << "2026-03-01 23:59:57.600" << -1;
    QTest::newRow("centuries ahead") << "2999-01-01 00:00:00.000" << 2000000000;
    QTest::newRow("centuries back") << "1500-01-01 00:00:00.000" << -2000000000;
}

void PlotSamplesTest::countsWholeSeconds()
{
    QFETCH(QString, now);

    QTEST(PlotSamples::secondsSince(utc("2026-03-01 23:59:59.000"), utc(now)), "seconds");
}

void PlotSamplesTest::acceptsIntegersOnly_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<qint64>("sample");

    const qint64 none = 0;
    QTest::newRow("text") << QVariant(QString("2048")) << true << qint64(2048);
    QTest::newRow("int") << QVariant(2048) << true << qint64(2048);
    QTest::newRow("unsigned") << QVariant(4294967295U) << true << qint64(4294967295U);
    QTest::newRow("64 bits") << QVariant(qlonglong(2048)) << true << qint64(2048);
    QTest::newRow("whole double") << QVariant(2048.0) << true << qint64(2048);
    QTest::newRow("million as double") << QVariant(1e6) << true << qint64(1000000);
    QTest::newRow("14 zeros as double") << QVariant(1e14) << true << qint64(100000000000000LL);
    QTest::newRow("15 zeros as double") << QVariant(1e15) << false << none;
    QTest::newRow("fraction as double") << QVariant(2048.5) << false << none;
    QTest::newRow("fraction as text") << QVariant(QString("2048.0")) << false << none;
    QTest::newRow("negative") << QVariant(-5) << true << qint64(-5);
    QTest::newRow("plus sign") << QVariant(QString("+5")) << true << qint64(5);
    QTest::newRow("blanks around") << QVariant(QString(" 12 ")) << true << qint64(12);
    QTest::newRow("leading zeros") << QVariant(QString("007")) << true << qint64(7);
    QTest::newRow("bytes") << QVariant(QByteArray("77")) << true << qint64(77);
    QTest::newRow("character") << QVariant(QChar('7')) << true << qint64(7);
    QTest::newRow("list of one text") << QVariant(QStringList("7")) << true << qint64(7);

    QTest::newRow("largest") << QVariant(largest) << true << largest;
    QTest::newRow("smallest") << QVariant(smallest) << true << smallest;
    QTest::newRow("too large") << QVariant(QString("9223372036854775808")) << false << none;
    QTest::newRow("too small") << QVariant(QString("-9223372036854775809")) << false << none;
    QTest::newRow("2^53") << QVariant(qlonglong(9007199254740992LL)) << true
                          << qint64(9007199254740992LL);
    QTest::newRow("2^53 + 1 is rounded")
        << QVariant(qlonglong(9007199254740993LL)) << true << qint64(9007199254740992LL);
    QTest::newRow("-2^53 - 1 is rounded")
        << QVariant(qlonglong(-9007199254740993LL)) << true << qint64(-9007199254740992LL);

    QTest::newRow("nothing") << QVariant() << false << none;
    QTest::newRow("empty text") << QVariant(QString("")) << false << none;
    QTest::newRow("word") << QVariant(QString("many")) << false << none;
    QTest::newRow("group separators") << QVariant(QString("1,000")) << false << none;
    QTest::newRow("hexadecimal") << QVariant(QString("0x10")) << false << none;
    QTest::newRow("exponent") << QVariant(QString("1e3")) << false << none;
    QTest::newRow("inner blank") << QVariant(QString("1 000")) << false << none;
    QTest::newRow("unit") << QVariant(QString("5 KB")) << false << none;
    QTest::newRow("boolean") << QVariant(true) << false << none;
    QTest::newRow("list") << QVariant(QVariantList() << 1) << false << none;
    QTest::newRow("list of two texts") << QVariant(QStringList() << "1"
                                                                 << "2")
                                       << false << none;
    QTest::newRow("infinite") << QVariant(std::numeric_limits<double>::infinity()) << false << none;
}

void PlotSamplesTest::acceptsIntegersOnly()
{
    QFETCH(QVariant, value);
    QFETCH(bool, accepted);
    qint64 sample = 0;

    QCOMPARE(PlotSamples::parse(value, &sample), accepted);

    if (accepted) {
        QTEST(sample, "sample");
    }
}

void PlotSamplesTest::forgetsWhatIsTooOld_data()
{
    QTest::addColumn<int>("now");
    QTest::addColumn<QString>("left");

    QTest::newRow("all young") << 1801 << "0,1,2,1900";
    QTest::newRow("one too old") << 1802 << "1,2,1900";
    QTest::newRow("two too old") << 1803 << "2,1900";
    QTest::newRow("jump ahead") << 100000 << "";
    QTest::newRow("set back keeps the future") << -500 << "0,1,2,1900";
}

void PlotSamplesTest::forgetsWhatIsTooOld()
{
    QFETCH(int, now);
    Samples samples;
    samples.insert(0, 1);
    samples.insert(1, 1);
    samples.insert(2, 1);
    samples.insert(1900, 1);

    PlotSamples::prune(&samples, now);

    QTEST(keys(samples), "left");
}

void PlotSamplesTest::followsTheSamples_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("now");
    QTest::addColumn<QString>("left");

    QTest::newRow("after all") << 0 << 30 << "5:1,10:2,20:3,30:4";
    QTest::newRow("before all") << 0 << 1 << "1:4,5:1,10:2,20:3";
    QTest::newRow("between") << 0 << 15 << "5:1,10:2,15:4,20:3";
    QTest::newRow("in the place of the last") << 0 << 20 << "5:1,10:2,20:4";
    QTest::newRow("in the place of the first") << 0 << 5 << "5:4,10:2,20:3";
    QTest::newRow("the first are too old") << 20 << 30 << "20:3,30:4";
    QTest::newRow("just old enough") << 5 << 30 << "5:1,10:2,20:3,30:4";
    QTest::newRow("all others are too old") << 900 << 900 << "900:4";
}

void PlotSamplesTest::followsTheSamples()
{
    QFETCH(int, first);
    QFETCH(int, now);
    QVector<QPointF> points = QVector<QPointF>()
        << QPointF(5, 1) << QPointF(10, 2) << QPointF(20, 3);
    Samples samples;
    for (const QPointF &point : points) {
        samples.insert(static_cast<int>(point.x()), static_cast<qint64>(point.y()));
    }
    samples.insert(now, 4);
    while (samples.begin().key() < first) {
        samples.erase(samples.begin());
    }

    PlotSamples::follow(&points, samples, now);

    QTEST(texts(points), "left");
}

void PlotSamplesTest::fitsTheSizeAxis_data()
{
    QTest::addColumn<qint64>("first");
    QTest::addColumn<qint64>("second");
    QTest::addColumn<qint64>("maximum");

    QTest::newRow("small") << qint64(1) << qint64(512) << qint64(1024);
    QTest::newRow("at the least") << qint64(1024) << qint64(0) << qint64(1024);
    QTest::newRow("above the least") << qint64(1025) << qint64(0) << qint64(1025);
    QTest::newRow("negative") << qint64(-5000) << qint64(-1) << qint64(1024);
    QTest::newRow("largest of two") << qint64(5000) << qint64(7000) << qint64(7000);
    QTest::newRow("ends of 64 bits") << smallest << largest << largest;
}

void PlotSamplesTest::fitsTheSizeAxis()
{
    QFETCH(qint64, first);
    QFETCH(qint64, second);
    const QVector<QPointF> points = QVector<QPointF>()
        << QPointF(0, static_cast<double>(first)) << QPointF(1, static_cast<double>(second));

    QTEST(PlotSamples::maximum(points), "maximum");
}

void PlotSamplesTest::stepsInWholeUnits_data()
{
    QTest::addColumn<qint64>("maximum");
    QTest::addColumn<qint64>("step");

    const qint64 kilo = 1024;
    const qint64 mega = kilo * kilo;
    const qint64 exa = mega * mega * mega;
    QTest::newRow("1 KB") << kilo << qint64(0);
    QTest::newRow("just below 5 KB") << 5 * kilo - 1 << qint64(0);
    QTest::newRow("5 KB") << 5 * kilo << kilo;
    QTest::newRow("10000") << qint64(10000) << kilo;
    QTest::newRow("10 KB") << 10 * kilo << 2 * kilo;
    QTest::newRow("just below 1 MB") << mega - 1 << 204 * kilo;
    QTest::newRow("1 MB") << mega << qint64(0);
    QTest::newRow("100 MB") << 100 * mega << 20 * mega;
    QTest::newRow("1 GB") << kilo * mega << qint64(0);
    QTest::newRow("largest") << largest << exa;
}

void PlotSamplesTest::stepsInWholeUnits()
{
    QFETCH(qint64, maximum);

    QTEST(PlotSamples::sizeStep(maximum), "step");
}

TESSALINE_TEST_MAIN(PlotSamplesTest)
#include "tst_plotsamples.moc"
