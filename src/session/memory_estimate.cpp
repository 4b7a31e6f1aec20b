// The memory estimate builds the deal a solve would build and counts its tree without building it:
// the sizes of tree, game and solver follow from the tree's shape.

#include "session/memory_estimate.h"

#include <exception>

#include "poker/card_context.h"
#include "session/solve_result.h"
#include "session/solve_setup.h"
#include "solver/discounted_cfr.h"
#include "solver/game.h"
#include "solver/state_store.h"
#include "tree/plan_count.h"

namespace kelvane_app {
namespace {

// The process itself, the walks' frames and the pool's threads, measured at 9 to 14 MB whatever the tree.
constexpr std::uint64_t kRuntimeBytes = 16'000'000;

SolveMemoryEstimate count(const SolveConfig& config) {
    const SolveSetup setup = make_solve_setup(config, SizingErrors::unlabelled);
    const kelvane::CardContext cards(setup.board, setup.ranges);
    const kelvane::PlanCount plan = kelvane::count_plan(setup.game, cards);

    SolveMemoryEstimate estimate;
    estimate.card_context_bytes = cards.memory_bytes();
    estimate.node_count = plan.nodes;
    estimate.decision_node_count = plan.decision_nodes;
    estimate.oop_hands = cards.pockets[kelvane::kSeatOop].size();
    estimate.ip_hands = cards.pockets[kelvane::kSeatIp].size();
    const std::uint64_t actions = plan.actions;
    const std::uint64_t children = plan.actions;  // one for each action
    const std::uint64_t state_entries = estimate.oop_hands * plan.seat_actions[kelvane::kSeatOop] +
                                        estimate.ip_hands * plan.seat_actions[kelvane::kSeatIp];
    estimate.tree_bytes = kelvane::Game::tree_bytes(estimate.node_count, actions, children) +
                          kelvane::DiscountedCfr::node_record_bytes(estimate.node_count, estimate.decision_node_count);
    // Regrets and strategy sums: one store each.
    estimate.state_bytes = 2 * kelvane::store_bytes(state_entries, config.solver_flag);
    estimate.result_bytes = estimate.node_count * sizeof(ResultNode) + actions * sizeof(ResultAction);
    estimate.total_bytes = estimate.card_context_bytes + estimate.tree_bytes + estimate.state_bytes +
                           estimate.result_bytes + kRuntimeBytes;
    estimate.valid = true;
    return estimate;
}

}  // namespace

SolveMemoryEstimate estimate_solve_memory(const SolveConfig& config, std::string* error) {
    try {
        return count(config);
    } catch (const std::exception& failure) {
        if (error) *error = failure.what();
    } catch (...) {
        if (error) *error = "Unknown error";
    }
    return {};
}

}  // namespace kelvane_app
