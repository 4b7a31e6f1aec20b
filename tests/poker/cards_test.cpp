#include "poker/cards.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <stdexcept>
#include <string>

#include "support/expect_error.h"

namespace kelvane {
namespace {

constexpr const char* kCardCodeError = "Card code must be in [0, 52)";

TEST(ParseRank, AcceptsEveryRankInEitherCase) {
    const std::string ranks = "23456789TJQKA";
    for (int rank = 0; rank < kRankCount; ++rank) {
        const char upper = ranks[static_cast<std::size_t>(rank)];
        EXPECT_EQ(parse_rank(upper), rank);
        EXPECT_EQ(parse_rank(static_cast<char>(std::tolower(upper))), rank);
    }
}

TEST(ParseRank, RejectsOneZeroAndOtherCharacters) {
    for (char c : {'1', '0', 'x', 'B', ' ', '%', '\0'})
        EXPECT_ERROR(std::invalid_argument, parse_rank(c), "Invalid rank character");
}

TEST(ParseSuit, AcceptsEverySuitInEitherCase) {
    EXPECT_EQ(parse_suit('c'), 0);
    EXPECT_EQ(parse_suit('d'), 1);
    EXPECT_EQ(parse_suit('h'), 2);
    EXPECT_EQ(parse_suit('s'), 3);
    EXPECT_EQ(parse_suit('C'), 0);
    EXPECT_EQ(parse_suit('D'), 1);
    EXPECT_EQ(parse_suit('H'), 2);
    EXPECT_EQ(parse_suit('S'), 3);
}

TEST(ParseSuit, RejectsOtherCharacters) {
    for (char c : {'x', 'a', '1', ' '})
        EXPECT_ERROR(std::invalid_argument, parse_suit(c), "Invalid suit character");
}

TEST(RankChar, GivesUpperCaseLettersAndDigits) {
    EXPECT_EQ(rank_char(0), '2');
    EXPECT_EQ(rank_char(7), '9');
    EXPECT_EQ(rank_char(8), 'T');
    EXPECT_EQ(rank_char(12), 'A');
    EXPECT_ERROR(std::out_of_range, rank_char(13), "Rank is out of range");
    EXPECT_ERROR(std::out_of_range, rank_char(-1), "Rank is out of range");
}

TEST(CheckCard, AcceptsTheDeckOnly) {
    EXPECT_NO_THROW(check_card(0));
    EXPECT_NO_THROW(check_card(51));
    EXPECT_ERROR(std::out_of_range, check_card(52), kCardCodeError);
    EXPECT_ERROR(std::out_of_range, check_card(255), kCardCodeError);
    EXPECT_ERROR(std::out_of_range, check_card(-1), kCardCodeError);
}

TEST(ParseCard, IgnoresCaseOfRankAndSuit) {
    EXPECT_EQ(parse_card("AH"), 50);
    EXPECT_EQ(parse_card("ah"), 50);
    EXPECT_EQ(parse_card("aH"), 50);
    EXPECT_EQ(parse_card("Ah"), 50);
    EXPECT_EQ(parse_card("2c"), 0);
    EXPECT_EQ(parse_card("As"), 51);
    EXPECT_EQ(parse_card("Td"), make_card(8, 1));
}

TEST(ParseCard, RequiresExactlyTwoCharacters) {
    for (const char* text : {"10h", "", "A", "Ahh", " Ah"})
        EXPECT_ERROR(std::invalid_argument, parse_card(text), "Card token must consist of two characters");
    EXPECT_ERROR(std::invalid_argument, parse_card("1h"), "Invalid rank character");
    EXPECT_ERROR(std::invalid_argument, parse_card("Ax"), "Invalid suit character");
    EXPECT_ERROR(std::invalid_argument, parse_card("1x"), "Invalid rank character");
}

TEST(CardToString, RoundTripsTheWholeDeck) {
    for (int code = 0; code < kCardCount; ++code) {
        const std::string text = card_to_string(static_cast<std::int8_t>(code));
        EXPECT_EQ(parse_card(text), code);
    }
    EXPECT_EQ(card_to_string(parse_card("aH")), "Ah");
    EXPECT_EQ(card_to_string(0), "2c");
    EXPECT_EQ(card_to_string(51), "As");
}

TEST(CardToString, RejectsNegativeCodesAndCodesBeyondTheDeck) {
    EXPECT_ERROR(std::out_of_range, card_to_string(-1), kCardCodeError);
    EXPECT_ERROR(std::out_of_range, card_to_string(-128), kCardCodeError);
    // Codes above 51 have a rank of 13 or more.
    EXPECT_ERROR(std::out_of_range, card_to_string(52), "Rank is out of range");
    EXPECT_ERROR(std::out_of_range, card_to_string(127), "Rank is out of range");
}

TEST(CardMask, UndealtSlotHasNoBit) {
    EXPECT_EQ(card_bit(kNoCard), 0u);
    EXPECT_EQ(card_bit(52), 0u);
    EXPECT_EQ(card_bit(0), 1u);
    EXPECT_EQ(card_bit(51), CardMask{1} << 51);
    EXPECT_EQ(pocket_mask({3, 7}), (CardMask{1} << 3) | (CardMask{1} << 7));
    EXPECT_EQ(pocket_mask({3, kNoCard}), CardMask{1} << 3);
}

TEST(CardCode, RankAndSuitFields) {
    const Card card = parse_card("Qd");
    EXPECT_EQ(rank_of(card), 10);
    EXPECT_EQ(suit_of(card), 1);
    EXPECT_EQ(make_card(10, 1), card);
    EXPECT_EQ(pack_pocket({parse_card("2c"), parse_card("As")}), 0x3300);
}

TEST(ParseFlop, DropsWhiteSpaceAndKeepsTheOrder) {
    const auto flop = parse_flop("Ah Ks  Qd");
    EXPECT_EQ(flop[0], parse_card("Ah"));
    EXPECT_EQ(flop[1], parse_card("Ks"));
    EXPECT_EQ(flop[2], parse_card("Qd"));
    const auto unsorted = parse_flop("2c\tAs\n7h");
    EXPECT_EQ(unsorted[0], 0);
    EXPECT_EQ(unsorted[1], 51);
    EXPECT_EQ(unsorted[2], parse_card("7h"));
}

TEST(ParseFlop, RequiresThreeCards) {
    for (const char* text : {"", "AhKs", "AhKsQ", "AhKsQdJc", "Ah Ks Qd J"})
        EXPECT_ERROR(std::invalid_argument, parse_flop(text), "Flop string must contain exactly three cards");
    EXPECT_ERROR(std::invalid_argument, parse_flop("AhKsQx"), "Invalid suit character");
}

TEST(ParseFlop, FindsAnyRepeatedCard) {
    for (const char* text : {"AhAhKs", "KsAhAh", "AhKsAh", "2c7d2c", "AhAhAh"})
        EXPECT_ERROR(std::invalid_argument, parse_flop(text), "Flop cards must be unique");
}

TEST(BoardText, FlopOnly) {
    const BoardCards board = parse_board_text("AhKsQd");
    EXPECT_EQ(board.flop[0], parse_card("Ah"));
    EXPECT_EQ(board.flop[1], parse_card("Ks"));
    EXPECT_EQ(board.flop[2], parse_card("Qd"));
    EXPECT_EQ(board.turn, kNoCard);
    EXPECT_EQ(board.river, kNoCard);
    EXPECT_EQ(board_street(board), kStreetFlop);
}

TEST(BoardText, LoneSeventhCharacterIsIgnored) {
    const BoardCards board = parse_board_text("AhKsQd7");
    EXPECT_EQ(board.turn, kNoCard);
    EXPECT_EQ(board_street(board), kStreetFlop);
}

TEST(BoardText, TurnRiverAndIgnoredTail) {
    const BoardCards turn = parse_board_text("AhKsQd7c2");
    EXPECT_EQ(turn.turn, parse_card("7c"));
    EXPECT_EQ(turn.river, kNoCard);
    EXPECT_EQ(board_street(turn), kStreetTurn);

    const BoardCards river = parse_board_text("AhKsQd7c2dXYZ");
    EXPECT_EQ(river.turn, parse_card("7c"));
    EXPECT_EQ(river.river, parse_card("2d"));
    EXPECT_EQ(board_street(river), kStreetRiver);
}

TEST(BoardText, ConflictsWithTheFlopAreLeftForLater) {
    const BoardCards board = parse_board_text("AhKsQdAh");
    EXPECT_EQ(board.turn, parse_card("Ah"));
}

TEST(BoardText, RequiresAFlop) {
    for (const char* text : {"", "AhKsQ", "AhKs"})
        EXPECT_ERROR(std::invalid_argument, parse_board_text(text),
                     "Board must include at least a flop (6 chars, e.g. AhKsQd)");
}

TEST(BoardText, BlanksAreNotDroppedBeforeSlicing) {
    EXPECT_ERROR(std::invalid_argument, parse_board_text("Ah KsQd7c"),
                 "Flop string must contain exactly three cards");
    EXPECT_ERROR(std::invalid_argument, parse_board_text(" AhKsQd"),
                 "Flop string must contain exactly three cards");
    EXPECT_ERROR(std::invalid_argument, parse_board_text("AhKsQd 7c"), "Invalid rank character");
}

TEST(BoardText, MaskAndCardList) {
    const BoardCards board = parse_board_text("AhKsQd7c");
    EXPECT_EQ(board_mask(board), card_bit(parse_card("Ah")) | card_bit(parse_card("Ks")) |
                                     card_bit(parse_card("Qd")) | card_bit(parse_card("7c")));
    const std::vector<Card> cards = board_card_list(board);
    ASSERT_EQ(cards.size(), 4u);
    EXPECT_EQ(cards[0], parse_card("Ah"));
    EXPECT_EQ(cards[3], parse_card("7c"));
    EXPECT_EQ(board_card_list(BoardCards{}).size(), 0u);
    EXPECT_EQ(board_mask(BoardCards{}), 0u);
}

TEST(PocketIndex, KnownCorners) {
    EXPECT_EQ(pocket_index(0, 1), 0);
    EXPECT_EQ(pocket_index(0, 51), 50);
    EXPECT_EQ(pocket_index(1, 2), 51);
    EXPECT_EQ(pocket_index(50, 51), 1325);
    EXPECT_EQ(pocket_index(51, 50), 1325);
    EXPECT_EQ(pocket_index(7, 3), pocket_index(3, 7));
}

TEST(PocketIndex, IsABijectionWithItsInverse) {
    std::set<int> seen;
    for (int a = 0; a < kCardCount; ++a) {
        for (int b = a + 1; b < kCardCount; ++b) {
            const int index = pocket_index(a, b);
            ASSERT_GE(index, 0);
            ASSERT_LT(index, kPocketCount);
            seen.insert(index);
            const Pocket pocket = pocket_from_index(index);
            EXPECT_EQ(pocket.first, a);
            EXPECT_EQ(pocket.second, b);
        }
    }
    EXPECT_EQ(seen.size(), static_cast<std::size_t>(kPocketCount));
}

TEST(PocketIndex, InverseRejectsIndicesOutsideTheTable) {
    EXPECT_ERROR(std::out_of_range, pocket_from_index(1326), "Pocket index is out of range");
    EXPECT_ERROR(std::out_of_range, pocket_from_index(-1), "Pocket index is out of range");
}

TEST(HandClassLabel, PairsSuitedAndOffsuit) {
    EXPECT_EQ(hand_class_label({parse_card("Ah"), parse_card("As")}), "AA");
    EXPECT_EQ(hand_class_label({parse_card("As"), parse_card("Ks")}), "AKs");
    EXPECT_EQ(hand_class_label({parse_card("Kd"), parse_card("As")}), "AKo");
    EXPECT_EQ(hand_class_label({parse_card("2c"), parse_card("3c")}), "32s");
    EXPECT_EQ(hand_class_label({parse_card("Tc"), parse_card("9h")}), "T9o");
}

TEST(HandClassGrid, RowByRowOverAKQJT98765432) {
    const auto& grid = hand_class_grid();
    ASSERT_EQ(grid.size(), static_cast<std::size_t>(kHandClassCount));
    EXPECT_EQ(grid[0], "AA");
    EXPECT_EQ(grid[1], "AKs");
    EXPECT_EQ(grid[12], "A2s");
    EXPECT_EQ(grid[13], "AKo");
    EXPECT_EQ(grid[14], "KK");
    EXPECT_EQ(grid[15], "KQs");
    EXPECT_EQ(grid[25], "K2s");
    EXPECT_EQ(grid[26], "AQo");
    EXPECT_EQ(grid[27], "KQo");
    EXPECT_EQ(grid[28], "QQ");
    EXPECT_EQ(grid[168], "22");
    EXPECT_EQ(grid[167], "32o");
    EXPECT_EQ(std::set<std::string>(grid.begin(), grid.end()).size(), grid.size());
}

TEST(HandClassGrid, EveryPocketFallsIntoOneCellWithTheRightCount) {
    std::map<std::string, int> combos;
    for (int index = 0; index < kPocketCount; ++index) ++combos[hand_class_label(pocket_from_index(index))];
    const auto& grid = hand_class_grid();
    EXPECT_EQ(combos.size(), grid.size());
    for (const std::string& label : grid) {
        const int expected = label.size() == 2 ? 6 : label.back() == 's' ? 4 : 12;
        EXPECT_EQ(combos[label], expected) << label;
    }
}

}  // namespace
}  // namespace kelvane
