#pragma once
// Regret matching: a node's strategy from its regrets, or its average strategy from strategy sums.

#include <cstddef>
#include <span>

namespace kelvane {

// strategy(a, h) = max(r(a, h), 0) / denom(h), or 1/A for a hand whose positive part sums to zero.
// Both matrices are action-major, A rows of H; denom receives the per-hand sums.
// An empty regrets span means nothing accumulated yet, so every hand plays uniformly.
void regret_match(std::span<const float> regrets, std::span<float> strategy, std::span<float> denom,
                  std::size_t actions, std::size_t hands);

}  // namespace kelvane
