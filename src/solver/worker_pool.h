#pragma once
// The solver's thread pool and parallel_for, which splits a count of items into contiguous chunks.

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace kelvane {

// Threads that run queued callables in FIFO order; tasks still queued at destruction run first.
class WorkerPool {
public:
    explicit WorkerPool(std::size_t thread_count);
    ~WorkerPool();
    WorkerPool(const WorkerPool&) = delete;
    WorkerPool& operator=(const WorkerPool&) = delete;

    void submit(std::function<void()> task);
    std::size_t thread_count() const { return threads.size(); }

private:
    void run();

    std::vector<std::thread> threads;
    std::mutex mutex;
    std::condition_variable wake;
    std::deque<std::function<void()>> queue;
    bool stopping = false;
};

// True while the calling thread is a pool thread running a task; such a thread never fans out.
bool on_pool_worker();

// Counts finished chunks down to 0; the waiter blocks on the counter's value without spinning.
class CountdownLatch {
public:
    explicit CountdownLatch(std::int64_t count) : remaining(count) {}
    void count_down();
    void wait();

private:
    std::atomic<std::int64_t> remaining;
};

struct ChunkPlan {
    std::uint64_t chunk = 0;
    std::uint64_t tasks = 0;
};

// Equal chunks by count: w = min(workers, count), chunk = ceil(count / w), tasks = ceil(count / chunk).
ChunkPlan plan_chunks(std::uint64_t worker_count, std::uint64_t count);

// Runs body(begin, end) over [0, count): the queued chunks go to the pool, the caller takes the last
// one itself and then waits for the others. Without a pool, or on a pool thread, it is one plain call.
template <class Body>
void parallel_for(WorkerPool* pool, std::uint64_t worker_count, std::uint64_t count, const Body& body) {
    if (pool == nullptr || worker_count < 2 || count < 2 || on_pool_worker()) {
        body(std::uint64_t{0}, count);
        return;
    }
    const ChunkPlan plan = plan_chunks(worker_count, count);
    const std::uint64_t rest = plan.tasks - 1;
    if (rest == 0) {
        body(std::uint64_t{0}, count);
        return;
    }
    CountdownLatch latch(static_cast<std::int64_t>(rest));
    for (std::uint64_t i = 0; i < rest; ++i) {
        const std::uint64_t begin = i * plan.chunk;
        const std::uint64_t end = std::min(begin + plan.chunk, count);
        pool->submit([&body, &latch, begin, end] {
            body(begin, end);
            latch.count_down();
        });
    }
    body(rest * plan.chunk, count);
    latch.wait();
}

}  // namespace kelvane
