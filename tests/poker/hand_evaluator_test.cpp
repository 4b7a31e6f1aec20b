#include "poker/hand_evaluator.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "support/expect_error.h"

namespace kelvane {
namespace {

constexpr const char* kCardCodeError = "Card code must be in [0, 52)";

std::vector<Card> cards_of(const std::string& text) {
    std::vector<Card> cards;
    std::istringstream in(text);
    std::string token;
    while (in >> token) cards.push_back(parse_card(token));
    return cards;
}

std::array<Card, 7> seven(const std::string& text) {
    const std::vector<Card> cards = cards_of(text);
    EXPECT_EQ(cards.size(), 7u) << text;
    std::array<Card, 7> hand{};
    std::copy_n(cards.begin(), std::min<std::size_t>(7, cards.size()), hand.begin());
    return hand;
}

constexpr HandStrength bit(int rank) { return HandStrength{1} << rank; }
constexpr HandStrength strength(int category, HandStrength primary, HandStrength secondary = 0) {
    return (HandStrength(category) << kCategoryShift) | (primary << kPrimaryShift) | secondary;
}

// Independent reference: ranks every five-card subset the textbook way and keeps the best.
// A rank tuple is (category, ranks ordered by multiplicity then rank), compared lexicographically.
using RankTuple = std::vector<int>;

RankTuple rank_five(const std::array<Card, 5>& cards) {
    int counts[13] = {};
    bool flush = true;
    for (const Card card : cards) {
        ++counts[rank_of(card)];
        flush = flush && suit_of(card) == suit_of(cards[0]);
    }
    std::vector<std::pair<int, int>> groups;  // (count, rank)
    for (int rank = 12; rank >= 0; --rank)
        if (counts[rank]) groups.push_back({counts[rank], rank});
    std::stable_sort(groups.begin(), groups.end(), [](auto a, auto b) { return a.first > b.first; });

    int straight_top = -1;
    if (groups.size() == 5) {
        if (groups[0].second - groups[4].second == 4)
            straight_top = groups[0].second;
        else if (groups[0].second == 12 && groups[1].second == 3)
            straight_top = 3;
    }
    int category = 0;
    if (straight_top >= 0 && flush)
        category = 8;
    else if (groups[0].first == 4)
        category = 7;
    else if (groups[0].first == 3 && groups[1].first == 2)
        category = 6;
    else if (flush)
        category = 5;
    else if (straight_top >= 0)
        category = 4;
    else if (groups[0].first == 3)
        category = 3;
    else if (groups[0].first == 2 && groups[1].first == 2)
        category = 2;
    else if (groups[0].first == 2)
        category = 1;

    RankTuple tuple{category};
    if (category == 8 || category == 4)
        tuple.push_back(straight_top);
    else
        for (const auto& group : groups) tuple.push_back(group.second);
    return tuple;
}

RankTuple reference_rank(const std::vector<Card>& cards) {
    RankTuple best;
    const std::size_t n = cards.size();
    std::vector<bool> pick(n, false);
    std::fill(pick.begin(), pick.begin() + 5, true);
    do {
        std::array<Card, 5> five{};
        std::size_t k = 0;
        for (std::size_t i = 0; i < n; ++i)
            if (pick[i]) five[k++] = cards[i];
        best = std::max(best, rank_five(five));
    } while (std::prev_permutation(pick.begin(), pick.end()));
    return best;
}

// Hands drawn from a restricted deck, to reach the rare categories often.
std::vector<Card> random_hand(std::mt19937& rng, std::size_t size, const std::vector<Card>& deck) {
    std::vector<Card> pool = deck;
    std::shuffle(pool.begin(), pool.end(), rng);
    pool.resize(size);
    return pool;
}

std::vector<std::vector<Card>> decks(std::mt19937& rng) {
    std::vector<std::vector<Card>> result;
    std::vector<Card> full(kCardCount);
    std::iota(full.begin(), full.end(), Card{0});
    result.push_back(full);
    for (int trial = 0; trial < 6; ++trial) {
        std::vector<int> ranks(kRankCount);
        std::iota(ranks.begin(), ranks.end(), 0);
        std::shuffle(ranks.begin(), ranks.end(), rng);
        std::vector<Card> few_ranks;  // quads and full houses
        for (int i = 0; i < 3 + trial % 2; ++i)
            for (int suit = 0; suit < kSuitCount; ++suit) few_ranks.push_back(make_card(ranks[i], suit));
        result.push_back(few_ranks);
        std::vector<Card> two_suits;  // flushes and straight flushes
        for (int rank = 0; rank < kRankCount; ++rank)
            for (int suit : {trial % 4, (trial + 1) % 4}) two_suits.push_back(make_card(rank, suit));
        result.push_back(two_suits);
        std::vector<Card> window;  // straights, wheels included
        const int low = static_cast<int>(rng() % 10) - 1;
        for (int step = 0; step < 6; ++step)
            for (int suit = 0; suit < kSuitCount; ++suit)
                window.push_back(make_card((low + step + 13) % 13, suit));
        result.push_back(window);
    }
    return result;
}

struct Sample {
    RankTuple reference;
    HandStrength value;
};

TEST(EvaluateSeven, OrdersHandsExactlyAsTheReference) {
    std::mt19937 rng(20240611);
    std::vector<Sample> samples;
    std::vector<int> category_seen(9, 0);
    for (const auto& deck : decks(rng)) {
        for (int i = 0; i < 1500; ++i) {
            const std::vector<Card> hand = random_hand(rng, 7, deck);
            std::array<Card, 7> array{};
            std::copy(hand.begin(), hand.end(), array.begin());
            const Sample sample{reference_rank(hand), evaluate_seven(array)};
            ASSERT_EQ(strength_category(sample.value), sample.reference[0]);
            ++category_seen[static_cast<std::size_t>(sample.reference[0])];
            samples.push_back(sample);
        }
    }
    for (int category = 0; category < 9; ++category) EXPECT_GT(category_seen[category], 20) << category;

    // Sorted by the reference, the values must rise exactly where the reference rises.
    std::sort(samples.begin(), samples.end(),
              [](const Sample& a, const Sample& b) { return a.reference < b.reference; });
    for (std::size_t i = 1; i < samples.size(); ++i) {
        if (samples[i - 1].reference == samples[i].reference)
            ASSERT_EQ(samples[i - 1].value, samples[i].value);
        else
            ASSERT_LT(samples[i - 1].value, samples[i].value);
    }
}

TEST(EvaluateSeven, RandomPairsCompareLikeTheReference) {
    std::mt19937 rng(7);
    std::vector<Card> deck(kCardCount);
    std::iota(deck.begin(), deck.end(), Card{0});
    for (int i = 0; i < 3000; ++i) {
        // Share a board so that close comparisons and ties are common.
        const std::vector<Card> dealt = random_hand(rng, 9, deck);
        std::vector<Card> first(dealt.begin(), dealt.begin() + 7);
        std::vector<Card> second(dealt.begin() + 2, dealt.end());
        std::array<Card, 7> a{}, b{};
        std::copy(first.begin(), first.end(), a.begin());
        std::copy(second.begin(), second.end(), b.begin());
        const RankTuple ra = reference_rank(first), rb = reference_rank(second);
        const HandStrength va = evaluate_seven(a), vb = evaluate_seven(b);
        ASSERT_EQ(ra < rb, va < vb);
        ASSERT_EQ(ra == rb, va == vb);
    }
}

TEST(EvaluateSeven, WheelStraightFlushHasItsFixedValue) {
    EXPECT_EQ(evaluate_seven(seven("Ac 2c 3c 4c 5c Kd Qh")), 0x20010000u);
    EXPECT_EQ(evaluate_seven(seven("Ah Kh Qh Jh Th 2c 3d")), strength(8, bit(12)));
    EXPECT_GT(evaluate_seven(seven("Ah Kh Qh Jh Th 2c 3d")), evaluate_seven(seven("Kh Qh Jh Th 9h 2c 3d")));
}

TEST(EvaluateSeven, ExactFieldsOfEachCategory) {
    EXPECT_EQ(evaluate_seven(seven("Ah Kd 9c 7s 5h 3d 2c")),
              strength(0, bit(12) | bit(11) | bit(7) | bit(5) | bit(3)));
    EXPECT_EQ(evaluate_seven(seven("Ah Ad 9c 7s 5h 3d 2c")), strength(1, bit(12), bit(7) | bit(5) | bit(3)));
    EXPECT_EQ(evaluate_seven(seven("Ah Ad 9c 9s 5h 3d 2c")), strength(2, bit(12) | bit(7), bit(3)));
    EXPECT_EQ(evaluate_seven(seven("Ah Ad Ac 9s 5h 3d 2c")), strength(3, bit(12), bit(7) | bit(3)));
    EXPECT_EQ(evaluate_seven(seven("9h Td Jc Qs Kh 3d 2c")), strength(4, bit(11)));
    EXPECT_EQ(evaluate_seven(seven("Ah 9h 7h 5h 3h 2h Kd")),
              strength(5, bit(12) | bit(7) | bit(5) | bit(3) | bit(1)));
    EXPECT_EQ(evaluate_seven(seven("Ah Ad Ac 9s 9h 3d 2c")), strength(6, bit(12), bit(7)));
    EXPECT_EQ(evaluate_seven(seven("Ah Ad Ac As 9h 3d 2c")), strength(7, bit(12), bit(7)));
    EXPECT_EQ(evaluate_seven(seven("5d 6d 7d 8d 9d Td 2c")), strength(8, bit(8)));
}

TEST(EvaluateSeven, ThirdPairCompetesForTheKicker) {
    EXPECT_EQ(evaluate_seven(seven("Kh Kd Qc Qs 5h 5d 2c")), strength(2, bit(11) | bit(10), bit(3)));
    EXPECT_EQ(evaluate_seven(seven("Kh Kd Qc Qs 5h 5d Ac")), strength(2, bit(11) | bit(10), bit(12)));
    EXPECT_EQ(evaluate_seven(seven("Kh Kd Qc Qs 5h 5d 2c")), evaluate_seven(seven("Kh Kd Qc Qs 5h 4d 2c")));
}

TEST(EvaluateSeven, TwoTripsMakeAFullHouseWithTheLowerTripsBehind) {
    EXPECT_EQ(evaluate_seven(seven("Ah Ad Ac Kh Kd Kc 2c")), strength(6, bit(12), bit(11)));
    // The single ace is higher than both trips but plays no part.
    EXPECT_EQ(evaluate_seven(seven("5h 5d 5c 3h 3d 3c Ac")), strength(6, bit(3), bit(1)));
    EXPECT_EQ(evaluate_seven(seven("5h 5d 5c 3h 3d 3c Ac")), evaluate_seven(seven("5h 5d 5c 3h 3d 2c 2s")));
}

TEST(EvaluateSeven, WheelWithASixIsASixHighStraight) {
    EXPECT_EQ(evaluate_seven(seven("Ah 2d 3c 4s 5h 6d Kc")), strength(4, bit(4)));
    EXPECT_EQ(evaluate_seven(seven("Ah 2d 3c 4s 5h Qd Kc")), strength(4, bit(3)));
    EXPECT_EQ(evaluate_seven(seven("Ah 2h 3h 4h 5h 6h Kc")), strength(8, bit(4)));
}

TEST(EvaluateSeven, FlushIsFoundBeforeTripsAndPairs) {
    EXPECT_EQ(evaluate_seven(seven("Ah Kh 9h 5h 2h 2c 2d")),
              strength(5, bit(12) | bit(11) | bit(7) | bit(3) | bit(0)));
    EXPECT_EQ(strength_category(evaluate_seven(seven("Ah Kh 9h 5h 2h Ac Kd"))), 5);
}

TEST(EvaluateSeven, SuitsNeverEnterTheValue) {
    std::mt19937 rng(99);
    std::array<int, 4> suits{0, 1, 2, 3};
    for (int i = 0; i < 5000; ++i) {
        std::array<Card, 7> hand{};
        std::vector<Card> deck(kCardCount);
        std::iota(deck.begin(), deck.end(), Card{0});
        std::shuffle(deck.begin(), deck.end(), rng);
        std::copy_n(deck.begin(), 7, hand.begin());
        std::shuffle(suits.begin(), suits.end(), rng);
        std::array<Card, 7> renamed{};
        for (std::size_t k = 0; k < 7; ++k) renamed[k] = make_card(rank_of(hand[k]), suits[suit_of(hand[k])]);
        std::shuffle(renamed.begin(), renamed.end(), rng);
        ASSERT_EQ(evaluate_seven(hand), evaluate_seven(renamed));
    }
}

TEST(EvaluateSeven, DoesNotLookForDuplicates) {
    EXPECT_NO_THROW(evaluate_seven(seven("Ah Ah Ah Ah Ah Ah Ah")));
}

// Each copy of a repeated card counts towards its rank, as a separate card of that rank would.
TEST(EvaluateSeven, RepeatedCardsCountTowardsTheirRank) {
    EXPECT_EQ(evaluate_seven(seven("Ah Ah Kd 9c 7s 5h 2c")), evaluate_seven(seven("Ah As Kd 9c 7s 5h 2c")));
    EXPECT_EQ(strength_category(evaluate_seven(seven("Ah Ah Ah Kd Kd 5h 2c"))), 6);
    // A rank held five times or more is in none of the count masks: only the all-ranks mask sees it.
    EXPECT_EQ(evaluate_seven(seven("Ah Ah Ah Ah Ah Kd Qc")), strength(0, bit(12) | bit(11) | bit(10)));
    EXPECT_EQ(hand_category(cards_of("Ah Ah Kd 9c 7s")), 1);
}

TEST(EvaluateSeven, RejectsCodesBeyondTheDeck) {
    std::array<Card, 7> hand = seven("Ah Kd 9c 7s 5h 3d 2c");
    hand[6] = 52;
    EXPECT_ERROR(std::out_of_range, evaluate_seven(hand), kCardCodeError);
    hand[6] = kNoCard;
    EXPECT_ERROR(std::out_of_range, evaluate_seven(hand), kCardCodeError);
}

TEST(EvaluateOnBoard, PocketFirstThenBoard) {
    const std::vector<Card> board = cards_of("Qh Jh Th 2c 3d");
    EXPECT_EQ(evaluate_on_board({parse_card("Ah"), parse_card("Kh")}, board), strength(8, bit(12)));
    EXPECT_EQ(evaluate_on_board({parse_card("Kh"), parse_card("Ah")}, board),
              evaluate_seven(seven("Ah Kh Qh Jh Th 2c 3d")));
}

TEST(EvaluateOnBoard, SuitedBoardGivesOffSuitPocketsTheSameFlush) {
    const std::vector<Card> board = cards_of("Ah Jh 8h 6h 3h");
    const HandStrength first = evaluate_on_board({parse_card("Kc"), parse_card("Qd")}, board);
    const HandStrength second = evaluate_on_board({parse_card("2s"), parse_card("4c")}, board);
    EXPECT_EQ(first, second);
    EXPECT_EQ(first, strength(5, bit(12) | bit(9) | bit(6) | bit(4) | bit(1)));
}

TEST(EvaluateOnBoard, RequiresFiveBoardCards) {
    const Pocket pocket{parse_card("Ah"), parse_card("Kh")};
    for (const char* text : {"Qh Jh Th 2c", "Qh Jh Th 2c 3d 4d", ""})
        EXPECT_ERROR(std::invalid_argument, evaluate_on_board(pocket, cards_of(text)),
                     "Board must contain exactly 5 cards for evaluation");
}

TEST(EvaluateOnBoard, RejectsAnUndealtPocketCard) {
    EXPECT_ERROR(std::out_of_range,
                 evaluate_on_board({parse_card("Ah"), kNoCard}, cards_of("Qh Jh Th 2c 3d")), kCardCodeError);
}

TEST(HandCategory, MatchesEvaluatorAndReferenceOnFiveSixAndSevenCards) {
    std::mt19937 rng(1234);
    for (const auto& deck : decks(rng)) {
        for (std::size_t size : {5u, 6u, 7u}) {
            for (int i = 0; i < 300; ++i) {
                const std::vector<Card> hand = random_hand(rng, size, deck);
                ASSERT_EQ(hand_category(hand), reference_rank(hand)[0]);
                if (size == 7) {
                    std::array<Card, 7> array{};
                    std::copy(hand.begin(), hand.end(), array.begin());
                    ASSERT_EQ(hand_category(hand), strength_category(evaluate_seven(array)));
                }
            }
        }
    }
}

TEST(HandCategory, OtherCountsGiveZero) {
    EXPECT_EQ(hand_category(cards_of("Ah Ad Ac As")), 0);
    EXPECT_EQ(hand_category(cards_of("")), 0);
    EXPECT_EQ(hand_category(cards_of("Ah Ad Ac As Kh Kd Kc Ks")), 0);
    EXPECT_EQ(hand_category(cards_of("Ah Ad Ac As Kh")), 7);
    EXPECT_EQ(hand_category(cards_of("Ah 2h 3h 4h 5h")), 8);
    EXPECT_EQ(hand_category(cards_of("Ah 2d 3h 4h 5h 6c")), 4);
}

TEST(HandCategory, RejectsCodesBeyondTheDeck) {
    std::vector<Card> cards = cards_of("Ah Kd 9c 7s 5h");
    cards.push_back(52);
    EXPECT_ERROR(std::out_of_range, hand_category(cards), kCardCodeError);
}

}  // namespace
}  // namespace kelvane
