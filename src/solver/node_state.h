#pragma once
// Strategy storage of one decision node: regrets and cumulative strategy, action-major.

#include <cstdint>
#include <vector>

namespace kelvane {

struct NodeState {
    std::uint8_t seat = 0;
    std::uint8_t active = 0;
    std::uint64_t num_actions = 0;
    std::uint64_t num_hands = 0;  // the acting seat's whole hand list
    std::vector<float> regrets;
    std::vector<float> strategy_sum;
    std::vector<std::int16_t> regrets_packed;
    float regrets_scale = 1.0f;
    std::vector<std::int16_t> strategy_sum_packed;
    float strategy_sum_scale = 1.0f;
};

}  // namespace kelvane
