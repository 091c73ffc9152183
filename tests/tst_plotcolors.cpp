// SPDX-License-Identifier: LGPL-3.0-or-later
#include "QwtTestCompat.h"
#include "TestCase.h"
#include "UpdatablePlot.h"
#include "ViewHelpers.h"

#include <qwt_plot_canvas.h>

#include <QBrush>
#include <QColor>

namespace {

QColor curveBrushColor(const UpdatablePlot &plot)
{
    return compat::curveOf(plot).brush().color();
}

} // namespace

/// Colours that can be seen through, that nobody knows, and that are set again.
class PlotColorsTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void startsInTheSameColorsInADarkApplication();
    void takesABackgroundThatCanBeSeenThrough();
    void drawsAnyCurveAsTranslucentAsOthers_data();
    void drawsAnyCurveAsTranslucentAsOthers();
    void takesAnUnknownBackgroundAfterAKnownOne_data();
    void takesAnUnknownBackgroundAfterAKnownOne();
    void takesAnUnknownCurveColorAfterAKnownOne_data();
    void takesAnUnknownCurveColorAfterAKnownOne();
    void fillsTheAreaInTheColorThatAChartWithoutOneReads();
    void takesAKnownColorAfterAnUnknownOne();
    void takesTheSameBackgroundOverWhatTheApplicationPainted();
    void takesTheSameCurveColorOverWhatTheApplicationDrew();
    void leavesTheCurveAloneWhenTheBackgroundChanges();
    void leavesTheStyleOfTheCurveToTheApplication();
    void leavesTheBackgroundAloneWhenTheCurveChanges();
};

namespace {

void addRowsForUnknownColors()
{
    QTest::addColumn<QString>("unknown");

    QTest::newRow("word") << "no colour";
    QTest::newRow("empty") << "";
    QTest::newRow("with an alpha channel") << "#80ff0000";
    QTest::newRow("two digits") << "#ff";
}

} // namespace

void PlotColorsTest::startsInTheSameColorsInADarkApplication()
{
    const QPalette previous = QApplication::palette();
    QPalette dark(QColor(50, 50, 50));
    dark.setColor(QPalette::Base, Qt::black);
    QApplication::setPalette(dark);

    const UpdatablePlot plot(nullptr);

    QApplication::setPalette(previous);
    QCOMPARE(plot.bgColor(), QString("#ffffff"));
    QCOMPARE(plot.curveColor(), QString("#000000"));
}

void PlotColorsTest::takesABackgroundThatCanBeSeenThrough()
{
    UpdatablePlot plot(nullptr);

    plot.setBgColor("transparent");

    QCOMPARE(QBrush(plot.canvasBackground()).color().alpha(), 0);
    QCOMPARE(plot.bgColor(), QString("#000000"));
}

void PlotColorsTest::drawsAnyCurveAsTranslucentAsOthers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("color");

    QTest::newRow("opaque") << "red"
                            << "#ff0000";
    QTest::newRow("transparent") << "transparent"
                                 << "#000000";
}

void PlotColorsTest::drawsAnyCurveAsTranslucentAsOthers()
{
    QFETCH(QString, text);
    UpdatablePlot plot(nullptr);

    plot.setCurveColor(text);

    QCOMPARE(curveBrushColor(plot).alpha(), 150);
    QCOMPARE(compat::curveOf(plot).pen().color().alpha(), 150);
    QTEST(plot.curveColor(), "color");
}

void PlotColorsTest::takesAnUnknownBackgroundAfterAKnownOne_data()
{
    addRowsForUnknownColors();
}

void PlotColorsTest::takesAnUnknownBackgroundAfterAKnownOne()
{
    QFETCH(QString, unknown);
    tolerateWarnings("QColor::setNamedColor");
    UpdatablePlot plot(nullptr);
    plot.setBgColor("red");

    plot.setBgColor(unknown);

    QCOMPARE(plot.bgColor(), QString("#000000"));
    QVERIFY(!QBrush(plot.canvasBackground()).color().isValid());
}

void PlotColorsTest::takesAnUnknownCurveColorAfterAKnownOne_data()
{
    addRowsForUnknownColors();
}

void PlotColorsTest::takesAnUnknownCurveColorAfterAKnownOne()
{
    QFETCH(QString, unknown);
    tolerateWarnings("QColor::setNamedColor");
    UpdatablePlot plot(nullptr);
    plot.setCurveColor("red");

    plot.setCurveColor(unknown);

    QCOMPARE(plot.curveColor(), QString("#000000"));
    QVERIFY(!curveBrushColor(plot).isValid());
}

void PlotColorsTest::fillsTheAreaInTheColorThatAChartWithoutOneReads()
{
    UpdatablePlot plot(nullptr);
    const QString before = plot.curveColor();

    plot.setCurveColor(before);

    QCOMPARE(plot.curveColor(), before);
    QCOMPARE(compat::curveOf(plot).brush(), QBrush(QColor(0, 0, 0, 150), Qt::SolidPattern));
}

void PlotColorsTest::takesAKnownColorAfterAnUnknownOne()
{
    tolerateWarnings("QColor::setNamedColor");
    UpdatablePlot plot(nullptr);
    plot.setBgColor("no colour");
    plot.setCurveColor("no colour");

    plot.setBgColor("black");
    plot.setCurveColor("black");

    QCOMPARE(QBrush(plot.canvasBackground()).color(), QColor(Qt::black));
    QCOMPARE(curveBrushColor(plot), QColor(0, 0, 0, 150));
}

void PlotColorsTest::takesTheSameBackgroundOverWhatTheApplicationPainted()
{
    UpdatablePlot plot(nullptr);
    plot.setBgColor("red");
    QPalette palette = plot.canvas()->palette();
    palette.setBrush(plot.canvas()->backgroundRole(), QBrush(Qt::red, Qt::Dense4Pattern));
    plot.canvas()->setPalette(palette);
    QCOMPARE(plot.bgColor(), QString("#ff0000"));

    plot.setBgColor("red");

    QCOMPARE(plot.canvas()->palette().brush(plot.canvas()->backgroundRole()).style(),
             Qt::SolidPattern);
}

void PlotColorsTest::takesTheSameCurveColorOverWhatTheApplicationDrew()
{
    UpdatablePlot plot(nullptr);
    plot.setCurveColor("red");
    QwtPlotCurve &curve = const_cast<QwtPlotCurve &>(compat::curveOf(plot));
    curve.setPen(QPen(Qt::green, 3.0));
    curve.setBrush(QBrush(Qt::red, Qt::Dense4Pattern));

    plot.setCurveColor("red");

    QCOMPARE(curve.pen().color(), QColor(255, 0, 0, 150));
    QCOMPARE(curve.pen().widthF(), qreal(1.0));
    QCOMPARE(curve.brush().style(), Qt::SolidPattern);
}

void PlotColorsTest::leavesTheCurveAloneWhenTheBackgroundChanges()
{
    UpdatablePlot plot(nullptr);
    plot.setCurveColor("red");

    plot.setBgColor("blue");

    QCOMPARE(plot.curveColor(), QString("#ff0000"));
}

void PlotColorsTest::leavesTheBackgroundAloneWhenTheCurveChanges()
{
    UpdatablePlot plot(nullptr);
    plot.setBgColor("blue");

    plot.setCurveColor("red");

    QCOMPARE(plot.bgColor(), QString("#0000ff"));
}

void PlotColorsTest::leavesTheStyleOfTheCurveToTheApplication()
{
    UpdatablePlot plot(nullptr);
    QwtPlotCurve &curve = const_cast<QwtPlotCurve &>(compat::curveOf(plot));
    curve.setStyle(QwtPlotCurve::Steps);

    plot.setCurveColor("red");

    QCOMPARE(int(curve.style()), int(QwtPlotCurve::Steps));
}

TESSALINE_TEST_MAIN(PlotColorsTest)
#include "tst_plotcolors.moc"
