// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <cstddef>
#include <functional>
#include <vector>

namespace designs {

/// How many threads are worth while for reading files of these sizes, 1 for small ones: as many as the
/// machine runs at once, but no more than keep their buffers, one file each, below half of what all files
/// take.
[[nodiscard]] int threadsForFiles(const std::vector<qint64> &sizes);

/// Calls `work(item, thread)` once for each item below `count` and returns when all calls have. Threads count
/// from 0, which is the calling one, to `threads` - 1; calls of one thread follow each other. Where the
/// system gives fewer threads, fewer do it. What a call throws is thrown again here, when the others have
/// ended.
void forEachInThreads(std::size_t count, int threads, const std::function<void(std::size_t, int)> &work);

} // namespace designs
