#include "solver/worker_pool.h"

namespace kelvane {

namespace {

// Claims per worker over one fan-out: enough to even out unequal items, few enough that the claim
// counter stays cold next to the work.
constexpr std::uint64_t kClaimsPerWorker = 16;

}  // namespace

WorkerPool::WorkerPool(std::size_t thread_count) {
    threads.reserve(thread_count);
    for (std::size_t i = 0; i < thread_count; ++i) threads.emplace_back([this] { run(); });
}

WorkerPool::~WorkerPool() {
    {
        std::lock_guard lock(mutex);
        stopping = true;
    }
    wake.notify_all();
    for (std::thread& thread : threads) thread.join();
}

void WorkerPool::submit(PoolTask task, HelperCount* helpers) {
    {
        std::lock_guard lock(mutex);
        queue.push(task);
        if (helpers != nullptr) ++helpers->pending;
    }
    wake.notify_one();
}

bool WorkerPool::take(std::unique_lock<std::mutex>& lock, PoolTask& task) {
    if (!queue.pop(task)) return false;
    // A woken thread that leaves work behind passes the wake-up on, since it may have been the only one.
    const bool more = !queue.empty();
    lock.unlock();
    if (more) wake.notify_one();
    return true;
}

void WorkerPool::run() {
    std::unique_lock lock(mutex);
    for (;;) {
        PoolTask task;
        if (take(lock, task)) {
            task.run(task.context);
            lock.lock();
            continue;
        }
        if (stopping) return;
        wake.wait(lock);
    }
}

void WorkerPool::helper_done(HelperCount& helpers) {
    std::lock_guard lock(mutex);
    if (--helpers.pending == 0) wake.notify_all();
}

void WorkerPool::wait_helping(HelperCount& helpers, const void* context) {
    std::unique_lock lock(mutex);
    // Helpers that never started have nothing left to claim.
    helpers.pending -= queue.withdraw(context);
    while (helpers.pending != 0) {
        PoolTask task;
        if (take(lock, task)) {
            task.run(task.context);
            lock.lock();
            continue;
        }
        wake.wait(lock);
    }
    // The wake-up that ended the wait may have been meant for a queued task.
    const bool more = !queue.empty();
    lock.unlock();
    if (more) wake.notify_one();
}

std::uint64_t claim_grain(std::uint64_t worker_count, std::uint64_t count) {
    const std::uint64_t claims = std::max<std::uint64_t>(worker_count, 1) * kClaimsPerWorker;
    return std::max<std::uint64_t>((count + claims - 1) / claims, 1);
}

}  // namespace kelvane
