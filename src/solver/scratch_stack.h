#pragma once
// Per-depth working memory of the recursive walks; buffers only grow, so a walk stops allocating.

#include <array>
#include <cstdint>
#include <deque>
#include <span>
#include <vector>

namespace kelvane {

// Grows `buffer` to at least `length` floats (never shrinks it) and returns its first `length`
// entries. Entries kept from earlier use are not cleared.
std::span<float> grow_buffer(std::vector<float>& buffer, std::size_t length);

struct ScratchFrame {
    std::vector<float> reach_row;
    std::vector<float> child_values;
    std::uint64_t rows = 0;
    std::uint64_t cols = 0;
    std::vector<float> sum;
    std::vector<float> swap_row;
    std::vector<float> action_values;
    std::vector<float> strategy;
    std::vector<float> strategy_denom;
    std::vector<float> other_strategy;
    std::vector<float> other_denom;
    std::vector<float> child_reach;
    std::vector<float> decoded_regrets;  // a node's matrices decoded from 16 bits
    std::vector<float> decoded_sums;

    // Row-major rows × cols view of `child_values`, recording the shape.
    std::span<float> grow_child_values(std::uint64_t row_count, std::uint64_t col_count);
};

class ScratchStack {
public:
    static constexpr std::uint64_t kInPlaceFrames = 32;

    // Frames deeper than the in-place ones live in `overflow`, which only ever grows; a deque keeps
    // references to shallower frames valid while it does.
    ScratchFrame& frame(std::uint64_t depth);
    std::size_t overflow_frames() const { return overflow.size(); }

private:
    std::array<ScratchFrame, kInPlaceFrames> frames;
    std::deque<ScratchFrame> overflow;
};

// A ScratchStack of the calling thread's own for one fan-out chunk or one measuring walk, kept by
// the thread from use to use so that its buffers stay grown. A lease taken while another is held
// on the same thread (a waiting thread helping with queued work) gets a stack of its own.
class ScratchLease {
public:
    ScratchLease();
    ~ScratchLease();
    ScratchLease(const ScratchLease&) = delete;
    ScratchLease& operator=(const ScratchLease&) = delete;

    ScratchStack& stack() { return leased; }

private:
    ScratchStack& leased;
};

}  // namespace kelvane
