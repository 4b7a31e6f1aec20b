#pragma once
// A decision node's strategy by 169-class hand, each class weighted by the root weights of its combos.

#include <cstdint>
#include <string>
#include <vector>

#include "session/solve_session.h"

namespace kelvane_app {

struct HandStrategy {
    std::vector<std::string> labels;          // the 169 classes, in grid order
    std::vector<float> weights;               // summed root weight of each class
    std::vector<std::string> dominant_types;  // type text of the most played action; empty without weight
    std::vector<std::string> action_names;
    std::vector<std::string> action_types;
    std::vector<float> action_probs;  // one row of the node's actions for each label
    bool valid = false;
};

HandStrategy hand_strategy(const SolveSession& session, std::uint64_t node);

}  // namespace kelvane_app
