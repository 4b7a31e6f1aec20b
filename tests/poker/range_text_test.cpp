#include "poker/range_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "support/expect_error.h"

namespace kelvane {
namespace {

// Weight of every class with any weight; a class whose pockets disagree shows as -1.
std::map<std::string, float> class_weights(const RangeWeights& weights) {
    std::map<std::string, float> classes;
    std::map<std::string, std::set<float>> seen;
    for (int index = 0; index < kPocketCount; ++index)
        seen[hand_class_label(pocket_from_index(index))].insert(weights[static_cast<std::size_t>(index)]);
    for (const auto& [label, values] : seen) {
        if (values.size() > 1)
            classes[label] = -1.0f;
        else if (*values.begin() != 0.0f)
            classes[label] = *values.begin();
    }
    return classes;
}

int pockets_in(const RangeWeights& weights) {
    return static_cast<int>(std::count_if(weights.begin(), weights.end(), [](float w) { return w > 0.0f; }));
}

float weight_of(const RangeWeights& weights, const char* a, const char* b) {
    return get_pocket_weight(weights, parse_card(a), parse_card(b));
}

TEST(RangeText, EmptyTextsGiveAnEmptyTable) {
    for (const char* text : {"", "   ", ",,,", " , ,\t\n"})
        EXPECT_EQ(pockets_in(parse_range_text(text)), 0) << text;
}

TEST(RangeText, TheIntroductoryExample) {
    const RangeWeights weights = parse_range_text("AA,KK:0.5,AQs+,T9s-65s,AsKd:0.25");
    const std::map<std::string, float> expected{{"AA", 1.0f},  {"KK", 0.5f},  {"AQs", 1.0f}, {"AKs", 1.0f},
                                                {"T9s", 1.0f}, {"98s", 1.0f}, {"87s", 1.0f}, {"76s", 1.0f},
                                                {"65s", 1.0f}, {"AKo", -1.0f}};
    EXPECT_EQ(class_weights(weights), expected);
    EXPECT_FLOAT_EQ(weight_of(weights, "As", "Kd"), 0.25f);
    EXPECT_FLOAT_EQ(weight_of(weights, "Ad", "Ks"), 0.0f);
    EXPECT_EQ(pockets_in(weights), 6 + 6 + 4 * 7 + 1);
}

TEST(RangeText, WhiteSpaceIsDroppedEverywhere) {
    const RangeWeights weights = parse_range_text(" A A : 0 . 5 ,\tK\nK ");
    EXPECT_EQ(class_weights(weights), (std::map<std::string, float>{{"AA", 0.5f}, {"KK", 1.0f}}));
}

TEST(RangeText, WeightsFollowStrtof) {
    EXPECT_FLOAT_EQ(class_weights(parse_range_text("AA:.5"))["AA"], 0.5f);
    EXPECT_FLOAT_EQ(class_weights(parse_range_text("AA:1e-1"))["AA"], 0.1f);
    EXPECT_FLOAT_EQ(class_weights(parse_range_text("AA:1"))["AA"], 1.0f);
    EXPECT_EQ(pockets_in(parse_range_text("AA:0")), 0);
}

TEST(RangeText, ItemsAreAssignmentsInOrder) {
    EXPECT_EQ(pockets_in(parse_range_text("AA:0.5, AA:0")), 0);
    EXPECT_EQ(class_weights(parse_range_text("QQ+,KK:0.5")),
              (std::map<std::string, float>{{"AA", 1.0f}, {"KK", 0.5f}, {"QQ", 1.0f}}));
    const RangeWeights weights = parse_range_text("AKs,AsKs:0.5,AhKh:0");
    EXPECT_FLOAT_EQ(weight_of(weights, "As", "Ks"), 0.5f);
    EXPECT_FLOAT_EQ(weight_of(weights, "Ah", "Kh"), 0.0f);
    EXPECT_FLOAT_EQ(weight_of(weights, "Ad", "Kd"), 1.0f);
}

TEST(RangeText, PlusRanges) {
    auto labels = [](const char* text) {
        std::vector<std::string> out;
        for (const auto& [label, weight] : class_weights(parse_range_text(text))) out.push_back(label);
        return out;
    };
    EXPECT_EQ(labels("A2s+").size(), 12u);
    EXPECT_EQ(labels("A2s+").front(), "A2s");
    EXPECT_EQ(labels("AKs+"), std::vector<std::string>{"AKs"});
    EXPECT_EQ(labels("AA+"), std::vector<std::string>{"AA"});
    EXPECT_EQ(labels("88+"), (std::vector<std::string>{"88", "99", "AA", "JJ", "KK", "QQ", "TT"}));
    EXPECT_EQ(labels("T9s+"), (std::vector<std::string>{"AKs", "JTs", "KQs", "QJs", "T9s"}));
    EXPECT_EQ(labels("A5s+"),
              (std::vector<std::string>{"A5s", "A6s", "A7s", "A8s", "A9s", "AJs", "AKs", "AQs", "ATs"}));
    EXPECT_EQ(labels("K9o+"), (std::vector<std::string>{"K9o", "KJo", "KQo", "KTo"}));
    EXPECT_EQ(labels("22+").size(), 13u);
}

TEST(RangeText, PlusRangesOfExactCombosCarryTheSuits) {
    const RangeWeights single = parse_range_text("AsKd+");
    EXPECT_EQ(pockets_in(single), 1);
    EXPECT_FLOAT_EQ(weight_of(single, "As", "Kd"), 1.0f);

    const RangeWeights climb = parse_range_text("Td9c+");
    EXPECT_EQ(pockets_in(climb), 5);
    for (auto [a, b] : {std::pair{"Td", "9c"}, {"Jd", "Tc"}, {"Qd", "Jc"}, {"Kd", "Qc"}, {"Ad", "Kc"}})
        EXPECT_FLOAT_EQ(weight_of(climb, a, b), 1.0f) << a << b;
}

TEST(RangeText, DashRanges) {
    EXPECT_EQ(
        class_weights(parse_range_text("QQ-88")),
        (std::map<std::string, float>{{"88", 1.0f}, {"99", 1.0f}, {"TT", 1.0f}, {"JJ", 1.0f}, {"QQ", 1.0f}}));
    EXPECT_EQ(class_weights(parse_range_text("T9s-65s:0.5")),
              (std::map<std::string, float>{
                  {"65s", 0.5f}, {"76s", 0.5f}, {"87s", 0.5f}, {"98s", 0.5f}, {"T9s", 0.5f}}));
    EXPECT_EQ(class_weights(parse_range_text("A9s-A5s")),
              (std::map<std::string, float>{
                  {"A5s", 1.0f}, {"A6s", 1.0f}, {"A7s", 1.0f}, {"A8s", 1.0f}, {"A9s", 1.0f}}));
    EXPECT_EQ(class_weights(parse_range_text("KJo-K9o")),
              (std::map<std::string, float>{{"K9o", 1.0f}, {"KJo", 1.0f}, {"KTo", 1.0f}}));
}

TEST(RangeText, DashRangeTakesTheLeftHalfsExactSuits) {
    const RangeWeights weights = parse_range_text("AsKd-AhQc");
    EXPECT_EQ(pockets_in(weights), 2);
    EXPECT_FLOAT_EQ(weight_of(weights, "As", "Kd"), 1.0f);
    EXPECT_FLOAT_EQ(weight_of(weights, "As", "Qd"), 1.0f);
}

TEST(RangeText, RankLettersAndSuffixInEitherCase) {
    EXPECT_EQ(class_weights(parse_range_text("aks")), (std::map<std::string, float>{{"AKs", 1.0f}}));
    EXPECT_EQ(class_weights(parse_range_text("KQO")), (std::map<std::string, float>{{"KQo", 1.0f}}));
    EXPECT_EQ(class_weights(parse_range_text("tt")), (std::map<std::string, float>{{"TT", 1.0f}}));
}

TEST(RangeText, DescendingIsRequired) {
    for (const char* text : {"22-22", "88-QQ", "A5s-A9s", "AK-AK", "K9o-KJo"})
        EXPECT_ERROR(std::invalid_argument, parse_range_text(text), "Range must be descending");
}

TEST(RangeText, DashRangeShapeErrors) {
    EXPECT_ERROR(std::invalid_argument, parse_range_text("AKs-AQo"), "Suitedness mismatch in range");
    EXPECT_ERROR(std::invalid_argument, parse_range_text("AK-AQs"), "Suitedness mismatch in range");
    EXPECT_ERROR(std::invalid_argument, parse_range_text("KQs-J9s"), "Unsupported range expression");
    EXPECT_ERROR(std::invalid_argument, parse_range_text("AA-"), "Empty combo");
    EXPECT_ERROR(std::invalid_argument, parse_range_text("-AA"), "Empty combo");
    EXPECT_ERROR(std::invalid_argument, parse_range_text("-"), "Empty combo");
}

TEST(RangeText, PlusRangeErrors) {
    EXPECT_ERROR(std::invalid_argument, parse_range_text("+"), "Expected trailing '+'");
    EXPECT_ERROR(std::invalid_argument, parse_range_text("+:0.5"), "Expected trailing '+'");
    EXPECT_ERROR(std::invalid_argument, parse_range_text("AA++"), "Invalid suitedness suffix");
}

TEST(RangeText, ItemErrors) {
    EXPECT_ERROR(std::invalid_argument, parse_range_text(":0.5"), "Missing range expression");
    EXPECT_ERROR(std::invalid_argument, parse_range_text("AA:"), "Weight string is empty");
    EXPECT_ERROR(std::invalid_argument, parse_range_text("AA:0.5x"),
                 "Weight string contains invalid characters");
    EXPECT_ERROR(std::invalid_argument, parse_range_text("AA:0.5:1"),
                 "Weight string contains invalid characters");
    EXPECT_ERROR(std::invalid_argument, parse_range_text("AA:x"), "invalid stof argument");
    EXPECT_ERROR(std::out_of_range, parse_range_text("AA:1e99"), "stof argument out of range");
    EXPECT_ERROR(std::out_of_range, parse_range_text("AA:1e-50"), "stof argument out of range");
    EXPECT_ERROR(std::invalid_argument, parse_range_text("AA:1.5"), "Weight must be within [0, 1]");
    EXPECT_ERROR(std::invalid_argument, parse_range_text("AA:-0.5"), "Weight must be within [0, 1]");
    EXPECT_ERROR(std::invalid_argument, parse_range_text("AA:nan"), "Weight must be within [0, 1]");
}

TEST(RangeText, WeightTextIsReadBeforeTheExpressionAndRangeCheckedAfterIt) {
    EXPECT_ERROR(std::invalid_argument, parse_range_text(":"), "Weight string is empty");
    EXPECT_ERROR(std::invalid_argument, parse_range_text("XX:x"), "invalid stof argument");
    EXPECT_ERROR(std::invalid_argument, parse_range_text("XX:2"), "Invalid rank character");
}

TEST(RangeText, TheFirstBadItemFailsTheWholeText) {
    EXPECT_ERROR(std::invalid_argument, parse_range_text("AA,KK,XX,QQ:2"), "Invalid rank character");
    EXPECT_ERROR(std::invalid_argument, parse_range_text("AA,50"), "Invalid rank character");
    EXPECT_ERROR(std::invalid_argument, parse_range_text("KK,AA25"), "Invalid combo pattern length");
}

TEST(ParseCombo, ShapesAndFields) {
    const ComboPattern exact = parse_combo("AsKd");
    EXPECT_EQ(exact.high_rank, 12);
    EXPECT_EQ(exact.low_rank, 11);
    EXPECT_EQ(exact.suitedness, Suitedness::exact);
    EXPECT_EQ(exact.suit_a, 3);
    EXPECT_EQ(exact.suit_b, 1);

    const ComboPattern suited = parse_combo("T9s");
    EXPECT_EQ(suited.high_rank, 8);
    EXPECT_EQ(suited.low_rank, 7);
    EXPECT_EQ(suited.suitedness, Suitedness::suited);
    EXPECT_EQ(suited.suit_a, 0);
    EXPECT_EQ(suited.suit_b, 0);

    EXPECT_EQ(parse_combo("72o").suitedness, Suitedness::offsuit);
    EXPECT_EQ(parse_combo("72").suitedness, Suitedness::any);
    EXPECT_EQ(parse_combo("22").high_rank, 0);
    EXPECT_EQ(parse_combo("AsAd").suitedness, Suitedness::exact);
}

TEST(ParseCombo, Errors) {
    EXPECT_ERROR(std::invalid_argument, parse_combo(""), "Empty combo");
    for (const char* text : {"KAs", "KdAs", "KA", "27o"})
        EXPECT_ERROR(std::invalid_argument, parse_combo(text), "First rank must be >= second rank");
    EXPECT_ERROR(std::invalid_argument, parse_combo("AsAs"), "Duplicate cards are not allowed");
    for (const char* text : {"A", "AA25", "A5K5", "AKsuited", "AKs+"})
        EXPECT_ERROR(std::invalid_argument, parse_combo(text), "Invalid combo pattern length");
    EXPECT_ERROR(std::invalid_argument, parse_combo("AKx"), "Invalid suitedness suffix");
    EXPECT_ERROR(std::invalid_argument, parse_combo("AA+"), "Invalid suitedness suffix");
    EXPECT_ERROR(std::invalid_argument, parse_combo("AAs"), "Pair cannot have suitedness suffix");
    EXPECT_ERROR(std::invalid_argument, parse_combo("AAo"), "Pair cannot have suitedness suffix");
    EXPECT_ERROR(std::invalid_argument, parse_combo("1Ks"), "Invalid rank character");
    EXPECT_ERROR(std::invalid_argument, parse_combo("AxKd"), "Invalid suit character");
}

std::set<std::string> pocket_texts(const std::vector<int>& indices) {
    std::set<std::string> texts;
    for (int index : indices) {
        const Pocket pocket = pocket_from_index(index);
        texts.insert(card_to_string(static_cast<std::int8_t>(pocket.first)) +
                     card_to_string(static_cast<std::int8_t>(pocket.second)));
    }
    return texts;
}

TEST(ExpandCombo, PocketCountsOfEachShape) {
    EXPECT_EQ(expand_combo(parse_combo("AA")).size(), 6u);
    EXPECT_EQ(expand_combo(parse_combo("AK")).size(), 16u);
    EXPECT_EQ(expand_combo(parse_combo("AKs")).size(), 4u);
    EXPECT_EQ(expand_combo(parse_combo("AKo")).size(), 12u);
    EXPECT_EQ(pocket_texts(expand_combo(parse_combo("AsKd"))), std::set<std::string>{"KdAs"});
    EXPECT_EQ(pocket_texts(expand_combo(parse_combo("AsAd"))), std::set<std::string>{"AdAs"});
    EXPECT_EQ(pocket_texts(expand_combo(parse_combo("32s"))),
              (std::set<std::string>{"2c3c", "2d3d", "2h3h", "2s3s"}));
    EXPECT_EQ(pocket_texts(expand_combo(parse_combo("22"))).size(), 6u);
    for (const char* text : {"AA", "AK", "AKs", "AKo"}) {
        const std::vector<int> indices = expand_combo(parse_combo(text));
        EXPECT_EQ(std::set<int>(indices.begin(), indices.end()).size(), indices.size()) << text;
    }
}

TEST(ExpandCombo, GuardsPatternsBuiltByHand) {
    ComboPattern suited_pair;
    suited_pair.high_rank = 12;
    suited_pair.low_rank = 12;
    suited_pair.suitedness = Suitedness::suited;
    EXPECT_ERROR(std::invalid_argument, expand_combo(suited_pair), "Pair cannot be suited/offsuit");
    suited_pair.suitedness = Suitedness::offsuit;
    EXPECT_ERROR(std::invalid_argument, expand_combo(suited_pair), "Pair cannot be suited/offsuit");

    ComboPattern beyond;
    beyond.high_rank = 13;
    beyond.low_rank = 2;
    EXPECT_ERROR(std::out_of_range, expand_combo(beyond), "Card code must be in [0, 52)");
}

TEST(PocketWeight, CheckedAccessorsIgnoreCardOrder) {
    RangeWeights weights{};
    set_pocket_weight(weights, 51, 3, 0.75f);
    EXPECT_FLOAT_EQ(get_pocket_weight(weights, 3, 51), 0.75f);
    EXPECT_FLOAT_EQ(weights[static_cast<std::size_t>(pocket_index(3, 51))], 0.75f);
    set_pocket_weight(weights, 3, 51, 0.0f);
    EXPECT_FLOAT_EQ(get_pocket_weight(weights, 51, 3), 0.0f);
    set_pocket_weight(weights, 0, 1, 1.0f);
    EXPECT_FLOAT_EQ(weights[0], 1.0f);
}

TEST(PocketWeight, Errors) {
    RangeWeights weights{};
    EXPECT_ERROR(std::invalid_argument, set_pocket_weight(weights, 5, 5, 0.5f), "Cards must differ");
    EXPECT_ERROR(std::invalid_argument, get_pocket_weight(weights, 5, 5), "Cards must differ");
    EXPECT_ERROR(std::out_of_range, set_pocket_weight(weights, 52, 5, 0.5f), "Card code must be in [0, 52)");
    EXPECT_ERROR(std::out_of_range, get_pocket_weight(weights, 5, 52), "Card code must be in [0, 52)");
    EXPECT_ERROR(std::invalid_argument, set_pocket_weight(weights, 1, 5, 1.5f),
                 "Weight must be within [0, 1]");
    EXPECT_ERROR(std::invalid_argument, set_pocket_weight(weights, 1, 5, -0.1f),
                 "Weight must be within [0, 1]");
}

void expect_uniform(const RangeWeights& weights, float weight) {
    for (float w : weights) ASSERT_FLOAT_EQ(w, weight);
}

TEST(PercentRange, UniformWeightOverAllPockets) {
    expect_uniform(parse_range_or_percent("100%"), 1.0f);
    expect_uniform(parse_range_or_percent("37.5%"), 0.375f);
    expect_uniform(parse_range_or_percent("  50%\t"), 0.5f);
    expect_uniform(parse_range_or_percent("0%"), 0.0f);
    expect_uniform(parse_range_or_percent("1.2.3%"), 0.012f);  // trailing text is tolerated
}

TEST(PercentRange, OtherTextsGoToTheRangeGrammar) {
    EXPECT_EQ(class_weights(parse_range_or_percent(" AA , KK:0.5 ")),
              (std::map<std::string, float>{{"AA", 1.0f}, {"KK", 0.5f}}));
    EXPECT_ERROR(std::invalid_argument, parse_range_or_percent("50%,AA"), "Invalid rank character");
    EXPECT_ERROR(std::invalid_argument, parse_range_or_percent("%"), "Invalid combo pattern length");
    EXPECT_ERROR(std::invalid_argument, parse_range_or_percent("%%"), "Invalid rank character");
    EXPECT_ERROR(std::invalid_argument, parse_range_or_percent("5%0%"), "Invalid combo pattern length");
    EXPECT_EQ(pockets_in(parse_range_or_percent("")), 0);
}

TEST(PercentRange, Errors) {
    EXPECT_ERROR(std::invalid_argument, parse_range_or_percent("100.5%"), "Weight must be within [0, 1]");
    EXPECT_ERROR(std::invalid_argument, parse_range_or_percent(" .% "),
                 "Invalid percent range '.%' (expected like '50%')");
    EXPECT_ERROR(std::invalid_argument, parse_range_or_percent("..%"),
                 "Invalid percent range '..%' (expected like '50%')");
    const std::string huge = "1" + std::string(400, '0') + "%";
    EXPECT_ERROR(std::invalid_argument, parse_range_or_percent(huge),
                 "Invalid percent range '" + huge + "' (expected like '50%')");
}

}  // namespace
}  // namespace kelvane
