#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "game_fixtures.h"

namespace kelvane::game_test {
namespace {

// Checks only: the tree is two checks per street and a deal between streets.
GameConfig checks_only(int street) { return spot_config(street, 100, 100, ""); }

TEST(Game, CopiesEveryPlanNodeWithItsIndex) {
    const auto game = make_random_game(spot_config(kStreetRiver, 100, 150, "50,100"), "AsKd7h4c2s", 3, 0.2);
    const ActionPlan plan(game->config(), game->cards());
    const auto& plan_nodes = plan.nodes();
    ASSERT_EQ(game->node_count(), plan_nodes.size());
    ASSERT_EQ(game->nodes().size(), plan_nodes.size());
    for (std::size_t i = 0; i < plan_nodes.size(); ++i) {
        const PlanNode& p = plan_nodes[i];
        const GameNode& n = game->node(i);
        EXPECT_EQ(n.kind, p.kind);
        EXPECT_EQ(n.seat, p.seat);
        EXPECT_EQ(n.street, p.street);
        EXPECT_EQ(n.all_in_runout, p.all_in_runout);
        EXPECT_EQ(n.committed, p.committed);
        EXPECT_TRUE(std::ranges::equal(n.children, p.children));
        ASSERT_EQ(n.actions.size(), p.actions.size());
        for (std::size_t a = 0; a < p.actions.size(); ++a) {
            EXPECT_EQ(n.actions[a].kind, p.actions[a].kind);
            EXPECT_EQ(n.actions[a].amount, p.actions[a].amount);
        }
        EXPECT_EQ(n.pot, p.pot);
        EXPECT_EQ(n.invested, p.invested);
        EXPECT_EQ(n.terminal_kind, p.terminal_kind);
        EXPECT_EQ(n.folded_seat, p.folded_seat);
        EXPECT_EQ(n.turn_card, p.turn_card);
        EXPECT_EQ(n.river_card, p.river_card);
    }
}

TEST(Game, HandListsComeFromTheDeal) {
    const auto game = make_game(checks_only(kStreetRiver), "AsKd7h4c2s", "QQ,AK", "JJ");
    for (Seat seat = 0; seat < 2; ++seat) {
        EXPECT_EQ(game->hand_count(seat), game->cards().pockets[seat].size());
        EXPECT_TRUE(std::ranges::equal(game->hands(seat), game->cards().pockets[seat]));
        EXPECT_TRUE(std::ranges::equal(game->root_weights(seat), game->cards().weights[seat]));
    }
    EXPECT_EQ(game->hand_count(kSeatOop), 6u + 9u);  // QQ, and AK without As and Kd
    EXPECT_EQ(game->hand_count(kSeatIp), 6u);
}

TEST(Game, ChanceFactorIsFixedByTheCardsStillToCome) {
    const auto game = make_game(checks_only(kStreetFlop), "Qs7d2c", "AA,KK", "JJ,TT");
    const std::uint64_t turn_deal = follow(*game, {kActionCheck, kActionCheck});
    const std::uint64_t turn = first_deal(*game, turn_deal);
    const std::uint64_t river_deal = follow(*game, {kActionCheck, kActionCheck}, turn);
    const std::uint64_t river = first_deal(*game, river_deal);

    EXPECT_EQ(game->chance_factor(0), 45.0f);
    EXPECT_EQ(game->chance_factor(turn_deal), 45.0f);
    EXPECT_EQ(game->chance_factor(turn), 44.0f);
    EXPECT_EQ(game->chance_factor(river_deal), 44.0f);
    EXPECT_EQ(game->chance_factor(river), 0.0f);
    // A fixed number, not the child count: this deal has no symmetry and 49 children.
    EXPECT_EQ(game->node(turn_deal).children.size(), 49u);
}

TEST(Game, ChanceRefsAndSwapsFollowTheSuitSymmetry) {
    // Monotone spade flop with ranges that treat all suits alike: diamonds and hearts are dealt as clubs.
    const auto game = make_game(checks_only(kStreetFlop), "2s7s9s", "AA,KK,QQ", "JJ,TT,AK");
    const SuitSymmetry& symmetry = game->cards().suit_symmetry;
    ASSERT_EQ(symmetry.turn_skipped.size(), 26u);

    const std::uint64_t turn_deal = follow(*game, {kActionCheck, kActionCheck});
    const GameNode& deal_node = game->node(turn_deal);
    EXPECT_EQ(deal_node.children.size(), 23u);
    const auto refs = game->chance_refs(turn_deal);
    ASSERT_EQ(refs.size(), symmetry.turn_skipped.size());
    for (std::size_t i = 0; i < refs.size(); ++i) {
        EXPECT_EQ(refs[i], symmetry.turn_child_of_skipped[i]);
        ASSERT_LT(refs[i], deal_node.actions.size());
        const Card skipped = symmetry.turn_skipped[i];
        const Card standing = static_cast<Card>(deal_node.actions[refs[i]].amount);
        EXPECT_EQ(rank_of(standing), rank_of(skipped));
        EXPECT_EQ(suit_of(standing), 0);  // clubs stand for both
        const Game::SeatSwaps& swaps = game->chance_swaps(turn_deal, i);
        EXPECT_EQ(&swaps, &symmetry.turn_swaps[suit_of(skipped)]);
        EXPECT_FALSE(swaps[kSeatOop].empty());
    }
    const Game::SeatSwaps& beyond = game->chance_swaps(turn_deal, refs.size());
    EXPECT_TRUE(beyond[0].empty() && beyond[1].empty());

    // River deal after the turn 2c: refs from that turn, swaps by the turn's suit.
    const std::uint64_t turn = first_deal(*game, turn_deal);
    const Card turn_card = game->node(turn).turn_card;
    ASSERT_EQ(turn_card, make_card(0, 0));
    const std::uint64_t river_deal = follow(*game, {kActionCheck, kActionCheck}, turn);
    const auto river_refs = game->chance_refs(river_deal);
    EXPECT_TRUE(std::ranges::equal(river_refs, symmetry.river_child_of_skipped[turn_card]));
    const auto& river_skipped = symmetry.river_skipped[suit_of(turn_card)];
    ASSERT_FALSE(river_skipped.empty());
    for (std::size_t i = 0; i < river_skipped.size(); ++i)
        EXPECT_EQ(&game->chance_swaps(river_deal, i), &symmetry.river_swaps[0][suit_of(river_skipped[i])]);

}

TEST(Game, AsymmetricRangesGiveNoChanceRefs) {
    const auto game = make_game(checks_only(kStreetTurn), "Qs7d2c5h", "AA,KcKd", "JJ");
    const std::uint64_t river_deal = follow(*game, {kActionCheck, kActionCheck});
    ASSERT_EQ(game->node(river_deal).kind, kNodeChance);
    EXPECT_TRUE(game->chance_refs(river_deal).empty());
    const Game::SeatSwaps& swaps = game->chance_swaps(river_deal, 0);
    EXPECT_TRUE(swaps[0].empty() && swaps[1].empty());
}

// Every listed hand misses `dead`, and every hand that misses it is listed.
void expect_exactly_hands_missing(const Game& game, std::uint64_t node, Seat seat, CardMask dead) {
    const auto live = game.live_hands(node, seat);
    std::vector<std::uint16_t> expected;
    for (std::size_t h = 0; h < game.hand_count(seat); ++h)
        if ((pocket_mask(game.hands(seat)[h]) & dead) == 0) expected.push_back(static_cast<std::uint16_t>(h));
    EXPECT_TRUE(std::ranges::equal(live, expected)) << "node " << node;
}

TEST(Game, LiveHandsAndDeadCardsFollowTheNodesBoard) {
    const auto game = make_random_game(checks_only(kStreetFlop), "Qs7d2c", 5, 0.15);
    const CardMask flop = board_mask(game->cards().board);
    const std::uint64_t turn = first_deal(*game, follow(*game, {kActionCheck, kActionCheck}));
    const std::uint64_t river = first_deal(*game, follow(*game, {kActionCheck, kActionCheck}, turn));
    const Card turn_card = game->node(turn).turn_card;
    const Card river_card = game->node(river).river_card;
    ASSERT_NE(turn_card, kNoCard);
    ASSERT_NE(river_card, kNoCard);

    EXPECT_EQ(game->node_dead_cards(0), flop);
    EXPECT_EQ(game->node_dead_cards(turn), flop | card_bit(turn_card));
    EXPECT_EQ(game->node_dead_cards(river), flop | card_bit(turn_card) | card_bit(river_card));
    for (Seat seat = 0; seat < 2; ++seat) {
        EXPECT_EQ(game->live_hands(0, seat).data(), game->cards().all_pockets[seat].data());
        expect_exactly_hands_missing(*game, turn, seat, card_bit(turn_card));
        expect_exactly_hands_missing(*game, river, seat, card_bit(turn_card) | card_bit(river_card));
    }
}

TEST(Game, LocksAreStoredReplacedAndLookedUpByNode) {
    auto game = make_game(spot_config(kStreetRiver, 100, 100, "50"), "AsKd7h4c2s", "QQ", "JJ");
    EXPECT_EQ(game->locking_strategy(0), nullptr);
    game->set_lock(0, {1.0f, 0.0f, -1.0f});
    ASSERT_NE(game->locking_strategy(0), nullptr);
    EXPECT_EQ(*game->locking_strategy(0), (std::vector<float>{1.0f, 0.0f, -1.0f}));
    game->set_lock(0, {0.5f});
    EXPECT_EQ(*game->locking_strategy(0), (std::vector<float>{0.5f}));
    EXPECT_EQ(game->locking_strategy(1), nullptr);
    EXPECT_EQ(game->locking_strategy(1u << 20), nullptr);
    // Locks alone never change the tree.
    EXPECT_EQ(game->node_count(), ActionPlan(game->config(), game->cards()).node_count());
    game->set_lock(game->node_count(), {1.0f});  // out of range: ignored
    EXPECT_EQ(game->locking_strategy(game->node_count()), nullptr);
}

TEST(Game, NodesViewOneFlatListOfActionsAndOfChildren) {
    const auto game = make_random_game(spot_config(kStreetRiver, 100, 150, "50,100"), "AsKd7h4c2s", 3, 0.2);
    const Action* next_action = game->node(0).actions.data();
    const std::uint64_t* next_child = game->node(0).children.data();
    for (const GameNode& n : game->nodes()) {
        EXPECT_EQ(n.actions.data(), next_action);
        EXPECT_EQ(n.children.data(), next_child);
        next_action += n.actions.size();
        next_child += n.children.size();
    }
}

TEST(Game, CompressStateIsOffUntilTheSolverSetsIt) {
    auto game = make_game(checks_only(kStreetRiver), "AsKd7h4c2s", "QQ", "JJ");
    EXPECT_FALSE(game->compress_state());
    game->set_compress_state(true);
    EXPECT_TRUE(game->compress_state());
}

}  // namespace
}  // namespace kelvane::game_test
