// Discount schedule, regret matching, row kernels, lock overlay and 16-bit packing.

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <limits>
#include <string>
#include <vector>

#include "solver/discount_schedule.h"
#include "solver/node_locks.h"
#include "solver/regret_matching.h"
#include "solver/row_kernels.h"
#include "solver/state_store.h"
#include "solver/state_packing.h"

namespace kelvane {
namespace {

std::string six_digits(float value) {
    char text[32];
    std::snprintf(text, sizeof text, "%.6g", static_cast<double>(value));
    return text;
}

TEST(DiscountSchedule, MatchesTableToSixDigits) {
    struct Row {
        std::uint32_t t;
        const char* alpha;
        const char* gamma;
    };
    const Row rows[] = {{0, "0", "0"},          {1, "0", "0"},          {2, "0.5", "0.125"},
                        {3, "0.738796", "0.296296"}, {4, "0.83861", "0"}, {5, "0.888889", "0.125"},
                        {16, "0.983078", "0"},  {17, "0.984615", "0.125"}};
    for (const Row& row : rows) {
        const Discounts d = discounts_at(row.t);
        EXPECT_EQ(six_digits(d.alpha), row.alpha) << "t=" << row.t;
        EXPECT_EQ(six_digits(d.beta), "0.5") << "t=" << row.t;
        EXPECT_EQ(six_digits(d.gamma), row.gamma) << "t=" << row.t;
    }
}

TEST(DiscountSchedule, StrategyRestartsAtEveryPowerOfFour) {
    for (std::uint32_t t : {1u, 4u, 16u, 64u, 256u, 1024u, 4096u}) EXPECT_EQ(discounts_at(t).gamma, 0.0f) << t;
    // g counts from the restart, not from the start of the solve.
    EXPECT_FLOAT_EQ(discounts_at(65).gamma, 0.125f);
    EXPECT_FLOAT_EQ(discounts_at(66).gamma, static_cast<float>(std::pow(2.0 / 3.0, 3)));
    EXPECT_GT(discounts_at(63).gamma, 0.9f);
}

TEST(DiscountSchedule, EarlyUpdatesDropPositiveRegretAndHalveNegative) {
    const std::vector<float> zeros(2, 0.0f);
    for (std::uint32_t t : {0u, 1u}) {
        const Discounts d = discounts_at(t);
        std::vector<float> regrets{4.0f, -4.0f};
        update_regrets(regrets.data(), zeros.data(), zeros.data(), d.alpha, d.beta, 2, 1);
        EXPECT_EQ(regrets[0], 0.0f) << t;
        EXPECT_EQ(regrets[1], -2.0f) << t;
    }
    const Discounts d2 = discounts_at(2);
    std::vector<float> regrets{4.0f, -4.0f};
    update_regrets(regrets.data(), zeros.data(), zeros.data(), d2.alpha, d2.beta, 2, 1);
    EXPECT_EQ(regrets[0], 2.0f);
    EXPECT_EQ(regrets[1], -2.0f);
}

TEST(UpdateRegrets, AddsActionValueAndSubtractsNodeValue) {
    // Two actions, three hands; a NaN regret takes the negative factor.
    std::vector<float> regrets{1.0f, -2.0f, std::numeric_limits<float>::quiet_NaN(), 0.0f, 3.0f, -1.0f};
    const std::vector<float> action_values{1.0f, 2.0f, 3.0f, 4.0f, 5.0f, 6.0f};
    const std::vector<float> node_values{0.5f, 1.0f, 1.5f};
    update_regrets(regrets.data(), action_values.data(), node_values.data(), 0.25f, 0.5f, 2, 3);
    EXPECT_FLOAT_EQ(regrets[0], 0.25f * 1.0f + 1.0f - 0.5f);
    EXPECT_FLOAT_EQ(regrets[1], 0.5f * -2.0f + 2.0f - 1.0f);
    EXPECT_TRUE(std::isnan(regrets[2]));
    EXPECT_FLOAT_EQ(regrets[3], 0.0f + 4.0f - 0.5f);
    EXPECT_FLOAT_EQ(regrets[4], 0.25f * 3.0f + 5.0f - 1.0f);
    EXPECT_FLOAT_EQ(regrets[5], 0.5f * -1.0f + 6.0f - 1.5f);
}

TEST(RegretMatch, PositiveRegretsNormalisedPerHand) {
    // Hand 0: regrets 3, 1, -5. Hand 1: all negative. Hand 2: all zero.
    const std::vector<float> regrets{3.0f, -1.0f, 0.0f, 1.0f, -2.0f, 0.0f, -5.0f, -3.0f, 0.0f};
    std::vector<float> strategy(9);
    std::vector<float> denom(3);
    regret_match(regrets, strategy, denom, 3, 3);
    EXPECT_FLOAT_EQ(strategy[0], 0.75f);
    EXPECT_FLOAT_EQ(strategy[3], 0.25f);
    EXPECT_FLOAT_EQ(strategy[6], 0.0f);
    EXPECT_FLOAT_EQ(denom[0], 4.0f);
    for (std::size_t h : {1u, 2u}) {
        for (std::size_t a = 0; a < 3; ++a) EXPECT_EQ(strategy[a * 3 + h], 1.0f / 3.0f);
        EXPECT_EQ(denom[h], 0.0f);
    }
}

TEST(RegretMatch, EmptyInputIsUniform) {
    std::vector<float> strategy(4, -1.0f);
    std::vector<float> denom(2, -1.0f);
    regret_match({}, strategy, denom, 2, 2);
    for (float p : strategy) EXPECT_EQ(p, 0.5f);
}

TEST(RegretMatch, LongRowsWithTailsMatchScalarFormula) {
    const std::size_t actions = 3;
    const std::size_t hands = 37;  // not a multiple of eight
    std::vector<float> regrets(actions * hands);
    for (std::size_t i = 0; i < regrets.size(); ++i) regrets[i] = std::sin(static_cast<float>(i) * 1.7f) * 3.0f;
    std::vector<float> strategy(actions * hands);
    std::vector<float> denom(hands);
    regret_match(regrets, strategy, denom, actions, hands);
    for (std::size_t h = 0; h < hands; ++h) {
        float d = 0.0f;
        for (std::size_t a = 0; a < actions; ++a) d += std::max(regrets[a * hands + h], 0.0f);
        for (std::size_t a = 0; a < actions; ++a) {
            const float expected = d > 0.0f ? std::max(regrets[a * hands + h], 0.0f) / d : 1.0f / 3.0f;
            EXPECT_EQ(strategy[a * hands + h], expected);
        }
    }
}

TEST(RowKernels, ElementwiseOperations) {
    const std::size_t n = 19;
    std::vector<float> a(n), b(n), dst(n);
    for (std::size_t i = 0; i < n; ++i) {
        a[i] = static_cast<float>(i) + 0.5f;
        b[i] = 2.0f - static_cast<float>(i) * 0.25f;
    }
    scale_row(dst.data(), a.data(), 0.5f, n);
    for (std::size_t i = 0; i < n; ++i) EXPECT_EQ(dst[i], a[i] * 0.5f);
    multiply_row(dst.data(), a.data(), b.data(), n);
    for (std::size_t i = 0; i < n; ++i) EXPECT_EQ(dst[i], a[i] * b[i]);

    std::vector<float> matrix(a);
    matrix.insert(matrix.end(), b.begin(), b.end());
    std::vector<float> sum(n, 1.0f);
    add_rows(sum.data(), matrix.data(), 2, n);
    for (std::size_t i = 0; i < n; ++i) EXPECT_EQ(sum[i], (1.0f + a[i]) + b[i]);

    std::vector<float> weighted(n);
    weighted_rows(weighted.data(), matrix.data(), matrix.data(), 2, n);
    for (std::size_t i = 0; i < n; ++i) EXPECT_FLOAT_EQ(weighted[i], a[i] * a[i] + b[i] * b[i]);

    std::vector<float> sums(n, 4.0f);
    discount_strategy(sums.data(), a.data(), 0.125f, n);
    for (std::size_t i = 0; i < n; ++i) EXPECT_FLOAT_EQ(sums[i], 0.5f + a[i]);
}

TEST(RowKernels, AddScaledRowSkipsZeroFactor) {
    std::vector<float> dst{1.0f, 2.0f};
    const std::vector<float> src{std::numeric_limits<float>::infinity(), 3.0f};
    add_scaled_row(dst.data(), src.data(), 0.0f, 2);
    EXPECT_EQ(dst[0], 1.0f);
    add_scaled_row(dst.data(), src.data() + 1, 2.0f, 1);
    EXPECT_EQ(dst[0], 7.0f);
}

TEST(NodeLockOverlay, SignBitDecides) {
    std::vector<float> strategy{0.5f, 0.5f, 0.5f, 0.5f, 0.5f};
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const std::vector<float> lock{0.0f, -0.0f, -1.0f, nan};  // shorter than the strategy
    EXPECT_TRUE(overlay_lock(&lock, strategy));
    EXPECT_EQ(strategy[0], 0.0f);
    EXPECT_EQ(strategy[1], 0.5f);  // -0.0 is not locked
    EXPECT_EQ(strategy[2], 0.5f);
    EXPECT_TRUE(std::isnan(strategy[3]));  // a NaN with a clear sign bit is locked
    EXPECT_EQ(strategy[4], 0.5f);
    EXPECT_FALSE(lock_entry_set(-nan));
}

TEST(NodeLockOverlay, MissingOrEmptyLockIsNoLock) {
    std::vector<float> strategy{0.25f, 0.75f};
    const std::vector<float> empty;
    EXPECT_FALSE(overlay_lock(nullptr, strategy));
    EXPECT_FALSE(overlay_lock(&empty, strategy));
    EXPECT_EQ(strategy[0], 0.25f);
}

TEST(StatePacking, RoundTripWithinOneStep) {
    const std::vector<float> original{3.0f, -1.5f, 0.0f, 0.75f, -3.0f, 1e-3f};
    std::vector<std::int16_t> packed(original.size());
    const float scale = pack_matrix(original, packed);
    EXPECT_EQ(scale, 3.0f);
    EXPECT_EQ(packed[0], 32767);
    EXPECT_EQ(packed[4], -32767);
    EXPECT_EQ(packed[1], -16384);  // -16383.5 rounds away from zero
    std::vector<float> values(original.size());
    unpack_matrix(packed, scale, values);
    for (std::size_t i = 0; i < values.size(); ++i) EXPECT_NEAR(values[i], original[i], 3.0f / 32767.0f);
}

TEST(StatePacking, EmptyAndNegligibleMatrices) {
    EXPECT_EQ(pack_matrix({}, {}), 1.0f);
    const std::vector<float> tiny{1e-10f, -1e-10f, 0.0f};
    std::vector<std::int16_t> packed{1, 2, 3};
    EXPECT_EQ(pack_matrix(tiny, packed), 1.0f);
    EXPECT_EQ(packed, (std::vector<std::int16_t>{0, 0, 0}));
}

TEST(StatePacking, ABadScaleDecodesToZeros) {
    const std::vector<std::int16_t> packed{100, -100};
    std::vector<float> values{7.0f, 7.0f};
    unpack_matrix(packed, 0.0f, values);
    EXPECT_EQ(values, std::vector<float>(2, 0.0f));
    values.assign(2, 7.0f);
    unpack_matrix(packed, std::numeric_limits<float>::quiet_NaN(), values);
    EXPECT_EQ(values, std::vector<float>(2, 0.0f));
}

TEST(ZeroArray, HoldsZerosAndCanBeEmptied) {
    ZeroArray<float> values;
    EXPECT_TRUE(values.empty());
    values.assign_zeros(1000);
    ASSERT_EQ(values.size(), 1000u);
    for (const float v : values.span()) EXPECT_EQ(v, 0.0f);
    values[999] = 2.0f;
    values.assign_zeros(1000);
    EXPECT_EQ(values[999], 0.0f);
    values.assign_zeros(0);
    EXPECT_TRUE(values.empty());
    EXPECT_EQ(values.span().data(), nullptr);
}

TEST(StateStore, FloatStoresHandOutTheirOwnRowsAndPackedStoresDecodeIntoTheBuffer) {
    StateStore plain;
    allocate_store(plain, 6, false);
    std::vector<float> buffer;
    const std::span<float> rows = store_rows(plain, 2, 3, 1.0f, buffer);
    EXPECT_EQ(rows.data(), plain.values.span().data() + 2);
    EXPECT_TRUE(buffer.empty());
    EXPECT_EQ(store_bytes(plain), 6 * sizeof(float));
    EXPECT_EQ(keep_store_rows(plain, 2, rows, 0.5f), 0.5f);

    StateStore packed;
    allocate_store(packed, 6, true);
    EXPECT_TRUE(packed.values.empty());
    EXPECT_EQ(store_bytes(packed), 6 * sizeof(std::int16_t));
    const std::vector<float> written{2.0f, -1.0f, 0.5f};
    const float scale = keep_store_rows(packed, 3, written, 1.0f);
    EXPECT_EQ(scale, 2.0f);
    EXPECT_EQ(packed.packed[0], 0);
    const std::span<float> read = store_rows(packed, 3, 3, scale, buffer);
    EXPECT_EQ(read.data(), buffer.data());
    for (std::size_t i = 0; i < written.size(); ++i) EXPECT_NEAR(read[i], written[i], 2.0f / 32767.0f);
}

}  // namespace
}  // namespace kelvane
