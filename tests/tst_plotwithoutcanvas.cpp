// SPDX-License-Identifier: LGPL-3.0-or-later
// A chart whose canvas was taken away takes all that is said to it, and draws again when it has
// one.
#include "TestCase.h"
#include "UpdatablePlot.h"
#include "ViewHelpers.h"

#include <qwt_plot_canvas.h>
#include <qwt_scale_div.h>

#include <QFrame>

class PlotWithoutCanvasTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void takesItsProperties_data();
    void takesItsProperties();
    void hasNoBackground();
    void leavesItsBackgroundToTheNextCanvas();
    void takesASampleWhileItIsShown();
    void takesAColorWhileItIsShown();
    void drawsOnTheNextCanvas();
    void takesABackgroundOnACanvasThatIsNotQwts();
};

void PlotWithoutCanvasTest::takesItsProperties_data()
{
    QTest::addColumn<QString>("property");
    QTest::addColumn<QString>("value");

    QTest::newRow("color of the curve") << "curveColor"
                                        << "#4682b4";
    QTest::newRow("title of the time axis") << "xTitle"
                                            << "Time";
    QTest::newRow("title of the size axis") << "yTitle"
                                            << "Bytes";
}

void PlotWithoutCanvasTest::takesItsProperties()
{
    QFETCH(QString, property);
    QFETCH(QString, value);
    UpdatablePlot plot;
    plot.setCanvas(nullptr);

    plot.setProperty(property.toLatin1().constData(), value);

    QCOMPARE(plot.property(property.toLatin1().constData()).toString(), value);
}

void PlotWithoutCanvasTest::hasNoBackground()
{
    UpdatablePlot plot;
    plot.setCanvas(nullptr);

    plot.setBgColor("#ff0000");

    QCOMPARE(plot.bgColor(), QString("#000000"));
}

void PlotWithoutCanvasTest::leavesItsBackgroundToTheNextCanvas()
{
    UpdatablePlot plot;
    plot.setCanvas(nullptr);
    plot.setBgColor("#ff0000");
    plot.setCanvas(new QwtPlotCanvas(&plot));

    plot.setBgColor("#00ff00");

    QCOMPARE(plot.bgColor(), QString("#00ff00"));
}

void PlotWithoutCanvasTest::takesASampleWhileItIsShown()
{
    UpdatablePlot plot;
    showWindow(&plot, 400, 300);
    plot.setCanvas(nullptr);

    plot.updateData(5000000);

    plot.setCanvas(new QwtPlotCanvas(&plot)); // Qwt wants one to lay the plot out
    plot.setCurveColor("#4682b4"); // which draws anew
    QCOMPARE(plot.axisScaleDiv(QwtPlot::yLeft).upperBound(), 5000000.0);
}

void PlotWithoutCanvasTest::takesAColorWhileItIsShown()
{
    UpdatablePlot plot;
    showWindow(&plot, 400, 300);
    plot.setCanvas(nullptr);

    plot.setCurveColor("#4682b4");

    QCOMPARE(plot.curveColor(), QString("#4682b4"));
    plot.setCanvas(new QwtPlotCanvas(&plot)); // Qwt wants one to lay the plot out
}

void PlotWithoutCanvasTest::drawsOnTheNextCanvas()
{
    UpdatablePlot plot;
    plot.setCanvas(nullptr);
    plot.updateData(5000000);
    plot.setCanvas(new QwtPlotCanvas(&plot));
    plot.setBgColor("#ff0000");

    showWindow(&plot, 400, 300);

    QCOMPARE(colorAt(&plot, plot.canvas()->geometry().topLeft() + QPoint(9, 9)), QColor(Qt::red));
}

void PlotWithoutCanvasTest::takesABackgroundOnACanvasThatIsNotQwts()
{
    UpdatablePlot plot;
    plot.setCanvas(new QFrame);

    plot.setBgColor("#ff0000");

    QCOMPARE(plot.bgColor(), QString("#ff0000"));
}

TESSALINE_TEST_MAIN(PlotWithoutCanvasTest)
#include "tst_plotwithoutcanvas.moc"
