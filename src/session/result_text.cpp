// Texts of the compact snapshot.

#include "session/result_text.h"

#include "poker/cards.h"
#include "session/action_text.h"

namespace kelvane_app {
namespace {

double percent_base(const SolveResult& result, const ResultNode& node) {
    return node_percent_base(node.pot, result.starting_pot);
}

}  // namespace

std::string_view node_type_text(const ResultNode& node) {
    switch (node.node_type) {
        case kelvane::kNodeDecision:
            return "decision";
        case kelvane::kNodeChance:
            return "chance";
        default:
            return "terminal";
    }
}

std::string_view chance_deal_text(const ResultNode& node) {
    switch (node.chance_deal) {
        case kelvane::kStreetTurn:
            return "turn";
        case kelvane::kStreetRiver:
            return "river";
        default:
            return "";
    }
}

std::string_view player_text(const ResultNode& node) {
    switch (node.player) {
        case kelvane::kSeatOop:
            return "OOP";
        case kelvane::kSeatIp:
            return "IP";
        default:
            return "";
    }
}

std::span<const ResultAction> node_actions(const SolveResult& result, const ResultNode& node) {
    return std::span<const ResultAction>(result.actions).subspan(node.first_action, node.action_count);
}

std::string result_action_name(const SolveResult& result, const ResultNode& node,
                               const ResultAction& action) {
    return action_name(action.action, percent_base(result, node));
}

std::string result_action_type(const SolveResult& result, const ResultNode& node,
                               const ResultAction& action) {
    return action_type_text(action.action, percent_base(result, node));
}

}  // namespace kelvane_app
