// Edge cases of the update and read-only walks: spans, zero reach, pass-through nodes, deep frames.

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "solver/discounted_cfr.h"
#include "solver_spots.h"
#include "spot_file.h"

namespace kelvane {
namespace {

using testing::child_by_kind;
using testing::PolarizedSpot;
using testing::quiet_options;

std::unique_ptr<Game> river_game() { return testing::SpotFile(testing::spot_path("river")).game(true); }

bool all_zero(const std::vector<float>& values) {
    for (float v : values) {
        if (v != 0.0f) return false;
    }
    return true;
}

TEST(Traversal, TerminalBelowRootWithEmptySpansGivesZeros) {
    auto game = river_game();
    DiscountedCfr cfr(quiet_options(1));
    cfr.solve(*game);
    ScratchStack scratch;
    const std::uint64_t check = child_by_kind(*game, 0, kActionCheck);
    const std::uint64_t fold = child_by_kind(*game, child_by_kind(*game, check, kActionBet), kActionFold);
    ASSERT_EQ(game->node(fold).kind, kNodeTerminal);
    std::vector<float> out(game->hand_count(0), 9.0f);
    cfr.solve_recursive(*game, fold, 0, {}, out, -1, 0, scratch);
    EXPECT_TRUE(all_zero(out));
    cfr.solve_recursive(*game, fold, 0, game->root_weights(1), {}, -1, 0, scratch);
    cfr.compute_cfvalue_recursive(*game, fold, 1, {}, out, false, 0, scratch);
}

TEST(Traversal, WrongReachLengthAtRootGivesZeros) {
    auto game = river_game();
    DiscountedCfr cfr(quiet_options(3));
    cfr.solve(*game);
    ScratchStack scratch;
    const std::vector<float> short_reach(game->hand_count(1) - 1, 1.0f);
    std::vector<float> out(game->hand_count(0), 9.0f);
    cfr.compute_best_cfvalue_recursive(*game, 0, 0, short_reach, out, 0, scratch);
    EXPECT_TRUE(all_zero(out));
    out.assign(out.size(), 9.0f);
    cfr.compute_cfvalue_recursive(*game, 0, 0, short_reach, out, false, 0, scratch);
    EXPECT_TRUE(all_zero(out));
}

TEST(Traversal, ZeroReachGivesZeroValuesButStillDiscountsRegrets) {
    auto game = river_game();
    DiscountedCfr cfr(quiet_options(3));  // the last iteration ran t = 2: alpha 0.5, beta 0.5
    cfr.solve(*game);
    const std::vector<float> before = cfr.regrets_of(0);
    ASSERT_FALSE(all_zero(before));
    ScratchStack scratch;
    const std::vector<float> zero_reach(game->hand_count(1), 0.0f);
    std::vector<float> out(game->hand_count(0), 9.0f);
    cfr.solve_recursive(*game, 0, 0, zero_reach, out, -1, 0, scratch);
    EXPECT_TRUE(all_zero(out));
    const std::vector<float> after = cfr.regrets_of(0);
    ASSERT_EQ(after.size(), before.size());
    for (std::size_t i = 0; i < before.size(); ++i) EXPECT_EQ(after[i], 0.5f * before[i]) << i;
}

TEST(Traversal, OneActionNodeOfTheOtherSeatIsPassedThrough) {
    auto game = testing::make_game(PolarizedSpot::setup());
    const std::uint64_t ip_after_check = child_by_kind(*game, 0, kActionCheck);
    const std::uint64_t ip_facing_bet = child_by_kind(*game, 0, kActionAllIn);
    ASSERT_EQ(game->node(ip_after_check).actions.size(), 1u);
    ASSERT_EQ(game->node(ip_facing_bet).actions.size(), 2u);

    const auto root_values = [&](std::uint64_t corrupted) {
        DiscountedCfr cfr(quiet_options(4));
        cfr.solve(*game);
        if (corrupted < game->node_count()) cfr.node_state(corrupted).num_hands = 9999;
        ScratchStack scratch;
        std::vector<float> out(game->hand_count(0));
        cfr.solve_recursive(*game, 0, 0, game->root_weights(1), out, -1, 0, scratch);
        return out;
    };
    const std::vector<float> clean = root_values(game->node_count());
    EXPECT_FALSE(all_zero(clean));
    // A one-action node isn't consulted at all, so its broken state changes nothing.
    EXPECT_EQ(root_values(ip_after_check), clean);
    // The same damage at a two-action node zeroes that subtree.
    EXPECT_NE(root_values(ip_facing_bet), clean);
}

TEST(Traversal, OneActionNodeOfTheUpdatingSeatTakesTheFullPath) {
    auto game = testing::make_game(PolarizedSpot::setup());
    const std::uint64_t ip_after_check = child_by_kind(*game, 0, kActionCheck);
    DiscountedCfr cfr(quiet_options(1));  // t = 0: gamma 0, so the sums hold exactly one strategy
    cfr.solve(*game);
    const NodeState& state = cfr.node_state(ip_after_check);
    ASSERT_EQ(state.num_actions, 1u);
    const std::vector<float> sums = cfr.strategy_sum_of(ip_after_check);
    ASSERT_EQ(sums.size(), state.entries());
    for (float s : sums) EXPECT_EQ(s, 1.0f);
}

TEST(Traversal, DeepFramesGiveTheSameResults) {
    auto game = river_game();
    DiscountedCfr shallow(quiet_options(5));
    DiscountedCfr deep(quiet_options(5));
    shallow.solve(*game);
    deep.solve(*game);
    ScratchStack shallow_scratch;
    ScratchStack deep_scratch;
    for (std::uint8_t seat = 0; seat < 2; ++seat) {
        std::vector<float> a(game->hand_count(seat));
        std::vector<float> b(game->hand_count(seat));
        shallow.solve_recursive(*game, 0, seat, game->root_weights(1 - seat), a, -1, 0, shallow_scratch);
        deep.solve_recursive(*game, 0, seat, game->root_weights(1 - seat), b, -1, 30, deep_scratch);
        EXPECT_EQ(a, b);
        shallow.compute_best_cfvalue_recursive(*game, 0, seat, game->root_weights(1 - seat), a, 0, shallow_scratch);
        deep.compute_best_cfvalue_recursive(*game, 0, seat, game->root_weights(1 - seat), b, 30, deep_scratch);
        EXPECT_EQ(a, b);
    }
    EXPECT_GT(deep_scratch.overflow_frames(), 0u);
    EXPECT_EQ(shallow_scratch.overflow_frames(), 0u);
    for (std::uint64_t n = 0; n < game->node_count(); ++n) {
        EXPECT_EQ(shallow.regrets_of(n), deep.regrets_of(n)) << n;
        EXPECT_EQ(shallow.strategy_sum_of(n), deep.strategy_sum_of(n)) << n;
    }
}

TEST(Traversal, NodeValuesOfTheRootMatchTheRootMeasure) {
    auto game = river_game();
    DiscountedCfr cfr(quiet_options(40));
    cfr.solve(*game);
    const SeatValues ev = cfr.average_strategy_values(*game);
    for (std::uint8_t seat = 0; seat < 2; ++seat) {
        const std::vector<float> values = cfr.node_values(*game, 0, seat);
        double total = 0.0;
        for (std::size_t h = 0; h < values.size(); ++h) total += static_cast<double>(game->root_weights(seat)[h]) * values[h];
        EXPECT_EQ(static_cast<float>(total), ev[seat]);
        EXPECT_EQ(cfr.node_values_with_reach(*game, 0, seat, game->root_weights(1 - seat)), values);
    }
    // Without rake the game is zero-sum.
    EXPECT_NEAR(ev[0] + ev[1], 0.0f, 1e-3f);
}

TEST(Traversal, AverageStrategyCountsEveryHandAlike) {
    auto game = river_game();
    DiscountedCfr cfr(quiet_options(40));
    cfr.solve(*game);
    const std::vector<float> per_hand = cfr.average_hand_strategy(0);
    const std::vector<float> overall = cfr.average_strategy(0);
    const NodeState& root = cfr.node_state(0);
    ASSERT_EQ(per_hand.size(), root.num_actions * root.num_hands);
    ASSERT_EQ(overall.size(), root.num_actions);
    float total = 0.0f;
    for (std::size_t a = 0; a < root.num_actions; ++a) {
        double sum = 0.0;
        for (std::size_t h = 0; h < root.num_hands; ++h) sum += per_hand[a * root.num_hands + h];
        EXPECT_EQ(overall[a], static_cast<float>(sum / static_cast<double>(root.num_hands)));
        total += overall[a];
    }
    EXPECT_NEAR(total, 1.0f, 1e-5f);
    // Nodes without a strategy answer with nothing.
    EXPECT_TRUE(cfr.average_strategy(game->node_count()).empty());
    const std::uint64_t check = child_by_kind(*game, 0, kActionCheck);
    const std::uint64_t terminal = child_by_kind(*game, check, kActionCheck);
    EXPECT_TRUE(cfr.average_hand_strategy(terminal).empty());
}

}  // namespace
}  // namespace kelvane
