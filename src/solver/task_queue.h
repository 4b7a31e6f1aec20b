#pragma once
// The pool's queue of work: plain tasks in submission order.

#include <cstddef>
#include <vector>

namespace kelvane {

// A queued unit of work: a plain function and its argument, so that queuing never allocates.
struct PoolTask {
    void (*run)(void* context) = nullptr;
    void* context = nullptr;
};

// Tasks in submission order in a ring that only grows.
class TaskQueue {
public:
    bool empty() const { return count == 0; }
    void push(PoolTask task);
    // The oldest task that hasn't been withdrawn; false when there is none.
    bool pop(PoolTask& task);
    // Withdraws every queued task with this context and returns how many there were. The slots of
    // withdrawn tasks in the middle stay until they reach the front.
    std::size_t withdraw(const void* context);

private:
    std::vector<PoolTask> ring;
    std::size_t head = 0;
    std::size_t count = 0;
};

}  // namespace kelvane
