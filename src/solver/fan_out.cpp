#include "solver/fan_out.h"

#include <utility>

namespace kelvane {

namespace {

// In node-hand units, a few nanoseconds of walk each: a fan-out that wakes a thread costs some
// microseconds, so below this the children run faster in line.
constexpr std::uint64_t kMinFanOutWork = std::uint64_t{1} << 16;

}  // namespace

std::vector<std::uint64_t> subtree_sizes(const Game& game) {
    const std::uint64_t count = game.node_count();
    std::vector<std::uint64_t> sizes(count, 0);  // 0 until known
    // Depth-first without recursion: a node is summed once all its children are known.
    std::vector<std::pair<std::uint64_t, bool>> pending;
    for (std::uint64_t root = 0; root < count; ++root) {
        if (sizes[root] != 0) continue;
        pending.emplace_back(root, false);
        while (!pending.empty()) {
            const auto [node, expanded] = pending.back();
            pending.pop_back();
            if (sizes[node] != 0) continue;
            const std::span<const std::uint64_t> children = game.node(node).children;
            if (expanded) {
                std::uint64_t total = 1;
                for (const std::uint64_t child : children) total += child < count ? sizes[child] : 0;
                sizes[node] = total;
                continue;
            }
            pending.emplace_back(node, true);
            for (const std::uint64_t child : children)
                if (child < count && sizes[child] == 0) pending.emplace_back(child, false);
        }
    }
    return sizes;
}

bool worth_fanning_out(std::uint64_t subtree_nodes, std::uint64_t hands) {
    return subtree_nodes * hands >= kMinFanOutWork;
}

bool children_distinct(std::span<const std::uint64_t> children) {
    for (std::size_t a = 0; a < children.size(); ++a)
        for (std::size_t b = a + 1; b < children.size(); ++b)
            if (children[a] == children[b]) return false;
    return true;
}

}  // namespace kelvane
