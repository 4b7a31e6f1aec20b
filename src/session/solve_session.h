#pragma once
// The one background solve: admits a run, works on a detached thread, and keeps the finished game
// and solver for the queries that read the solution afterwards.

#include <atomic>
#include <mutex>

#include "session/solve_config.h"
#include "session/solve_pipeline.h"
#include "session/solve_result.h"

namespace kelvane_app {

class SolveSession {
public:
    SolveSession() = default;
    SolveSession(const SolveSession&) = delete;
    SolveSession& operator=(const SolveSession&) = delete;

    // Begins a run on a new detached thread; false, with nothing changed, while one is running.
    // The previous solution is dropped at once. The last message carries the result.
    bool start(const SolveConfig& config, ProgressCallback on_progress);
    // Seen by the solver at its next iteration; init and finalizing stages run on regardless.
    void cancel();
    bool is_running() const;
    void clear();
    // Copies of the published game and solver; both empty while a run is going or after a failure.
    SolvedGame solution() const;

private:
    void run(const SolveConfig& config, const ProgressCallback& on_progress);
    void publish(const SolvedGame& solved);

    std::atomic<bool> running{false};
    std::atomic<bool> cancel_requested{false};
    mutable std::mutex mutex;  // guards the two pointers and nothing else
    std::shared_ptr<kelvane::Game> game;
    std::shared_ptr<kelvane::DiscountedCfr> solver;
};

}  // namespace kelvane_app
