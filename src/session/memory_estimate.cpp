// The memory estimate builds the deal and the tree a solve would build, but neither game nor solver.

#include "session/memory_estimate.h"

#include <exception>

#include "poker/card_context.h"
#include "session/solve_setup.h"
#include "tree/action_plan.h"

namespace kelvane_app {
namespace {

// Frames, pool and runtime overhead that are not counted one by one.
constexpr double kOverheadFactor = 1.1;
constexpr std::uint64_t kListEntryBytes = 8;
constexpr std::uint64_t kFloatStateBytes = 8;   // regret and strategy sum, 32-bit floats
constexpr std::uint64_t kPackedStateBytes = 4;  // the same as 16-bit packed values

SolveMemoryEstimate count(const SolveConfig& config) {
    const SolveSetup setup = make_solve_setup(config, SizingErrors::unlabelled);
    const kelvane::CardContext cards(setup.board, setup.ranges);
    const kelvane::ActionPlan plan(setup.game, cards);

    SolveMemoryEstimate estimate;
    estimate.card_context_bytes = cards.memory_bytes();
    estimate.node_count = plan.node_count();
    estimate.oop_hands = cards.pockets[kelvane::kSeatOop].size();
    estimate.ip_hands = cards.pockets[kelvane::kSeatIp].size();
    estimate.tree_bytes = plan.node_count() * sizeof(kelvane::PlanNode);
    const std::uint64_t state_entry_bytes = config.solver_flag ? kPackedStateBytes : kFloatStateBytes;
    for (const kelvane::PlanNode& node : plan.nodes()) {
        estimate.tree_bytes += kListEntryBytes * (node.actions.capacity() + node.children.capacity());
        if (node.kind != kelvane::kNodeDecision || node.actions.empty()) continue;
        ++estimate.decision_node_count;
        estimate.state_bytes += state_entry_bytes * cards.pockets[node.seat].size() * node.actions.size();
    }
    const double counted = static_cast<double>(estimate.tree_bytes + estimate.card_context_bytes + estimate.state_bytes);
    estimate.total_bytes = static_cast<std::uint64_t>(counted * kOverheadFactor);
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
