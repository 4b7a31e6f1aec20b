// Sixteen-bit packing of node matrices.

#include "solver/state_packing.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace kelvane {

namespace {

constexpr float kPackedMax = 32767.0f;
constexpr float kNegligibleMagnitude = 1e-9f;
constexpr std::uint32_t kMagnitudeBits = 0x7FFFFFFFu;
constexpr std::uint32_t kInfinityBits = 0x7F800000u;

}  // namespace

float pack_matrix(std::span<const float> values, std::span<std::int16_t> packed) {
    // Magnitudes compare as their bit patterns, which vectorises; NaN counts as nothing.
    std::uint32_t largest_bits = 0;
    for (std::size_t i = 0; i < values.size(); ++i) {
        const std::uint32_t bits = std::bit_cast<std::uint32_t>(values[i]) & kMagnitudeBits;
        const std::uint32_t finite_mask = 0u - static_cast<std::uint32_t>(bits <= kInfinityBits);
        largest_bits = std::max(largest_bits, bits & finite_mask);
    }
    const float largest = std::bit_cast<float>(largest_bits);
    if (largest <= kNegligibleMagnitude) {
        std::fill(packed.begin(), packed.end(), std::int16_t{0});
        return 1.0f;
    }
    // Rounds half away from zero through a truncating conversion, which vectorises.
    const float to_unit = kPackedMax / largest;
    for (std::size_t i = 0; i < values.size(); ++i) {
        const float x = std::min(std::max(values[i] * to_unit, -kPackedMax), kPackedMax);
        packed[i] = static_cast<std::int16_t>(static_cast<std::int32_t>(x + std::copysign(0.5f, x)));
    }
    return largest;
}

void unpack_matrix(std::span<const std::int16_t> packed, float scale, std::span<float> values) {
    if (!(scale > 0.0f)) {
        std::fill(values.begin(), values.end(), 0.0f);
        return;
    }
    const float step = scale / kPackedMax;
    for (std::size_t i = 0; i < values.size(); ++i) values[i] = static_cast<float>(packed[i]) * step;
}

}  // namespace kelvane
