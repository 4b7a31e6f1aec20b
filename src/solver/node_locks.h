#pragma once
// Node locks as the walks apply them: a clear sign bit marks a locked probability.

#include <cmath>
#include <span>
#include <vector>

namespace kelvane {

// The sign bit decides, not a comparison: -0.0 is free and a NaN with a clear sign bit is locked.
inline bool lock_entry_set(float entry) { return !std::signbit(entry); }

// Overwrites the strategy entries whose lock entry is set; nothing renormalises. Returns whether a
// non-empty lock exists, which freezes the regrets of every hand of the node.
bool overlay_lock(const std::vector<float>* lock, std::span<float> strategy);

}  // namespace kelvane
