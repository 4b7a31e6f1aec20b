// The counting walk: depth first through ActionPlan's own expansion, holding only the children of
// the nodes on the current path.

#include "tree/plan_count.h"

#include <utility>
#include <vector>

#include "tree/action_plan.h"

namespace kelvane {

ActionPlan::ActionPlan(const GameConfig& config, const CardContext& cards, Unbuilt)
    : config_(config), board_(cards.board), cards_(&cards), max_workers_(1) {}

class PlanCounter {
public:
    PlanCounter(const GameConfig& config, const CardContext& cards, const PlanCountLimit& within_limit)
        : expansion_(config, cards, ActionPlan::Unbuilt{}), within_limit_(within_limit) {}

    PlanCount run(const GameConfig& config, const BoardCards& board) {
        const ActionPlan::Child start = ActionPlan::root(config, board);
        visit(start.node, start.context);
        return totals_;
    }

private:
    void visit(const PlanNode& node, const ActionPlan::BuildContext& context) {
        if (!totals_.complete) return;
        const std::vector<ActionPlan::Child> children = expansion_.expand(node, context);
        ++totals_.nodes;
        totals_.actions += children.size();
        if (node.kind == kNodeDecision && !children.empty()) {
            ++totals_.decision_nodes;
            totals_.seat_actions[node.seat] += children.size();
        }
        if (within_limit_ && !within_limit_(totals_)) {
            totals_.complete = false;
            return;
        }
        for (const ActionPlan::Child& child : children) visit(child.node, child.context);
    }

    const ActionPlan expansion_;
    const PlanCountLimit& within_limit_;
    PlanCount totals_;
};

PlanCount count_plan(const GameConfig& config, const CardContext& cards, const PlanCountLimit& within_limit) {
    return PlanCounter(config, cards, within_limit).run(config, cards.board);
}

}  // namespace kelvane
