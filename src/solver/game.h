#pragma once
// The game one solve runs on: configuration, deal, betting tree, node locks and terminal payoffs.

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "poker/card_context.h"
#include "tree/action_plan.h"
#include "tree/game_config.h"

namespace kelvane {

using Seat = std::uint8_t;  // kSeatOop or kSeatIp

inline constexpr std::uint32_t kNoLock = 0xFFFFFFFFu;

// A plan node as the solver reads it; same index as in the plan. Its action and child lists are views
// into the game's flat lists, so the tree is held once, in two allocations.
struct GameNode {
    std::uint8_t kind = kNodeDecision;
    Seat seat = kSeatOop;
    std::uint8_t street = kStreetFlop;  // at a chance node, the street being dealt
    std::uint8_t all_in_runout = 0;
    std::int32_t committed = 0;  // matched by both seats on top of starting_pot
    std::span<const Action> actions;
    std::span<const std::uint64_t> children;
    std::int32_t pot = 0;
    std::array<std::int32_t, 2> invested{};
    std::uint8_t terminal_kind = kActionNone;  // fold, or anything else for a showdown
    Seat folded_seat = kSeatOop;
    Card turn_card = kNoCard;
    Card river_card = kNoCard;
    std::uint32_t lock = kNoLock;  // index of the node's lock matrix, so a visit needs no look-up
};

class Game {
public:
    using SeatSwaps = std::array<SwapList, 2>;

    // Takes over the deal, builds the betting tree and keeps its nodes; plan errors propagate.
    Game(const GameConfig& config, CardContext cards);
    // The nodes view the game's own lists.
    Game(const Game&) = delete;
    Game& operator=(const Game&) = delete;

    const GameConfig& config() const { return config_; }
    const CardContext& cards() const { return cards_; }

    std::span<const Pocket> hands(Seat seat) const { return cards_.pockets[seat]; }
    std::size_t hand_count(Seat seat) const { return cards_.pockets[seat].size(); }
    std::span<const float> root_weights(Seat seat) const { return cards_.weights[seat]; }

    const GameNode& node(std::uint64_t index) const { return nodes_[index]; }
    std::span<const GameNode> nodes() const { return nodes_; }
    std::uint64_t node_count() const { return nodes_.size(); }
    // What the tree's nodes and lists hold.
    std::uint64_t tree_bytes() const;
    // The same for a tree of the given shape, known before it is built.
    static std::uint64_t tree_bytes(std::uint64_t node_count, std::uint64_t action_count, std::uint64_t child_count);

    // The lock matrix of a node (action-major, actions × hands of the acting seat), or null.
    const std::vector<float>* locking_strategy(std::uint64_t node) const;
    const std::vector<float>* locking_strategy(const GameNode& node) const;
    // Replaces the node's lock; a node index out of range is ignored.
    void set_lock(std::uint64_t node, std::vector<float> strategy);

    bool compress_state() const { return compress_state_; }
    void set_compress_state(bool compress) { compress_state_ = compress; }

    // Fixed divisor of a chance node's reach: 45 for a turn deal, 44 for a river deal, else 0.
    float chance_factor(std::uint64_t node) const;
    // For each card merged away by suit symmetry, the index of the child that stands for it.
    std::span<const std::uint8_t> chance_refs(std::uint64_t node) const;
    // The hand swaps (one list per seat) that turn the standing child's values into entry i's.
    const SeatSwaps& chance_swaps(std::uint64_t node, std::size_t i) const;
    // Hands of a seat that don't collide with the node's board.
    std::span<const std::uint16_t> live_hands(std::uint64_t node, Seat seat) const;
    CardMask node_dead_cards(std::uint64_t node) const;

    // Terminal counterfactual values of every hand of `seat`, in chips / total_matchups.
    // A span of the wrong length leaves `out` all zero. Allocation-free; safe on any thread.
    void evaluate(std::uint64_t node, Seat seat, std::span<const float> opponent_reach,
                  std::span<float> out) const;

private:
    void flatten(const ActionPlan& plan);

    GameConfig config_;
    CardContext cards_;
    std::vector<Action> actions_;
    std::vector<std::uint64_t> children_;
    std::vector<GameNode> nodes_;
    std::vector<std::vector<float>> locks_;
    std::vector<std::uint8_t> empty_chance_refs_;
    SeatSwaps empty_swaps_;
    bool compress_state_ = false;
};

}  // namespace kelvane
