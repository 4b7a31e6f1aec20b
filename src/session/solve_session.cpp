// The solve session's frame around the pipeline: admission, the worker thread, and the three ways a
// run ends ("Done", "Cancelled", "Error: ...").

#include "session/solve_session.h"

#include <atomic>
#include <exception>
#include <mutex>
#include <string>
#include <utility>

#include "session/detached_threads.h"
#include "session/solve_validation.h"

namespace kelvane_app {

struct SolveSessionState {
    std::atomic<bool> running{false};
    std::atomic<bool> cancel_requested{false};
    mutable std::mutex mutex;  // guards the two pointers and nothing else
    std::shared_ptr<kelvane::Game> game;
    std::shared_ptr<kelvane::DiscountedCfr> solver;
};

namespace {

constexpr const char* kStatusDone = "Done";
constexpr const char* kStatusCancelled = "Cancelled";
constexpr const char* kErrorPrefix = "Error: ";
constexpr const char* kUnknownError = "Unknown error";

void send_result(const ProgressCallback& on_progress, double progress, std::string status, SolveResult result) {
    if (on_progress) on_progress({progress, std::move(status), std::move(result)});
}

void send_failure(const ProgressCallback& on_progress, SolveResult& result, const std::string& error) {
    result.success = false;
    result.error = error;
    send_result(on_progress, 0.0, kErrorPrefix + error, std::move(result));
}

void publish(SolveSessionState& state, const SolvedGame& solved) {
    const std::lock_guard lock(state.mutex);
    state.game = solved.game;
    state.solver = solved.solver;
}

// Everything up to and including the last message; the game and solver it built are released on return.
void run(SolveSessionState& state, const SolveConfig& config, const ProgressCallback& on_progress) {
    SolveResult result;
    result.board = config.board;
    try {
        const kelvane::BoardCards board = validate_solve_config(config);
        std::optional<SolvedGame> solved =
            run_solve_pipeline(config, board, result, on_progress, state.cancel_requested);
        if (solved) {
            publish(state, *solved);
            result.success = true;
            send_result(on_progress, 1.0, kStatusDone, std::move(result));
        } else {
            // The result holds what the iterations reached, but nothing is published to query.
            result.success = false;
            result.error = kStatusCancelled;
            send_result(on_progress, 0.0, kStatusCancelled, std::move(result));
        }
    } catch (const std::exception& failure) {
        send_failure(on_progress, result, failure.what());
    } catch (...) {
        send_failure(on_progress, result, kUnknownError);
    }
}

// What the worker thread owns for the length of the run, the session's state included.
struct WorkerJob {
    std::shared_ptr<SolveSessionState> state;
    SolveConfig config;
    ProgressCallback on_progress;
    RunEndCallback on_end;
    std::function<void()> hold_before_flag_falls;

    void operator()() const {
        run(*state, config, on_progress);
        if (hold_before_flag_falls) hold_before_flag_falls();
        // Falls only after the last message, so a reader that sees it down has seen the result.
        state->running.store(false);
        if (on_end) on_end();
    }
};

}  // namespace

SolveSession::SolveSession() : state(std::make_shared<SolveSessionState>()) {}

SolveSession::~SolveSession() { cancel(); }

bool SolveSession::start(const SolveConfig& config, ProgressCallback on_progress, RunEndCallback on_end) {
    if (state->running.exchange(true)) return false;
    state->cancel_requested.store(false);
    clear();
    start_detached_thread(
        WorkerJob{state, config, std::move(on_progress), std::move(on_end), hold_before_flag_falls});
    return true;
}

void SolveSession::cancel() { state->cancel_requested.exchange(true); }

bool SolveSession::is_running() const { return state->running.load(); }

void SolveSession::clear() {
    const std::lock_guard lock(state->mutex);
    state->game.reset();
    state->solver.reset();
}

SolvedGame SolveSession::solution() const {
    const std::lock_guard lock(state->mutex);
    return {state->game, state->solver};
}

void SolveSession::set_hold_before_flag_falls(std::function<void()> hold) {
    hold_before_flag_falls = std::move(hold);
}

}  // namespace kelvane_app
