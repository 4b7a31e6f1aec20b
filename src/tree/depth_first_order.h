#pragma once
// Node numbering that does not depend on how the build was scheduled.

#include <vector>

#include "tree/action_plan.h"

namespace kelvane {

// Renumbers a tree in depth-first order by action order, the order a one-worker build gives, and
// remaps every child link. Node locks and project files key by node index, so the numbering must be
// the same however many threads built the tree.
std::vector<PlanNode> renumber_depth_first(std::vector<PlanNode>&& nodes);

}  // namespace kelvane
