#pragma once
// The discounts of one Discounted CFR iteration, with the strategy restart at every power of four.

#include <cstdint>

namespace kelvane {

struct Discounts {
    float alpha = 0.0f;  // factor on non-negative regrets
    float beta = 0.5f;   // factor on negative regrets
    float gamma = 0.0f;  // factor on the cumulative strategy
};

// Discounts of iteration t, counted from 0.
Discounts discounts_at(std::uint32_t t);

}  // namespace kelvane
