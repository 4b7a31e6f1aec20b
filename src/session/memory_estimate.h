#pragma once
// How much memory a solve of a configuration will take, counted off a real deal and a real tree:
// everything a solve holds at its peak, when the snapshot is taken beside the live game and solver.

#include <cstdint>
#include <string>

#include "session/solve_config.h"

namespace kelvane_app {

struct SolveMemoryEstimate {
    std::uint64_t total_bytes = 0;
    std::uint64_t card_context_bytes = 0;
    std::uint64_t tree_bytes = 0;
    std::uint64_t state_bytes = 0;  // regrets and strategy sums
    std::uint64_t result_bytes = 0;  // the finished solve's snapshot of the tree
    std::uint64_t node_count = 0;
    std::uint64_t decision_node_count = 0;  // decision nodes with at least one action
    std::uint64_t oop_hands = 0;
    std::uint64_t ip_hands = 0;
    bool valid = false;
};

// Never throws for a bad configuration: `valid` is false and `error`, when given, holds the reason.
SolveMemoryEstimate estimate_solve_memory(const SolveConfig& config, std::string* error = nullptr);

}  // namespace kelvane_app
