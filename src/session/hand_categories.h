#pragma once
// Names of a pocket on a node's board ("top pair", "flush draw", "air", ...) and the bucket rows they credit.

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "poker/card_context.h"
#include "poker/cards.h"

namespace kelvane_app {

inline constexpr std::size_t kBucketRowCount = 21;
inline constexpr int kUnorderedBucket = 9999;  // sort key of a name that has no row

// The rows of the bucket table, in the order every answer lists them.
inline constexpr std::array<std::string_view, kBucketRowCount> kBucketRowNames = {
    "straight flush", "quads",       "full house",  "flush",      "straight",
    "set",            "trips",       "two pair",    "top pair",   "overpair",
    "middle pair",    "bottom pair", "dry pair",    "flush draw", "missed FD",
    "open ended straight draw",      "missed OESD", "gutter",     "missed gutter",
    "back door flush draw",          "air",
};

// Row number of a name, or kUnorderedBucket for "pair", the empty label and anything else.
int bucket_order(std::string_view name);

struct FlushDrawFlags {
    bool flush_draw = false;
    bool back_door = false;
};

struct StraightDrawFlags {
    bool open_ended = false;  // two or more missing ranks complete a straight
    bool gutter = false;      // exactly one does
};

using RankCounts = std::array<int, kelvane::kRankCount>;

// The board as a node sees it: the context's board with the node's dealt cards fitted in.
std::vector<kelvane::Card> node_board(const kelvane::CardContext& cards, kelvane::Card turn_card,
                                      kelvane::Card river_card);

std::vector<int> board_ranks_descending(std::span<const kelvane::Card> board);
RankCounts board_rank_counts(std::span<const kelvane::Card> board);

// The label of a one-pair hand; empty when the pair lies on the board alone.
std::string pair_label(kelvane::Pocket pocket, const std::vector<int>& board_ranks, const RankCounts& rank_counts);

// cards: pocket and board together; the pocket must hold a card of the most frequent suit.
FlushDrawFlags flush_draw_flags(std::span<const kelvane::Card> cards, kelvane::Pocket pocket, bool is_flop,
                                bool made_flush);
StraightDrawFlags straight_draw_flags(std::span<const kelvane::Card> cards);

// Sorted, unique names of a pocket on a board of 3 to 5 cards; empty for any other board.
std::vector<std::string> classify_on_board(std::span<const kelvane::Card> board, kelvane::Pocket pocket);

std::vector<std::string> classify_hand(const kelvane::CardContext& cards, kelvane::Card turn_card,
                                       kelvane::Card river_card, kelvane::Pocket pocket);

}  // namespace kelvane_app
