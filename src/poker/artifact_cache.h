#pragma once
// Process-wide table of deal artifacts by cache key, holding weak references only.

#include <array>
#include <cstdint>
#include <memory>

#include "poker/card_context.h"

namespace kelvane {

using SharedArtifacts = std::shared_ptr<const CardContext::CachedArtifacts>;

// FNV-1a of the board slots and both weight tables; flop order counts.
std::uint64_t deal_cache_key(const BoardCards& board, const std::array<RangeWeights, 2>& ranges);

// The artifacts of a context still alive under this key, or null; an expired entry is erased.
SharedArtifacts find_artifacts(std::uint64_t key);

// Replaces whatever stood under the key.
void remember_artifacts(std::uint64_t key, const SharedArtifacts& artifacts);

// Whether a live entry exists under the key.
bool artifact_cache_holds(std::uint64_t key);

}  // namespace kelvane
