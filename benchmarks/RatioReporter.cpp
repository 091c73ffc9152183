// SPDX-License-Identifier: LGPL-3.0-or-later
#include "RatioReporter.h"

#include <cmath>
#include <cstdio>

RatioReporter::RatioReporter(const std::vector<Comparison> &wanted)
    : ConsoleReporter(OO_Tabular)
    , comparisons(wanted)
{
}

void RatioReporter::ReportRuns(const std::vector<Run> &reports)
{
    std::vector<Run> shown;
    for (const Run &run : reports) {
        if (run.aggregate_name == "median") {
            medians[run.run_name.function_name + "/" + run.run_name.args]
                = run.GetAdjustedCPUTime();
            shown.push_back(run);
        }
    }
    if (!shown.empty()) {
        ConsoleReporter::ReportRuns(shown);
    }
}

void RatioReporter::Finalize()
{
    std::printf("\n%-58s %8s %8s\n", "median process CPU time, ours : baseline", "is", "at most");
    for (const Comparison &comparison : comparisons) {
        const double ratio = medians[comparison.ours] / medians[comparison.baseline];
        const bool isGrowth = comparison.sizeFactor > 0;
        std::printf("%-58s %8.2f ", comparison.what.c_str(),
                    isGrowth ? std::log(ratio) / std::log(comparison.sizeFactor) : ratio);
        if (comparison.most > 0) {
            std::printf("%8.2f\n", comparison.most);
        } else {
            std::printf("%8s\n", "-");
        }
    }
}

int runBenchmarks(int argc, char **argv, const std::vector<Comparison> &comparisons)
{
    std::vector<std::string> texts(argv, argv + argc);
    texts.insert(texts.begin() + 1,
                 {"--benchmark_enable_random_interleaving=true", "--benchmark_repetitions=9",
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
    RatioReporter reporter(comparisons);
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
