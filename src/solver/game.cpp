#include "solver/game.h"

#include <algorithm>
#include <utility>

namespace kelvane {
namespace {

constexpr std::size_t kInitialLockBuckets = 8;
constexpr float kTurnChanceFactor = 45.0f;
constexpr float kRiverChanceFactor = 44.0f;

GameNode to_game_node(const PlanNode& plan_node) {
    return {plan_node.kind,          plan_node.seat,      plan_node.street,      plan_node.all_in_runout,
            plan_node.committed,     plan_node.actions,   plan_node.children,    plan_node.pot,
            plan_node.invested,      plan_node.terminal_kind, plan_node.folded_seat, plan_node.turn_card,
            plan_node.river_card};
}

bool is_card(Card card) { return card < kCardCount; }

}  // namespace

std::size_t NodeIndexHash::operator()(std::uint64_t node) const noexcept {
    std::uint64_t hash = 0xCBF29CE484222325ull;
    for (int byte = 0; byte < 8; ++byte) {
        hash ^= (node >> (8 * byte)) & 0xFF;
        hash *= 0x100000001B3ull;
    }
    return static_cast<std::size_t>(hash);
}

Game::Game(const GameConfig& config, CardContext cards)
    : config_(config), cards_(std::move(cards)), plan_(config_, cards_), locks_(kInitialLockBuckets) {
    locks_.max_load_factor(1.0f);
    nodes_.reserve(plan_.node_count());
    for (const PlanNode& plan_node : plan_.nodes()) nodes_.push_back(to_game_node(plan_node));
}

const std::vector<float>* Game::locking_strategy(std::uint64_t node) const {
    const auto found = locks_.find(node);
    return found == locks_.end() ? nullptr : &found->second;
}

void Game::set_lock(std::uint64_t node, std::vector<float> strategy) {
    locks_.insert_or_assign(node, std::move(strategy));
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
