#include "session/solution_view.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <limits>

#include "session/action_stats.h"
#include "session/bucket_table.h"
#include "session/hand_combos.h"
#include "session/hand_strategy.h"
#include "solved_spots.h"

namespace kelvane_app {
namespace {

using namespace testing;
using kelvane::Game;

constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

// Every query of a decision node, asked at once; true only if none of them answered.
bool every_query_invalid(const SolveSession& session, std::uint64_t node) {
    return !action_stats(session, node).valid && !hand_strategy(session, node).valid &&
           !hand_combos(session, node).valid && !hand_buckets(session, node).valid &&
           !pocket_action_evs(session, node, kelvane::kSeatOop, "Ac", "Ad").valid;
}

TEST(SolutionView, EmptySessionHasNoView) {
    SolveSession session;
    EXPECT_FALSE(view(session).has_value());
    EXPECT_TRUE(every_query_invalid(session, 0));
    EXPECT_FALSE(seat_hand_combos(session, 0, kelvane::kSeatOop).valid);
    const NodeActionStats stats = action_stats(session, 0);
    EXPECT_TRUE(stats.names.empty() && stats.frequencies.empty() && stats.evs.empty());
}

TEST(SolutionView, QueriesDuringARunAreInvalid) {
    SolveSession session;
    std::promise<bool> asked;
    bool answered_invalid = false;
    ASSERT_TRUE(session.start(river_spot_checked(), [&](const SolveProgress& message) {
        if (message.status == "Finalizing: building result snapshot...")
            answered_invalid = every_query_invalid(session, 0) && !seat_hand_combos(session, 0, 0).valid;
        if (message.result) asked.set_value(true);
    }));
    asked.get_future().get();
    while (session.is_running()) std::this_thread::sleep_for(std::chrono::milliseconds(1));
    EXPECT_TRUE(answered_invalid);
    EXPECT_TRUE(view(session).has_value());
    session.clear();
    EXPECT_FALSE(view(session).has_value());
    EXPECT_TRUE(every_query_invalid(session, 0));
}

TEST(SolutionView, ViewCopiesBothPointers) {
    const std::optional<SolutionView> copies = view(solved(river_spot));
    ASSERT_TRUE(copies.has_value());
    EXPECT_EQ(copies->game, solution_of(river_spot).game);
    EXPECT_EQ(copies->solver, solution_of(river_spot).solver);
}

TEST(SolutionView, DecisionGuard) {
    const Game& game = *solution_of(river_spot).game;
    EXPECT_TRUE(decision_node(game, 0));
    EXPECT_FALSE(decision_node(game, game.node_count()));
    EXPECT_FALSE(decision_node(game, first_of_kind(game, kelvane::kNodeTerminal)));
    const Game& turn = *solution_of(turn_spot).game;
    EXPECT_FALSE(decision_node(turn, first_of_kind(turn, kelvane::kNodeChance)));
}

TEST(SolutionView, OutOfRangeAndNonDecisionNodesAnswerInvalid) {
    for (SolveConfig (*spot)() : {&river_spot, &turn_spot}) {
        const SolveSession& session = solved(spot);
        const Game& game = *session.solution().game;
        EXPECT_TRUE(every_query_invalid(session, game.node_count()));
        EXPECT_TRUE(every_query_invalid(session, first_of_kind(game, kelvane::kNodeTerminal)));
        EXPECT_FALSE(seat_hand_combos(session, game.node_count(), kelvane::kSeatOop).valid);
    }
    const SolveSession& turn = solved(turn_spot);
    EXPECT_TRUE(every_query_invalid(turn, first_of_kind(*turn.solution().game, kelvane::kNodeChance)));
}

TEST(SolutionView, PathToRootHasOneStep) {
    const Game& game = *solution_of(river_spot).game;
    const std::optional<NodePath> path = path_to(game, 0);
    ASSERT_TRUE(path.has_value());
    ASSERT_EQ(path->size(), 1u);
    EXPECT_EQ((*path)[0].node, 0u);
    EXPECT_EQ((*path)[0].action, 0u);
    EXPECT_FALSE(path_to(game, game.node_count()).has_value());
}

TEST(SolutionView, EveryPathLeadsFromTheRootToItsNode) {
    for (SolveConfig (*spot)() : {&river_spot, &turn_spot}) {
        const Game& game = *solution_of(spot).game;
        for (std::uint64_t node = 0; node < game.node_count(); ++node) {
            const std::optional<NodePath> path = path_to(game, node);
            ASSERT_TRUE(path.has_value()) << node;
            EXPECT_EQ(path->front().node, 0u);
            EXPECT_EQ(path->back().node, node);
            for (std::size_t i = 1; i < path->size(); ++i)
                EXPECT_EQ(game.node((*path)[i - 1].node).children[(*path)[i].action], (*path)[i].node);
        }
    }
}

TEST(SolutionView, PathReachAtTheRootOnlyAppliesTheDeadMask) {
    const SolutionView solution = solution_of(turn_spot);
    const Game& game = *solution.game;
    const std::vector<float> start(game.hand_count(kelvane::kSeatIp), 0.5f);
    EXPECT_EQ(path_reach(game, *solution.solver, *path_to(game, 0), kelvane::kSeatIp, start), start);

    // Below a river deal the dealt card is dead, and a query may add a card of its own.
    const std::uint64_t chance = first_of_kind(game, kelvane::kNodeChance);
    const std::uint64_t dealt = game.node(chance).children.front();
    const kelvane::Card river = game.node(dealt).river_card;
    ASSERT_NE(river, kelvane::kNoCard);
    const kelvane::Card extra = kelvane::parse_card("Ah");
    const std::vector<float> reach =
        path_reach(game, *solution.solver, *path_to(game, dealt), kelvane::kSeatIp, start, kelvane::card_bit(extra));
    const std::optional<NodePath> path = path_to(game, dealt);
    std::vector<float> expected = start;
    for (std::size_t step = 1; step < path->size(); ++step) {
        const kelvane::GameNode& parent = game.node((*path)[step - 1].node);
        if (parent.kind != kelvane::kNodeDecision || parent.seat != kelvane::kSeatIp) continue;
        const std::vector<float> strategy = solution.solver->average_hand_strategy((*path)[step - 1].node);
        for (std::size_t h = 0; h < expected.size(); ++h)
            expected[h] *= std::max(strategy[(*path)[step].action * expected.size() + h], 0.0f);
    }
    std::size_t blocked = 0;
    for (std::size_t h = 0; h < reach.size(); ++h) {
        const kelvane::Pocket pocket = game.hands(kelvane::kSeatIp)[h];
        if (kelvane::pocket_mask(pocket) & (kelvane::card_bit(river) | kelvane::card_bit(extra))) {
            EXPECT_EQ(reach[h], 0.0f);
            ++blocked;
        } else {
            EXPECT_FLOAT_EQ(reach[h], expected[h]);
        }
    }
    EXPECT_GT(blocked, 0u);
}

TEST(SolutionView, PathReachMultipliesTheSeatsOwnActions) {
    const SolutionView solution = solution_of(river_spot);
    const Game& game = *solution.game;
    const std::uint64_t facing_bet = child_by_type(game, 0, "bet");
    const std::uint64_t facing_raise = child_by_type(game, facing_bet, "raise");
    const std::size_t bet = action_by_type(game, 0, "bet");
    const std::size_t raise = action_by_type(game, facing_bet, "raise");
    const std::size_t oop_hands = game.hand_count(kelvane::kSeatOop);
    const std::size_t ip_hands = game.hand_count(kelvane::kSeatIp);
    const std::vector<float> root = solution.solver->average_hand_strategy(0);
    const std::vector<float> reply = solution.solver->average_hand_strategy(facing_bet);
    const std::optional<NodePath> path = path_to(game, facing_raise);
    ASSERT_EQ(path->size(), 3u);

    const std::vector<float> oop =
        path_reach(game, *solution.solver, *path, kelvane::kSeatOop, std::vector<float>(oop_hands, 1.0f));
    for (std::size_t h = 0; h < oop_hands; ++h) EXPECT_FLOAT_EQ(oop[h], root[bet * oop_hands + h]);
    const std::vector<float> weights = clean_weights(game.root_weights(kelvane::kSeatIp));
    const std::vector<float> ip = path_reach(game, *solution.solver, *path, kelvane::kSeatIp, weights);
    for (std::size_t h = 0; h < ip_hands; ++h) EXPECT_FLOAT_EQ(ip[h], weights[h] * reply[raise * ip_hands + h]);
}

TEST(SolutionView, UnblockedMassMatchesAPairwiseCount) {
    const Game& game = *solution_of(river_spot).game;
    for (kelvane::Seat seat : {kelvane::kSeatOop, kelvane::kSeatIp}) {
        const kelvane::Seat other = other_seat(seat);
        std::vector<float> reach(game.root_weights(other).begin(), game.root_weights(other).end());
        reach[0] = kNaN;  // unclean entries count nothing
        reach[1] = -2.0f;
        const std::vector<double> mass = unblocked_mass(game, seat, reach);
        ASSERT_EQ(mass.size(), game.hand_count(seat));
        for (std::size_t h = 0; h < mass.size(); ++h) {
            double expected = 0.0;
            for (std::size_t j = 0; j < reach.size(); ++j)
                if (!collide(game.hands(seat)[h], game.hands(other)[j])) expected += clean_weight(reach[j]);
            EXPECT_NEAR(mass[h], expected, 1e-9);
        }
    }
}

TEST(SolutionView, FullyBlockedHandHasNoMassAndKeepsItsRawValue) {
    const Game& game = *solution_of(river_spot).game;
    const kelvane::Pocket mine = game.hands(kelvane::kSeatOop)[0];
    std::vector<float> reach(game.hand_count(kelvane::kSeatIp), 0.0f);
    std::size_t blocker = 0;
    while (!collide(game.hands(kelvane::kSeatIp)[blocker], mine)) ++blocker;
    reach[blocker] = 1.0f;
    EXPECT_EQ(unblocked_mass(game, kelvane::kSeatOop, reach)[0], 0.0);
    EXPECT_DOUBLE_EQ(chip_value(0.25, 0.0, 50.0, 1000.0), 50.25);
}

TEST(SolutionView, ChipValueScalesByMatchupsAndAddsHalfThePot) {
    EXPECT_DOUBLE_EQ(chip_value(0.5, 20.0, 50.0, 400.0), 0.5 * 400.0 / 20.0 + 50.0);
    EXPECT_DOUBLE_EQ(chip_value(0.5, 20.0, 0.0, 400.0), 10.0);
    EXPECT_DOUBLE_EQ(chip_value(0.5, 20.0, -5.0, 400.0), 10.0);
    EXPECT_DOUBLE_EQ(chip_value(0.5, 20.0, kInf, 400.0), 10.0);
    EXPECT_DOUBLE_EQ(chip_value(0.5, 20.0, kNaN, 400.0), 10.0);
    EXPECT_DOUBLE_EQ(chip_value(0.5, 20.0, 50.0, 0.0), 50.5);
    EXPECT_DOUBLE_EQ(chip_value(kNaN, 20.0, 50.0, 400.0), 0.0);
    EXPECT_DOUBLE_EQ(chip_value(kInf, 20.0, 50.0, 400.0), 0.0);
}

TEST(SolutionView, HalfPotLeavesUncalledBetsOut) {
    const Game& game = *solution_of(river_spot).game;
    EXPECT_DOUBLE_EQ(half_pot(game, 0), 50.0);
    const std::uint64_t facing_bet = child_by_type(game, 0, "bet");
    EXPECT_DOUBLE_EQ(half_pot(game, facing_bet), 50.0);  // the bet isn't matched yet
    const std::uint64_t facing_raise = child_by_type(game, facing_bet, "raise");
    EXPECT_DOUBLE_EQ(half_pot(game, facing_raise), (100.0 + 2.0 * 75.0) * 0.5);
    EXPECT_GT(game.node(facing_raise).pot, 250);
}

TEST(SolutionView, ActionTextsUseTheNodesPot) {
    const Game& game = *solution_of(river_spot).game;
    EXPECT_EQ(node_action_names(game, 0), (std::vector<std::string>{"Check", "Bet 75%"}));
    EXPECT_EQ(node_action_types(game, 0), (std::vector<std::string>{"check", "bet 75%"}));
    // Facing the bet, sizes are a share of the node's pot of 175, not of the starting pot.
    const std::uint64_t facing_bet = child_by_type(game, 0, "bet");
    ASSERT_EQ(game.node(facing_bet).pot, 175);
    const std::size_t raise = action_by_type(game, facing_bet, "raise");
    const double percent = game.node(facing_bet).actions[raise].amount / 175.0 * 100.0;
    char expected[32];
    std::snprintf(expected, sizeof expected, "Raise %.0f%%", percent);
    EXPECT_EQ(node_action_names(game, facing_bet)[raise], expected);
    EXPECT_TRUE(node_action_names(game, game.node_count()).empty());
}

}  // namespace
}  // namespace kelvane_app
