// The solve map of the pages read into a SolveConfig: keys, defaults and the board.

#include "app/solve_map.h"

#include <gtest/gtest.h>

namespace kelvane_app {
namespace {

const char* const kPrefixes[] = {"oop_flop", "oop_turn", "oop_river", "ip_flop", "ip_turn", "ip_river"};

const StreetSizing& street_of(const SolveConfig& config, int index) {
    const SeatSizing& seat = index < 3 ? config.oop : config.ip;
    const StreetSizing* streets[] = {&seat.flop, &seat.turn, &seat.river};
    return *streets[index % 3];
}

TEST(NormalizeBoardText, KeepsRankSuitPairsInCanonicalCase) {
    EXPECT_EQ(normalizeBoardText("as kd 7h"), "AsKd7h");
    EXPECT_EQ(normalizeBoardText("tC9D\t2s\n"), "Tc9d2s");
    EXPECT_EQ(normalizeBoardText("QsJh2h"), "QsJh2h");
}

TEST(NormalizeBoardText, DropsBadPairsAndALoneLastCharacter) {
    EXPECT_EQ(normalizeBoardText("Ax Kd7h"), "Kd7h");
    EXPECT_EQ(normalizeBoardText("AsKdQhXx"), "AsKdQh");
    EXPECT_EQ(normalizeBoardText("AsKdQh2"), "AsKdQh");
    EXPECT_EQ(normalizeBoardText("____AhKd"), "AhKd");
    EXPECT_EQ(normalizeBoardText("1s10"), "");
    EXPECT_EQ(normalizeBoardText("   "), "");
}

TEST(SolveConfigFromMap, EmptyMapGivesTheDefaults) {
    const SolveConfig config = solveConfigFromMap({});
    EXPECT_EQ(config.board, "");
    EXPECT_EQ(config.starting_pot, 100);
    EXPECT_EQ(config.effective_stack, 100);
    EXPECT_EQ(config.rake_percent, 0.0);
    EXPECT_EQ(config.rake_cap, 0.0);
    EXPECT_EQ(config.starting_street, "flop");
    EXPECT_EQ(config.max_iterations, 2000u);
    EXPECT_FLOAT_EQ(config.target_exploitability, 0.1f);
    EXPECT_EQ(config.thread_count, 1u);
    EXPECT_FALSE(config.solver_flag);
    EXPECT_EQ(config.oop_range, "");
    EXPECT_EQ(config.ip_range, "");
    EXPECT_FALSE(config.oop_jam_threshold_pct.has_value());
    EXPECT_FALSE(config.ip_jam_threshold_pct.has_value());
    EXPECT_TRUE(config.node_locks.empty());
    for (int i = 0; i < 6; ++i) {
        const StreetSizing& street = street_of(config, i);
        EXPECT_EQ(street.bet_sizes, "") << kPrefixes[i];
        EXPECT_EQ(street.raise_sizes, "") << kPrefixes[i];
        EXPECT_FALSE(street.add_all_in) << kPrefixes[i];
        EXPECT_FALSE(street.dont_donk) << kPrefixes[i];
    }
}

TEST(SolveConfigFromMap, ShowdownEarlyStopIsOffUnlessAsked) {
    EXPECT_FALSE(solveConfigFromMap({}).showdown_early_stop);
    EXPECT_FALSE(solveConfigFromMap({{"showdown_early_stop", false}}).showdown_early_stop);
    EXPECT_TRUE(solveConfigFromMap({{"showdown_early_stop", true}}).showdown_early_stop);
}

TEST(SolveConfigFromMap, EveryKeyReachesItsField) {
    QVariantMap map{
        {"board", "qs jh 2h 7c"},
        {"starting_pot", 180},
        {"effective_stack", 910},
        {"rake_percent", 5.0},
        {"rake_cap", 30},
        {"starting_street", "turn"},
        {"max_iterations", 400},
        {"target_exploitability", 0.9},
        {"thread_count", 12},
        {"oop_range", "AA,KK"},
        {"ip_range", "50%"},
        {"oop_add_all_in_jam_threshold_enabled", true},
        {"oop_add_all_in_jam_threshold_pct", 30.0},
        {"ip_add_all_in_jam_threshold_enabled", true},
        {"ip_add_all_in_jam_threshold_pct", 12.5},
    };
    for (int i = 0; i < 6; ++i) {
        const QString prefix = kPrefixes[i];
        map[prefix + "_bet_sizes"] = prefix + " bets";
        map[prefix + "_raise_sizes"] = prefix + " raises";
        map[prefix + "_add_all_in"] = i % 2 == 0;
        map[prefix + "_dont_donk"] = i % 3 == 0;
    }
    const SolveConfig config = solveConfigFromMap(map);
    EXPECT_EQ(config.board, "QsJh2h7c");
    EXPECT_EQ(config.starting_pot, 180);
    EXPECT_EQ(config.effective_stack, 910);
    EXPECT_EQ(config.rake_percent, 5.0);
    EXPECT_EQ(config.rake_cap, 30.0);
    EXPECT_EQ(config.starting_street, "turn");
    EXPECT_EQ(config.max_iterations, 400u);
    EXPECT_FLOAT_EQ(config.target_exploitability, 0.9f);
    EXPECT_EQ(config.thread_count, 12u);
    EXPECT_EQ(config.oop_range, "AA,KK");
    EXPECT_EQ(config.ip_range, "50%");
    EXPECT_EQ(config.oop_jam_threshold_pct, 30.0);
    EXPECT_EQ(config.ip_jam_threshold_pct, 12.5);
    for (int i = 0; i < 6; ++i) {
        const StreetSizing& street = street_of(config, i);
        const std::string prefix = kPrefixes[i];
        EXPECT_EQ(street.bet_sizes, prefix + " bets");
        EXPECT_EQ(street.raise_sizes, prefix + " raises");
        EXPECT_EQ(street.add_all_in, i % 2 == 0) << prefix;
        EXPECT_EQ(street.dont_donk, i % 3 == 0) << prefix;
    }
}

TEST(SolveConfigFromMap, JamPercentIsReadOnlyWhenEnabled) {
    SolveConfig config = solveConfigFromMap({{"oop_add_all_in_jam_threshold_pct", 30.0},
                                             {"ip_add_all_in_jam_threshold_enabled", true}});
    EXPECT_FALSE(config.oop_jam_threshold_pct.has_value());
    ASSERT_TRUE(config.ip_jam_threshold_pct.has_value());
    EXPECT_EQ(*config.ip_jam_threshold_pct, 0.0);
    config = solveConfigFromMap({{"oop_add_all_in_jam_threshold_enabled", false},
                                 {"oop_add_all_in_jam_threshold_pct", 30.0}});
    EXPECT_FALSE(config.oop_jam_threshold_pct.has_value());
}

TEST(SolveConfigFromMap, ValuesConvertAsVariantsDo) {
    const SolveConfig config = solveConfigFromMap(
        {{"starting_pot", "250"}, {"effective_stack", 95.0}, {"max_iterations", 1000.0}, {"rake_cap", "7.5"}});
    EXPECT_EQ(config.starting_pot, 250);
    EXPECT_EQ(config.effective_stack, 95);
    EXPECT_EQ(config.max_iterations, 1000u);
    EXPECT_EQ(config.rake_cap, 7.5);
}

TEST(SolveConfigFromMap, NodeLocksAreLeftToTheCaller) {
    EXPECT_TRUE(solveConfigFromMap({{"apply_node_locks", true}}).node_locks.empty());
}

TEST(SolveConfigFromMap, SizingTextsPassUntouched) {
    const SolveConfig config = solveConfigFromMap({{"oop_river_bet_sizes", " 33 ; 75 "}});
    EXPECT_EQ(config.oop.river.bet_sizes, " 33 ; 75 ");
}

}  // namespace
}  // namespace kelvane_app
