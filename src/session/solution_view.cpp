// Common ground of the solution queries.

#include "session/solution_view.h"

#include <array>
#include <cmath>
#include <limits>

#include "session/action_text.h"

namespace kelvane_app {
namespace {

using kelvane::Game;
using kelvane::GameNode;

constexpr std::uint64_t kRoot = 0;
constexpr std::uint64_t kUnset = std::numeric_limits<std::uint64_t>::max();

// Each node's first (parent, action) in index order.
std::vector<NodeStep> parent_table(const Game& game) {
    std::vector<NodeStep> parents(game.node_count(), NodeStep{kUnset, kUnset});
    if (parents.empty()) return parents;
    parents[kRoot] = {kRoot, 0};
    for (std::uint64_t i = 0; i < game.node_count(); ++i) {
        const std::span<const std::uint64_t> children = game.node(i).children;
        for (std::uint64_t k = 0; k < children.size(); ++k) {
            const std::uint64_t child = children[k];
            if (child < parents.size() && parents[child].node == kUnset) parents[child] = {i, k};
        }
    }
    return parents;
}

template <class Text>
std::vector<std::string> action_texts(const Game& game, std::uint64_t node, Text text) {
    std::vector<std::string> texts;
    if (node >= game.node_count()) return texts;
    const GameNode& n = game.node(node);
    const double base = node_percent_base(n.pot, game.config().starting_pot);
    texts.reserve(n.actions.size());
    for (const kelvane::Action& action : n.actions) texts.push_back(text(action, base));
    return texts;
}

}  // namespace

std::optional<SolutionView> view(const SolveSession& session) {
    SolutionView copies = session.solution();
    if (!copies.game || !copies.solver) return std::nullopt;
    return copies;
}

bool decision_node(const Game& game, std::uint64_t node) {
    if (node >= game.node_count()) return false;
    const GameNode& n = game.node(node);
    if (n.kind != kelvane::kNodeDecision || n.actions.empty() || n.children.size() < n.actions.size()) return false;
    if (n.seat > kelvane::kSeatIp) return false;
    return game.hand_count(n.seat) > 0 && game.root_weights(n.seat).size() == game.hand_count(n.seat);
}

std::optional<NodePath> path_to(const Game& game, std::uint64_t node) {
    const std::vector<NodeStep> parents = parent_table(game);
    NodePath path;
    std::uint64_t at = node;
    while (true) {
        if (at >= parents.size() || parents[at].node == kUnset) return std::nullopt;
        if (at == kRoot) break;
        path.push_back({at, parents[at].action});
        at = parents[at].node;
        if (path.size() > parents.size()) return std::nullopt;  // a cycle can't reach the root
    }
    path.push_back({kRoot, 0});
    return NodePath(path.rbegin(), path.rend());
}

std::vector<float> path_reach(const Game& game, kelvane::DiscountedCfr& solver, const NodePath& path,
                              kelvane::Seat seat, std::vector<float> start, kelvane::CardMask extra_dead) {
    std::vector<float> reach = std::move(start);
    if (path.empty()) return reach;
    const std::span<const kelvane::Pocket> hands = game.hands(seat);
    const kelvane::CardMask dead = game.node_dead_cards(path.back().node) | extra_dead;
    for (std::size_t h = 0; h < reach.size() && h < hands.size(); ++h)
        if (kelvane::pocket_mask(hands[h]) & dead) reach[h] = 0.0f;

    const std::size_t hand_count = hands.size();
    for (std::size_t step = 1; step < path.size(); ++step) {
        const GameNode& parent = game.node(path[step - 1].node);
        const std::uint64_t action = path[step].action;
        if (parent.kind != kelvane::kNodeDecision || parent.seat != seat || parent.actions.size() <= action) continue;
        const std::vector<float> strategy = solver.average_hand_strategy(path[step - 1].node);
        if (strategy.size() != parent.actions.size() * hand_count) continue;
        for (std::size_t h = 0; h < reach.size() && h < hand_count; ++h)
            reach[h] *= clean_weight(strategy[action * hand_count + h]);
    }
    return reach;
}

float clean_weight(float weight) { return std::isfinite(weight) && weight > 0.0f ? weight : 0.0f; }

std::vector<float> clean_weights(std::span<const float> weights) {
    std::vector<float> clean(weights.size());
    for (std::size_t i = 0; i < weights.size(); ++i) clean[i] = clean_weight(weights[i]);
    return clean;
}

std::vector<double> unblocked_mass(const Game& game, kelvane::Seat seat, std::span<const float> other_reach) {
    const kelvane::Seat other = other_seat(seat);
    const std::span<const kelvane::Pocket> other_hands = game.hands(other);
    double total = 0.0;
    std::array<double, kelvane::kCardCount> by_card{};
    for (std::size_t o = 0; o < other_hands.size() && o < other_reach.size(); ++o) {
        const float x = clean_weight(other_reach[o]);
        if (x == 0.0f) continue;
        total += x;
        by_card[other_hands[o].first] += x;
        by_card[other_hands[o].second] += x;
    }
    const std::span<const kelvane::Pocket> hands = game.hands(seat);
    const std::vector<std::uint16_t>& same = game.cards().same_pocket[seat];
    std::vector<double> mass(hands.size());
    for (std::size_t h = 0; h < hands.size(); ++h) {
        const std::uint16_t twin = h < same.size() ? same[h] : kelvane::kNoPocketPosition;
        const double restored = twin < other_reach.size() ? clean_weight(other_reach[twin]) : 0.0;
        const double m = restored + total - by_card[hands[h].first] - by_card[hands[h].second];
        mass[h] = std::isfinite(m) && m > 0.0 ? m : 0.0;
    }
    return mass;
}

double chip_value(double value, double mass, double half_pot, double total_matchups) {
    double x = value;
    if (total_matchups > 0.0 && mass > 0.0) x *= total_matchups / mass;
    if (std::isfinite(half_pot) && half_pot > 0.0 && std::isfinite(x)) x += half_pot;
    return std::isfinite(x) ? x : 0.0;
}

double half_pot(const Game& game, std::uint64_t node) {
    const double pot = static_cast<double>(game.config().starting_pot) + 2.0 * game.node(node).committed;
    return pot * 0.5;
}

std::vector<std::string> node_action_names(const Game& game, std::uint64_t node) {
    return action_texts(game, node, action_name);
}

std::vector<std::string> node_action_types(const Game& game, std::uint64_t node) {
    return action_texts(game, node, action_type_text);
}

}  // namespace kelvane_app
