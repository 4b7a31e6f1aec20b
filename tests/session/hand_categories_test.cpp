#include "session/hand_categories.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "poker/range_text.h"

namespace kelvane_app {
namespace {

using kelvane::Card;
using kelvane::Pocket;
using Names = std::vector<std::string>;

std::vector<Card> cards_of(std::string_view text) {
    std::vector<Card> cards;
    for (std::size_t i = 0; i + 1 < text.size(); i += 2) cards.push_back(kelvane::parse_card(text.substr(i, 2)));
    return cards;
}

Pocket pocket_of(std::string_view text) {
    return {kelvane::parse_card(text.substr(0, 2)), kelvane::parse_card(text.substr(2, 2))};
}

Names names(std::string_view board, std::string_view pocket) {
    return classify_on_board(cards_of(board), pocket_of(pocket));
}

TEST(HandCategories, TableHasTwentyOneRowsInOrder) {
    EXPECT_EQ(kBucketRowNames.size(), 21u);
    EXPECT_EQ(bucket_order("straight flush"), 0);
    EXPECT_EQ(bucket_order("set"), 5);
    EXPECT_EQ(bucket_order("dry pair"), 12);
    EXPECT_EQ(bucket_order("missed FD"), 14);
    EXPECT_EQ(bucket_order("back door flush draw"), 19);
    EXPECT_EQ(bucket_order("air"), 20);
    EXPECT_EQ(bucket_order("pair"), kUnorderedBucket);
    EXPECT_EQ(bucket_order(""), kUnorderedBucket);
}

TEST(HandCategories, SetTripsAndQuads) {
    EXPECT_EQ(names("AhKs7d", "7c7s"), Names{"set"});
    EXPECT_EQ(names("7h7s2d", "7c7d"), Names{"quads"});
    EXPECT_EQ(names("7h7s2d", "7c6c"), Names{"trips"});
}

TEST(HandCategories, PairedBoard) {
    EXPECT_EQ(names("KhKd7c", "7s2s"), Names{"two pair"});
    EXPECT_EQ(names("KhKd7c", "AcQd"), Names{"air"});
}

TEST(HandCategories, PocketPairsAreOverpairOrDryPair) {
    EXPECT_EQ(names("KsQd2c", "AhAs"), Names{"overpair"});
    EXPECT_EQ(names("KsQd2c", "3h3s"), Names{"dry pair"});
    EXPECT_EQ(names("KsQd2c", "JhJs"), Names{"dry pair"});
}

TEST(HandCategories, PairPositions) {
    EXPECT_EQ(names("Ks8d2c", "Kh4d"), Names{"top pair"});
    EXPECT_EQ(names("Ks8d2c", "8h4d"), Names{"middle pair"});
    EXPECT_EQ(names("Ks8d2c", "2h4d"), Names{"bottom pair"});
    // Two distinct ranks: the lower one is position 1, never "bottom pair".
    EXPECT_EQ(names("KsKd2c", "2h5d"), Names{"two pair"});
    EXPECT_EQ(pair_label(pocket_of("2h5d"), {11, 0}, board_rank_counts(cards_of("KsKd2c"))), "middle pair");
}

TEST(HandCategories, ThirdOfFiveRanksIsPairWithoutARow) {
    const Names river = names("Ks9d6c4h2s", "6h3d");
    EXPECT_EQ(river, Names{"pair"});
    EXPECT_EQ(bucket_order(river.front()), kUnorderedBucket);
    EXPECT_EQ(pair_label(pocket_of("6h3d"), board_ranks_descending(cards_of("Ks9d6c4h2s")),
                         board_rank_counts(cards_of("Ks9d6c4h2s"))),
              "pair");
}

TEST(HandCategories, BoardRanksDescendingAreDistinct) {
    EXPECT_EQ(board_ranks_descending(cards_of("2cKsKd7h")), (std::vector<int>{11, 5, 0}));
}

TEST(HandCategories, FlushDrawWithoutStraightDraw) {
    EXPECT_EQ(names("Ah7h2c", "9h8h"), Names{"flush draw"});
}

TEST(HandCategories, MadeFlushCarriesStraightDraw) {
    // Hearts flush; 9-8-7-6 open ended on the side.
    EXPECT_EQ(names("Kh7h6h", "9h8h"), (Names{"flush", "open ended straight draw"}));
}

TEST(HandCategories, MadeStraightCarriesFlushDraw) {
    EXPECT_EQ(names("Th9h8h7d", "JhQs"), (Names{"flush draw", "straight"}));
    EXPECT_EQ(names("Th9h8c", "Jh7s"), (Names{"back door flush draw", "straight"}));
}

TEST(HandCategories, GutterAndDoubleGutter) {
    EXPECT_EQ(names("Kc9d2s", "Qh8h"), Names{"air"});
    EXPECT_EQ(names("Kh9d2s", "QhJh"), (Names{"back door flush draw", "gutter"}));
    // 9-7-6-5-3: an 8 and a 4 each complete a straight, so a double gutter counts as open ended.
    const StraightDrawFlags double_gutter = straight_draw_flags(cards_of("9c7d6s5h3h"));
    EXPECT_TRUE(double_gutter.open_ended);
    EXPECT_FALSE(double_gutter.gutter);
    EXPECT_TRUE(straight_draw_flags(cards_of("Tc8d7s6h4h")).open_ended);
    EXPECT_FALSE(straight_draw_flags(cards_of("Tc9d8s7h6h")).open_ended);
}

TEST(HandCategories, DrawOnTheBoardAloneCounts) {
    EXPECT_TRUE(straight_draw_flags(cards_of("2c2d9hTsJcQd")).open_ended);
    EXPECT_EQ(names("9hTsJcQd", "2c2d"), (Names{"dry pair", "open ended straight draw"}));
}

TEST(HandCategories, NoBackDoorOnTheTurn) {
    EXPECT_EQ(names("Ah7h2c5d", "KhQc"), Names{"air"});
    EXPECT_EQ(names("Ah7h2c", "KhQc"), Names{"back door flush draw"});
}

TEST(HandCategories, BackDoorNeedsThePocket) {
    EXPECT_EQ(names("AhKh2h", "9c8d"), Names{"air"});
}

TEST(HandCategories, FlushDrawNeedsThePocket) {
    EXPECT_FALSE(flush_draw_flags(cards_of("9c8dAh7h2h5h"), pocket_of("9c8d"), false, false).flush_draw);
    EXPECT_TRUE(flush_draw_flags(cards_of("9h8dAh7h2h5c"), pocket_of("9h8d"), false, false).flush_draw);
}

TEST(HandCategories, MadeFlushGetsNoFlushDraw) {
    EXPECT_FALSE(flush_draw_flags(cards_of("AhKh7h2h3c"), pocket_of("AhKh"), false, true).flush_draw);
}

TEST(HandCategories, RiverTopPairThatMissedAFlushIsJustTopPair) {
    EXPECT_EQ(names("Kh8h2h3c4s", "KsQh"), Names{"top pair"});
}

TEST(HandCategories, MissedFlushDrawOnAPairedRiver) {
    // Four hearts by the turn with the pocket's heart; the river pairs the board.
    EXPECT_EQ(names("Kh9h3sKc", "Ah2h"), (Names{"flush draw"}));
    EXPECT_EQ(names("Kh9h3sJcJs", "Ah2h"), Names{"missed FD"});
}

TEST(HandCategories, MissedStraightDraws) {
    EXPECT_EQ(names("9c8d2sKhKs", "7h6c"), Names{"missed OESD"});
    EXPECT_EQ(names("9c7d2sKhKs", "Jh3c"), Names{"air"});
    EXPECT_EQ(names("9c8d2sKhKs", "Jh7c"), Names{"missed gutter"});
}

TEST(HandCategories, MissedNamesOnlyWhenThePocketAddsNothing) {
    // The pair is the board's own, so the pocket's turn draws count as missed.
    EXPECT_EQ(names("Kh9h3sKc2d", "QhJh"), (Names{"missed FD", "missed gutter"}));
    // A pocket pair above the board is category 1 over a category 0 board: no missed names.
    EXPECT_EQ(names("Th9h3s4c2d", "QhQd"), Names{"overpair"});
}

TEST(HandCategories, BoardSizeOutsideThreeToFiveGivesNothing) {
    EXPECT_TRUE(names("AhKs", "7c7s").empty());
    EXPECT_TRUE(classify_on_board(cards_of("AhKs7d2c3c4c"), pocket_of("7c7s")).empty());
}

TEST(HandCategories, NamesAreSortedAndUnique) {
    const Names result = names("Th9h8c", "Jh7s");
    EXPECT_TRUE(std::is_sorted(result.begin(), result.end()));
}

TEST(HandCategories, NodeBoardFitsTheDealtCards) {
    const kelvane::RangeWeights any = kelvane::parse_range_or_percent("AA,KK,QQ");
    const kelvane::CardContext flop(kelvane::parse_board_text("2c3d4h"), {any, any});
    const Card turn = kelvane::parse_card("9s");
    const Card river = kelvane::parse_card("Ts");
    EXPECT_EQ(node_board(flop, kelvane::kNoCard, kelvane::kNoCard), cards_of("2c3d4h"));
    EXPECT_EQ(node_board(flop, turn, kelvane::kNoCard), cards_of("2c3d4h9s"));
    EXPECT_EQ(node_board(flop, turn, river), cards_of("2c3d4h9sTs"));
    // A river without a turn is only appended to a board of four cards.
    EXPECT_EQ(node_board(flop, kelvane::kNoCard, river), cards_of("2c3d4h"));

    const kelvane::CardContext river_deal(kelvane::parse_board_text("2c3d4h5s6s"), {any, any});
    EXPECT_EQ(node_board(river_deal, turn, river), cards_of("2c3d4h9sTs"));
    EXPECT_EQ(classify_hand(river_deal, kelvane::kNoCard, kelvane::kNoCard, pocket_of("AhAd")),
              Names{"straight"});
}

}  // namespace
}  // namespace kelvane_app
