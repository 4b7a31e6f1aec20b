#pragma once
// Where the walks spread a node's children over the pool: wherever the subtree below is large enough
// that its work dwarfs the cost of a fan-out, at any depth and at decision and chance nodes alike.

#include <cstdint>
#include <span>
#include <vector>

#include "solver/game.h"

namespace kelvane {

// For each node, the nodes of its subtree, itself included; a child listed twice counts twice, as
// the walks visit it twice.
std::vector<std::uint64_t> subtree_sizes(const Game& game);

// Whether a node whose subtree holds `subtree_nodes` nodes, walked with `hands` values each, pays for
// spreading its children over threads.
bool worth_fanning_out(std::uint64_t subtree_nodes, std::uint64_t hands);

// Siblings that share an index would share their subtree's states between threads.
bool children_distinct(std::span<const std::uint64_t> children);

}  // namespace kelvane
