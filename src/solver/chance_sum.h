#pragma once
// The value of a chance node: its children summed in order, then the isomorphic cards replayed.

#include <cstdint>
#include <span>

#include "solver/game.h"
#include "solver/scratch_stack.h"

namespace kelvane {

// child_values holds one row of out.size() values for each of the node's children, in child order.
// Each card merged away by suit symmetry adds the row of the child that stands for it, with the
// seat's hands exchanged by the card's swap list. Uses the frame's sum and swap_row buffers.
void sum_chance_children(const Game& game, std::uint64_t node, std::uint8_t seat, ScratchFrame& frame,
                         std::span<const float> child_values, std::size_t children, std::span<float> out);

}  // namespace kelvane
