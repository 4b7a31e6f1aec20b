#pragma once
// Live pockets of both seats in showdown order on every complete board of a deal.

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "poker/cards.h"

namespace kelvane {

// value is the hand strength plus 1, so the low sentinel 0 sorts below every hand.
struct ShowdownEntry {
    std::uint32_t value = 0;
    std::uint16_t pocket = 0;
    friend bool operator==(const ShowdownEntry&, const ShowdownEntry&) = default;
};

inline constexpr std::uint16_t kNoPocketPosition = 0xFFFF;
inline constexpr ShowdownEntry kLowSentinel{0, kNoPocketPosition};
inline constexpr ShowdownEntry kHighSentinel{0xFFFFFFFFu, kNoPocketPosition};

// One row per seat, each framed by the two sentinels.
using ShowdownRow = std::array<std::vector<ShowdownEntry>, 2>;

// 1326 rows by pocket index of the two cards that complete the board; impossible runouts stay empty.
std::vector<ShowdownRow> build_showdown_rows(const BoardCards& board, const std::array<std::vector<Pocket>, 2>& pockets,
                                             std::size_t max_workers);

}  // namespace kelvane
