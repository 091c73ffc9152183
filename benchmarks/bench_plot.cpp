// SPDX-License-Identifier: LGPL-3.0-or-later
// What a sample costs that comes to a shown UpdatablePlot whose half hour is full, beside a bare
// plot that is told the same by hand, and beside other chart libraries where they are installed.
#include "RatioReporter.h"
#include "settle.h"

#include "ByteSizeScaleDraw.h"
#include "PlotClock.h"
#include "PlotSamples.h"
#include "TimeScaleDraw.h"
#include "UpdatablePlot.h"

#include <qwt_plot_grid.h>
#include <qwt_plot_layout.h>
#include <qwt_scale_widget.h>

#ifdef BENCH_QCUSTOMPLOT
#include <qcustomplot.h>
#endif
#ifdef BENCH_QTCHARTS
#include <QtCharts/QAreaSeries>
#include <QtCharts/QChartView>
#include <QtCharts/QLineSeries>
#include <QtCharts/QValueAxis>
#endif

#include <QApplication>

#include <algorithm>
#include <map>
#include <memory>
#include <utility>

#ifdef BENCH_QTCHARTS
// Qt 5 has the classes in there, Qt 6 has no such namespace.
namespace QtCharts {
} // namespace QtCharts
using namespace QtCharts;
#endif

namespace {

const int shownSamples = 1802;

/// A transfer that goes faster and slower, in bytes per second. The peaks are alike, so that the
/// size axis keeps its labels, as it does nearly always.
qint64 sampleAt(int second)
{
    const qint64 kilobyte = 1024;
    const qint64 wave = qAbs(second % 300 - 150) * 40;
    const qint64 noise = qint64(second) * 7919 % 1009;
    return (1500 + wave + noise) * kilobyte;
}

QColor curveColor()
{
    QColor color(QStringLiteral("steelblue"));
    color.setAlpha(150);
    return color;
}

QPen curvePen()
{
    return QPen(QBrush(curveColor()), 1.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin);
}

QPen gridPen()
{
    return QPen(QBrush(QColor(56, 56, 56, 150)), 0);
}

QFont smallPrint()
{
    return QFont(QStringLiteral("Ms Shell Dlg 2"), 4);
}

/// The samples of the last half hour, kept by hand, and the ends of the axes that fit them.
class Window
{
public:
    Window()
        : now(0)
        , maximum(0)
    {
    }

    void add(int second)
    {
        now = second;
        samples.insert(now, sampleAt(now));
        while (samples.begin().key() < now - (shownSamples - 1)) {
            samples.erase(samples.begin());
        }
        maximum = std::max(qint64(1024), *std::max_element(samples.begin(), samples.end()));
    }

    double left() const
    {
        return now - PlotSamples::span;
    }

    double right() const
    {
        return now - 2;
    }

    double top() const
    {
        return static_cast<double>(maximum);
    }

    double step() const
    {
        return static_cast<double>(PlotSamples::sizeStep(maximum));
    }

    template <class Points> Points points() const
    {
        Points points;
        points.reserve(samples.size());
        for (auto sample = samples.begin(); sample != samples.end(); ++sample) {
            points.append(QPointF(sample.key(), static_cast<double>(sample.value())));
        }
        return points;
    }

    const QMap<int, qint64> &all() const
    {
        return samples;
    }

private:
    QMap<int, qint64> samples;
    int now;
    qint64 maximum;
};

/// Our chart, on a clock that it does not have to wait for.
class Chart : public UpdatablePlot
{
public:
    Chart()
    {
        setCurveColor(QStringLiteral("steelblue"));
        PlotClock::currentDateTime = drivenTime;
    }

    void add(int second)
    {
        secondsSinceStart = second;
        updateData(sampleAt(second));
    }

private:
    static QDateTime drivenTime()
    {
        return PlotClock::startTime.addSecs(secondsSinceStart);
    }

    static int secondsSinceStart;
};

int Chart::secondsSinceStart = 0;

/// The baseline: the plot that ours is made of, with everything that ours sets up and calls.
class BarePlot : public QwtPlot
{
public:
    BarePlot()
    {
        setAutoReplot(false);
        plotLayout()->setAlignCanvasToScales(true);
        setCanvasBackground(QColor(Qt::white));

        setAxisScaleDraw(QwtPlot::xBottom,
                         new TimeScaleDraw(PlotSamples::InitialAxis(PlotClock::startTime).base));
        QwtScaleWidget *times = axisWidget(QwtPlot::xBottom);
        times->setFont(smallPrint());
        times->setMinBorderDist(
            0, 8 * QFontMetrics(times->font()).horizontalAdvance(QLatin1Char('8')));
        setAxisScaleDraw(QwtPlot::yLeft, new ByteSizeScaleDraw);
        axisWidget(QwtPlot::yLeft)->setFont(smallPrint());

        QwtPlotGrid *grid = new QwtPlotGrid; // the plot deletes it
        grid->enableX(false);
        grid->setPen(gridPen());
        grid->attach(this);

        curve.setBrush(curveColor());
        curve.setPen(curvePen());
        curve.attach(this);
    }

    void add(int second)
    {
        window.add(second);
        setAxisScale(QwtPlot::xBottom, window.left(), window.right(), PlotSamples::timeStep);
        setAxisScale(QwtPlot::yLeft, 0.0, window.top(), window.step());
        curve.setSamples(window.points<QPolygonF>());
        replot();
    }

private:
    QwtPlotCurve curve;
    Window window;
};

#ifdef BENCH_QCUSTOMPLOT

class CustomPlot : public QCustomPlot
{
public:
    CustomPlot()
        : times(new QCPAxisTickerTime)
        , sizes(new QCPAxisTickerFixed)
    {
        setNotAntialiasedElements(QCP::aeAll);
        times->setTimeFormat(QStringLiteral("%h:%m"));
        xAxis->setTicker(times);
        xAxis->grid()->setVisible(false);
        xAxis->setTickLabelFont(smallPrint());
        yAxis->setTicker(sizes);
        yAxis->grid()->setPen(gridPen());
        yAxis->setTickLabelFont(smallPrint());
        addGraph();
        graph()->setPen(curvePen());
        graph()->setBrush(curveColor());
    }

    void add(int second)
    {
        window.add(second);
        QVector<QCPGraphData> points;
        points.reserve(window.all().size());
        for (auto sample = window.all().begin(); sample != window.all().end(); ++sample) {
            points.append(QCPGraphData(sample.key(), static_cast<double>(sample.value())));
        }
        graph()->data()->set(points, true);
        xAxis->setRange(window.left(), window.right());
        yAxis->setRange(0.0, window.top());
        sizes->setTickStep(window.step());
        if (isVisible()) { // it would draw all the same, and take seconds to be filled
            replot(rpImmediateRefresh);
        }
    }

private:
    QSharedPointer<QCPAxisTickerTime> times;
    QSharedPointer<QCPAxisTickerFixed> sizes;
    Window window;
};

#endif

#ifdef BENCH_QTCHARTS

class ChartsView : public QChartView
{
public:
    ChartsView()
        : line(new QLineSeries(this))
        , times(new QValueAxis)
        , sizes(new QValueAxis)
    {
        QAreaSeries *area = new QAreaSeries(line);
        area->setPen(curvePen());
        area->setBrush(curveColor());
        chart()->addSeries(area);
        chart()->legend()->hide();
        chart()->setMargins(QMargins());
        chart()->addAxis(times, Qt::AlignBottom);
        chart()->addAxis(sizes, Qt::AlignLeft);
        area->attachAxis(times);
        area->attachAxis(sizes);
        for (QValueAxis *axis : {times, sizes}) {
            axis->setTickType(QValueAxis::TicksDynamic);
            axis->setLabelsFont(smallPrint());
            axis->setLabelFormat(QStringLiteral("%.0f"));
        }
        times->setGridLineVisible(false);
        times->setTickInterval(PlotSamples::timeStep);
        sizes->setGridLinePen(gridPen());
    }

    void add(int second)
    {
        window.add(second);
        line->replace(window.points<QVector<QPointF>>());
        times->setRange(window.left(), window.right());
        sizes->setTickInterval(window.step());
        sizes->setRange(0.0, window.top());
    }

private:
    QLineSeries *line;
    QValueAxis *times; ///< Owned by the chart, as is the other.
    QValueAxis *sizes;
    Window window;
};

#endif

/// A chart on the screen, with its half hour full.
template <class Plot> class ShownPlot
{
public:
    ShownPlot(int width, int height)
        : second(0)
    {
        plot.resize(width, height);
        while (second < shownSamples) {
            plot.add(++second);
        }
        plot.show();
        settle();
        addSample();
    }

    void addSample()
    {
        plot.add(++second);
        settle();
    }

private:
    Plot plot;
    int second;
};

/// Charts of all sizes, each made when it is first asked for.
template <class Plot> class Plots
{
public:
    explicit Plots(const char *name)
    {
        measure(name, 180, 140);
        measure(name, 800, 400);
    }

private:
    ShownPlot<Plot> &ofSize(int width, int height)
    {
        std::unique_ptr<ShownPlot<Plot>> &plot = plots[std::make_pair(width, height)];
        if (!plot) {
            plot.reset(new ShownPlot<Plot>(width, height));
        }
        return *plot;
    }

    void measure(const char *name, int width, int height)
    {
        benchmark::RegisterBenchmark(name,
                                     [this, width, height](benchmark::State &state) {
                                         ShownPlot<Plot> &plot = ofSize(width, height);
                                         for (auto _ : state) {
                                             plot.addSample();
                                         }
                                     })
            ->Args({width, height})
            ->Iterations(100)
            ->MeasureProcessCPUTime()
            ->Unit(benchmark::kMillisecond);
    }

    std::map<std::pair<int, int>, std::unique_ptr<ShownPlot<Plot>>> plots;
};

/// The lines that hold our chart against another, one for each size.
void compare(std::vector<Comparison> *comparisons, const std::string &title,
             const std::string &baseline, double most)
{
    comparisons->push_back({"a sample at 180x140, beside " + title, "chart/sample/180/140",
                            baseline + "/180/140", most, 0});
    comparisons->push_back({"a sample at 800x400, beside " + title, "chart/sample/800/400",
                            baseline + "/800/400", most, 0});
}

} // namespace

int main(int argc, char **argv)
{
    if (qgetenv("QT_QPA_PLATFORM").isEmpty()) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    std::vector<Comparison> comparisons;

    Plots<Chart> charts("chart/sample");
    Plots<BarePlot> barePlots("bare/sample");
    compare(&comparisons, "a bare QwtPlot", "bare/sample", 1.03);
#ifdef BENCH_QCUSTOMPLOT
    Plots<CustomPlot> customPlots("qcustomplot/sample");
    compare(&comparisons, "QCustomPlot", "qcustomplot/sample", 0);
#endif
#ifdef BENCH_QTCHARTS
    Plots<ChartsView> chartsViews("qtcharts/sample");
    compare(&comparisons, "Qt Charts", "qtcharts/sample", 0);
#endif

    return runBenchmarks(argc, argv, comparisons);
}
