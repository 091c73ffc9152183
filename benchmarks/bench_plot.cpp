// SPDX-License-Identifier: LGPL-3.0-or-later
// What an UpdatablePlot costs: its construction, and a sample that comes when it is shown, beside a
// bare plot that is told the same by hand, and beside other chart libraries where they are
// installed.
#include "OtherCharts.h"
#include "RatioReporter.h"
#include "measure.h"

#include <QApplication>

#include <map>

namespace {

/// A chart with so many samples in its half hour, at even distances; on the screen, if it has a
/// size.
template <class Plot> class FilledPlot
{
public:
    FilledPlot(int width, int height, int sampleCount)
        : second(0)
        , interval((Charts::shownSamples - 1) / (sampleCount - 1))
    {
        while (second < Charts::shownSamples) {
            plot.add(second += interval);
        }
        if (width > 0) {
            plot.resize(width, height);
            plot.show();
        }
        settle();
        addSample();
    }

    void addSample()
    {
        plot.add(second += interval);
        settle();
    }

private:
    Plot plot;
    int second;
    const int interval;
};

/// A chart of that size, made when it is first asked for. They are never destroyed, because the
/// application goes first.
template <class Plot> FilledPlot<Plot> &plotOf(const benchmark::State &state)
{
    static std::map<std::vector<int>, FilledPlot<Plot> *> plots;
    const std::vector<int> size
        = {static_cast<int>(state.range(0)), static_cast<int>(state.range(1)),
           static_cast<int>(state.range(2))};
    FilledPlot<Plot> *&plot = plots[size];
    if (!plot) {
        plot = new FilledPlot<Plot>(size[0], size[1], size[2]);
    }
    return *plot;
}

template <class Plot> void sample(benchmark::State &state)
{
    FilledPlot<Plot> &plot = plotOf<Plot>(state);
    for (auto _ : state) {
        plot.addSample();
    }
}

template <class Plot> void measureSamples(const std::string &name, int repetitions = 0)
{
    const int most = Charts::shownSamples;
    measure(name + "/sample", sample<Plot>, {180, 140, most}, 10, repetitions);
    measure(name + "/sample", sample<Plot>, {800, 400, most}, 10, repetitions);
    measure(name + "/sample", sample<Plot>, {0, 0, most}, 50, repetitions);
}

template <class Plot> void measureFewSamples(const std::string &name)
{
    measure(name + "/sample", sample<Plot>, {180, 140, 10}, 100);
    measure(name + "/sample", sample<Plot>, {180, 140, 100}, 100);
}

/// The lines that hold our chart against another, one for each size.
void compare(std::vector<Comparison> *comparisons, const std::string &title,
             const std::string &name, double most, double mostWhenLarge)
{
    comparisons->push_back({"a sample at 180x140, until painted / " + title,
                            "chart/sample/180/140/1802", name + "/sample/180/140/1802", most});
    comparisons->push_back({"a sample at 800x400, until painted / " + title,
                            "chart/sample/800/400/1802", name + "/sample/800/400/1802",
                            mostWhenLarge});
}

} // namespace

int main(int argc, char **argv)
{
    prepareProcess();
    QApplication application(argc, argv);

    measureConstruction<UpdatablePlot>("chart/construction");
    measureConstruction<QwtPlot>("bare/construction");
    measureSamples<Charts::Updatable>("chart", 75);
    measureSamples<Charts::Bare>("bare", 75);
    measureFewSamples<Charts::Updatable>("chart");
    measureFewSamples<Charts::Bare>("bare");
#ifdef BENCH_QCUSTOMPLOT
    measureSamples<Charts::Custom>("qcustomplot");
#endif
#ifdef BENCH_QTCHARTS
    measureSamples<Charts::QtChartsView>("qtcharts");
#endif

    std::vector<Comparison> comparisons = {
        {"construction / QwtPlot", "chart/construction", "bare/construction", 1.1},
        {"a sample while hidden / QwtPlot", "chart/sample/0/0/1802", "bare/sample/0/0/1802", 0.4}};
    compare(&comparisons, "QwtPlot", "bare", 0.45, 0.5);
    compare(&comparisons, "QCustomPlot", "qcustomplot", 0.7, 0.2);
    compare(&comparisons, "Qt Charts", "qtcharts", 0, 0);
    const std::vector<int> sizes = {10, 100, Charts::shownSamples};
    return runBenchmarks(
        argc, argv, comparisons,
        {{"a sample at 180x140, with 10 to 1,802 there", "chart/sample/180/140", sizes, 0},
         {"the same in a QwtPlot", "bare/sample/180/140", sizes, 0}});
}
