// Combo detail under the reach of the path to a node.

#include "session/hand_combos.h"

#include <cmath>
#include <optional>

#include "poker/cards.h"
#include "session/hand_categories.h"
#include "session/solution_view.h"

namespace kelvane_app {
namespace {

using kelvane::Game;
using kelvane::Pocket;

constexpr std::size_t kCardTextLength = 2;

std::string card_text(kelvane::Card card) { return kelvane::card_to_string(static_cast<std::int8_t>(card)); }

// A node's strategy when the node is a decision node whose strategy covers every hand of the seat.
std::optional<std::vector<float>> decision_strategy(const SolutionView& solution, std::uint64_t node) {
    if (!decision_node(*solution.game, node)) return std::nullopt;
    const kelvane::GameNode& n = solution.game->node(node);
    std::vector<float> strategy = solution.solver->average_hand_strategy(node);
    if (strategy.size() != n.actions.size() * solution.game->hand_count(n.seat)) return std::nullopt;
    return strategy;
}

// Values of the node and of each child; nothing if they don't cover the seat's hands.
std::optional<kelvane::NodeAndChildValues> node_and_child_values(const SolutionView& solution, std::uint64_t node,
                                                                 kelvane::Seat seat,
                                                                 const std::vector<float>& other_reach) {
    const Game& game = *solution.game;
    const std::size_t hands = game.hand_count(seat);
    kelvane::NodeAndChildValues values =
        solution.solver->node_and_child_values_with_reach(game, node, seat, other_reach);
    if (values.node.size() != hands || values.children.size() != game.node(node).actions.size() * hands)
        return std::nullopt;
    return values;
}

// The hand's action probabilities with bad entries as 0, scaled to sum 1, uniform if nothing is left.
std::vector<float> probability_row(const std::vector<float>& strategy, std::size_t hand, std::size_t hands,
                                   std::size_t actions) {
    std::vector<float> row(actions);
    double total = 0.0;
    for (std::size_t a = 0; a < actions; ++a) {
        row[a] = clean_weight(strategy[a * hands + hand]);
        total += row[a];
    }
    if (total > 0.0) {
        const auto scale = static_cast<float>(1.0 / total);
        for (float& p : row) p *= scale;
    } else {
        row.assign(actions, 1.0f / static_cast<float>(actions));
    }
    return row;
}

double reach_weight(float reach, float weight) {
    if (!std::isfinite(reach) || !(reach > 0.0f)) return 0.0;
    const double product = static_cast<double>(reach) * weight;
    return std::isfinite(product) ? product : 0.0;
}

}  // namespace

HandCombos hand_combos(const SolveSession& session, std::uint64_t node) {
    const std::optional<SolutionView> solution = view(session);
    if (!solution) return {};
    const std::optional<std::vector<float>> strategy = decision_strategy(*solution, node);
    if (!strategy) return {};
    const Game& game = *solution->game;
    const std::optional<NodePath> path = path_to(game, node);
    if (!path) return {};
    const kelvane::GameNode& n = game.node(node);
    const kelvane::Seat own = n.seat;
    const kelvane::Seat other = other_seat(own);
    const std::size_t hands = game.hand_count(own);
    const std::size_t actions = n.actions.size();

    const std::vector<float> own_reach =
        path_reach(game, *solution->solver, *path, own, std::vector<float>(hands, 1.0f));
    const std::vector<float> other_reach =
        path_reach(game, *solution->solver, *path, other, clean_weights(game.root_weights(other)));
    const auto values = node_and_child_values(*solution, node, own, other_reach);
    if (!values) return {};
    const std::vector<double> mass = unblocked_mass(game, own, other_reach);
    const double half = half_pot(game, node);
    const double total_matchups = game.cards().total_matchups;

    HandCombos answer;
    const std::span<const Pocket> pockets = game.hands(own);
    const std::span<const float> weights = game.root_weights(own);
    for (std::size_t h = 0; h < hands; ++h) {
        if (clean_weight(weights[h]) == 0.0f) continue;
        HandCombo combo;
        combo.c1 = card_text(pockets[h].first);
        combo.c2 = card_text(pockets[h].second);
        combo.weight = reach_weight(own_reach[h], weights[h]);
        combo.ev = chip_value(values->node[h], mass[h], half, total_matchups);
        for (std::size_t a = 0; a < actions; ++a)
            combo.action_evs.push_back(chip_value(values->children[a * hands + h], mass[h], half, total_matchups));
        combo.action_probs = probability_row(*strategy, h, hands, actions);
        combo.buckets = classify_hand(game.cards(), n.turn_card, n.river_card, pockets[h]);
        answer.combos.push_back(std::move(combo));
    }
    answer.valid = true;
    return answer;
}

HandCombos seat_hand_combos(const SolveSession& session, std::uint64_t node, kelvane::Seat seat) {
    const std::optional<SolutionView> solution = view(session);
    if (!solution || seat > kelvane::kSeatIp || node >= solution->game->node_count()) return {};
    const Game& game = *solution->game;
    const kelvane::GameNode& n = game.node(node);
    const kelvane::CardMask dead =
        kelvane::board_mask(game.cards().board) | kelvane::card_bit(n.turn_card) | kelvane::card_bit(n.river_card);
    const std::span<const Pocket> pockets = game.hands(seat);
    const std::span<const float> weights = game.root_weights(seat);

    HandCombos answer;
    for (std::size_t h = 0; h < pockets.size() && h < weights.size(); ++h) {
        const float weight = clean_weight(weights[h]);
        if (weight == 0.0f || (kelvane::pocket_mask(pockets[h]) & dead)) continue;
        HandCombo combo;
        combo.c1 = card_text(pockets[h].first);
        combo.c2 = card_text(pockets[h].second);
        combo.weight = weight;
        answer.combos.push_back(std::move(combo));
    }
    answer.valid = true;
    return answer;
}

PocketActionEvs pocket_action_evs(const SolveSession& session, std::uint64_t node, kelvane::Seat seat,
                                  std::string_view c1, std::string_view c2) {
    const std::optional<SolutionView> solution = view(session);
    if (!solution || !decision_strategy(*solution, node)) return {};
    const Game& game = *solution->game;
    const kelvane::GameNode& n = game.node(node);
    if (n.seat != seat || c1.size() < kCardTextLength || c2.size() < kCardTextLength) return {};
    const kelvane::Card first = kelvane::parse_card(c1.substr(0, kCardTextLength));
    const kelvane::Card second = kelvane::parse_card(c2.substr(0, kCardTextLength));
    if (first == second) return {};
    const kelvane::CardMask cards = kelvane::card_bit(first) | kelvane::card_bit(second);
    const std::span<const Pocket> pockets = game.hands(seat);
    std::size_t hand = 0;
    while (hand < pockets.size() && kelvane::pocket_mask(pockets[hand]) != cards) ++hand;
    if (hand == pockets.size()) return {};
    const std::optional<NodePath> path = path_to(game, node);
    if (!path) return {};

    const kelvane::Seat other = other_seat(seat);
    const std::vector<float> other_reach =
        path_reach(game, *solution->solver, *path, other, clean_weights(game.root_weights(other)), cards);
    const double mass = unblocked_mass(game, seat, other_reach)[hand];
    const double half = half_pot(game, node);
    const double total_matchups = game.cards().total_matchups;
    PocketActionEvs answer;
    for (std::size_t a = 0; a < n.actions.size(); ++a) {
        const std::vector<float> values = solution->solver->node_values_with_reach(game, n.children[a], seat, other_reach);
        if (values.size() != pockets.size()) return {};
        answer.evs.push_back(chip_value(values[hand], mass, half, total_matchups));
    }
    answer.valid = true;
    return answer;
}

}  // namespace kelvane_app
