#pragma once
// The size of a betting tree without the tree: the expansion that ActionPlan runs, node by node, with
// nothing kept but totals, so that a tree too large to hold can be measured, or refused, first.

#include <array>
#include <cstdint>
#include <functional>

#include "poker/card_context.h"
#include "tree/game_config.h"

namespace kelvane {

struct PlanCount {
    std::uint64_t nodes = 0;
    std::uint64_t actions = 0;  // over all nodes; every action has its one child
    std::uint64_t decision_nodes = 0;  // with at least one action
    std::array<std::uint64_t, 2> seat_actions{};  // actions of those decision nodes, by the seat to act
    bool complete = true;  // false: stopped by the limit; the totals are those of the nodes reached
};

// Asked after each node's expansion is counted; false stops the walk.
using PlanCountLimit = std::function<bool(const PlanCount&)>;

// The totals of the tree that ActionPlan(config, cards) would build; an empty limit never stops.
PlanCount count_plan(const GameConfig& config, const CardContext& cards, const PlanCountLimit& within_limit = {});

}  // namespace kelvane
