// SPDX-License-Identifier: LGPL-3.0-or-later
#include "HeapCounter.h"

#include <QPixmapCache>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstddef>

#include <malloc.h>

extern "C" {
void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *block, std::size_t size);
void *__libc_memalign(std::size_t alignment, std::size_t size);
void __libc_free(void *block);
}

namespace {

const int warmUpCycles = 50;
const int rounds = 10;

// Zero from the start: malloc() is called before any constructor runs.
std::atomic<long> liveBlocks;
std::atomic<long> liveBytes;

void *counted(void *block)
{
    if (block) {
        liveBlocks += 1;
        liveBytes += static_cast<long>(malloc_usable_size(block));
    }
    return block;
}

void uncount(void *block)
{
    if (block) {
        liveBlocks -= 1;
        liveBytes -= static_cast<long>(malloc_usable_size(block));
    }
}

void run(int cycles, void (*cycle)())
{
    for (int i = 0; i < cycles; ++i) {
        cycle();
    }
    QPixmapCache::clear(); // which else drops some, now and then, by a timer
}

} // namespace

extern "C" {

// Seen by all libraries of the process, as if they were the system's.
#pragma GCC visibility push(default)

void *malloc(std::size_t size) noexcept
{
    return counted(__libc_malloc(size));
}

void *calloc(std::size_t count, std::size_t size) noexcept
{
    return counted(__libc_calloc(count, size));
}

void *realloc(void *block, std::size_t size) noexcept
{
    uncount(block);
    void *moved = __libc_realloc(block, size);
    // If there is no memory the old block stays.
    return counted(moved || size == 0 ? moved : block) ? moved : nullptr;
}

void *memalign(std::size_t alignment, std::size_t size) noexcept
{
    return counted(__libc_memalign(alignment, size));
}

void *aligned_alloc(std::size_t alignment, std::size_t size) noexcept
{
    return counted(__libc_memalign(alignment, size));
}

int posix_memalign(void **block, std::size_t alignment, std::size_t size) noexcept
{
    *block = counted(__libc_memalign(alignment, size));
    return *block ? 0 : ENOMEM;
}

void free(void *block) noexcept
{
    uncount(block);
    __libc_free(block);
}

#pragma GCC visibility pop

} // extern "C"

QString HeapCounter::growth(int cycles, void (*cycle)())
{
    run(warmUpCycles, cycle);
    const long bytesBefore = liveBytes;
    long blocks[rounds]; // no container, whose memory would count
    for (long &growth : blocks) {
        const long blocksBefore = liveBlocks;
        run(cycles / rounds, cycle);
        growth = liveBlocks - blocksBefore;
    }
    const long bytes = liveBytes - bytesBefore;
    // What the toolkit does now and then, such as dropping a timer, is in a few rounds only.
    std::nth_element(blocks, blocks + rounds / 2, blocks + rounds);
    // In whole pointers, which a list that forgets nothing grows by: a block may happen to be a
    // little larger than it was asked for, and a cache hold a little more.
    const long pointers = bytes / cycles / static_cast<long>(sizeof(void *));
    return QString::fromLatin1("%1 blocks, %2 pointers a cycle")
        .arg(blocks[rounds / 2])
        .arg(pointers);
}
