// The solve loop, the discount schedule's application, state preparation and average strategies.

#include "solver/discounted_cfr.h"

#include <chrono>
#include <iostream>

#include "solver/discount_schedule.h"
#include "solver/fan_out.h"
#include "solver/regret_matching.h"
#include "solver/state_packing.h"

namespace kelvane {

namespace {

// The console line's own cadence, independent of the measuring interval.
constexpr std::uint32_t kVerboseInterval = 50;

using Clock = std::chrono::steady_clock;

double elapsed_milliseconds(Clock::time_point t0, Clock::time_point t1) {
    const auto nanoseconds = std::chrono::duration_cast<std::chrono::nanoseconds>(t1 - t0).count();
    return static_cast<double>(nanoseconds / 1000) / 1000.0;
}

}  // namespace

DiscountedCfr::DiscountedCfr(const DiscountedCfrOptions& options_in)
    : options(options_in),
      compress_state(options_in.compress_state),
      worker_count(options_in.thread_count < 2 ? 1 : options_in.thread_count) {
    if (worker_count > 1) pool = std::make_unique<WorkerPool>(worker_count - 1);
}

DiscountedCfr::~DiscountedCfr() = default;

void DiscountedCfr::solve(Game& game) {
    exploitability = 0.0f;
    iterations_done = 0;
    game.set_compress_state(compress_state);
    prepare_states(game);

    const Clock::time_point start = Clock::now();
    const std::uint32_t interval = options.exploit_check_interval;
    for (std::uint32_t i = 1; i <= options.max_iterations; ++i) {
        // The only cancellation point: an iteration once begun runs to its end.
        if (options.should_cancel && options.should_cancel()) break;
        const Clock::time_point t0 = Clock::now();
        iterations_done = i;
        iteration(game, i - 1);

        const bool measured = i == options.max_iterations || (interval != 0 && i % interval == 0);
        if (measured) exploitability = measure_exploitability(game);
        const double ms = elapsed_milliseconds(t0, Clock::now());
        if (options.on_iteration) options.on_iteration(iterations_done, exploitability, ms);
        if (options.verbose && (i % kVerboseInterval == 0 || i == options.max_iterations)) {
            std::cout << "[CFR] iteration " << i << " / " << options.max_iterations << "  exploitability\u2248"
                      << exploitability << "  iter\u2248" << ms << "ms" << std::endl;
        }
        if (interval != 0 && measured && options.target_exploitability >= exploitability) break;
    }

    if (options.verbose) {
        const auto total = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start).count();
        std::cout << "[CFR] completed " << iterations_done << " iterations in " << total << "ms"
                  << "  exploitability\u2248" << exploitability << std::endl;
    }
}

void DiscountedCfr::iteration(const Game& game, std::uint32_t t) {
    current_iteration = t;
    const Discounts d = discounts_at(t);
    alpha_t = d.alpha;
    beta_t = d.beta;
    gamma_t = d.gamma;
    // Seat 1 sees seat 0's regrets as this iteration's first pass left them.
    for (std::uint8_t seat = 0; seat < 2; ++seat) {
        std::vector<float>& values = iteration_values[seat];
        values.assign(game.hand_count(seat), 0.0f);
        solve_recursive(game, 0, seat, game.root_weights(1 - seat), values, -1, 0, scratch[seat]);
    }
}

void DiscountedCfr::prepare_states(const Game& game) {
    const std::uint64_t count = game.node_count();
    parallel_chance.assign(count, 1);
    for (std::uint64_t n = 0; n < count; ++n) {
        const GameNode& node = game.node(n);
        if (node.kind != kNodeTerminal && !children_distinct(node.children)) parallel_chance[n] = 0;
    }
    subtree_nodes = subtree_sizes(game);

    states.assign(count, NodeState{});
    parallel_for(count, [&](std::uint64_t begin, std::uint64_t end) {
        for (std::uint64_t n = begin; n < end; ++n) {
            const GameNode& node = game.node(n);
            if (node.kind != kNodeDecision || node.actions.empty()) continue;
            NodeState& state = states[n];
            state.seat = node.seat;
            state.active = 1;
            state.num_actions = node.actions.size();
            state.num_hands = game.hand_count(node.seat);
            state.regrets.assign(state.num_actions * state.num_hands, 0.0f);
            state.strategy_sum.assign(state.num_actions * state.num_hands, 0.0f);
            if (compress_state) {
                pack_regrets(state);
                pack_strategy_sum(state);
            }
        }
    });
}

bool DiscountedCfr::fans_out(std::uint64_t node, std::uint64_t hands) const {
    return pool != nullptr && parallel_chance[node] != 0 && worth_fanning_out(subtree_nodes[node], hands);
}

std::vector<float>& DiscountedCfr::regrets_of(NodeState& state) {
    return compress_state ? unpacked_regrets(state) : state.regrets;
}

std::vector<float>& DiscountedCfr::strategy_sum_of(NodeState& state) {
    return compress_state ? unpacked_strategy_sum(state) : state.strategy_sum;
}

std::vector<float> DiscountedCfr::average_hand_strategy(std::uint64_t node) {
    if (node >= states.size()) return {};
    NodeState& state = states[node];
    if (state.active == 0 || state.num_actions == 0 || state.num_hands == 0) return {};
    const std::size_t actions = state.num_actions;
    const std::size_t hands = state.num_hands;
    std::vector<float> strategy(actions * hands);
    std::vector<float> denom(hands);
    regret_match(strategy_sum_of(state), strategy, denom, actions, hands);
    return strategy;
}

std::vector<float> DiscountedCfr::average_strategy(std::uint64_t node) {
    const std::vector<float> per_hand = average_hand_strategy(node);
    if (per_hand.empty()) return {};
    const NodeState& state = states[node];
    std::vector<float> strategy(state.num_actions);
    for (std::size_t a = 0; a < state.num_actions; ++a) {
        double total = 0.0;
        for (std::size_t h = 0; h < state.num_hands; ++h) total += per_hand[a * state.num_hands + h];
        strategy[a] = static_cast<float>(total / static_cast<double>(state.num_hands));
    }
    return strategy;
}

}  // namespace kelvane
