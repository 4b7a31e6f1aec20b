#pragma once
// Everything about one deal that does not depend on the betting: live pockets, showdown order,
// blockers, matchup weights and suit symmetry. Immutable after construction.

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "poker/cards.h"
#include "poker/range_text.h"
#include "poker/showdown_rows.h"
#include "poker/suit_symmetry.h"

namespace kelvane {

class CardContext {
public:
    template <typename T>
    using BySeat = std::array<T, 2>;
    using PositionList = std::vector<std::uint16_t>;

    // Everything the constructor derives; shared between contexts of the same deal while one is alive.
    struct CachedArtifacts {
        BySeat<std::vector<Pocket>> pockets;
        BySeat<std::vector<float>> weights;
        BySeat<std::vector<float>> reach_normalized;
        BySeat<std::vector<float>> reach_matchups;
        BySeat<PositionList> same_pocket;
        std::vector<ShowdownRow> showdown_rows;
        SuitSymmetry suit_symmetry;
        BySeat<PositionList> all_pockets;
        std::vector<BySeat<PositionList>> pockets_without_card;
        std::vector<BySeat<PositionList>> pockets_without_pair;
        double total_matchups = 0.0;
    };

    CardContext(const BoardCards& board, const std::array<RangeWeights, 2>& ranges);

    // The rows of the complete board turn + river; a shared empty pair when there is none.
    const ShowdownRow& showdown_row(Card turn, Card river) const;

    // Allocated capacity of every list held, inner lists included.
    std::size_t memory_bytes() const;

    // Build-time thread limit, read from the environment on each call.
    static std::size_t card_workers();

    BoardCards board;
    std::array<RangeWeights, 2> ranges;
    BySeat<std::vector<Pocket>> pockets;           // ascending pocket index, lower code first
    BySeat<std::vector<float>> weights;
    BySeat<std::vector<float>> reach_normalized;  // reach_matchups scaled to sum 1
    BySeat<std::vector<float>> reach_matchups;    // weight times the opposing weight it can meet
    std::uint8_t street = kStreetFlop;
    CardMask dead_cards = 0;
    std::vector<Card> board_list;
    SuitSymmetry suit_symmetry;
    std::vector<ShowdownRow> showdown_rows;                   // by pocket index of turn and river
    BySeat<PositionList> same_pocket;                         // position in the other seat's list, or 0xFFFF
    BySeat<PositionList> all_pockets;
    std::vector<BySeat<PositionList>> pockets_without_card;  // by dealt card
    std::vector<BySeat<PositionList>> pockets_without_pair;  // by pocket index of two dealt cards
    std::uint64_t cache_key = 0;
    double total_matchups = 0.0;

private:
    void rebuild_private();
    void build_blocker_lists();
    void build_reach();
    CachedArtifacts artifacts() const;
    void adopt(const CachedArtifacts& cached);
};

}  // namespace kelvane
