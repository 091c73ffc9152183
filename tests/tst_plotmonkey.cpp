// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PlotClock.h"
#include "QwtTestCompat.h"
#include "TestCase.h"
#include "UpdatablePlot.h"
#include "ViewHelpers.h"
#include "WidgetMonkey.h"

#include <QDateTime>
#include <QPoint>

#include <limits>

namespace {

const int keptSpan = 1801; // seconds
const qint64 farFuture = Q_INT64_C(1) << 33; // beyond an int, and beyond what the plot reckons with
const qint64 reckonable = 2000000000;

qint64 pretendedSeconds = 0;

QDateTime pretendedTime()
{
    return PlotClock::startTime.addMSecs(pretendedSeconds * 1000);
}

/// A payload, and what the plot is to make of it.
struct Payload
{
    QVariant value;
    bool isInteger;
    double sample;
};

Payload good(const QVariant &value, double sample)
{
    const Payload payload = {value, true, sample};
    return payload;
}

Payload bad(const QVariant &value)
{
    const Payload payload = {value, false, 0.0};
    return payload;
}

const QList<Payload> &oddPayloads()
{
    const qint64 highest = std::numeric_limits<qint64>::max();
    static const QList<Payload> payloads = QList<Payload>()
        << bad(QVariant()) << bad(QString()) << bad(QString("1,000")) << bad(QString("0x10"))
        << bad(QString("1e6")) << bad(QString("9223372036854775808")) << bad(true) << bad(1.5)
        << bad(std::numeric_limits<double>::quiet_NaN()) << bad(1e15) << bad(QVariantList() << 1)
        << bad(QVariantMap()) << bad(QPoint(1, 2)) << bad(QStringList())
        << bad(QString(100000, QLatin1Char('9'))) << good(QString(" 12 "), 12)
        << good(QString("+5"), 5) << good(QByteArray("77"), 77) << good(2048.0, 2048)
        << good(1e14, 1e14) << good(QChar('8'), 8) << good(-1, -1) << good(0, 0)
        << good(highest, 9223372036854775808.0)
        << good(std::numeric_limits<qint64>::min(), -9223372036854775808.0);
    return payloads;
}

} // namespace

/// Plays with a chart, and keeps by other means what it should show.
class PlotMonkey : public WidgetMonkey
{
public:
    explicit PlotMonkey(quint32 seed);
    ~PlotMonkey() override;

protected:
    QWidget *window() const override;
    void look() override;

private:
    void pushSample();
    void pushOddPayload();
    void letTimePass();
    void letTimeJump();
    void setColors();
    void setTitles();
    void replacePlot();

    void push(const Payload &payload);
    void note(double sample);
    void lookAtCurve();
    void lookAtAxes();

    QPointer<UpdatablePlot> plot;
    QMap<int, double> expected;
    int lastSecond;
};

PlotMonkey::PlotMonkey(quint32 seed)
    : WidgetMonkey(seed)
    , lastSecond(0)
{
    PlotClock::currentDateTime = pretendedTime;
    pretendedSeconds = 0;
    replacePlot();

    canUseTheWindow();
    can(400, "pushSample", &PlotMonkey::pushSample);
    can(200, "pushOddPayload", &PlotMonkey::pushOddPayload);
    can(300, "letTimePass", &PlotMonkey::letTimePass);
    can(30, "letTimeJump", &PlotMonkey::letTimeJump);
    can(20, "setColors", &PlotMonkey::setColors);
    can(10, "setTitles", &PlotMonkey::setTitles);
    can(3, "replacePlot", &PlotMonkey::replacePlot);
}

PlotMonkey::~PlotMonkey()
{
    delete plot;
}

QWidget *PlotMonkey::window() const
{
    return plot;
}

void PlotMonkey::look()
{
    lookAtCurve();
    if (!expected.isEmpty()) {
        lookAtAxes();
    }
}

void PlotMonkey::pushSample()
{
    const qint64 size = static_cast<qint64>(dice.below(1 << 30)) >> dice.below(30);
    const qint64 sample = dice.oneIn(10) ? -size : size << dice.below(20);
    push(good(sample, static_cast<double>(sample)));
}

void PlotMonkey::pushOddPayload()
{
    push(dice.oneOf(oddPayloads()));
}

void PlotMonkey::letTimePass()
{
    pretendedSeconds += dice.oneIn(10) ? dice.below(600) : dice.below(3);
}

void PlotMonkey::letTimeJump()
{
    const qint64 places[] = {0, -1, -86400, keptSpan, 1 << 30, -farFuture, farFuture};
    const int place = dice.below(10);
    pretendedSeconds = place < 7 ? places[place] : pretendedSeconds + dice.between(-3600, 3600);
}

void PlotMonkey::setColors()
{
    const QStringList colors = QStringList() << "white"
                                             << "#123"
                                             << "#12345678"
                                             << "transparent" << QString() << "no colour"
                                             << "#112233445566";
    plot->setBgColor(dice.oneOf(colors));
    plot->setCurveColor(dice.oneOf(colors));
}

void PlotMonkey::setTitles()
{
    const QStringList titles = QStringList() << QString() << "Time"
                                             << "<b>bold"
                                             << "%1\n%2" << QString(500, QLatin1Char('x'));
    const QString title = dice.oneOf(titles);
    plot->setXTitle(title);
    plot->setYTitle(title);
    expectEqual(plot->xTitle(), title, "title");
}

void PlotMonkey::replacePlot()
{
    delete plot;
    plot = new UpdatablePlot;
    expected.clear();
    showWindow(plot, 200, 150);
}

void PlotMonkey::push(const Payload &payload)
{
    if (payload.isInteger) {
        note(payload.sample);
    } else {
        TestCase::expectDebugMessage("Invalid value.");
    }
    QMetaObject::invokeMethod(plot, "updateData", Q_ARG(QVariant, payload.value));
}

void PlotMonkey::note(double sample)
{
    lastSecond = static_cast<int>(qBound(-reckonable, pretendedSeconds, reckonable));
    expected.insert(lastSecond, sample);
    const QList<int> seconds = expected.keys();
    for (const int second : seconds) {
        if (second < lastSecond - keptSpan) {
            expected.remove(second);
        }
    }
}

void PlotMonkey::lookAtCurve()
{
    const QwtPlotCurve &curve = compat::curveOf(*plot);
    expectEqual(static_cast<int>(curve.dataSize()), static_cast<int>(expected.size()), "samples");
    int i = 0;
    for (auto sample = expected.begin(); sample != expected.end(); ++sample, ++i) {
        if (i < static_cast<int>(curve.dataSize())) {
            const QPointF point = compat::pointAt(curve, i);
            expectEqual(static_cast<double>(point.x()), double(sample.key()), "time");
            expectEqual(static_cast<double>(point.y()), sample.value(), "sample");
        }
    }
}

void PlotMonkey::lookAtAxes()
{
    double largest = 1024.0;
    for (const double sample : expected) {
        largest = qMax(largest, sample);
    }
    const QwtScaleDiv &times = compat::scaleDiv(*plot, QwtPlot::xBottom);
    const QwtScaleDiv &sizes = compat::scaleDiv(*plot, QwtPlot::yLeft);
    expectEqual(static_cast<double>(times.lowerBound()), lastSecond - 1800.0, "left end");
    expectEqual(static_cast<double>(times.upperBound()), lastSecond - 2.0, "right end");
    expectEqual(static_cast<double>(sizes.lowerBound()), 0.0, "lower end");
    expectEqual(static_cast<double>(sizes.upperBound()), largest, "upper end");
    expect(sizes.ticks(QwtScaleDiv::MajorTick).size() <= 12, "a crowd of ticks");
}

class PlotMonkeyTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void survivesAMonkey_data();
    void survivesAMonkey();
};

void PlotMonkeyTest::survivesAMonkey_data()
{
    addMonkeyRounds();
}

void PlotMonkeyTest::survivesAMonkey()
{
    playMonkeyRound<PlotMonkey>();
}

TESSALINE_TEST_MAIN(PlotMonkeyTest)
#include "tst_plotmonkey.moc"
