#pragma once
// The plain picture of a finished solve: every node's shape, pot and average action frequencies.
// Its texts are derived from it by result_text.h.

#include <cstdint>
#include <vector>

#include "session/solve_result.h"
#include "solver/discounted_cfr.h"
#include "solver/game.h"

namespace kelvane_app {

// Names, types and cleaned average frequencies of the root's actions.
void fill_root_actions(SolveResult& result, const kelvane::Game& game, kelvane::DiscountedCfr& solver,
                       std::int32_t starting_pot);

// One record for each node of the tree, in index order, and their actions after one another.
void snapshot_nodes(SolveResult& result, const kelvane::Game& game, kelvane::DiscountedCfr& solver);

}  // namespace kelvane_app
