#pragma once
// Where a decision node's regrets and cumulative strategy live in the solver's stores: action-major
// matrices of actions × hands, at one offset in each store.

#include <cstdint>

namespace kelvane {

struct NodeState {
    std::uint64_t offset = 0;  // first entry of the node's matrices
    std::uint32_t num_hands = 0;  // the acting seat's whole hand list
    std::uint16_t num_actions = 0;
    std::uint8_t seat = 0;
    std::uint8_t active = 0;
    float regrets_scale = 1.0f;  // 16-bit stores only: the largest magnitude at the last packing
    float strategy_sum_scale = 1.0f;

    std::uint64_t entries() const { return std::uint64_t{num_actions} * num_hands; }
};
static_assert(sizeof(NodeState) == 24);

}  // namespace kelvane
