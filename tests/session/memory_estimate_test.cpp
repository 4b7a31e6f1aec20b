#include "session/memory_estimate.h"

#include <gtest/gtest.h>

#include "session/solve_setup.h"
#include "solver/discounted_cfr.h"
#include "solver/game.h"
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
    std::uint64_t decisions = 0;
    for (const kelvane::PlanNode& node : plan.nodes())
        if (node.kind == kelvane::kNodeDecision && !node.actions.empty()) ++decisions;
    EXPECT_EQ(estimate.decision_node_count, decisions);
}

// The parts are what a real game and solver hold, in both storage modes; the total adds a fixed share
// for the process and the walks.
TEST(MemoryEstimate, PartsMatchWhatTheGameAndSolverHold) {
    for (const bool packed : {false, true}) {
        SolveConfig config = small_river_spot();
        config.board = "AhKs7d";  // a flop, so that the tree deals
        config.starting_street = "flop";
        config.solver_flag = packed;
        const SolveMemoryEstimate estimate = estimate_solve_memory(config);
        ASSERT_TRUE(estimate.valid);

        const SolveSetup setup = make_solve_setup(config);
        const kelvane::Game game(setup.game, kelvane::CardContext(setup.board, setup.ranges));
        kelvane::DiscountedCfrOptions options;
        options.compress_state = packed;
        kelvane::DiscountedCfr solver(options);
        solver.prepare_states(game);
        EXPECT_EQ(estimate.card_context_bytes, game.cards().memory_bytes()) << packed;
        EXPECT_EQ(estimate.tree_bytes, game.tree_bytes() + solver.node_record_bytes()) << packed;
        EXPECT_EQ(estimate.state_bytes, solver.state_bytes()) << packed;
        EXPECT_GT(estimate.state_bytes, 0u);
        const std::uint64_t parts =
            estimate.card_context_bytes + estimate.tree_bytes + estimate.state_bytes + estimate.result_bytes;
        EXPECT_GT(estimate.total_bytes, parts);
        EXPECT_LT(estimate.total_bytes - parts, 32'000'000u);
    }
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
    EXPECT_EQ(plain.total_bytes - packed.total_bytes, packed.state_bytes);
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
