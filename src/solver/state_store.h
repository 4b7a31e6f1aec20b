#pragma once
// One matrix kind (regrets, or strategy sums) of every decision node, in one allocation: 32-bit
// floats, or 16-bit values that each node decodes with a scale of its own.

#include <cstdint>
#include <span>
#include <vector>

#include "solver/zero_array.h"

namespace kelvane {

struct StateStore {
    ZeroArray<float> values;         // float stores
    ZeroArray<std::int16_t> packed;  // 16-bit stores
    bool is_packed = false;
};

// Zeroed storage for `entries` values; the other representation holds nothing.
void allocate_store(StateStore& store, std::uint64_t entries, bool packed);
std::uint64_t store_bytes(const StateStore& store);
// Bytes a store of `entries` values takes.
std::uint64_t store_bytes(std::uint64_t entries, bool packed);

// Copies a node's rows out as floats, decoded where the store is packed.
void copy_store_rows(const StateStore& store, std::uint64_t offset, float scale, std::span<float> rows);
// A node's rows as floats: the store's own, or decoded into `buffer` when the store is packed.
std::span<float> store_rows(StateStore& store, std::uint64_t offset, std::uint64_t count, float scale,
                            std::vector<float>& buffer);
// Writes rows back into a packed store and returns their new scale; a float store already holds them.
float keep_store_rows(StateStore& store, std::uint64_t offset, std::span<const float> rows, float scale);

}  // namespace kelvane
