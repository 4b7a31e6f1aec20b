// Node locks: a class label locks all its combos alike; what the locked action leaves is split
// evenly over the node's other actions.

#include "session/node_lock_setup.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <unordered_map>

namespace kelvane_app {
namespace {

constexpr float kUnlocked = -1.0f;

struct ClassLock {
    std::uint64_t action_index = 0;
    float probability = 0.0f;
};

// A node with one action leaves nothing to choose: the hand plays it always.
float locked_probability(const ClassLock& lock, std::size_t action, std::size_t actions) {
    if (actions == 1) return 1.0f;
    if (action == lock.action_index) return lock.probability;
    return (1.0f - lock.probability) / static_cast<float>(actions - 1);
}

using ClassLocks = std::unordered_map<std::string, ClassLock>;

// The later of two entries for one node and class wins.
std::unordered_map<std::uint64_t, ClassLocks> group_by_node(const kelvane::Game& game,
                                                             const std::vector<NodeLockEntry>& locks) {
    std::unordered_map<std::uint64_t, ClassLocks> grouped;
    for (const NodeLockEntry& entry : locks) {
        if (entry.hand.empty() || entry.node_index >= game.node_count()) continue;
        grouped[entry.node_index][entry.hand] = {entry.action_index, std::clamp(entry.action_prob, 0.0f, 1.0f)};
    }
    return grouped;
}

void lock_node(kelvane::Game& game, std::uint64_t node_index, ClassLocks& classes) {
    const kelvane::GameNode& node = game.node(node_index);
    if (node.kind != kelvane::kNodeDecision || node.actions.empty()) return;
    const std::size_t actions = node.actions.size();
    std::erase_if(classes, [&](const auto& entry) { return entry.second.action_index >= actions; });
    if (classes.empty()) return;
    const auto hands = game.hands(node.seat);
    if (hands.empty()) return;

    std::vector<float> matrix(actions * hands.size(), kUnlocked);
    bool any_locked = false;
    for (std::size_t hand = 0; hand < hands.size(); ++hand) {
        const auto found = classes.find(kelvane::hand_class_label(hands[hand]));
        if (found == classes.end()) continue;
        const ClassLock& lock = found->second;
        for (std::size_t action = 0; action < actions; ++action)
            matrix[action * hands.size() + hand] = locked_probability(lock, action, actions);
        any_locked = true;
    }
    if (any_locked) game.set_lock(node_index, std::move(matrix));
}

}  // namespace

void apply_node_locks(kelvane::Game& game, const std::vector<NodeLockEntry>& locks) {
    auto grouped = group_by_node(game, locks);
    for (auto& [node_index, classes] : grouped) lock_node(game, node_index, classes);
}

}  // namespace kelvane_app
