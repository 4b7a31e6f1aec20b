// Rounding computed sizes to chips at the edges of the 32-bit range.

#include "tree/chips.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

#include "tree/bet_size.h"

namespace kelvane {
namespace {

constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::lowest();

TEST(ChipRoundingRange, ValuesBeyondThirtyTwoBitsAreHeldAtItsEnds) {
    EXPECT_EQ(round_chips(1e12), kMost);
    EXPECT_EQ(round_chips(4294967296.0), kMost);
    EXPECT_EQ(round_chips(1e300), kMost);
    EXPECT_EQ(round_chips(std::numeric_limits<double>::infinity()), kMost);
    EXPECT_EQ(round_chips(-1e12), kLeast);
    EXPECT_EQ(round_chips(-std::numeric_limits<double>::infinity()), kLeast);
}

TEST(ChipRoundingRange, TheEndsThemselvesAndJustInsideRoundAsEver) {
    EXPECT_EQ(round_chips(2147483647.0), kMost);
    EXPECT_EQ(round_chips(2147483646.4), 2147483646);
    EXPECT_EQ(round_chips(-2147483648.0), kLeast);
    EXPECT_EQ(round_chips(-2147483647.5), kLeast);
}

TEST(ChipRoundingRange, NotANumberIsNoChips) {
    EXPECT_EQ(round_chips(std::numeric_limits<double>::quiet_NaN()), 0);
}

SizingContext node(std::int32_t min_to, std::int32_t max_to) {
    SizingContext context;
    context.pot = 100;
    context.min_to = min_to;
    context.max_to = max_to;
    context.remaining_streets = 1;
    return context;
}

// pot * fraction far past 32 bits once wrapped to some small or negative amount; now it is the most
// chips there are, and the clamp makes it the whole stack.
TEST(ChipRoundingRange, AHugePercentIsTheLargestLegalBet) {
    EXPECT_EQ(resolve_bet_token(parse_bet_token("1e300%", false), node(80, 300)), 300);
    EXPECT_EQ(resolve_bet_token(parse_bet_token("3e9%", false), node(80, 300)), 300);
    EXPECT_EQ(resolve_bet_token(parse_bet_token("-1e300%", false), node(80, 300)), 80);
}

}  // namespace
}  // namespace kelvane
