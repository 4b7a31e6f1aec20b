#pragma once
// Threads that nobody joins, counted process-wide, so that a shutdown or a test can wait until the last
// one has let go of everything it held instead of cutting it off.

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <mutex>
#include <thread>
#include <utility>

namespace kelvane_app {
namespace detail {

struct DetachedThreadCount {
    std::mutex mutex;
    std::condition_variable none_left;
    std::size_t live = 0;
};

// Never destroyed: a thread still running while the process exits may yet count itself out.
inline DetachedThreadCount& detached_thread_count() {
    static auto* count = new DetachedThreadCount;
    return *count;
}

inline void count_in() {
    DetachedThreadCount& count = detached_thread_count();
    const std::lock_guard lock(count.mutex);
    ++count.live;
}

inline void count_out() {
    DetachedThreadCount& count = detached_thread_count();
    const std::lock_guard lock(count.mutex);
    if (--count.live == 0) count.none_left.notify_all();
}

// Taking the work by value destroys it, and all it holds, before the thread counts itself out.
template <typename Work>
void run_to_end(Work work) {
    work();
}

}  // namespace detail

// Runs `work` on a new detached thread.
template <typename Work>
void start_detached_thread(Work work) {
    detail::count_in();
    try {
        std::thread([work = std::move(work)]() mutable {
            detail::run_to_end(std::move(work));
            detail::count_out();
        }).detach();
    } catch (...) {
        detail::count_out();
        throw;
    }
}

// True once no detached thread is left; false if some still run when the time is up.
inline bool wait_for_detached_threads(std::chrono::milliseconds timeout) {
    detail::DetachedThreadCount& count = detail::detached_thread_count();
    std::unique_lock lock(count.mutex);
    return count.none_left.wait_for(lock, timeout, [&] { return count.live == 0; });
}

}  // namespace kelvane_app
