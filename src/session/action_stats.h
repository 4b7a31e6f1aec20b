#pragma once
// Per-action statistics of a decision node over the root ranges: frequency, combos, equity and EV.

#include <cstdint>
#include <string>
#include <vector>

#include "session/solve_session.h"

namespace kelvane_app {

// Equal-length lists, one entry for each action in node order; all empty when not valid.
struct NodeActionStats {
    std::vector<std::string> names;
    std::vector<std::string> types;
    std::vector<float> frequencies;  // every hand counts the same
    std::vector<double> combos;      // root weight times the hand's probability of the action
    std::vector<double> equities;    // 0 to 1, NaN where nothing can be counted
    std::vector<double> evs;         // chips won back out of the pot; half the pot for an unplayed action
    bool valid = false;
};

NodeActionStats action_stats(const SolveSession& session, std::uint64_t node);

}  // namespace kelvane_app
