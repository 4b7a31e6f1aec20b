// Chance node sums with isomorphic replay.

#include "solver/chance_sum.h"

#include <algorithm>

#include "solver/row_kernels.h"

namespace kelvane {

void sum_chance_children(const Game& game, std::uint64_t node, std::uint8_t seat, ScratchFrame& frame,
                         std::span<const float> child_values, std::size_t children, std::span<float> out) {
    const std::size_t hands = out.size();
    std::span<float> sum = grow_buffer(frame.sum, hands);
    std::fill(sum.begin(), sum.end(), 0.0f);
    add_rows(sum.data(), child_values.data(), children, hands);

    const std::span<const std::uint8_t> refs = game.chance_refs(node);
    for (std::size_t i = 0; i < refs.size(); ++i) {
        const std::size_t j = refs[i];
        if (j >= children) continue;
        const float* row = child_values.data() + j * hands;
        const SwapList& swaps = game.chance_swaps(node, i)[seat];
        if (swaps.empty()) {
            add_row(sum.data(), row, hands);
            continue;
        }
        std::span<float> swapped = grow_buffer(frame.swap_row, hands);
        std::copy(row, row + hands, swapped.begin());
        for (const auto& pair : swaps) {
            if (pair[0] < hands && pair[1] < hands) std::swap(swapped[pair[0]], swapped[pair[1]]);
        }
        add_row(sum.data(), swapped.data(), hands);
    }
    std::copy(sum.begin(), sum.end(), out.begin());
}

}  // namespace kelvane
