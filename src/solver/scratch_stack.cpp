#include "solver/scratch_stack.h"

namespace kelvane {

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

}  // namespace kelvane
