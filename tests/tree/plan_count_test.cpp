// The counting walk against the trees that ActionPlan really builds.

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "plan_test_support.h"
#include "tree/plan_count.h"

namespace kelvane {
namespace {

using namespace plan_test;

// The totals read off the built nodes, as the memory estimate once counted them.
PlanCount totals_of(const ActionPlan& plan) {
    PlanCount totals;
    totals.nodes = plan.node_count();
    for (const PlanNode& node : plan.nodes()) {
        totals.actions += node.actions.size();
        EXPECT_EQ(node.actions.size(), node.children.size());
        if (node.kind != kNodeDecision || node.actions.empty()) continue;
        ++totals.decision_nodes;
        totals.seat_actions[node.seat] += node.actions.size();
    }
    return totals;
}

void expect_same_totals(const GameConfig& config, const CardContext& cards) {
    const ActionPlan plan(config, cards);
    const PlanCount built = totals_of(plan);
    const PlanCount counted = count_plan(config, cards);
    EXPECT_TRUE(counted.complete);
    EXPECT_EQ(counted.nodes, built.nodes);
    EXPECT_EQ(counted.actions, built.actions);
    EXPECT_EQ(counted.decision_nodes, built.decision_nodes);
    EXPECT_EQ(counted.seat_actions[kSeatOop], built.seat_actions[kSeatOop]);
    EXPECT_EQ(counted.seat_actions[kSeatIp], built.seat_actions[kSeatIp]);
}

TEST(PlanCount, RiverTreeWithRaises) {
    expect_same_totals(make_config(kStreetRiver, 100, 500, symmetric_profile("33,75,a", "60,a")),
                       make_cards("Ks9d4c7h2s", "AA,KK,AK", "QQ,JJ,AQs"));
}

TEST(PlanCount, TurnTreeDealsTheRiver) {
    expect_same_totals(make_config(kStreetTurn, 100, 300, symmetric_profile("50,100", "75")),
                       make_cards("Ks9d4c7h", "AA,KK", "QQ,JJ"));
}

// A short stack makes all-in calls on the flop, whose runouts deal turn and river as terminals.
TEST(PlanCount, FlopTreeWithAllInRunoutsAndLeads) {
    expect_same_totals(make_config(kStreetFlop, 100, 120, make_profile("50", "a", "75", "a", "33")),
                       make_cards("2h5h9h", "AA,KK,AsKs", "QQ,JJ"));
}

TEST(PlanCount, JamThresholdsAndPairedBoard) {
    GameConfig config = make_config(kStreetTurn, 100, 250, symmetric_profile("40", "50"));
    config.oop_jam_threshold = 1.5;
    config.ip_jam_threshold = 0.8;
    expect_same_totals(config, make_cards("7c7d2hKs", "AA,KK", "QQ,JJ"));
}

TEST(PlanCount, NoStack) {
    expect_same_totals(make_config(kStreetRiver, 100, 0, symmetric_profile("50", "50")),
                       make_cards("AhKsQd7c2d", "JJ", "99"));
}

TEST(PlanCount, LimitStopsTheWalkWithTheTotalsReached) {
    const GameConfig config = make_config(kStreetFlop, 100, 10000, symmetric_profile("10,25,50,75,100", "50,100"));
    const CardContext cards = make_cards("2h5h9h", "AA", "KK");
    std::uint64_t asked = 0;
    const PlanCount counted = count_plan(config, cards, [&asked](const PlanCount& totals) {
        ++asked;
        EXPECT_EQ(totals.nodes, asked);
        return totals.nodes < 1000;
    });
    EXPECT_FALSE(counted.complete);
    EXPECT_EQ(counted.nodes, 1000u);
    EXPECT_EQ(asked, 1000u);
}

}  // namespace
}  // namespace kelvane
