// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "designs/threads.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <mutex>
#include <numeric>
#include <system_error>
#include <thread>

namespace designs {

namespace {

constexpr int mostThreads = 8;
/// Starting a thread costs about as much as reading a twentieth of this.
constexpr qint64 bytesPerThread = 1 << 20;

} // namespace

int threadsForFiles(const std::vector<qint64> &sizes)
{
    if (sizes.size() < 2) {
        return 1;
    }
    const qint64 total = std::accumulate(sizes.begin(), sizes.end(), qint64(0));
    const qint64 largest = std::max<qint64>(*std::max_element(sizes.begin(), sizes.end()), 1);
    const qint64 processors = std::clamp<qint64>(std::thread::hardware_concurrency(), 1, mostThreads);
    return int(std::max<qint64>(std::min({processors, total / bytesPerThread, total / (2 * largest)}), 1));
}

void forEachInThreads(std::size_t count, int threads, const std::function<void(std::size_t, int)> &work)
{
    std::atomic<std::size_t> next = 0;
    std::mutex mutex;
    std::exception_ptr thrown;
    const auto run = [&](int thread) {
        try {
            for (std::size_t item = next++; item < count; item = next++) {
                work(item, thread);
            }
        } catch (...) {
            const std::lock_guard lock(mutex);
            thrown = std::current_exception();
            next = count;
        }
    };
    {
        std::vector<std::jthread> others;
        try {
            for (int thread = 1; thread < threads && std::size_t(thread) < count; ++thread) {
                others.emplace_back(run, thread);
            }
        } catch (const std::system_error &) {
            // The system has no more threads to give.
        }
        run(0);
    }
    if (thrown) {
        std::rethrow_exception(thrown);
    }
}

} // namespace designs
