#include "solver/task_queue.h"

#include <algorithm>

namespace kelvane {

namespace {

constexpr std::size_t kFirstCapacity = 16;

}  // namespace

void TaskQueue::push(PoolTask task) {
    if (count == ring.size()) {
        // Grow in place order: the oldest task goes first in the new ring.
        std::vector<PoolTask> grown(std::max(2 * ring.size(), kFirstCapacity));
        for (std::size_t i = 0; i < count; ++i) grown[i] = ring[(head + i) % ring.size()];
        ring.swap(grown);
        head = 0;
    }
    ring[(head + count) % ring.size()] = task;
    ++count;
}

bool TaskQueue::pop(PoolTask& task) {
    while (count > 0) {
        task = ring[head];
        head = (head + 1) % ring.size();
        --count;
        if (task.run != nullptr) return true;
    }
    return false;
}

std::size_t TaskQueue::withdraw(const void* context) {
    std::size_t withdrawn = 0;
    for (std::size_t i = 0; i < count; ++i) {
        PoolTask& task = ring[(head + i) % ring.size()];
        if (task.run == nullptr || task.context != context) continue;
        task.run = nullptr;  // skipped when it comes to the front
        ++withdrawn;
    }
    // A fan-out's helpers are mostly the newest tasks: dropping withdrawn ones from the back keeps
    // a queue that nobody pops for a while from filling with them.
    while (count > 0 && ring[(head + count - 1) % ring.size()].run == nullptr) --count;
    return withdrawn;
}

}  // namespace kelvane
