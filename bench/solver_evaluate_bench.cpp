// Throughput of terminal evaluation: a river showdown with about a thousand hands a side, and a fold.

#include <benchmark/benchmark.h>

#include <memory>
#include <random>
#include <vector>

#include "poker/card_context.h"
#include "poker/range_text.h"
#include "solver/game.h"
#include "tree/bet_size.h"

namespace kelvane {
namespace {

constexpr const char* kBoard = "AsKd7h4c2s";

std::unique_ptr<Game> river_game(double rake_fraction, double rake_cap) {
    SizingProfile profile;
    profile.oop_bets = parse_bet_tokens("50", false);
    profile.ip_bets = profile.oop_bets;
    profile.donk_bets = profile.oop_bets;
    GameConfig config;
    config.starting_street = kStreetRiver;
    config.starting_pot = 100;
    config.effective_stack = 200;
    config.rake_fraction = rake_fraction;
    config.rake_cap = rake_cap;
    config.river_sizing = profile;
    const RangeWeights everything = parse_range_or_percent("100%");
    return std::make_unique<Game>(config, CardContext(parse_board_text(kBoard), {everything, everything}));
}

std::uint64_t child_of_kind(const Game& game, std::uint64_t node, std::uint8_t kind) {
    const GameNode& n = game.node(node);
    for (std::size_t a = 0; a < n.actions.size(); ++a)
        if (n.actions[a].kind == kind) return n.children[a];
    return node;
}

void run(benchmark::State& state, const Game& game, std::uint64_t node) {
    std::mt19937 rng(7);
    std::uniform_real_distribution<float> unit(0.0f, 1.0f);
    std::vector<float> reach(game.hand_count(kSeatIp));
    for (float& x : reach) x = unit(rng);
    std::vector<float> out(game.hand_count(kSeatOop));
    for (auto _ : state) {
        game.evaluate(node, kSeatOop, reach, out);
        benchmark::DoNotOptimize(out.data());
        benchmark::ClobberMemory();
    }
    // Hands of both seats that one evaluation walks over.
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(reach.size() + out.size()));
    state.counters["hands_per_side"] = static_cast<double>(out.size());
}

void BM_RiverShowdownUnraked(benchmark::State& state) {
    static const auto game = river_game(0.0, 0.0);
    run(state, *game, child_of_kind(*game, child_of_kind(*game, 0, kActionCheck), kActionCheck));
}

void BM_RiverShowdownRaked(benchmark::State& state) {
    static const auto game = river_game(0.05, 3.0);
    run(state, *game, child_of_kind(*game, child_of_kind(*game, 0, kActionCheck), kActionCheck));
}

void BM_FoldTerminal(benchmark::State& state) {
    static const auto game = river_game(0.0, 0.0);
    run(state, *game, child_of_kind(*game, child_of_kind(*game, 0, kActionBet), kActionFold));
}

BENCHMARK(BM_RiverShowdownUnraked);
BENCHMARK(BM_RiverShowdownRaked);
BENCHMARK(BM_FoldTerminal);

}  // namespace
}  // namespace kelvane

BENCHMARK_MAIN();
