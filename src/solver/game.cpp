#include "solver/game.h"

#include <algorithm>
#include <utility>

#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace kelvane {
namespace {

constexpr float kTurnChanceFactor = 45.0f;
constexpr float kRiverChanceFactor = 44.0f;

GameNode to_game_node(const PlanNode& plan_node, std::span<const Action> actions,
                      std::span<const std::uint64_t> children) {
    return {plan_node.kind,     plan_node.seat,          plan_node.street,      plan_node.all_in_runout,
            plan_node.committed, actions,                children,              plan_node.pot,
            plan_node.invested, plan_node.terminal_kind, plan_node.folded_seat, plan_node.turn_card,
            plan_node.river_card};
}

bool is_card(Card card) { return card < kCardCount; }

}  // namespace

// The plan lives only while its nodes are copied into the flat lists.
Game::Game(const GameConfig& config, CardContext cards) : config_(config), cards_(std::move(cards)) {
    flatten(ActionPlan(config_, cards_));
    // The plan's many small lists leave the heap fragmented, and the allocator keeps what they held.
#if defined(__GLIBC__)
    malloc_trim(0);
#endif
}

void Game::flatten(const ActionPlan& plan) {
    std::size_t action_count = 0;
    std::size_t child_count = 0;
    for (const PlanNode& plan_node : plan.nodes()) {
        action_count += plan_node.actions.size();
        child_count += plan_node.children.size();
    }
    actions_.reserve(action_count);
    children_.reserve(child_count);
    nodes_.reserve(plan.node_count());
    for (const PlanNode& plan_node : plan.nodes()) {
        const std::span<const Action> actions(actions_.data() + actions_.size(), plan_node.actions.size());
        const std::span<const std::uint64_t> children(children_.data() + children_.size(), plan_node.children.size());
        actions_.insert(actions_.end(), plan_node.actions.begin(), plan_node.actions.end());
        children_.insert(children_.end(), plan_node.children.begin(), plan_node.children.end());
        nodes_.push_back(to_game_node(plan_node, actions, children));
    }
}

std::uint64_t Game::tree_bytes() const {
    return nodes_.capacity() * sizeof(GameNode) + actions_.capacity() * sizeof(Action) +
           children_.capacity() * sizeof(std::uint64_t);
}

std::uint64_t Game::tree_bytes(std::uint64_t node_count, std::uint64_t action_count, std::uint64_t child_count) {
    return node_count * sizeof(GameNode) + action_count * sizeof(Action) + child_count * sizeof(std::uint64_t);
}

const std::vector<float>* Game::locking_strategy(std::uint64_t node) const {
    return node < nodes_.size() ? locking_strategy(nodes_[node]) : nullptr;
}

const std::vector<float>* Game::locking_strategy(const GameNode& node) const {
    return node.lock == kNoLock ? nullptr : &locks_[node.lock];
}

void Game::set_lock(std::uint64_t node, std::vector<float> strategy) {
    if (node >= nodes_.size()) return;
    GameNode& n = nodes_[node];
    if (n.lock == kNoLock) {
        n.lock = static_cast<std::uint32_t>(locks_.size());
        locks_.push_back(std::move(strategy));
    } else {
        locks_[n.lock] = std::move(strategy);
    }
}

float Game::chance_factor(std::uint64_t node) const {
    const GameNode& n = nodes_[node];
    if (n.turn_card == kNoCard) return kTurnChanceFactor;
    if (n.river_card == kNoCard) return kRiverChanceFactor;
    return 0.0f;
}

std::span<const std::uint8_t> Game::chance_refs(std::uint64_t node) const {
    const GameNode& n = nodes_[node];
    const SuitSymmetry& symmetry = cards_.suit_symmetry;
    if (n.street == kStreetTurn) return symmetry.turn_child_of_skipped;
    if (n.street == kStreetRiver && is_card(n.turn_card) && n.turn_card < symmetry.river_child_of_skipped.size())
        return symmetry.river_child_of_skipped[n.turn_card];
    return empty_chance_refs_;
}

const Game::SeatSwaps& Game::chance_swaps(std::uint64_t node, std::size_t i) const {
    const GameNode& n = nodes_[node];
    const SuitSymmetry& symmetry = cards_.suit_symmetry;
    if (n.street == kStreetTurn) {
        if (i < symmetry.turn_skipped.size()) return symmetry.turn_swaps[suit_of(symmetry.turn_skipped[i])];
    } else if (n.street == kStreetRiver && is_card(n.turn_card)) {
        const int turn_suit = suit_of(n.turn_card);
        const std::vector<Card>& skipped = symmetry.river_skipped[turn_suit];
        if (i < skipped.size()) return symmetry.river_swaps[turn_suit][suit_of(skipped[i])];
    }
    return empty_swaps_;
}

std::span<const std::uint16_t> Game::live_hands(std::uint64_t node, Seat seat) const {
    const GameNode& n = nodes_[node];
    if (n.turn_card != kNoCard) {
        if (n.river_card != kNoCard && is_card(n.turn_card) && is_card(n.river_card)) {
            const auto pair = static_cast<std::size_t>(pocket_index(n.turn_card, n.river_card));
            if (pair < cards_.pockets_without_pair.size()) return cards_.pockets_without_pair[pair][seat];
        }
        if (n.turn_card < cards_.pockets_without_card.size()) return cards_.pockets_without_card[n.turn_card][seat];
    }
    return cards_.all_pockets[seat];
}

CardMask Game::node_dead_cards(std::uint64_t node) const {
    const GameNode& n = nodes_[node];
    return cards_.dead_cards | card_bit(n.turn_card) | card_bit(n.river_card);
}

}  // namespace kelvane
