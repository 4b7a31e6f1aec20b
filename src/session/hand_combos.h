#pragma once
// Combo-level detail of a node: reach, strategy and EVs of each hand, and of one pocket.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "session/solve_session.h"
#include "solver/game.h"

namespace kelvane_app {

struct HandCombo {
    std::string c1;  // the hand's first card first, in card text
    std::string c2;
    double weight = 0.0;  // root weight times the own reach along the path
    double ev = 0.0;      // chips
    std::vector<float> action_probs;
    std::vector<double> action_evs;  // chips
    std::vector<std::string> buckets;
};

struct HandCombos {
    std::vector<HandCombo> combos;
    bool valid = false;
};

struct PocketActionEvs {
    std::vector<double> evs;  // chips, one for each action
    bool valid = false;
};

// The acting seat's weighted hands, against the opponent's reach along the path.
HandCombos hand_combos(const SolveSession& session, std::uint64_t node);

// A seat's live combos with their root weights (c1, c2, weight only); any node kind.
HandCombos seat_hand_combos(const SolveSession& session, std::uint64_t node, kelvane::Seat seat);

// Values conditional on the pocket: the opposing hands that hold its cards are cleared first.
// Card texts are read by their first two characters; a bad rank or suit throws.
PocketActionEvs pocket_action_evs(const SolveSession& session, std::uint64_t node, kelvane::Seat seat,
                                  std::string_view c1, std::string_view c2);

}  // namespace kelvane_app
