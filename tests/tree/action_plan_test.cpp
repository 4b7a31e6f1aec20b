// Decision expansion and node fields of small trees, checked action by action and node by node.

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>
#include <string>

#include "plan_test_support.h"
#include "tree/action_plan.h"
#include "tree/sizing_profile.h"

namespace kelvane {
namespace {

using namespace plan_test;

constexpr const char* kRiverBoard = "AhKsQd7c2d";
constexpr const char* kTurnBoard = "AhKsQd7c";
constexpr Card k7c = 20;

CardContext river_cards() { return make_cards(kRiverBoard, "JJ,TT", "99,88"); }
CardContext turn_cards() { return make_cards(kTurnBoard, "JJ,TT", "99,88"); }

std::string actions_at(const ActionPlan& plan, std::uint64_t node) { return describe(plan.nodes().at(node).actions); }

std::string head_text(const PlanNode& node) {
    return "kind=" + std::to_string(node.kind) + " seat=" + std::to_string(node.seat) +
           " street=" + std::to_string(node.street) + " runout=" + std::to_string(node.all_in_runout) +
           " committed=" + std::to_string(node.committed) + " pot=" + std::to_string(node.pot) + " invested=" +
           std::to_string(node.invested[0]) + "/" + std::to_string(node.invested[1]) +
           " terminal_kind=" + std::to_string(node.terminal_kind) + " folded=" + std::to_string(node.folded_seat) +
           " cards=" + std::to_string(node.turn_card) + "/" + std::to_string(node.river_card);
}

std::string node_text(const PlanNode& node) { return head_text(node) + " [" + describe(node.actions) + "]"; }

std::string children_text(const PlanNode& node) {
    std::string text;
    for (const std::uint64_t child : node.children) text += std::to_string(child) + ",";
    return text;
}

TEST(ActionPlanShape, RiverTreeNodeByNodeInDepthFirstOrder) {
    const ScopedEnv one_worker("KELVANE_ACTIONPLAN_MAX_WORKERS", "1");
    const CardContext cards = river_cards();
    const ActionPlan plan(make_config(kStreetRiver, 100, 100, make_profile("50%", "", "100%", "")), cards);

    const std::vector<std::string> expected{
        "kind=0 seat=0 street=2 runout=0 committed=0 pot=100 invested=0/0 terminal_kind=0 folded=0 cards=20/1 [x0 b50]",
        "kind=0 seat=1 street=2 runout=0 committed=0 pot=100 invested=0/0 terminal_kind=2 folded=0 cards=20/1 [x0 a100]",
        "kind=2 seat=1 street=2 runout=0 committed=0 pot=100 invested=0/0 terminal_kind=2 folded=1 cards=20/1 []",
        "kind=0 seat=0 street=2 runout=0 committed=0 pot=200 invested=0/100 terminal_kind=6 folded=1 cards=20/1 [f0 c100]",
        "kind=2 seat=0 street=2 runout=0 committed=0 pot=200 invested=0/100 terminal_kind=1 folded=0 cards=20/1 []",
        "kind=2 seat=0 street=2 runout=0 committed=100 pot=300 invested=100/100 terminal_kind=3 folded=0 cards=20/1 []",
        "kind=0 seat=1 street=2 runout=0 committed=0 pot=150 invested=50/0 terminal_kind=4 folded=0 cards=20/1 [f0 c50]",
        "kind=2 seat=1 street=2 runout=0 committed=0 pot=150 invested=50/0 terminal_kind=1 folded=1 cards=20/1 []",
        "kind=2 seat=0 street=2 runout=0 committed=50 pot=200 invested=50/50 terminal_kind=3 folded=1 cards=20/1 []",
    };
    ASSERT_EQ(plan.node_count(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) EXPECT_EQ(node_text(plan.nodes()[i]), expected[i]) << i;
    EXPECT_EQ(children_text(plan.nodes()[0]), "1,6,");
    EXPECT_EQ(children_text(plan.nodes()[1]), "2,3,");
    EXPECT_EQ(children_text(plan.nodes()[3]), "4,5,");
    EXPECT_EQ(children_text(plan.nodes()[6]), "7,8,");
}

TEST(ActionPlanShape, TurnTreeWithRiverDealsAndAllInRunout) {
    const CardContext cards = turn_cards();
    const ActionPlan plan(make_config(kStreetTurn, 100, 50, make_profile("", "", "a", "")), cards);
    // Root: one check; IP: check or all-in; each of 48 rivers repeats that; the call runs out 48 rivers.
    EXPECT_EQ(plan.node_count(), 3u + 48u * 6u + 3u + 48u);
    expect_single_parents(plan);

    EXPECT_EQ(actions_at(plan, 0), "x0");
    const std::uint64_t ip = follow(plan, {{kActionCheck, 0}});
    EXPECT_EQ(actions_at(plan, ip), "x0 a50");

    const std::uint64_t deal = follow(plan, {{kActionCheck, 0}, {kActionCheck, 0}});
    const PlanNode& chance = plan.nodes()[deal];
    EXPECT_EQ(head_text(chance), head_text(PlanNode{kNodeChance, kSeatOop, kStreetRiver, 0, 0, {}, {}, 100, {0, 0},
                                                    kActionCheck, kSeatIp, k7c, kNoCard}));
    ASSERT_EQ(chance.children.size(), 48u);
    Card previous = 0;
    for (std::size_t i = 0; i < chance.children.size(); ++i) {
        const Action action = chance.actions[i];
        EXPECT_EQ(action.kind, kActionChance);
        EXPECT_TRUE(i == 0 || action.amount > previous);
        previous = static_cast<Card>(action.amount);
        EXPECT_EQ(card_bit(previous) & cards.dead_cards, 0u);
        const PlanNode& river = plan.nodes()[chance.children[i]];
        EXPECT_EQ(node_text(river),
                  node_text(PlanNode{kNodeDecision, kSeatOop, kStreetRiver, 0, 0, {{kActionCheck, 0}}, {}, 100,
                                     {0, 0}, kActionCheck, kSeatIp, k7c, previous}));
    }

    const std::uint64_t called = follow(plan, {{kActionCheck, 0}, {kActionAllIn, 50}, {kActionCall, 50}});
    const PlanNode& runout = plan.nodes()[called];
    EXPECT_EQ(runout.kind, kNodeTerminal);
    EXPECT_EQ(runout.all_in_runout, 1);
    EXPECT_EQ(runout.street, kStreetRiver);
    EXPECT_EQ(runout.committed, 50);
    EXPECT_EQ(runout.pot, 200);
    ASSERT_EQ(runout.children.size(), 48u);
    for (std::size_t i = 0; i < runout.children.size(); ++i) {
        const PlanNode& end = plan.nodes()[runout.children[i]];
        EXPECT_EQ(node_text(end), node_text(PlanNode{kNodeTerminal, kSeatOop, kStreetRiver, 0, 50, {}, {}, 200,
                                                     {50, 50}, kActionCall, kSeatOop, k7c,
                                                     static_cast<Card>(runout.actions[i].amount)}));
    }
}

TEST(ActionPlanShape, FlopAllInCallRunsOutTurnThenRiver) {
    const CardContext cards = make_cards("AhKsQd", "JJ", "99");
    const ActionPlan plan(make_config(kStreetFlop, 100, 10, make_profile("a", "", "", "")), cards);
    EXPECT_EQ(actions_at(plan, 0), "x0 a10");
    const std::uint64_t called = follow(plan, {{kActionAllIn, 10}, {kActionCall, 10}});
    const PlanNode& runout = plan.nodes()[called];
    EXPECT_EQ(head_text(runout), head_text(PlanNode{kNodeTerminal, kSeatOop, kStreetTurn, 1, 10, {}, {}, 120,
                                                    {10, 10}, kActionCall, kSeatIp, kNoCard, kNoCard}));
    ASSERT_EQ(runout.children.size(), 49u);
    for (const std::uint64_t turn_index : runout.children) {
        const PlanNode& turn = plan.nodes()[turn_index];
        EXPECT_EQ(turn.kind, kNodeTerminal);
        EXPECT_EQ(turn.street, kStreetTurn);
        EXPECT_EQ(turn.all_in_runout, 1);
        ASSERT_NE(turn.turn_card, kNoCard);
        ASSERT_EQ(turn.children.size(), 48u);
        for (const std::uint64_t river_index : turn.children) {
            const PlanNode& river = plan.nodes()[river_index];
            EXPECT_EQ(river.kind, kNodeTerminal);
            EXPECT_EQ(river.street, kStreetRiver);
            EXPECT_EQ(river.all_in_runout, 0);
            EXPECT_EQ(river.turn_card, turn.turn_card);
            EXPECT_NE(river.river_card, turn.turn_card);
            EXPECT_TRUE(river.children.empty());
        }
    }
}

// Chip sums of pots and stacks near the 32-bit limit are formed in 64 bits: the build must not
// overflow (the sanitizer run aborts on signed overflow), whatever the narrowed fields then hold.
TEST(ActionPlanEdge, ChipCountsNearThe32BitLimitBuildWithoutOverflow) {
    const CardContext cards = make_cards("AhKsQd7c2s", "AA,KK", "QQ,JJ");
    const GameConfig config = make_config(kStreetRiver, 2'000'000'000, 2'000'000'000, symmetric_profile("75%,a", "200%"));
    const ActionPlan plan(config, cards);
    EXPECT_GT(plan.node_count(), 5u);
    expect_single_parents(plan);
}

TEST(ActionPlanEdge, StackZeroRootTurnsEveryBetIntoUnmergedAllInOfZero) {
    const CardContext cards = river_cards();
    const ActionPlan plan(make_config(kStreetRiver, 100, 0, symmetric_profile("33%,75%", "50%")), cards);
    EXPECT_EQ(actions_at(plan, 0), "x0 a0 a0");
    EXPECT_EQ(actions_at(plan, follow(plan, {{kActionCheck, 0}})), "x0 a0 a0");
    const std::uint64_t facing = plan.nodes()[0].children[1];
    EXPECT_EQ(actions_at(plan, facing), "f0 c0");
    const PlanNode& called = plan.nodes()[child_by(plan, facing, {kActionCall, 0})];
    EXPECT_EQ(called.kind, kNodeTerminal);
    EXPECT_EQ(called.terminal_kind, kActionCall);
    EXPECT_EQ(called.pot, 100);
}

TEST(ActionPlanEdge, EqualAmountsMergeIntoOneAction) {
    const CardContext cards = river_cards();
    const ActionPlan by_chips(make_config(kStreetRiver, 100, 1000, symmetric_profile("50%,50c", "")), cards);
    EXPECT_EQ(actions_at(by_chips, 0), "x0 b50");
    const ActionPlan by_rounding(make_config(kStreetRiver, 100, 1000, symmetric_profile("33%,33.4%", "")), cards);
    EXPECT_EQ(actions_at(by_rounding, 0), "x0 b33");
}

TEST(ActionPlanEdge, BetReachingTheStackIsAnAllIn) {
    const CardContext cards = river_cards();
    const ActionPlan plan(make_config(kStreetRiver, 300, 100, symmetric_profile("50%", "")), cards);
    EXPECT_EQ(actions_at(plan, 0), "x0 a100");
}

TEST(ActionPlanEdge, AllInInRaiseListAbsorbsLargerRaises) {
    const CardContext cards = river_cards();
    const ActionPlan plan(make_config(kStreetRiver, 100, 1000, symmetric_profile("100%", "50%,500%,a")), cards);
    EXPECT_EQ(actions_at(plan, 0), "x0 b100");
    EXPECT_EQ(actions_at(plan, follow(plan, {{kActionBet, 100}})), "f0 c100 r250 a1000");
    // The percentage is taken of the pot after the call, on top of the bet: (100 + 2 * 250) / 2 + 250.
    EXPECT_EQ(actions_at(plan, follow(plan, {{kActionBet, 100}, {kActionRaise, 250}})), "f0 c150 r550 a1000");
    EXPECT_EQ(actions_at(plan, follow(plan, {{kActionCheck, 0}, {kActionBet, 100}})), "f0 c100 r250 a1000");
}

TEST(ActionPlanEdge, AddAllInFlagFromTheSizingTextGivesAnAllInAfterEveryBet) {
    const CardContext cards = river_cards();
    const StreetSizing seat{"100", "50, 500", true, false};
    GameConfig config = make_config(kStreetRiver, 100, 1000, SizingProfile{});
    build_sizing_profile(config.river_sizing, seat, seat, "river");
    const ActionPlan plan(config, cards);
    EXPECT_EQ(actions_at(plan, 0), "x0 b100 a1000");
    EXPECT_EQ(actions_at(plan, follow(plan, {{kActionBet, 100}})), "f0 c100 r250 a1000");
    EXPECT_EQ(actions_at(plan, follow(plan, {{kActionCheck, 0}, {kActionBet, 100}})), "f0 c100 r250 a1000");
    EXPECT_EQ(actions_at(plan, follow(plan, {{kActionBet, 100}, {kActionRaise, 250}})), "f0 c150 r550 a1000");
}

TEST(ActionPlanEdge, FacingAnAllInOnlyFoldOrCall) {
    const CardContext cards = river_cards();
    const ActionPlan plan(make_config(kStreetRiver, 100, 1000, symmetric_profile("100%", "50%,500%,a")), cards);
    EXPECT_EQ(actions_at(plan, follow(plan, {{kActionBet, 100}, {kActionAllIn, 1000}})), "f0 c900");
}

TEST(ActionPlanEdge, EmptyRaiseListOnlyFoldOrCall) {
    const CardContext cards = river_cards();
    const ActionPlan plan(make_config(kStreetRiver, 100, 1000, symmetric_profile("50%", "")), cards);
    EXPECT_EQ(actions_at(plan, follow(plan, {{kActionBet, 50}})), "f0 c50");
}

TEST(ActionPlanEdge, DontDonkAtTheRootStillAllowsTheJamRule) {
    const CardContext cards = river_cards();
    SizingProfile profile = make_profile("50%", "", "50%", "", "");
    GameConfig config = make_config(kStreetRiver, 100, 40, profile);
    EXPECT_EQ(actions_at(ActionPlan(config, cards), 0), "x0");
    config.oop_jam_threshold = 0.5;
    EXPECT_EQ(actions_at(ActionPlan(config, cards), 0), "x0 a40");
    config.oop_jam_threshold = 0.3;
    EXPECT_EQ(actions_at(ActionPlan(config, cards), 0), "x0");
}

TEST(ActionPlanEdge, DontDonkFlagFromTheSizingTextEmptiesTheRootLead) {
    const CardContext cards = river_cards();
    const StreetSizing oop{"50", "", true, true};
    const StreetSizing ip{"50", "", false, false};
    GameConfig config = make_config(kStreetRiver, 100, 40, SizingProfile{});
    build_sizing_profile(config.river_sizing, oop, ip, "river");
    EXPECT_EQ(actions_at(ActionPlan(config, cards), 0), "x0");
    config.oop_jam_threshold = 0.4;
    EXPECT_EQ(actions_at(ActionPlan(config, cards), 0), "x0 a40");
}

TEST(ActionPlanEdge, JamRuleAddsNoSecondAllInAndNoneFacingAnAllIn) {
    const CardContext cards = river_cards();
    GameConfig config = make_config(kStreetRiver, 100, 40, symmetric_profile("100%", "a"));
    config.oop_jam_threshold = 1.0;
    config.ip_jam_threshold = 1.0;
    const ActionPlan plan(config, cards);
    EXPECT_EQ(actions_at(plan, 0), "x0 a40");
    EXPECT_EQ(actions_at(plan, follow(plan, {{kActionAllIn, 40}})), "f0 c40");
    // Facing a bet, the jam rule offers the all-in raise that the empty list would not.
    config.river_sizing = symmetric_profile("10%", "");
    const ActionPlan raise_plan(config, cards);
    EXPECT_EQ(actions_at(raise_plan, follow(raise_plan, {{kActionBet, 10}})), "f0 c10 a40");
}

TEST(ActionPlanEdge, DonkListOnlyWhenLeadingIntoTheCalledSeat) {
    const CardContext cards = turn_cards();
    const SizingProfile profile = make_profile("50%", "", "75%", "", "25%");
    const ActionPlan plan(make_config(kStreetTurn, 100, 1000, profile), cards);
    constexpr Action kRiver{kActionChance, 0};  // the 2c, first river card dealt
    EXPECT_EQ(actions_at(plan, 0), "x0 b25");
    EXPECT_EQ(actions_at(plan, follow(plan, {{kActionCheck, 0}, {kActionCheck, 0}, kRiver})), "x0 b50");
    const std::uint64_t after_ip_bet =
        follow(plan, {{kActionCheck, 0}, {kActionBet, 75}, {kActionCall, 75}, kRiver});
    EXPECT_EQ(plan.nodes()[after_ip_bet].pot, 250);
    EXPECT_EQ(actions_at(plan, after_ip_bet), "x0 b63");
    const std::uint64_t after_own_bet = follow(plan, {{kActionBet, 25}, {kActionCall, 25}, kRiver});
    EXPECT_EQ(actions_at(plan, after_own_bet), "x0 b75");
}

TEST(ActionPlanEdge, RiverTerminalsCarryTheirKindAndCommittedChips) {
    const CardContext cards = river_cards();
    const ActionPlan plan(make_config(kStreetRiver, 100, 1000, symmetric_profile("100%", "50%")), cards);
    const PlanNode& check_down = plan.nodes()[follow(plan, {{kActionCheck, 0}, {kActionCheck, 0}})];
    EXPECT_EQ(check_down.kind, kNodeTerminal);
    EXPECT_EQ(check_down.terminal_kind, kActionCheck);
    const PlanNode& called = plan.nodes()[follow(plan, {{kActionBet, 100}, {kActionCall, 100}})];
    EXPECT_EQ(called.kind, kNodeTerminal);
    EXPECT_EQ(called.terminal_kind, kActionCall);
    EXPECT_EQ(called.committed, 100);
    const PlanNode& folded = plan.nodes()[follow(plan, {{kActionBet, 100}, {kActionFold, 0}})];
    EXPECT_EQ(folded.terminal_kind, kActionFold);
    EXPECT_EQ(folded.folded_seat, kSeatIp);
    EXPECT_EQ(folded.committed, 0);
    EXPECT_EQ(folded.pot, 200);
    const PlanNode& folded_to_raise =
        plan.nodes()[follow(plan, {{kActionBet, 100}, {kActionRaise, 250}, {kActionFold, 0}})];
    EXPECT_EQ(folded_to_raise.committed, 100);
    EXPECT_EQ(folded_to_raise.folded_seat, kSeatOop);
    EXPECT_EQ(folded_to_raise.invested[0], 100);
    EXPECT_EQ(folded_to_raise.invested[1], 250);
}

TEST(ActionPlanEdge, RaiseCapLeavesFixedSizeOutFromThatRaiseOn) {
    const CardContext cards = river_cards();
    SizingProfile profile = symmetric_profile("100%", "");
    const BetSizeToken capped{BetSizeKind::FixedChips, 0.0, 0.0, 50, 2, 0};
    profile.ip_raises = {capped};
    profile.oop_raises = {capped};
    const ActionPlan plan(make_config(kStreetRiver, 100, 1000, profile), cards);
    // 50 on top of the bet is below the minimum raise, so it is lifted to 200.
    EXPECT_EQ(actions_at(plan, follow(plan, {{kActionBet, 100}})), "f0 c100 r200");
    EXPECT_EQ(actions_at(plan, follow(plan, {{kActionBet, 100}, {kActionRaise, 200}})), "f0 c100");

    profile.ip_raises[0].raise_cap = 1;
    const ActionPlan cap_one(make_config(kStreetRiver, 100, 1000, profile), cards);
    EXPECT_EQ(actions_at(cap_one, follow(cap_one, {{kActionBet, 100}})), "f0 c100");
}

TEST(ActionPlanEdge, ForceAllInThresholdPromotesLargeBets) {
    const CardContext cards = river_cards();
    GameConfig config = make_config(kStreetRiver, 100, 200, symmetric_profile("75%,100%", ""));
    config.force_all_in_threshold = 0.5;
    EXPECT_EQ(actions_at(ActionPlan(config, cards), 0), "x0 b75 b100");
    config.force_all_in_threshold = 0.7;
    EXPECT_EQ(actions_at(ActionPlan(config, cards), 0), "x0 b75 a200");
}

TEST(ActionPlanEdge, MergeThresholdKeepsTheLargerOfCloseSizes) {
    const CardContext cards = river_cards();
    GameConfig config = make_config(kStreetRiver, 100, 1000, symmetric_profile("50%,55%", ""));
    config.merge_threshold = 0.1;
    EXPECT_EQ(actions_at(ActionPlan(config, cards), 0), "x0 b55");
    config.river_sizing = symmetric_profile("30%,55%", "");
    EXPECT_EQ(actions_at(ActionPlan(config, cards), 0), "x0 b30 b55");
}

TEST(ActionPlanEdge, SizedActionsAreOrderedByAmount) {
    const CardContext cards = river_cards();
    const ActionPlan plan(make_config(kStreetRiver, 100, 1000, symmetric_profile("75%,a,33%", "")), cards);
    EXPECT_EQ(actions_at(plan, 0), "x0 b33 b75 a1000");
}

TEST(ActionPlanEdge, UnknownStreetIsALogicError) {
    const CardContext cards = river_cards();
    GameConfig config = make_config(kStreetRiver, 100, 100, symmetric_profile("50%", ""));
    config.starting_street = 3;
    try {
        const ActionPlan plan(config, cards);
        FAIL() << "no error";
    } catch (const std::logic_error& error) {
        EXPECT_EQ(std::string(error.what()), "Unknown street");
        EXPECT_EQ(dynamic_cast<const std::invalid_argument*>(&error), nullptr);
        EXPECT_EQ(dynamic_cast<const std::out_of_range*>(&error), nullptr);
    }
}

TEST(ActionPlanInvariants, ChipsAddUpAtEveryNode) {
    const CardContext cards = turn_cards();
    GameConfig config = make_config(kStreetTurn, 100, 300, symmetric_profile("33%,75%", "60%,a"));
    config.ip_jam_threshold = 0.8;
    const ActionPlan plan(config, cards);
    expect_single_parents(plan);
    for (std::size_t i = 0; i < plan.node_count(); ++i) {
        const PlanNode& node = plan.nodes()[i];
        ASSERT_EQ(node.pot, config.starting_pot + node.invested[0] + node.invested[1]) << i;
        ASSERT_EQ(node.committed, std::min(node.invested[0], node.invested[1])) << i;
        ASSERT_LE(std::max(node.invested[0], node.invested[1]), config.effective_stack) << i;
        for (const Action& action : node.actions) {
            if (action.kind != kActionCall) continue;
            // A call always matches the whole wager; nothing is ever called short or for nothing.
            const std::int32_t behind = node.invested[1 - node.seat] - node.invested[node.seat];
            ASSERT_EQ(action.amount, behind) << i;
            ASSERT_GT(action.amount, 0) << i;
        }
    }
}

}  // namespace
}  // namespace kelvane
