#pragma once
// The texts of a compact snapshot node, derived on demand: node type, dealt street, player, and the
// display names and type texts of its actions.

#include <span>
#include <string>
#include <string_view>

#include "session/solve_result.h"

namespace kelvane_app {

std::string_view node_type_text(const ResultNode& node);    // "decision", "chance" or "terminal"
std::string_view chance_deal_text(const ResultNode& node);  // "turn", "river" or empty
std::string_view player_text(const ResultNode& node);       // "OOP", "IP" or empty

// The node's slice of `result.actions`.
std::span<const ResultAction> node_actions(const SolveResult& result, const ResultNode& node);

// "Bet 75%" and "bet 75%", sized against the node's pot or, where it has none, the starting pot.
std::string result_action_name(const SolveResult& result, const ResultNode& node, const ResultAction& action);
std::string result_action_type(const SolveResult& result, const ResultNode& node, const ResultAction& action);

}  // namespace kelvane_app
