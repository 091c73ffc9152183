// SPDX-License-Identifier: LGPL-3.0-or-later
#include "RatioReporter.h"

#include <cmath>
#include <cstdio>

namespace {

std::string formatted(const char *format, double value)
{
    char text[32];
    std::snprintf(text, sizeof text, format, value);
    return text;
}

std::string quantity(const std::string &run, double value)
{
    if (run.find(':') != std::string::npos) {
        return formatted("%.0f", value);
    }
    return value < 0.001 ? formatted("%.1f us", value * 1e6) : formatted("%.2f ms", value * 1e3);
}

void printLine(const std::string &what, const std::string &ours, const std::string &baseline,
               double ratio, double most)
{
    ratio = std::round(ratio * 100) / 100 + 0.0; // no "-0.00"
    const bool isMissed = most > 0 && ratio > most;
    std::printf("| %-66s | %9s | %9s | %8s | %7s |\n", what.c_str(), ours.c_str(), baseline.c_str(),
                formatted(isMissed ? "**%.2f**" : "%.2f", ratio).c_str(),
                most > 0 ? formatted("%.2f", most).c_str() : "");
}

/// The slope of the line that comes closest to all points, both axes being logarithmic.
double exponentOf(const std::vector<std::pair<double, double>> &points)
{
    const double count = static_cast<double>(points.size());
    double x = 0, y = 0, xx = 0, xy = 0;
    for (const std::pair<double, double> &point : points) {
        const double logX = std::log(point.first);
        const double logY = std::log(point.second);
        x += logX;
        y += logY;
        xx += logX * logX;
        xy += logX * logY;
    }
    return (count * xy - x * y) / (count * xx - x * x);
}

} // namespace

RatioReporter::RatioReporter(const std::vector<Comparison> &wantedComparisons,
                             const std::vector<Growth> &wantedGrowths)
    : ConsoleReporter(OO_Tabular)
    , comparisons(wantedComparisons)
    , growths(wantedGrowths)
{
}

void RatioReporter::ReportRuns(const std::vector<Run> &reports)
{
    std::vector<Run> shown;
    for (const Run &run : reports) {
        if (run.aggregate_name == "median") {
            keep(run);
            shown.push_back(run);
        }
    }
    if (!shown.empty()) {
        ConsoleReporter::ReportRuns(shown);
    }
}

void RatioReporter::keep(const Run &run)
{
    std::string name = run.run_name.function_name;
    if (!run.run_name.args.empty()) {
        name += "/" + run.run_name.args;
    }
    const bool isManual = run.run_name.time_type == "manual_time";
    medians[name] = (isManual ? run.GetAdjustedRealTime() : run.GetAdjustedCPUTime())
        / benchmark::GetTimeUnitMultiplier(run.time_unit);
    for (const auto &counter : run.counters) {
        medians[name + ":" + counter.first] = counter.second;
    }
}

void RatioReporter::Finalize()
{
    std::printf("\n| %-66s | %9s | %9s | %8s | %7s |\n", "Median of process CPU times, or bytes",
                "ours", "baseline", "ratio", "at most");
    std::printf("|%s|----------:|----------:|---------:|--------:|\n",
                std::string(68, '-').c_str());
    for (const Comparison &comparison : comparisons) {
        print(comparison);
    }
    for (const Growth &growth : growths) {
        print(growth);
    }
}

void RatioReporter::print(const Comparison &comparison) const
{
    const auto ours = medians.find(comparison.ours);
    const auto baseline = medians.find(comparison.baseline);
    if (ours != medians.end() && baseline != medians.end()) {
        printLine(comparison.what, quantity(ours->first, ours->second),
                  quantity(baseline->first, baseline->second), ours->second / baseline->second,
                  comparison.most);
    }
}

void RatioReporter::print(const Growth &growth) const
{
    std::vector<std::pair<double, double>> points;
    for (int size : growth.sizes) {
        const auto median = medians.find(growth.run + "/" + std::to_string(size));
        if (median != medians.end()) {
            points.emplace_back(size, median->second);
        }
    }
    if (points.size() > 1 && points.size() == growth.sizes.size()) {
        printLine("growth exponent: " + growth.what, "", "", exponentOf(points), growth.most);
    }
}

int runBenchmarks(int argc, char **argv, const std::vector<Comparison> &comparisons,
                  const std::vector<Growth> &growths)
{
    std::vector<std::string> texts(argv, argv + argc);
    texts.insert(texts.begin() + 1,
                 {"--benchmark_enable_random_interleaving=true", "--benchmark_repetitions=15",
                  "--benchmark_report_aggregates_only=true"});
    std::vector<char *> arguments;
    for (std::string &text : texts) {
        arguments.push_back(&text[0]);
    }
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) {
        return 2;
    }
    RatioReporter reporter(comparisons, growths);
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
