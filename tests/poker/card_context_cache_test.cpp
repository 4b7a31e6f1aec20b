// Cache key, the weak artifact table, the worker limit and thread-count independence.

#include "poker/artifact_cache.h"

#include <gtest/gtest.h>

#include <bit>
#include <thread>

#include "deal_fixtures.h"
#include "poker/card_context.h"

namespace kelvane {
namespace {

using testing::deal;
using testing::random_range;
using testing::ranges_of;
using testing::ScopedWorkers;

std::size_t hardware_workers() { return std::max(1u, std::thread::hardware_concurrency()); }

TEST(CardWorkers, ReadsTheVariableOnEachCall) {
    {
        const ScopedWorkers workers("3");
        EXPECT_EQ(CardContext::card_workers(), 3u);
    }
    {
        const ScopedWorkers workers("17");
        EXPECT_EQ(CardContext::card_workers(), 17u);
    }
    const ScopedWorkers unset(nullptr);
    EXPECT_EQ(CardContext::card_workers(), hardware_workers());
}

TEST(CardWorkers, FollowsStrtolRules) {
    const auto workers_for = [](const char* value) {
        const ScopedWorkers workers(value);
        return CardContext::card_workers();
    };
    EXPECT_EQ(workers_for("  5"), 5u);
    EXPECT_EQ(workers_for("4threads"), 4u);  // trailing text is tolerated
    EXPECT_EQ(workers_for("+2"), 2u);
    EXPECT_EQ(workers_for("0"), hardware_workers());
    EXPECT_EQ(workers_for("-3"), hardware_workers());
    EXPECT_EQ(workers_for("many"), hardware_workers());
    EXPECT_EQ(workers_for(""), hardware_workers());
    EXPECT_EQ(workers_for("99999999999999999999999"), hardware_workers());
}

std::uint64_t reference_fnv(std::uint64_t value) {
    std::uint64_t hash = 0xCBF29CE484222325ull;
    for (int i = 0; i < 8; ++i) {
        hash ^= static_cast<std::uint8_t>(value >> (8 * i));
        hash *= 0x100000001B3ull;
    }
    return hash;
}

std::uint64_t reference_combine(std::uint64_t seed, std::uint64_t h) {
    return seed ^ (h + (seed << 6) + (seed >> 2) + 0x9E3779B97F4A7C15ull);
}

TEST(CacheKey, FollowsTheHashRecipe) {
    const auto ranges = ranges_of("AA,KQs:0.5", "22+");
    const BoardCards board = parse_board_text("Ah7c2d");
    std::uint64_t key = 0;
    for (std::uint64_t slot : {50, 20, 1, 255, 255}) key = reference_combine(key, reference_fnv(slot));
    key = reference_combine(key, reference_fnv(1));
    for (const RangeWeights& range : ranges) {
        std::uint64_t seed = 1326;
        for (float weight : range) seed = reference_combine(seed, reference_fnv(std::bit_cast<std::uint32_t>(weight)));
        key = reference_combine(key, reference_fnv(seed));
    }
    EXPECT_EQ(deal_cache_key(board, ranges), key);
    EXPECT_EQ(CardContext(board, ranges).cache_key, key);
}

TEST(CacheKey, RangeTextOrderDoesNotMatter) {
    const CardContext a = deal("Ah7c2d", "AA,KQs,T9o:0.5", "QQ-88");
    const CardContext b = deal("Ah7c2d", "T9o:0.5,AA,KQs", "88,99,TT,JJ,QQ");
    EXPECT_EQ(a.cache_key, b.cache_key);
}

TEST(CacheKey, FlopOrderMatters) {
    const CardContext a = deal("Ah7c2d", "AA,KQs", "QQ-88");
    const CardContext b = deal("7cAh2d", "AA,KQs", "QQ-88");
    EXPECT_NE(a.cache_key, b.cache_key);
    EXPECT_EQ(a.pockets, b.pockets);
    EXPECT_NE(a.cache_key, deal("Ah7c2d", "AA,KQs", "QQ-99").cache_key);
    EXPECT_NE(a.cache_key, deal("Ah7c2d3s", "AA,KQs", "QQ-88").cache_key);
}

TEST(ArtifactCache, DoesNotKeepArtifactsAlive) {
    const CardContext context = deal("Ah7c2d", "AA,KQs", "QQ-88");
    EXPECT_FALSE(artifact_cache_holds(context.cache_key));
    const CardContext again = deal("Ah7c2d", "AA,KQs", "QQ-88");
    EXPECT_EQ(again.total_matchups, context.total_matchups);
    EXPECT_FALSE(artifact_cache_holds(again.cache_key));
}

TEST(ArtifactCache, SharesArtifactsWhileSomeoneHoldsThem) {
    const BoardCards board = parse_board_text("9s8s2h");
    const auto ranges = ranges_of("AA", "KK");
    const std::uint64_t key = deal_cache_key(board, ranges);
    auto planted = std::make_shared<CardContext::CachedArtifacts>();
    planted->pockets = {std::vector<Pocket>{{0, 1}}, std::vector<Pocket>{{2, 3}}};
    planted->total_matchups = 42.0;
    remember_artifacts(key, planted);
    EXPECT_TRUE(artifact_cache_holds(key));
    EXPECT_EQ(find_artifacts(key), planted);

    const CardContext shared(board, ranges);  // copies what the holder keeps
    EXPECT_EQ(shared.total_matchups, 42.0);
    EXPECT_EQ(shared.pockets[1], (std::vector<Pocket>{Pocket{2, 3}}));

    planted.reset();
    EXPECT_FALSE(artifact_cache_holds(key));
    EXPECT_EQ(find_artifacts(key), nullptr);  // the expired entry goes
    const CardContext rebuilt(board, ranges);
    EXPECT_EQ(rebuilt.total_matchups, 36.0);
    EXPECT_EQ(rebuilt.pockets[0].size(), 6u);
}

void expect_same_symmetry(const SuitSymmetry& a, const SuitSymmetry& b) {
    EXPECT_EQ(a.turn_child_of_skipped, b.turn_child_of_skipped);
    EXPECT_EQ(a.turn_skipped, b.turn_skipped);
    EXPECT_EQ(a.turn_swaps, b.turn_swaps);
    EXPECT_EQ(a.river_child_of_skipped, b.river_child_of_skipped);
    EXPECT_EQ(a.river_skipped, b.river_skipped);
    EXPECT_EQ(a.river_swaps, b.river_swaps);
}

void expect_same_context(const CardContext& a, const CardContext& b) {
    EXPECT_EQ(a.pockets, b.pockets);
    EXPECT_EQ(a.weights, b.weights);
    EXPECT_EQ(a.reach_normalized, b.reach_normalized);
    EXPECT_EQ(a.reach_matchups, b.reach_matchups);
    EXPECT_EQ(a.street, b.street);
    EXPECT_EQ(a.dead_cards, b.dead_cards);
    EXPECT_EQ(a.board_list, b.board_list);
    expect_same_symmetry(a.suit_symmetry, b.suit_symmetry);
    EXPECT_TRUE(a.showdown_rows == b.showdown_rows);
    EXPECT_EQ(a.same_pocket, b.same_pocket);
    EXPECT_EQ(a.all_pockets, b.all_pockets);
    EXPECT_TRUE(a.pockets_without_card == b.pockets_without_card);
    EXPECT_TRUE(a.pockets_without_pair == b.pockets_without_pair);
    EXPECT_EQ(a.cache_key, b.cache_key);
    EXPECT_EQ(a.total_matchups, b.total_matchups);
}

class WorkerCount : public ::testing::TestWithParam<const char*> {};

TEST_P(WorkerCount, ResultsDoNotDependOnThreads) {
    const BoardCards board = parse_board_text(GetParam());
    const std::array<RangeWeights, 2> ranges{random_range(7, 0.1), random_range(8, 0.1)};
    const auto build = [&](const char* workers) {
        const ScopedWorkers limit(workers);
        return CardContext(board, ranges);
    };
    const CardContext serial = build("1");
    expect_same_context(serial, build("3"));
    expect_same_context(serial, build("2"));
}

INSTANTIATE_TEST_SUITE_P(Streets, WorkerCount, ::testing::Values("QhJh4c", "QhJh4c8d", "QhJh4c8d2s"));

TEST(ArtifactCache, ConcurrentConstructionsAgree) {
    const ScopedWorkers limit("2");
    const BoardCards board = parse_board_text("Kd6s3h7s");
    const std::array<RangeWeights, 2> ranges{random_range(31, 0.3), random_range(32, 0.3)};
    std::vector<std::unique_ptr<CardContext>> built(4);
    std::vector<std::thread> threads;
    for (auto& slot : built) threads.emplace_back([&slot, &board, &ranges] { slot = std::make_unique<CardContext>(board, ranges); });
    for (std::thread& thread : threads) thread.join();
    for (std::size_t i = 1; i < built.size(); ++i) expect_same_context(*built[0], *built[i]);
    EXPECT_FALSE(artifact_cache_holds(built[0]->cache_key));
}

TEST(CardContextFullRanges, FlopWithEveryPocket) {
    const CardContext context = deal("Td9d4s", "100%", "100%");
    EXPECT_EQ(context.pockets[0].size(), 1176u);
    EXPECT_EQ(context.pockets[1].size(), 1176u);
    EXPECT_EQ(context.showdown_row(0, 1)[0].size(), 1081u + 2u);
    // Every pair of pockets that share no card: 1176 * C(47, 2).
    EXPECT_DOUBLE_EQ(context.total_matchups, 1176.0 * 1081.0);
    for (float reach : context.reach_normalized[0]) EXPECT_FLOAT_EQ(reach, 1.0f / 1176.0f);
}

}  // namespace
}  // namespace kelvane
