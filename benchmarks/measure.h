// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_MEASURE_H
#define TESSALINE_MEASURE_H

#include "settle.h"

#include <benchmark/benchmark.h>

#include <QtGlobal>

#include <malloc.h>

#include <memory>
#include <string>
#include <vector>

/// For its lifetime nothing is measured. Made before a widget and renewed at the end of an
/// iteration, it covers the widget's destruction too.
class Pause
{
public:
    explicit Pause(benchmark::State &pausedState)
        : state(pausedState)
    {
        state.PauseTiming();
    }

    ~Pause()
    {
        state.ResumeTiming();
    }

private:
    Pause(const Pause &) = delete;
    Pause &operator=(const Pause &) = delete;

    benchmark::State &state;
};

/// Registers a function to be measured, by the CPU time that the process takes. Where a ratio has
/// to be exact, many repetitions of few iterations let a change of the machine's speed meet both
/// sides; 0 repetitions leave their number to the command line.
template <class Function>
void measure(const std::string &name, Function function, const std::vector<int64_t> &arguments,
             int iterations, int repetitions = 0)
{
    benchmark::internal::Benchmark *run = benchmark::RegisterBenchmark(name.c_str(), function);
    if (!arguments.empty()) {
        run->Args(arguments);
    }
    if (repetitions > 0) {
        run->Repetitions(repetitions);
    }
    run->Iterations(iterations)->MeasureProcessCPUTime()->Unit(benchmark::kMicrosecond);
}

/// Registers the construction of a batch of widgets, without what they do when they are shown or
/// destroyed.
template <class Widget> void measureConstruction(const std::string &name)
{
    measure(
        name,
        [](benchmark::State &state) {
            const int batch = 20;
            for (auto _ : state) {
                std::vector<std::unique_ptr<Widget>> widgets(batch);
                for (std::unique_ptr<Widget> &widget : widgets) {
                    widget.reset(new Widget);
                }
                const Pause pause(state);
                widgets.clear();
                settle();
            }
        },
        {}, 40);
}

/// What the process has allocated and not freed.
inline double bytesInUse()
{
    const struct mallinfo2 information = mallinfo2();
    return static_cast<double>(information.uordblks + information.hblkhd);
}

/// To be called first. The programs need no display, but one can be asked for. They keep memory
/// that is freed: whether it is given back, only to be taken again at the next turn, is a matter of
/// chance.
inline void prepareProcess()
{
    if (qgetenv("QT_QPA_PLATFORM").isEmpty()) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    mallopt(M_TRIM_THRESHOLD, 1 << 30);
    mallopt(M_MMAP_THRESHOLD, 32 << 20);
}

#endif
