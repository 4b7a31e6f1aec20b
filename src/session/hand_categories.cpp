// Card arithmetic behind the hand names: made hands from the evaluator's category, draws from suit
// counts and rank masks.

#include "session/hand_categories.h"

#include <algorithm>

#include "poker/hand_evaluator.h"

namespace kelvane_app {
namespace {

using kelvane::Card;
using kelvane::kNoCard;
using kelvane::Pocket;

constexpr std::size_t kMaxBoardCards = 5;
constexpr std::size_t kFlopCards = 3;
constexpr std::size_t kTurnCards = 4;
constexpr int kFlushDrawCount = 4;
constexpr int kBackDoorCount = 3;
constexpr unsigned kWheelMask = 0x100F;  // ace, 2, 3, 4, 5

enum Category : int {
    kOnePair = 1,
    kTwoPair = 2,
    kThreeOfAKind = 3,
    kStraight = 4,
    kFlush = 5,
    kFullHouse = 6,
    kFourOfAKind = 7,
    kStraightFlush = 8,
};

bool has_straight(unsigned rank_mask) {
    unsigned run = rank_mask;
    for (int i = 0; i < 4; ++i) run = (run << 1) & rank_mask;
    return run != 0 || (rank_mask & kWheelMask) == kWheelMask;
}

unsigned rank_mask_of(std::span<const Card> cards) {
    unsigned mask = 0;
    for (const Card card : cards) mask |= 1u << kelvane::rank_of(card);
    return mask;
}

// The most frequent suit (lowest suit on a tie) and its count.
std::pair<int, int> dominant_suit(std::span<const Card> cards) {
    std::array<int, kelvane::kSuitCount> counts{};
    for (const Card card : cards) ++counts[static_cast<std::size_t>(kelvane::suit_of(card))];
    int best = 0;
    for (int suit = 1; suit < kelvane::kSuitCount; ++suit)
        if (counts[static_cast<std::size_t>(suit)] > counts[static_cast<std::size_t>(best)]) best = suit;
    return {best, counts[static_cast<std::size_t>(best)]};
}

bool pocket_has_suit(Pocket pocket, int suit) {
    return kelvane::suit_of(pocket.first) == suit || kelvane::suit_of(pocket.second) == suit;
}

std::vector<Card> pocket_and(Pocket pocket, std::span<const Card> board) {
    std::vector<Card> cards;
    cards.reserve(2 + board.size());
    cards.push_back(pocket.first);
    cards.push_back(pocket.second);
    for (const Card card : board) cards.push_back(card);
    return cards;
}

std::string made_hand_name(int category, Pocket pocket, std::span<const Card> board) {
    const RankCounts counts = board_rank_counts(board);
    switch (category) {
        case kStraightFlush: return "straight flush";
        case kFourOfAKind: return "quads";
        case kFullHouse: return "full house";
        case kFlush: return "flush";
        case kStraight: return "straight";
        case kThreeOfAKind: {
            const int rank = kelvane::rank_of(pocket.first);
            const bool set = rank == kelvane::rank_of(pocket.second) && counts[static_cast<std::size_t>(rank)] == 1;
            return set ? "set" : "trips";
        }
        case kTwoPair: return "two pair";
        case kOnePair: return pair_label(pocket, board_ranks_descending(board), counts);
        default: return {};
    }
}

void add_draws_before_river(std::vector<std::string>& names, std::span<const Card> cards, Pocket pocket,
                            bool is_flop, int category) {
    const bool made_flush = category == kFlush || category == kStraightFlush;
    const bool made_straight = category == kStraight || category == kStraightFlush;
    const FlushDrawFlags flush = flush_draw_flags(cards, pocket, is_flop, made_flush);
    if (flush.flush_draw) names.emplace_back("flush draw");
    if (flush.back_door) names.emplace_back("back door flush draw");
    if (made_straight) return;
    const StraightDrawFlags straight = straight_draw_flags(cards);
    if (straight.open_ended) names.emplace_back("open ended straight draw");
    if (straight.gutter) names.emplace_back("gutter");
}

// Draws that the river did not complete, for a pocket that adds nothing to the board.
void add_missed_draws(std::vector<std::string>& names, std::span<const Card> board, Pocket pocket) {
    const std::vector<Card> six = pocket_and(pocket, board.first(kTurnCards));
    if (flush_draw_flags(six, pocket, false, false).flush_draw) names.emplace_back("missed FD");
    const StraightDrawFlags straight = straight_draw_flags(six);
    if (straight.open_ended) names.emplace_back("missed OESD");
    if (straight.gutter) names.emplace_back("missed gutter");
}

}  // namespace

int bucket_order(std::string_view name) {
    const auto row = std::find(kBucketRowNames.begin(), kBucketRowNames.end(), name);
    return row == kBucketRowNames.end() ? kUnorderedBucket : static_cast<int>(row - kBucketRowNames.begin());
}

std::vector<Card> node_board(const kelvane::CardContext& cards, Card turn_card, Card river_card) {
    std::vector<Card> board = cards.board_list;
    if (turn_card != kNoCard) {
        if (board.size() >= kTurnCards) board[kTurnCards - 1] = turn_card;
        else if (board.size() == kFlopCards) board.push_back(turn_card);
    }
    if (river_card != kNoCard) {
        if (board.size() >= kMaxBoardCards) board[kMaxBoardCards - 1] = river_card;
        else if (board.size() == kTurnCards) board.push_back(river_card);
    }
    if (board.size() > kMaxBoardCards) board.resize(kMaxBoardCards);
    return board;
}

std::vector<int> board_ranks_descending(std::span<const Card> board) {
    std::vector<int> ranks;
    const unsigned mask = rank_mask_of(board);
    for (int rank = kelvane::kRankCount - 1; rank >= 0; --rank)
        if (mask & (1u << rank)) ranks.push_back(rank);
    return ranks;
}

RankCounts board_rank_counts(std::span<const Card> board) {
    RankCounts counts{};
    for (const Card card : board) ++counts[static_cast<std::size_t>(kelvane::rank_of(card))];
    return counts;
}

std::string pair_label(Pocket pocket, const std::vector<int>& board_ranks, const RankCounts& rank_counts) {
    const int p = kelvane::rank_of(pocket.first);
    const int q = kelvane::rank_of(pocket.second);
    if (p == q) return !board_ranks.empty() && p > board_ranks.front() ? "overpair" : "dry pair";
    if (rank_counts[static_cast<std::size_t>(p)] == 0 && rank_counts[static_cast<std::size_t>(q)] == 0) return {};
    const auto hit = std::find_if(board_ranks.begin(), board_ranks.end(),
                                  [&](int rank) { return rank == p || rank == q; });
    const auto position = hit - board_ranks.begin();
    if (position == 0) return "top pair";
    if (position == 1) return "middle pair";
    return hit + 1 == board_ranks.end() ? "bottom pair" : "pair";
}

FlushDrawFlags flush_draw_flags(std::span<const Card> cards, Pocket pocket, bool is_flop, bool made_flush) {
    if (made_flush) return {};
    const auto [suit, count] = dominant_suit(cards);
    const bool pocket_plays = pocket_has_suit(pocket, suit);
    return {count == kFlushDrawCount && pocket_plays, is_flop && count == kBackDoorCount && pocket_plays};
}

StraightDrawFlags straight_draw_flags(std::span<const Card> cards) {
    const unsigned mask = rank_mask_of(cards);
    if (has_straight(mask)) return {};
    int completing = 0;
    for (int rank = 0; rank < kelvane::kRankCount; ++rank) {
        const unsigned bit = 1u << rank;
        if (!(mask & bit) && has_straight(mask | bit)) ++completing;
    }
    return {completing >= 2, completing == 1};
}

std::vector<std::string> classify_on_board(std::span<const Card> board, Pocket pocket) {
    if (board.size() < kFlopCards || board.size() > kMaxBoardCards) return {};
    const std::vector<Card> cards = pocket_and(pocket, board);
    const int category = kelvane::hand_category(cards);
    std::vector<std::string> names;
    if (std::string made = made_hand_name(category, pocket, board); !made.empty()) names.push_back(std::move(made));
    if (board.size() < kMaxBoardCards) {
        add_draws_before_river(names, cards, pocket, board.size() == kFlopCards, category);
    } else if (category < kTwoPair && category == kelvane::hand_category(board)) {
        add_missed_draws(names, board, pocket);
    }
    if (names.empty()) names.emplace_back("air");
    std::sort(names.begin(), names.end());
    names.erase(std::unique(names.begin(), names.end()), names.end());
    return names;
}

std::vector<std::string> classify_hand(const kelvane::CardContext& cards, Card turn_card, Card river_card,
                                       Pocket pocket) {
    return classify_on_board(node_board(cards, turn_card, river_card), pocket);
}

}  // namespace kelvane_app
