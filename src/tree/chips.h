#pragma once
// Rounding of computed sizes to whole chips, the same everywhere in the tree.

#include <cmath>
#include <cstdint>

namespace kelvane {

// A chip sum formed in 64 bits, taken as 32 bits: the sums themselves never overflow, and spots
// whose chips do not fit are refused before a tree is built.
inline std::int32_t chip_sum(std::int64_t value) { return static_cast<std::int32_t>(value); }

// Nearest integer with halves away from zero, then taken as 32 bits.
inline std::int32_t round_chips(double value) {
    return static_cast<std::int32_t>(std::llround(value));
}

}  // namespace kelvane
