#pragma once
// Plain records that leave the solve worker: progress messages and the finished snapshot.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "tree/action_plan.h"

namespace kelvane_app {

// Names and type texts are left out: result_text.h derives them from the action and the node's pot.
struct ResultAction {
    kelvane::Action action;
    float frequency = 0.0f;
    std::uint32_t child_index = 0;
};
static_assert(sizeof(ResultAction) == 16);

inline constexpr std::uint8_t kNoDeal = 255;    // `chance_deal` of a node that deals no street
inline constexpr std::uint8_t kNoPlayer = 255;  // `player` of a node where nobody acts

// One tree node in 24 bytes; its actions lie in SolveResult::actions from `first_action` on.
struct ResultNode {
    std::uint8_t node_type = kelvane::kNodeTerminal;
    std::uint8_t chance_deal = kNoDeal;  // street number dealt at a chance node
    std::uint8_t player = kNoPlayer;     // seat to act at a decision node
    std::int32_t pot = 0;
    std::int32_t invested_oop = 0;
    std::int32_t invested_ip = 0;
    std::uint32_t first_action = 0;
    std::uint32_t action_count = 0;
};
static_assert(sizeof(ResultNode) == 24);

// Holds no reference into the solver, so it can cross threads by value.
struct SolveResult {
    bool success = false;
    std::string error;
    std::string board;
    std::int32_t starting_pot = 0;
    std::int32_t effective_stack = 0;
    std::uint32_t iterations = 0;
    float exploitability = 0.0f;
    bool exploitability_measured = false;  // false: no iteration measured it, and the value above means nothing
    float ev_oop = 0.0f;
    float ev_ip = 0.0f;
    std::vector<std::string> root_action_names;
    std::vector<std::string> root_action_types;
    std::vector<float> root_action_frequencies;
    std::vector<ResultNode> nodes;      // tree index order
    std::vector<ResultAction> actions;  // every node's actions, node after node
};

struct SolveProgress {
    double progress = 0.0;
    std::string status;
    std::optional<SolveResult> result;  // only in the last message of a run
};

}  // namespace kelvane_app
