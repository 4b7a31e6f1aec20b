#pragma once
// Turns the user's per-class node locks into the game's per-combo lock matrices.

#include <vector>

#include "session/solve_config.h"
#include "solver/game.h"

namespace kelvane_app {

// Entries that name no usable node, hand or action are dropped without a word.
void apply_node_locks(kelvane::Game& game, const std::vector<NodeLockEntry>& locks);

}  // namespace kelvane_app
