#include "session/action_stats.h"

#include <gtest/gtest.h>

#include <cmath>

#include "session/showdown_equity.h"
#include "session/solve_setup.h"
#include "solved_spots.h"

namespace kelvane_app {
namespace {

using namespace testing;
using kelvane::Game;
using kelvane::Pocket;

std::vector<kelvane::Card> river_board(const Game& game, std::uint64_t node) {
    std::vector<kelvane::Card> board(game.cards().board_list.begin(), game.cards().board_list.begin() + 3);
    board.push_back(game.node(node).turn_card);
    board.push_back(game.node(node).river_card);
    return board;
}

// Own weights of one action: root weight times the hand's probability of it.
std::vector<double> action_weights(const SolutionView& solution, std::uint64_t node, std::size_t action) {
    const Game& game = *solution.game;
    const kelvane::Seat seat = game.node(node).seat;
    const std::size_t hands = game.hand_count(seat);
    const std::vector<float> strategy = solution.solver->average_hand_strategy(node);
    std::vector<double> t(hands, 0.0);
    for (std::size_t h = 0; h < hands; ++h)
        t[h] = std::max(0.0, double(game.root_weights(seat)[h]) * strategy[action * hands + h]);
    return t;
}

// Win share plus half the ties over every pair of hands, from the evaluator itself.
double brute_force_equity(const Game& game, std::uint64_t node, const std::vector<double>& own) {
    const kelvane::Seat seat = game.node(node).seat;
    const kelvane::Seat other = other_seat(seat);
    const std::vector<kelvane::Card> board = river_board(game, node);
    double total = 0.0, score = 0.0;
    for (std::size_t h = 0; h < own.size(); ++h) {
        if (own[h] <= 0.0) continue;
        for (std::size_t j = 0; j < game.hand_count(other); ++j) {
            const Pocket mine = game.hands(seat)[h];
            const Pocket theirs = game.hands(other)[j];
            const double o = game.root_weights(other)[j];
            if (o <= 0.0 || collide(mine, theirs)) continue;
            const auto a = kelvane::evaluate_on_board(mine, board);
            const auto b = kelvane::evaluate_on_board(theirs, board);
            total += o * own[h];
            score += o * own[h] * (a > b ? 1.0 : a == b ? 0.5 : 0.0);
        }
    }
    return score / total;
}

TEST(ActionStats, RootRowsMatchTheSolverAndACombosCount) {
    const SolutionView solution = solution_of(river_spot);
    const Game& game = *solution.game;
    const NodeActionStats stats = action_stats(solved(river_spot), 0);
    ASSERT_TRUE(stats.valid);
    const std::size_t actions = game.node(0).actions.size();
    EXPECT_EQ(stats.names, node_action_names(game, 0));
    EXPECT_EQ(stats.types, node_action_types(game, 0));
    EXPECT_EQ(stats.frequencies, solution.solver->average_strategy(0));
    ASSERT_EQ(stats.combos.size(), actions);
    ASSERT_EQ(stats.equities.size(), actions);
    ASSERT_EQ(stats.evs.size(), actions);
    double total = 0.0;
    for (std::size_t a = 0; a < actions; ++a) {
        const std::vector<double> t = action_weights(solution, 0, a);
        double combos = 0.0;
        for (double x : t) combos += x;
        EXPECT_NEAR(stats.combos[a], combos, 1e-9);
        total += stats.combos[a];
        if (combos > 0.0) {
            EXPECT_NEAR(stats.equities[a], brute_force_equity(game, 0, t), 1e-9);
        }
        EXPECT_TRUE(std::isfinite(stats.evs[a]));
    }
    double range = 0.0;
    for (float w : game.root_weights(kelvane::kSeatOop)) range += w;
    EXPECT_NEAR(total, range, 1e-3);
}

TEST(ActionStats, CallAndFoldEvsAgainstTheRootRange) {
    const SolutionView solution = solution_of(river_spot);
    const Game& game = *solution.game;
    const std::uint64_t node = child_by_type(game, 0, "bet");
    const NodeActionStats stats = action_stats(solved(river_spot), node);
    ASSERT_TRUE(stats.valid);
    const std::size_t fold = action_by_type(game, node, "fold");
    const std::size_t call = action_by_type(game, node, "call");
    EXPECT_NEAR(stats.evs[fold], 0.0, 1e-3);  // folding wins nothing back out of the pot

    // A call shows down a pot of 250 against OOP's whole root range.
    const std::vector<kelvane::Card> board = river_board(game, node);
    const std::vector<double> t = action_weights(solution, node, call);
    double combos = 0.0, sum = 0.0;
    for (std::size_t h = 0; h < t.size(); ++h) {
        if (t[h] <= 0.0) continue;
        double mass = 0.0, result = 0.0;
        for (std::size_t j = 0; j < game.hand_count(kelvane::kSeatOop); ++j) {
            const Pocket mine = game.hands(kelvane::kSeatIp)[h];
            const Pocket theirs = game.hands(kelvane::kSeatOop)[j];
            if (collide(mine, theirs)) continue;
            const double o = game.root_weights(kelvane::kSeatOop)[j];
            const auto a = kelvane::evaluate_on_board(mine, board);
            const auto b = kelvane::evaluate_on_board(theirs, board);
            mass += o;
            result += o * (a > b ? 125.0 : a < b ? -125.0 : 0.0);
        }
        combos += t[h];
        sum += t[h] * (50.0 + result / mass);
    }
    EXPECT_NEAR(stats.evs[call], sum / combos, 1e-2);
}

TEST(ActionStats, UnplayedActionShowsHalfThePotAndNoEquity) {
    const SolutionView solution = solution_of(river_spot_checked);
    const NodeActionStats stats = action_stats(solved(river_spot_checked), 0);
    ASSERT_TRUE(stats.valid);
    const std::size_t bet = action_by_type(*solution.game, 0, "bet");
    EXPECT_EQ(stats.frequencies[bet], 0.0f);
    EXPECT_EQ(stats.combos[bet], 0.0);
    EXPECT_EQ(stats.evs[bet], 50.0);
    EXPECT_TRUE(std::isnan(stats.equities[bet]));
    EXPECT_FALSE(std::isnan(stats.equities[0]));
}

TEST(ActionStats, EquitiesRepeatAcrossCalls) {
    for (SolveConfig (*spot)() : {&river_spot, &turn_spot}) {
        const NodeActionStats first = action_stats(solved(spot), 0);
        const NodeActionStats second = action_stats(solved(spot), 0);
        ASSERT_TRUE(first.valid && second.valid);
        ASSERT_EQ(first.equities.size(), second.equities.size());
        for (std::size_t a = 0; a < first.equities.size(); ++a) {
            if (std::isnan(first.equities[a])) {
                EXPECT_TRUE(std::isnan(second.equities[a]));
                continue;
            }
            EXPECT_EQ(first.equities[a], second.equities[a]);
            EXPECT_GE(first.equities[a], 0.0);
            EXPECT_LE(first.equities[a], 1.0);
        }
        EXPECT_EQ(first.evs, second.evs);
    }
}

TEST(ActionStats, RiverNodeOfATurnStartCountsExactly) {
    const SolutionView solution = solution_of(turn_spot);
    const Game& game = *solution.game;
    const std::uint64_t chance = first_of_kind(game, kelvane::kNodeChance);
    const std::uint64_t node = game.node(chance).children.front();
    ASSERT_TRUE(decision_node(game, node));
    const NodeActionStats stats = action_stats(solved(turn_spot), node);
    ASSERT_TRUE(stats.valid);
    for (std::size_t a = 0; a < stats.equities.size(); ++a) {
        const std::vector<double> t = action_weights(solution, node, a);
        // Hands that hold the river card are in no showdown row, so they take no part.
        std::vector<double> live = t;
        const kelvane::CardMask dealt = kelvane::card_bit(game.node(node).river_card);
        for (std::size_t h = 0; h < live.size(); ++h)
            if (kelvane::pocket_mask(game.hands(game.node(node).seat)[h]) & dealt) live[h] = 0.0;
        EXPECT_NEAR(stats.equities[a], brute_force_equity(game, node, live), 1e-9);
    }
}

// The expectation of one sampled deal: a weighted own hand, a weighted opposing hand that shares no
// card with it, and a uniform river.
double sampled_expectation(const Game& game, std::uint64_t node, const std::vector<double>& own) {
    const kelvane::Seat seat = game.node(node).seat;
    const kelvane::Seat other = other_seat(seat);
    const std::vector<kelvane::Card>& board = game.cards().board_list;
    double own_total = 0.0, expectation = 0.0;
    for (double t : own) own_total += t;
    for (std::size_t h = 0; h < own.size(); ++h) {
        if (own[h] <= 0.0) continue;
        const Pocket mine = game.hands(seat)[h];
        double mass = 0.0, score = 0.0;
        for (std::size_t j = 0; j < game.hand_count(other); ++j) {
            const Pocket theirs = game.hands(other)[j];
            const double o = game.root_weights(other)[j];
            if (o <= 0.0 || collide(mine, theirs)) continue;
            const kelvane::CardMask used = kelvane::pocket_mask(mine) | kelvane::pocket_mask(theirs) |
                                           kelvane::board_mask(game.cards().board);
            double runouts = 0.0, won = 0.0;
            for (int river = 0; river < kelvane::kCardCount; ++river) {
                if (used & kelvane::card_bit(static_cast<kelvane::Card>(river))) continue;
                const std::vector<kelvane::Card> five{board[0], board[1], board[2], board[3],
                                                      static_cast<kelvane::Card>(river)};
                const auto a = kelvane::evaluate_on_board(mine, five);
                const auto b = kelvane::evaluate_on_board(theirs, five);
                runouts += 1.0;
                won += a > b ? 1.0 : a == b ? 0.5 : 0.0;
            }
            mass += o;
            score += o * won / runouts;
        }
        expectation += own[h] / own_total * score / mass;
    }
    return expectation;
}

TEST(ActionStats, TurnNodeSamplesFourThousandDealsNearTheExpectation) {
    const SolutionView solution = solution_of(turn_spot);
    const Game& game = *solution.game;
    const NodeActionStats stats = action_stats(solved(turn_spot), 0);
    ASSERT_TRUE(stats.valid);
    std::mt19937 generator = equity_generator(0);
    for (std::size_t a = 0; a < stats.equities.size(); ++a) {
        const std::vector<double> t = action_weights(solution, 0, a);
        const EquityEstimate estimate =
            sampled_equity(game, 0, kelvane::kSeatOop, t, game.root_weights(kelvane::kSeatIp), generator);
        if (stats.combos[a] <= 0.0) continue;
        EXPECT_EQ(estimate.samples, kTurnKnownDeals);
        EXPECT_EQ(estimate.equity, stats.equities[a]);  // the same generator, action after action
        EXPECT_NEAR(estimate.equity, sampled_expectation(game, 0, t), 0.04);
    }
}

TEST(ActionStats, GeneratorIsSeededByTheNodeAndSharedByTheActions) {
    EXPECT_EQ(equity_generator(7)(), std::mt19937(7u ^ 0xC0FFEEu)());
    EXPECT_EQ(equity_generator((std::uint64_t{1} << 32) | 7)(), std::mt19937(7u ^ 0xC0FFEEu)());

    const SolutionView solution = solution_of(turn_spot);
    const Game& game = *solution.game;
    const std::span<const float> other = game.root_weights(kelvane::kSeatIp);
    const std::vector<double> first = action_weights(solution, 0, 0);
    std::vector<double> second(game.hand_count(kelvane::kSeatOop), 0.0);
    for (std::size_t h = 0; h < second.size(); ++h) second[h] = game.root_weights(kelvane::kSeatOop)[h];

    std::mt19937 alone = equity_generator(0);
    std::mt19937 again = equity_generator(0);
    std::mt19937 behind = equity_generator(0);
    const double alone_equity = sampled_equity(game, 0, kelvane::kSeatOop, second, other, alone).equity;
    EXPECT_EQ(sampled_equity(game, 0, kelvane::kSeatOop, second, other, again).equity, alone_equity);
    sampled_equity(game, 0, kelvane::kSeatOop, first, other, behind);
    EXPECT_NE(sampled_equity(game, 0, kelvane::kSeatOop, second, other, behind).equity, alone_equity);
}

TEST(ActionStats, SampledEquityWithoutWeightIsNaNAndDrawsNothing) {
    const SolutionView solution = solution_of(turn_spot);
    const Game& game = *solution.game;
    const std::vector<double> none(game.hand_count(kelvane::kSeatOop), 0.0);
    std::mt19937 generator = equity_generator(0);
    const EquityEstimate estimate =
        sampled_equity(game, 0, kelvane::kSeatOop, none, game.root_weights(kelvane::kSeatIp), generator);
    EXPECT_TRUE(std::isnan(estimate.equity));
    EXPECT_EQ(estimate.samples, 0u);
    EXPECT_EQ(generator, equity_generator(0));
    const std::vector<double> short_list(1, 1.0);
    EXPECT_TRUE(std::isnan(
        sampled_equity(game, 0, kelvane::kSeatOop, short_list, game.root_weights(kelvane::kSeatIp), generator).equity));
}

// A flop with no bets: check, check, then a turn deal. Built without solving; equity needs no strategy.
Game flop_game() {
    SolveConfig config;
    config.board = "Qs8d4c";
    config.oop_range = "AA,QQ,AQs,KJs,76s";
    config.ip_range = "KK,88,AKo,T9s";
    config.starting_pot = 100;
    config.effective_stack = 100;
    const SolveSetup setup = make_solve_setup(config);
    return Game(setup.game, kelvane::CardContext(setup.board, setup.ranges));
}

TEST(ActionStats, FlopNodeSamplesSixThousandDealsAndBlockedHandsSpendDeals) {
    const Game game = flop_game();
    std::vector<double> own(game.root_weights(kelvane::kSeatOop).begin(), game.root_weights(kelvane::kSeatOop).end());
    const std::span<const float> other = game.root_weights(kelvane::kSeatIp);
    std::mt19937 generator = equity_generator(0);
    EXPECT_EQ(sampled_equity(game, 0, kelvane::kSeatOop, own, other, generator).samples, kFlopDeals);

    const std::uint64_t chance = first_of_kind(game, kelvane::kNodeChance);
    std::uint64_t node = 0;
    for (const std::uint64_t child : game.node(chance).children) {
        const kelvane::Card turn = game.node(child).turn_card;
        bool blocks = false;
        for (const Pocket pocket : game.hands(kelvane::kSeatOop)) blocks |= (kelvane::pocket_mask(pocket) & kelvane::card_bit(turn)) != 0;
        if (blocks && game.node(child).kind == kelvane::kNodeDecision) {
            node = child;
            break;
        }
    }
    ASSERT_NE(node, 0u);
    ASSERT_EQ(game.node(node).seat, kelvane::kSeatOop);
    std::mt19937 turn_generator = equity_generator(node);
    const EquityEstimate estimate = sampled_equity(game, node, kelvane::kSeatOop, own, other, turn_generator);
    EXPECT_GT(estimate.samples, kTurnKnownDeals / 2);
    EXPECT_LT(estimate.samples, kTurnKnownDeals);
}

TEST(ActionStats, ExactEquityNeedsBothRows) {
    const Game game = flop_game();
    std::vector<double> own(game.hand_count(kelvane::kSeatOop), 1.0);
    EXPECT_TRUE(std::isnan(exact_river_equity(game, 0, kelvane::kSeatOop, own, game.root_weights(kelvane::kSeatIp))));
}

}  // namespace
}  // namespace kelvane_app
