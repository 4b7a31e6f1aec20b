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

// The four suit masks travel in one 64-bit word, a lane per suit, so dealing a card is one
// shift and one OR and the cards carry no dependency chain. How often a rank is held follows
// from ANDs of the suit masks. Duplicates are not checked; a repeated card counts once.
[[gnu::always_inline]] inline RankPattern tally(std::span<const Card> cards) {
    std::uint64_t suits = 0;
    for (const Card card : cards) {
        if (card >= kCardCount) throw std::out_of_range("Card code must be in [0, 52)");
        suits |= std::uint64_t{1} << (suit_of(card) * kSuitLane + rank_of(card));
    }
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

}  // namespace

HandStrength evaluate_seven(const std::array<Card, 7>& cards) {
    const RankPattern p = tally(cards);
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
    const RankPattern p = tally(cards);
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

}  // namespace kelvane
