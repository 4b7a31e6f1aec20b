#pragma once
// Common ground of the solution queries: live objects, node guard, path reach, masses and chip values.

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "poker/cards.h"
#include "session/solve_pipeline.h"
#include "session/solve_session.h"
#include "solver/discounted_cfr.h"
#include "solver/game.h"

namespace kelvane_app {

// Copies of the session's pointers, so a new start or a clear can't pull them from under a query.
using SolutionView = SolvedGame;

// Nothing while a run is going, after a failure or a cancel, or after a clear.
std::optional<SolutionView> view(const SolveSession& session);

constexpr kelvane::Seat other_seat(kelvane::Seat seat) {
    return seat == kelvane::kSeatOop ? kelvane::kSeatIp : kelvane::kSeatOop;
}

// A decision node with actions, a child for each, and a non-empty hand list of the seat to act.
bool decision_node(const kelvane::Game& game, std::uint64_t node);

// `action` indexes the previous step's action list; the root's step is (0, 0).
struct NodeStep {
    std::uint64_t node = 0;
    std::uint64_t action = 0;
};
using NodePath = std::vector<NodeStep>;

// Root first; a node reachable by two routes takes the first in index order. Nothing if unreachable.
std::optional<NodePath> path_to(const kelvane::Game& game, std::uint64_t node);

// `start` with the hands blocked by the queried node's board (and `extra_dead`) zeroed, times the
// seat's own average action probabilities along the path.
std::vector<float> path_reach(const kelvane::Game& game, kelvane::DiscountedCfr& solver, const NodePath& path,
                              kelvane::Seat seat, std::vector<float> start, kelvane::CardMask extra_dead = 0);

// A weight counts where it is finite and above 0, and as 0 otherwise.
float clean_weight(float weight);
std::vector<float> clean_weights(std::span<const float> weights);

// For each hand of `seat`, the clean opposing reach that shares no card with it.
std::vector<double> unblocked_mass(const kelvane::Game& game, kelvane::Seat seat, std::span<const float> other_reach);

// A traversal value as the chips the hand wins back out of the pot against `mass`.
double chip_value(double value, double mass, double half_pot, double total_matchups);

// The pot without uncalled bets, halved: the point every traversal value is measured from.
double half_pot(const kelvane::Game& game, std::uint64_t node);

// Display names and type texts of a node's actions, sized against the node's pot.
std::vector<std::string> node_action_names(const kelvane::Game& game, std::uint64_t node);
std::vector<std::string> node_action_types(const kelvane::Game& game, std::uint64_t node);

}  // namespace kelvane_app
