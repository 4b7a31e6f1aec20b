#pragma once
// Showdown equity of a weighted own range against the opponent's root range, exact or sampled.

#include <cstdint>
#include <limits>
#include <random>
#include <span>

#include "solver/game.h"

namespace kelvane_app {

// Deals sampled with the turn known, and with neither turn nor river known.
inline constexpr std::uint32_t kTurnKnownDeals = 4000;
inline constexpr std::uint32_t kFlopDeals = 6000;

struct EquityEstimate {
    double equity = std::numeric_limits<double>::quiet_NaN();  // 0 to 1, NaN without a sample
    std::uint64_t samples = 0;
};

// Win share plus half the ties over every pair of live hands that share no card.
// `own` has one weight for each hand of `seat`, `other` the opponent's root weights.
double exact_river_equity(const kelvane::Game& game, std::uint64_t node, kelvane::Seat seat,
                          std::span<const double> own, std::span<const float> other);

// One generator serves a whole query, so a node's estimates repeat from call to call.
std::mt19937 equity_generator(std::uint64_t node);

// Deals a weighted own hand, a weighted opposing hand and the missing board cards.
EquityEstimate sampled_equity(const kelvane::Game& game, std::uint64_t node, kelvane::Seat seat,
                              std::span<const double> own, std::span<const float> other, std::mt19937& generator);

}  // namespace kelvane_app
