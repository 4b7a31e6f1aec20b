#include "poker/hand_evaluator.h"

#include <bit>
#include <stdexcept>

namespace kelvane {
namespace {

using RankMask = std::uint32_t;

constexpr RankMask kWheelMask = 0x100F;  // ace, 2, 3, 4, 5
constexpr RankMask kWheelTop = RankMask{1} << 3;
constexpr int kFlushLength = 5;
constexpr int kSuitLane = 16;  // bits per suit in the packed suit word
constexpr RankMask kAllRanks = 0x1FFF;

enum Category : HandStrength {
    kHighCard = 0,
    kOnePair = 1,
    kTwoPair = 2,
    kThreeOfAKind = 3,
    kStraight = 4,
    kFlush = 5,
    kFullHouse = 6,
    kFourOfAKind = 7,
    kStraightFlush = 8,
};

// Rank and suit bookkeeping of one hand, all on the stack.
struct RankPattern {
    RankMask all = 0;
    RankMask by_suit[kSuitCount] = {};
    RankMask held[5] = {};  // held[n]: ranks held exactly n times, n = 1 to 4
};

// Repeated cards are not refused, and each copy counts towards its rank as a separate card would;
// a rank held five times or more is in none of the held masks.
RankPattern tally_counting_each_card(std::span<const Card> cards) {
    std::array<int, kRankCount> held_count{};
    RankPattern pattern;
    for (const Card card : cards) {
        const RankMask bit = RankMask{1} << rank_of(card);
        ++held_count[static_cast<std::size_t>(rank_of(card))];
        pattern.all |= bit;
        pattern.by_suit[suit_of(card)] |= bit;
    }
    for (int rank = 0; rank < kRankCount; ++rank) {
        const int count = held_count[static_cast<std::size_t>(rank)];
        if (count >= 1 && count <= 4) pattern.held[count] |= RankMask{1} << rank;
    }
    return pattern;
}

// The four suit masks travel in one 64-bit word, a lane per suit, so dealing a card is one
// shift and one OR and the cards carry no dependency chain.
[[gnu::always_inline]] inline std::uint64_t suit_word(std::span<const Card> cards) {
    std::uint64_t suits = 0;
    for (const Card card : cards) {
        if (card >= kCardCount) throw std::out_of_range("Card code must be in [0, 52)");
        suits |= std::uint64_t{1} << (suit_of(card) * kSuitLane + rank_of(card));
    }
    return suits;
}

// A repeated card vanishes in the suit word, so its bit count tells whether every card is distinct.
[[gnu::always_inline]] inline bool all_distinct(std::uint64_t suits, std::span<const Card> cards) {
    return static_cast<std::size_t>(std::popcount(suits)) == cards.size();
}

// How often a rank is held follows from ANDs of the suit masks when no card repeats.
[[gnu::always_inline]] inline RankPattern pattern_of_distinct(std::uint64_t suits) {
    RankPattern pattern;
    for (int suit = 0; suit < kSuitCount; ++suit)
        pattern.by_suit[suit] = static_cast<RankMask>(suits >> (kSuitLane * suit)) & kAllRanks;
    const RankMask c = pattern.by_suit[0], d = pattern.by_suit[1], h = pattern.by_suit[2],
                   s = pattern.by_suit[3];
    const RankMask at_least_2 = (c & d) | (h & s) | ((c | d) & (h | s));
    const RankMask at_least_3 = ((c & d) & (h | s)) | ((h & s) & (c | d));  // any three suits hold c,d or h,s
    const RankMask four = c & d & h & s;
    pattern.all = c | d | h | s;
    pattern.held[1] = pattern.all & ~at_least_2;
    pattern.held[2] = at_least_2 & ~at_least_3;
    pattern.held[3] = at_least_3 & ~four;
    pattern.held[4] = four;
    return pattern;
}

// Branch-free: an empty mask shifts the top bit out of the 32 low bits.
RankMask highest_bit(RankMask mask) {
    return static_cast<RankMask>(std::uint64_t{0x80000000} >> std::countl_zero(mask));
}

RankMask highest_bits(RankMask mask, int count) {
    RankMask kept = 0;
    for (int i = 0; i < count; ++i) {
        const RankMask bit = highest_bit(mask);
        kept |= bit;
        mask ^= bit;
    }
    return kept;
}

// The top rank of the best five consecutive ranks in the mask as one bit, or 0.
RankMask straight_top(RankMask mask) {
    RankMask run = mask;
    for (int i = 0; i < 4; ++i) run = (run << 1) & mask;
    if (run) return highest_bit(run);
    return (mask & kWheelMask) == kWheelMask ? kWheelTop : 0;
}

// The first suit holding five or more ranks, or 0.
RankMask flush_ranks(const RankPattern& pattern) {
    for (const RankMask suit : pattern.by_suit)
        if (std::popcount(suit) >= kFlushLength) return suit;
    return 0;
}

constexpr HandStrength make_strength(Category category, RankMask primary, RankMask secondary = 0) {
    return (HandStrength{category} << kCategoryShift) | (primary << kPrimaryShift) | secondary;
}

[[gnu::always_inline]] inline HandStrength strength_of(const RankPattern& p) {
    if (const RankMask flush = flush_ranks(p)) {
        if (const RankMask top = straight_top(flush)) return make_strength(kStraightFlush, top);
        return make_strength(kFlush, highest_bits(flush, 5));
    }
    if (p.held[4]) return make_strength(kFourOfAKind, p.held[4], highest_bit(p.all & ~p.held[4]));
    if (std::popcount(p.held[3]) >= 2) {
        const RankMask top = highest_bit(p.held[3]);
        return make_strength(kFullHouse, top, highest_bit(p.held[3] ^ top));
    }
    if (p.held[3] && p.held[2]) return make_strength(kFullHouse, p.held[3], highest_bit(p.held[2]));
    if (const RankMask top = straight_top(p.all)) return make_strength(kStraight, top);
    if (p.held[3]) return make_strength(kThreeOfAKind, p.held[3], highest_bits(p.held[1], 2));
    if (std::popcount(p.held[2]) >= 2) {
        const RankMask pairs = highest_bits(p.held[2], 2);
        return make_strength(kTwoPair, pairs, highest_bit(p.all & ~pairs));
    }
    if (p.held[2]) return make_strength(kOnePair, p.held[2], highest_bits(p.held[1], 3));
    return make_strength(kHighCard, highest_bits(p.all, 5));
}

[[gnu::always_inline]] inline int category_of(const RankPattern& p) {
    if (const RankMask flush = flush_ranks(p)) return straight_top(flush) ? kStraightFlush : kFlush;
    if (p.held[4]) return kFourOfAKind;
    if (std::popcount(p.held[3]) >= 2) return kFullHouse;
    if (p.held[3] && p.held[2]) return kFullHouse;
    if (straight_top(p.all)) return kStraight;
    if (p.held[3]) return kThreeOfAKind;
    if (std::popcount(p.held[2]) >= 2) return kTwoPair;
    if (p.held[2]) return kOnePair;
    return kHighCard;
}

[[gnu::noinline]] HandStrength strength_counting_each_card(std::span<const Card> cards) {
    return strength_of(tally_counting_each_card(cards));
}

}  // namespace

HandStrength evaluate_seven(const std::array<Card, 7>& cards) {
    const std::uint64_t suits = suit_word(cards);
    if (!all_distinct(suits, cards)) [[unlikely]]
        return strength_counting_each_card(cards);
    return strength_of(pattern_of_distinct(suits));
}

HandStrength evaluate_on_board(Pocket pocket, std::span<const Card> board) {
    if (board.size() != 5) throw std::invalid_argument("Board must contain exactly 5 cards for evaluation");
    std::array<Card, 7> cards{pocket.first, pocket.second};
    std::size_t filled = 2;
    for (const Card card : board) cards[filled++] = card;
    if (filled != cards.size()) throw std::invalid_argument("Insufficient cards to evaluate hand");
    return evaluate_seven(cards);
}

int hand_category(std::span<const Card> cards) {
    if (cards.size() < 5 || cards.size() > 7) return kHighCard;
    const std::uint64_t suits = suit_word(cards);
    return category_of(all_distinct(suits, cards) ? pattern_of_distinct(suits) : tally_counting_each_card(cards));
}

}  // namespace kelvane
