#pragma once
// The value of a chance node: its children summed in order, then the isomorphic cards replayed.

#include <cstdint>
#include <span>

#include "solver/game.h"
#include "solver/scratch_stack.h"

namespace kelvane {

// Whether the update pass spreads a chance node's children over the pool: only wide, shallow nodes
// pay for the fan-out. The read-only walks fan out at any chance node with more than one child.
bool update_pass_fans_out(std::uint64_t children, std::uint64_t hands, std::uint64_t depth);

// child_values holds one row of out.size() values for each of the node's children, in child order.
// Each card merged away by suit symmetry adds the row of the child that stands for it, with the
// seat's hands exchanged by the card's swap list. Uses the frame's sum and swap_row buffers.
void sum_chance_children(const Game& game, std::uint64_t node, std::uint8_t seat, ScratchFrame& frame,
                         std::span<const float> child_values, std::size_t children, std::span<float> out);

}  // namespace kelvane
