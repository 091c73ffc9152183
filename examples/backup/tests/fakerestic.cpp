// SPDX-License-Identifier: LGPL-3.0-or-later
// Prints what restic never should, or what no test can make it print. The environment says what:
//   FAKERESTIC_VERSION   what "version" prints, if not a good one
//   FAKERESTIC_OUTPUT    a file for the standard output of any other command
//   FAKERESTIC_ERRORS    a file for the standard error output
//   FAKERESTIC_STATUS    the exit status; "crash" for none, "hang" for never
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iostream>
#include <string>
#include <thread>

namespace {

std::string setting(const char *name)
{
    const char *value = std::getenv(name);
    return value ? value : "";
}

void print(std::ostream &stream, const std::string &path)
{
    const std::ifstream file(path, std::ios::binary);
    if (file && file.rdbuf()->in_avail() > 0) {
        stream << file.rdbuf();
    }
    stream.flush();
}

} // namespace

int main(int argc, char **argv)
{
    if (argc > 1 && std::strcmp(argv[1], "version") == 0) {
        const std::string version = setting("FAKERESTIC_VERSION");
        std::cout << (version.empty() ? "restic 99.0 compiled with care" : version) << std::endl;
        return 0;
    }
    print(std::cout, setting("FAKERESTIC_OUTPUT"));
    print(std::cerr, setting("FAKERESTIC_ERRORS"));
    const std::string status = setting("FAKERESTIC_STATUS");
    if (status == "crash") {
        std::abort();
    }
    while (status == "hang") {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return std::atoi(status.c_str());
}
