#include "poker/number_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>
#include <string>

#include "support/expect_error.h"

namespace kelvane {
namespace {

TEST(ParseDouble, ReadsWhatStrtodReads) {
    EXPECT_DOUBLE_EQ(parse_double("1.5"), 1.5);
    EXPECT_DOUBLE_EQ(parse_double("-2e3"), -2000.0);
    EXPECT_DOUBLE_EQ(parse_double(".5"), 0.5);
    EXPECT_DOUBLE_EQ(parse_double("1e-1"), 0.1);
    EXPECT_DOUBLE_EQ(parse_double("+7"), 7.0);
    EXPECT_DOUBLE_EQ(parse_double(" 1.5"), 1.5);  // strtod skips leading blanks
    EXPECT_DOUBLE_EQ(parse_double("0x10"), 16.0);
    EXPECT_TRUE(std::isinf(parse_double("inf")));
    EXPECT_TRUE(std::isnan(parse_double("nan")));
}

TEST(ParseDouble, FailuresQuoteTheTextAndItsBytes) {
    EXPECT_ERROR(std::invalid_argument, parse_double("1.5 "),
                 "Failed to parse floating-point number from '1.5 ' (hex=312e3520)");
    EXPECT_ERROR(std::invalid_argument, parse_double(""),
                 "Failed to parse floating-point number from '' (hex=)");
    EXPECT_ERROR(std::invalid_argument, parse_double("abc"),
                 "Failed to parse floating-point number from 'abc' (hex=616263)");
    EXPECT_ERROR(std::invalid_argument,
                 parse_double("\xc2\xa0"
                              "5"),
                 "Failed to parse floating-point number from '\xc2\xa0"
                 "5' (hex=c2a035)");
    EXPECT_ERROR(std::invalid_argument, parse_double("1,5"),
                 "Failed to parse floating-point number from '1,5' (hex=312c35)");
}

TEST(ParseDouble, EmbeddedNulIsLeftOverText) {
    const std::string text("1\0", 2);
    try {
        parse_double(text);
        FAIL() << "nothing thrown";
    } catch (const std::invalid_argument& error) {
        // what() stops at the NUL that the message quotes.
        EXPECT_STREQ(error.what(), "Failed to parse floating-point number from '1");
    }
}

TEST(ParseDouble, OutOfRangeValuesFail) {
    EXPECT_ERROR(std::invalid_argument, parse_double("1e999"),
                 "Failed to parse floating-point number from '1e999' (hex=3165393939)");
    EXPECT_ERROR(std::invalid_argument, parse_double("1e-400"),
                 "Failed to parse floating-point number from '1e-400' (hex=31652d343030)");
}

TEST(ParseInteger, ReadsBaseTen) {
    EXPECT_EQ(parse_integer("42"), 42);
    EXPECT_EQ(parse_integer("-7"), -7);
    EXPECT_EQ(parse_integer("+3"), 3);
    EXPECT_EQ(parse_integer(" 5"), 5);
    EXPECT_EQ(parse_integer("007"), 7);
    EXPECT_EQ(parse_integer("2147483647"), 2147483647);
    EXPECT_EQ(parse_integer("-2147483648"), -2147483647 - 1);
}

TEST(ParseInteger, RejectsTextThatIsNotAWholeNumber) {
    for (const char* text : {"", "12a", "1.5", "0x10", "abc", "5 ", "-"})
        EXPECT_ERROR(std::invalid_argument, parse_integer(text),
                     std::string("Failed to parse integer from '") + text + "'");
}

TEST(ParseInteger, BeyondSixtyFourBitsIsAParseFailure) {
    EXPECT_ERROR(std::invalid_argument, parse_integer("9223372036854775808"),
                 "Failed to parse integer from '9223372036854775808'");
    EXPECT_ERROR(std::invalid_argument, parse_integer("-9223372036854775809"),
                 "Failed to parse integer from '-9223372036854775809'");
}

TEST(ParseInteger, BeyondThirtyTwoBitsIsOutOfRange) {
    EXPECT_ERROR(std::out_of_range, parse_integer("2147483648"), "Integer value is out of range");
    EXPECT_ERROR(std::out_of_range, parse_integer("-2147483649"), "Integer value is out of range");
    EXPECT_ERROR(std::out_of_range, parse_integer("9223372036854775807"), "Integer value is out of range");
}

}  // namespace
}  // namespace kelvane
