// Every number a solve stores or measures is the same, bit for bit, at 1, 2, 3 and 8 threads: the
// schedule decides which thread walks a subtree, never the order of a sum.

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <vector>

#include "solver/discounted_cfr.h"
#include "solver/fan_out.h"
#include "solver_spots.h"

namespace kelvane {
namespace {

struct Snapshot : testing::StoredStates {
    float exploitability = 0.0f;
    SeatValues average_values{};
    SeatValues best_values{};
    std::vector<std::vector<float>> node_values;  // both seats at a spread of nodes
};

// Nodes spread over the tree, each with a subtree large enough to fan out at two threads.
std::vector<std::uint64_t> probe_nodes(const Game& game) {
    const std::vector<std::uint64_t> sizes = subtree_sizes(game);
    std::vector<std::uint64_t> nodes;
    const std::uint64_t step = game.node_count() / 6 + 1;
    for (std::uint64_t n = 0; n < game.node_count(); n += step)
        if (game.node(n).kind != kNodeTerminal && worth_fanning_out(sizes[n], game.hand_count(0))) nodes.push_back(n);
    return nodes;
}

Snapshot solve(Game& game, std::uint32_t iterations, std::uint64_t threads) {
    DiscountedCfrOptions options = testing::quiet_options(iterations, threads);
    options.exploit_check_interval = 0;  // measured once, at the last iteration
    DiscountedCfr cfr(options);
    cfr.solve(game);
    Snapshot snapshot;
    static_cast<testing::StoredStates&>(snapshot) = testing::stored_states(cfr);
    snapshot.exploitability = cfr.last_exploitability();
    snapshot.average_values = cfr.average_strategy_values(game);
    snapshot.best_values = cfr.best_response_values(game);
    for (const std::uint64_t node : probe_nodes(game))
        for (std::uint8_t seat = 0; seat < 2; ++seat) snapshot.node_values.push_back(cfr.node_values(game, node, seat));
    return snapshot;
}

bool same_bits(const std::vector<float>& a, const std::vector<float>& b) {
    return a.size() == b.size() && (a.empty() || std::memcmp(a.data(), b.data(), a.size() * sizeof(float)) == 0);
}

bool same_bits(float a, float b) { return std::memcmp(&a, &b, sizeof a) == 0; }

void expect_same_at_every_thread_count(Game& game, std::uint32_t iterations) {
    const Snapshot one = solve(game, iterations, 1);
    ASSERT_GT(one.exploitability, 0.0f);
    ASSERT_FALSE(one.node_values.empty());
    for (const std::uint64_t threads : {2u, 3u, 8u}) {
        const Snapshot many = solve(game, iterations, threads);
        ASSERT_EQ(many.regrets.size(), one.regrets.size());
        std::size_t differing_nodes = 0;
        for (std::size_t n = 0; n < one.regrets.size(); ++n) {
            if (!same_bits(many.regrets[n], one.regrets[n]) || !same_bits(many.strategy_sums[n], one.strategy_sums[n]))
                ++differing_nodes;
        }
        EXPECT_EQ(differing_nodes, 0u) << threads << " threads";
        EXPECT_TRUE(same_bits(many.exploitability, one.exploitability)) << threads << " threads";
        for (std::size_t seat = 0; seat < 2; ++seat) {
            EXPECT_TRUE(same_bits(many.average_values[seat], one.average_values[seat])) << threads << " threads";
            EXPECT_TRUE(same_bits(many.best_values[seat], one.best_values[seat])) << threads << " threads";
        }
        ASSERT_EQ(many.node_values.size(), one.node_values.size());
        for (std::size_t i = 0; i < one.node_values.size(); ++i)
            EXPECT_TRUE(same_bits(many.node_values[i], one.node_values[i])) << "probe " << i << ", " << threads;
    }
}

// A flop spot whose only bet is all-in and whose later streets are checked through, so that the tree
// stays small with both cards dealt; with rake, so that the measure takes all four walks.
std::unique_ptr<Game> small_flop_game() {
    const BoardCards board = parse_board_text("Qs9h4d");
    GameConfig config;
    config.starting_street = 0;
    config.starting_pot = 100;
    config.effective_stack = 50;
    config.rake_fraction = 0.05;
    config.rake_cap = 3.0;
    const StreetSizing all_in{"100", "", false, false};
    build_sizing_profile(config.flop_sizing, all_in, all_in, "flop");
    build_sizing_profile(config.turn_sizing, StreetSizing{}, StreetSizing{}, "turn");
    build_sizing_profile(config.river_sizing, StreetSizing{}, StreetSizing{}, "river");
    const std::array<RangeWeights, 2> ranges{parse_range_text("AA,KK,99,AKs,T9s"), parse_range_text("QQ,JJ,KJs,76s")};
    return std::make_unique<Game>(config, CardContext(board, ranges));
}

TEST(ThreadDeterminism, FlopSpotIsBitwiseTheSameAtOneTwoThreeAndEightThreads) {
    auto game = small_flop_game();
    expect_same_at_every_thread_count(*game, 3);
}

TEST(ThreadDeterminism, WideTurnSpotIsBitwiseTheSameAtOneTwoThreeAndEightThreads) {
    auto game = testing::make_game(testing::wide_turn_spot());
    expect_same_at_every_thread_count(*game, 3);
}

}  // namespace
}  // namespace kelvane
