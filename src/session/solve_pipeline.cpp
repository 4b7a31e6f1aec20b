// The stages of one solve run, in order. Init and finalizing stages can't be interrupted; only the
// solver polls the cancel flag, once per iteration.

#include "session/solve_pipeline.h"

#include <algorithm>
#include <cstdio>

#include "poker/card_context.h"
#include "poker/range_text.h"
#include "session/node_lock_setup.h"
#include "session/result_snapshot.h"
#include "session/solve_setup.h"

namespace kelvane_app {
namespace {

constexpr double kRunningProgressCap = 0.999;

constexpr const char* kStatusBuildingGame = "Init: building game object...";
constexpr const char* kStatusBuildingTree = "Init: building game tree structures...";
constexpr const char* kStatusStartingSolver = "Init: starting solver...";
constexpr const char* kStatusComputingResults = "Finalizing: computing results...";
constexpr const char* kStatusBuildingSnapshot = "Finalizing: building result snapshot...";

void send(const ProgressCallback& on_progress, double progress, std::string status) {
    if (on_progress) on_progress({progress, std::move(status), std::nullopt});
}

kelvane::DiscountedCfrOptions solver_options(const SolveConfig& config, const ProgressCallback& on_progress,
                                             const std::atomic<bool>& cancel_requested) {
    kelvane::DiscountedCfrOptions options;
    options.max_iterations = config.max_iterations;
    options.target_exploitability = config.target_exploitability;
    options.exploit_check_interval = kExploitCheckInterval;
    options.verbose = false;
    options.compress_state = config.solver_flag;
    options.thread_count = config.thread_count;
    // One message for every iteration: the pages read the iteration and the value back out of it.
    options.on_iteration = [&on_progress, limit = config.max_iterations](std::uint32_t iteration,
                                                                         float exploitability, double) {
        send(on_progress, capped_progress(iteration, limit), iteration_status(iteration, exploitability));
    };
    options.should_cancel = [&cancel_requested] { return cancel_requested.load(); };
    return options;
}

// Stages 1 to 4: ranges, then the game description with all sizing compiled.
SolveSetup read_setup(const SolveConfig& config, const kelvane::BoardCards& board, SolveResult& result) {
    SolveSetup setup;
    setup.board = board;
    setup.ranges[kelvane::kSeatOop] = kelvane::parse_range_or_percent(config.oop_range);
    setup.ranges[kelvane::kSeatIp] = kelvane::parse_range_or_percent(config.ip_range);
    result.starting_pot = config.starting_pot;
    result.effective_stack = config.effective_stack;
    setup.game = make_game_config(config);
    return setup;
}

}  // namespace

double capped_progress(std::uint32_t iteration, std::uint32_t max_iterations) {
    const double fraction = max_iterations == 0 ? 0.0 : static_cast<double>(iteration) / max_iterations;
    return std::min(std::max(fraction, 0.0), kRunningProgressCap);
}

std::string iteration_status(std::uint32_t iteration, float exploitability) {
    char value[64];
    std::snprintf(value, sizeof value, "%.4f", static_cast<double>(exploitability));
    return "Iter " + std::to_string(iteration) + " | exploitability\u2248" + value;
}

std::optional<SolvedGame> run_solve_pipeline(const SolveConfig& config, const kelvane::BoardCards& board,
                                             SolveResult& result, const ProgressCallback& on_progress,
                                             const std::atomic<bool>& cancel_requested) {
    const SolveSetup setup = read_setup(config, board, result);
    send(on_progress, 0.0, kStatusBuildingGame);
    auto game = std::make_shared<kelvane::Game>(setup.game, kelvane::CardContext(setup.board, setup.ranges));
    if (!config.node_locks.empty()) apply_node_locks(*game, config.node_locks);

    const kelvane::DiscountedCfrOptions options = solver_options(config, on_progress, cancel_requested);
    send(on_progress, 0.0, kStatusBuildingTree);
    auto solver = std::make_shared<kelvane::DiscountedCfr>(options);
    send(on_progress, 0.0, kStatusStartingSolver);
    solver->solve(*game);
    // A cancel that arrives after this test is ignored: the run finishes normally.
    const bool cancelled = cancel_requested.load();

    // A cancelled run still reports what its iterations reached, but without the finalizing texts,
    // which the pages take for a run about to finish.
    const ProgressCallback no_progress;
    const ProgressCallback& finalizing = cancelled ? no_progress : on_progress;
    const double progress = capped_progress(solver->iterations(), config.max_iterations);
    send(finalizing, progress, kStatusComputingResults);
    result.iterations = solver->iterations();
    result.exploitability = solver->last_exploitability();
    result.exploitability_measured = solver->exploitability_measured();
    const kelvane::SeatValues evs = solver->average_strategy_values(*game);
    result.ev_oop = evs[kelvane::kSeatOop];
    result.ev_ip = evs[kelvane::kSeatIp];
    fill_root_actions(result, *game, *solver, config.starting_pot);

    send(finalizing, progress, kStatusBuildingSnapshot);
    snapshot_nodes(result, *game, *solver);
    if (cancelled) return std::nullopt;
    return SolvedGame{std::move(game), std::move(solver)};
}

}  // namespace kelvane_app
