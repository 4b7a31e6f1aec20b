// Sizing text normalisation and the per-street profile builder.

#include "tree/sizing_profile.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "support/expect_error.h"

namespace kelvane {
namespace {

using kelvane_test::expect_error;

const std::string kPercentMessage = "Sizing: invalid token '%'. Use numbers like '33, 75' or '33%, 75%'";

StreetSizing sizing(std::string bets, std::string raises, bool add_all_in = false, bool dont_donk = false) {
    return StreetSizing{std::move(bets), std::move(raises), add_all_in, dont_donk};
}

TEST(NormalizeSizingText, BareNumbersBecomePercentages) {
    EXPECT_EQ(normalize_sizing_text("33, 75", false), "33%,75%");
    EXPECT_EQ(normalize_sizing_text("33, 75", true), "33%,75%,a");
}

TEST(NormalizeSizingText, KeepsUnitsWhole) {
    EXPECT_EQ(normalize_sizing_text("50%, 2.5x, a", false), "50%,2.5x,a");
    EXPECT_EQ(normalize_sizing_text("120C, 2e, %150E", false), "120C,2e,%150E");
}

TEST(NormalizeSizingText, OnlyALoneAllInIsNoticed) {
    EXPECT_EQ(normalize_sizing_text("33,a", true), "33%,a");
    EXPECT_EQ(normalize_sizing_text("33,A", true), "33%,A");
    EXPECT_EQ(normalize_sizing_text("100a,33", true), "100a,33%,a");
}

TEST(NormalizeSizingText, EmptyInput) {
    EXPECT_EQ(normalize_sizing_text("", false), "");
    EXPECT_EQ(normalize_sizing_text("", true), "a");
    EXPECT_EQ(normalize_sizing_text("big!", false), "");
    EXPECT_EQ(normalize_sizing_text(",,", true), "a");
}

TEST(NormalizeSizingText, FilterDropsSignsBlanksAndOtherSeparators) {
    EXPECT_EQ(normalize_sizing_text("-50", false), "50%");
    EXPECT_EQ(normalize_sizing_text("33;75", false), "3375%");
    EXPECT_EQ(normalize_sizing_text(" 3 3 ,\t7 5 ,", false), "33%,75%");
}

TEST(NormalizeSizingText, ItemEndingInRGetsAPercent) {
    EXPECT_EQ(normalize_sizing_text("100c3r", false), "100c3r%");
}

TEST(NormalizeSizingText, LonePercentFails) {
    expect_error<std::invalid_argument>([] { normalize_sizing_text("33, %", false); }, kPercentMessage);
}

TEST(NormalizeSizingText, LoneUnitLetterFails) {
    expect_error<std::invalid_argument>([] { normalize_sizing_text("c", false); }, "Sizing: invalid token 'c'");
    expect_error<std::invalid_argument>([] { normalize_sizing_text("33,E", false); }, "Sizing: invalid token 'E'");
    expect_error<std::invalid_argument>([] { normalize_sizing_text("x,33", true); }, "Sizing: invalid token 'x'");
}

TEST(SizingProfile, BuildsAllFourListsAndTheLeads) {
    SizingProfile profile;
    build_sizing_profile(profile, sizing("33, 75", "2.5x"), sizing("50", "100", true), "flop");
    ASSERT_EQ(profile.oop_bets.size(), 2u);
    EXPECT_DOUBLE_EQ(profile.oop_bets[1].fraction, 0.75);
    ASSERT_EQ(profile.oop_raises.size(), 1u);
    EXPECT_EQ(profile.oop_raises[0].kind, BetSizeKind::RelativeRaise);
    ASSERT_EQ(profile.ip_bets.size(), 2u);
    EXPECT_EQ(profile.ip_bets[1].kind, BetSizeKind::AllIn);
    ASSERT_EQ(profile.ip_raises.size(), 2u);
    EXPECT_EQ(profile.ip_raises[1].kind, BetSizeKind::AllIn);
    ASSERT_TRUE(profile.donk_bets.has_value());
    ASSERT_EQ(profile.donk_bets->size(), 2u);
    EXPECT_DOUBLE_EQ((*profile.donk_bets)[0].fraction, 0.33);
}

TEST(SizingProfile, DontDonkEmptiesTheLeadsEvenWithAllIn) {
    SizingProfile profile;
    build_sizing_profile(profile, sizing("33", "50", true, true), sizing("33", "50"), "turn");
    ASSERT_EQ(profile.oop_bets.size(), 2u);
    EXPECT_EQ(profile.oop_bets[1].kind, BetSizeKind::AllIn);
    ASSERT_TRUE(profile.donk_bets.has_value());
    EXPECT_TRUE(profile.donk_bets->empty());
}

TEST(SizingProfile, InPositionDontDonkIsIgnored) {
    SizingProfile profile;
    build_sizing_profile(profile, sizing("33", "50"), sizing("33", "50", false, true), "turn");
    ASSERT_TRUE(profile.donk_bets.has_value());
    EXPECT_EQ(profile.donk_bets->size(), 1u);
    EXPECT_EQ(profile.ip_bets.size(), 1u);
}

TEST(SizingProfile, UnusableTextsGiveEmptyListsButHonourAllIn) {
    SizingProfile profile;
    build_sizing_profile(profile, sizing("big", "-"), sizing("???", "", true), "river");
    EXPECT_TRUE(profile.oop_bets.empty());
    EXPECT_TRUE(profile.oop_raises.empty());
    ASSERT_EQ(profile.ip_bets.size(), 1u);
    EXPECT_EQ(profile.ip_bets[0].kind, BetSizeKind::AllIn);
    ASSERT_EQ(profile.ip_raises.size(), 1u);
    EXPECT_EQ(profile.ip_raises[0].kind, BetSizeKind::AllIn);
}

TEST(SizingProfile, SemicolonJoinsTwoSizesIntoOne) {
    SizingProfile profile;
    build_sizing_profile(profile, sizing("33;75", "50"), sizing("33", "50"), "flop");
    ASSERT_EQ(profile.oop_bets.size(), 1u);
    EXPECT_DOUBLE_EQ(profile.oop_bets[0].fraction, 33.75);
}

TEST(SizingProfile, DuplicateAllInIsLeftForTheTree) {
    SizingProfile profile;
    build_sizing_profile(profile, sizing("100a,33", "50", true), sizing("33", "50"), "flop");
    ASSERT_EQ(profile.oop_bets.size(), 3u);
    EXPECT_EQ(profile.oop_bets[0].kind, BetSizeKind::AllIn);
    EXPECT_EQ(profile.oop_bets[1].kind, BetSizeKind::PotPercent);
    EXPECT_EQ(profile.oop_bets[2].kind, BetSizeKind::AllIn);
}

TEST(SizingProfile, RelativeRaiseInBetsFailsWithTheSeatLabel) {
    SizingProfile profile;
    expect_error<std::invalid_argument>(
        [&] { build_sizing_profile(profile, sizing("3x", "2.5x"), sizing("33", "50"), "flop"); },
        "OOP flop sizing (bet='3x', raise='2.5x', bet_norm='3x', raise_norm='2.5x'): "
        "Relative raise (x) is not allowed in this context");
}

TEST(SizingProfile, RaiseCapTextFailsAsAPercentInsideTheLabel) {
    SizingProfile profile;
    expect_error<std::invalid_argument>(
        [&] { build_sizing_profile(profile, sizing("33", "50"), sizing("33, 75", "100c3r", true), "river"); },
        "IP river sizing (bet='33, 75', raise='100c3r', bet_norm='33%,75%,a', raise_norm='100c3r%,a'): "
        "Failed to parse floating-point number from '100c3r' (hex=313030633372)");
}

TEST(SizingProfile, OutOfRangeTokenIsWrappedAsInvalidArgument) {
    SizingProfile profile;
    expect_error<std::invalid_argument>(
        [&] { build_sizing_profile(profile, sizing("99999999999c", ""), sizing("", ""), "turn"); },
        "OOP turn sizing (bet='99999999999c', raise='', bet_norm='99999999999c', raise_norm=''): "
        "Integer value is out of range");
}

TEST(SizingProfile, NormaliserErrorsReachTheCallerUnwrapped) {
    SizingProfile profile;
    expect_error<std::invalid_argument>(
        [&] { build_sizing_profile(profile, sizing("33", "%"), sizing("33", "50"), "flop"); }, kPercentMessage);
    expect_error<std::invalid_argument>(
        [&] { build_sizing_profile(profile, sizing("33", "50"), sizing("e", "50"), "flop"); },
        "Sizing: invalid token 'e'");
}

TEST(SizingProfile, UnlabelledBuilderPassesTheBareError) {
    SizingProfile profile;
    expect_error<std::invalid_argument>(
        [&] { build_sizing_profile_unlabelled(profile, sizing("3x", ""), sizing("33", "50")); },
        "Relative raise (x) is not allowed in this context");
    expect_error<std::out_of_range>(
        [&] { build_sizing_profile_unlabelled(profile, sizing("33", "50"), sizing("99999999999c", "")); },
        "Integer value is out of range");
}

TEST(SizingProfile, UnlabelledBuilderMatchesTheLabelledOne) {
    SizingProfile labelled;
    SizingProfile unlabelled;
    const StreetSizing oop = sizing("33, 75, 2e", "2.5x, 50", true);
    const StreetSizing ip = sizing("120c", "%150e");
    build_sizing_profile(labelled, oop, ip, "flop");
    build_sizing_profile_unlabelled(unlabelled, oop, ip);
    EXPECT_EQ(labelled.oop_bets.size(), unlabelled.oop_bets.size());
    EXPECT_EQ(labelled.oop_raises.size(), unlabelled.oop_raises.size());
    EXPECT_EQ(labelled.ip_bets.size(), unlabelled.ip_bets.size());
    EXPECT_EQ(labelled.ip_raises.size(), unlabelled.ip_raises.size());
    EXPECT_EQ(labelled.donk_bets->size(), unlabelled.donk_bets->size());
}

}  // namespace
}  // namespace kelvane
