// Sixteen-bit packing of node matrices.

#include "solver/state_packing.h"

#include <algorithm>
#include <cmath>

namespace kelvane {

namespace {

constexpr float kPackedMax = 32767.0f;
constexpr float kNegligibleMagnitude = 1e-9f;

}  // namespace

void pack_matrix(std::vector<float>& values, std::vector<std::int16_t>& packed, float& scale) {
    scale = 1.0f;
    if (values.empty()) {
        packed.clear();
        return;
    }
    float largest = 0.0f;
    for (const float v : values) largest = std::max(largest, std::fabs(v));
    packed.resize(values.size());
    if (largest <= kNegligibleMagnitude) {
        std::fill(packed.begin(), packed.end(), std::int16_t{0});
    } else {
        scale = largest;
        for (std::size_t i = 0; i < values.size(); ++i) {
            const float unit = std::clamp(values[i] / largest, -1.0f, 1.0f);
            packed[i] = static_cast<std::int16_t>(std::round(kPackedMax * unit));
        }
    }
    values.clear();
}

void unpack_matrix(std::vector<float>& values, const std::vector<std::int16_t>& packed, float scale,
                   std::size_t count) {
    if (!values.empty()) return;
    values.assign(count, 0.0f);
    if (packed.empty() || !(scale > 0.0f) || count == 0 || packed.size() < count) return;
    for (std::size_t i = 0; i < count; ++i) values[i] = (static_cast<float>(packed[i]) / kPackedMax) * scale;
}

void pack_regrets(NodeState& state) { pack_matrix(state.regrets, state.regrets_packed, state.regrets_scale); }

void pack_strategy_sum(NodeState& state) {
    pack_matrix(state.strategy_sum, state.strategy_sum_packed, state.strategy_sum_scale);
}

std::vector<float>& unpacked_regrets(NodeState& state) {
    unpack_matrix(state.regrets, state.regrets_packed, state.regrets_scale, state.num_actions * state.num_hands);
    return state.regrets;
}

std::vector<float>& unpacked_strategy_sum(NodeState& state) {
    unpack_matrix(state.strategy_sum, state.strategy_sum_packed, state.strategy_sum_scale,
                  state.num_actions * state.num_hands);
    return state.strategy_sum;
}

}  // namespace kelvane
