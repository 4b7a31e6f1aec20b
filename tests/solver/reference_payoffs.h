#pragma once
// Terminal values by brute force from the rules of poker: every own hand meets every opposing hand
// that shares no card with it or the board, the stronger one takes the pot less the rake, a tie
// shares the rake, and an all-in before the river averages over the runouts both hands leave possible.

#include <span>
#include <vector>

#include "solver/game.h"

namespace kelvane::game_test {

// Independent of the sorted rows and card sums: strengths come straight from the evaluator.
std::vector<float> reference_values(const Game& game, std::uint64_t node, Seat seat, std::span<const float> reach);

// Largest payoff magnitude times the total reach: the scale that rounding errors are measured on.
double value_scale(const Game& game, std::uint64_t node, std::span<const float> reach);

}  // namespace kelvane::game_test
