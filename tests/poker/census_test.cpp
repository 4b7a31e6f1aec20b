#include <gtest/gtest.h>

#include <array>

#include "poker/hand_evaluator.h"

namespace kelvane {
namespace {

// Every one of the 133,784,560 seven-card hands, against the published category counts.
TEST(EvaluatorCensus, CategoryCountsOfAllSevenCardHands) {
    std::array<long long, 9> counts{};
    std::array<Card, 7> c{};
    for (c[0] = 0; c[0] < kCardCount; ++c[0])
        for (c[1] = c[0] + 1; c[1] < kCardCount; ++c[1])
            for (c[2] = c[1] + 1; c[2] < kCardCount; ++c[2])
                for (c[3] = c[2] + 1; c[3] < kCardCount; ++c[3])
                    for (c[4] = c[3] + 1; c[4] < kCardCount; ++c[4])
                        for (c[5] = c[4] + 1; c[5] < kCardCount; ++c[5])
                            for (c[6] = c[5] + 1; c[6] < kCardCount; ++c[6])
                                ++counts[static_cast<std::size_t>(strength_category(evaluate_seven(c)))];
    const std::array<long long, 9> expected{23'294'460, 58'627'800, 31'433'400, 6'461'620, 6'180'020,
                                            4'047'644,  3'473'184,  224'848,    41'584};
    EXPECT_EQ(counts, expected);
    long long total = 0;
    for (long long count : counts) total += count;
    EXPECT_EQ(total, 133'784'560);
}

}  // namespace
}  // namespace kelvane
