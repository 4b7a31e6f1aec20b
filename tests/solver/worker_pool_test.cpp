#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <mutex>
#include <numeric>
#include <tuple>
#include <stdexcept>
#include <thread>
#include <utility>
#include <vector>

#include "solver/worker_pool.h"

namespace kelvane {
namespace {

using Range = std::pair<std::uint64_t, std::uint64_t>;

TEST(ChunkPlan, FollowsTheWorkerCountAndRoundsUp) {
    EXPECT_EQ(plan_chunks(8, 49).chunk, 7u);
    EXPECT_EQ(plan_chunks(8, 49).tasks, 7u);
    EXPECT_EQ(plan_chunks(8, 10).chunk, 2u);
    EXPECT_EQ(plan_chunks(8, 10).tasks, 5u);  // only five of the eight workers get work
    EXPECT_EQ(plan_chunks(8, 3).chunk, 1u);
    EXPECT_EQ(plan_chunks(8, 3).tasks, 3u);
    EXPECT_EQ(plan_chunks(2, 5).chunk, 3u);
    EXPECT_EQ(plan_chunks(2, 5).tasks, 2u);
    EXPECT_EQ(plan_chunks(0, 4).tasks, 1u);  // no workers counts as one
}

TEST(ChunkPlan, CountAtOrBelowWorkersGivesOneItemPerChunk) {
    for (std::uint64_t count = 1; count <= 8; ++count) {
        EXPECT_EQ(plan_chunks(8, count).chunk, 1u);
        EXPECT_EQ(plan_chunks(8, count).tasks, count);
    }
}

// Runs parallel_for and returns the ranges in the order they were handed out, with each item's visits.
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

TEST(ParallelFor, EveryItemRunsExactlyOnceInContiguousChunks) {
    WorkerPool pool(3);
    for (const std::uint64_t count : {2u, 3u, 4u, 7u, 10u, 49u, 1000u}) {
        const Recorded recorded = record(&pool, 4, count);
        for (std::uint64_t i = 0; i < count; ++i) EXPECT_EQ(recorded.visits[i], 1) << "count " << count;
        const ChunkPlan plan = plan_chunks(4, count);
        ASSERT_EQ(recorded.ranges.size(), plan.tasks);
        for (std::size_t t = 0; t < recorded.ranges.size(); ++t) {
            EXPECT_EQ(recorded.ranges[t].first, t * plan.chunk);
            EXPECT_EQ(recorded.ranges[t].second, std::min((t + 1) * plan.chunk, count));
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

TEST(ParallelFor, CallerRunsTheLastChunkItself) {
    WorkerPool pool(2);
    const std::thread::id caller = std::this_thread::get_id();
    std::atomic<bool> caller_took_last{false};
    parallel_for(&pool, 3, 9, [&](std::uint64_t begin, std::uint64_t) {
        if (begin == 6) caller_took_last = std::this_thread::get_id() == caller;
    });
    EXPECT_TRUE(caller_took_last);
}

TEST(ParallelFor, PoolWorkerFlagIsSetOnlyInsideTasks) {
    EXPECT_FALSE(on_pool_worker());
    WorkerPool pool(2);
    const std::thread::id caller = std::this_thread::get_id();
    std::atomic<int> flagged{0};
    std::atomic<int> wrong{0};
    parallel_for(&pool, 3, 3, [&](std::uint64_t, std::uint64_t) {
        const bool on_caller = std::this_thread::get_id() == caller;
        if (on_pool_worker() == on_caller) ++wrong;
        if (on_pool_worker()) ++flagged;
    });
    EXPECT_EQ(wrong, 0);
    EXPECT_EQ(flagged, 2);
    EXPECT_FALSE(on_pool_worker());
}

TEST(ParallelFor, NestedCallOnAPoolWorkerRunsInlineInOneRange) {
    WorkerPool pool(2);
    std::mutex mutex;
    std::vector<Range> inner_on_workers;
    parallel_for(&pool, 3, 3, [&](std::uint64_t, std::uint64_t) {
        if (!on_pool_worker()) return;
        const std::thread::id self = std::this_thread::get_id();
        parallel_for(&pool, 3, 50, [&](std::uint64_t begin, std::uint64_t end) {
            std::lock_guard lock(mutex);
            EXPECT_EQ(std::this_thread::get_id(), self);
            inner_on_workers.emplace_back(begin, end);
        });
    });
    EXPECT_EQ(inner_on_workers, (std::vector<Range>(2, Range{0, 50})));
}

TEST(ParallelFor, CallersOwnChunkMayFanOutAgain) {
    WorkerPool pool(2);
    const std::thread::id caller = std::this_thread::get_id();
    std::atomic<int> items{0};
    parallel_for(&pool, 3, 3, [&](std::uint64_t, std::uint64_t) {
        if (std::this_thread::get_id() != caller) return;
        parallel_for(&pool, 3, 30, [&](std::uint64_t begin, std::uint64_t end) {
            items += static_cast<int>(end - begin);
        });
    });
    EXPECT_EQ(items, 30);
}

TEST(WorkerPool, RunsTasksStillQueuedAtDestruction) {
    std::atomic<int> ran{0};
    {
        WorkerPool pool(1);
        for (int i = 0; i < 100; ++i) pool.submit([&ran] { ++ran; });
    }
    EXPECT_EQ(ran, 100);
}

TEST(WorkerPool, RunsQueuedTasksInOrderOnOneThread) {
    std::vector<int> order;
    {
        WorkerPool pool(1);
        for (int i = 0; i < 20; ++i) pool.submit([&order, i] { order.push_back(i); });
    }
    std::vector<int> expected(20);
    std::iota(expected.begin(), expected.end(), 0);
    EXPECT_EQ(order, expected);
}

TEST(CountdownLatch, WaitReturnsOnceEveryCountIsDown) {
    CountdownLatch latch(4);
    std::atomic<int> done{0};
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([&] {
            ++done;
            latch.count_down();
        });
    latch.wait();
    EXPECT_EQ(done, 4);
    for (std::thread& thread : threads) thread.join();
}

TEST(CountdownLatch, ZeroCountDoesNotBlock) {
    CountdownLatch latch(0);
    latch.wait();
    SUCCEED();
}

TEST(CountdownLatch, NegativeCountIsALogicError) {
    CountdownLatch latch(1);
    latch.count_down();
    latch.count_down();
    EXPECT_THROW(latch.wait(), std::logic_error);
}

}  // namespace
}  // namespace kelvane
