#pragma once
// The description of one spot that the action plan and the game are built from.

#include <cstdint>

#include "tree/sizing_profile.h"

namespace kelvane {

struct GameConfig {
    std::uint8_t starting_street = 0;  // 0 flop, 1 turn, 2 river
    std::int32_t starting_pot = 0;
    std::int32_t effective_stack = 0;
    double rake_fraction = 0.0;  // the tree ignores rake; it passes through to the payoffs
    double rake_cap = 0.0;       // chips
    SizingProfile flop_sizing;
    SizingProfile turn_sizing;
    SizingProfile river_sizing;
    double oop_jam_threshold = 0.0;  // fraction of the pot; 0 is off
    double ip_jam_threshold = 0.0;
    double force_all_in_threshold = 0.0;  // no setting reaches these two; every solve runs with 0
    double merge_threshold = 0.0;
    // The earlier showdown payoff, kept for comparison: the downward pass stops after the first own
    // hand below the whole opposing row, so weaker hands lose nothing. Off in every real solve.
    bool showdown_early_stop = false;
};

}  // namespace kelvane
