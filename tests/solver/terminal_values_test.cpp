#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <vector>

#include "game_fixtures.h"
#include "reference_payoffs.h"

namespace kelvane::game_test {
namespace {

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr double kRelativeTolerance = 1e-6;

std::vector<float> evaluated(const Game& game, std::uint64_t node, Seat seat, std::span<const float> reach) {
    std::vector<float> out(game.hand_count(seat), -7.0f);  // evaluate must overwrite every entry
    game.evaluate(node, seat, reach, out);
    return out;
}

// Float sums over the runouts of an all-in gather one rounding per runout.
double runout_count(const Game& game, std::uint64_t node) {
    const GameNode& n = game.node(node);
    if (n.terminal_kind == kActionFold) return 1.0;
    const double unseen = kCardCount - std::popcount(game.node_dead_cards(node));
    if (n.turn_card == kNoCard) return unseen * (unseen - 1) / 2;
    return n.river_card == kNoCard ? unseen : 1.0;
}

// Compares against the pairwise reference and returns how many values were not zero.
int expect_matches_reference(const Game& game, std::uint64_t node, Seat seat, std::span<const float> reach) {
    const std::vector<float> out = evaluated(game, node, seat, reach);
    const std::vector<float> expected = reference_values(game, node, seat, reach);
    const double rounding = kRelativeTolerance + runout_count(game, node) * std::numeric_limits<float>::epsilon();
    const double tolerance = rounding * value_scale(game, node, reach);
    int nonzero = 0;
    for (std::size_t h = 0; h < out.size(); ++h) {
        EXPECT_NEAR(out[h], expected[h], tolerance) << "node " << node << " seat " << int(seat) << " hand " << h;
        nonzero += out[h] != 0.0f;
    }
    return nonzero;
}

void expect_both_seats_match(const Game& game, std::uint64_t node, std::uint32_t seed, double zero_share) {
    for (Seat seat = 0; seat < 2; ++seat) {
        const auto reach = random_reach(seed + seat, game.hand_count(seat ^ 1), zero_share);
        EXPECT_GT(expect_matches_reference(game, node, seat, reach), 0);
    }
}

constexpr const char* kRiverBoard = "AsKd7h4c2s";

GameConfig river_config(double rake_fraction = 0.0, double rake_cap = 0.0) {
    return spot_config(kStreetRiver, 100, 200, "50", rake_fraction, rake_cap);
}

TEST(TerminalValues, FoldTerminalsMatchPairwiseReference) {
    for (std::uint32_t seed = 1; seed <= 3; ++seed) {
        const auto game = make_random_game(river_config(), kRiverBoard, seed, 0.3);
        const std::uint64_t ip_folds = follow(*game, {kActionBet, kActionFold});
        const std::uint64_t oop_folds = follow(*game, {kActionCheck, kActionBet, kActionFold});
        ASSERT_EQ(game->node(ip_folds).folded_seat, kSeatIp);
        ASSERT_EQ(game->node(oop_folds).folded_seat, kSeatOop);
        expect_both_seats_match(*game, ip_folds, seed * 10, 0.2);
        expect_both_seats_match(*game, oop_folds, seed * 20, 0.0);
    }
}

TEST(TerminalValues, UnrakedShowdownsMatchPairwiseReference) {
    for (std::uint32_t seed = 4; seed <= 6; ++seed) {
        const auto game = make_random_game(river_config(), kRiverBoard, seed, 0.3);
        expect_both_seats_match(*game, follow(*game, {kActionCheck, kActionCheck}), seed, 0.2);
        expect_both_seats_match(*game, follow(*game, {kActionBet, kActionCall}), seed * 7, 0.0);
    }
}

TEST(TerminalValues, RakedShowdownsMatchPairwiseReference) {
    for (std::uint32_t seed = 7; seed <= 9; ++seed) {
        const auto game = make_random_game(river_config(0.05, 3.0), kRiverBoard, seed, 0.3);
        expect_both_seats_match(*game, follow(*game, {kActionCheck, kActionCheck}), seed, 0.2);
        expect_both_seats_match(*game, follow(*game, {kActionBet, kActionCall}), seed * 3, 0.1);
    }
}

TEST(TerminalValues, RakedShowdownOnABoardWhereEveryHandTies) {
    // Four aces and a king: no hole card improves, so every matchup is a tie and pays half the rake.
    const auto game = make_random_game(river_config(0.05, 3.0), "AhAdAcAsKh", 11, 0.5);
    const std::uint64_t node = follow(*game, {kActionCheck, kActionCheck});
    const auto reach = random_reach(12, game->hand_count(kSeatIp), 0.1);
    const std::vector<float> out = evaluated(*game, node, kSeatOop, reach);
    const std::vector<float> expected = reference_values(*game, node, kSeatOop, reach);
    for (std::size_t h = 0; h < out.size(); ++h) {
        EXPECT_LT(out[h], 0.0f);  // the rake share is all a tie pays
        EXPECT_NEAR(out[h], expected[h], 1e-6 * std::abs(expected[h]));
    }
}

// One range far stronger than the other, so that many hands of the weak seat sit below the strong
// seat's whole row, and the strong seat's hands above the weak seat's whole row.
constexpr const char* kStrongRiverRange = "AA,KK,77,44,22,AK,A7,K7";
constexpr const char* kWeakRiverRange = "QJo,QTo,JTo,T9o,T8o,98o,65o,63o,QQ,JJ";

TEST(TerminalValues, EveryHandBelowTheWholeOpposingRowPaysItsLoss) {
    for (const bool strong_oop : {true, false}) {
        const auto game = make_game(river_config(), kRiverBoard, strong_oop ? kStrongRiverRange : kWeakRiverRange,
                                    strong_oop ? kWeakRiverRange : kStrongRiverRange);
        const std::uint64_t node = follow(*game, {kActionCheck, kActionCheck});
        const Seat weak = strong_oop ? kSeatIp : kSeatOop;
        const std::vector<float> reach(game->hand_count(weak ^ 1), 1.0f);
        for (const std::uint16_t h : game->live_hands(node, weak)) EXPECT_LT(evaluated(*game, node, weak, reach)[h], 0.0f);
        expect_both_seats_match(*game, node, 91, 0.0);
        expect_both_seats_match(*game, node, 92, 0.3);
    }
}

TEST(TerminalValues, AsymmetricRangesMatchPairwiseReferenceInEveryShowdownKind) {
    for (const bool strong_oop : {true, false}) {
        const char* oop = strong_oop ? kStrongRiverRange : kWeakRiverRange;
        const char* ip = strong_oop ? kWeakRiverRange : kStrongRiverRange;
        const auto raked = make_game(river_config(0.05, 3.0), kRiverBoard, oop, ip);
        expect_both_seats_match(*raked, follow(*raked, {kActionCheck, kActionCheck}), 93, 0.1);
        expect_both_seats_match(*raked, follow(*raked, {kActionBet, kActionCall}), 94, 0.0);

        for (const double rake : {0.0, 0.05}) {
            const GameConfig turn = spot_config(kStreetTurn, 100, 50, "100", rake, 3.0);
            const auto turn_game = make_game(turn, "AsKd7h4c", oop, ip);
            expect_both_seats_match(*turn_game, follow(*turn_game, {kActionAllIn, kActionCall}), 95, 0.1);
        }
        const GameConfig flop = spot_config(kStreetFlop, 100, 50, "100");
        const auto flop_game = make_game(flop, "AsKd7h", strong_oop ? "AA,KK,77,AK" : "65s,T9o,J9o,54s",
                                         strong_oop ? "65s,T9o,J9o,54s" : "AA,KK,77,AK");
        expect_both_seats_match(*flop_game, follow(*flop_game, {kActionAllIn, kActionCall}), 96, 0.0);
    }
}

// What the two seats win together at one terminal, reach-weighted: 0 when no rake is taken.
double chips_created(const Game& game, std::uint64_t node, const std::vector<float>& oop_reach,
                     const std::vector<float>& ip_reach) {
    const std::vector<float> oop = evaluated(game, node, kSeatOop, ip_reach);
    const std::vector<float> ip = evaluated(game, node, kSeatIp, oop_reach);
    double sum = 0.0;
    for (std::size_t h = 0; h < oop.size(); ++h) sum += double(oop_reach[h]) * oop[h];
    for (std::size_t h = 0; h < ip.size(); ++h) sum += double(ip_reach[h]) * ip[h];
    return sum;
}

TEST(TerminalValues, UnrakedPayoffsAreZeroSum) {
    const auto river = make_game(river_config(), kRiverBoard, kStrongRiverRange, kWeakRiverRange);
    const auto turn = make_game(spot_config(kStreetTurn, 100, 50, "100"), "AsKd7h4c", kWeakRiverRange,
                                kStrongRiverRange);
    for (const Game* game : {river.get(), turn.get()}) {
        const auto oop_reach = random_reach(101, game->hand_count(kSeatOop), 0.2);
        const auto ip_reach = random_reach(102, game->hand_count(kSeatIp), 0.2);
        const std::uint8_t wager = game == river.get() ? kActionBet : kActionAllIn;
        for (const std::uint64_t node : {follow(*game, {kActionCheck, kActionCheck}), follow(*game, {wager, kActionCall}),
                                         follow(*game, {wager, kActionFold})}) {
            if (game->node(node).kind != kNodeTerminal) continue;  // a turn check-through deals the river
            double magnitude = 0.0;
            for (const float v : evaluated(*game, node, kSeatOop, ip_reach)) magnitude += std::abs(v);
            EXPECT_GT(magnitude, 0.0);
            EXPECT_NEAR(chips_created(*game, node, oop_reach, ip_reach), 0.0, 1e-5 * magnitude) << "node " << node;
        }
    }
}

TEST(TerminalValues, EarlyStopSettingKeepsTheEarlierDownwardPass) {
    // Every OOP hand is below every IP hand. Only the strongest OOP hand, the last entry of its row,
    // gets its losing value; all weaker ones get 0 from the downward pass, ties among them included.
    GameConfig config = river_config();
    config.showdown_early_stop = true;
    const auto game = make_game(config, kRiverBoard, "T9o,T8o", "QQ,JJ");
    const std::uint64_t node = follow(*game, {kActionCheck, kActionCheck});
    const std::vector<float> reach(game->hand_count(kSeatIp), 1.0f);
    const std::vector<float> out = evaluated(*game, node, kSeatOop, reach);

    const auto& row = game->cards().showdown_row(game->node(node).turn_card, game->node(node).river_card)[kSeatOop];
    ASSERT_GT(row.size(), 4u);
    const std::uint16_t first_in_descending_order = row[row.size() - 2].pocket;
    EXPECT_LT(out[first_in_descending_order], 0.0f);
    for (std::size_t i = 1; i + 2 < row.size(); ++i) EXPECT_EQ(out[row[i].pocket], 0.0f) << "row entry " << i;
    EXPECT_EQ(out[first_in_descending_order], reference_values(*game, node, kSeatOop, reach)[first_in_descending_order]);

    // The exact default pays every one of them its loss.
    const auto exact = make_game(river_config(), kRiverBoard, "T9o,T8o", "QQ,JJ");
    const std::vector<float> exact_out = evaluated(*exact, node, kSeatOop, reach);
    for (std::size_t i = 1; i + 1 < row.size(); ++i) EXPECT_LT(exact_out[row[i].pocket], 0.0f) << "row entry " << i;

    // The three-way sweep of a raked pot has no such stop: every hand loses its share.
    config.rake_fraction = 0.05;
    config.rake_cap = 3.0;
    const auto raked = make_game(config, kRiverBoard, "T9o,T8o", "QQ,JJ");
    const std::uint64_t raked_node = follow(*raked, {kActionCheck, kActionCheck});
    for (const float value : evaluated(*raked, raked_node, kSeatOop, reach)) EXPECT_LT(value, 0.0f);
}

TEST(TerminalValues, EarlyStopSettingDividesRunoutsByTheRunoutsCounted) {
    // Before the runout divisor was fixed, a turn all-in divided by every river whose rows held hands.
    GameConfig config = spot_config(kStreetTurn, 100, 50, "100");
    const auto exact = make_game(config, "AsKd7h4c", "AA,KK", "QQ,JJ");
    config.showdown_early_stop = true;
    const auto early = make_game(config, "AsKd7h4c", "AA,KK", "QQ,JJ");
    const std::uint64_t node = follow(*exact, {kActionAllIn, kActionCall});
    const std::vector<float> reach(exact->hand_count(kSeatIp), 1.0f);
    const std::vector<float> exact_out = evaluated(*exact, node, kSeatOop, reach);
    const std::vector<float> early_out = evaluated(*early, node, kSeatOop, reach);
    // 48 unseen rivers, 44 of them possible for any one pair: the earlier values are 44/48 of these.
    // OOP's sets stay ahead of every IP hand on every river, so the early stop itself drops nothing.
    for (std::size_t h = 0; h < exact_out.size(); ++h)
        EXPECT_NEAR(early_out[h], exact_out[h] * 44.0f / 48.0f, 1e-5f * std::abs(exact_out[h]) + 1e-6f) << h;
}

TEST(TerminalValues, PotsBeyond32BitsAreSummedWithoutOverflow) {
    // Starting pot plus both commitments passes 2^31; the payoff is formed in 64 bits.
    const auto game = make_game(spot_config(kStreetRiver, 2'000'000'000, 2'000'000'000, "a"), kRiverBoard,
                                "AA,KK", "QQ,JJ");
    const std::uint64_t node = follow(*game, {kActionAllIn, kActionCall});
    const std::vector<float> reach(game->hand_count(kSeatIp), 1.0f);
    const std::vector<float> out = evaluated(*game, node, kSeatOop, reach);
    // Each set (AA, KK minus the board's ace and king) beats all twelve pairs below it and wins
    // half the starting pot plus the whole stack from each, over the 72 matchups of the spot.
    ASSERT_EQ(out.size(), 6u);
    for (const float value : out) EXPECT_FLOAT_EQ(value, 12.0f * 3'000'000'000.0f / 72.0f);
    EXPECT_EQ(out, reference_values(*game, node, kSeatOop, reach));

    // A raked all-in before the river pays every runout from the same unwrapped pot.
    const auto turn = make_game(spot_config(kStreetTurn, 2'000'000'000, 2'000'000'000, "a", 0.05, 3.0), "AsKd7h4c",
                                "AA,KK,QQ,AK", "QQ,JJ,AK,KQ");
    expect_both_seats_match(*turn, follow(*turn, {kActionAllIn, kActionCall}), 61, 0.2);
}

TEST(TerminalValues, IdenticalComboInBothRangesIsRemovedOnce) {
    const auto game = make_game(river_config(), kRiverBoard, "QcQd", "QcQd,JcJd");
    ASSERT_EQ(game->hand_count(kSeatOop), 1u);
    ASSERT_EQ(game->hand_count(kSeatIp), 2u);
    const std::vector<float> reach{0.5f, 0.25f};  // JcJd, QcQd: lists follow the pocket index
    const double total_matchups = game->cards().total_matchups;
    ASSERT_DOUBLE_EQ(total_matchups, 1.0);  // only QcQd against JcJd

    const std::uint64_t fold = follow(*game, {kActionBet, kActionFold});
    EXPECT_FLOAT_EQ(evaluated(*game, fold, kSeatOop, reach)[0], 0.5f * 50.0f);

    // Raked check-through: QcQd beats JcJd and never meets itself.
    const auto raked = make_game(river_config(0.05, 3.0), kRiverBoard, "QcQd", "QcQd,JcJd");
    const std::uint64_t showdown = follow(*raked, {kActionCheck, kActionCheck});
    EXPECT_FLOAT_EQ(evaluated(*raked, showdown, kSeatOop, reach)[0], 0.5f * (50.0f - 3.0f));
    // Seen from IP, JcJd loses to OOP's QcQd, and QcQd meets nothing at all.
    const std::vector<float> oop_reach{1.0f};
    const std::vector<float> ip = evaluated(*raked, showdown, kSeatIp, oop_reach);
    EXPECT_FLOAT_EQ(ip[0], -50.0f);
    EXPECT_EQ(ip[1], 0.0f);
}

TEST(TerminalValues, NaNReachCountsAsNonZero) {
    const auto game = make_random_game(river_config(), kRiverBoard, 21, 0.3);
    const std::uint64_t showdown = follow(*game, {kActionCheck, kActionCheck});
    const auto& row = game->cards().showdown_row(game->node(showdown).turn_card, game->node(showdown).river_card);
    const ShowdownEntry nan_entry = row[kSeatIp][row[kSeatIp].size() / 2];
    auto reach = random_reach(22, game->hand_count(kSeatIp), 0.0);
    reach[nan_entry.pocket] = kNaN;

    // The fold pass adds the NaN to the total that every own hand starts from.
    const std::uint64_t fold = follow(*game, {kActionBet, kActionFold});
    const std::vector<float> fold_values = evaluated(*game, fold, kSeatOop, reach);
    for (const std::uint16_t h : game->live_hands(fold, kSeatOop)) EXPECT_TRUE(std::isnan(fold_values[h])) << h;

    // In the showdown it enters the sums of every own hand stronger than it.
    const std::vector<float> values = evaluated(*game, showdown, kSeatOop, reach);
    int poisoned = 0;
    for (const ShowdownEntry& own : row[kSeatOop]) {
        if (own.pocket == kNoPocketPosition || own.value <= nan_entry.value) continue;
        EXPECT_TRUE(std::isnan(values[own.pocket]));
        ++poisoned;
    }
    EXPECT_GT(poisoned, 0);
}

TEST(TerminalValues, ZeroReachGivesZeroEverywhere) {
    for (const double rake : {0.0, 0.05}) {
        const auto game = make_random_game(river_config(rake, 3.0), kRiverBoard, 31, 0.3);
        const std::vector<float> reach(game->hand_count(kSeatIp), 0.0f);
        for (const std::uint64_t node : {follow(*game, {kActionBet, kActionFold}),
                                         follow(*game, {kActionCheck, kActionCheck})})
            for (const float value : evaluated(*game, node, kSeatOop, reach)) EXPECT_EQ(value, 0.0f);
    }
}

TEST(TerminalValues, WrongSpanLengthsGiveZeros) {
    const auto game = make_random_game(river_config(), kRiverBoard, 41, 0.3);
    const std::uint64_t node = follow(*game, {kActionCheck, kActionCheck});
    const std::vector<float> short_reach(game->hand_count(kSeatIp) - 1, 1.0f);
    for (const float value : evaluated(*game, node, kSeatOop, short_reach)) EXPECT_EQ(value, 0.0f);

    const std::vector<float> reach(game->hand_count(kSeatIp), 1.0f);
    std::vector<float> long_out(game->hand_count(kSeatOop) + 1, 5.0f);
    game->evaluate(node, kSeatOop, reach, long_out);
    for (const float value : long_out) EXPECT_EQ(value, 0.0f);
}

TEST(TerminalValues, NoMatchupsMakesEveryPayoffZero) {
    // Both ranges hold only combos with the ace of clubs, so no pair of hands can meet.
    for (const double rake : {0.0, 0.05}) {
        const auto game = make_game(river_config(rake, 3.0), kRiverBoard, "AcQc,AcQd", "AcJc,AcJd");
        ASSERT_EQ(game->cards().total_matchups, 0.0);
        const std::vector<float> reach(game->hand_count(kSeatIp), 1.0f);
        for (const std::uint64_t node : {follow(*game, {kActionBet, kActionFold}),
                                         follow(*game, {kActionCheck, kActionCheck})})
            for (const float value : evaluated(*game, node, kSeatOop, reach)) EXPECT_EQ(value, 0.0f);
    }
}

TEST(TerminalValues, RakeCapOfZeroMeansNoRakeOnRiverPaths) {
    const auto unraked = make_random_game(river_config(), kRiverBoard, 51, 0.3);
    const auto capped = make_random_game(river_config(0.05, 0.0), kRiverBoard, 51, 0.3);
    const auto reach = random_reach(52, unraked->hand_count(kSeatIp), 0.1);
    for (const auto& path : {std::vector<std::uint8_t>{kActionBet, kActionFold},
                             std::vector<std::uint8_t>{kActionCheck, kActionCheck},
                             std::vector<std::uint8_t>{kActionBet, kActionCall}}) {
        std::uint64_t plain = 0, zero_cap = 0;
        for (const std::uint8_t kind : path) {
            plain = child_by_kind(*unraked, plain, kind);
            zero_cap = child_by_kind(*capped, zero_cap, kind);
        }
        const std::vector<float> expected = evaluated(*unraked, plain, kSeatOop, reach);
        EXPECT_EQ(expected, evaluated(*capped, zero_cap, kSeatOop, reach));
        EXPECT_TRUE(std::any_of(expected.begin(), expected.end(), [](float v) { return v != 0.0f; }));
    }
}

TEST(TerminalValues, RakeCapOfZeroTakesNoRakeInAllInRunouts) {
    const GameConfig plain = spot_config(kStreetTurn, 100, 50, "100");
    const GameConfig capped = spot_config(kStreetTurn, 100, 50, "100", 0.05, 0.0);
    const auto unraked = make_random_game(plain, "AsKd7h4c", 61, 0.2);
    const auto zero_cap = make_random_game(capped, "AsKd7h4c", 61, 0.2);
    const std::uint64_t node = follow(*unraked, {kActionAllIn, kActionCall});
    ASSERT_EQ(node, follow(*zero_cap, {kActionAllIn, kActionCall}));
    const std::vector<float> reach(unraked->hand_count(kSeatIp), 1.0f);
    const std::vector<float> expected = evaluated(*unraked, node, kSeatOop, reach);
    EXPECT_EQ(expected, evaluated(*zero_cap, node, kSeatOop, reach));
    EXPECT_GT(expect_matches_reference(*zero_cap, node, kSeatOop, reach), 0);
}

TEST(TerminalValues, TurnAllInAveragesRiverRunouts) {
    for (const double rake : {0.0, 0.05}) {
        const GameConfig config = spot_config(kStreetTurn, 100, 50, "100", rake, 3.0);
        const auto game = make_random_game(config, "AsKd7h4c", 71, 0.2);
        const std::uint64_t node = follow(*game, {kActionAllIn, kActionCall});
        ASSERT_EQ(game->node(node).river_card, kNoCard);
        ASSERT_EQ(game->node(node).all_in_runout, 1);
        expect_both_seats_match(*game, node, 72, 0.2);
    }
}

TEST(TerminalValues, FlopAllInAveragesEveryTurnAndRiverPair) {
    const GameConfig config = spot_config(kStreetFlop, 100, 50, "100");
    const auto game = make_game(config, "AsKd7h", "QQ,T9s", "JJ,AQs,65s");
    const std::uint64_t node = follow(*game, {kActionAllIn, kActionCall});
    ASSERT_EQ(game->node(node).turn_card, kNoCard);
    expect_both_seats_match(*game, node, 81, 0.0);
}

TEST(TerminalValues, AllInRunoutWithOneCommonHandEqualsItsShareOfRunouts) {
    // Against a single opposing hand, the average is the chance of each outcome times its payoff.
    const GameConfig config = spot_config(kStreetTurn, 100, 50, "100");
    const auto game = make_game(config, "AsKd7h4c", "QcQd", "JcJd");
    const std::uint64_t node = follow(*game, {kActionAllIn, kActionCall});
    const std::vector<float> reach{1.0f};
    // 44 rivers: the two remaining jacks win for JJ, the other 42 keep QQ ahead. Pot 200, N 1.
    const float expected = (42.0f * 100.0f + 2.0f * -100.0f) / 44.0f;
    EXPECT_NEAR(evaluated(*game, node, kSeatOop, reach)[0], expected, 1e-4);
}

}  // namespace
}  // namespace kelvane::game_test
