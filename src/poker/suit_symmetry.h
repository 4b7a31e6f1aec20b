#pragma once
// Suits that stand in for each other at the turn and river deal, and the hand swaps that replay them.

#include <array>
#include <cstdint>
#include <vector>

#include "poker/cards.h"
#include "poker/range_text.h"

namespace kelvane {

// Pairs of positions in one seat's pocket list that trade places when two suits are exchanged.
using SwapList = std::vector<std::array<std::uint16_t, 2>>;

// Chance cards that need no child of their own because a card of another suit stands for them.
// Suit 0 never has a representative, so index 0 of the per-suit lists stays empty.
struct SuitSymmetry {
    std::vector<std::uint8_t> turn_child_of_skipped;
    std::vector<Card> turn_skipped;
    std::array<std::array<SwapList, 2>, kSuitCount> turn_swaps;
    std::vector<std::vector<std::uint8_t>> river_child_of_skipped;  // by turn card, 52 entries
    std::array<std::vector<Card>, kSuitCount> river_skipped;        // by suit of the turn card
    std::array<std::array<std::array<SwapList, 2>, kSuitCount>, kSuitCount> river_swaps;  // turn suit, skipped suit, seat
};

SuitSymmetry build_suit_symmetry(const BoardCards& board, const std::array<RangeWeights, 2>& ranges,
                                 const std::array<std::vector<Pocket>, 2>& pockets);

}  // namespace kelvane
