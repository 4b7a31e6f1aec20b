#pragma once
// What the application hands the solve session: the spot as text, sizes, limits and node locks.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "tree/street_sizing.h"

namespace kelvane_app {

// One record type serves the tree's profile builder and the session.
using StreetSizing = kelvane::StreetSizing;

struct SeatSizing {
    StreetSizing flop;
    StreetSizing turn;
    StreetSizing river;
};

struct NodeLockEntry {
    std::uint64_t node_index = 0;
    std::string hand;  // 169-class label such as "AKs", "QJo" or "77"
    std::uint64_t action_index = 0;
    float action_prob = 0.0f;
};

struct SolveConfig {
    std::string board;  // two characters a card, 6, 8 or 10 characters
    std::int32_t starting_pot = 100;
    std::int32_t effective_stack = 100;
    double rake_percent = 0.0;  // 5 means 5%
    double rake_cap = 0.0;      // chips
    std::string starting_street = "flop";
    std::uint32_t max_iterations = 2000;
    float target_exploitability = 0.1f;  // chips
    std::uint64_t thread_count = 1;
    bool solver_flag = false;
    bool showdown_early_stop = false;  // the earlier, inexact showdown payoff; for comparison only
    std::string oop_range;
    std::string ip_range;
    SeatSizing oop;
    SeatSizing ip;
    std::optional<double> oop_jam_threshold_pct;
    std::optional<double> ip_jam_threshold_pct;
    std::vector<NodeLockEntry> node_locks;
};

}  // namespace kelvane_app
