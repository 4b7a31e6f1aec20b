#pragma once
// Sixteen-bit storage of a float matrix, scaled by its largest magnitude.

#include <cstddef>
#include <cstdint>
#include <vector>

#include "solver/node_state.h"

namespace kelvane {

// Quantises values into packed and empties values, keeping its capacity for the next unpack.
void pack_matrix(std::vector<float>& values, std::vector<std::int16_t>& packed, float& scale);

// Refills an empty values vector with count entries, decoded from packed where that is usable.
void unpack_matrix(std::vector<float>& values, const std::vector<std::int16_t>& packed, float scale,
                   std::size_t count);

void pack_regrets(NodeState& state);
void pack_strategy_sum(NodeState& state);
// Both decode only when the float matrix is empty; a decoded matrix is left in place.
std::vector<float>& unpacked_regrets(NodeState& state);
std::vector<float>& unpacked_strategy_sum(NodeState& state);

}  // namespace kelvane
