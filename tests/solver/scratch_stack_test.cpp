#include <gtest/gtest.h>

#include <memory>
#include <thread>

#include "solver/scratch_stack.h"

namespace kelvane {
namespace {

bool lies_inside(const void* part, const void* whole, std::size_t size) {
    const auto* p = static_cast<const char*>(part);
    const auto* w = static_cast<const char*>(whole);
    return p >= w && p < w + size;
}

TEST(ScratchStack, ShallowFramesLiveInPlace) {
    const auto stack = std::make_unique<ScratchStack>();
    for (std::uint64_t depth = 0; depth < ScratchStack::kInPlaceFrames; ++depth) {
        EXPECT_TRUE(lies_inside(&stack->frame(depth), stack.get(), sizeof(ScratchStack))) << depth;
        EXPECT_EQ(&stack->frame(depth), &stack->frame(depth));
    }
    EXPECT_EQ(stack->overflow_frames(), 0u);
}

TEST(ScratchStack, DeepFramesGrowTheOverflowAndStayPut) {
    ScratchStack stack;
    ScratchFrame& first_deep = stack.frame(32);
    EXPECT_FALSE(lies_inside(&first_deep, &stack, sizeof(ScratchStack)));
    EXPECT_EQ(stack.overflow_frames(), 1u);
    first_deep.sum.assign(3, 2.0f);

    ScratchFrame& deeper = stack.frame(40);  // depth 40 needs nine overflow frames
    EXPECT_EQ(stack.overflow_frames(), 9u);
    EXPECT_EQ(&stack.frame(32), &first_deep);
    EXPECT_EQ(first_deep.sum, (std::vector<float>{2.0f, 2.0f, 2.0f}));
    EXPECT_NE(&deeper, &first_deep);

    stack.frame(35);
    EXPECT_EQ(stack.overflow_frames(), 9u);  // never shrinks
}

TEST(ScratchStack, BuffersOnlyGrow) {
    std::vector<float> buffer;
    auto view = grow_buffer(buffer, 8);
    EXPECT_EQ(view.size(), 8u);
    EXPECT_EQ(buffer.size(), 8u);
    view[7] = 3.0f;
    const float* data = buffer.data();

    view = grow_buffer(buffer, 4);
    EXPECT_EQ(view.size(), 4u);
    EXPECT_EQ(buffer.size(), 8u);
    EXPECT_EQ(buffer.data(), data);
    EXPECT_EQ(buffer[7], 3.0f);

    view = grow_buffer(buffer, 20);
    EXPECT_EQ(view.size(), 20u);
    EXPECT_EQ(buffer.size(), 20u);
    EXPECT_EQ(buffer[7], 3.0f);  // kept from before
}

TEST(ScratchStack, ChildValuesRecordTheirShape) {
    ScratchFrame frame;
    auto values = frame.grow_child_values(3, 5);
    EXPECT_EQ(values.size(), 15u);
    EXPECT_EQ(frame.rows, 3u);
    EXPECT_EQ(frame.cols, 5u);
    values = frame.grow_child_values(2, 4);
    EXPECT_EQ(values.size(), 8u);
    EXPECT_EQ(frame.child_values.size(), 15u);
    EXPECT_EQ(frame.rows, 2u);
}

TEST(ScratchLease, TheNextLeaseOnAThreadGetsTheSameStackWithItsBuffersGrown) {
    const float* grown = nullptr;
    ScratchStack* first = nullptr;
    {
        ScratchLease lease;
        first = &lease.stack();
        grown = grow_buffer(lease.stack().frame(3).sum, 1000).data();
    }
    ScratchLease again;
    EXPECT_EQ(&again.stack(), first);
    EXPECT_EQ(again.stack().frame(3).sum.size(), 1000u);
    EXPECT_EQ(grow_buffer(again.stack().frame(3).sum, 500).data(), grown);  // no new allocation
}

TEST(ScratchLease, NestedLeasesOnOneThreadGetStacksOfTheirOwn) {
    ScratchLease outer;
    ScratchStack* inner_stack = nullptr;
    {
        ScratchLease inner;
        inner_stack = &inner.stack();
        EXPECT_NE(inner_stack, &outer.stack());
    }
    ScratchLease inner_again;
    EXPECT_EQ(&inner_again.stack(), inner_stack);
}

TEST(ScratchLease, ThreadsLeaseDifferentStacks) {
    ScratchLease here;
    ScratchStack* there = nullptr;
    std::thread([&] {
        ScratchLease lease;
        there = &lease.stack();
    }).join();
    EXPECT_NE(there, &here.stack());
}

}  // namespace
}  // namespace kelvane
