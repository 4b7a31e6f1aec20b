#pragma once
// What a solve run does between the parsed board and the finished result: set-up, game, solver,
// iterations, and the snapshot, each stage announced in a status text that the pages parse.

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "poker/cards.h"
#include "session/solve_config.h"
#include "session/solve_result.h"
#include "solver/discounted_cfr.h"
#include "solver/game.h"

namespace kelvane_app {

// Each message is handed over, so a reader can keep the result without copying the tree.
using ProgressCallback = std::function<void(SolveProgress)>;

// A finished game with the solver that holds its strategies.
struct SolvedGame {
    std::shared_ptr<kelvane::Game> game;
    std::shared_ptr<kelvane::DiscountedCfr> solver;
};

// Exploitability is measured every this many iterations (and at the last one).
inline constexpr std::uint32_t kExploitCheckInterval = 50;

// iteration / max_iterations, kept below 1 so that only "Done" ever shows 1.
double capped_progress(std::uint32_t iteration, std::uint32_t max_iterations);

// "Iter 50 | exploitability≈0.1234".
std::string iteration_status(std::uint32_t iteration, float exploitability);

// Fills `result` and returns the solved game, or nothing when `cancel_requested` was set by the end
// of the solve. Errors leave as exceptions.
std::optional<SolvedGame> run_solve_pipeline(const SolveConfig& config, const kelvane::BoardCards& board,
                                             SolveResult& result, const ProgressCallback& on_progress,
                                             const std::atomic<bool>& cancel_requested);

}  // namespace kelvane_app
