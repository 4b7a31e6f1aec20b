// Depth-first renumbering of a built tree, in one pass over its nodes.

#include "tree/depth_first_order.h"

#include <cstdint>
#include <utility>

namespace kelvane {

std::vector<PlanNode> renumber_depth_first(std::vector<PlanNode>&& nodes) {
    if (nodes.empty()) return std::move(nodes);

    // Pre-order: a node is numbered before its children, the first child's subtree before the second.
    std::vector<std::uint64_t> new_index(nodes.size());
    std::vector<std::uint64_t> pending{0};
    std::uint64_t next = 0;
    while (!pending.empty()) {
        const std::uint64_t old = pending.back();
        pending.pop_back();
        new_index[old] = next++;
        const std::vector<std::uint64_t>& children = nodes[old].children;
        for (auto child = children.rbegin(); child != children.rend(); ++child) pending.push_back(*child);
    }

    std::vector<PlanNode> renumbered(nodes.size());
    for (std::uint64_t old = 0; old < nodes.size(); ++old) {
        PlanNode& node = nodes[old];
        for (std::uint64_t& child : node.children) child = new_index[child];
        renumbered[new_index[old]] = std::move(node);
    }
    return renumbered;
}

}  // namespace kelvane
