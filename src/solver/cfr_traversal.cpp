// The update pass: one vector walk of the tree per seat, updating that seat's regrets and strategy sums.

#include <algorithm>

#include "solver/chance_sum.h"
#include "solver/discounted_cfr.h"
#include "solver/node_locks.h"
#include "solver/regret_matching.h"
#include "solver/row_kernels.h"

namespace kelvane {

namespace {

std::int32_t child_first_action(std::int32_t first_action, std::size_t a) {
    return first_action < 0 ? static_cast<std::int32_t>(a) : first_action;
}

void zero(std::span<float> out) { std::fill(out.begin(), out.end(), 0.0f); }

}  // namespace

void DiscountedCfr::solve_recursive(const Game& game, std::uint64_t node, std::uint8_t seat,
                                    std::span<const float> opponent_reach, std::span<float> out,
                                    std::int32_t first_action, std::uint64_t depth, ScratchStack& scratch) {
    const GameNode& n = game.node(node);
    if (n.kind == kNodeTerminal) {
        game.evaluate(node, seat, opponent_reach, out);
        return;
    }
    if (n.actions.empty() || out.empty()) {
        zero(out);
        return;
    }
    if (n.kind == kNodeChance) {
        solve_chance(game, node, seat, opponent_reach, out, first_action, depth, scratch);
    } else if (node_state(node).seat != seat) {
        solve_opponent(game, node, seat, opponent_reach, out, first_action, depth, scratch);
    } else {
        solve_own(game, node, seat, opponent_reach, out, first_action, depth, scratch);
    }
}

void DiscountedCfr::solve_chance(const Game& game, std::uint64_t node, std::uint8_t seat,
                                 std::span<const float> opponent_reach, std::span<float> out,
                                 std::int32_t first_action, std::uint64_t depth, ScratchStack& scratch) {
    const GameNode& n = game.node(node);
    const std::size_t actions = n.actions.size();
    const std::size_t hands = out.size();
    ScratchFrame& frame = scratch.frame(depth);

    // The divisor stays 45 or 44 whatever isomorphism merged; the replays below make up the rest.
    float divisor = game.chance_factor(node);
    if (!(divisor > 0.0f)) divisor = static_cast<float>(actions);
    const float k = divisor == 0.0f ? 1.0f : 1.0f / divisor;
    std::span<float> reach = grow_buffer(frame.reach_row, opponent_reach.size());
    scale_row(reach.data(), opponent_reach.data(), k, reach.size());
    std::span<float> child_values = frame.grow_child_values(actions, hands);

    for_each_child(node, actions, seat, scratch, [&](std::uint64_t a, ScratchStack& stack) {
        solve_recursive(game, n.children[a], seat, reach, child_values.subspan(a * hands, hands),
                        child_first_action(first_action, a), depth + 1, stack);
    });
    sum_chance_children(game, node, seat, frame, child_values, actions, out);
}

void DiscountedCfr::solve_opponent(const Game& game, std::uint64_t node, std::uint8_t seat,
                                   std::span<const float> opponent_reach, std::span<float> out,
                                   std::int32_t first_action, std::uint64_t depth, ScratchStack& scratch) {
    const GameNode& n = game.node(node);
    const std::size_t actions = n.actions.size();
    if (actions == 1) {
        solve_recursive(game, n.children[0], seat, opponent_reach, out, child_first_action(first_action, 0),
                        depth + 1, scratch);
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
    std::span<float> strategy = grow_buffer(frame.other_strategy, actions * reach_size);
    std::span<float> denom = grow_buffer(frame.other_denom, reach_size);
    regret_match(regret_rows(state, frame.decoded_regrets), strategy, denom, actions, reach_size);
    overlay_lock(game.locking_strategy(n), strategy);

    std::span<float> child_reach = grow_buffer(frame.child_reach, actions * reach_size);
    for (std::size_t a = 0; a < actions; ++a) {
        multiply_row(child_reach.data() + a * reach_size, strategy.data() + a * reach_size, opponent_reach.data(),
                     reach_size);
    }
    std::span<float> action_values = grow_buffer(frame.action_values, actions * hands);
    for_each_child(node, actions, seat, scratch, [&](std::uint64_t a, ScratchStack& stack) {
        solve_recursive(game, n.children[a], seat, child_reach.subspan(a * reach_size, reach_size),
                        action_values.subspan(a * hands, hands), child_first_action(first_action, a), depth + 1,
                        stack);
    });
    zero(out);
    add_rows(out.data(), action_values.data(), actions, hands);
}

void DiscountedCfr::solve_own(const Game& game, std::uint64_t node, std::uint8_t seat,
                              std::span<const float> opponent_reach, std::span<float> out, std::int32_t first_action,
                              std::uint64_t depth, ScratchStack& scratch) {
    const GameNode& n = game.node(node);
    const std::size_t actions = n.actions.size();
    const std::size_t hands = out.size();
    NodeState& state = node_state(node);
    if (state.num_hands != hands) {
        zero(out);
        return;
    }
    ScratchFrame& frame = scratch.frame(depth);
    std::span<float> action_values = grow_buffer(frame.action_values, actions * hands);
    for_each_child(node, actions, seat, scratch, [&](std::uint64_t a, ScratchStack& stack) {
        solve_recursive(game, n.children[a], seat, opponent_reach, action_values.subspan(a * hands, hands),
                        child_first_action(first_action, a), depth + 1, stack);
    });

    // Formed after the recursion, which touches only other nodes' states.
    const std::span<float> regrets = regret_rows(state, frame.decoded_regrets);
    const std::span<float> strategy_sum = strategy_sum_rows(state, frame.decoded_sums);
    std::span<float> strategy = grow_buffer(frame.strategy, actions * hands);
    std::span<float> denom = grow_buffer(frame.strategy_denom, hands);
    regret_match(regrets, strategy, denom, actions, hands);
    const bool locked = overlay_lock(game.locking_strategy(n), strategy);

    weighted_rows(out.data(), strategy.data(), action_values.data(), actions, hands);
    discount_strategy(strategy_sum.data(), strategy.data(), gamma_t, actions * hands);
    // One lock freezes the regrets of every hand of the node.
    if (!locked) update_regrets(regrets.data(), action_values.data(), out.data(), alpha_t, beta_t, actions, hands);
    if (!locked) keep_regrets(state, regrets);
    keep_strategy_sums(state, strategy_sum);
}

}  // namespace kelvane
