// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PlotScales.h"
#include "PretendedClock.h"
#include "QtCompat.h"
#include "QwtTestCompat.h"
#include "TestCase.h"
#include "TimeScaleDraw.h"
#include "UpdatablePlot.h"
#include "ViewHelpers.h"

#include <qwt_plot_canvas.h>
#include <qwt_plot_layout.h>
#include <qwt_scale_widget.h>
#include <qwt_text.h>

#include <QBrush>
#include <QDateTime>
#include <QFont>

namespace {

/// Where the labels are that an axis holds; unlike the plot's own, they are there from the start.
QList<double> firstTicks(const QwtPlot &plot, int axis)
{
    return plot.axisScaleDraw(axis)->scaleDiv().ticks(QwtScaleDiv::MajorTick);
}

} // namespace

class UpdatablePlotTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void declaresOneSlotAndFourProperties();
    void declaresItsProperties_data();
    void declaresItsProperties();
    void hasNoPropertyForMappersToFillIn();
    void startsWithTheHalfHourAfterItsStart();
    void startsWithoutTitlesAndLegend();
    void drawsHorizontalGridLinesOnly();
    void labelsItsAxesInSmallPrint();
    void leavesQwtsFirstScalesToItsAxes();
    void leavesTheCurveAsQwtMakesIt();
    void readsDefaultColors();
    void takesColors_data();
    void takesColors();
    void fillsTheCurveTranslucently();
    void repaintsAShownCanvasInItsNewColor();
    void takesTitlesAsPlainText();
    void diesBeforeAndAfterItsFirstSample();
    void fillsTheAreaOnlyWhenTheCurveHasAColor();
};

void UpdatablePlotTest::initTestCase()
{
    const QDateTime now = PlotClock::currentDateTime();
    QVERIFY(qAbs(QDateTime::currentDateTime().secsTo(now)) <= 60);
    QVERIFY(PlotClock::startTime <= now); // taken before main()
    QVERIFY(PlotClock::startTime.secsTo(now) <= 60);
    QCOMPARE(now.timeSpec(), Qt::UTC);
    PlotClock::currentDateTime = pretendedTime;
}

void UpdatablePlotTest::declaresOneSlotAndFourProperties()
{
    const QMetaObject &metaObject = UpdatablePlot::staticMetaObject;

    QCOMPARE(QString(metaObject.className()), QString("UpdatablePlot"));
    QCOMPARE(QString(metaObject.superClass()->className()), QString("QwtPlot"));
    QCOMPARE(metaObject.propertyCount() - metaObject.propertyOffset(), 4);
    QCOMPARE(metaObject.methodCount() - metaObject.methodOffset(), 1);
    const QMetaMethod method = metaObject.method(metaObject.methodOffset());
    QCOMPARE(QString(compat::methodSignature(method)), QString("updateData(QVariant)"));
    QCOMPARE(int(method.methodType()), int(QMetaMethod::Slot));
    QCOMPARE(int(method.access()), int(QMetaMethod::Public));
    QCOMPARE(method.parameterNames(), QList<QByteArray>() << "val");
}

void UpdatablePlotTest::declaresItsProperties_data()
{
    QTest::addColumn<int>("place");
    QTest::addColumn<QString>("name");

    QTest::newRow("background") << 0 << "bgColor";
    QTest::newRow("curve") << 1 << "curveColor";
    QTest::newRow("x title") << 2 << "xTitle";
    QTest::newRow("y title") << 3 << "yTitle";
}

void UpdatablePlotTest::declaresItsProperties()
{
    QFETCH(int, place);
    const QMetaObject &metaObject = UpdatablePlot::staticMetaObject;
    const UpdatablePlot plot(nullptr);

    const QMetaProperty property = metaObject.property(metaObject.propertyOffset() + place);

    QTEST(QString(property.name()), "name");
    QCOMPARE(QString(property.typeName()), QString("QString"));
    QVERIFY(property.isReadable() && property.isWritable());
    QCOMPARE(compat::flags(property, &plot), QList<bool>() << true << true << true);
    QVERIFY(!property.hasNotifySignal());
    QVERIFY(!property.isResettable());
}

void UpdatablePlotTest::startsWithTheHalfHourAfterItsStart()
{
    UpdatablePlot plot(nullptr);
    plot.replot();

    const QwtScaleDiv &time = compat::scaleDiv(plot, QwtPlot::xBottom);
    const double lower = time.lowerBound();
    QVERIFY(lower <= 0 && lower >= -299);
    QVERIFY(qAbs(time.upperBound() - lower - 1800) <= 1); // a fraction of the start may be cut off
    QCOMPARE(majorStep(plot, QwtPlot::xBottom), 300.0);
    QCOMPARE(ends(plot, QwtPlot::yLeft), QString("0..1024"));
    QCOMPARE(majorStep(plot, QwtPlot::yLeft), 200.0); // as Qwt chooses
    const qint64 boundary = PlotClock::startTime.toMSecsSinceEpoch() / 300000 * 300000;
    QCOMPARE(plot.axisScaleDraw(QwtPlot::xBottom)->label(0).text(),
             QDateTime::fromMSecsSinceEpoch(boundary).time().toString("hh:mm"));
    QCOMPARE(plot.axisScaleDraw(QwtPlot::yLeft)->label(1536).text(), QString("1.50 KB"));
}

void UpdatablePlotTest::startsWithoutTitlesAndLegend()
{
    const UpdatablePlot plot(nullptr);

    QVERIFY(plot.title().isEmpty());
    QVERIFY(!plot.legend());
    QVERIFY(!plot.autoReplot());
    QVERIFY(plot.axisTitle(QwtPlot::xBottom).isEmpty());
    QVERIFY(plot.axisTitle(QwtPlot::yLeft).isEmpty());
    QVERIFY(!plot.axisEnabled(QwtPlot::xTop));
    QVERIFY(!plot.axisEnabled(QwtPlot::yRight));
    QVERIFY(compat::alignsCanvasToScales(*plot.plotLayout()));
    QCOMPARE(plot.itemList().size(), 2);
}

void UpdatablePlotTest::drawsHorizontalGridLinesOnly()
{
    const UpdatablePlot plot(nullptr);

    const QwtPlotGrid *grid = compat::findItem<QwtPlotGrid>(plot, QwtPlotItem::Rtti_PlotGrid);

    QVERIFY(grid);
    QVERIFY(!grid->xEnabled());
    QVERIFY(grid->yEnabled());
    QVERIFY(!grid->xMinEnabled() && !grid->yMinEnabled());
    const QPen pen = compat::majorPen(*grid);
    QCOMPARE(pen.color(), QColor(56, 56, 56, 150));
    QCOMPARE(pen.style(), Qt::SolidLine);
    QCOMPARE(pen.width(), 0);
    QVERIFY(pen.isCosmetic());
}

void UpdatablePlotTest::labelsItsAxesInSmallPrint()
{
    UpdatablePlot plot(nullptr);

    const QList<int> axes = QList<int>() << QwtPlot::xBottom << QwtPlot::yLeft;
    for (int axis : axes) {
        const QFont font = plot.axisWidget(axis)->font();
        QCOMPARE(font.family(), QString("Ms Shell Dlg 2"));
        QCOMPARE(font.pointSize(), 4);
        QVERIFY(!font.italic() && !font.bold());
    }
    int start = -1;
    int end = -1;
    plot.axisWidget(QwtPlot::xBottom)->getMinBorderDist(start, end);
    const QFontMetrics metrics(plot.axisWidget(QwtPlot::xBottom)->font());
    QCOMPARE(start, 0);
    QCOMPARE(end, 8 * compat::charWidth(metrics, QLatin1Char('8')));
}

void UpdatablePlotTest::leavesQwtsFirstScalesToItsAxes()
{
    // Layouts ask a plot for its size before it is first drawn; then these ticks count.
    const UpdatablePlot plot;
    const QwtPlot bare;

    QCOMPARE(firstTicks(plot, QwtPlot::xBottom), firstTicks(bare, QwtPlot::xBottom));
    QCOMPARE(firstTicks(plot, QwtPlot::yLeft), firstTicks(bare, QwtPlot::yLeft));
    QCOMPARE(firstTicks(plot, QwtPlot::xBottom).isEmpty(), !compat::axesStartWithTicks);
}

void UpdatablePlotTest::leavesTheCurveAsQwtMakesIt()
{
    const UpdatablePlot plot(nullptr);
    const QwtPlotCurve plain;

    const QwtPlotCurve &curve = compat::curveOf(plot);

    QCOMPARE(curve.brush().style(), Qt::NoBrush);
    QCOMPARE(curve.pen(), plain.pen());
    QCOMPARE(int(curve.style()), int(plain.style()));
    QVERIFY(curve.title().isEmpty());
    QCOMPARE(int(curve.dataSize()), 0);
}

void UpdatablePlotTest::readsDefaultColors()
{
    const UpdatablePlot plot(nullptr);

    QCOMPARE(plot.bgColor(), QString("#ffffff"));
    QCOMPARE(plot.curveColor(), QString("#000000"));
    QCOMPARE(plot.xTitle(), QString());
    QCOMPARE(plot.yTitle(), QString());
}

void UpdatablePlotTest::takesColors_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("color");

    QTest::newRow("name") << "white"
                          << "#ffffff";
    QTest::newRow("name in capitals") << "SteelBlue"
                                      << "#4682b4";
    QTest::newRow("3 digits") << "#f80"
                              << "#ff8800";
    QTest::newRow("6 digits") << "#Ab12eF"
                              << "#ab12ef";
    QTest::newRow("9 digits") << "#fff888000"
                              << "#ff8800";
    QTest::newRow("12 digits") << "#ffff88880000"
                               << "#ff8800";
    QTest::newRow("8 digits") << "#80ff0000"
                              << "#000000";
    QTest::newRow("unknown") << "no colour"
                             << "#000000";
    QTest::newRow("empty") << ""
                           << "#000000";
}

void UpdatablePlotTest::takesColors()
{
    QFETCH(QString, text);
    tolerateWarnings("QColor::setNamedColor"); // says Qt, in some versions
    UpdatablePlot plot(nullptr);

    plot.setProperty("bgColor", text);
    plot.setProperty("curveColor", text);

    QTEST(plot.property("bgColor").toString(), "color");
    QTEST(plot.property("curveColor").toString(), "color");
}

void UpdatablePlotTest::fillsTheCurveTranslucently()
{
    UpdatablePlot plot(nullptr);

    plot.setCurveColor("#4682b4");

    const QwtPlotCurve &curve = compat::curveOf(plot);
    const QColor translucent(0x46, 0x82, 0xb4, 150);
    QCOMPARE(curve.brush(), QBrush(translucent, Qt::SolidPattern));
    QCOMPARE(curve.pen(),
             QPen(QBrush(translucent), 1.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
}

void UpdatablePlotTest::repaintsAShownCanvasInItsNewColor()
{
    UpdatablePlot plot(nullptr);
    plot.resize(400, 300);
    plot.show();
    compat::waitUntilShown(&plot);
    const QPoint place = plot.canvas()->geometry().topLeft() + QPoint(9, 9);
    QCOMPARE(colorAt(&plot, place), QColor(Qt::white));

    plot.setBgColor("#ff0000");

    QCOMPARE(colorAt(&plot, place), QColor(Qt::red));
}

void UpdatablePlotTest::takesTitlesAsPlainText()
{
    UpdatablePlot plot(nullptr);

    plot.setProperty("xTitle", "<b>Time</b>");
    plot.setProperty("yTitle", "<i>Bytes</i>");

    QCOMPARE(plot.xTitle(), QString("<b>Time</b>"));
    QCOMPARE(plot.yTitle(), QString("<i>Bytes</i>"));
    // This compares how they are drawn, too.
    QCOMPARE(plot.axisTitle(QwtPlot::xBottom), QwtText("<b>Time</b>", QwtText::PlainText));
    QCOMPARE(plot.axisTitle(QwtPlot::yLeft), QwtText("<i>Bytes</i>", QwtText::PlainText));
}

void UpdatablePlotTest::diesBeforeAndAfterItsFirstSample()
{
    QWidget parent;
    new UpdatablePlot(&parent);
    UpdatablePlot *second = new UpdatablePlot(&parent);

    second->updateData(1);

    QCOMPARE(parent.children().size(), 2); // both go with the parent
}

void UpdatablePlotTest::fillsTheAreaOnlyWhenTheCurveHasAColor()
{
    UpdatablePlot plot(nullptr);
    plot.resize(400, 300);
    for (int second = 1000; second <= 2000; second += 10) {
        pretendedSecond() = second;
        plot.updateData(1000);
    }
    plot.show();
    compat::waitUntilShown(&plot);
    const QRect canvas = plot.canvas()->geometry();
    const QPoint below(canvas.left() + canvas.width() * 9 / 10, canvas.bottom() - 8);
    const QColor before = colorAt(&plot, below);

    plot.setCurveColor("red");

    const QColor after = colorAt(&plot, below);
    QCOMPARE(before, QColor(Qt::white));
    QCOMPARE(after.red(), 255);
    QVERIFY(after.green() > 80 && after.green() < 130); // red at 150 of 255 over white
}

void UpdatablePlotTest::hasNoPropertyForMappersToFillIn()
{
    const UpdatablePlot plot(nullptr);

    QVERIFY(!plot.metaObject()->userProperty().isValid());
}

TESSALINE_TEST_MAIN(UpdatablePlotTest)
#include "tst_updatableplot.moc"
