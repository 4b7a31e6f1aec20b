// Chance nodes and runouts deal every live card except those a symmetric suit stands for.

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "plan_test_support.h"
#include "tree/action_plan.h"

namespace kelvane {
namespace {

using namespace plan_test;

constexpr Action kCheck{kActionCheck, 0};

std::vector<Card> dealt_cards(const PlanNode& node) {
    std::vector<Card> cards;
    for (const Action& action : node.actions) {
        EXPECT_EQ(action.kind, kActionChance);
        cards.push_back(static_cast<Card>(action.amount));
    }
    return cards;
}

// Ascending live cards that no other suit stands for.
std::vector<Card> expected_deal(CardMask dead, const std::vector<Card>& skipped) {
    std::vector<Card> cards;
    for (int code = 0; code < kCardCount; ++code) {
        const Card card = static_cast<Card>(code);
        const bool is_skipped = std::find(skipped.begin(), skipped.end(), card) != skipped.end();
        if ((dead & card_bit(card)) == 0 && !is_skipped) cards.push_back(card);
    }
    return cards;
}

int count_suit(const std::vector<Card>& cards, int suit) {
    return static_cast<int>(std::count_if(cards.begin(), cards.end(), [&](Card c) { return suit_of(c) == suit; }));
}

constexpr int kClubs = 0;
constexpr int kDiamonds = 1;
constexpr int kHearts = 2;
constexpr int kSpades = 3;

TEST(ActionPlanChance, MonotoneFlopDealsOneOfTheThreeOffSuits) {
    const CardContext cards = make_cards("2h5h9h", "AA,KK", "QQ,JJ");
    const ActionPlan plan(make_config(kStreetFlop, 100, 100, symmetric_profile("", "")), cards);
    const PlanNode& turn_deal = plan.nodes()[follow(plan, {kCheck, kCheck})];
    ASSERT_EQ(turn_deal.kind, kNodeChance);
    const std::vector<Card> turns = dealt_cards(turn_deal);
    EXPECT_EQ(turns, expected_deal(cards.dead_cards, cards.suit_symmetry.turn_skipped));
    EXPECT_EQ(turns.size(), 23u);
    EXPECT_EQ(count_suit(turns, kClubs), 13);
    EXPECT_EQ(count_suit(turns, kHearts), 10);

    // With the 2c on the turn, spades mirror diamonds at the river.
    const PlanNode& river_deal = plan.nodes()[follow(plan, {kCheck, kCheck, {kActionChance, 0}, kCheck, kCheck})];
    ASSERT_EQ(river_deal.kind, kNodeChance);
    EXPECT_EQ(river_deal.street, kStreetRiver);
    const std::vector<Card> rivers = dealt_cards(river_deal);
    EXPECT_EQ(rivers, expected_deal(cards.dead_cards | card_bit(0), cards.suit_symmetry.river_skipped[kClubs]));
    EXPECT_EQ(rivers.size(), 35u);
    EXPECT_EQ(count_suit(rivers, kSpades), 0);
}

TEST(ActionPlanChance, PairedBoardSkipsTheMirroredSuit) {
    const CardContext cards = make_cards("7c7d2h", "AA,KK", "QQ,JJ");
    const ActionPlan plan(make_config(kStreetFlop, 100, 100, symmetric_profile("", "")), cards);
    const std::vector<Card> turns = dealt_cards(plan.nodes()[follow(plan, {kCheck, kCheck})]);
    EXPECT_EQ(turns, expected_deal(cards.dead_cards, cards.suit_symmetry.turn_skipped));
    EXPECT_EQ(turns.size(), 37u);
    EXPECT_EQ(count_suit(turns, kDiamonds), 0);
}

TEST(ActionPlanChance, OneAsymmetricComboKeepsItsSuitDealt) {
    const CardContext cards = make_cards("2h5h9h", "AA,KK,AsKs", "QQ,JJ");
    const ActionPlan plan(make_config(kStreetFlop, 100, 100, symmetric_profile("", "")), cards);
    const std::vector<Card> turns = dealt_cards(plan.nodes()[follow(plan, {kCheck, kCheck})]);
    EXPECT_EQ(turns.size(), 36u);
    EXPECT_EQ(count_suit(turns, kDiamonds), 0);
    EXPECT_EQ(count_suit(turns, kSpades), 13);
}

TEST(ActionPlanChance, AllInRunoutSkipsTheSameCards) {
    const CardContext cards = make_cards("2h5h9h", "AA,KK", "QQ,JJ");
    const ActionPlan plan(make_config(kStreetFlop, 100, 10, make_profile("a", "", "", "")), cards);
    const PlanNode& runout = plan.nodes()[follow(plan, {{kActionAllIn, 10}, {kActionCall, 10}})];
    ASSERT_EQ(runout.all_in_runout, 1);
    EXPECT_EQ(dealt_cards(runout), expected_deal(cards.dead_cards, cards.suit_symmetry.turn_skipped));
    const PlanNode& turn = plan.nodes()[runout.children.front()];
    EXPECT_EQ(turn.turn_card, 0);
    EXPECT_EQ(dealt_cards(turn), expected_deal(cards.dead_cards | card_bit(0), cards.suit_symmetry.river_skipped[kClubs]));
}

TEST(ActionPlanChance, RiverStartHasNoChanceNodes) {
    const CardContext cards = make_cards("AhKsQd7c2d", "JJ", "99");
    const ActionPlan plan(make_config(kStreetRiver, 100, 10, symmetric_profile("a", "")), cards);
    for (const PlanNode& node : plan.nodes()) {
        EXPECT_NE(node.kind, kNodeChance);
        EXPECT_EQ(node.all_in_runout, 0);
    }
}

}  // namespace
}  // namespace kelvane
