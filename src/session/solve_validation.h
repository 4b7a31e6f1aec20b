#pragma once
// The limits a solve configuration's numbers must keep, checked before anything is built, so that the
// controller, project files and the command line refuse the same inputs with the same words.

#include <cstdint>

#include "poker/cards.h"
#include "session/solve_config.h"

namespace kelvane_app {

// Every chip amount of a tree (pot, stack, bet, investment) is part of the pot with both stacks in,
// starting_pot + 2 * effective_stack. Holding that total to one billion keeps each amount below half the
// 32-bit range (2^31 - 1), so even an intermediate sum of two of them cannot overflow.
inline constexpr std::int64_t kMaxChipTotal = 1'000'000'000;
static_assert(2 * kMaxChipTotal <= INT32_MAX);

// Far beyond any machine's cores; 0 and 1 both mean no pool.
inline constexpr std::uint64_t kMaxThreadCount = 1024;

inline constexpr double kMaxRakePercent = 100.0;

// Each check throws std::out_of_range with one message naming the field and the value, such as
// "starting_pot must be at least 1 (got -5)". The chip check takes 64 bits so that a reader of a wider
// number can ask before narrowing it.
void check_chip_amounts(std::int64_t starting_pot, std::int64_t effective_stack);
void check_rake(double rake_percent, double rake_cap);
void check_thread_count(std::uint64_t thread_count);

// The board read as every solve reads it (with the texts of the card parser), then every number above.
kelvane::BoardCards validate_solve_config(const SolveConfig& config);

}  // namespace kelvane_app
