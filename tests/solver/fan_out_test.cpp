#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "game_fixtures.h"
#include "solver/fan_out.h"

namespace kelvane {
namespace {

TEST(FanOut, PaysOnlyForLargeSubtrees) {
    EXPECT_TRUE(worth_fanning_out(512, 128));
    EXPECT_FALSE(worth_fanning_out(511, 128));
    EXPECT_TRUE(worth_fanning_out(1, 1u << 16));
    EXPECT_FALSE(worth_fanning_out(1000, 0));
}

TEST(FanOut, RepeatedChildrenAreNotDistinct) {
    EXPECT_TRUE(children_distinct(std::vector<std::uint64_t>{}));
    EXPECT_TRUE(children_distinct(std::vector<std::uint64_t>{4, 7, 9}));
    EXPECT_FALSE(children_distinct(std::vector<std::uint64_t>{4, 7, 4}));
}

TEST(FanOut, SubtreeSizeIsOnePlusTheChildren) {
    const auto game_ptr = game_test::make_game(game_test::spot_config(1, 100, 100, "50"), "Ks9d4c7h", "AA,KQs,65s",
                                               "QQ,JTs");
    const Game& game = *game_ptr;
    const std::vector<std::uint64_t> sizes = subtree_sizes(game);
    ASSERT_EQ(sizes.size(), game.node_count());
    for (std::uint64_t n = 0; n < game.node_count(); ++n) {
        std::uint64_t expected = 1;
        for (const std::uint64_t child : game.node(n).children) expected += sizes[child];
        EXPECT_EQ(sizes[n], expected) << n;
    }
    EXPECT_GT(sizes[0], 1u);
}

}  // namespace
}  // namespace kelvane
