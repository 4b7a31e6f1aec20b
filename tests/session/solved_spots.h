#pragma once
// Small spots solved once per test program through the session, and helpers to find their nodes.

#include <chrono>
#include <cstdint>
#include <future>
#include <stdexcept>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "poker/cards.h"
#include "poker/hand_evaluator.h"
#include "session/solution_view.h"
#include "session/solve_config.h"
#include "session/solve_session.h"

namespace kelvane_app::testing {

inline constexpr const char* kRiverOopRange = "AA,KK,K9s,T9s,55,AQs,QJs,43s";

// A river with one bet and one raise size. Both ranges hold 43s, the weakest hand of either, so no
// hand lies below the whole opposing showdown row.
inline SolveConfig river_spot() {
    SolveConfig config;
    config.board = "KhTh9s5c2d";
    config.starting_street = "river";
    config.starting_pot = 100;
    config.effective_stack = 300;
    config.oop_range = kRiverOopRange;
    config.ip_range = "AK,KQs,99,JTs,76s,A5s,43s,QJo";
    for (SeatSizing* seat : {&config.oop, &config.ip}) {
        seat->river.bet_sizes = "75%";
        seat->river.raise_sizes = "3x";
    }
    config.max_iterations = 300;
    config.target_exploitability = 0.0f;
    return config;
}

// The river spot with every OOP class locked to check at the root, so the bet is never played.
inline SolveConfig river_spot_checked() {
    SolveConfig config = river_spot();
    config.max_iterations = 50;
    for (const char* label : {"AA", "KK", "K9s", "T9s", "55", "AQs", "QJs", "43s"})
        config.node_locks.push_back({0, label, 0, 1.0f});
    return config;
}

// A turn start: chance nodes deal the river, and the root's equity is sampled.
inline SolveConfig turn_spot() {
    SolveConfig config;
    config.board = "Qs8d4c3h";
    config.starting_street = "turn";
    config.starting_pot = 100;
    config.effective_stack = 100;
    config.oop_range = "AA,QQ,88,AQs,KQs,T9s,65s";
    config.ip_range = "KK,44,AQo,QJs,J9s,76s,A5s";
    for (SeatSizing* seat : {&config.oop, &config.ip}) {
        seat->turn.bet_sizes = "50%";
        seat->river.bet_sizes = "50%";
    }
    config.max_iterations = 100;
    config.target_exploitability = 0.0f;
    return config;
}

// Runs one solve to its last message and waits for the session to lower its flag.
inline SolveResult run_to_end(SolveSession& session, const SolveConfig& config) {
    std::promise<SolveResult> last;
    std::future<SolveResult> result = last.get_future();
    const bool started = session.start(config, [&last](const SolveProgress& message) {
        if (message.result) last.set_value(*message.result);
    });
    if (!started) throw std::runtime_error("a solve is already running");
    SolveResult answer = result.get();
    while (session.is_running()) std::this_thread::sleep_for(std::chrono::milliseconds(1));
    return answer;
}

inline SolveSession& solved(SolveConfig (*spot)()) {
    struct Solved {
        SolveSession session;
        explicit Solved(const SolveConfig& config) {
            if (!run_to_end(session, config).success) throw std::runtime_error("the test spot did not solve");
        }
    };
    if (spot == &river_spot) {
        static Solved river(river_spot());
        return river.session;
    }
    if (spot == &river_spot_checked) {
        static Solved checked(river_spot_checked());
        return checked.session;
    }
    static Solved turn(turn_spot());
    return turn.session;
}

inline SolutionView solution_of(SolveConfig (*spot)()) { return solved(spot).solution(); }

// The child of `node` reached by the first action whose type text starts with `type`.
inline std::uint64_t child_by_type(const kelvane::Game& game, std::uint64_t node, std::string_view type) {
    const std::vector<std::string> types = node_action_types(game, node);
    for (std::size_t a = 0; a < types.size(); ++a)
        if (types[a].rfind(type, 0) == 0) return game.node(node).children[a];
    throw std::runtime_error("no action of type " + std::string(type));
}

inline std::size_t action_by_type(const kelvane::Game& game, std::uint64_t node, std::string_view type) {
    const std::vector<std::string> types = node_action_types(game, node);
    for (std::size_t a = 0; a < types.size(); ++a)
        if (types[a].rfind(type, 0) == 0) return a;
    throw std::runtime_error("no action of type " + std::string(type));
}

inline bool collide(kelvane::Pocket a, kelvane::Pocket b) {
    return (kelvane::pocket_mask(a) & kelvane::pocket_mask(b)) != 0;
}

inline std::uint64_t first_of_kind(const kelvane::Game& game, std::uint8_t kind) {
    for (std::uint64_t i = 0; i < game.node_count(); ++i)
        if (game.node(i).kind == kind) return i;
    throw std::runtime_error("no node of that kind");
}

}  // namespace kelvane_app::testing
