// The queries' combined walk of a node and its children gives, bit for bit, what separate walks give.

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "solved_spots.h"

namespace kelvane_app {
namespace {

using namespace testing;
using kelvane::Game;
using kelvane::NodeAndChildValues;

std::vector<float> child_row(const NodeAndChildValues& values, std::size_t action, std::size_t hands) {
    const auto begin = values.children.begin() + static_cast<std::ptrdiff_t>(action * hands);
    return {begin, begin + static_cast<std::ptrdiff_t>(hands)};
}

// Every decision and chance node, for both seats, against the opponent's root weights and against his path reach.
void expect_same_as_separate_walks(const SolutionView& solution) {
    const Game& game = *solution.game;
    kelvane::DiscountedCfr& solver = *solution.solver;
    std::size_t compared = 0;
    for (std::uint64_t node = 0; node < game.node_count(); ++node) {
        if (game.node(node).actions.empty()) continue;
        const std::optional<NodePath> path = path_to(game, node);
        ASSERT_TRUE(path.has_value());
        for (const kelvane::Seat seat : {kelvane::kSeatOop, kelvane::kSeatIp}) {
            const kelvane::Seat other = other_seat(seat);
            const std::vector<float> root(game.root_weights(other).begin(), game.root_weights(other).end());
            const std::vector<float> reach =
                path_reach(game, solver, *path, other, clean_weights(game.root_weights(other)));
            for (const std::vector<float>& opponent : {root, reach}) {
                const NodeAndChildValues values = solver.node_and_child_values_with_reach(game, node, seat, opponent);
                const std::size_t hands = game.hand_count(seat);
                ASSERT_EQ(values.node, solver.node_values_with_reach(game, node, seat, opponent)) << node;
                const kelvane::GameNode& n = game.node(node);
                ASSERT_EQ(values.children.size(), n.actions.size() * hands);
                for (std::size_t a = 0; a < n.actions.size(); ++a)
                    ASSERT_EQ(child_row(values, a, hands),
                              solver.node_values_with_reach(game, n.children[a], seat, opponent))
                        << node << " action " << a;
                ++compared;
            }
        }
    }
    EXPECT_GT(compared, 20u);
}

TEST(NodeAndChildValues, MatchSeparateWalksOnOneThread) { expect_same_as_separate_walks(solution_of(turn_spot)); }

TEST(NodeAndChildValues, MatchSeparateWalksWithThePool) {
    SolveConfig config = turn_spot();
    config.thread_count = 2;
    config.max_iterations = 30;
    SolveSession session;
    ASSERT_TRUE(run_to_end(session, config).success);
    expect_same_as_separate_walks(session.solution());
}

TEST(NodeAndChildValues, EmptyOutsideTheTree) {
    const SolutionView solution = solution_of(turn_spot);
    const std::vector<float> reach(solution.game->hand_count(kelvane::kSeatIp), 1.0f);
    const NodeAndChildValues values = solution.solver->node_and_child_values_with_reach(
        *solution.game, solution.game->node_count(), kelvane::kSeatOop, reach);
    EXPECT_TRUE(values.node.empty());
    EXPECT_TRUE(values.children.empty());
}

}  // namespace
}  // namespace kelvane_app
