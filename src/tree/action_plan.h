#pragma once
// The betting tree of one spot: a flat list of nodes linked by index, expanded once at construction.

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <mutex>
#include <vector>

#include "poker/card_context.h"
#include "poker/cards.h"
#include "tree/game_config.h"

namespace kelvane {

// Action kinds.
inline constexpr std::uint8_t kActionNone = 0;  // the root's value, never in a list
inline constexpr std::uint8_t kActionFold = 1;
inline constexpr std::uint8_t kActionCheck = 2;
inline constexpr std::uint8_t kActionCall = 3;
inline constexpr std::uint8_t kActionBet = 4;
inline constexpr std::uint8_t kActionRaise = 5;
inline constexpr std::uint8_t kActionAllIn = 6;
inline constexpr std::uint8_t kActionChance = 7;

// Node kinds.
inline constexpr std::uint8_t kNodeDecision = 0;
inline constexpr std::uint8_t kNodeChance = 1;
inline constexpr std::uint8_t kNodeTerminal = 2;

inline constexpr std::uint8_t kSeatOop = 0;
inline constexpr std::uint8_t kSeatIp = 1;

// amount: chips added for a call, the street total for a wager, the card code for a deal.
struct Action {
    std::uint8_t kind = kActionNone;
    std::int32_t amount = 0;
    friend bool operator==(const Action&, const Action&) = default;
};
static_assert(sizeof(Action) == 8);

struct PlanNode {
    std::uint8_t kind = kNodeDecision;
    std::uint8_t seat = kSeatOop;  // to act at a decision node
    std::uint8_t street = kStreetFlop;  // at a chance node, the street being dealt
    std::uint8_t all_in_runout = 0;  // terminal reached by an all-in call with cards still to come
    std::int32_t committed = 0;  // matched by both seats on top of the starting pot
    std::vector<Action> actions;
    std::vector<std::uint64_t> children;
    std::int32_t pot = 0;  // every chip in the pot, uncalled bets included
    std::array<std::int32_t, 2> invested{0, 0};
    std::uint8_t terminal_kind = kActionNone;  // kind of the action that led here
    std::uint8_t folded_seat = kSeatOop;  // seat that took that action
    Card turn_card = kNoCard;
    Card river_card = kNoCard;
};

class ActionPlan {
public:
    // What the expansion hands from a node to each child; never stored.
    struct BuildContext {
        std::uint8_t last_kind = kActionNone;
        std::int32_t raises_this_street = 0;
        bool all_in = false;  // the last wager was an all-in
        std::uint8_t aggressor = kSeatOop;  // the seat that was called; survives a chance node
        std::array<std::int32_t, 2> stacks{0, 0};  // chips left behind
        std::int32_t current_bet = 0;  // street total to match, 0 after a call or a deal
        std::array<std::int32_t, 2> invested{0, 0};
        std::int32_t pot = 0;
        std::uint8_t last_seat = kSeatOop;
        std::uint8_t last_action = kActionNone;
        CardMask dead_cards = 0;
        Card turn_card = kNoCard;
        Card river_card = kNoCard;
    };

    // Builds the whole tree; cards is read only during construction.
    ActionPlan(const GameConfig& config, const CardContext& cards);

    ActionPlan(const ActionPlan&) = delete;
    ActionPlan& operator=(const ActionPlan&) = delete;

    const std::vector<PlanNode>& nodes() const { return nodes_; }
    std::size_t node_count() const { return nodes_.size(); }

private:
    // Walks the same expansion, keeping totals instead of nodes (plan_count.cpp).
    friend class PlanCounter;
    struct Unbuilt {};
    // Ready to expand nodes, with no tree built; defined beside the counting walk.
    ActionPlan(const GameConfig& config, const CardContext& cards, Unbuilt);

    struct Child {
        Action action;
        BuildContext context;
        PlanNode node;
    };

    // The root node of a spot and the context it is expanded in.
    static Child root(const GameConfig& config, const BoardCards& board);
    void build_recursive(std::uint64_t node, const BuildContext& context, std::uint64_t depth);
    // The children of any node: none for a terminal without a runout.
    std::vector<Child> expand(const PlanNode& node, const BuildContext& context) const;
    std::vector<Child> expand_decision(const PlanNode& node, const BuildContext& context) const;
    std::vector<Child> expand_chance(const PlanNode& node, const BuildContext& context) const;
    std::vector<Child> expand_runout(const PlanNode& node, const BuildContext& context) const;
    static Child decision_child(const PlanNode& node, const BuildContext& context, const Action& action,
                                const SizingContext& sizing);
    std::vector<Child> deal_children(const PlanNode& node, const BuildContext& context) const;
    // The money and cards a new node shows, and the action that led to it, from its build context.
    static void take_from_context(PlanNode& node, const BuildContext& context);
    std::vector<Card> chance_candidates(const BuildContext& context) const;

    GameConfig config_;
    BoardCards board_;
    const CardContext* cards_;
    std::vector<PlanNode> nodes_;
    std::mutex nodes_mutex_;
    std::size_t max_workers_;
    std::uint64_t parallel_depth_ = 2;
    std::atomic<std::size_t> active_workers_{1};
};

}  // namespace kelvane
