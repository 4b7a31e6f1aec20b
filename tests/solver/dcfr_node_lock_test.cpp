// Node locks in the three walks: overlay, regret freeze, and best responses that respect a seat's locks.

#include <gtest/gtest.h>

#include <algorithm>
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

// Action-major lock giving every hand in `hands` probability q on action `a`, the rest split evenly.
std::vector<float> class_lock(std::size_t actions, std::size_t hand_count, const std::vector<std::size_t>& hands,
                              std::size_t a, float q) {
    std::vector<float> lock(actions * hand_count, -1.0f);
    for (std::size_t h : hands) {
        for (std::size_t b = 0; b < actions; ++b) {
            lock[b * hand_count + h] = b == a ? q : (1.0f - q) / static_cast<float>(actions - 1);
        }
    }
    return lock;
}

std::vector<std::size_t> hands_of_class(const Game& game, std::uint8_t seat, const std::string& label) {
    std::vector<std::size_t> hands;
    const std::span<const Pocket> pockets = game.hands(seat);
    for (std::size_t h = 0; h < pockets.size(); ++h) {
        if (hand_class_label(pockets[h]) == label) hands.push_back(h);
    }
    return hands;
}

std::vector<std::size_t> all_hands(const Game& game, std::uint8_t seat) {
    std::vector<std::size_t> hands(game.hand_count(seat));
    for (std::size_t h = 0; h < hands.size(); ++h) hands[h] = h;
    return hands;
}

TEST(NodeLocks, FullLockOnOneActionIsReproducedExactly) {
    auto game = river_game();
    const GameNode& root = game->node(0);
    ASSERT_EQ(root.actions.size(), 2u);
    const std::size_t hands = game->hand_count(0);
    game->set_lock(0, class_lock(2, hands, all_hands(*game, 0), 0, 1.0f));
    DiscountedCfr cfr(quiet_options(60));
    cfr.solve(*game);
    for (float r : cfr.regrets_of(0)) EXPECT_EQ(r, 0.0f);
    const std::vector<float> average = cfr.average_hand_strategy(0);
    for (std::size_t h = 0; h < hands; ++h) {
        EXPECT_EQ(average[h], 1.0f);
        EXPECT_EQ(average[hands + h], 0.0f);
    }
}

TEST(NodeLocks, TwoLockedClassesFreezeTheWholeNode) {
    auto game = river_game();
    const std::size_t hands = game->hand_count(0);
    const std::vector<std::size_t> aces = hands_of_class(*game, 0, "AA");
    const std::vector<std::size_t> kings = hands_of_class(*game, 0, "KK");
    ASSERT_FALSE(aces.empty());
    ASSERT_FALSE(kings.empty());
    std::vector<float> lock = class_lock(2, hands, aces, 1, 0.7f);
    const std::vector<float> kings_lock = class_lock(2, hands, kings, 0, 0.9f);
    for (std::size_t h : kings) {
        lock[h] = kings_lock[h];
        lock[hands + h] = kings_lock[hands + h];
    }
    game->set_lock(0, lock);
    const std::uint64_t node_count = game->node_count();
    DiscountedCfr cfr(quiet_options(120));
    cfr.solve(*game);
    EXPECT_EQ(game->node_count(), node_count);  // locks never reshape the tree
    for (float r : cfr.regrets_of(0)) EXPECT_EQ(r, 0.0f);
    const std::vector<float> average = cfr.average_hand_strategy(0);
    for (std::size_t h = 0; h < hands; ++h) {
        const bool ace = std::find(aces.begin(), aces.end(), h) != aces.end();
        const bool king = std::find(kings.begin(), kings.end(), h) != kings.end();
        const float bet = ace ? 0.7f : king ? 0.1f : 0.5f;  // unlocked hands stay uniform
        EXPECT_NEAR(average[hands + h], bet, 1e-6f) << h;
        EXPECT_NEAR(average[h], 1.0f - bet, 1e-6f) << h;
    }
}

TEST(NodeLocks, LockOnOneActionNode) {
    auto game = testing::make_game(PolarizedSpot::setup());
    const std::uint64_t node = child_by_kind(*game, 0, kActionCheck);
    ASSERT_EQ(game->node(node).actions.size(), 1u);
    game->set_lock(node, std::vector<float>(game->hand_count(1), 1.0f));
    DiscountedCfr cfr(quiet_options(10));
    cfr.solve(*game);
    for (float p : cfr.average_hand_strategy(node)) EXPECT_EQ(p, 1.0f);
    for (float r : cfr.regrets_of(node)) EXPECT_EQ(r, 0.0f);
}

TEST(NodeLocks, ExploitabilityIsMeasuredAgainstTheLockedGame) {
    auto game = testing::make_game(PolarizedSpot::setup());
    const std::uint64_t facing_bet = child_by_kind(*game, 0, kActionAllIn);
    const std::size_t ip_hands = game->hand_count(1);
    // The bluff-catcher is forced to fold everything: the first seat should bluff all its air.
    game->set_lock(facing_bet, class_lock(2, ip_hands, all_hands(*game, 1), 0, 1.0f));
    DiscountedCfr cfr(quiet_options(400));
    cfr.solve(*game);
    EXPECT_LT(cfr.last_exploitability(), 0.05f);

    // The value hands win the pot either way; the air now bluffs every time.
    const std::vector<float> root = cfr.average_hand_strategy(0);
    const std::size_t oop_hands = game->hand_count(0);
    for (std::size_t h = 0; h < oop_hands; ++h) {
        const Pocket pocket = game->hands(0)[h];
        if (rank_of(pocket.first) != rank_of(pocket.second)) {
            EXPECT_GT(root[oop_hands + h], 0.98f) << h;
        }
    }

    // Measured as if the lock weren't there, calling would gain a great deal.
    game->set_lock(facing_bet, {});
    EXPECT_GT(cfr.measure_exploitability(*game), 10.0f);
}

// The best-response value of a locked node from its children's values, for a few lock shapes.
class LockedBestResponse : public ::testing::Test {
protected:
    void SetUp() override {
        game = river_game();
        cfr = std::make_unique<DiscountedCfr>(quiet_options(30));
        cfr->solve(*game);
        // The second seat facing a bet: fold, call, raise.
        node = child_by_kind(*game, 0, kActionBet);
        actions = game->node(node).actions.size();
        hands = game->hand_count(1);
        reach = std::vector<float>(game->root_weights(0).begin(), game->root_weights(0).end());
        child_values.resize(actions * hands);
        ScratchStack scratch;
        for (std::size_t a = 0; a < actions; ++a) {
            std::span<float> row(child_values.data() + a * hands, hands);
            cfr->compute_best_cfvalue_recursive(*game, game->node(node).children[a], 1, reach, row, 0, scratch);
        }
    }

    std::vector<float> node_value() {
        ScratchStack scratch;
        std::vector<float> out(hands);
        cfr->compute_best_cfvalue_recursive(*game, node, 1, reach, out, 0, scratch);
        return out;
    }

    float best(std::size_t h) const {
        float value = child_values[h];
        for (std::size_t a = 1; a < actions; ++a) value = std::max(value, child_values[a * hands + h]);
        return value;
    }

    std::unique_ptr<Game> game;
    std::unique_ptr<DiscountedCfr> cfr;
    std::uint64_t node = 0;
    std::size_t actions = 0;
    std::size_t hands = 0;
    std::vector<float> reach;
    std::vector<float> child_values;
};

TEST_F(LockedBestResponse, UnlockedHandsTakeTheBestAction) {
    ASSERT_EQ(actions, 3u);
    const std::vector<float> out = node_value();
    for (std::size_t h = 0; h < hands; ++h) EXPECT_EQ(out[h], best(h)) << h;
}

TEST_F(LockedBestResponse, LockedHandsFollowTheirLock) {
    std::vector<float> lock(actions * hands, -1.0f);
    lock[0 * hands + 1] = 0.25f;
    lock[1 * hands + 1] = 0.75f;
    lock[2 * hands + 1] = 0.0f;
    // Row 0 decides: a set sign there means the hand is free, whatever the later rows hold.
    lock[1 * hands + 2] = 0.7f;
    game->set_lock(node, lock);
    const std::vector<float> out = node_value();
    const double locked = static_cast<double>(child_values[1]) * 0.25 + static_cast<double>(child_values[hands + 1]) * 0.75;
    EXPECT_EQ(out[1], static_cast<float>(locked));
    EXPECT_EQ(out[2], best(2));
    EXPECT_EQ(out[0], best(0));
}

TEST_F(LockedBestResponse, LockOfOneDistributionForTheWholeNode) {
    game->set_lock(node, {0.5f, -1.0f, 0.5f});
    const std::vector<float> out = node_value();
    for (std::size_t h = 0; h < hands; ++h) {
        float expected = 0.0f;
        for (std::size_t a = 0; a < actions; ++a) expected += child_values[a * hands + h] * (a == 1 ? -1.0f : 0.5f);
        EXPECT_FLOAT_EQ(out[h], expected) << h;
    }
}

TEST(NodeLocks, WholeNodeDistributionWinsWhenThereIsOneHand) {
    // With one hand, a lock of A entries is also A·H long; the whole-node reading applies, negative entries too.
    auto game = testing::make_game({"AhKdQcJs9h", "99,43", "8c8d", 100, 100, "100", "", "", ""});
    ASSERT_EQ(game->hand_count(1), 1u);
    DiscountedCfr cfr(quiet_options(5));
    cfr.solve(*game);
    const std::uint64_t node = child_by_kind(*game, 0, kActionAllIn);
    const GameNode& facing = game->node(node);
    ASSERT_EQ(facing.actions.size(), 2u);
    ScratchStack scratch;
    const std::span<const float> reach = game->root_weights(0);
    std::vector<float> fold(1), call(1), out(1);
    cfr.compute_best_cfvalue_recursive(*game, facing.children[0], 1, reach, fold, 0, scratch);
    cfr.compute_best_cfvalue_recursive(*game, facing.children[1], 1, reach, call, 0, scratch);
    ASSERT_NE(call[0], 0.0f);
    game->set_lock(node, {0.5f, -1.0f});
    cfr.compute_best_cfvalue_recursive(*game, node, 1, reach, out, 0, scratch);
    EXPECT_EQ(out[0], 0.0f + fold[0] * 0.5f + call[0] * -1.0f);
}

}  // namespace
}  // namespace kelvane
