#include "session/bucket_table.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numeric>

#include "session/hand_categories.h"
#include "solved_spots.h"

namespace kelvane_app {
namespace {

using namespace testing;
using kelvane::Card;
using kelvane::Pocket;

std::vector<Card> board(std::string_view text) {
    std::vector<Card> cards;
    for (std::size_t i = 0; i + 1 < text.size(); i += 2) cards.push_back(kelvane::parse_card(text.substr(i, 2)));
    return cards;
}

Pocket pocket(std::string_view text) {
    return {kelvane::parse_card(text.substr(0, 2)), kelvane::parse_card(text.substr(2, 2))};
}

const HandBucketRow* row_named(const std::vector<HandBucketRow>& rows, std::string_view name) {
    for (const HandBucketRow& row : rows)
        if (row.name == name) return &row;
    return nullptr;
}

std::vector<std::string> names(const std::vector<HandBucketRow>& rows) {
    std::vector<std::string> out;
    for (const HandBucketRow& row : rows) out.push_back(row.name);
    return out;
}

// One action, always taken: rows then carry only their weight.
std::vector<HandBucketRow> table_of(std::string_view board_text, const std::vector<Pocket>& pockets,
                                    const std::vector<float>& weights) {
    const std::vector<float> strategy(pockets.size(), 1.0f);
    return bucket_table(board(board_text), pockets, weights, strategy, 1);
}

TEST(BucketTable, ListedExamplesLandInTheirRows) {
    EXPECT_EQ(names(table_of("AhKs7d", {pocket("7c7s")}, {1.0f})), std::vector<std::string>{"set"});
    EXPECT_EQ(names(table_of("7h7s2d", {pocket("7c7d")}, {1.0f})), std::vector<std::string>{"quads"});
    EXPECT_EQ(names(table_of("7h7s2d", {pocket("7c6c")}, {1.0f})), std::vector<std::string>{"trips"});
    EXPECT_EQ(names(table_of("KhKd7c", {pocket("7s2s")}, {1.0f})), std::vector<std::string>{"two pair"});
    EXPECT_EQ(names(table_of("KhKd7c", {pocket("AcQd")}, {1.0f})), std::vector<std::string>{"air"});
    EXPECT_EQ(names(table_of("KsQd2c", {pocket("AhAs")}, {1.0f})), std::vector<std::string>{"overpair"});
    EXPECT_EQ(names(table_of("KsQd2c", {pocket("3h3s")}, {1.0f})), std::vector<std::string>{"dry pair"});
    EXPECT_EQ(names(table_of("KsQd2c", {pocket("JhJs")}, {1.0f})), std::vector<std::string>{"dry pair"});
    EXPECT_EQ(names(table_of("KsKd2c", {pocket("2h3h")}, {1.0f})), std::vector<std::string>{"two pair"});
    EXPECT_EQ(names(table_of("Ah7h2c", {pocket("9h8h")}, {1.0f})), std::vector<std::string>{"flush draw"});
}

TEST(BucketTable, PairPositionsOnTheBoardsRanks) {
    // Two distinct ranks: the lower one sits at position 1, so it is "middle pair".
    const std::vector<Card> paired = board("KsKd9c");
    EXPECT_EQ(pair_label(pocket("9h2d"), board_ranks_descending(paired), board_rank_counts(paired)), "middle pair");
    const std::vector<Card> four = board("Kh9s6d3c");
    const std::vector<int> ranks = board_ranks_descending(four);
    EXPECT_EQ(pair_label(pocket("6s4h"), ranks, board_rank_counts(four)), "pair");
    EXPECT_EQ(pair_label(pocket("3s4h"), ranks, board_rank_counts(four)), "bottom pair");
    EXPECT_EQ(names(table_of("Kh9s6d3c", {pocket("6s4h")}, {1.0f})), std::vector<std::string>{"air"});
}

TEST(BucketTable, PairWithoutARowCountsAsAir) {
    // Five distinct river ranks; pairing the third gives "pair", which has no row.
    const std::vector<Card> river = board("Kh9s6d3c2h");
    EXPECT_EQ(classify_on_board(river, pocket("6s4h")), std::vector<std::string>{"pair"});
    EXPECT_EQ(names(table_of("Kh9s6d3c2h", {pocket("6s4h")}, {1.0f})), std::vector<std::string>{"air"});
}

TEST(BucketTable, HandWithTwoNamesCountsFullyInBoth) {
    // Top pair alone, a flush draw alone, and top pair with a back door draw.
    const std::vector<HandBucketRow> rows = table_of("Kh7h2c", {pocket("KsQs"), pocket("Ah9h"), pocket("AhKd")},
                                                     {1.0f, 0.5f, 0.25f});
    ASSERT_EQ(names(rows), (std::vector<std::string>{"top pair", "flush draw", "back door flush draw"}));
    EXPECT_DOUBLE_EQ(row_named(rows, "top pair")->combos, 1.25);
    EXPECT_DOUBLE_EQ(row_named(rows, "flush draw")->combos, 0.5);
    EXPECT_DOUBLE_EQ(row_named(rows, "back door flush draw")->combos, 0.25);
    // Top pair and a flush draw in one hand: the rows add up to more than the range.
    const std::vector<HandBucketRow> both = table_of("Kd7h2h", {pocket("KhQh")}, {2.0f});
    EXPECT_EQ(names(both), (std::vector<std::string>{"top pair", "flush draw"}));
    EXPECT_DOUBLE_EQ(both[0].combos, 2.0);
    EXPECT_DOUBLE_EQ(both[1].combos, 2.0);
}

TEST(BucketTable, ActionMixIsNormalisedOverCleanWeights) {
    const std::vector<Pocket> pockets{pocket("AhAs"), pocket("3h3s"), pocket("QhQc")};
    const std::vector<float> weights{1.0f, 2.0f, NAN};
    // Action-major: action 0 then action 1, one entry for each pocket.
    const std::vector<float> strategy{0.25f, 1.0f, 0.5f, 0.75f, NAN, 0.5f};
    const std::vector<HandBucketRow> rows = bucket_table(board("KsJd2c"), pockets, weights, strategy, 2);
    ASSERT_EQ(names(rows), (std::vector<std::string>{"overpair", "dry pair"}));
    EXPECT_DOUBLE_EQ(rows[0].combos, 1.0);
    EXPECT_FLOAT_EQ(rows[0].action_probs[0], 0.25f);
    EXPECT_FLOAT_EQ(rows[0].action_probs[1], 0.75f);
    EXPECT_DOUBLE_EQ(rows[1].combos, 2.0);  // the NaN-weighted QQ is left out
    EXPECT_FLOAT_EQ(rows[1].action_probs[0], 1.0f);
    EXPECT_FLOAT_EQ(rows[1].action_probs[1], 0.0f);
}

TEST(HandBuckets, SolvedNodeSumsItsRangeInTableOrder) {
    const SolutionView solution = solution_of(river_spot);
    const kelvane::Game& game = *solution.game;
    const HandBuckets buckets = hand_buckets(solved(river_spot), 0);
    ASSERT_TRUE(buckets.valid);
    ASSERT_FALSE(buckets.rows.empty());
    int previous = -1;
    double combos = 0.0;
    for (const HandBucketRow& row : buckets.rows) {
        EXPECT_GT(bucket_order(row.name), previous);
        previous = bucket_order(row.name);
        EXPECT_GT(row.combos, 0.0);
        ASSERT_EQ(row.action_probs.size(), game.node(0).actions.size());
        EXPECT_NEAR(std::accumulate(row.action_probs.begin(), row.action_probs.end(), 0.0), 1.0, 1e-5);
        combos += row.combos;
    }
    const auto weights = game.root_weights(kelvane::kSeatOop);
    EXPECT_GE(combos + 1e-9, std::accumulate(weights.begin(), weights.end(), 0.0));

    // On this river AA is an overpair, KK and 55 sets, QJs a straight, and the black 43s air.
    EXPECT_NE(row_named(buckets.rows, "overpair"), nullptr);
    EXPECT_NE(row_named(buckets.rows, "set"), nullptr);
    EXPECT_NE(row_named(buckets.rows, "air"), nullptr);
    EXPECT_NE(row_named(buckets.rows, "straight"), nullptr);
    EXPECT_EQ(row_named(buckets.rows, "flush draw"), nullptr);  // no draws on the river
}

}  // namespace
}  // namespace kelvane_app
