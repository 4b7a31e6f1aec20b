// The parallel build gives the same node list as the serial one, whatever the worker limit.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "plan_test_support.h"
#include "tree/action_plan.h"

namespace kelvane {
namespace {

using namespace plan_test;

constexpr const char* kWorkersVariable = "KELVANE_ACTIONPLAN_MAX_WORKERS";

// Wide at the top, where the build fans out; thin below to keep the sanitizer runs short.
GameConfig flop_config() {
    GameConfig config = make_config(kStreetFlop, 100, 300, symmetric_profile("33%,75%", "60%,a"));
    config.turn_sizing = symmetric_profile("", "");
    config.river_sizing = symmetric_profile("", "");
    return config;
}

// Symmetric ranges on a monotone flop, so the deals skip two suits.
CardContext flop_cards() { return make_cards("2h5h9h", "AA,KK,QQ,AKs", "JJ,TT,99,KQs"); }

// A turn spot with raises, deep enough for the fan-out to reach below the deals.
GameConfig turn_config() { return make_config(kStreetTurn, 100, 400, symmetric_profile("50%,a", "100%")); }
CardContext turn_cards() { return make_cards("AhKsQd7c", "JJ,TT,AQs", "99,88,KQs"); }

std::vector<PlanNode> build_with(const char* workers, const CardContext& cards, const GameConfig& config) {
    const ScopedEnv env(kWorkersVariable, workers);
    const ActionPlan plan(config, cards);
    expect_single_parents(plan);
    return plan.nodes();
}

// Field by field, index by index: locks and project files key by these indices.
void expect_identical(const std::vector<PlanNode>& a, const std::vector<PlanNode>& b, const std::string& what) {
    ASSERT_EQ(a.size(), b.size()) << what;
    for (std::size_t i = 0; i < a.size(); ++i) {
        const PlanNode& x = a[i];
        const PlanNode& y = b[i];
        ASSERT_TRUE(x.kind == y.kind && x.seat == y.seat && x.street == y.street &&
                    x.all_in_runout == y.all_in_runout && x.committed == y.committed && x.actions == y.actions &&
                    x.children == y.children && x.pot == y.pot && x.invested == y.invested &&
                    x.terminal_kind == y.terminal_kind && x.folded_seat == y.folded_seat &&
                    x.turn_card == y.turn_card && x.river_card == y.river_card)
            << what << ": node " << i << " differs";
    }
}

// With one worker the indices follow the depth-first order of the actions.
void expect_preorder(const ActionPlan& plan) {
    std::vector<std::uint64_t> stack{0};
    std::uint64_t expected = 0;
    while (!stack.empty()) {
        const std::uint64_t index = stack.back();
        stack.pop_back();
        ASSERT_EQ(index, expected++);
        const std::vector<std::uint64_t>& children = plan.nodes()[index].children;
        stack.insert(stack.end(), children.rbegin(), children.rend());
    }
    EXPECT_EQ(expected, plan.node_count());
}

TEST(ActionPlanParallel, OneWorkerNumbersNodesDepthFirst) {
    const CardContext cards = flop_cards();
    const ScopedEnv env(kWorkersVariable, "1");
    const ActionPlan plan(flop_config(), cards);
    EXPECT_GT(plan.node_count(), 10000u);
    expect_preorder(plan);
}

TEST(ActionPlanParallel, SameNodeListWithAnyWorkerCountOverRepeatedBuilds) {
    constexpr int kRepeats = 20;
    const CardContext flop = flop_cards();
    const CardContext turn = turn_cards();
    const std::vector<PlanNode> flop_serial = build_with("1", flop, flop_config());
    const std::vector<PlanNode> turn_serial = build_with("1", turn, turn_config());
    for (int repeat = 0; repeat < kRepeats; ++repeat) {
        for (const char* workers : {"2", "4", "8"}) {
            const std::string what = std::string(workers) + " workers, build " + std::to_string(repeat);
            expect_identical(build_with(workers, flop, flop_config()), flop_serial, "flop, " + what);
            expect_identical(build_with(workers, turn, turn_config()), turn_serial, "turn, " + what);
        }
    }
}

TEST(ActionPlanParallel, BadWorkerValuesAreIgnored) {
    const CardContext cards = make_cards("AhKsQd7c", "JJ,TT", "99,88");
    const GameConfig config = make_config(kStreetTurn, 100, 300, symmetric_profile("50%", "100%"));
    const std::vector<PlanNode> serial = build_with("1", cards, config);
    for (const char* workers : {"abc", "0", "-3", "", "99999999999999999999999"})
        expect_identical(build_with(workers, cards, config), serial, std::string("\"") + workers + '"');
}

}  // namespace
}  // namespace kelvane
