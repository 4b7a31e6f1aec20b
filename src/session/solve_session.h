#pragma once
// The one background solve: admits a run, works on a detached thread, and keeps the finished game
// and solver for the queries that read the solution afterwards.

#include <functional>
#include <memory>

#include "session/solve_config.h"
#include "session/solve_pipeline.h"
#include "session/solve_result.h"

namespace kelvane_app {

// Called on the worker once its flag has fallen, the last thing a run does.
using RunEndCallback = std::function<void()>;

// What a run shares with its session: the flags, the mutex and the published pointers.
struct SolveSessionState;

class SolveSession {
public:
    SolveSession();
    // Cancels a run still going; its worker ends on its own at the next poll, holding all it uses.
    ~SolveSession();
    SolveSession(const SolveSession&) = delete;
    SolveSession& operator=(const SolveSession&) = delete;

    // Begins a run on a new detached thread; false, with nothing changed, while one is running.
    // The previous solution is dropped at once. The last message carries the result; `on_end` follows
    // once is_running() has turned false.
    bool start(const SolveConfig& config, ProgressCallback on_progress, RunEndCallback on_end = {});
    // Seen by the solver at its next iteration; init and finalizing stages run on regardless.
    void cancel();
    bool is_running() const;
    void clear();
    // Copies of the published game and solver; both empty while a run is going or after a failure.
    SolvedGame solution() const;

    // Runs on the worker of each later start between its last message and the fall of its flag, so
    // that a test can hold a run in that window.
    void set_hold_before_flag_falls(std::function<void()> hold);

private:
    // The worker keeps its own reference, so the session may end first.
    std::shared_ptr<SolveSessionState> state;
    std::function<void()> hold_before_flag_falls;
};

}  // namespace kelvane_app
