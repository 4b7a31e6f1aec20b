#pragma once
// Rounding of computed sizes to whole chips, the same everywhere in the tree.

#include <cmath>
#include <cstdint>

namespace kelvane {

// Nearest integer with halves away from zero, then taken as 32 bits.
inline std::int32_t round_chips(double value) {
    return static_cast<std::int32_t>(std::llround(value));
}

}  // namespace kelvane
