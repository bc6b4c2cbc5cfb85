// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>
#include <memory>
#include <new>

#if defined(__linux__)
#include <sys/mman.h>
#endif

namespace designs {

struct FreeMemory
{
    void operator()(char *bytes) const { std::free(bytes); }
};
using LargeMemory = std::unique_ptr<char[], FreeMemory>;

/// Memory that is not initialised. From 2 MiB on the system is asked for large pages: touching the first byte
/// of each small page of a large design costs as much time as reading it.
[[nodiscard]] inline LargeMemory allocateMemory(std::size_t size)
{
    constexpr std::size_t largePage = std::size_t(2) << 20;
    const bool large = size >= largePage;
    const std::size_t rounded = (size + largePage - 1) / largePage * largePage;
    char *bytes = static_cast<char *>(large ? std::aligned_alloc(largePage, rounded) : std::malloc(size));
    if (!bytes) {
        throw std::bad_alloc();
    }
#if defined(__linux__)
    if (large) {
        // Only advice: without large pages everything works the same.
        (void)madvise(bytes, rounded, MADV_HUGEPAGE);
    }
#endif
    return LargeMemory(bytes);
}

} // namespace designs
