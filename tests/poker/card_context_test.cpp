// Validation, live pockets, showdown rows, blocker lists and matchup weights of a deal.

#include "poker/card_context.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>

#include "deal_fixtures.h"
#include "poker/hand_evaluator.h"

namespace kelvane {
namespace {

using testing::deal;
using testing::random_range;
using testing::ranges_of;
using testing::ScopedWorkers;

const std::array<RangeWeights, 2> kSmallRanges = ranges_of("AA,KK,AKs,QJo", "QQ,JJ,T9s,AKo");

BoardCards flop_board(Card a, Card b, Card c) { return BoardCards{{a, b, c}, kNoCard, kNoCard}; }

template <typename Error>
void expect_error(const BoardCards& board, const std::string& message) {
    try {
        CardContext context(board, kSmallRanges);
        ADD_FAILURE() << "no error, expected " << message;
    } catch (const Error& error) {
        EXPECT_EQ(error.what(), message);
    } catch (const std::exception& error) {
        ADD_FAILURE() << "wrong kind of error: " << error.what();
    }
}

TEST(CardContextValidation, UndealtFlopSlot) {
    expect_error<std::invalid_argument>(flop_board(0, kNoCard, 8), "Flop cards must be defined");
    expect_error<std::invalid_argument>(flop_board(kNoCard, 4, 8), "Flop cards must be defined");
}

TEST(CardContextValidation, CardCodeOutOfRange) {
    expect_error<std::out_of_range>(flop_board(0, 52, 8), "Card code must be in [0, 52)");
    expect_error<std::out_of_range>(BoardCards{{0, 4, 8}, 60, kNoCard}, "Card code must be in [0, 52)");
    expect_error<std::out_of_range>(BoardCards{{0, 4, 8}, 12, 52}, "Card code must be in [0, 52)");
}

TEST(CardContextValidation, FlopCardsMustDiffer) {
    expect_error<std::invalid_argument>(flop_board(5, 9, 5), "Flop cards must be unique");
    expect_error<std::invalid_argument>(flop_board(5, 5, 9), "Flop cards must be unique");
    expect_error<std::invalid_argument>(flop_board(9, 5, 5), "Flop cards must be unique");
}

TEST(CardContextValidation, TurnOnFlop) {
    expect_error<std::invalid_argument>(BoardCards{{0, 4, 8}, 4, kNoCard}, "Turn conflicts with flop");
}

TEST(CardContextValidation, RiverConflicts) {
    expect_error<std::invalid_argument>(BoardCards{{0, 4, 8}, 12, 8}, "River conflicts with existing cards");
    expect_error<std::invalid_argument>(BoardCards{{0, 4, 8}, 12, 12}, "River conflicts with existing cards");
    expect_error<std::invalid_argument>(BoardCards{{0, 4, 8}, kNoCard, 12}, "River cannot be dealt without a turn");
}

TEST(CardContextValidation, RangeEmptyAfterBoardCards) {
    const ScopedWorkers serial("1");
    const BoardCards board = parse_board_text("AsKsQs");
    const auto check = [&](const std::string& oop, const std::string& ip) {
        try {
            CardContext context(board, ranges_of(oop, ip));
            ADD_FAILURE() << "no error";
        } catch (const std::invalid_argument& error) {
            EXPECT_STREQ(error.what(), "Player range empty after filtering board cards");
        }
    };
    check("AsKd,QsJh", "AA");  // only seat 0 is empty
    check("AA", "AsKd");       // only seat 1 is empty
    check("", "AA");           // nothing at all
}

TEST(CardContextValidation, EmptyRangeFailsWithWorkersToo) {
    const ScopedWorkers parallel("2");
    EXPECT_THROW(deal("AsKsQs", "AA", "AsQd"), std::invalid_argument);
}

TEST(CardContext, BoardDerivedMembers) {
    const CardContext river = deal("AhKsQd7c2d", "AA", "KK");
    EXPECT_EQ(river.street, kStreetRiver);
    EXPECT_EQ(river.board_list, (std::vector<Card>{50, 47, 41, 20, 1}));
    EXPECT_EQ(river.dead_cards, card_bit(50) | card_bit(47) | card_bit(41) | card_bit(20) | card_bit(1));
    const CardContext turn = deal("Qd7c2dAh", "AA", "KK");
    EXPECT_EQ(turn.street, kStreetTurn);
    EXPECT_EQ(turn.board_list, (std::vector<Card>{41, 20, 1, 50}));
    const CardContext flop = deal("Qd7c2d", "AA", "KK");
    EXPECT_EQ(flop.street, kStreetFlop);
    EXPECT_EQ(flop.board_list, (std::vector<Card>{41, 20, 1}));
    EXPECT_EQ(flop.board.turn, kNoCard);
}

TEST(CardContext, LivePocketsSkipZeroWeightsAndBoardCards) {
    RangeWeights oop{};
    set_pocket_weight(oop, 50, 51, 0.5f);  // AhAs, blocked by the board
    set_pocket_weight(oop, 48, 49, 0.0f);  // zero weight is not a live pocket
    set_pocket_weight(oop, 44, 45, 0.25f);
    oop[pocket_index(40, 41)] = std::numeric_limits<float>::quiet_NaN();
    set_pocket_weight(oop, 0, 5, 1.0f);
    const RangeWeights ip = parse_range_or_percent("100%");
    const CardContext context(parse_board_text("As7c2dTh"), {oop, ip});
    EXPECT_EQ(context.pockets[0], (std::vector<Pocket>{{0, 5}, {44, 45}}));
    EXPECT_EQ(context.weights[0], (std::vector<float>{1.0f, 0.25f}));
    EXPECT_EQ(context.pockets[1].size(), 1128u);  // C(48, 2)
    for (int seat = 0; seat < 2; ++seat) {
        const auto& pockets = context.pockets[seat];
        for (std::size_t i = 0; i < pockets.size(); ++i) {
            EXPECT_LT(pockets[i].first, pockets[i].second);
            EXPECT_EQ(pocket_mask(pockets[i]) & context.dead_cards, 0u);
            if (i > 0) {
                EXPECT_LT(pocket_index(pockets[i - 1].first, pockets[i - 1].second),
                          pocket_index(pockets[i].first, pockets[i].second));
            }
        }
    }
}

std::size_t filled_rows(const CardContext& context) {
    return std::count_if(context.showdown_rows.begin(), context.showdown_rows.end(),
                         [](const ShowdownRow& row) { return !row[0].empty(); });
}

TEST(CardContextShowdown, RowCountsByStreet) {
    const CardContext river = deal("AhKsQd7c2d", "AA,KK,72o", "QQ,JJ");
    EXPECT_EQ(river.showdown_rows.size(), static_cast<std::size_t>(kPocketCount));
    EXPECT_EQ(filled_rows(river), 1u);
    EXPECT_FALSE(river.showdown_row(20, 1)[0].empty());
    EXPECT_FALSE(river.showdown_row(1, 20)[1].empty());

    const CardContext turn = deal("AhKsQd7c", "AA,KK,72o", "QQ,JJ");
    EXPECT_EQ(filled_rows(turn), 48u);
    for (int card = 0; card < kCardCount; ++card) {
        if (turn.dead_cards & card_bit(card)) continue;
        EXPECT_FALSE(turn.showdown_row(20, card)[0].empty());
        for (int other = card + 1; other < kCardCount; ++other)
            if (!(turn.dead_cards & card_bit(other))) {
                EXPECT_TRUE(turn.showdown_row(card, other)[0].empty());
            }
    }

    const CardContext flop = deal("AhKsQd", "AA,KK,72o", "QQ,JJ");
    EXPECT_EQ(filled_rows(flop), 1176u);
}

TEST(CardContextShowdown, RowLookupOutsideTheTable) {
    const CardContext river = deal("AhKsQd7c2d", "AA", "QQ");
    EXPECT_TRUE(river.showdown_row(kNoCard, 20)[0].empty());
    EXPECT_TRUE(river.showdown_row(20, kNoCard)[1].empty());
    EXPECT_TRUE(river.showdown_row(0, 0)[0].empty());     // index -1
    EXPECT_TRUE(river.showdown_row(51, 60)[0].empty());   // index past the table
    EXPECT_EQ(&river.showdown_row(kNoCard, kNoCard), &river.showdown_row(0, 0));
}

// Every row is the live pockets off that runout, by strength then position, between the sentinels.
void expect_rows_match_brute_force(const CardContext& context, std::size_t stride) {
    std::size_t checked = 0;
    for (int index = 0; index < kPocketCount; ++index) {
        const ShowdownRow& row = context.showdown_rows[index];
        if (row[0].empty()) continue;
        if (checked++ % stride != 0) continue;
        const Pocket runout = pocket_from_index(index);
        const std::array<Card, 3>& flop = context.board.flop;
        for (int seat = 0; seat < 2; ++seat) {
            std::vector<ShowdownEntry> expected{kLowSentinel};
            for (std::size_t position = 0; position < context.pockets[seat].size(); ++position) {
                const Pocket pocket = context.pockets[seat][position];
                if (pocket_mask(pocket) & pocket_mask(runout)) continue;
                const HandStrength strength = evaluate_seven(
                    {pocket.first, pocket.second, flop[0], flop[1], flop[2], runout.first, runout.second});
                expected.push_back({strength + 1, static_cast<std::uint16_t>(position)});
            }
            std::sort(expected.begin() + 1, expected.end(), [](const ShowdownEntry& a, const ShowdownEntry& b) {
                return a.value < b.value || (a.value == b.value && a.pocket < b.pocket);
            });
            expected.push_back(kHighSentinel);
            ASSERT_EQ(row[seat], expected) << "row " << index << " seat " << seat;
        }
    }
    EXPECT_GT(checked, 0u);
}

TEST(CardContextShowdown, RiverRowAgainstBruteForce) {
    const CardContext context = deal("AhKsQd7c2d", "22+,A2s+,K9o+,T9s,54s", "QQ-66,AJo+,KQs,JTs,32o");
    const ShowdownRow& row = context.showdown_row(20, 1);
    for (int seat = 0; seat < 2; ++seat) {
        ASSERT_GE(row[seat].size(), 3u);
        EXPECT_EQ(row[seat].front(), kLowSentinel);
        EXPECT_EQ(row[seat].back(), kHighSentinel);
        EXPECT_EQ(row[seat].size(), context.pockets[seat].size() + 2);  // river pockets never touch the runout
    }
    expect_rows_match_brute_force(context, 1);
}

TEST(CardContextShowdown, FlopRowsAgainstBruteForce) {
    const CardContext context(parse_board_text("Td9d4s"), {random_range(11, 0.08), random_range(12, 0.08)});
    expect_rows_match_brute_force(context, 37);
}

TEST(CardContextShowdown, TurnRowsAgainstBruteForce) {
    const CardContext context(parse_board_text("8c8h3sKd"), {random_range(21, 0.2), random_range(22, 0.2)});
    expect_rows_match_brute_force(context, 1);
}

TEST(CardContextShowdown, TiesSortByPosition) {
    // Every pocket plays the board's straight, so each row is one run of equal values.
    const CardContext context = deal("AhKsQdJcTd", "22,33", "44");
    const auto& oop = context.showdown_row(context.board.turn, context.board.river)[0];
    ASSERT_EQ(oop.size(), 14u);
    for (std::size_t i = 1; i + 1 < oop.size(); ++i) {
        EXPECT_EQ(oop[i].value, oop[1].value);
        EXPECT_EQ(oop[i].pocket, i - 1);
    }
}

}  // namespace
}  // namespace kelvane
