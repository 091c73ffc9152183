// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_RATIOREPORTER_H
#define TESSALINE_RATIOREPORTER_H

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

/// One line of the table that a benchmark program ends with: two runs beside each other.
struct Comparison
{
    std::string what;
    std::string ours; ///< The run's name, such as "table/setModelShown/1000"; with ":bytes" at the
                      ///< end, that counter of the run in place of its time.
    std::string baseline; ///< The run it is held against.
    double most; ///< The ratio that it has to keep; 0: there is none.
};

/// One line with the exponent by which a run grows with its last argument.
struct Growth
{
    std::string what;
    std::string run; ///< The run's name without the last argument.
    std::vector<int> sizes; ///< The last arguments.
    double most; ///< The exponent that it has to keep; 0: there is none.
};

/// Prints the medians as they come and a table in Markdown at the end. It compares, because times
/// of a shared machine mean nothing alone. What was not run is left out.
class RatioReporter : public benchmark::ConsoleReporter
{
public:
    RatioReporter(const std::vector<Comparison> &comparisons, const std::vector<Growth> &growths);

    void ReportRuns(const std::vector<Run> &reports) override;
    void Finalize() override;

private:
    void keep(const Run &run);
    void print(const Comparison &comparison) const;
    void print(const Growth &growth) const;

    std::vector<Comparison> comparisons;
    std::vector<Growth> growths;
    std::map<std::string, double> medians; ///< Seconds, or what a counter counts.
};

/// Runs all registered benchmarks: both sides of each comparison in one run, interleaved at random.
/// Further arguments of Google Benchmark are taken from the command line.
int runBenchmarks(int argc, char **argv, const std::vector<Comparison> &comparisons,
                  const std::vector<Growth> &growths = {});

#endif
