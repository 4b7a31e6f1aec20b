// Evaluator throughput, the full seven-card census, and range text parsing.

#include <benchmark/benchmark.h>

#include <array>
#include <numeric>
#include <random>
#include <vector>

#include "poker/hand_evaluator.h"
#include "poker/range_text.h"

namespace {

using kelvane::Card;

// The longest preset range text the application ships ("No rake / RFI UTG").
constexpr const char* kLongestPreset =
    "AA, KK, QQ, JJ, TT, 99:0.8, 88:0.8, 77, 66, 55, 44:0.6, 33:0.4, 22:0.4, AKs, AQs, AJs:0.8, ATs:0.8, "
    "A9s:0.8, A8s:0.8, A7s:0.8, A6s:0.8, A5s:0.8, A4s:0.8, A3s:0.8, A2s:0.4, KQs:0.8, KJs:0.8, KTs, K9s:0.6, "
    "K8s:0.2, K7s:0.4, K6s:0.4, QJs:0.8, QTs:0.8, Q9s:0.2, JTs:0.8, J9s:0.8, T9s:0.8, T8s:0.4, 98s:0.2, "
    "87s:0.2, 76s:0.2, AKo, AQo, AJo:0.8, ATo:0.8, KQo:0.8, KJo:0.4, KTo:0.2, QJo:0.2";

constexpr const char* kCategoryNames[] = {"high_card",  "one_pair",       "two_pair",
                                          "trips",      "straight",       "flush",
                                          "full_house", "four_of_a_kind", "straight_flush"};

std::vector<std::array<Card, 7>> random_hands(std::size_t count) {
    std::mt19937 rng(12345);
    std::array<Card, kelvane::kCardCount> deck{};
    std::iota(deck.begin(), deck.end(), Card{0});
    std::vector<std::array<Card, 7>> hands(count);
    for (auto& hand : hands) {
        for (std::size_t i = 0; i < hand.size(); ++i) {
            std::uniform_int_distribution<std::size_t> pick(i, deck.size() - 1);
            std::swap(deck[i], deck[pick(rng)]);
            hand[i] = deck[i];
        }
    }
    return hands;
}

void BM_EvaluateSevenRandom(benchmark::State& state) {
    const auto hands = random_hands(1 << 16);
    std::size_t next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(kelvane::evaluate_seven(hands[next]));
        next = (next + 1) & (hands.size() - 1);
    }
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()));
}
BENCHMARK(BM_EvaluateSevenRandom);

// All 133,784,560 seven-card hands, one evaluation each, on one thread.
void BM_SevenCardCensus(benchmark::State& state) {
    std::array<std::int64_t, 9> counts{};
    for (auto _ : state) {
        counts = {};
        std::array<Card, 7> c{};
        constexpr Card kEnd = kelvane::kCardCount;
        for (c[0] = 0; c[0] < kEnd; ++c[0])
            for (c[1] = c[0] + 1; c[1] < kEnd; ++c[1])
                for (c[2] = c[1] + 1; c[2] < kEnd; ++c[2])
                    for (c[3] = c[2] + 1; c[3] < kEnd; ++c[3])
                        for (c[4] = c[3] + 1; c[4] < kEnd; ++c[4])
                            for (c[5] = c[4] + 1; c[5] < kEnd; ++c[5])
                                for (c[6] = c[5] + 1; c[6] < kEnd; ++c[6])
                                    ++counts[static_cast<std::size_t>(
                                        kelvane::strength_category(kelvane::evaluate_seven(c)))];
    }
    std::int64_t total = 0;
    for (std::size_t category = 0; category < counts.size(); ++category) {
        state.counters[kCategoryNames[category]] = static_cast<double>(counts[category]);
        total += counts[category];
    }
    state.SetItemsProcessed(total * static_cast<std::int64_t>(state.iterations()));
}
BENCHMARK(BM_SevenCardCensus)->Iterations(1)->Unit(benchmark::kSecond)->UseRealTime();

void BM_ParseLongestPreset(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(kelvane::parse_range_or_percent(kLongestPreset));
}
BENCHMARK(BM_ParseLongestPreset)->Unit(benchmark::kMicrosecond);

void BM_ParsePercentRange(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(kelvane::parse_range_or_percent("37.5%"));
}
BENCHMARK(BM_ParsePercentRange)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
