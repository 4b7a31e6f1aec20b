// Node matrices in one store, packed or not.

#include "solver/state_store.h"

#include <algorithm>

#include "solver/scratch_stack.h"
#include "solver/state_packing.h"

namespace kelvane {

void allocate_store(StateStore& store, std::uint64_t entries, bool packed) {
    store.is_packed = packed;
    store.values.assign_zeros(packed ? 0 : entries);
    store.packed.assign_zeros(packed ? entries : 0);
}

std::uint64_t store_bytes(const StateStore& store) {
    return store.values.size() * sizeof(float) + store.packed.size() * sizeof(std::int16_t);
}

std::uint64_t store_bytes(std::uint64_t entries, bool packed) {
    return entries * (packed ? sizeof(std::int16_t) : sizeof(float));
}

void copy_store_rows(const StateStore& store, std::uint64_t offset, float scale, std::span<float> rows) {
    if (store.is_packed) {
        unpack_matrix(store.packed.span().subspan(offset, rows.size()), scale, rows);
    } else {
        const std::span<const float> stored = store.values.span().subspan(offset, rows.size());
        std::copy(stored.begin(), stored.end(), rows.begin());
    }
}

std::span<float> store_rows(StateStore& store, std::uint64_t offset, std::uint64_t count, float scale,
                            std::vector<float>& buffer) {
    if (!store.is_packed) return store.values.span().subspan(offset, count);
    const std::span<float> rows = grow_buffer(buffer, count);
    copy_store_rows(store, offset, scale, rows);
    return rows;
}

float keep_store_rows(StateStore& store, std::uint64_t offset, std::span<const float> rows, float scale) {
    if (!store.is_packed) return scale;
    return pack_matrix(rows, store.packed.span().subspan(offset, rows.size()));
}

}  // namespace kelvane
