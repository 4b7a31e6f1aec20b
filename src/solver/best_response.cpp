// The read-only walks: values under the average strategy, best-response values, and the measures on them.

#include <algorithm>

#include "solver/chance_sum.h"
#include "solver/discounted_cfr.h"
#include "solver/fan_out.h"
#include "solver/node_locks.h"
#include "solver/regret_matching.h"
#include "solver/row_kernels.h"

namespace kelvane {

namespace {

void zero(std::span<float> out) { std::fill(out.begin(), out.end(), 0.0f); }

// out(h) = sum over a of values(a, h) * p(a, h), in doubles in action order.
void expected_values(std::span<float> out, const float* values, const float* p, std::size_t actions) {
    const std::size_t hands = out.size();
    for (std::size_t h = 0; h < hands; ++h) {
        double total = 0.0;
        for (std::size_t a = 0; a < actions; ++a) {
            total += static_cast<double>(values[a * hands + h]) * static_cast<double>(p[a * hands + h]);
        }
        out[h] = static_cast<float>(total);
    }
}

float best_of(const float* values, std::size_t actions, std::size_t hands, std::size_t h) {
    float best = values[h];
    for (std::size_t a = 1; a < actions; ++a) best = std::max(best, values[a * hands + h]);
    return best;
}

// A seat's best response keeps its own locked hands on their lock and lets the others deviate.
void best_values(const std::vector<float>* lock, const float* values, std::size_t actions, std::span<float> out) {
    const std::size_t hands = out.size();
    if (lock != nullptr && lock->size() == actions) {
        // One distribution for the whole node.
        for (std::size_t h = 0; h < hands; ++h) {
            float total = 0.0f;
            for (std::size_t a = 0; a < actions; ++a) total += values[a * hands + h] * (*lock)[a];
            out[h] = total;
        }
        return;
    }
    const bool per_hand = lock != nullptr && lock->size() >= actions * hands;
    for (std::size_t h = 0; h < hands; ++h) {
        // Row 0 decides whether the hand is locked.
        if (!per_hand || !lock_entry_set((*lock)[h])) {
            out[h] = best_of(values, actions, hands, h);
            continue;
        }
        double total = 0.0;
        for (std::size_t a = 0; a < actions; ++a) {
            const float q = (*lock)[a * hands + h];
            if (lock_entry_set(q)) total += static_cast<double>(values[a * hands + h]) * static_cast<double>(q);
        }
        out[h] = static_cast<float>(total);
    }
}

}  // namespace

void DiscountedCfr::compute_cfvalue_recursive(const Game& game, std::uint64_t node, std::uint8_t seat,
                                              std::span<const float> opponent_reach, std::span<float> out,
                                              bool store, std::uint64_t depth, ScratchStack& scratch) {
    (void)store;  // every caller passes false, so no node keeps a value slot
    const GameNode& n = game.node(node);
    if (n.kind == kNodeTerminal) {
        game.evaluate(node, seat, opponent_reach, out);
        return;
    }
    if (n.actions.empty()) {
        zero(out);
        return;
    }
    if (n.kind == kNodeChance) {
        value_chance(ValueWalk::average, game, node, seat, opponent_reach, out, depth, scratch);
        return;
    }
    NodeState& state = node_state(node);
    if (state.seat != seat) {
        value_opponent(ValueWalk::average, game, node, seat, opponent_reach, out, depth, scratch);
        return;
    }
    const std::size_t actions = n.actions.size();
    const std::size_t hands = out.size();
    if (state.num_hands != hands) {
        zero(out);
        return;
    }
    ScratchFrame& frame = scratch.frame(depth);
    std::span<float> child_values = frame.grow_child_values(actions, hands);
    for_each_child(node, actions, seat, scratch, [&](std::uint64_t a, ScratchStack& stack) {
        compute_cfvalue_recursive(game, n.children[a], seat, opponent_reach, child_values.subspan(a * hands, hands),
                                  store, depth + 1, stack);
    });
    // Locks need no look-up here: the strategy sums already accumulated the overlaid strategy.
    std::span<float> p = grow_buffer(frame.strategy, actions * hands);
    std::span<float> denom = grow_buffer(frame.strategy_denom, hands);
    regret_match(strategy_sum_rows(state, frame.decoded_sums), p, denom, actions, hands);
    expected_values(out, child_values.data(), p.data(), actions);
}

void DiscountedCfr::compute_best_cfvalue_recursive(const Game& game, std::uint64_t node, std::uint8_t seat,
                                                   std::span<const float> opponent_reach, std::span<float> out,
                                                   std::uint64_t depth, ScratchStack& scratch) {
    const GameNode& n = game.node(node);
    if (n.kind == kNodeTerminal) {
        game.evaluate(node, seat, opponent_reach, out);
        return;
    }
    if (n.actions.empty()) {
        zero(out);
        return;
    }
    if (n.kind == kNodeChance) {
        value_chance(ValueWalk::best_response, game, node, seat, opponent_reach, out, depth, scratch);
        return;
    }
    const NodeState& state = node_state(node);
    if (state.seat != seat) {
        value_opponent(ValueWalk::best_response, game, node, seat, opponent_reach, out, depth, scratch);
        return;
    }
    const std::size_t actions = n.actions.size();
    const std::size_t hands = out.size();
    if (state.num_hands != hands) {
        zero(out);
        return;
    }
    ScratchFrame& frame = scratch.frame(depth);
    std::span<float> child_values = frame.grow_child_values(actions, hands);
    for_each_child(node, actions, seat, scratch, [&](std::uint64_t a, ScratchStack& stack) {
        compute_best_cfvalue_recursive(game, n.children[a], seat, opponent_reach,
                                       child_values.subspan(a * hands, hands), depth + 1, stack);
    });
    best_values(game.locking_strategy(n), child_values.data(), actions, out);
}

void DiscountedCfr::value_walk(ValueWalk walk, const Game& game, std::uint64_t node, std::uint8_t seat,
                               std::span<const float> opponent_reach, std::span<float> out, std::uint64_t depth,
                               ScratchStack& scratch) {
    if (walk == ValueWalk::average) {
        compute_cfvalue_recursive(game, node, seat, opponent_reach, out, false, depth, scratch);
    } else {
        compute_best_cfvalue_recursive(game, node, seat, opponent_reach, out, depth, scratch);
    }
}

void DiscountedCfr::value_chance(ValueWalk walk, const Game& game, std::uint64_t node, std::uint8_t seat,
                                 std::span<const float> opponent_reach, std::span<float> out, std::uint64_t depth,
                                 ScratchStack& scratch) {
    const GameNode& n = game.node(node);
    const std::size_t actions = n.actions.size();
    const std::size_t hands = out.size();
    ScratchFrame& frame = scratch.frame(depth);

    float divisor = game.chance_factor(node);
    if (!(divisor > 0.0f)) divisor = static_cast<float>(actions);
    const float k = divisor == 0.0f ? 1.0f : 1.0f / divisor;
    std::span<float> reach = grow_buffer(frame.reach_row, opponent_reach.size());
    scale_row(reach.data(), opponent_reach.data(), k, reach.size());
    std::span<float> child_values = frame.grow_child_values(actions, hands);

    for_each_child(node, actions, seat, scratch, [&](std::uint64_t a, ScratchStack& stack) {
        value_walk(walk, game, n.children[a], seat, reach, child_values.subspan(a * hands, hands), depth + 1, stack);
    });
    sum_chance_children(game, node, seat, frame, child_values, actions, out);
}

void DiscountedCfr::value_opponent(ValueWalk walk, const Game& game, std::uint64_t node, std::uint8_t seat,
                                   std::span<const float> opponent_reach, std::span<float> out, std::uint64_t depth,
                                   ScratchStack& scratch) {
    const GameNode& n = game.node(node);
    const std::size_t actions = n.actions.size();
    if (actions == 1) {
        value_walk(walk, game, n.children[0], seat, opponent_reach, out, depth + 1, scratch);
        return;
    }
    NodeState& state = node_state(node);
    const std::size_t reach_size = opponent_reach.size();
    if (state.num_hands != reach_size) {
        zero(out);
        return;
    }
    const std::size_t hands = out.size();
    ScratchFrame& frame = scratch.frame(depth);
    std::span<float> p = grow_buffer(frame.other_strategy, actions * reach_size);
    std::span<float> denom = grow_buffer(frame.other_denom, reach_size);
    regret_match(strategy_sum_rows(state, frame.decoded_sums), p, denom, actions, reach_size);

    // One reach row for each action, so that the actions can be walked side by side.
    std::span<float> reach = grow_buffer(frame.child_reach, actions * reach_size);
    for (std::size_t a = 0; a < actions; ++a)
        multiply_row(reach.data() + a * reach_size, p.data() + a * reach_size, opponent_reach.data(), reach_size);
    std::span<float> child_values = frame.grow_child_values(actions, hands);
    for_each_child(node, actions, seat, scratch, [&](std::uint64_t a, ScratchStack& stack) {
        value_walk(walk, game, n.children[a], seat, reach.subspan(a * reach_size, reach_size),
                   child_values.subspan(a * hands, hands), depth + 1, stack);
    });
    if (walk == ValueWalk::best_response) {
        zero(out);
        add_rows(out.data(), child_values.data(), actions, hands);
        return;
    }
    for (std::size_t h = 0; h < hands; ++h) {
        double total = 0.0;
        for (std::size_t a = 0; a < actions; ++a) total += child_values[a * hands + h];
        out[h] = static_cast<float>(total);
    }
}

SeatValues DiscountedCfr::root_values(const Game& game, ValueWalk walk) {
    ScratchLease lease;
    ScratchStack& walk_scratch = lease.stack();
    SeatValues values{};
    for (std::uint8_t seat = 0; seat < 2; ++seat) {
        std::vector<float>& result = result_values[seat];
        result.assign(game.hand_count(seat), 0.0f);
        value_walk(walk, game, 0, seat, game.root_weights(1 - seat), result, 0, walk_scratch);
        const std::span<const float> weights = game.root_weights(seat);
        const std::size_t count = std::min(weights.size(), result.size());
        double total = 0.0;
        for (std::size_t h = 0; h < count; ++h) total += static_cast<double>(weights[h]) * result[h];
        values[seat] = static_cast<float>(total);
    }
    return values;
}

SeatValues DiscountedCfr::best_response_values(const Game& game) { return root_values(game, ValueWalk::best_response); }

SeatValues DiscountedCfr::average_strategy_values(const Game& game) { return root_values(game, ValueWalk::average); }

float DiscountedCfr::measure_exploitability(const Game& game) {
    const SeatValues best = best_response_values(game);
    double total = 0.0;
    if (game.config().rake_fraction > 0.0 && game.config().rake_cap > 0.0) {
        // With rake the game isn't zero-sum, so the average strategy's values must come off.
        const SeatValues average = average_strategy_values(game);
        const float d1 = best[1] - average[1];
        const float d0 = best[0] - average[0];
        total = static_cast<double>(d1) + d0;
    } else {
        total = static_cast<double>(best[1]) + best[0];
    }
    return static_cast<float>(total * 0.5);
}

std::vector<float> DiscountedCfr::node_values(const Game& game, std::uint64_t node, std::uint8_t seat) {
    return node_values_with_reach(game, node, seat, game.root_weights(1 - seat));
}

std::vector<float> DiscountedCfr::node_values_with_reach(const Game& game, std::uint64_t node, std::uint8_t seat,
                                                         std::span<const float> reach) {
    if (game.hand_count(seat) == 0) return {};
    std::vector<float> values(game.hand_count(seat), 0.0f);
    ScratchLease lease;
    compute_cfvalue_recursive(game, node, seat, reach, values, false, 0, lease.stack());
    return values;
}

NodeAndChildValues DiscountedCfr::node_and_child_values_with_reach(const Game& game, std::uint64_t node,
                                                                   std::uint8_t seat, std::span<const float> reach) {
    const std::size_t hands = game.hand_count(seat);
    if (hands == 0 || node >= game.node_count() || node >= state_count()) return {};
    const GameNode& n = game.node(node);
    const std::size_t actions = n.actions.size();
    if (n.children.size() < actions) return {};
    NodeAndChildValues values{std::vector<float>(hands, 0.0f), std::vector<float>(actions * hands, 0.0f)};
    walk_children(game, std::span(n.children).first(actions), seat, reach, values.children);

    // The same guards and the same sum as the walk at a node of the seat to act.
    NodeState& state = node_state(node);
    if (n.kind != kNodeDecision || actions == 0 || state.seat != seat || state.num_hands != hands) {
        values.node = node_values_with_reach(game, node, seat, reach);
        return values;
    }
    std::vector<float> p(actions * hands);
    std::vector<float> denom(hands);
    std::vector<float> buffer;
    regret_match(strategy_sum_rows(state, buffer), p, denom, actions, hands);
    expected_values(values.node, values.children.data(), p.data(), actions);
    return values;
}

// Chunks of one child each go to the pool, since sibling subtrees differ widely in size; a large node
// below still fans out. Siblings that share a subtree are walked in turn.
void DiscountedCfr::walk_children(const Game& game, std::span<const std::uint64_t> children, std::uint8_t seat,
                                  std::span<const float> reach, std::span<float> out) {
    const std::size_t hands = children.empty() ? 0 : out.size() / children.size();
    const auto walk = [&](std::uint64_t begin, std::uint64_t end) {
        ScratchLease lease;
        for (std::uint64_t a = begin; a < end; ++a)
            compute_cfvalue_recursive(game, children[a], seat, reach, out.subspan(a * hands, hands), false, 0,
                                      lease.stack());
    };
    if (children_distinct(children))
        parallel_for(children.size(), walk);
    else
        walk(0, children.size());
}

}  // namespace kelvane
