// From a solve configuration's texts to board, ranges and game description.

#include "session/solve_setup.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "support/expect_error.h"

namespace kelvane_app {
namespace {

using kelvane_test::expect_error;

const char* const kBoardMessage = "Board must include at least a flop (6 chars, e.g. AhKsQd)";

void fill_seat(SeatSizing& seat, const std::string& bets, const std::string& raises) {
    for (StreetSizing* street : {&seat.flop, &seat.turn, &seat.river}) {
        street->bet_sizes = bets;
        street->raise_sizes = raises;
    }
}

SolveConfig river_spot() {
    SolveConfig config;
    config.board = "AhKsQd2c7h";
    config.starting_street = "river";
    config.starting_pot = 60;
    config.effective_stack = 240;
    config.oop_range = "AA,KK";
    config.ip_range = "QQ:0.5,AKs";
    fill_seat(config.oop, "33, 75", "50");
    fill_seat(config.ip, "50", "2.5x");
    return config;
}

int card(const char* text) { return kelvane::parse_card(text); }

TEST(SolveConfig, Defaults) {
    const SolveConfig config;
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
    EXPECT_EQ(config.oop.river.bet_sizes, "");
    EXPECT_FALSE(config.ip.turn.add_all_in);
    EXPECT_FALSE(config.oop.flop.dont_donk);
    EXPECT_FALSE(config.oop_jam_threshold_pct.has_value());
    EXPECT_FALSE(config.ip_jam_threshold_pct.has_value());
    EXPECT_TRUE(config.node_locks.empty());
    const NodeLockEntry lock;
    EXPECT_EQ(lock.node_index, 0u);
    EXPECT_EQ(lock.action_index, 0u);
    EXPECT_EQ(lock.action_prob, 0.0f);
}

TEST(StartingStreet, ExactNamesOnly) {
    EXPECT_EQ(starting_street_number("flop"), 0);
    EXPECT_EQ(starting_street_number("turn"), 1);
    EXPECT_EQ(starting_street_number("river"), 2);
    EXPECT_EQ(starting_street_number("River"), 0);
    EXPECT_EQ(starting_street_number(" turn"), 0);
    EXPECT_EQ(starting_street_number(""), 0);
}

TEST(SolveSetup, ParsesBoardRangesAndGame) {
    const SolveSetup setup = make_solve_setup(river_spot());
    EXPECT_EQ(setup.board.flop[0], card("Ah"));
    EXPECT_EQ(setup.board.flop[2], card("Qd"));
    EXPECT_EQ(setup.board.turn, card("2c"));
    EXPECT_EQ(setup.board.river, card("7h"));
    EXPECT_EQ(kelvane::get_pocket_weight(setup.ranges[0], card("As"), card("Ac")), 1.0f);
    EXPECT_EQ(kelvane::get_pocket_weight(setup.ranges[0], card("Qs"), card("Qc")), 0.0f);
    EXPECT_EQ(kelvane::get_pocket_weight(setup.ranges[1], card("Qs"), card("Qc")), 0.5f);
    EXPECT_EQ(setup.game.starting_street, 2);
    EXPECT_EQ(setup.game.starting_pot, 60);
    EXPECT_EQ(setup.game.effective_stack, 240);
    ASSERT_EQ(setup.game.flop_sizing.oop_bets.size(), 2u);
    ASSERT_EQ(setup.game.river_sizing.ip_raises.size(), 1u);
    EXPECT_EQ(setup.game.river_sizing.ip_raises[0].kind, kelvane::BetSizeKind::RelativeRaise);
    EXPECT_EQ(setup.game.turn_sizing.donk_bets->size(), 2u);
}

TEST(SolveSetup, PercentRangeIsAccepted) {
    SolveConfig config = river_spot();
    config.ip_range = " 50% ";
    const SolveSetup setup = make_solve_setup(config);
    EXPECT_EQ(kelvane::get_pocket_weight(setup.ranges[1], card("3s"), card("2c")), 0.5f);
}

TEST(SolveSetup, ShortBoardFails) {
    SolveConfig config = river_spot();
    config.board = "AhKsQ";
    expect_error<std::invalid_argument>([&] { make_solve_setup(config); }, kBoardMessage);
    config.board = "";
    expect_error<std::invalid_argument>([&] { make_solve_setup(config); }, kBoardMessage);
}

TEST(SolveSetup, OddBoardLengthsIgnoreTheLastCharacter) {
    SolveConfig config = river_spot();
    config.board = "AhKsQd2";
    SolveSetup setup = make_solve_setup(config);
    EXPECT_EQ(setup.board.turn, kelvane::kNoCard);
    config.board = "AhKsQd2c7";
    setup = make_solve_setup(config);
    EXPECT_EQ(setup.board.turn, card("2c"));
    EXPECT_EQ(setup.board.river, kelvane::kNoCard);
}

TEST(SolveSetup, BoardIsCheckedBeforeRangesAndRangesBeforeSizing) {
    SolveConfig config = river_spot();
    config.board = "Ah";
    config.oop_range = "KAs";
    config.oop.flop.bet_sizes = "%";
    expect_error<std::invalid_argument>([&] { make_solve_setup(config); }, kBoardMessage);
    config.board = "AhKsQd";
    expect_error<std::invalid_argument>([&] { make_solve_setup(config); }, "First rank must be >= second rank");
    config.oop_range = "AA";
    config.ip_range = "AA:";
    expect_error<std::invalid_argument>([&] { make_solve_setup(config); }, "Weight string is empty");
}

TEST(GameConfig, RakeAndPassThroughValues) {
    SolveConfig config = river_spot();
    config.rake_percent = 5.0;
    config.rake_cap = 30.0;
    const kelvane::GameConfig game = make_game_config(config);
    EXPECT_DOUBLE_EQ(game.rake_fraction, 0.05);
    EXPECT_DOUBLE_EQ(game.rake_cap, 30.0);
    EXPECT_EQ(game.force_all_in_threshold, 0.0);
    EXPECT_EQ(game.merge_threshold, 0.0);
}

TEST(GameConfig, JamThresholds) {
    SolveConfig config = river_spot();
    kelvane::GameConfig game = make_game_config(config);
    EXPECT_EQ(game.oop_jam_threshold, 0.0);
    EXPECT_EQ(game.ip_jam_threshold, 0.0);
    config.oop_jam_threshold_pct = 30.0;
    config.ip_jam_threshold_pct = -10.0;
    game = make_game_config(config);
    EXPECT_DOUBLE_EQ(game.oop_jam_threshold, 0.3);
    EXPECT_EQ(game.ip_jam_threshold, 0.0);
}

TEST(GameConfig, UnknownStreetTextIsTheFlop) {
    SolveConfig config = river_spot();
    config.starting_street = "Turn";
    EXPECT_EQ(make_game_config(config).starting_street, 0);
}

TEST(GameConfig, BadFlopTextFailsARiverSolve) {
    SolveConfig config = river_spot();
    config.oop.flop.bet_sizes = "3x";
    expect_error<std::invalid_argument>(
        [&] { make_game_config(config); },
        "OOP flop sizing (bet='3x', raise='50', bet_norm='3x', raise_norm='50%'): "
        "Relative raise (x) is not allowed in this context");
}

TEST(GameConfig, StreetsAreCompiledInOrderWithTheirNames) {
    SolveConfig config = river_spot();
    config.ip.turn.raise_sizes = "0x";
    config.ip.river.bet_sizes = "3x";
    expect_error<std::invalid_argument>(
        [&] { make_game_config(config); },
        "IP turn sizing (bet='50', raise='0x', bet_norm='50%', raise_norm='0x'): Relative raise must exceed 1.0x");
}

TEST(GameConfig, UnlabelledErrorsForTheEstimate) {
    SolveConfig config = river_spot();
    config.ip.river.bet_sizes = "3x";
    expect_error<std::invalid_argument>([&] { make_game_config(config, SizingErrors::unlabelled); },
                                        "Relative raise (x) is not allowed in this context");
    expect_error<std::invalid_argument>([&] { make_solve_setup(config, SizingErrors::unlabelled); },
                                        "Relative raise (x) is not allowed in this context");
}

TEST(GameConfig, NormaliserErrorIsNotWrapped) {
    SolveConfig config = river_spot();
    config.oop.turn.raise_sizes = "33, %";
    expect_error<std::invalid_argument>([&] { make_solve_setup(config); },
                                        "Sizing: invalid token '%'. Use numbers like '33, 75' or '33%, 75%'");
}

}  // namespace
}  // namespace kelvane_app
