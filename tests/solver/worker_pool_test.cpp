#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <numeric>
#include <set>
#include <tuple>
#include <stdexcept>
#include <thread>
#include <utility>
#include <vector>

#include "solver/task_queue.h"
#include "solver/worker_pool.h"

namespace kelvane {
namespace {

using Range = std::pair<std::uint64_t, std::uint64_t>;

TEST(ClaimGrain, SixteenClaimsPerWorkerRoundedUp) {
    EXPECT_EQ(claim_grain(2, 49), 2u);
    EXPECT_EQ(claim_grain(2, 32), 1u);
    EXPECT_EQ(claim_grain(2, 33), 2u);
    EXPECT_EQ(claim_grain(8, 1000), 8u);
    EXPECT_EQ(claim_grain(2, 642000), 20063u);
    EXPECT_EQ(claim_grain(0, 4), 1u);  // no workers counts as one
}

TEST(ClaimGrain, FewItemsAreClaimedOneByOne) {
    for (std::uint64_t count = 1; count <= 16; ++count) EXPECT_EQ(claim_grain(8, count), 1u);
}

// Runs parallel_for and returns the ranges sorted, with each item's visits.
struct Recorded {
    std::vector<Range> ranges;
    std::vector<int> visits;
};

Recorded record(WorkerPool* pool, std::uint64_t workers, std::uint64_t count) {
    Recorded recorded;
    recorded.visits.assign(count, 0);
    std::mutex mutex;
    parallel_for(pool, workers, count, [&](std::uint64_t begin, std::uint64_t end) {
        std::lock_guard lock(mutex);
        recorded.ranges.emplace_back(begin, end);
        for (std::uint64_t i = begin; i < end; ++i) ++recorded.visits[i];
    });
    std::sort(recorded.ranges.begin(), recorded.ranges.end());
    return recorded;
}

TEST(ParallelFor, EveryItemRunsExactlyOnceInGrainSizedChunks) {
    WorkerPool pool(3);
    for (const std::uint64_t count : {2u, 3u, 4u, 7u, 10u, 49u, 1000u}) {
        const Recorded recorded = record(&pool, 4, count);
        for (std::uint64_t i = 0; i < count; ++i) EXPECT_EQ(recorded.visits[i], 1) << "count " << count;
        const std::uint64_t grain = claim_grain(4, count);
        ASSERT_EQ(recorded.ranges.size(), (count + grain - 1) / grain);
        for (std::size_t t = 0; t < recorded.ranges.size(); ++t) {
            EXPECT_EQ(recorded.ranges[t].first, t * grain);
            EXPECT_EQ(recorded.ranges[t].second, std::min((t + 1) * grain, count));
        }
    }
}

TEST(ParallelFor, WithoutPoolOrWithOneWorkerOrFewItemsIsOnePlainCall) {
    WorkerPool pool(2);
    for (const auto& [p, workers, count] : {std::tuple{(WorkerPool*)nullptr, 8u, 100u}, std::tuple{&pool, 1u, 100u},
                                            std::tuple{&pool, 8u, 1u}, std::tuple{&pool, 8u, 0u}}) {
        const std::thread::id caller = std::this_thread::get_id();
        std::vector<Range> ranges;
        parallel_for(p, workers, count, [&](std::uint64_t begin, std::uint64_t end) {
            EXPECT_EQ(std::this_thread::get_id(), caller);
            ranges.emplace_back(begin, end);
        });
        EXPECT_EQ(ranges, (std::vector<Range>{{0, count}}));
    }
}

// Blocks until `count` threads have arrived, so that work provably runs on that many threads at once.
class Rendezvous {
public:
    explicit Rendezvous(int count) : left(count) {}
    void arrive_and_wait() {
        std::unique_lock lock(mutex);
        if (--left == 0) all_here.notify_all();
        all_here.wait(lock, [this] { return left <= 0; });
    }

private:
    std::mutex mutex;
    std::condition_variable all_here;
    int left;
};

TEST(ParallelFor, ItemsSpreadOverEveryThread) {
    WorkerPool pool(2);
    Rendezvous rendezvous(3);
    std::mutex mutex;
    std::set<std::thread::id> threads;
    parallel_for(&pool, 3, 3, [&](std::uint64_t, std::uint64_t) {
        {
            std::lock_guard lock(mutex);
            threads.insert(std::this_thread::get_id());
        }
        rendezvous.arrive_and_wait();  // would never return if two items shared a thread
    });
    EXPECT_EQ(threads.size(), 3u);
}

TEST(ParallelFor, AFreeThreadTakesTheItemsLeftByABusyOne) {
    WorkerPool pool(1);
    const std::thread::id caller = std::this_thread::get_id();
    std::atomic<bool> pool_busy{false};
    std::atomic<bool> release{false};
    std::atomic<int> by_caller{0};
    ASSERT_EQ(claim_grain(2, 32), 1u);
    parallel_for(&pool, 2, 32, [&](std::uint64_t begin, std::uint64_t end) {
        if (std::this_thread::get_id() != caller) {
            pool_busy = true;
            while (!release) std::this_thread::yield();  // one item holds the pool thread
            return;
        }
        if (begin == 0) {  // the caller's first item waits until the pool thread holds another
            while (!pool_busy) std::this_thread::yield();
        }
        by_caller += static_cast<int>(end - begin);
        if (by_caller == 31) release = true;
    });
    EXPECT_EQ(by_caller, 31);  // every item but the one that the pool thread held
}

TEST(ParallelFor, NestedCallOnAPoolWorkerFansOutAndTheWaiterHelps) {
    WorkerPool pool(1);
    const std::thread::id caller = std::this_thread::get_id();
    std::atomic<bool> pool_in_outer{false};
    std::mutex mutex;
    std::set<std::thread::id> inner_threads;
    Rendezvous rendezvous(2);
    parallel_for(&pool, 2, 2, [&](std::uint64_t, std::uint64_t) {
        if (std::this_thread::get_id() == caller) {
            // Leave the other item to the pool thread, then go on to wait for it.
            while (!pool_in_outer) std::this_thread::yield();
            return;
        }
        pool_in_outer = true;
        parallel_for(&pool, 2, 2, [&](std::uint64_t, std::uint64_t) {
            {
                std::lock_guard lock(mutex);
                inner_threads.insert(std::this_thread::get_id());
            }
            rendezvous.arrive_and_wait();  // returns only once the waiting caller runs the other item
        });
    });
    EXPECT_EQ(inner_threads.size(), 2u);
    EXPECT_EQ(inner_threads.count(caller), 1u);
}

TEST(ParallelFor, DeeplyNestedFanOutsFromEveryThreadFinish) {
    WorkerPool pool(3);
    std::atomic<int> leaves{0};
    // Four levels of fan-out under every item: any thread, pool threads included, fans out again.
    const std::function<void(int)> fan = [&](int level) {
        if (level == 0) {
            ++leaves;
            return;
        }
        parallel_for(&pool, 4, 5, [&](std::uint64_t begin, std::uint64_t end) {
            for (std::uint64_t i = begin; i < end; ++i) fan(level - 1);
        });
    };
    for (int round = 0; round < 5; ++round) fan(4);
    EXPECT_EQ(leaves, 5 * 5 * 5 * 5 * 5);
}

TEST(ParallelFor, ConcurrentCallersShareThePool) {
    WorkerPool pool(2);
    std::atomic<int> items{0};
    std::vector<std::thread> callers;
    for (int c = 0; c < 3; ++c)
        callers.emplace_back([&] {
            for (int round = 0; round < 20; ++round)
                parallel_for(&pool, 3, 30, [&](std::uint64_t begin, std::uint64_t end) {
                    items += static_cast<int>(end - begin);
                });
        });
    for (std::thread& thread : callers) thread.join();
    EXPECT_EQ(items, 3 * 20 * 30);
}

TEST(ParallelFor, AnExceptionOnTheCallerWaitsForTheHelpers) {
    WorkerPool pool(1);
    const std::thread::id caller = std::this_thread::get_id();
    std::atomic<int> finished_elsewhere{0};
    EXPECT_THROW(parallel_for(&pool, 2, 2, [&](std::uint64_t, std::uint64_t) {
                     if (std::this_thread::get_id() == caller) throw std::runtime_error("item failed");
                     std::this_thread::sleep_for(std::chrono::milliseconds(20));
                     ++finished_elsewhere;
                 }),
                 std::runtime_error);
    // The pool thread either never started its item or had finished it before the throw left.
    const int seen = finished_elsewhere;
    std::this_thread::sleep_for(std::chrono::milliseconds(40));
    EXPECT_EQ(finished_elsewhere, seen);
}

TEST(WorkerPool, RunsTasksStillQueuedAtDestruction) {
    std::atomic<int> ran{0};
    {
        WorkerPool pool(1);
        for (int i = 0; i < 100; ++i) pool.submit({[](void* count) { ++*static_cast<std::atomic<int>*>(count); }, &ran});
    }
    EXPECT_EQ(ran, 100);
}

TEST(WorkerPool, RunsQueuedTasksInOrderOnOneThread) {
    struct Entry {
        std::vector<int>* order;
        int value;
    };
    std::vector<int> order;
    std::vector<Entry> entries;
    for (int i = 0; i < 40; ++i) entries.push_back({&order, i});  // more than the ring's first size
    {
        WorkerPool pool(1);
        for (Entry& entry : entries)
            pool.submit({[](void* e) { static_cast<Entry*>(e)->order->push_back(static_cast<Entry*>(e)->value); },
                         &entry});
    }
    std::vector<int> expected(40);
    std::iota(expected.begin(), expected.end(), 0);
    EXPECT_EQ(order, expected);
}

TEST(TaskQueue, WithdrawnTasksAreSkippedAndTheRestKeepTheirOrder) {
    TaskQueue queue;
    int a = 0, b = 0;
    const auto noop = [](void*) {};
    for (int i = 0; i < 50; ++i) queue.push({noop, i % 3 == 0 ? &a : &b});
    EXPECT_EQ(queue.withdraw(&a), 17u);
    EXPECT_EQ(queue.withdraw(&a), 0u);
    PoolTask task;
    int popped = 0;
    while (queue.pop(task)) {
        EXPECT_EQ(task.context, &b);
        ++popped;
    }
    EXPECT_EQ(popped, 33);
    EXPECT_TRUE(queue.empty());
}

TEST(TaskQueue, WithdrawnTasksAtTheBackLeaveNoSlots) {
    TaskQueue queue;
    int a = 0, b = 0;
    const auto noop = [](void*) {};
    queue.push({noop, &a});
    queue.push({noop, &b});
    EXPECT_EQ(queue.withdraw(&a), 1u);  // in front of b: its slot stays for now
    EXPECT_FALSE(queue.empty());
    EXPECT_EQ(queue.withdraw(&b), 1u);  // now both are at the back
    EXPECT_TRUE(queue.empty());
}

TEST(TaskQueue, WrapsAroundAndGrowsInOrder) {
    TaskQueue queue;
    std::vector<int> values(100);
    std::iota(values.begin(), values.end(), 0);
    const auto noop = [](void*) {};
    PoolTask task;
    int next_out = 0;
    for (int i = 0; i < 100; ++i) {
        queue.push({noop, &values[i]});
        if (i % 3 == 2) {  // take one for every three put, so the ring wraps before it grows
            ASSERT_TRUE(queue.pop(task));
            EXPECT_EQ(*static_cast<int*>(task.context), next_out++);
        }
    }
    while (queue.pop(task)) EXPECT_EQ(*static_cast<int*>(task.context), next_out++);
    EXPECT_EQ(next_out, 100);
}

}  // namespace
}  // namespace kelvane
