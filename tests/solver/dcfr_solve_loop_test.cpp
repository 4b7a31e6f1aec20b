// The solve loop: iteration limits, measuring points, the stop rule, cancellation and the schedule.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "solver/discount_schedule.h"
#include "solver/discounted_cfr.h"
#include "solver_spots.h"
#include "spot_file.h"

namespace kelvane {
namespace {

using testing::quiet_options;

struct Report {
    std::uint32_t iteration;
    float exploitability;
};

std::unique_ptr<Game> river_game() { return testing::SpotFile(testing::spot_path("river")).game(true); }

std::vector<Report> solve_recording(Game& game, DiscountedCfrOptions options) {
    std::vector<Report> reports;
    options.on_iteration = [&](std::uint32_t i, float e, double ms) {
        EXPECT_GE(ms, 0.0);
        reports.push_back({i, e});
    };
    DiscountedCfr cfr(options);
    cfr.solve(game);
    EXPECT_EQ(cfr.iterations(), reports.empty() ? 0u : reports.back().iteration);
    return reports;
}

TEST(SolveLoop, ZeroIterationsRunsNothing) {
    auto game = river_game();
    DiscountedCfrOptions options = quiet_options(0);
    int calls = 0;
    options.on_iteration = [&](std::uint32_t, float, double) { ++calls; };
    DiscountedCfr cfr(options);
    cfr.solve(*game);
    EXPECT_EQ(calls, 0);
    EXPECT_EQ(cfr.iterations(), 0u);
    EXPECT_EQ(cfr.last_exploitability(), 0.0f);
}

TEST(SolveLoop, OneIterationIsMeasured) {
    auto game = river_game();
    const std::vector<Report> reports = solve_recording(*game, quiet_options(1));
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_EQ(reports[0].iteration, 1u);
    EXPECT_GT(reports[0].exploitability, 0.0f);
}

TEST(SolveLoop, SeventyIterationsMeasureAtFiftyAndSeventy) {
    auto game = river_game();
    const std::vector<Report> reports = solve_recording(*game, quiet_options(70));
    ASSERT_EQ(reports.size(), 70u);
    for (std::uint32_t i = 0; i < 70; ++i) EXPECT_EQ(reports[i].iteration, i + 1);
    // Iteration 50 reports the first non-zero value; it stands until the last iteration measures again.
    for (std::uint32_t i = 0; i < 49; ++i) EXPECT_EQ(reports[i].exploitability, 0.0f) << i + 1;
    const float at_fifty = reports[49].exploitability;
    EXPECT_GT(at_fifty, 0.0f);
    for (std::uint32_t i = 50; i < 69; ++i) EXPECT_EQ(reports[i].exploitability, at_fifty) << i + 1;
    EXPECT_NE(reports[69].exploitability, at_fifty);
}

TEST(SolveLoop, TargetReachedAtFiftyOneIsNoticedAtHundred) {
    auto game = river_game();
    // Exploitability at 51 measured by a run that ends there; the value at 50 and 100 by a run of 100.
    const float at_51 = solve_recording(*game, quiet_options(51)).back().exploitability;
    const std::vector<Report> hundred = solve_recording(*game, quiet_options(100));
    ASSERT_GT(hundred[49].exploitability, at_51);
    ASSERT_LE(hundred[99].exploitability, at_51);

    DiscountedCfrOptions options = quiet_options(1000);
    options.target_exploitability = at_51;
    const std::vector<Report> reports = solve_recording(*game, options);
    EXPECT_EQ(reports.back().iteration, 100u);
}

TEST(SolveLoop, TargetOfZeroNeedsExactlyZero) {
    auto game = river_game();
    DiscountedCfrOptions options = quiet_options(100);
    options.target_exploitability = 0.0f;
    const std::vector<Report> reports = solve_recording(*game, options);
    EXPECT_EQ(reports.back().iteration, 100u);
}

TEST(SolveLoop, NoIntervalMeansOnlyTheLastIterationMeasures) {
    auto game = river_game();
    DiscountedCfrOptions options = quiet_options(60);
    options.exploit_check_interval = 0;
    options.target_exploitability = 1e9f;  // would stop at once if the rule applied
    const std::vector<Report> reports = solve_recording(*game, options);
    ASSERT_EQ(reports.size(), 60u);
    EXPECT_EQ(reports[58].exploitability, 0.0f);
    EXPECT_GT(reports[59].exploitability, 0.0f);
}

TEST(SolveLoop, CancelDuringAnIterationFinishesIt) {
    auto game = river_game();
    DiscountedCfrOptions options = quiet_options(100);
    const std::uint32_t cancel_in = 7;
    std::uint32_t polls = 0;
    bool cancel = false;
    // The request arrives while iteration 7 runs: after its poll, before the next.
    options.should_cancel = [&] {
        ++polls;
        const bool answer = cancel;
        if (polls == cancel_in) cancel = true;
        return answer;
    };
    std::vector<std::uint32_t> reported;
    options.on_iteration = [&](std::uint32_t i, float, double) { reported.push_back(i); };
    DiscountedCfr cfr(options);
    cfr.solve(*game);
    EXPECT_EQ(cfr.iterations(), cancel_in);
    ASSERT_FALSE(reported.empty());
    EXPECT_EQ(reported.back(), cancel_in);
    EXPECT_EQ(polls, cancel_in + 1);
}

TEST(SolveLoop, RunsTheScheduleOfTheLastIteration) {
    auto game = river_game();
    DiscountedCfr cfr(quiet_options(6));
    cfr.solve(*game);
    const Discounts d = discounts_at(5);
    EXPECT_EQ(cfr.discount_alpha(), d.alpha);
    EXPECT_EQ(cfr.discount_beta(), d.beta);
    EXPECT_EQ(cfr.discount_gamma(), d.gamma);
}

// Each update adds one distribution per hand to the strategy sums, so their row total shows the weighting:
// 1 right after a restart, 1 + gamma one iteration later.
float root_sum_of_first_hand(Game& game, std::uint32_t iterations) {
    DiscountedCfr cfr(quiet_options(iterations));
    cfr.solve(game);
    const NodeState& root = cfr.node_state(0);
    const std::vector<float> sums = cfr.strategy_sum_of(0);
    float total = 0.0f;
    for (std::size_t a = 0; a < root.num_actions; ++a) total += sums[a * root.num_hands];
    return total;
}

TEST(SolveLoop, CumulativeStrategyRestartsAtPowersOfFour) {
    auto game = river_game();
    EXPECT_NEAR(root_sum_of_first_hand(*game, 5), 1.0f, 1e-6f);    // t = 4
    EXPECT_NEAR(root_sum_of_first_hand(*game, 6), 1.125f, 1e-6f);  // t = 5
    EXPECT_NEAR(root_sum_of_first_hand(*game, 17), 1.0f, 1e-6f);   // t = 16
    EXPECT_GT(root_sum_of_first_hand(*game, 16), 2.0f);            // t = 15, before the restart
}

TEST(SolveLoop, VerboseLinesEveryFiftyIterationsAndAtTheEnd) {
    auto game = river_game();
    DiscountedCfrOptions options = quiet_options(60);
    options.verbose = true;
    options.exploit_check_interval = 7;  // the console cadence doesn't follow it
    DiscountedCfr cfr(options);
    ::testing::internal::CaptureStdout();
    cfr.solve(*game);
    const std::string text = ::testing::internal::GetCapturedStdout();
    EXPECT_NE(text.find("[CFR] iteration 50 / 60  exploitability\u2248"), std::string::npos) << text;
    EXPECT_NE(text.find("[CFR] iteration 60 / 60  exploitability\u2248"), std::string::npos) << text;
    EXPECT_EQ(text.find("[CFR] iteration 49 "), std::string::npos);
    EXPECT_EQ(text.find("[CFR] iteration 56 "), std::string::npos);
    EXPECT_NE(text.find("ms\n[CFR] completed 60 iterations in "), std::string::npos) << text;
}

TEST(SolveLoop, ThreadCountBelowTwoBuildsNoPool) {
    for (std::uint64_t threads : {0u, 1u}) EXPECT_EQ(DiscountedCfr(quiet_options(1, threads)).workers(), 1u);
    EXPECT_EQ(DiscountedCfr(quiet_options(1, 3)).workers(), 3u);
}

TEST(SolveLoop, SolveStartsAfreshEachTime) {
    auto game = river_game();
    DiscountedCfr cfr(quiet_options(30));
    cfr.solve(*game);
    const std::vector<float> first = cfr.regrets_of(0);
    cfr.solve(*game);
    EXPECT_EQ(cfr.regrets_of(0), first);
}

}  // namespace
}  // namespace kelvane
