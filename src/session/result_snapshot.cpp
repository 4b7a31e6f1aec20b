// Snapshot of a solved tree for the user interface; it keeps no reference into the solver.

#include "session/result_snapshot.h"

#include <string>

#include "session/action_text.h"
#include "session/frequency_row.h"

namespace kelvane_app {
namespace {

constexpr std::uint64_t kRoot = 0;

// As the decision node's seat: any seat but OOP acts as IP.
std::uint8_t player_of(const kelvane::GameNode& node) {
    if (node.kind != kelvane::kNodeDecision) return kNoPlayer;
    return node.seat == kelvane::kSeatOop ? kelvane::kSeatOop : kelvane::kSeatIp;
}

// A chance node deals the first board slot that is still empty.
std::uint8_t chance_deal_of(const kelvane::GameNode& node) {
    if (node.kind != kelvane::kNodeChance) return kNoDeal;
    if (node.turn_card >= kelvane::kNoCard) return kelvane::kStreetTurn;
    if (node.river_card >= kelvane::kNoCard) return kelvane::kStreetRiver;
    return kNoDeal;
}

float frequency_at(const std::vector<float>& strategy, std::size_t action) {
    return action < strategy.size() ? strategy[action] : 0.0f;
}

std::size_t action_total(const kelvane::Game& game) {
    std::size_t total = 0;
    for (std::uint64_t index = 0; index < game.node_count(); ++index)
        total += game.node(index).actions.size();
    return total;
}

// Appends the node's record and its actions; `frequencies` is scratch space kept across nodes.
void snapshot_node(SolveResult& result, const kelvane::Game& game, kelvane::DiscountedCfr& solver,
                   std::uint64_t index, std::vector<float>& frequencies) {
    const kelvane::GameNode& node = game.node(index);
    result.nodes.push_back({node.kind, chance_deal_of(node), player_of(node), node.pot,
                            node.invested[kelvane::kSeatOop], node.invested[kelvane::kSeatIp],
                            static_cast<std::uint32_t>(result.actions.size()),
                            static_cast<std::uint32_t>(node.actions.size())});

    const std::vector<float> strategy = solver.average_strategy(index);
    frequencies.clear();
    for (std::size_t a = 0; a < node.actions.size(); ++a) frequencies.push_back(frequency_at(strategy, a));
    clean_frequency_row(frequencies);
    for (std::size_t a = 0; a < node.actions.size(); ++a) {
        const std::uint64_t child = a < node.children.size() ? node.children[a] : 0;
        result.actions.push_back({node.actions[a], frequencies[a], static_cast<std::uint32_t>(child)});
    }
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

void snapshot_nodes(SolveResult& result, const kelvane::Game& game, kelvane::DiscountedCfr& solver) {
    result.nodes.clear();
    result.actions.clear();
    result.nodes.reserve(game.node_count());
    result.actions.reserve(action_total(game));
    std::vector<float> frequencies;
    for (std::uint64_t index = 0; index < game.node_count(); ++index)
        snapshot_node(result, game, solver, index, frequencies);
}

}  // namespace kelvane_app
