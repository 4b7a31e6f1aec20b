// Overlay of a node lock onto a regret-matched strategy.

#include "solver/node_locks.h"

#include <algorithm>

namespace kelvane {

bool overlay_lock(const std::vector<float>* lock, std::span<float> strategy) {
    if (lock == nullptr || lock->empty()) return false;
    const std::size_t count = std::min(lock->size(), strategy.size());
    for (std::size_t i = 0; i < count; ++i) {
        if (lock_entry_set((*lock)[i])) strategy[i] = (*lock)[i];
    }
    return true;
}

}  // namespace kelvane
