// Discount schedule: alpha grows as a^1.5 / (a^1.5 + 1); gamma restarts at each power of four.

#include "solver/discount_schedule.h"

#include <cmath>

namespace kelvane {

namespace {

constexpr float kNegativeRegretFactor = 0.5f;

std::uint64_t restart_point(std::uint32_t t) {
    if (t == 0) return 0;
    std::uint64_t power = 1;
    while (power * 4 <= t) power *= 4;
    return power;
}

}  // namespace

Discounts discounts_at(std::uint32_t t) {
    Discounts d;
    const double a = t == 0 ? 0.0 : static_cast<double>(t - 1);
    const double x = a * std::sqrt(a);
    d.alpha = x + 1.0 > 0.0 ? static_cast<float>(x / (x + 1.0)) : 0.0f;
    d.beta = kNegativeRegretFactor;
    // The cumulative strategy is thrown away at each restart and reweighted from there on.
    const double g = static_cast<double>(t - restart_point(t));
    const double r = g / (g + 1.0);
    d.gamma = static_cast<float>(r * r * r);
    return d;
}

}  // namespace kelvane
