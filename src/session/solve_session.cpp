// The solve session's frame around the pipeline: admission, the worker thread, and the three ways a
// run ends ("Done", "Cancelled", "Error: ...").

#include "session/solve_session.h"

#include <exception>
#include <memory>
#include <string>
#include <thread>
#include <utility>

namespace kelvane_app {
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

// What the worker thread owns for the length of the run.
struct WorkerJob {
    SolveSession* session;
    SolveConfig config;
    ProgressCallback on_progress;
};

}  // namespace

bool SolveSession::start(const SolveConfig& config, ProgressCallback on_progress) {
    if (running.exchange(true)) return false;
    cancel_requested.store(false);
    clear();
    auto job = std::make_unique<WorkerJob>(WorkerJob{this, config, std::move(on_progress)});
    std::thread([job = std::move(job)] { job->session->run(job->config, job->on_progress); }).detach();
    return true;
}

void SolveSession::cancel() { cancel_requested.exchange(true); }

bool SolveSession::is_running() const { return running.load(); }

void SolveSession::clear() {
    const std::lock_guard lock(mutex);
    game.reset();
    solver.reset();
}

SolvedGame SolveSession::solution() const {
    const std::lock_guard lock(mutex);
    return {game, solver};
}

void SolveSession::publish(const SolvedGame& solved) {
    const std::lock_guard lock(mutex);
    game = solved.game;
    solver = solved.solver;
}

void SolveSession::run(const SolveConfig& config, const ProgressCallback& on_progress) {
    SolveResult result;
    result.board = config.board;
    try {
        const kelvane::BoardCards board = kelvane::parse_board_text(config.board);
        std::optional<SolvedGame> solved = run_solve_pipeline(config, board, result, on_progress, cancel_requested);
        if (solved) {
            publish(*solved);
            result.success = true;
            send_result(on_progress, 1.0, kStatusDone, std::move(result));
        } else {
            // The iterations done are lost: a cancelled run leaves nothing to query.
            result.success = false;
            result.error = kStatusCancelled;
            send_result(on_progress, 0.0, kStatusCancelled, std::move(result));
        }
    } catch (const std::exception& failure) {
        send_failure(on_progress, result, failure.what());
    } catch (...) {
        send_failure(on_progress, result, kUnknownError);
    }
    // Falls only after the last message, so a reader that sees it down has seen the result.
    running.store(false);
}

}  // namespace kelvane_app
