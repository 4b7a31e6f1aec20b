#include "session/frequency_row.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace kelvane_app {
namespace {

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInf = std::numeric_limits<float>::infinity();

TEST(FrequencyRow, NormalisesToOne) {
    std::vector<float> row{1.0f, 3.0f};
    clean_frequency_row(row);
    EXPECT_FLOAT_EQ(row[0], 0.25f);
    EXPECT_FLOAT_EQ(row[1], 0.75f);
}

TEST(FrequencyRow, BadEntriesCountZero) {
    std::vector<float> row{kNaN, -1.0f, 2.0f, kInf};
    clean_frequency_row(row);
    EXPECT_EQ(row, (std::vector<float>{0.0f, 0.0f, 1.0f, 0.0f}));
}

TEST(FrequencyRow, ZerosBecomeUniform) {
    std::vector<float> row{0.0f, 0.0f, 0.0f, 0.0f};
    clean_frequency_row(row);
    EXPECT_EQ(row, (std::vector<float>(4, 0.25f)));
}

TEST(FrequencyRow, NaNsBecomeUniform) {
    std::vector<float> row{kNaN, kNaN, -kInf};
    clean_frequency_row(row);
    for (const float value : row) EXPECT_EQ(value, 1.0f / 3.0f);
}

TEST(FrequencyRow, EmptyRowStaysEmpty) {
    std::vector<float> row;
    clean_frequency_row(row);
    EXPECT_TRUE(row.empty());
}

}  // namespace
}  // namespace kelvane_app
