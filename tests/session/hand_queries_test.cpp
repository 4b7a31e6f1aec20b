#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <numeric>
#include <stdexcept>

#include "session/hand_categories.h"
#include "session/hand_combos.h"
#include "session/hand_strategy.h"
#include "solved_spots.h"

namespace kelvane_app {
namespace {

using namespace testing;
using kelvane::Game;
using kelvane::Pocket;

std::string text(kelvane::Card card) { return kelvane::card_to_string(static_cast<std::int8_t>(card)); }

const HandCombo* find_combo(const HandCombos& combos, const Pocket& pocket) {
    for (const HandCombo& combo : combos.combos)
        if (combo.c1 == text(pocket.first) && combo.c2 == text(pocket.second)) return &combo;
    return nullptr;
}

TEST(HandStrategy, ClassesAreWeightedMeansOfTheirCombos) {
    const SolutionView solution = solution_of(river_spot);
    const Game& game = *solution.game;
    const HandStrategy strategy = hand_strategy(solved(river_spot), 0);
    ASSERT_TRUE(strategy.valid);
    ASSERT_EQ(strategy.labels, kelvane::hand_class_grid());
    const std::size_t actions = game.node(0).actions.size();
    EXPECT_EQ(strategy.action_names, node_action_names(game, 0));
    EXPECT_EQ(strategy.action_types, node_action_types(game, 0));
    ASSERT_EQ(strategy.weights.size(), 169u);
    ASSERT_EQ(strategy.dominant_types.size(), 169u);
    ASSERT_EQ(strategy.action_probs.size(), 169u * actions);

    const std::vector<float> per_hand = solution.solver->average_hand_strategy(0);
    const std::size_t hands = game.hand_count(kelvane::kSeatOop);
    std::map<std::string, std::pair<double, std::vector<double>>> expected;
    for (std::size_t h = 0; h < hands; ++h) {
        auto& [weight, sums] = expected[kelvane::hand_class_label(game.hands(kelvane::kSeatOop)[h])];
        const double w = game.root_weights(kelvane::kSeatOop)[h];
        weight += w;
        sums.resize(actions);
        for (std::size_t a = 0; a < actions; ++a) sums[a] += w * per_hand[a * hands + h];
    }
    for (std::size_t i = 0; i < strategy.labels.size(); ++i) {
        const auto found = expected.find(strategy.labels[i]);
        if (found == expected.end()) {
            // A label with no combos in the range.
            EXPECT_EQ(strategy.weights[i], 0.0f);
            EXPECT_EQ(strategy.dominant_types[i], "");
            for (std::size_t a = 0; a < actions; ++a) EXPECT_EQ(strategy.action_probs[i * actions + a], 0.0f);
            continue;
        }
        const auto& [weight, sums] = found->second;
        EXPECT_FLOAT_EQ(strategy.weights[i], static_cast<float>(weight));
        std::size_t dominant = 0;
        for (std::size_t a = 0; a < actions; ++a) {
            EXPECT_NEAR(strategy.action_probs[i * actions + a], sums[a] / weight, 1e-6);
            if (sums[a] > sums[dominant]) dominant = a;
        }
        EXPECT_EQ(strategy.dominant_types[i], strategy.action_types[dominant]) << strategy.labels[i];
    }
    EXPECT_EQ(expected.size(), 8u);
}

TEST(HandCombos, RootWeightsAreTheRangeAndRowsSumToOne) {
    const SolutionView solution = solution_of(river_spot);
    const Game& game = *solution.game;
    const HandCombos combos = hand_combos(solved(river_spot), 0);
    ASSERT_TRUE(combos.valid);
    ASSERT_EQ(combos.combos.size(), game.hand_count(kelvane::kSeatOop));
    const std::size_t actions = game.node(0).actions.size();
    const std::size_t hands = game.hand_count(kelvane::kSeatOop);
    const std::vector<float> per_hand = solution.solver->average_hand_strategy(0);
    for (std::size_t h = 0; h < hands; ++h) {
        const Pocket pocket = game.hands(kelvane::kSeatOop)[h];
        const HandCombo& combo = combos.combos[h];
        EXPECT_EQ(combo.c1, text(pocket.first));
        EXPECT_EQ(combo.c2, text(pocket.second));
        EXPECT_EQ(combo.weight, game.root_weights(kelvane::kSeatOop)[h]);
        ASSERT_EQ(combo.action_probs.size(), actions);
        ASSERT_EQ(combo.action_evs.size(), actions);
        const double total = std::accumulate(combo.action_probs.begin(), combo.action_probs.end(), 0.0);
        EXPECT_NEAR(total, 1.0, 1e-5);
        double mix = 0.0;
        for (std::size_t a = 0; a < actions; ++a) {
            EXPECT_NEAR(combo.action_probs[a], per_hand[a * hands + h], 1e-5);
            mix += combo.action_probs[a] * combo.action_evs[a];
        }
        EXPECT_NEAR(combo.ev, mix, 1e-2);  // the node's value is its strategy's mix of the actions'
        EXPECT_EQ(combo.buckets, classify_hand(game.cards(), game.node(0).turn_card, game.node(0).river_card, pocket));
    }
}

TEST(HandCombos, EvsUseTheReachOfThePath) {
    const SolutionView solution = solution_of(river_spot);
    const Game& game = *solution.game;
    const std::uint64_t node = child_by_type(game, 0, "bet");
    const std::size_t bet = action_by_type(game, 0, "bet");
    const std::size_t fold = action_by_type(game, node, "fold");
    const std::size_t call = action_by_type(game, node, "call");
    const HandCombos combos = hand_combos(solved(river_spot), node);
    ASSERT_TRUE(combos.valid);

    // OOP arrives with its root weights times its probability of the bet.
    const std::size_t oop_hands = game.hand_count(kelvane::kSeatOop);
    const std::vector<float> root = solution.solver->average_hand_strategy(0);
    std::vector<kelvane::Card> board = game.cards().board_list;
    for (std::size_t h = 0; h < game.hand_count(kelvane::kSeatIp); ++h) {
        const Pocket mine = game.hands(kelvane::kSeatIp)[h];
        const HandCombo* combo = find_combo(combos, mine);
        ASSERT_NE(combo, nullptr);
        EXPECT_EQ(combo->weight, game.root_weights(kelvane::kSeatIp)[h]);  // IP hasn't acted yet
        double mass = 0.0, result = 0.0;
        for (std::size_t j = 0; j < oop_hands; ++j) {
            const Pocket theirs = game.hands(kelvane::kSeatOop)[j];
            if (collide(mine, theirs)) continue;
            const double r = double(game.root_weights(kelvane::kSeatOop)[j]) * std::max(root[bet * oop_hands + j], 0.0f);
            const auto a = kelvane::evaluate_on_board(mine, board);
            const auto b = kelvane::evaluate_on_board(theirs, board);
            mass += r;
            result += r * (a > b ? 125.0 : a < b ? -125.0 : 0.0);
        }
        if (mass <= 1e-6) continue;
        EXPECT_NEAR(combo->action_evs[call], 50.0 + result / mass, 1e-2);
        EXPECT_NEAR(combo->action_evs[fold], 0.0, 1e-3);
    }
}

TEST(HandCombos, OwnReachFollowsTheSeatsActions) {
    const SolutionView solution = solution_of(river_spot);
    const Game& game = *solution.game;
    const std::uint64_t facing_bet = child_by_type(game, 0, "bet");
    const std::uint64_t node = child_by_type(game, facing_bet, "raise");
    const std::size_t bet = action_by_type(game, 0, "bet");
    const HandCombos combos = hand_combos(solved(river_spot), node);
    ASSERT_TRUE(combos.valid);
    const std::size_t hands = game.hand_count(kelvane::kSeatOop);
    const std::vector<float> root = solution.solver->average_hand_strategy(0);
    for (std::size_t h = 0; h < hands; ++h) {
        const HandCombo* combo = find_combo(combos, game.hands(kelvane::kSeatOop)[h]);
        ASSERT_NE(combo, nullptr);
        EXPECT_NEAR(combo->weight, double(game.root_weights(kelvane::kSeatOop)[h]) * root[bet * hands + h], 1e-6);
    }
}

TEST(HandCombos, NoOpposingReachLeavesHalfThePot) {
    const SolutionView solution = solution_of(river_spot_checked);
    const Game& game = *solution.game;
    const std::uint64_t node = child_by_type(game, 0, "bet");  // OOP never bets here
    const HandCombos combos = hand_combos(solved(river_spot_checked), node);
    ASSERT_TRUE(combos.valid);
    ASSERT_FALSE(combos.combos.empty());
    for (const HandCombo& combo : combos.combos) {
        EXPECT_EQ(combo.ev, 50.0);
        for (double ev : combo.action_evs) EXPECT_EQ(ev, 50.0);
    }
}

TEST(HandCombos, BoardBlockedHandsStayWithNoWeight) {
    const SolutionView solution = solution_of(turn_spot);
    const Game& game = *solution.game;
    const std::uint64_t chance = first_of_kind(game, kelvane::kNodeChance);
    std::uint64_t node = 0;
    for (const std::uint64_t child : game.node(chance).children) {
        if (!decision_node(game, child)) continue;
        const kelvane::Seat seat = game.node(child).seat;
        for (const Pocket pocket : game.hands(seat))
            if (kelvane::pocket_mask(pocket) & kelvane::card_bit(game.node(child).river_card)) node = child;
        if (node != 0) break;
    }
    ASSERT_NE(node, 0u);
    const kelvane::Seat seat = game.node(node).seat;
    const HandCombos combos = hand_combos(solved(turn_spot), node);
    ASSERT_TRUE(combos.valid);
    EXPECT_EQ(combos.combos.size(), game.hand_count(seat));
    std::size_t blocked = 0;
    for (const Pocket pocket : game.hands(seat)) {
        const HandCombo* combo = find_combo(combos, pocket);
        ASSERT_NE(combo, nullptr);
        if (kelvane::pocket_mask(pocket) & kelvane::card_bit(game.node(node).river_card)) {
            EXPECT_EQ(combo->weight, 0.0);
            ++blocked;
        }
    }
    EXPECT_GT(blocked, 0u);

    // The seat's plain list leaves them out.
    const HandCombos plain = seat_hand_combos(solved(turn_spot), node, seat);
    ASSERT_TRUE(plain.valid);
    EXPECT_EQ(plain.combos.size(), game.hand_count(seat) - blocked);
}

TEST(SeatHandCombos, RootWeightsOfEitherSeatOnAnyNode) {
    const SolutionView solution = solution_of(river_spot);
    const Game& game = *solution.game;
    for (const std::uint64_t node : {std::uint64_t{0}, first_of_kind(game, kelvane::kNodeTerminal)}) {
        for (kelvane::Seat seat : {kelvane::kSeatOop, kelvane::kSeatIp}) {
            const HandCombos combos = seat_hand_combos(solved(river_spot), node, seat);
            ASSERT_TRUE(combos.valid);
            ASSERT_EQ(combos.combos.size(), game.hand_count(seat));
            for (std::size_t h = 0; h < combos.combos.size(); ++h) {
                EXPECT_EQ(combos.combos[h].c1, text(game.hands(seat)[h].first));
                EXPECT_EQ(combos.combos[h].weight, game.root_weights(seat)[h]);
                EXPECT_TRUE(combos.combos[h].action_probs.empty() && combos.combos[h].buckets.empty());
            }
        }
    }
    const SolveSession& turn = solved(turn_spot);
    EXPECT_TRUE(seat_hand_combos(turn, first_of_kind(*turn.solution().game, kelvane::kNodeChance), 1).valid);
    EXPECT_FALSE(seat_hand_combos(solved(river_spot), 0, 2).valid);
}

TEST(PocketActionEvs, MatchTheCombosEvsForThatPocket) {
    const SolutionView solution = solution_of(river_spot);
    const Game& game = *solution.game;
    const std::uint64_t node = child_by_type(game, 0, "bet");
    const HandCombos combos = hand_combos(solved(river_spot), node);
    ASSERT_TRUE(combos.valid);
    for (const HandCombo& combo : combos.combos) {
        const PocketActionEvs evs = pocket_action_evs(solved(river_spot), node, kelvane::kSeatIp, combo.c1, combo.c2);
        ASSERT_TRUE(evs.valid);
        ASSERT_EQ(evs.evs.size(), combo.action_evs.size());
        for (std::size_t a = 0; a < evs.evs.size(); ++a) EXPECT_NEAR(evs.evs[a], combo.action_evs[a], 1e-2);
        // Either card order, and only the first two characters count.
        EXPECT_EQ(pocket_action_evs(solved(river_spot), node, kelvane::kSeatIp, combo.c2 + "x", combo.c1 + " ").evs,
                  evs.evs);
    }
}

TEST(PocketActionEvs, Guards) {
    const SolveSession& session = solved(river_spot);
    const Game& game = *session.solution().game;
    const Pocket oop = game.hands(kelvane::kSeatOop)[0];
    const std::string c1 = text(oop.first), c2 = text(oop.second);
    EXPECT_TRUE(pocket_action_evs(session, 0, kelvane::kSeatOop, c1, c2).valid);
    EXPECT_FALSE(pocket_action_evs(session, 0, kelvane::kSeatIp, c1, c2).valid);  // not the seat to act
    EXPECT_FALSE(pocket_action_evs(session, 0, kelvane::kSeatOop, c1.substr(0, 1), c2).valid);
    EXPECT_FALSE(pocket_action_evs(session, 0, kelvane::kSeatOop, c1, "").valid);
    EXPECT_FALSE(pocket_action_evs(session, 0, kelvane::kSeatOop, c1, c1).valid);
    EXPECT_FALSE(pocket_action_evs(session, 0, kelvane::kSeatOop, "2c", "3c").valid);  // not in the range
    EXPECT_FALSE(pocket_action_evs(session, first_of_kind(game, kelvane::kNodeTerminal), kelvane::kSeatOop, c1, c2).valid);
    EXPECT_THROW(pocket_action_evs(session, 0, kelvane::kSeatOop, "Zc", c2), std::invalid_argument);
    EXPECT_THROW(pocket_action_evs(session, 0, kelvane::kSeatOop, c1, "Aq"), std::invalid_argument);
}

}  // namespace
}  // namespace kelvane_app
