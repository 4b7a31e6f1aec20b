#pragma once
// The solver's thread pool and parallel_for. Items are claimed in small chunks from a shared counter,
// so threads that finish early take more; a thread that waits for its fan-out runs queued work meanwhile.

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <thread>
#include <vector>

#include "solver/task_queue.h"

namespace kelvane {

class WorkerPool {
public:
    explicit WorkerPool(std::size_t thread_count);
    ~WorkerPool();
    WorkerPool(const WorkerPool&) = delete;
    WorkerPool& operator=(const WorkerPool&) = delete;

    // Counts the queued or running helpers of one fan-out; lives in the fan-out's frame.
    class HelperCount {
    private:
        friend class WorkerPool;
        std::size_t pending = 0;  // guarded by the pool's mutex
    };

    // Tasks still queued at destruction run first. A helper task is counted in `helpers` as it is queued.
    void submit(PoolTask task, HelperCount* helpers = nullptr);
    std::size_t thread_count() const { return threads.size(); }
    // One helper has ended; the last one wakes the waiter.
    void helper_done(HelperCount& helpers);
    // Withdraws the helpers of `context` still queued, then runs queued tasks until every helper
    // that started has ended, sleeping only while the queue is empty.
    void wait_helping(HelperCount& helpers, const void* context);

private:
    void run();
    bool take(std::unique_lock<std::mutex>& lock, PoolTask& task);

    std::vector<std::thread> threads;
    std::mutex mutex;
    std::condition_variable wake;
    TaskQueue queue;
    bool stopping = false;
};

// Items per claim: a few claims per worker keep threads even without making the counter hot.
std::uint64_t claim_grain(std::uint64_t worker_count, std::uint64_t count);

// One fan-out: the range, the claim counter and its helpers. Lives in the caller's frame.
template <class Body>
class ParallelJob {
public:
    ParallelJob(WorkerPool& pool, const Body& body, std::uint64_t count, std::uint64_t grain)
        : pool(pool), body(body), count(count), grain(grain) {}

    // Queues `helper_count` helpers, runs chunks on the calling thread until none is left, then waits
    // for the helpers, running queued work meanwhile.
    void run(std::size_t helper_count) {
        try {
            for (std::size_t i = 0; i < helper_count; ++i) pool.submit({&ParallelJob::run_helper, this}, &helpers);
            claim_all();
        } catch (...) {
            // The helpers refer to this frame: let them end before the exception leaves it.
            next.store(count, std::memory_order_relaxed);
            pool.wait_helping(helpers, this);
            throw;
        }
        pool.wait_helping(helpers, this);
    }

private:
    void claim_all() {
        for (;;) {
            const std::uint64_t begin = next.fetch_add(grain, std::memory_order_relaxed);
            if (begin >= count) return;
            body(begin, std::min(begin + grain, count));
        }
    }

    // A task's exception ends the process, as nobody could catch it on a pool thread.
    static void run_helper(void* context) noexcept {
        ParallelJob& job = *static_cast<ParallelJob*>(context);
        job.claim_all();
        job.pool.helper_done(job.helpers);
    }

    WorkerPool& pool;
    const Body& body;
    const std::uint64_t count;
    const std::uint64_t grain;
    std::atomic<std::uint64_t> next{0};
    WorkerPool::HelperCount helpers;
};

// Runs body(begin, end) over contiguous chunks that cover [0, count) once. Chunks go to whichever
// thread is free, the caller included; the caller returns once all have run. Any thread may call it,
// a pool thread inside a chunk too. Without a pool, with one worker or fewer than two items it is one
// plain call.
template <class Body>
void parallel_for(WorkerPool* pool, std::uint64_t worker_count, std::uint64_t count, const Body& body) {
    if (pool == nullptr || worker_count < 2 || count < 2) {
        body(std::uint64_t{0}, count);
        return;
    }
    const std::uint64_t grain = claim_grain(worker_count, count);
    const std::uint64_t chunks = (count + grain - 1) / grain;
    const std::uint64_t helpers = std::min<std::uint64_t>({chunks - 1, worker_count - 1, pool->thread_count()});
    if (helpers == 0) {
        body(std::uint64_t{0}, count);
        return;
    }
    ParallelJob<Body>(*pool, body, count, grain).run(static_cast<std::size_t>(helpers));
}

}  // namespace kelvane
