#pragma once
// Sixteen-bit storage of a float matrix, scaled by its largest magnitude.

#include <cstdint>
#include <span>

namespace kelvane {

// Quantises values into packed (same length) and returns the scale that decodes them.
float pack_matrix(std::span<const float> values, std::span<std::int16_t> packed);

// Decodes packed into values (same length).
void unpack_matrix(std::span<const std::int16_t> packed, float scale, std::span<float> values);

}  // namespace kelvane
