// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_RATIOREPORTER_H
#define TESSALINE_RATIOREPORTER_H

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

/// One line of the table that a benchmark program ends with.
struct Comparison
{
    std::string what;
    std::string ours; ///< name of the measured run, such as "table/setModelShown/1000"
    std::string baseline; ///< the run it is held against
    double most; ///< the ratio that it has to keep; 0: there is none
    double sizeFactor; ///< 0: a ratio; else a growth exponent for sizes this many times apart
};

/// Prints the medians as they come and, at the end, how they compare: ratios, because times of a
/// shared machine mean nothing alone.
class RatioReporter : public benchmark::ConsoleReporter
{
public:
    explicit RatioReporter(const std::vector<Comparison> &comparisons);

    void ReportRuns(const std::vector<Run> &reports) override;
    void Finalize() override;

private:
    std::vector<Comparison> comparisons;
    std::map<std::string, double> medians;
};

/// Runs all registered benchmarks: both sides of each comparison in one run, interleaved at random.
/// Further arguments of Google Benchmark are taken from the command line.
int runBenchmarks(int argc, char **argv, const std::vector<Comparison> &comparisons);

#endif
