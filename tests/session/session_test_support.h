#pragma once
// Small spots built in code and a recorder that waits for the last message of a solve run.

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "session/solve_config.h"
#include "session/solve_session.h"

namespace kelvane_app {

// A river spot small enough to solve in milliseconds: one bet size, no raises.
inline SolveConfig small_river_spot() {
    SolveConfig config;
    config.board = "AhKs7d2c3h";
    config.starting_street = "river";
    config.oop_range = "AA,KK,77,65s";
    config.ip_range = "QQ,JJ,AK,76s";
    config.oop.river.bet_sizes = "50";
    config.ip.river.bet_sizes = "50";
    config.max_iterations = 20;
    config.thread_count = 1;
    return config;
}

// Every message of one run, in order; `hook` runs on the worker after each one is stored.
class RunRecorder {
public:
    std::function<void(const SolveProgress&)> hook;

    ProgressCallback callback() {
        return [this](const SolveProgress& message) {
            {
                const std::lock_guard lock(mutex_);
                messages_.push_back(message);
            }
            if (hook) hook(message);
            if (message.result) {
                const std::lock_guard lock(mutex_);
                finished_ = true;
                done_.notify_all();
            }
        };
    }

    // Waits for the message with the result, then for the session to lower its flag.
    std::vector<SolveProgress> wait(const SolveSession& session) {
        std::unique_lock lock(mutex_);
        done_.wait(lock, [this] { return finished_; });
        lock.unlock();
        while (session.is_running()) std::this_thread::sleep_for(std::chrono::milliseconds(1));
        lock.lock();
        return messages_;
    }

private:
    std::mutex mutex_;
    std::condition_variable done_;
    std::vector<SolveProgress> messages_;
    bool finished_ = false;
};

inline std::vector<std::string> statuses(const std::vector<SolveProgress>& messages) {
    std::vector<std::string> texts;
    for (const SolveProgress& message : messages) texts.push_back(message.status);
    return texts;
}

inline SolveResult solve_to_end(SolveSession& session, const SolveConfig& config) {
    RunRecorder recorder;
    if (!session.start(config, recorder.callback())) return {};
    return *recorder.wait(session).back().result;
}

}  // namespace kelvane_app
