// The solve loop, the discount schedule's application, state preparation and average strategies.

#include "solver/discounted_cfr.h"

#include <chrono>
#include <iostream>

#include "solver/discount_schedule.h"
#include "solver/fan_out.h"
#include "solver/regret_matching.h"

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
    exploitability_known = false;
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
        if (measured) {
            exploitability = measure_exploitability(game);
            exploitability_known = true;
        }
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
    const std::vector<std::uint64_t> subtree_nodes = subtree_sizes(game);
    fan_out_seats.assign(count, 0);
    for (std::uint64_t n = 0; n < count; ++n) {
        const GameNode& node = game.node(n);
        if (node.kind != kNodeTerminal && !children_distinct(node.children)) continue;
        for (std::uint8_t seat = 0; seat < 2; ++seat)
            if (worth_fanning_out(subtree_nodes[n], game.hand_count(seat))) fan_out_seats[n] |= 1u << seat;
    }

    std::uint64_t decisions = 0;
    for (const GameNode& node : game.nodes()) decisions += node.kind == kNodeDecision && !node.actions.empty();
    states.assign(decisions, NodeState{});
    state_of.assign(count, kNoState);
    inactive_state = NodeState{};
    std::uint64_t entries = 0;
    for (std::uint64_t n = 0, next = 0; n < count; ++n) {
        const GameNode& node = game.node(n);
        if (node.kind != kNodeDecision || node.actions.empty()) continue;
        state_of[n] = static_cast<std::uint32_t>(next);
        NodeState& state = states[next++];
        state.offset = entries;
        state.seat = node.seat;
        state.active = 1;
        state.num_actions = static_cast<std::uint16_t>(node.actions.size());
        state.num_hands = static_cast<std::uint32_t>(game.hand_count(node.seat));
        entries += state.entries();
    }
    // Zero packs to zero with scale 1, so both representations start alike.
    allocate_store(regret_store, entries, compress_state);
    allocate_store(strategy_sum_store, entries, compress_state);
}

bool DiscountedCfr::fans_out(std::uint64_t node, std::uint8_t seat) const {
    return pool != nullptr && ((fan_out_seats[node] >> seat) & 1u) != 0;
}

std::span<float> DiscountedCfr::regret_rows(const NodeState& state, std::vector<float>& buffer) {
    return store_rows(regret_store, state.offset, state.entries(), state.regrets_scale, buffer);
}

std::span<float> DiscountedCfr::strategy_sum_rows(const NodeState& state, std::vector<float>& buffer) {
    return store_rows(strategy_sum_store, state.offset, state.entries(), state.strategy_sum_scale, buffer);
}

void DiscountedCfr::keep_regrets(NodeState& state, std::span<const float> rows) {
    state.regrets_scale = keep_store_rows(regret_store, state.offset, rows, state.regrets_scale);
}

void DiscountedCfr::keep_strategy_sums(NodeState& state, std::span<const float> rows) {
    state.strategy_sum_scale = keep_store_rows(strategy_sum_store, state.offset, rows, state.strategy_sum_scale);
}

std::vector<float> DiscountedCfr::matrix_of(std::uint64_t node, const StateStore& store,
                                             float NodeState::*scale) const {
    if (node >= state_count() || node_state(node).active == 0) return {};
    const NodeState& state = node_state(node);
    std::vector<float> rows(state.entries());
    copy_store_rows(store, state.offset, state.*scale, rows);
    return rows;
}

std::vector<float> DiscountedCfr::regrets_of(std::uint64_t node) const {
    return matrix_of(node, regret_store, &NodeState::regrets_scale);
}

std::vector<float> DiscountedCfr::strategy_sum_of(std::uint64_t node) const {
    return matrix_of(node, strategy_sum_store, &NodeState::strategy_sum_scale);
}

std::uint64_t DiscountedCfr::state_bytes() const {
    return store_bytes(regret_store) + store_bytes(strategy_sum_store);
}

std::uint64_t DiscountedCfr::node_record_bytes() const {
    return states.capacity() * sizeof(NodeState) + state_of.capacity() * sizeof(std::uint32_t) +
           fan_out_seats.capacity() * sizeof(std::uint8_t);
}

std::uint64_t DiscountedCfr::node_record_bytes(std::uint64_t node_count, std::uint64_t decision_count) {
    return decision_count * sizeof(NodeState) + node_count * (sizeof(std::uint32_t) + sizeof(std::uint8_t));
}

std::vector<float> DiscountedCfr::average_hand_strategy(std::uint64_t node) {
    if (node >= state_count()) return {};
    NodeState& state = node_state(node);
    if (state.active == 0 || state.num_actions == 0 || state.num_hands == 0) return {};
    const std::size_t actions = state.num_actions;
    const std::size_t hands = state.num_hands;
    std::vector<float> strategy(actions * hands);
    std::vector<float> denom(hands);
    std::vector<float> buffer;
    regret_match(strategy_sum_rows(state, buffer), strategy, denom, actions, hands);
    return strategy;
}

std::vector<float> DiscountedCfr::average_strategy(std::uint64_t node) {
    const std::vector<float> per_hand = average_hand_strategy(node);
    if (per_hand.empty()) return {};
    const NodeState& state = node_state(node);
    std::vector<float> strategy(state.num_actions);
    for (std::size_t a = 0; a < state.num_actions; ++a) {
        double total = 0.0;
        for (std::size_t h = 0; h < state.num_hands; ++h) total += per_hand[a * state.num_hands + h];
        strategy[a] = static_cast<float>(total / static_cast<double>(state.num_hands));
    }
    return strategy;
}

}  // namespace kelvane
