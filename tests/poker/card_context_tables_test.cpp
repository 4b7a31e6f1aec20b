// Same-pocket links, blocker lists, matchup totals and reach weights against brute force.

#include "poker/card_context.h"

#include <gtest/gtest.h>

#include <cmath>

#include "deal_fixtures.h"

namespace kelvane {
namespace {

using testing::deal;
using testing::random_range;

std::vector<std::uint16_t> brute_positions_avoiding(const std::vector<Pocket>& pockets, CardMask cards) {
    std::vector<std::uint16_t> positions;
    for (std::size_t i = 0; i < pockets.size(); ++i)
        if (!(pocket_mask(pockets[i]) & cards)) positions.push_back(static_cast<std::uint16_t>(i));
    return positions;
}

class RandomDeal : public ::testing::TestWithParam<const char*> {
protected:
    CardContext make() const {
        return CardContext(parse_board_text(GetParam()), {random_range(101, 0.15), random_range(202, 0.15)});
    }
};

TEST_P(RandomDeal, SamePocketLinksIdenticalPockets) {
    const CardContext context = make();
    int linked = 0;
    for (int seat = 0; seat < 2; ++seat) {
        const auto& own = context.pockets[seat];
        const auto& other = context.pockets[1 - seat];
        ASSERT_EQ(context.same_pocket[seat].size(), own.size());
        for (std::size_t i = 0; i < own.size(); ++i) {
            const auto found = std::find(other.begin(), other.end(), own[i]);
            const std::uint16_t expected =
                found == other.end() ? std::uint16_t{0xFFFF} : static_cast<std::uint16_t>(found - other.begin());
            EXPECT_EQ(context.same_pocket[seat][i], expected);
            linked += expected != 0xFFFF;
        }
    }
    EXPECT_GT(linked, 0);
}

TEST_P(RandomDeal, AllPocketsCountsUp) {
    const CardContext context = make();
    for (int seat = 0; seat < 2; ++seat) {
        ASSERT_EQ(context.all_pockets[seat].size(), context.pockets[seat].size());
        for (std::size_t i = 0; i < context.all_pockets[seat].size(); ++i) EXPECT_EQ(context.all_pockets[seat][i], i);
    }
}

TEST_P(RandomDeal, BlockerListsAgainstBruteForce) {
    const CardContext context = make();
    const BoardCards& board = context.board;
    const CardMask flop = board_mask({board.flop, kNoCard, kNoCard});
    ASSERT_EQ(context.pockets_without_card.size(), static_cast<std::size_t>(kCardCount));
    ASSERT_EQ(context.pockets_without_pair.size(), static_cast<std::size_t>(kPocketCount));
    for (int card = 0; card < kCardCount; ++card) {
        const bool listed = !(flop & card_bit(card)) && (board.turn == kNoCard || card == board.turn);
        for (int seat = 0; seat < 2; ++seat) {
            const auto expected =
                listed ? brute_positions_avoiding(context.pockets[seat], card_bit(card)) : std::vector<std::uint16_t>{};
            EXPECT_EQ(context.pockets_without_card[card][seat], expected) << "card " << card;
        }
    }
    for (int index = 0; index < kPocketCount; ++index) {
        const Pocket pair = pocket_from_index(index);
        const CardMask cards = pocket_mask(pair);
        bool listed = !(flop & cards);
        if (board.river != kNoCard)
            listed = listed && cards == (card_bit(board.turn) | card_bit(board.river));
        else if (board.turn != kNoCard)
            listed = listed && (cards & card_bit(board.turn));
        for (int seat = 0; seat < 2; ++seat) {
            const auto expected =
                listed ? brute_positions_avoiding(context.pockets[seat], cards) : std::vector<std::uint16_t>{};
            EXPECT_EQ(context.pockets_without_pair[index][seat], expected) << "pair " << index;
        }
    }
}

TEST_P(RandomDeal, MatchupsAgainstPairCount) {
    const CardContext context = make();
    double total = 0.0;
    std::array<std::vector<double>, 2> meet{std::vector<double>(context.pockets[0].size()),
                                            std::vector<double>(context.pockets[1].size())};
    for (std::size_t i = 0; i < context.pockets[0].size(); ++i) {
        for (std::size_t j = 0; j < context.pockets[1].size(); ++j) {
            if (pocket_mask(context.pockets[0][i]) & pocket_mask(context.pockets[1][j])) continue;
            const double w0 = context.weights[0][i];
            const double w1 = context.weights[1][j];
            total += w0 * w1;
            meet[0][i] += w1;
            meet[1][j] += w0;
        }
    }
    EXPECT_NEAR(context.total_matchups, total, 1e-9 * total);
    EXPECT_GT(total, 0.0);
    for (int seat = 0; seat < 2; ++seat) {
        double sum = 0.0;
        for (std::size_t i = 0; i < meet[seat].size(); ++i) {
            const double expected = meet[seat][i] * context.weights[seat][i];
            EXPECT_NEAR(context.reach_matchups[seat][i], expected, 1e-5 * (1.0 + expected)) << i;
            sum += expected;
        }
        EXPECT_NEAR(sum, total, 1e-6 * total);  // each seat's reach adds up to all matchups
        double normalized = 0.0;
        for (std::size_t i = 0; i < meet[seat].size(); ++i) {
            EXPECT_NEAR(context.reach_normalized[seat][i], meet[seat][i] * context.weights[seat][i] / sum, 1e-6);
            normalized += context.reach_normalized[seat][i];
        }
        EXPECT_NEAR(normalized, 1.0, 1e-4);
    }
}

INSTANTIATE_TEST_SUITE_P(Streets, RandomDeal, ::testing::Values("Jc8h3d", "Jc8h3d5s", "Jc8h3d5sQh"));

TEST(CardContextReach, FullyBlockedRangesKeepZeros) {
    const CardContext context = deal("2c3c4c", "AsKs", "AsKd");
    EXPECT_EQ(context.total_matchups, 0.0);
    for (int seat = 0; seat < 2; ++seat) {
        EXPECT_EQ(context.reach_matchups[seat], std::vector<float>{0.0f});
        EXPECT_EQ(context.reach_normalized[seat], std::vector<float>{0.0f});
    }
}

TEST(CardContextReach, IdenticalPocketCountedOnce) {
    // AsKs meets every IP pocket but the ones that share a card; the identical one is excluded once.
    const CardContext context = deal("2c3c4c", "AsKs", "AsKs,QQ");
    EXPECT_EQ(context.same_pocket[0][0], 6);  // after the six queens
    EXPECT_FLOAT_EQ(context.reach_matchups[0][0], 6.0f);
    EXPECT_DOUBLE_EQ(context.total_matchups, 6.0);
}

TEST(CardContextMemory, CountsEveryTable) {
    const CardContext context = deal("Jc8h3d", "AA,KK,QQ,AKs", "JJ,TT,AQo");
    std::size_t rows = 0;
    for (const ShowdownRow& row : context.showdown_rows)
        for (const auto& seat : row) rows += seat.capacity() * sizeof(ShowdownEntry);
    std::size_t pairs = 0;
    for (const auto& lists : context.pockets_without_pair)
        for (const auto& list : lists) pairs += list.capacity() * sizeof(std::uint16_t);
    const std::size_t outer = context.showdown_rows.capacity() * sizeof(ShowdownRow) +
                              context.pockets_without_pair.capacity() * sizeof(context.pockets_without_pair[0]) +
                              context.pockets_without_card.capacity() * sizeof(context.pockets_without_card[0]);
    EXPECT_GT(rows, 0u);
    EXPECT_GT(context.memory_bytes(), rows + pairs + outer);
    EXPECT_LT(context.memory_bytes(), 2 * (rows + pairs + outer));
}

TEST(CardContextMemory, ShowdownEntryIsEightBytes) { EXPECT_EQ(sizeof(ShowdownEntry), 8u); }

}  // namespace
}  // namespace kelvane
