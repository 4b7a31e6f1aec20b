// Strategy by hand class: weighted means of the combos' action probabilities.

#include "session/hand_strategy.h"

#include <unordered_map>

#include "poker/cards.h"
#include "session/solution_view.h"

namespace kelvane_app {
namespace {

// Weight and per-action probability mass of one hand class, summed over its combos.
struct ClassSums {
    double weight = 0.0;
    std::vector<double> actions;
};

std::unordered_map<std::string, std::size_t> label_positions(const std::vector<std::string>& labels) {
    std::unordered_map<std::string, std::size_t> positions;
    for (std::size_t i = 0; i < labels.size(); ++i) positions.emplace(labels[i], i);
    return positions;
}

}  // namespace

HandStrategy hand_strategy(const SolveSession& session, std::uint64_t node) {
    const std::optional<SolutionView> solution = view(session);
    if (!solution || !decision_node(*solution->game, node)) return {};
    const kelvane::Game& game = *solution->game;
    const kelvane::GameNode& n = game.node(node);
    const std::size_t actions = n.actions.size();
    const std::size_t hands = game.hand_count(n.seat);
    const std::vector<float> strategy = solution->solver->average_hand_strategy(node);
    if (strategy.size() != actions * hands) return {};

    HandStrategy answer;
    answer.labels = kelvane::hand_class_grid();
    answer.action_names = node_action_names(game, node);
    answer.action_types = node_action_types(game, node);
    const auto positions = label_positions(answer.labels);
    std::vector<ClassSums> sums(answer.labels.size(), ClassSums{0.0, std::vector<double>(actions, 0.0)});

    const std::span<const kelvane::Pocket> pockets = game.hands(n.seat);
    const std::span<const float> weights = game.root_weights(n.seat);
    for (std::size_t h = 0; h < hands; ++h) {
        if (!(weights[h] > 0.0f)) continue;
        const auto position = positions.find(kelvane::hand_class_label(pockets[h]));
        if (position == positions.end()) continue;
        ClassSums& entry = sums[position->second];
        entry.weight += weights[h];
        for (std::size_t a = 0; a < actions; ++a)
            entry.actions[a] += static_cast<double>(strategy[a * hands + h]) * weights[h];
    }

    answer.weights.reserve(sums.size());
    answer.dominant_types.reserve(sums.size());
    answer.action_probs.reserve(sums.size() * actions);
    for (const ClassSums& entry : sums) {
        if (!(entry.weight > 0.0)) {
            answer.weights.push_back(0.0f);
            answer.dominant_types.emplace_back();
            answer.action_probs.insert(answer.action_probs.end(), actions, 0.0f);
            continue;
        }
        answer.weights.push_back(static_cast<float>(entry.weight));
        std::size_t dominant = 0;
        for (std::size_t a = 0; a < actions; ++a) {
            const double mean = entry.actions[a] / entry.weight;
            if (mean > entry.actions[dominant] / entry.weight) dominant = a;
            answer.action_probs.push_back(static_cast<float>(mean));
        }
        answer.dominant_types.push_back(answer.action_types[dominant]);
    }
    answer.valid = true;
    return answer;
}

}  // namespace kelvane_app
