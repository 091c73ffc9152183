// SPDX-License-Identifier: LGPL-3.0-or-later
// What it costs a program to start with the library, beside one that is linked with the toolkit
// only: the CPU time of the whole process, from its start to its end.
#include "RatioReporter.h"

#include <sys/resource.h>
#include <sys/wait.h>

#include <spawn.h>

#include <cstdlib>

extern char **environ;

namespace {

double seconds(const timeval &time)
{
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

/// Runs a program to its end and returns the CPU time that it took; negative when it failed.
double run(const std::string &path)
{
    char *arguments[] = {const_cast<char *>(path.c_str()), nullptr};
    pid_t process = 0;
    int status = 0;
    rusage usage;
    if (posix_spawn(&process, path.c_str(), nullptr, nullptr, arguments, environ) != 0
        || wait4(process, &status, 0, &usage) != process || status != 0) {
        return -1;
    }
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

void measureStart(const std::string &name, const std::string &path)
{
    benchmark::RegisterBenchmark(name.c_str(),
                                 [path](benchmark::State &state) {
                                     for (auto _ : state) {
                                         const double time = run(path);
                                         if (time < 0) {
                                             state.SkipWithError(("can't run " + path).c_str());
                                             return;
                                         }
                                         state.SetIterationTime(time);
                                     }
                                 })
        ->Iterations(1)
        ->Repetitions(200) // short runs, of which many are disturbed
        ->UseManualTime()
        ->Unit(benchmark::kMicrosecond);
}

} // namespace

int main(int argc, char **argv)
{
    const std::string program(argv[0]);
    const std::string folder = program.substr(0, program.rfind('/') + 1);
    measureStart("start/toolkit", folder + "load_toolkit");
    measureStart("start/library", folder + "load_library");
#ifdef BENCH_PLOT
    measureStart("start/qwt", folder + "load_qwt");
    measureStart("start/chart", folder + "load_chart");
#endif

    return runBenchmarks(
        argc, argv,
        {{"start and end of a program with the library / Qt Widgets only", "start/library",
          "start/toolkit", 0},
         {"start and end of a program with the chart / Qwt only", "start/chart", "start/qwt", 0}});
}
