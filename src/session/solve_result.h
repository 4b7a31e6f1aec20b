#pragma once
// Plain records that leave the solve worker: progress messages and the finished snapshot.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kelvane_app {

struct ResultAction {
    std::string name;
    std::string action_type;
    float frequency = 0.0f;
    std::uint32_t child_index = 0;
};

struct ResultNode {
    std::string node_type;    // "decision", "chance" or "terminal"
    std::string chance_deal;  // "turn", "river" or empty
    std::string player;       // "OOP", "IP" or empty
    std::int32_t pot = 0;
    std::int32_t invested_oop = 0;
    std::int32_t invested_ip = 0;
    std::vector<ResultAction> actions;
};

// Holds no reference into the solver, so it can cross threads by value.
struct SolveResult {
    bool success = false;
    std::string error;
    std::string board;
    std::int32_t starting_pot = 0;
    std::int32_t effective_stack = 0;
    std::uint32_t iterations = 0;
    float exploitability = 0.0f;
    float ev_oop = 0.0f;
    float ev_ip = 0.0f;
    std::vector<std::string> root_action_names;
    std::vector<std::string> root_action_types;
    std::vector<float> root_action_frequencies;
    std::vector<ResultNode> nodes;  // tree index order
};

struct SolveProgress {
    double progress = 0.0;
    std::string status;
    std::optional<SolveResult> result;  // only in the last message of a run
};

}  // namespace kelvane_app
