// Bucket sums of a range: names from the hand categories, weights from the root range.

#include "session/bucket_table.h"

#include <cmath>

#include "session/hand_categories.h"
#include "session/solution_view.h"

namespace kelvane_app {
namespace {

constexpr std::size_t kMinBoardCards = 3;
constexpr std::size_t kMaxBoardCards = 5;

const std::size_t kAirRow = static_cast<std::size_t>(bucket_order("air"));

struct RowSums {
    double combos = 0.0;
    std::vector<double> actions;
};

std::vector<float> normalised(const std::vector<double>& sums) {
    std::vector<float> probs(sums.size());
    double total = 0.0;
    for (std::size_t a = 0; a < sums.size(); ++a) {
        probs[a] = static_cast<float>(sums[a]);
        total += clean_weight(probs[a]);
    }
    if (total > 0.0) {
        const double scale = 1.0 / total;
        for (float& p : probs) p = static_cast<float>(p * scale);
    }
    return probs;
}

}  // namespace

std::vector<HandBucketRow> bucket_table(std::span<const kelvane::Card> board, std::span<const kelvane::Pocket> pockets,
                                        std::span<const float> weights, std::span<const float> strategy,
                                        std::size_t actions) {
    const std::size_t hands = pockets.size();
    std::vector<RowSums> sums(kBucketRowCount, RowSums{0.0, std::vector<double>(actions, 0.0)});
    for (std::size_t h = 0; h < hands && h < weights.size(); ++h) {
        const float w = weights[h];
        if (!std::isfinite(w) || !(w > 0.0f)) continue;
        std::vector<std::size_t> credited;
        for (const std::string& name : classify_on_board(board, pockets[h])) {
            const int row = bucket_order(name);
            if (row != kUnorderedBucket) credited.push_back(static_cast<std::size_t>(row));
        }
        if (credited.empty()) credited.push_back(kAirRow);
        for (const std::size_t row : credited) {
            sums[row].combos += w;
            for (std::size_t a = 0; a < actions; ++a) {
                const std::size_t at = a * hands + h;
                const float p = at < strategy.size() ? strategy[at] : 0.0f;
                if (std::isfinite(p) && p > 0.0f) sums[row].actions[a] += static_cast<double>(p) * w;
            }
        }
    }

    std::vector<HandBucketRow> rows;
    for (std::size_t row = 0; row < kBucketRowCount; ++row) {
        if (!(sums[row].combos > 0.0)) continue;
        rows.push_back({std::string(kBucketRowNames[row]), sums[row].combos, normalised(sums[row].actions)});
    }
    return rows;
}

HandBuckets hand_buckets(const SolveSession& session, std::uint64_t node) {
    const std::optional<SolutionView> solution = view(session);
    if (!solution || !decision_node(*solution->game, node)) return {};
    const kelvane::Game& game = *solution->game;
    const kelvane::GameNode& n = game.node(node);
    const std::size_t actions = n.actions.size();
    const std::vector<float> strategy = solution->solver->average_hand_strategy(node);
    if (strategy.size() != actions * game.hand_count(n.seat)) return {};
    const std::vector<kelvane::Card> board = node_board(game.cards(), n.turn_card, n.river_card);
    if (board.size() < kMinBoardCards || board.size() > kMaxBoardCards) return {};
    return {bucket_table(board, game.hands(n.seat), game.root_weights(n.seat), strategy, actions), true};
}

}  // namespace kelvane_app
