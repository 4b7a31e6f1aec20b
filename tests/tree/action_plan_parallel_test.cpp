// The parallel build gives the same tree as the serial one, whatever the worker limit.

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

struct BuiltTree {
    std::size_t node_count = 0;
    std::string shape;
};

BuiltTree build_with(const char* workers, const CardContext& cards, const GameConfig& config) {
    const ScopedEnv env(kWorkersVariable, workers);
    const ActionPlan plan(config, cards);
    expect_single_parents(plan);
    return {plan.node_count(), serialise(plan)};
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

TEST(ActionPlanParallel, SameStructureWithOneTwoOrThreeWorkers) {
    const CardContext cards = flop_cards();
    const BuiltTree serial = build_with("1", cards, flop_config());
    for (const char* workers : {"2", "3", "3"}) {
        const BuiltTree parallel = build_with(workers, cards, flop_config());
        EXPECT_EQ(parallel.node_count, serial.node_count) << workers;
        EXPECT_TRUE(parallel.shape == serial.shape) << workers << " workers changed the tree";
    }
}

TEST(ActionPlanParallel, BadWorkerValuesAreIgnored) {
    const CardContext cards = make_cards("AhKsQd7c", "JJ,TT", "99,88");
    const GameConfig config = make_config(kStreetTurn, 100, 300, symmetric_profile("50%", "100%"));
    const BuiltTree serial = build_with("1", cards, config);
    for (const char* workers : {"abc", "0", "-3", "", "99999999999999999999999"}) {
        const BuiltTree built = build_with(workers, cards, config);
        EXPECT_EQ(built.node_count, serial.node_count) << '"' << workers << '"';
        EXPECT_TRUE(built.shape == serial.shape) << '"' << workers << '"';
    }
}

}  // namespace
}  // namespace kelvane
