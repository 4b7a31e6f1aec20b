#include "session/node_lock_setup.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "session/solve_setup.h"
#include "session_test_support.h"

namespace kelvane_app {
namespace {

std::unique_ptr<kelvane::Game> build_game(const SolveConfig& config) {
    const SolveSetup setup = make_solve_setup(config);
    return std::make_unique<kelvane::Game>(setup.game, kelvane::CardContext(setup.board, setup.ranges));
}

// The in-position node facing the root bet: fold, call and an all-in raise.
SolveConfig spot_with_raises() {
    SolveConfig config = small_river_spot();
    config.ip.river.raise_sizes = "100";
    return config;
}

std::uint64_t facing_bet(const kelvane::Game& game) { return game.node(0).children[1]; }

// Value of every combo of one class at one action, or nothing if the combos disagree.
std::vector<float> class_row(const kelvane::Game& game, std::uint64_t node, const std::string& label) {
    const std::vector<float>* lock = game.locking_strategy(node);
    const auto hands = game.hands(game.node(node).seat);
    std::vector<float> row;
    for (std::size_t a = 0; a < game.node(node).actions.size(); ++a) {
        bool found = false;
        for (std::size_t h = 0; h < hands.size(); ++h) {
            if (kelvane::hand_class_label(hands[h]) != label) continue;
            const float value = (*lock)[a * hands.size() + h];
            if (!found) row.push_back(value);
            else EXPECT_EQ(row.back(), value);
            found = true;
        }
    }
    return row;
}

TEST(NodeLockSetup, TwoActionsSplitTheRest) {
    auto game = build_game(small_river_spot());
    apply_node_locks(*game, {{0, "KK", 0, 0.7f}});
    const std::vector<float>* lock = game->locking_strategy(0);
    ASSERT_NE(lock, nullptr);
    EXPECT_EQ(lock->size(), 2 * game->hand_count(0));
    EXPECT_EQ(class_row(*game, 0, "KK"), (std::vector<float>{0.7f, 1.0f - 0.7f}));
    EXPECT_EQ(class_row(*game, 0, "AA"), (std::vector<float>{-1.0f, -1.0f}));
    EXPECT_EQ(class_row(*game, 0, "65s"), (std::vector<float>{-1.0f, -1.0f}));
}

TEST(NodeLockSetup, ThreeActionsShareTheRemainderEvenly) {
    auto game = build_game(spot_with_raises());
    const std::uint64_t node = facing_bet(*game);
    ASSERT_EQ(game->node(node).actions.size(), 3u);
    apply_node_locks(*game, {{node, "QQ", 2, 0.4f}});
    const float rest = (1.0f - 0.4f) / 2.0f;
    EXPECT_EQ(class_row(*game, node, "QQ"), (std::vector<float>{rest, rest, 0.4f}));
    EXPECT_EQ(class_row(*game, node, "JJ"), (std::vector<float>{-1.0f, -1.0f, -1.0f}));
}

TEST(NodeLockSetup, SingleActionIsAlwaysOne) {
    SolveConfig config = small_river_spot();
    config.oop.river.bet_sizes.clear();
    auto game = build_game(config);
    ASSERT_EQ(game->node(0).actions.size(), 1u);
    apply_node_locks(*game, {{0, "AA", 0, 0.3f}, {0, "KK", 0, 0.0f}});
    EXPECT_EQ(class_row(*game, 0, "AA"), std::vector<float>{1.0f});
    EXPECT_EQ(class_row(*game, 0, "KK"), std::vector<float>{1.0f});
}

TEST(NodeLockSetup, ProbabilityIsClamped) {
    auto game = build_game(small_river_spot());
    apply_node_locks(*game, {{0, "KK", 0, 1.5f}, {0, "77", 1, -0.5f}});
    EXPECT_EQ(class_row(*game, 0, "KK"), (std::vector<float>{1.0f, 0.0f}));
    EXPECT_EQ(class_row(*game, 0, "77"), (std::vector<float>{1.0f, 0.0f}));
}

TEST(NodeLockSetup, LaterEntryWins) {
    auto game = build_game(small_river_spot());
    apply_node_locks(*game, {{0, "KK", 0, 0.2f}, {0, "KK", 1, 0.9f}});
    const std::vector<float> row = class_row(*game, 0, "KK");
    EXPECT_FLOAT_EQ(row[0], 0.1f);
    EXPECT_EQ(row[1], 0.9f);
}

TEST(NodeLockSetup, TwoClassesOnOneNode) {
    auto game = build_game(small_river_spot());
    apply_node_locks(*game, {{0, "KK", 1, 1.0f}, {0, "77", 0, 1.0f}});
    EXPECT_EQ(class_row(*game, 0, "KK"), (std::vector<float>{0.0f, 1.0f}));
    EXPECT_EQ(class_row(*game, 0, "77"), (std::vector<float>{1.0f, 0.0f}));
    EXPECT_EQ(class_row(*game, 0, "AA"), (std::vector<float>{-1.0f, -1.0f}));
}

TEST(NodeLockSetup, LocksOnEachSeat) {
    auto game = build_game(spot_with_raises());
    const std::uint64_t node = facing_bet(*game);
    apply_node_locks(*game, {{0, "AA", 1, 1.0f}, {node, "AKo", 1, 1.0f}});
    EXPECT_NE(game->locking_strategy(0), nullptr);
    ASSERT_NE(game->locking_strategy(node), nullptr);
    EXPECT_EQ(game->locking_strategy(node)->size(), 3 * game->hand_count(1));
    EXPECT_EQ(class_row(*game, node, "AKo"), (std::vector<float>{0.0f, 1.0f, 0.0f}));
}

TEST(NodeLockSetup, DroppedEntries) {
    auto game = build_game(small_river_spot());
    std::uint64_t terminal = 0;
    while (game->node(terminal).kind != kelvane::kNodeTerminal) ++terminal;
    apply_node_locks(*game, {
                                {0, "", 0, 1.0f},                    // no hand
                                {game->node_count(), "KK", 0, 1.0f},  // past the tree
                                {0, "KK", 2, 1.0f},                  // action index equal to the count
                                {terminal, "KK", 0, 1.0f},           // not a decision
                                {0, "22", 0, 1.0f},                  // a class with no combo in the range
                            });
    for (std::uint64_t node = 0; node < game->node_count(); ++node)
        EXPECT_EQ(game->locking_strategy(node), nullptr) << node;
}

TEST(NodeLockSetup, ChanceNodeIsDropped) {
    SolveConfig config = small_river_spot();
    config.starting_street = "flop";
    auto game = build_game(config);
    std::uint64_t chance = 0;
    while (game->node(chance).kind != kelvane::kNodeChance) ++chance;
    apply_node_locks(*game, {{chance, "KK", 0, 1.0f}});
    EXPECT_EQ(game->locking_strategy(chance), nullptr);
}

// Same node list, index by index: a lock names its node by index.
void expect_same_nodes(const kelvane::Game& a, const kelvane::Game& b) {
    ASSERT_EQ(a.node_count(), b.node_count());
    for (std::uint64_t i = 0; i < a.node_count(); ++i) {
        ASSERT_EQ(a.node(i).kind, b.node(i).kind) << i;
        ASSERT_EQ(a.node(i).seat, b.node(i).seat) << i;
        ASSERT_TRUE(std::ranges::equal(a.node(i).actions, b.node(i).actions)) << i;
        ASSERT_TRUE(std::ranges::equal(a.node(i).children, b.node(i).children)) << i;
    }
}

TEST(NodeLockSetup, LocksDoNotChangeTheTree) {
    auto plain = build_game(spot_with_raises());
    auto locked = build_game(spot_with_raises());
    apply_node_locks(*locked, {{0, "KK", 1, 1.0f}, {facing_bet(*locked), "QQ", 0, 0.5f}});
    expect_same_nodes(*plain, *locked);
}

}  // namespace
}  // namespace kelvane_app
