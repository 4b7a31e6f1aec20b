#pragma once
// Terminal values by brute force: every own hand meets every opposing hand that shares no card.

#include <span>
#include <vector>

#include "solver/game.h"

namespace kelvane::game_test {

// Independent of the sorted rows and card sums: strengths come straight from the evaluator and every
// pair of hands is compared. Follows the same payoff rules, the early stop of the downward pass
// included, so it agrees with Game::evaluate up to rounding.
std::vector<float> reference_values(const Game& game, std::uint64_t node, Seat seat, std::span<const float> reach);

// Largest payoff magnitude times the total reach: the scale that rounding errors are measured on.
double value_scale(const Game& game, std::uint64_t node, std::span<const float> reach);

}  // namespace kelvane::game_test
