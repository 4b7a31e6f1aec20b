#include "poker/artifact_cache.h"

#include <bit>
#include <mutex>
#include <unordered_map>

namespace kelvane {
namespace {

constexpr std::uint64_t kFnvOffset = 0xCBF29CE484222325ull;
constexpr std::uint64_t kFnvPrime = 0x100000001B3ull;
constexpr std::uint64_t kGoldenGamma = 0x9E3779B97F4A7C15ull;
constexpr std::uint64_t kRangeSeed = 1326;
constexpr std::uint64_t kKeyVersion = 1;

std::uint64_t fnv(std::uint64_t value) {
    std::uint64_t hash = kFnvOffset;
    for (int byte = 0; byte < 8; ++byte) {
        hash ^= (value >> (8 * byte)) & 0xFF;
        hash *= kFnvPrime;
    }
    return hash;
}

std::uint64_t combine(std::uint64_t seed, std::uint64_t hash) {
    return seed ^ (hash + (seed << 6) + (seed >> 2) + kGoldenGamma);
}

std::uint64_t range_hash(const RangeWeights& weights) {
    std::uint64_t seed = kRangeSeed;
    for (float weight : weights) seed = combine(seed, fnv(std::bit_cast<std::uint32_t>(weight)));
    return seed;
}

struct ArtifactTable {
    std::mutex mutex;
    std::unordered_map<std::uint64_t, std::weak_ptr<const CardContext::CachedArtifacts>> entries;
};

ArtifactTable& table() {
    static ArtifactTable instance;
    return instance;
}

}  // namespace

std::uint64_t deal_cache_key(const BoardCards& board, const std::array<RangeWeights, 2>& ranges) {
    std::uint64_t key = 0;
    for (Card card : {board.flop[0], board.flop[1], board.flop[2], board.turn, board.river}) key = combine(key, fnv(card));
    key = combine(key, fnv(kKeyVersion));
    key = combine(key, fnv(range_hash(ranges[0])));
    return combine(key, fnv(range_hash(ranges[1])));
}

SharedArtifacts find_artifacts(std::uint64_t key) {
    ArtifactTable& cache = table();
    std::lock_guard lock(cache.mutex);
    const auto entry = cache.entries.find(key);
    if (entry == cache.entries.end()) return nullptr;
    SharedArtifacts artifacts = entry->second.lock();
    if (!artifacts) cache.entries.erase(entry);
    return artifacts;
}

void remember_artifacts(std::uint64_t key, const SharedArtifacts& artifacts) {
    ArtifactTable& cache = table();
    std::lock_guard lock(cache.mutex);
    cache.entries[key] = artifacts;
}

bool artifact_cache_holds(std::uint64_t key) {
    ArtifactTable& cache = table();
    std::lock_guard lock(cache.mutex);
    const auto entry = cache.entries.find(key);
    return entry != cache.entries.end() && !entry->second.expired();
}

}  // namespace kelvane
