// Bet size token grammar and resolution to chips.

#include "tree/bet_size.h"

#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>
#include <string>

#include "support/expect_error.h"
#include "tree/chips.h"

namespace kelvane {
namespace {

using kelvane_test::expect_error;

SizingContext node(std::int32_t pot, std::int32_t current_bet, std::int32_t min_to, std::int32_t max_to) {
    SizingContext context;
    context.pot = pot;
    context.current_bet = current_bet;
    context.min_to = min_to;
    context.max_to = max_to;
    context.remaining_streets = 1;
    return context;
}

TEST(BetSizeToken, PercentIgnoresSurroundingBlanksAndDecimals) {
    for (const char* text : {"75%", " 75% ", "75.0%", "\t75%\n"}) {
        const BetSizeToken token = parse_bet_token(text, false);
        EXPECT_EQ(token.kind, BetSizeKind::PotPercent) << text;
        EXPECT_DOUBLE_EQ(token.fraction, 0.75) << text;
        EXPECT_EQ(token.chips, 0);
        EXPECT_EQ(token.geometric_max, 0.0);
    }
}

TEST(BetSizeToken, PercentSignAndSizeAreNotChecked) {
    EXPECT_DOUBLE_EQ(parse_bet_token("-50%", false).fraction, -0.5);
    EXPECT_DOUBLE_EQ(parse_bet_token("1000%", false).fraction, 10.0);
    EXPECT_DOUBLE_EQ(parse_bet_token("0%", false).fraction, 0.0);
}

TEST(BetSizeToken, BareNumberIsFixedChips) {
    const BetSizeToken token = parse_bet_token("75", false);
    EXPECT_EQ(token.kind, BetSizeKind::FixedChips);
    EXPECT_EQ(token.chips, 75);
    EXPECT_EQ(token.raise_cap, 0);
    EXPECT_EQ(token.fraction, 0.0);
    EXPECT_EQ(parse_bet_token("-5", true).chips, -5);
}

TEST(BetSizeToken, ChipSuffixInEitherCase) {
    EXPECT_EQ(parse_bet_token("120c", false).chips, 120);
    const BetSizeToken upper = parse_bet_token("120C", true);
    EXPECT_EQ(upper.kind, BetSizeKind::FixedChips);
    EXPECT_EQ(upper.chips, 120);
    EXPECT_EQ(upper.raise_cap, 0);
}

TEST(BetSizeToken, RelativeRaise) {
    const BetSizeToken token = parse_bet_token("2.5X", true);
    EXPECT_EQ(token.kind, BetSizeKind::RelativeRaise);
    EXPECT_DOUBLE_EQ(token.fraction, 2.5);
    EXPECT_DOUBLE_EQ(parse_bet_token("1.01x", true).fraction, 1.01);
    expect_error<std::invalid_argument>([] { parse_bet_token("1x", true); }, "Relative raise must exceed 1.0x");
    expect_error<std::invalid_argument>([] { parse_bet_token("0.5x", true); }, "Relative raise must exceed 1.0x");
    expect_error<std::invalid_argument>([] { parse_bet_token("3x", false); },
                                        "Relative raise (x) is not allowed in this context");
}

TEST(BetSizeToken, AllInLooksOnlyAtTheLastCharacter) {
    for (const char* text : {"a", "A", "xyza", "100a"}) {
        for (bool allow_raise : {false, true}) {
            const BetSizeToken token = parse_bet_token(text, allow_raise);
            EXPECT_EQ(token.kind, BetSizeKind::AllIn) << text;
            EXPECT_EQ(token.fraction, 0.0);
            EXPECT_EQ(token.chips, 0);
        }
    }
}

TEST(BetSizeToken, GeometricForms) {
    const BetSizeToken plain = parse_bet_token("e", false);
    EXPECT_EQ(plain.kind, BetSizeKind::Geometric);
    EXPECT_EQ(plain.streets, 0);
    EXPECT_TRUE(std::isinf(plain.geometric_max));

    EXPECT_EQ(parse_bet_token("2E", false).streets, 2);

    const BetSizeToken capped = parse_bet_token("%150e", false);
    EXPECT_EQ(capped.streets, 0);
    EXPECT_DOUBLE_EQ(capped.geometric_max, 1.5);

    const BetSizeToken both = parse_bet_token("2%150e", true);
    EXPECT_EQ(both.streets, 2);
    EXPECT_DOUBLE_EQ(both.geometric_max, 1.5);

    expect_error<std::invalid_argument>([] { parse_bet_token("0e", false); }, "Geometric streets must be positive");
    expect_error<std::invalid_argument>([] { parse_bet_token("-1e", false); }, "Geometric streets must be positive");
}

TEST(BetSizeToken, EmptyTokenFails) {
    expect_error<std::invalid_argument>([] { parse_bet_token("", false); }, "Empty bet size token");
    expect_error<std::invalid_argument>([] { parse_bet_token("  \t ", true); }, "Empty bet size token");
}

TEST(BetSizeToken, LoneChipSuffixFailsInIntegerParser) {
    expect_error<std::invalid_argument>([] { parse_bet_token("c", false); }, "Failed to parse integer from ''");
}

TEST(BetSizeToken, NumberParserErrorsPassThrough) {
    expect_error<std::invalid_argument>([] { parse_bet_token("abc%", false); },
                                        "Failed to parse floating-point number from 'abc' (hex=616263)");
    expect_error<std::invalid_argument>([] { parse_bet_token("7.5", false); }, "Failed to parse integer from '7.5'");
    expect_error<std::out_of_range>([] { parse_bet_token("99999999999c", false); }, "Integer value is out of range");
    expect_error<std::invalid_argument>([] { parse_bet_token("x2x", true); },
                                        "Failed to parse floating-point number from 'x2' (hex=7832)");
}

// A cap written as "100c3r" ends in 'r', so it is read as a plain chip amount and fails there.
TEST(BetSizeToken, RaiseCapSuffixNeverReachesTheCapBranch) {
    expect_error<std::invalid_argument>([] { parse_bet_token("100c3r", true); },
                                        "Failed to parse integer from '100c3r'");
    expect_error<std::invalid_argument>([] { parse_bet_token("100c3R", false); },
                                        "Failed to parse integer from '100c3R'");
}

// Only tokens ending in 'c' reach the cap text, and that text then ends in 'c' as well.
TEST(BetSizeToken, RaiseCapTextAlwaysFails) {
    expect_error<std::invalid_argument>([] { parse_bet_token("100c3rc", true); }, "Raise cap must end with 'r'");
    expect_error<std::invalid_argument>([] { parse_bet_token("100c0c", true); }, "Raise cap must end with 'r'");
    expect_error<std::invalid_argument>([] { parse_bet_token("100c3rc", false); },
                                        "Raise cap is only valid for raises");
    expect_error<std::invalid_argument>([] { parse_bet_token("100cc", false); },
                                        "Raise cap is only valid for raises");
}

TEST(BetSizeTokens, SplitsTrimsAndSkipsEmptyItems) {
    EXPECT_TRUE(parse_bet_tokens("", false).empty());
    EXPECT_TRUE(parse_bet_tokens(" , ,", true).empty());
    const auto tokens = parse_bet_tokens(" 33% ,, 2.5x , a,", true);
    ASSERT_EQ(tokens.size(), 3u);
    EXPECT_EQ(tokens[0].kind, BetSizeKind::PotPercent);
    EXPECT_EQ(tokens[1].kind, BetSizeKind::RelativeRaise);
    EXPECT_EQ(tokens[2].kind, BetSizeKind::AllIn);
}

TEST(BetSizeTokens, FirstBadTokenFailsTheList) {
    expect_error<std::invalid_argument>([] { parse_bet_tokens("33%,2x,75%", false); },
                                        "Relative raise (x) is not allowed in this context");
}

TEST(ChipRounding, HalvesAwayFromZero) {
    EXPECT_EQ(round_chips(2.5), 3);
    EXPECT_EQ(round_chips(-2.5), -3);
    EXPECT_EQ(round_chips(2.4999), 2);
    EXPECT_EQ(round_chips(0.0), 0);
}

TEST(ResolveBetToken, PotPercentRoundsHalfUp) {
    const SizingContext context = node(5, 0, 1, 1000);
    EXPECT_EQ(resolve_bet_token(parse_bet_token("50%", false), context), 3);
    EXPECT_EQ(resolve_bet_token(parse_bet_token("75%", false), node(100, 0, 1, 1000)), 75);
}

TEST(ResolveBetToken, ZeroPercentResolvesToMinimum) {
    EXPECT_EQ(resolve_bet_token(parse_bet_token("0%", false), node(100, 0, 7, 1000)), 7);
}

TEST(ResolveBetToken, RelativeRaiseMultipliesTheCurrentBet) {
    EXPECT_EQ(resolve_bet_token(parse_bet_token("2.5x", true), node(200, 50, 100, 1000)), 125);
}

TEST(ResolveBetToken, FixedChipsAddToTheCurrentBet) {
    EXPECT_EQ(resolve_bet_token(parse_bet_token("20", true), node(200, 50, 60, 1000)), 70);
    EXPECT_EQ(resolve_bet_token(parse_bet_token("2147483647c", true), node(200, 50, 60, 1000)), 1000);
}

TEST(ResolveBetToken, ClampsToTheLegalInterval) {
    const SizingContext context = node(100, 40, 80, 300);
    EXPECT_EQ(resolve_bet_token(parse_bet_token("1%", true), context), 80);
    EXPECT_EQ(resolve_bet_token(parse_bet_token("1000%", true), context), 300);
}

TEST(ResolveBetToken, MinimumWinsWhenTheBoundsCross) {
    EXPECT_EQ(resolve_bet_token(parse_bet_token("50%", false), node(100, 0, 1, 0)), 1);
}

TEST(ResolveBetToken, AllInIsTheMaximumEvenBelowTheMinimum) {
    EXPECT_EQ(resolve_bet_token(parse_bet_token("a", false), node(100, 0, 1, 250)), 250);
    EXPECT_EQ(resolve_bet_token(parse_bet_token("a", false), node(100, 0, 1, 0)), 0);
}

TEST(ResolveBetToken, GeometricSpreadsTheStackOverTheStreets) {
    SizingContext context = node(100, 0, 1, 400);
    context.stack_to_pot = 4.0;
    context.remaining_streets = 2;
    // (2 * 4 + 1)^(1/2) - 1 = 2, half of it is one pot.
    EXPECT_EQ(resolve_bet_token(parse_bet_token("e", false), context), 100);
    EXPECT_EQ(resolve_bet_token(parse_bet_token("2e", false), context), 100);
    // One street: the whole growth of 8 pots, half of it is 4 pots, the stack.
    EXPECT_EQ(resolve_bet_token(parse_bet_token("1e", false), context), 400);
}

TEST(ResolveBetToken, GeometricCeilingOnTheLastStreet) {
    SizingContext context = node(100, 0, 1, 120);
    context.stack_to_pot = 1.2;
    EXPECT_EQ(resolve_bet_token(parse_bet_token("%150e", false), context), 120);
    context.max_to = 400;
    context.stack_to_pot = 4.0;
    EXPECT_EQ(resolve_bet_token(parse_bet_token("%150e", false), context), 150);
}

TEST(ResolveBetToken, GeometricWithNoStackLeftIsTheMinimum) {
    SizingContext context = node(100, 0, 1, 0);
    context.stack_to_pot = 0.0;
    EXPECT_EQ(resolve_bet_token(parse_bet_token("e", false), context), 1);
}

TEST(ResolveBetToken, GeometricWithNoStreetsLeftIsTheMinimum) {
    SizingContext context = node(100, 0, 9, 400);
    context.stack_to_pot = 4.0;
    context.remaining_streets = 0;
    EXPECT_EQ(resolve_bet_token(parse_bet_token("e", false), context), 9);
}

TEST(ResolveBetToken, UnknownKindIsTheMinimum) {
    BetSizeToken token;
    token.kind = static_cast<BetSizeKind>(9);
    EXPECT_EQ(resolve_bet_token(token, node(100, 0, 4, 400)), 4);
}

}  // namespace
}  // namespace kelvane
