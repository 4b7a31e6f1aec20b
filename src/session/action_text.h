#pragma once
// Display names ("Bet 75%") and type texts ("bet 75%") of tree actions, as the pages show and parse them.

#include <cstdint>
#include <string>

#include "tree/action_plan.h"

namespace kelvane_app {

// Sizes are shown as a percent of `percent_base` chips; below one chip they are shown bare.
std::string action_name(const kelvane::Action& action, double percent_base);
std::string action_type_text(const kelvane::Action& action, double percent_base);

// The root measures against the configured pot, falling back to the root's pot.
double root_percent_base(std::int32_t starting_pot, std::int32_t root_pot);
// Any other node measures against its own pot, falling back to the configured pot.
double node_percent_base(std::int32_t node_pot, std::int32_t starting_pot);

}  // namespace kelvane_app
