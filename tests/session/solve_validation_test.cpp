// The limits of a solve's numbers: each refusal word for word, from the checks, a solve run and the
// memory estimate alike, and the edges that are still accepted.

#include "session/solve_validation.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

#include "session/memory_estimate.h"
#include "session/solve_setup.h"
#include "session_test_support.h"
#include "support/expect_error.h"

namespace kelvane_app {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(ChipAmounts, PotBelowOne) {
    EXPECT_ERROR(std::out_of_range, check_chip_amounts(-5, 100), "starting_pot must be at least 1 (got -5)");
    EXPECT_ERROR(std::out_of_range, check_chip_amounts(0, 100), "starting_pot must be at least 1 (got 0)");
}

TEST(ChipAmounts, PotAboveTheTotal) {
    EXPECT_ERROR(std::out_of_range, check_chip_amounts(2147483647, 0),
                 "starting_pot must be at most 1000000000 (got 2147483647)");
    EXPECT_ERROR(std::out_of_range, check_chip_amounts(1000000001, 0),
                 "starting_pot must be at most 1000000000 (got 1000000001)");
    EXPECT_ERROR(std::out_of_range, check_chip_amounts(4294967296, 100),
                 "starting_pot must be at most 1000000000 (got 4294967296)");
}

TEST(ChipAmounts, NegativeStack) {
    EXPECT_ERROR(std::out_of_range, check_chip_amounts(100, -1),
                 "effective_stack must be at least 0 (got -1)");
}

TEST(ChipAmounts, StackAboveWhatThePotLeaves) {
    EXPECT_ERROR(std::out_of_range, check_chip_amounts(100, 1000000000000),
                 "effective_stack must be at most 499999950 with a starting_pot of 100 (got 1000000000000)");
    EXPECT_ERROR(std::out_of_range, check_chip_amounts(100, 499999951),
                 "effective_stack must be at most 499999950 with a starting_pot of 100 (got 499999951)");
}

TEST(ChipAmounts, EdgesAreAccepted) {
    EXPECT_NO_THROW(check_chip_amounts(1, 0));
    EXPECT_NO_THROW(check_chip_amounts(100, 499999950));
    EXPECT_NO_THROW(check_chip_amounts(1000000000, 0));
    EXPECT_EQ(kMaxChipTotal, 1000000000);
}

TEST(Rake, PercentOutsideZeroToHundred) {
    EXPECT_ERROR(std::out_of_range, check_rake(101.0, 0.0), "rake_percent must be from 0 to 100 (got 101)");
    EXPECT_ERROR(std::out_of_range, check_rake(-1.0, 0.0), "rake_percent must be from 0 to 100 (got -1)");
    EXPECT_ERROR(std::out_of_range, check_rake(100.5, 0.0), "rake_percent must be from 0 to 100 (got 100.5)");
    EXPECT_ERROR(std::out_of_range, check_rake(-1e308, 0.0),
                 "rake_percent must be from 0 to 100 (got -1e+308)");
    EXPECT_ERROR(std::out_of_range, check_rake(kNan, 0.0), "rake_percent must be from 0 to 100 (got nan)");
    EXPECT_ERROR(std::out_of_range, check_rake(kInfinity, 0.0),
                 "rake_percent must be from 0 to 100 (got inf)");
}

TEST(Rake, CapNegativeOrNotFinite) {
    EXPECT_ERROR(std::out_of_range, check_rake(5.0, -3.0), "rake_cap must be at least 0 (got -3)");
    EXPECT_ERROR(std::out_of_range, check_rake(5.0, -0.25), "rake_cap must be at least 0 (got -0.25)");
    EXPECT_ERROR(std::out_of_range, check_rake(5.0, kNan), "rake_cap must be a finite number (got nan)");
    EXPECT_ERROR(std::out_of_range, check_rake(5.0, kInfinity), "rake_cap must be a finite number (got inf)");
}

TEST(Rake, EdgesAreAccepted) {
    EXPECT_NO_THROW(check_rake(0.0, 0.0));
    EXPECT_NO_THROW(check_rake(100.0, 0.0));
    EXPECT_NO_THROW(check_rake(4.5, 1e9));
}

TEST(ThreadCount, AboveTheLimit) {
    EXPECT_ERROR(std::out_of_range, check_thread_count(1025), "thread_count must be at most 1024 (got 1025)");
    EXPECT_ERROR(std::out_of_range, check_thread_count(2147483648),
                 "thread_count must be at most 1024 (got 2147483648)");
    EXPECT_ERROR(std::out_of_range, check_thread_count(std::numeric_limits<std::uint64_t>::max()),
                 "thread_count must be at most 1024 (got 18446744073709551615)");
}

TEST(ThreadCount, ZeroOneAndTheLimitAreAccepted) {
    for (const std::uint64_t count : {0u, 1u, 2u, 1024u}) EXPECT_NO_THROW(check_thread_count(count)) << count;
}

TEST(ValidateSolveConfig, BoardComesFirstWithTheCardParsersTexts) {
    SolveConfig config = small_river_spot();
    config.starting_pot = -5;
    config.board = "AhKs7";
    EXPECT_ERROR(std::invalid_argument, validate_solve_config(config),
                 "Board must include at least a flop (6 chars, e.g. AhKsQd)");
    config.board = "AhKs7dX";
    EXPECT_ERROR(std::out_of_range, validate_solve_config(config),
                 "starting_pot must be at least 1 (got -5)");
}

TEST(ValidateSolveConfig, ReturnsTheBoardWithThreeToFiveCards) {
    SolveConfig config = small_river_spot();
    const auto dealt = [&](const char* board) {
        config.board = board;
        return kelvane::board_card_list(validate_solve_config(config)).size();
    };
    EXPECT_EQ(dealt("AhKs7d"), 3u);
    EXPECT_EQ(dealt("AhKs7d2c"), 4u);
    EXPECT_EQ(dealt("AhKs7d2c3h"), 5u);
    // The session's lenient reading stays: what lies past the river is not read.
    EXPECT_EQ(dealt("AhKs7d2c3h4s"), 5u);
}

// A bad number of each field, and the message that refuses it.
struct Refusal {
    const char* name;
    void (*spoil)(SolveConfig&);
    const char* message;
};

const std::vector<Refusal> kRefusals = {
    {"NegativePot", [](SolveConfig& c) { c.starting_pot = -5; }, "starting_pot must be at least 1 (got -5)"},
    {"ZeroPot", [](SolveConfig& c) { c.starting_pot = 0; }, "starting_pot must be at least 1 (got 0)"},
    {"LargestPot", [](SolveConfig& c) { c.starting_pot = 2147483647; },
     "starting_pot must be at most 1000000000 (got 2147483647)"},
    {"NegativeStack", [](SolveConfig& c) { c.effective_stack = -727379968; },
     "effective_stack must be at least 0 (got -727379968)"},
    {"HugeStack", [](SolveConfig& c) { c.effective_stack = 600000000; },
     "effective_stack must be at most 499999950 with a starting_pot of 100 (got 600000000)"},
    {"RakeAbove", [](SolveConfig& c) { c.rake_percent = 101.0; },
     "rake_percent must be from 0 to 100 (got 101)"},
    {"RakeBelow", [](SolveConfig& c) { c.rake_percent = -1e308; },
     "rake_percent must be from 0 to 100 (got -1e+308)"},
    {"NegativeCap", [](SolveConfig& c) { c.rake_cap = -1.0; }, "rake_cap must be at least 0 (got -1)"},
    {"InfiniteCap", [](SolveConfig& c) { c.rake_cap = kInfinity; },
     "rake_cap must be a finite number (got inf)"},
    {"Threads", [](SolveConfig& c) { c.thread_count = 10000; },
     "thread_count must be at most 1024 (got 10000)"},
};

class RefusedConfig : public ::testing::TestWithParam<Refusal> {
  protected:
    SolveConfig spoiled() const {
        SolveConfig config = small_river_spot();
        GetParam().spoil(config);
        return config;
    }
};

TEST_P(RefusedConfig, SolveEndsWithTheMessageAsItsOnlyWord) {
    SolveSession session;
    RunRecorder recorder;
    ASSERT_TRUE(session.start(spoiled(), recorder.callback()));
    const std::vector<SolveProgress> messages = recorder.wait(session);
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages[0].status, std::string("Error: ") + GetParam().message);
    EXPECT_EQ(messages[0].progress, 0.0);
    ASSERT_TRUE(messages[0].result);
    EXPECT_FALSE(messages[0].result->success);
    EXPECT_EQ(messages[0].result->error, GetParam().message);
    EXPECT_FALSE(session.solution().game);
}

TEST_P(RefusedConfig, EstimateRefusesWhatASolveRefuses) {
    std::string error;
    EXPECT_FALSE(estimate_solve_memory(spoiled(), &error).valid);
    EXPECT_EQ(error, GetParam().message);
}

TEST_P(RefusedConfig, SetUpRefusesItToo) {
    EXPECT_ERROR(std::out_of_range, make_solve_setup(spoiled()), GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(Fields, RefusedConfig, ::testing::ValuesIn(kRefusals),
                         [](const auto& info) { return std::string(info.param.name); });

// What a project file saved with a pot of 2147483647 hands the session once it is loaded: every other
// field as the pages fill it, the pot as the file had it.
TEST(RefusedConfig, ProjectWithTheLargestPotIsRefusedBeforeAnythingIsBuilt) {
    SolveConfig config;
    config.board = "QsJh2h";
    config.starting_pot = 2147483647;
    config.effective_stack = 1000;
    config.starting_street = "flop";
    config.oop_range = "AA,KK,QQ,AKs";
    config.ip_range = "JJ,TT,AQs,KQs";
    for (SeatSizing* seat : {&config.oop, &config.ip})
        for (StreetSizing* street : {&seat->flop, &seat->turn, &seat->river}) {
            street->bet_sizes = "33, 75";
            street->raise_sizes = "60";
        }
    config.thread_count = 2;
    SolveSession session;
    RunRecorder recorder;
    ASSERT_TRUE(session.start(config, recorder.callback()));
    const std::vector<SolveProgress> messages = recorder.wait(session);
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages[0].status, "Error: starting_pot must be at most 1000000000 (got 2147483647)");
    EXPECT_EQ(messages[0].result->error, "starting_pot must be at most 1000000000 (got 2147483647)");
}

TEST(AcceptedConfig, EdgesSolve) {
    SolveSession session;
    SolveConfig config = small_river_spot();
    config.max_iterations = 2;
    config.starting_pot = 1;
    config.effective_stack = 0;
    config.rake_percent = 100.0;
    config.thread_count = 0;
    const SolveResult result = solve_to_end(session, config);
    EXPECT_TRUE(result.success) << result.error;
    config.thread_count = kMaxThreadCount;
    config.rake_percent = 0.0;
    const SolveResult many_threads = solve_to_end(session, config);
    EXPECT_TRUE(many_threads.success) << many_threads.error;
}

// At the largest total every pot and investment of the tree is still a true chip count: nothing wrapped.
TEST(AcceptedConfig, LargestTotalSolvesWithoutWrapping) {
    SolveSession session;
    SolveConfig config = small_river_spot();
    config.max_iterations = 2;
    config.starting_pot = 400000000;
    config.effective_stack = 300000000;
    config.oop.river.raise_sizes = "100";
    config.ip.river.raise_sizes = "100";
    config.oop.river.add_all_in = true;
    const SolveResult result = solve_to_end(session, config);
    ASSERT_TRUE(result.success) << result.error;
    ASSERT_FALSE(result.nodes.empty());
    std::int32_t largest_pot = 0;
    for (const ResultNode& node : result.nodes) {
        EXPECT_GE(node.pot, config.starting_pot);
        EXPECT_LE(node.pot, kMaxChipTotal);
        EXPECT_GE(node.invested_oop, 0);
        EXPECT_GE(node.invested_ip, 0);
        largest_pot = std::max(largest_pot, node.pot);
    }
    EXPECT_EQ(largest_pot, kMaxChipTotal);  // someone is all in somewhere
    EXPECT_TRUE(std::isfinite(result.ev_oop));
    EXPECT_LE(std::abs(result.ev_oop), 1000000000.0f);
}

}  // namespace
}  // namespace kelvane_app
