// Interchangeable suits at the turn and river deal, and the hand swaps that stand for them.

#include "poker/suit_symmetry.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

#include "deal_fixtures.h"
#include "poker/card_context.h"

namespace kelvane {
namespace {

using testing::deal;
using testing::ordered;
using testing::ranges_of;

constexpr const char* kSymmetricRange = "AA,KK,QQ,AKs,T9s,87o,54,32s";

Card exchange(Card card, int a, int b) {
    const int suit = suit_of(card) == a ? b : suit_of(card) == b ? a : suit_of(card);
    return make_card(rank_of(card), suit);
}

std::vector<Card> cards_of_suits(std::initializer_list<int> suits, CardMask dead) {
    std::vector<Card> cards;
    for (int code = 0; code < kCardCount; ++code)
        if (std::find(suits.begin(), suits.end(), suit_of(code)) != suits.end() && !(dead & card_bit(code)))
            cards.push_back(static_cast<Card>(code));
    return cards;
}

// The swap list of two suits, found by searching the list for each pocket's image.
SwapList brute_swaps(const std::vector<Pocket>& pockets, int a, int b) {
    SwapList swaps;
    for (std::size_t p = 0; p < pockets.size(); ++p) {
        const Pocket image = ordered(exchange(pockets[p].first, a, b), exchange(pockets[p].second, a, b));
        const auto found = std::find(pockets.begin(), pockets.end(), image);
        const std::size_t q = found - pockets.begin();
        if (found != pockets.end() && q > p)
            swaps.push_back({static_cast<std::uint16_t>(p), static_cast<std::uint16_t>(q)});
    }
    return swaps;
}

void expect_swaps(const CardContext& context, const std::array<SwapList, 2>& swaps, int a, int b) {
    for (int seat = 0; seat < 2; ++seat) {
        EXPECT_FALSE(swaps[seat].empty());
        EXPECT_EQ(swaps[seat], brute_swaps(context.pockets[seat], a, b)) << "suits " << a << "," << b;
    }
}

// Each skipped card must name the child of the card of the same rank in its representative suit.
void expect_children(const std::vector<Card>& skipped, const std::vector<std::uint8_t>& children, CardMask dead,
                     int representative_of_suit[kSuitCount]) {
    std::vector<Card> dealt;
    for (int code = 0; code < kCardCount; ++code)
        if (!(dead & card_bit(code)) && std::find(skipped.begin(), skipped.end(), code) == skipped.end())
            dealt.push_back(static_cast<Card>(code));
    ASSERT_EQ(children.size(), skipped.size());
    for (std::size_t k = 0; k < skipped.size(); ++k) {
        ASSERT_LT(children[k], dealt.size());
        const Card expected = make_card(rank_of(skipped[k]), representative_of_suit[suit_of(skipped[k])]);
        EXPECT_EQ(dealt[children[k]], expected) << "skipped " << int(skipped[k]);
    }
}

TEST(SuitSymmetry, MonotoneFlopSkipsTwoSuitsAtTheTurn) {
    const CardContext context = deal("AsKsQs", kSymmetricRange, kSymmetricRange);
    const SuitSymmetry& symmetry = context.suit_symmetry;
    EXPECT_EQ(symmetry.turn_skipped, cards_of_suits({1, 2}, context.dead_cards));
    int representatives[kSuitCount] = {-1, 0, 0, -1};
    expect_children(symmetry.turn_skipped, symmetry.turn_child_of_skipped, context.dead_cards, representatives);
    EXPECT_TRUE(symmetry.turn_swaps[0][0].empty());
    expect_swaps(context, symmetry.turn_swaps[1], 1, 0);
    expect_swaps(context, symmetry.turn_swaps[2], 2, 0);
    EXPECT_TRUE(symmetry.turn_swaps[3][0].empty() && symmetry.turn_swaps[3][1].empty());
}

TEST(SuitSymmetry, MonotoneFlopRiverLevel) {
    const CardContext context = deal("AsKsQs", kSymmetricRange, kSymmetricRange);
    const SuitSymmetry& symmetry = context.suit_symmetry;
    const CardMask flop = context.dead_cards;
    EXPECT_EQ(symmetry.river_skipped[0], cards_of_suits({2}, flop));
    EXPECT_EQ(symmetry.river_skipped[1], cards_of_suits({2}, flop));
    EXPECT_EQ(symmetry.river_skipped[2], cards_of_suits({1}, flop));
    EXPECT_EQ(symmetry.river_skipped[3], cards_of_suits({1, 2}, flop));
    int by_turn_suit[kSuitCount][kSuitCount] = {{-1, -1, 1, -1}, {-1, -1, 0, -1}, {-1, 0, -1, -1}, {-1, 0, 0, -1}};
    ASSERT_EQ(symmetry.river_child_of_skipped.size(), static_cast<std::size_t>(kCardCount));
    for (int turn = 0; turn < kCardCount; ++turn) {
        if (flop & card_bit(turn)) {
            EXPECT_TRUE(symmetry.river_child_of_skipped[turn].empty());
            continue;
        }
        const int suit = suit_of(turn);
        expect_children(symmetry.river_skipped[suit], symmetry.river_child_of_skipped[turn], flop | card_bit(turn),
                        by_turn_suit[suit]);
    }
    expect_swaps(context, symmetry.river_swaps[0][2], 2, 1);
    expect_swaps(context, symmetry.river_swaps[1][2], 2, 0);
    expect_swaps(context, symmetry.river_swaps[2][1], 1, 0);
    expect_swaps(context, symmetry.river_swaps[3][1], 1, 0);
    expect_swaps(context, symmetry.river_swaps[3][2], 2, 0);
    EXPECT_TRUE(symmetry.river_swaps[0][1][0].empty());
    EXPECT_TRUE(symmetry.river_swaps[2][2][0].empty());
}

TEST(SuitSymmetry, OneAsymmetricWeightBreaksThatPairOfSuits) {
    auto ranges = ranges_of(kSymmetricRange, kSymmetricRange);
    set_pocket_weight(ranges[0], make_card(12, 0), make_card(11, 0), 0.5f);  // AcKc
    const CardContext context(parse_board_text("AsKsQs"), ranges);
    const SuitSymmetry& symmetry = context.suit_symmetry;
    // Clubs now stand alone; hearts still mirror diamonds.
    EXPECT_EQ(symmetry.turn_skipped, cards_of_suits({2}, context.dead_cards));
    int representatives[kSuitCount] = {-1, -1, 1, -1};
    expect_children(symmetry.turn_skipped, symmetry.turn_child_of_skipped, context.dead_cards, representatives);
    EXPECT_TRUE(symmetry.turn_swaps[1][0].empty());
    expect_swaps(context, symmetry.turn_swaps[2], 2, 1);
}

TEST(SuitSymmetry, NanWeightsCompareUnequal) {
    auto ranges = ranges_of(kSymmetricRange, kSymmetricRange);
    for (int suit = 0; suit < kSuitCount; ++suit)
        ranges[1][pocket_index(make_card(6, suit), make_card(5, suit))] = std::numeric_limits<float>::quiet_NaN();
    const CardContext context(parse_board_text("AsKsQs"), ranges);
    EXPECT_TRUE(context.suit_symmetry.turn_skipped.empty());
    for (const auto& skipped : context.suit_symmetry.river_skipped) EXPECT_TRUE(skipped.empty());
}

TEST(SuitSymmetry, RainbowFlopHasNoSymmetry) {
    const CardContext context = deal("2c7dKh", kSymmetricRange, kSymmetricRange);
    const SuitSymmetry& symmetry = context.suit_symmetry;
    EXPECT_TRUE(symmetry.turn_skipped.empty());
    EXPECT_TRUE(symmetry.turn_child_of_skipped.empty());
    for (int suit = 0; suit < kSuitCount; ++suit) {
        EXPECT_TRUE(symmetry.river_skipped[suit].empty());
        for (int other = 0; other < kSuitCount; ++other)
            for (int seat = 0; seat < 2; ++seat) EXPECT_TRUE(symmetry.river_swaps[suit][other][seat].empty());
    }
    for (const auto& children : symmetry.river_child_of_skipped) EXPECT_TRUE(children.empty());
}

TEST(SuitSymmetry, DealtTurnOnlyBuildsItsRiverLevel) {
    const CardContext context = deal("AsKsQs2c", kSymmetricRange, kSymmetricRange);
    const SuitSymmetry& symmetry = context.suit_symmetry;
    EXPECT_TRUE(symmetry.turn_skipped.empty());
    for (const auto& seats : symmetry.turn_swaps) EXPECT_TRUE(seats[0].empty() && seats[1].empty());
    EXPECT_EQ(symmetry.river_skipped[0], cards_of_suits({2}, context.dead_cards));
    int representatives[kSuitCount] = {-1, -1, 1, -1};
    expect_children(symmetry.river_skipped[0], symmetry.river_child_of_skipped[0], context.dead_cards,
                    representatives);
    expect_swaps(context, symmetry.river_swaps[0][2], 2, 1);
    for (int turn = 1; turn < kCardCount; ++turn) EXPECT_TRUE(symmetry.river_child_of_skipped[turn].empty());
}

TEST(SuitSymmetry, DealtRiverHasNoChanceCards) {
    const SuitSymmetry& symmetry = deal("AsKsQs2c3d", kSymmetricRange, kSymmetricRange).suit_symmetry;
    EXPECT_TRUE(symmetry.turn_skipped.empty());
    for (const auto& skipped : symmetry.river_skipped) EXPECT_TRUE(skipped.empty());
    for (const auto& children : symmetry.river_child_of_skipped) EXPECT_TRUE(children.empty());
}

// Replaying a represented turn through the swap list must reproduce the skipped turn's showdowns.
TEST(SuitSymmetry, SwapsCarryShowdownsToTheSkippedSuit) {
    const CardContext context = deal("AsKsQs", kSymmetricRange, "QQ-99,AQs,KJo,T8s,65");
    const SuitSymmetry& symmetry = context.suit_symmetry;
    const Card skipped = make_card(7, 2);  // 9h, represented by 9c
    const Card representative = make_card(7, 0);
    ASSERT_NE(std::find(symmetry.turn_skipped.begin(), symmetry.turn_skipped.end(), skipped), symmetry.turn_skipped.end());
    for (int seat = 0; seat < 2; ++seat) {
        std::vector<std::uint16_t> image(context.pockets[seat].size());
        std::iota(image.begin(), image.end(), std::uint16_t{0});
        for (const auto& pair : symmetry.turn_swaps[2][seat]) std::swap(image[pair[0]], image[pair[1]]);
        for (int river = 0; river < kCardCount; ++river) {
            if ((context.dead_cards | card_bit(skipped)) & card_bit(river)) continue;
            const auto& real = context.showdown_row(skipped, river)[seat];
            auto replayed = context.showdown_row(representative, exchange(river, 2, 0))[seat];
            for (ShowdownEntry& entry : replayed)
                if (entry.pocket != kNoPocketPosition) entry.pocket = image[entry.pocket];
            std::sort(replayed.begin(), replayed.end(), [](const ShowdownEntry& a, const ShowdownEntry& b) {
                return a.value < b.value || (a.value == b.value && a.pocket < b.pocket);
            });
            EXPECT_EQ(real, replayed) << "river " << river << " seat " << seat;
        }
    }
}

}  // namespace
}  // namespace kelvane
