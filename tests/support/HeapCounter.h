// SPDX-License-Identifier: LGPL-3.0-or-later
#ifndef TESSALINE_HEAPCOUNTER_H
#define TESSALINE_HEAPCOUNTER_H

#include <QString>

/// Counts what is on the heap, whoever put it there: a program that links this has its own
/// malloc(), which Qt calls as well. Takes the GNU C library and no sanitizer; CMake asks for both.
namespace HeapCounter {

/// By how much so many runs of `cycle` make the heap grow, after some that fill the caches, such as
/// "0 blocks, 0 pointers a cycle". The blocks are those of a tenth of the runs, the middle one of
/// the ten tenths; the bytes, counted in pointers, are the mean of all runs.
QString growth(int cycles, void (*cycle)());

} // namespace HeapCounter

#endif
