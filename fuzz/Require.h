// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_REQUIRE_H
#define TESSALINE_REQUIRE_H

#include <QByteArray>
#include <QString>

#include <cstdio>
#include <cstdlib>

/// Ends the program, which is how a fuzzer takes note of an input, unless `holds`.
inline void require(bool holds, const char *what, const QString &about)
{
    if (!holds) {
        std::fprintf(stderr, "Does not hold: %s, for \"%s\"\n", what, about.toUtf8().constData());
        std::abort();
    }
}

/// What libFuzzer calls with each input.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size);

/// What libFuzzer calls once, before the first input.
extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv);

/// The input as bytes of its own.
inline QByteArray bytesOf(const unsigned char *data, size_t size)
{
    return QByteArray(reinterpret_cast<const char *>(data), static_cast<int>(size));
}

#endif
