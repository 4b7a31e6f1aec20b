#pragma once
// The worker's status texts on standard error. Without a terminal each text is a line of its own,
// exactly as the worker sent it, since scripts read them back; on a terminal the iterations share one
// line, rewritten in place, that a person can read.

#include <chrono>
#include <cstdint>
#include <mutex>
#include <optional>
#include <string>

namespace kelvane_cli {

class StatusEcho {
public:
    enum class Mode { silent, lines, live };

    StatusEcho(Mode mode, std::uint32_t max_iterations, std::int32_t starting_pot);

    // From the worker, one message after another.
    void show(const std::string& status);
    // From the command's thread, when a signal has asked the run to stop.
    void show_cancelling();

private:
    using Clock = std::chrono::steady_clock;

    void show_live(const std::string& status);
    void draw(Clock::time_point now);
    void close_live_line();
    std::string exploitability_text() const;
    std::string pace_text(Clock::time_point now) const;

    const Mode mode_;
    const std::uint32_t max_iterations_;
    const std::int32_t starting_pot_;
    const Clock::time_point started_ = Clock::now();
    std::mutex mutex_;
    std::optional<Clock::time_point> solver_started_;
    std::optional<Clock::time_point> drawn_at_;
    std::uint32_t iteration_ = 0;
    double exploitability_ = 0.0;
    bool undrawn_ = false;    // an iteration arrived since the line was last drawn
    bool line_open_ = false;  // the live line is on screen without its line end
};

// Live on a terminal, plain lines otherwise, nothing when quiet.
StatusEcho::Mode status_echo_mode(bool quiet);

}  // namespace kelvane_cli
