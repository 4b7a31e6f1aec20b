#pragma once
// Discounted CFR over one Game: per-node strategy storage, the solve loop, the walks and the measures.

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <vector>

#include "solver/game.h"
#include "solver/node_state.h"
#include "solver/scratch_stack.h"
#include "solver/state_store.h"
#include "solver/worker_pool.h"

namespace kelvane {

struct DiscountedCfrOptions {
    std::uint32_t max_iterations = 2000;
    float target_exploitability = 0.1f;  // chips
    std::uint32_t exploit_check_interval = 50;
    bool verbose = false;
    bool compress_state = false;
    std::uint64_t thread_count = 1;
    std::function<void(std::uint32_t iteration, float exploitability, double milliseconds)> on_iteration;
    std::function<bool()> should_cancel;
};

// A root measure, one value for each seat.
using SeatValues = std::array<float, 2>;

// A seat's values at a node and at each of its children under the average strategies; `children` is
// action-major, one row of the seat's hands for each action. Both empty when the node can't be walked.
struct NodeAndChildValues {
    std::vector<float> node;
    std::vector<float> children;
};

class DiscountedCfr {
public:
    explicit DiscountedCfr(const DiscountedCfrOptions& options);
    ~DiscountedCfr();
    DiscountedCfr(const DiscountedCfr&) = delete;
    DiscountedCfr& operator=(const DiscountedCfr&) = delete;

    // Returns alike on the iteration limit, the target and a cancel.
    void solve(Game& game);

    std::uint32_t iterations() const { return iterations_done; }
    float last_exploitability() const { return exploitability; }
    // False until an iteration of the last solve measured it; the value above is then 0.
    bool exploitability_measured() const { return exploitability_known; }
    std::uint64_t workers() const { return worker_count; }

    // One state for each node; nodes other than decisions with actions share one inactive state.
    std::uint64_t state_count() const { return state_of.size(); }
    const NodeState& node_state(std::uint64_t node) const {
        return state_of[node] == kNoState ? inactive_state : states[state_of[node]];
    }
    NodeState& node_state(std::uint64_t node) {
        return state_of[node] == kNoState ? inactive_state : states[state_of[node]];
    }
    // A node's matrices as floats (decoded from 16 bits where stored so); empty for an inactive or
    // unknown node.
    std::vector<float> regrets_of(std::uint64_t node) const;
    std::vector<float> strategy_sum_of(std::uint64_t node) const;
    // What the regret and strategy-sum stores hold.
    std::uint64_t state_bytes() const;
    // What the solver keeps for every node besides the stores: its state record and walk bookkeeping.
    std::uint64_t node_record_bytes() const;
    // The same as node_record_bytes() for a tree of the given shape, known before it is built.
    static std::uint64_t node_record_bytes(std::uint64_t node_count, std::uint64_t decision_count);

    // Each hand counts the same; empty for an inactive or unknown node.
    std::vector<float> average_strategy(std::uint64_t node);
    // num_actions × num_hands, action-major.
    std::vector<float> average_hand_strategy(std::uint64_t node);

    SeatValues best_response_values(const Game& game);
    SeatValues average_strategy_values(const Game& game);
    std::vector<float> node_values(const Game& game, std::uint64_t node, std::uint8_t seat);
    std::vector<float> node_values_with_reach(const Game& game, std::uint64_t node, std::uint8_t seat,
                                              std::span<const float> reach);
    // The children are walked side by side, and the node's values follow from theirs exactly as a walk
    // of the node would give them, so the node costs no walk of its own.
    NodeAndChildValues node_and_child_values_with_reach(const Game& game, std::uint64_t node, std::uint8_t seat,
                                                        std::span<const float> reach);
    // Mean over the seats of what a best response gains over the average strategy, in chips.
    float measure_exploitability(const Game& game);

    // One discounted update of both seats, t counted from 0.
    void iteration(const Game& game, std::uint32_t t);
    void prepare_states(const Game& game);

    // The update pass: counterfactual values under the current strategies; at the nodes of `seat`
    // it updates regrets and cumulative strategy.
    void solve_recursive(const Game& game, std::uint64_t node, std::uint8_t seat,
                         std::span<const float> opponent_reach, std::span<float> out, std::int32_t first_action,
                         std::uint64_t depth, ScratchStack& scratch);
    // The read-only pass: counterfactual values with both seats on the average strategy.
    void compute_cfvalue_recursive(const Game& game, std::uint64_t node, std::uint8_t seat,
                                   std::span<const float> opponent_reach, std::span<float> out, bool store,
                                   std::uint64_t depth, ScratchStack& scratch);
    // Values of a best response of `seat` against the other seat's average strategy, within seat's locks.
    void compute_best_cfvalue_recursive(const Game& game, std::uint64_t node, std::uint8_t seat,
                                        std::span<const float> opponent_reach, std::span<float> out,
                                        std::uint64_t depth, ScratchStack& scratch);

    template <class Body>
    void parallel_for(std::uint64_t count, const Body& body) {
        kelvane::parallel_for(pool.get(), worker_count, count, body);
    }

    float discount_alpha() const { return alpha_t; }
    float discount_beta() const { return beta_t; }
    float discount_gamma() const { return gamma_t; }

private:
    // Shared by the two read-only walks: the chance average and the other seat's average strategy.
    enum class ValueWalk { average, best_response };
    void value_walk(ValueWalk walk, const Game& game, std::uint64_t node, std::uint8_t seat,
                    std::span<const float> opponent_reach, std::span<float> out, std::uint64_t depth,
                    ScratchStack& scratch);
    void value_chance(ValueWalk walk, const Game& game, std::uint64_t node, std::uint8_t seat,
                      std::span<const float> opponent_reach, std::span<float> out, std::uint64_t depth,
                      ScratchStack& scratch);
    void value_opponent(ValueWalk walk, const Game& game, std::uint64_t node, std::uint8_t seat,
                        std::span<const float> opponent_reach, std::span<float> out, std::uint64_t depth,
                        ScratchStack& scratch);
    void solve_chance(const Game& game, std::uint64_t node, std::uint8_t seat, std::span<const float> opponent_reach,
                      std::span<float> out, std::int32_t first_action, std::uint64_t depth, ScratchStack& scratch);
    void solve_opponent(const Game& game, std::uint64_t node, std::uint8_t seat,
                        std::span<const float> opponent_reach, std::span<float> out, std::int32_t first_action,
                        std::uint64_t depth, ScratchStack& scratch);
    void solve_own(const Game& game, std::uint64_t node, std::uint8_t seat, std::span<const float> opponent_reach,
                   std::span<float> out, std::int32_t first_action, std::uint64_t depth, ScratchStack& scratch);
    SeatValues root_values(const Game& game, ValueWalk walk);
    // Walks children [0, count) of `node` as walk(a, scratch). Where the subtree pays for a fan-out
    // they go side by side, each chunk on a scratch stack leased by the thread that runs it; else in
    // order on the caller's `scratch`. Each child writes only its own rows, so the result is the same.
    template <class Walk>
    void for_each_child(std::uint64_t node, std::uint64_t count, std::uint8_t seat, ScratchStack& scratch,
                        const Walk& walk) {
        if (!fans_out(node, seat)) {
            for (std::uint64_t a = 0; a < count; ++a) walk(a, scratch);
            return;
        }
        parallel_for(count, [&](std::uint64_t begin, std::uint64_t end) {
            ScratchLease lease;
            for (std::uint64_t a = begin; a < end; ++a) walk(a, lease.stack());
        });
    }
    // Whether a walk for `seat` spreads the node's children over the pool.
    bool fans_out(std::uint64_t node, std::uint8_t seat) const;
    // A node's matrices as float rows: the stores' own, or decoded into `buffer` from 16 bits.
    std::span<float> regret_rows(const NodeState& state, std::vector<float>& buffer);
    std::span<float> strategy_sum_rows(const NodeState& state, std::vector<float>& buffer);
    std::vector<float> matrix_of(std::uint64_t node, const StateStore& store, float NodeState::*scale) const;
    // Packs changed rows back where the stores hold 16 bits.
    void keep_regrets(NodeState& state, std::span<const float> rows);
    void keep_strategy_sums(NodeState& state, std::span<const float> rows);
    void walk_children(const Game& game, std::span<const std::uint64_t> children, std::uint8_t seat,
                       std::span<const float> reach, std::span<float> out);

    DiscountedCfrOptions options;
    float exploitability = 0.0f;
    bool exploitability_known = false;
    std::uint32_t iterations_done = 0;
    std::uint32_t current_iteration = 0;
    std::array<std::vector<float>, 2> iteration_values;
    std::array<std::vector<float>, 2> result_values;
    static constexpr std::uint32_t kNoState = 0xFFFFFFFFu;
    std::vector<NodeState> states;  // decision nodes with actions, in node order
    std::vector<std::uint32_t> state_of;
    NodeState inactive_state;
    StateStore regret_store;
    StateStore strategy_sum_store;
    bool compress_state = false;
    // Bit s set where a walk for seat s spreads the node's children: chance and decision nodes alike.
    std::vector<std::uint8_t> fan_out_seats;
    float alpha_t = 0.0f;
    float beta_t = 0.5f;
    float gamma_t = 0.0f;
    std::uint64_t worker_count = 1;
    std::unique_ptr<WorkerPool> pool;
    std::array<ScratchStack, 2> scratch;
};

}  // namespace kelvane
