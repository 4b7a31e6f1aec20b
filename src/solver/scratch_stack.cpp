#include "solver/scratch_stack.h"

namespace kelvane {

namespace {

// The calling thread's stacks; the first `in_use` of them are leased, innermost last.
struct ThreadScratch {
    std::deque<ScratchStack> stacks;
    std::size_t in_use = 0;
};

thread_local ThreadScratch thread_scratch;

ScratchStack& lease_stack() {
    ThreadScratch& own = thread_scratch;
    if (own.in_use == own.stacks.size()) own.stacks.emplace_back();
    return own.stacks[own.in_use++];
}

}  // namespace

std::span<float> grow_buffer(std::vector<float>& buffer, std::size_t length) {
    if (buffer.size() < length) buffer.resize(length);
    return {buffer.data(), length};
}

std::span<float> ScratchFrame::grow_child_values(std::uint64_t row_count, std::uint64_t col_count) {
    rows = row_count;
    cols = col_count;
    return grow_buffer(child_values, row_count * col_count);
}

ScratchFrame& ScratchStack::frame(std::uint64_t depth) {
    if (depth < kInPlaceFrames) return frames[depth];
    const std::uint64_t needed = depth - kInPlaceFrames + 1;
    while (overflow.size() < needed) overflow.emplace_back();
    return overflow[depth - kInPlaceFrames];
}

ScratchLease::ScratchLease() : leased(lease_stack()) {}

ScratchLease::~ScratchLease() { --thread_scratch.in_use; }

}  // namespace kelvane
