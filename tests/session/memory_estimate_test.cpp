#include "session/memory_estimate.h"

#include <gtest/gtest.h>

#include "session/solve_setup.h"
#include "session_test_support.h"
#include "tree/action_plan.h"

namespace kelvane_app {
namespace {

TEST(MemoryEstimate, CountsTheRealDealAndTree) {
    const SolveConfig config = small_river_spot();
    std::string error;
    const SolveMemoryEstimate estimate = estimate_solve_memory(config, &error);
    ASSERT_TRUE(estimate.valid) << error;
    EXPECT_EQ(error, "");

    const SolveSetup setup = make_solve_setup(config);
    const kelvane::CardContext cards(setup.board, setup.ranges);
    const kelvane::ActionPlan plan(setup.game, cards);
    EXPECT_EQ(estimate.card_context_bytes, cards.memory_bytes());
    EXPECT_EQ(estimate.node_count, plan.node_count());
    EXPECT_EQ(estimate.oop_hands, cards.pockets[0].size());
    EXPECT_EQ(estimate.ip_hands, cards.pockets[1].size());

    std::uint64_t tree = plan.node_count() * sizeof(kelvane::PlanNode);
    std::uint64_t state = 0;
    std::uint64_t decisions = 0;
    for (const kelvane::PlanNode& node : plan.nodes()) {
        tree += 8 * (node.actions.capacity() + node.children.capacity());
        if (node.kind == kelvane::kNodeDecision && !node.actions.empty()) {
            ++decisions;
            state += 8 * cards.pockets[node.seat].size() * node.actions.size();
        }
    }
    EXPECT_EQ(estimate.tree_bytes, tree);
    EXPECT_EQ(estimate.state_bytes, state);
    EXPECT_EQ(estimate.decision_node_count, decisions);
    EXPECT_EQ(estimate.total_bytes,
              static_cast<std::uint64_t>(static_cast<double>(tree + cards.memory_bytes() + state) * 1.1));
}

TEST(MemoryEstimate, ShortBoardIsInvalidWithTheBoardMessage) {
    SolveConfig config = small_river_spot();
    config.board = "AhKs7";
    std::string error;
    const SolveMemoryEstimate estimate = estimate_solve_memory(config, &error);
    EXPECT_FALSE(estimate.valid);
    EXPECT_EQ(error, "Board must include at least a flop (6 chars, e.g. AhKsQd)");
    EXPECT_EQ(estimate.total_bytes, 0u);
    EXPECT_FALSE(estimate_solve_memory(config).valid);
}

TEST(MemoryEstimate, SizingErrorsArriveUnwrapped) {
    SolveConfig config = small_river_spot();
    config.oop.flop.bet_sizes = "3x";
    std::string error;
    EXPECT_FALSE(estimate_solve_memory(config, &error).valid);
    EXPECT_EQ(error, "Relative raise (x) is not allowed in this context");
}

TEST(MemoryEstimate, EmptyRangeAfterTheBoardIsInvalid) {
    SolveConfig config = small_river_spot();
    config.ip_range = "AhKs";
    std::string error;
    EXPECT_FALSE(estimate_solve_memory(config, &error).valid);
    EXPECT_EQ(error, "Player range empty after filtering board cards");
}

TEST(MemoryEstimate, StacksOfZero) {
    SolveConfig config = small_river_spot();
    config.effective_stack = 0;
    config.oop.river.bet_sizes.clear();
    config.ip.river.bet_sizes.clear();
    const SolveMemoryEstimate estimate = estimate_solve_memory(config);
    ASSERT_TRUE(estimate.valid);
    // Check, check: the root and the in-position reply are the only decisions, one action each.
    EXPECT_EQ(estimate.node_count, 3u);
    EXPECT_EQ(estimate.decision_node_count, 2u);
    EXPECT_EQ(estimate.state_bytes, 8 * (estimate.oop_hands + estimate.ip_hands));
    EXPECT_GE(estimate.total_bytes, estimate.tree_bytes + estimate.card_context_bytes);
}

TEST(MemoryEstimate, ThreadCountPlaysNoPart) {
    SolveConfig config = small_river_spot();
    config.thread_count = 1;
    const SolveMemoryEstimate one = estimate_solve_memory(config);
    config.thread_count = 64;
    const SolveMemoryEstimate many = estimate_solve_memory(config);
    ASSERT_TRUE(one.valid && many.valid);
    EXPECT_EQ(one.total_bytes, many.total_bytes);
    EXPECT_EQ(one.card_context_bytes, many.card_context_bytes);
    EXPECT_EQ(one.tree_bytes, many.tree_bytes);
    EXPECT_EQ(one.state_bytes, many.state_bytes);
    EXPECT_EQ(one.node_count, many.node_count);
    EXPECT_EQ(one.decision_node_count, many.decision_node_count);
}

TEST(MemoryEstimate, PackedStateHalvesTheStateBytes) {
    SolveConfig config = small_river_spot();
    const SolveMemoryEstimate plain = estimate_solve_memory(config);
    config.solver_flag = true;
    const SolveMemoryEstimate packed = estimate_solve_memory(config);
    EXPECT_EQ(packed.state_bytes * 2, plain.state_bytes);
    EXPECT_EQ(packed.tree_bytes, plain.tree_bytes);
}

TEST(MemoryEstimate, LocksPlayNoPart) {
    SolveConfig config = small_river_spot();
    const SolveMemoryEstimate plain = estimate_solve_memory(config);
    config.node_locks = {{0, "KK", 0, 1.0f}, {999999, "AA", 0, 1.0f}};
    const SolveMemoryEstimate locked = estimate_solve_memory(config);
    EXPECT_EQ(locked.total_bytes, plain.total_bytes);
}

}  // namespace
}  // namespace kelvane_app
