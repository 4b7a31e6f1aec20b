#include "poker/suit_symmetry.h"

#include <optional>

namespace kelvane {
namespace {

using RankMasks = std::array<std::uint16_t, kSuitCount>;
using Representatives = std::array<std::optional<int>, kSuitCount>;

Card swap_suit(Card card, int suit_a, int suit_b) {
    const int suit = suit_of(card);
    if (suit == suit_a) return make_card(rank_of(card), suit_b);
    if (suit == suit_b) return make_card(rank_of(card), suit_a);
    return card;
}

int swapped_index(int index, int suit_a, int suit_b) {
    const Pocket pocket = pocket_from_index(index);
    return pocket_index(swap_suit(pocket.first, suit_a, suit_b), swap_suit(pocket.second, suit_a, suit_b));
}

// NaN compares unequal, so a NaN weight breaks the symmetry.
bool invariant_under_swap(const RangeWeights& weights, int suit_a, int suit_b) {
    for (int index = 0; index < kPocketCount; ++index)
        if (!(weights[index] == weights[swapped_index(index, suit_a, suit_b)])) return false;
    return true;
}

// Suits whose exchange leaves both ranges unchanged share a class.
std::array<int, kSuitCount> suit_classes(const std::array<RangeWeights, 2>& ranges) {
    std::array<int, kSuitCount> classes{};
    int next_class = 1;
    for (int j = 1; j < kSuitCount; ++j) {
        classes[j] = -1;
        for (int i = 0; i < j && classes[j] < 0; ++i)
            if (invariant_under_swap(ranges[0], i, j) && invariant_under_swap(ranges[1], i, j)) classes[j] = classes[i];
        if (classes[j] < 0) classes[j] = next_class++;
    }
    return classes;
}

RankMasks rank_masks(const std::array<Card, 3>& flop) {
    RankMasks masks{};
    for (Card card : flop) masks[suit_of(card)] |= static_cast<std::uint16_t>(1u << rank_of(card));
    return masks;
}

SwapList swap_list(const std::vector<Pocket>& pockets, int suit_a, int suit_b) {
    std::array<int, kPocketCount> position_of;
    position_of.fill(-1);
    for (std::size_t position = 0; position < pockets.size(); ++position)
        position_of[pocket_index(pockets[position].first, pockets[position].second)] = static_cast<int>(position);
    SwapList swaps;
    for (std::size_t position = 0; position < pockets.size(); ++position) {
        const Pocket& pocket = pockets[position];
        const int image = position_of[pocket_index(swap_suit(pocket.first, suit_a, suit_b),
                                                   swap_suit(pocket.second, suit_a, suit_b))];
        if (image > static_cast<int>(position))
            swaps.push_back({static_cast<std::uint16_t>(position), static_cast<std::uint16_t>(image)});
    }
    return swaps;
}

void build_swaps_once(std::array<SwapList, 2>& swaps, const std::array<std::vector<Pocket>, 2>& pockets, int suit,
                      int representative) {
    for (int seat = 0; seat < 2; ++seat)
        if (swaps[seat].empty()) swaps[seat] = swap_list(pockets[seat], suit, representative);
}

// Numbers the cards that get a child and, for each card that doesn't, records its representative's number.
void split_chance_cards(CardMask dead, const Representatives& representatives, std::vector<Card>& skipped,
                        std::vector<std::uint8_t>& child_of_skipped) {
    std::array<std::uint8_t, kCardCount> ordinal{};
    std::uint8_t next = 0;
    for (int code = 0; code < kCardCount; ++code) {
        const Card card = static_cast<Card>(code);
        if (dead & card_bit(card)) continue;
        const std::optional<int>& representative = representatives[suit_of(card)];
        if (!representative) {
            ordinal[card] = next++;
            continue;
        }
        skipped.push_back(card);
        child_of_skipped.push_back(ordinal[make_card(rank_of(card), *representative)]);
    }
}

void build_turn_level(SuitSymmetry& symmetry, const BoardCards& board, const std::array<int, kSuitCount>& classes,
                      const std::array<std::vector<Pocket>, 2>& pockets) {
    const RankMasks flop = rank_masks(board.flop);
    Representatives representatives;
    for (int j = 1; j < kSuitCount; ++j) {
        for (int i = 0; i < j && !representatives[j]; ++i)
            if (flop[i] == flop[j] && classes[i] == classes[j]) representatives[j] = i;
        if (representatives[j]) build_swaps_once(symmetry.turn_swaps[j], pockets, j, *representatives[j]);
    }
    split_chance_cards(board_mask(board), representatives, symmetry.turn_skipped, symmetry.turn_child_of_skipped);
}

void build_river_level(SuitSymmetry& symmetry, const BoardCards& board, const std::array<int, kSuitCount>& classes,
                       const std::array<std::vector<Pocket>, 2>& pockets) {
    const RankMasks flop = rank_masks(board.flop);
    const CardMask flop_cards = board_mask({board.flop, kNoCard, kNoCard});
    const bool turn_dealt = board.turn != kNoCard;
    std::array<bool, kSuitCount> skipped_filled{};
    for (int code = 0; code < kCardCount; ++code) {
        const Card turn = static_cast<Card>(code);
        if (turn_dealt ? turn != board.turn : (flop_cards & card_bit(turn)) != 0) continue;
        const int turn_suit = suit_of(turn);
        RankMasks masks = flop;
        masks[turn_suit] |= static_cast<std::uint16_t>(1u << rank_of(turn));
        Representatives representatives;
        for (int j = 1; j < kSuitCount; ++j) {
            for (int i = 0; i < j && !representatives[j]; ++i)
                if (masks[i] == masks[j] && classes[i] == classes[j] && (turn_dealt || flop[i] == flop[j]))
                    representatives[j] = i;
            if (representatives[j])
                build_swaps_once(symmetry.river_swaps[turn_suit][j], pockets, j, *representatives[j]);
        }
        std::vector<Card> skipped;
        split_chance_cards(flop_cards | card_bit(turn), representatives, skipped,
                           symmetry.river_child_of_skipped[turn]);
        if (!skipped_filled[turn_suit]) {
            symmetry.river_skipped[turn_suit] = std::move(skipped);
            skipped_filled[turn_suit] = true;
        }
    }
}

}  // namespace

SuitSymmetry build_suit_symmetry(const BoardCards& board, const std::array<RangeWeights, 2>& ranges,
                                 const std::array<std::vector<Pocket>, 2>& pockets) {
    SuitSymmetry symmetry;
    symmetry.river_child_of_skipped.resize(kCardCount);
    const std::array<int, kSuitCount> classes = suit_classes(ranges);
    if (board.turn == kNoCard) build_turn_level(symmetry, board, classes, pockets);
    if (board.river == kNoCard) build_river_level(symmetry, board, classes, pockets);
    return symmetry;
}

}  // namespace kelvane
