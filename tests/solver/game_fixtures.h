#pragma once
// Small real spots for the solver tests: deals from text, configurations, games and tree walks.

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <memory>
#include <random>
#include <string_view>
#include <vector>

#include "poker/card_context.h"
#include "poker/range_text.h"
#include "solver/game.h"
#include "tree/bet_size.h"

namespace kelvane::game_test {

// Both seats use the same bet sizes on every street, with no raises; leads use the bets too.
inline GameConfig spot_config(int street, std::int32_t pot, std::int32_t stack, std::string_view bet_text,
                              double rake_fraction = 0.0, double rake_cap = 0.0) {
    SizingProfile profile;
    profile.oop_bets = parse_bet_tokens(bet_text, false);
    profile.ip_bets = profile.oop_bets;
    profile.donk_bets = profile.oop_bets;
    GameConfig config;
    config.starting_street = static_cast<std::uint8_t>(street);
    config.starting_pot = pot;
    config.effective_stack = stack;
    config.rake_fraction = rake_fraction;
    config.rake_cap = rake_cap;
    config.flop_sizing = profile;
    config.turn_sizing = profile;
    config.river_sizing = profile;
    return config;
}

inline CardContext deal(std::string_view board, std::string_view oop, std::string_view ip) {
    return CardContext(parse_board_text(board), {parse_range_or_percent(oop), parse_range_or_percent(ip)});
}

inline std::unique_ptr<Game> make_game(const GameConfig& config, std::string_view board, std::string_view oop,
                                       std::string_view ip) {
    return std::make_unique<Game>(config, deal(board, oop, ip));
}

// Roughly `share` of all pockets get a weight in (0, 1]; the rest stay out.
inline RangeWeights random_range(std::uint32_t seed, double share) {
    std::mt19937 rng(seed);
    std::uniform_real_distribution<float> unit(0.0f, 1.0f);
    RangeWeights weights{};
    for (float& weight : weights)
        if (unit(rng) < share) weight = 1.0f - unit(rng);
    return weights;
}

inline std::unique_ptr<Game> make_random_game(const GameConfig& config, std::string_view board, std::uint32_t seed,
                                              double share) {
    return std::make_unique<Game>(
        config, CardContext(parse_board_text(board), {random_range(seed, share), random_range(seed + 1000, share)}));
}

// The child reached by the first action of `kind`; fails the test when there is none.
inline std::uint64_t child_by_kind(const Game& game, std::uint64_t node, std::uint8_t kind) {
    const GameNode& n = game.node(node);
    for (std::size_t a = 0; a < n.actions.size(); ++a)
        if (n.actions[a].kind == kind) return n.children[a];
    ADD_FAILURE() << "node " << node << " has no action of kind " << int(kind);
    return node;
}

inline std::uint64_t follow(const Game& game, std::initializer_list<std::uint8_t> kinds, std::uint64_t node = 0) {
    for (const std::uint8_t kind : kinds) node = child_by_kind(game, node, kind);
    return node;
}

// The first child of a chance node, whatever card it deals.
inline std::uint64_t first_deal(const Game& game, std::uint64_t node) {
    EXPECT_EQ(game.node(node).kind, kNodeChance);
    return game.node(node).children[0];
}

// Uniform values in (0, 1]; about `zero_share` of them exactly 0.
inline std::vector<float> random_reach(std::uint32_t seed, std::size_t size, double zero_share) {
    std::mt19937 rng(seed);
    std::uniform_real_distribution<float> unit(0.0f, 1.0f);
    std::vector<float> reach(size);
    for (float& x : reach) x = unit(rng) < zero_share ? 0.0f : 1.0f - unit(rng);
    return reach;
}

}  // namespace kelvane::game_test
