// Regret matching over action-major rows.

#include "solver/regret_matching.h"

namespace kelvane {

void regret_match(std::span<const float> regrets, std::span<float> strategy, std::span<float> denom,
                  std::size_t actions, std::size_t hands) {
    if (actions == 0) return;
    float* __restrict out = strategy.data();
    float* __restrict sums = denom.data();
    const float uniform = 1.0f / static_cast<float>(actions);
    if (regrets.size() < actions * hands) {
        for (std::size_t i = 0; i < actions * hands; ++i) out[i] = uniform;
        for (std::size_t h = 0; h < hands; ++h) sums[h] = 0.0f;
        return;
    }
    const float* __restrict in = regrets.data();
    // Row 0 starts the per-hand sums, the other rows add to them in action order.
    for (std::size_t h = 0; h < hands; ++h) {
        const float positive = in[h] > 0.0f ? in[h] : 0.0f;
        out[h] = positive;
        sums[h] = positive;
    }
    for (std::size_t a = 1; a < actions; ++a) {
        const float* row = in + a * hands;
        float* dst = out + a * hands;
        for (std::size_t h = 0; h < hands; ++h) {
            const float positive = row[h] > 0.0f ? row[h] : 0.0f;
            dst[h] = positive;
            sums[h] += positive;
        }
    }
    for (std::size_t a = 0; a < actions; ++a) {
        float* dst = out + a * hands;
        for (std::size_t h = 0; h < hands; ++h) {
            // Dividing by a safe denominator keeps the loop free of branches.
            const bool positive = sums[h] > 0.0f;
            const float quotient = dst[h] / (positive ? sums[h] : 1.0f);
            dst[h] = positive ? quotient : uniform;
        }
    }
}

}  // namespace kelvane
