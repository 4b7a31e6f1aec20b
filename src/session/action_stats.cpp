// Node action statistics: value walks from each child, weighted by the root ranges.

#include "session/action_stats.h"

#include <algorithm>
#include <cmath>

#include "session/showdown_equity.h"
#include "session/solution_view.h"

namespace kelvane_app {
namespace {

using kelvane::Game;

// Own weight of each hand for one action: root weight times the action's probability.
std::vector<double> action_weights(std::span<const float> weights, const std::vector<float>& strategy,
                                   std::size_t action, std::size_t hands) {
    std::vector<double> t(hands, 0.0);
    for (std::size_t h = 0; h < hands; ++h) {
        const float w = weights[h];
        const float p = strategy[action * hands + h];
        if (!(w > 0.0f) || !(p > 0.0f)) continue;
        const double product = static_cast<double>(w) * p;
        t[h] = std::isfinite(product) ? product : 0.0;
    }
    return t;
}

double clamped_equity(double equity) { return std::isfinite(equity) ? std::clamp(equity, 0.0, 1.0) : equity; }

std::vector<float> padded_frequencies(std::vector<float> strategy, std::size_t actions) {
    strategy.resize(actions, 0.0f);
    return strategy;
}

}  // namespace

NodeActionStats action_stats(const SolveSession& session, std::uint64_t node) {
    const std::optional<SolutionView> solution = view(session);
    if (!solution || !decision_node(*solution->game, node)) return {};
    const Game& game = *solution->game;
    kelvane::DiscountedCfr& solver = *solution->solver;
    const kelvane::GameNode& n = game.node(node);
    const kelvane::Seat seat = n.seat;
    const kelvane::Seat opponent = other_seat(seat);
    const std::size_t actions = n.actions.size();
    const std::size_t hands = game.hand_count(seat);
    const std::vector<float> strategy = solver.average_hand_strategy(node);
    if (strategy.size() != actions * hands) return {};
    const std::span<const float> other = game.root_weights(opponent);
    if (other.size() != game.hand_count(opponent)) return {};

    // Against the opponent's root weights, not his reach along the path.
    const std::vector<float> values = solver.node_and_child_values_with_reach(game, node, seat, other).children;
    if (values.size() != actions * hands) return {};

    const std::span<const float> weights = game.root_weights(seat);
    const std::vector<double> mass = unblocked_mass(game, seat, other);
    const double total_matchups = game.cards().total_matchups;
    const double half = half_pot(game, node);
    const bool river_known = n.turn_card != kelvane::kNoCard && n.river_card != kelvane::kNoCard;
    std::mt19937 generator = equity_generator(node);

    NodeActionStats stats;
    stats.names = node_action_names(game, node);
    stats.types = node_action_types(game, node);
    stats.frequencies = padded_frequencies(solver.average_strategy(node), actions);
    for (std::size_t a = 0; a < actions; ++a) {
        double combos = 0.0, sum = 0.0;
        for (std::size_t h = 0; h < hands; ++h) {
            const float p = strategy[a * hands + h];
            if (!(weights[h] > 0.0f) || !(p > 0.0f)) continue;
            const double t = static_cast<double>(weights[h]) * p;
            combos += t;
            double e = values[a * hands + h];
            if (total_matchups > 0.0 && mass[h] > 0.0) e *= total_matchups / mass[h];
            if (std::isfinite(e)) sum += t * e;
        }
        double ev = combos > 0.0 ? sum / combos : 0.0;
        if (std::isfinite(half) && half > 0.0 && std::isfinite(ev)) ev += half;
        stats.combos.push_back(combos);
        stats.evs.push_back(ev);

        const std::vector<double> own = action_weights(weights, strategy, a, hands);
        const double equity = river_known ? exact_river_equity(game, node, seat, own, other)
                                          : sampled_equity(game, node, seat, own, other, generator).equity;
        stats.equities.push_back(clamped_equity(equity));
    }
    stats.valid = true;
    return stats;
}

}  // namespace kelvane_app
