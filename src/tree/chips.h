#pragma once
// Rounding of computed sizes to whole chips, the same everywhere in the tree.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace kelvane {

// A chip sum formed in 64 bits, taken as 32 bits: the sums themselves never overflow, and spots
// whose chips do not fit are refused before a tree is built.
inline std::int32_t chip_sum(std::int64_t value) { return static_cast<std::int32_t>(value); }

// Nearest integer with halves away from zero, held to the 32-bit range first: a size such as a huge
// percent of the pot is the most chips there are, for the caller's clamp to bring down to the stack.
// NaN has no amount and gives 0, which the caller's clamp lifts to its minimum.
inline std::int32_t round_chips(double value) {
    if (std::isnan(value)) return 0;
    constexpr double kLowest = std::numeric_limits<std::int32_t>::lowest();
    constexpr double kHighest = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(std::llround(std::clamp(value, kLowest, kHighest)));
}

}  // namespace kelvane
