// Snapshot of a solved tree for the user interface; it keeps no reference into the solver.

#include "session/result_snapshot.h"

#include <string>

#include "session/action_text.h"
#include "session/frequency_row.h"

namespace kelvane_app {
namespace {

constexpr std::uint64_t kRoot = 0;

const char* node_type_text(std::uint8_t kind) {
    switch (kind) {
        case kelvane::kNodeDecision: return "decision";
        case kelvane::kNodeChance: return "chance";
        default: return "terminal";
    }
}

const char* player_text(const kelvane::GameNode& node) {
    if (node.kind != kelvane::kNodeDecision) return "";
    return node.seat == kelvane::kSeatOop ? "OOP" : "IP";
}

// A chance node deals the first board slot that is still empty.
const char* chance_deal_text(const kelvane::GameNode& node) {
    if (node.kind != kelvane::kNodeChance) return "";
    if (node.turn_card >= kelvane::kNoCard) return "turn";
    if (node.river_card >= kelvane::kNoCard) return "river";
    return "";
}

float frequency_at(const std::vector<float>& strategy, std::size_t action) {
    return action < strategy.size() ? strategy[action] : 0.0f;
}

ResultNode snapshot_node(const kelvane::Game& game, kelvane::DiscountedCfr& solver, std::uint64_t index,
                         std::int32_t starting_pot) {
    const kelvane::GameNode& node = game.node(index);
    ResultNode record;
    record.node_type = node_type_text(node.kind);
    record.player = player_text(node);
    record.chance_deal = chance_deal_text(node);
    record.pot = node.pot;
    record.invested_oop = node.invested[kelvane::kSeatOop];
    record.invested_ip = node.invested[kelvane::kSeatIp];

    const std::vector<float> strategy = solver.average_strategy(index);
    const double base = node_percent_base(node.pot, starting_pot);
    std::vector<float> frequencies;
    frequencies.reserve(node.actions.size());
    record.actions.reserve(node.actions.size());
    for (std::size_t a = 0; a < node.actions.size(); ++a) {
        const std::uint64_t child = a < node.children.size() ? node.children[a] : 0;
        record.actions.push_back({action_name(node.actions[a], base), action_type_text(node.actions[a], base), 0.0f,
                                  static_cast<std::uint32_t>(child)});
        frequencies.push_back(frequency_at(strategy, a));
    }
    clean_frequency_row(frequencies);
    for (std::size_t a = 0; a < frequencies.size(); ++a) record.actions[a].frequency = frequencies[a];
    return record;
}

}  // namespace

void fill_root_actions(SolveResult& result, const kelvane::Game& game, kelvane::DiscountedCfr& solver,
                       std::int32_t starting_pot) {
    const kelvane::GameNode& root = game.node(kRoot);
    const std::vector<float> strategy = solver.average_strategy(kRoot);
    const double base = root_percent_base(starting_pot, root.pot);
    for (std::size_t a = 0; a < root.actions.size(); ++a) {
        result.root_action_names.push_back(action_name(root.actions[a], base));
        result.root_action_types.push_back(action_type_text(root.actions[a], base));
        result.root_action_frequencies.push_back(frequency_at(strategy, a));
    }
    clean_frequency_row(result.root_action_frequencies);
}

std::vector<ResultNode> snapshot_nodes(const kelvane::Game& game, kelvane::DiscountedCfr& solver,
                                       std::int32_t starting_pot) {
    std::vector<ResultNode> nodes;
    nodes.reserve(game.node_count());
    for (std::uint64_t index = 0; index < game.node_count(); ++index)
        nodes.push_back(snapshot_node(game, solver, index, starting_pot));
    return nodes;
}

}  // namespace kelvane_app
