// Tree construction: the root, the recursive build with its top-level fan-out, and the chance deals.

#include "tree/action_plan.h"

#include <cerrno>
#include <cstdlib>
#include <future>
#include <thread>
#include <utility>

#include "tree/depth_first_order.h"

namespace kelvane {
namespace {

constexpr const char* kMaxWorkersVariable = "KELVANE_ACTIONPLAN_MAX_WORKERS";

std::size_t read_max_workers() {
    std::size_t workers = std::thread::hardware_concurrency();
    if (workers == 0) workers = 1;
    const char* text = std::getenv(kMaxWorkersVariable);
    if (text == nullptr) return workers;
    char* end = nullptr;
    errno = 0;
    const long value = std::strtol(text, &end, 10);
    if (end != text && errno != ERANGE && value > 0) workers = static_cast<std::size_t>(value);
    return workers;
}

// Hands a worker slot back when a task ends, also by an exception.
class WorkerSlot {
public:
    explicit WorkerSlot(std::atomic<std::size_t>& active) : active_(active) {}
    ~WorkerSlot() { active_.fetch_sub(1); }
    WorkerSlot(const WorkerSlot&) = delete;
    WorkerSlot& operator=(const WorkerSlot&) = delete;

private:
    std::atomic<std::size_t>& active_;
};

}  // namespace

ActionPlan::ActionPlan(const GameConfig& config, const CardContext& cards)
    : config_(config), board_(cards.board), cards_(&cards), max_workers_(read_max_workers()) {
    const Child start = root(config_, board_);
    nodes_.push_back(start.node);
    build_recursive(0, start.context, 0);
    // Parallel workers append in the order they happen to run.
    if (max_workers_ > 1) nodes_ = renumber_depth_first(std::move(nodes_));
}

ActionPlan::Child ActionPlan::root(const GameConfig& config, const BoardCards& board) {
    Child start;
    start.node.kind = kNodeDecision;
    start.node.seat = kSeatOop;
    start.node.street = config.starting_street;
    start.node.pot = config.starting_pot;
    start.node.turn_card = board.turn;
    start.node.river_card = board.river;
    start.context.stacks = {config.effective_stack, config.effective_stack};
    start.context.pot = config.starting_pot;
    start.context.dead_cards = board_mask(board);
    start.context.turn_card = board.turn;
    start.context.river_card = board.river;
    return start;
}

std::vector<ActionPlan::Child> ActionPlan::expand(const PlanNode& node, const BuildContext& context) const {
    if (node.kind == kNodeDecision) return expand_decision(node, context);
    if (node.kind == kNodeChance) return expand_chance(node, context);
    if (node.all_in_runout != 0) return expand_runout(node, context);
    return {};
}

void ActionPlan::build_recursive(std::uint64_t node_index, const BuildContext& context, std::uint64_t depth) {
    PlanNode node;
    {
        // A copy, not a reference: the list moves whenever another thread appends.
        std::lock_guard lock(nodes_mutex_);
        node = nodes_[node_index];
    }
    std::vector<Child> children = expand(node, context);
    if (children.empty()) return;

    {
        std::lock_guard lock(nodes_mutex_);
        nodes_[node_index].actions.reserve(children.size());
        nodes_[node_index].children.reserve(children.size());
    }

    std::vector<std::future<void>> tasks;
    for (Child& child : children) {
        std::uint64_t child_index = 0;
        {
            std::lock_guard lock(nodes_mutex_);
            child_index = nodes_.size();
            nodes_.push_back(std::move(child.node));
            PlanNode& parent = nodes_[node_index];
            parent.actions.push_back(child.action);
            parent.children.push_back(child_index);
        }
        // Test and raise are separate on purpose: the limit is soft.
        if (depth < parallel_depth_ && active_workers_.load() < max_workers_) {
            active_workers_.fetch_add(1);
            tasks.push_back(std::async(std::launch::async, [this, child_index, child_context = child.context, depth] {
                WorkerSlot slot(active_workers_);
                build_recursive(child_index, child_context, depth + 1);
            }));
        } else {
            build_recursive(child_index, child.context, depth + 1);
        }
    }
    for (std::future<void>& task : tasks) task.get();
}

std::vector<Card> ActionPlan::chance_candidates(const BuildContext& context) const {
    const bool dealing_turn = context.turn_card == kNoCard;
    const Card fixed = dealing_turn ? board_.turn : board_.river;
    if (fixed != kNoCard) {
        if ((context.dead_cards & card_bit(fixed)) != 0) return {};
        return {fixed};
    }

    const SuitSymmetry& symmetry = cards_->suit_symmetry;
    const std::vector<Card>& skipped =
        dealing_turn ? symmetry.turn_skipped : symmetry.river_skipped[suit_of(context.turn_card)];
    CardMask excluded = context.dead_cards;
    for (const Card card : skipped) excluded |= card_bit(card);

    std::vector<Card> candidates;
    candidates.reserve(kCardCount);
    for (int code = 0; code < kCardCount; ++code) {
        const Card card = static_cast<Card>(code);
        if ((excluded & card_bit(card)) == 0) candidates.push_back(card);
    }
    return candidates;
}

std::vector<ActionPlan::Child> ActionPlan::expand_chance(const PlanNode& node, const BuildContext& context) const {
    if (context.turn_card != kNoCard && context.river_card != kNoCard) return {};
    std::vector<Child> children = deal_children(node, context);
    for (Child& child : children) child.node.kind = kNodeDecision;
    return children;
}

std::vector<ActionPlan::Child> ActionPlan::expand_runout(const PlanNode& node, const BuildContext& context) const {
    if (context.turn_card != kNoCard && context.river_card != kNoCard) return {};
    std::vector<Child> children = deal_children(node, context);
    for (Child& child : children) {
        child.node.kind = kNodeTerminal;
        child.node.all_in_runout = child.node.river_card == kNoCard ? 1 : 0;
    }
    return children;
}

// One child for each card that may be dealt next; the caller sets what kind of node it is.
std::vector<ActionPlan::Child> ActionPlan::deal_children(const PlanNode& node, const BuildContext& context) const {
    const bool dealing_turn = context.turn_card == kNoCard;
    const std::vector<Card> candidates = chance_candidates(context);

    std::vector<Child> children;
    children.reserve(candidates.size());
    for (const Card card : candidates) {
        Child& child = children.emplace_back();
        child.action = Action{kActionChance, card};

        BuildContext& next = child.context;
        next = context;
        next.last_kind = kActionChance;
        next.dead_cards |= card_bit(card);
        (dealing_turn ? next.turn_card : next.river_card) = card;

        PlanNode& dealt = child.node;
        dealt.seat = kSeatOop;
        dealt.street = static_cast<std::uint8_t>(dealing_turn ? kStreetTurn : kStreetRiver);
        dealt.committed = node.committed;
        take_from_context(dealt, next);
    }
    return children;
}

void ActionPlan::take_from_context(PlanNode& node, const BuildContext& context) {
    node.pot = context.pot;
    node.invested = context.invested;
    node.turn_card = context.turn_card;
    node.river_card = context.river_card;
    node.terminal_kind = context.last_action;
    node.folded_seat = context.last_seat;
}

}  // namespace kelvane
