#include "solver/worker_pool.h"

#include <algorithm>
#include <stdexcept>

namespace kelvane {
namespace {

thread_local bool pool_worker_flag = false;

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

void WorkerPool::submit(std::function<void()> task) {
    {
        std::lock_guard lock(mutex);
        queue.push_back(std::move(task));
    }
    wake.notify_one();
}

void WorkerPool::run() {
    for (;;) {
        std::unique_lock lock(mutex);
        wake.wait(lock, [this] { return stopping || !queue.empty(); });
        if (queue.empty()) return;
        std::function<void()> task = std::move(queue.front());
        queue.pop_front();
        lock.unlock();

        const bool saved = pool_worker_flag;
        pool_worker_flag = true;
        task();
        pool_worker_flag = saved;
    }
}

bool on_pool_worker() { return pool_worker_flag; }

void CountdownLatch::count_down() {
    if (remaining.fetch_sub(1, std::memory_order_acq_rel) == 1) remaining.notify_all();
}

void CountdownLatch::wait() {
    for (;;) {
        const std::int64_t value = remaining.load(std::memory_order_acquire);
        if (value == 0) return;
        if (value < 0) throw std::logic_error("parallel_for latch fell below zero");
        remaining.wait(value, std::memory_order_acquire);
    }
}

ChunkPlan plan_chunks(std::uint64_t worker_count, std::uint64_t count) {
    if (count == 0) return {};
    const std::uint64_t workers = std::min(std::max<std::uint64_t>(worker_count, 1), count);
    const std::uint64_t chunk = std::max<std::uint64_t>((count + workers - 1) / workers, 1);
    return {chunk, (count + chunk - 1) / chunk};
}

}  // namespace kelvane
