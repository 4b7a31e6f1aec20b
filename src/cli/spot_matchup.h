#pragma once
// Whether the two ranges of a spot can meet at all.

#include "session/solve_config.h"
#include "session/solve_setup.h"

namespace kelvane_cli {

// Throws std::invalid_argument naming both ranges and the board when every hand of one range shares a
// card with every hand of the other (both seats holding only AhAs, say): such a spot has nothing to solve,
// though each range alone is fine. `setup` is what the config's texts stand for.
void check_matchup(const kelvane_app::SolveSetup& setup, const kelvane_app::SolveConfig& config);

}  // namespace kelvane_cli
