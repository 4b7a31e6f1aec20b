// Status lines as they come, or one live progress line on a terminal.

#include "cli/status_echo.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <string_view>

#include "cli/terminal.h"
#include "session/solve_pipeline.h"

namespace kelvane_cli {
namespace {

// The worker's texts that the live line reads: "Iter 50 | exploitability≈0.1234".
constexpr std::string_view kIterationPrefix = "Iter ";
constexpr std::string_view kValueMark = "\u2248";
constexpr const char* kSolverStartStatus = "Init: starting solver...";

// Iterations can come by the thousand a second; a person reads a few redraws a second.
constexpr auto kRedrawInterval = std::chrono::milliseconds(100);
constexpr const char* kEraseToLineEnd = "\x1b[K";
constexpr int kSecondsPerMinute = 60;
constexpr int kSecondsPerHour = 3600;

struct IterationStatus {
    std::uint32_t iteration = 0;
    double exploitability = 0.0;
};

std::optional<IterationStatus> read_iteration(const std::string& status) {
    if (status.rfind(kIterationPrefix, 0) != 0) return std::nullopt;
    IterationStatus read;
    const char* const end = status.data() + status.size();
    const auto [after_number, number_error] =
        std::from_chars(status.data() + kIterationPrefix.size(), end, read.iteration);
    const std::size_t mark = status.find(kValueMark);
    if (number_error != std::errc() || mark == std::string::npos) return std::nullopt;
    const auto [after_value, value_error] =
        std::from_chars(status.data() + mark + kValueMark.size(), end, read.exploitability);
    if (value_error != std::errc()) return std::nullopt;
    return read;
}

std::string duration_text(double seconds) {
    const long total = std::lround(std::max(seconds, 0.0));
    char text[32];
    if (total >= kSecondsPerHour)
        std::snprintf(text, sizeof text, "%ld:%02ld:%02ld", total / kSecondsPerHour,
                      total % kSecondsPerHour / kSecondsPerMinute, total % kSecondsPerMinute);
    else
        std::snprintf(text, sizeof text, "%ld:%02ld", total / kSecondsPerMinute, total % kSecondsPerMinute);
    return text;
}

double seconds_between(std::chrono::steady_clock::time_point from, std::chrono::steady_clock::time_point to) {
    return std::chrono::duration<double>(to - from).count();
}

}  // namespace

StatusEcho::StatusEcho(Mode mode, std::uint32_t max_iterations, std::int32_t starting_pot)
    : mode_(mode), max_iterations_(max_iterations), starting_pot_(starting_pot) {}

void StatusEcho::show(const std::string& status) {
    if (mode_ == Mode::silent) return;
    const std::lock_guard lock(mutex_);
    if (mode_ == Mode::lines) {
        std::fprintf(stderr, "%s\n", status.c_str());
        std::fflush(stderr);
        return;
    }
    show_live(status);
}

void StatusEcho::show_cancelling() {
    if (mode_ != Mode::live) return;
    const std::lock_guard lock(mutex_);
    close_live_line();
    std::fputs("Cancelling after this iteration... (interrupt again to quit at once)\n", stderr);
    std::fflush(stderr);
}

void StatusEcho::show_live(const std::string& status) {
    const Clock::time_point now = Clock::now();
    if (const std::optional<IterationStatus> read = read_iteration(status)) {
        iteration_ = read->iteration;
        exploitability_ = read->exploitability;
        undrawn_ = true;
        if (!drawn_at_ || now - *drawn_at_ >= kRedrawInterval) draw(now);
        return;
    }
    if (status == kSolverStartStatus) solver_started_ = now;
    // The last iteration stays on screen above what follows it.
    if (undrawn_) draw(now);
    close_live_line();
    std::fprintf(stderr, "%s\n", status.c_str());
    std::fflush(stderr);
}

void StatusEcho::draw(Clock::time_point now) {
    std::string line = "Iter " + std::to_string(iteration_);
    if (max_iterations_ > 0) line += " of " + std::to_string(max_iterations_);
    line += " | " + exploitability_text() + pace_text(now);
    std::fprintf(stderr, "\r%s%s", line.c_str(), kEraseToLineEnd);
    std::fflush(stderr);
    drawn_at_ = now;
    undrawn_ = false;
    line_open_ = true;
}

void StatusEcho::close_live_line() {
    if (!line_open_) return;
    std::fputc('\n', stderr);
    line_open_ = false;
}

// The worker repeats the last measured value, 0 before the first: that is no measurement.
std::string StatusEcho::exploitability_text() const {
    const std::uint32_t first_measure = std::min(kelvane_app::kExploitCheckInterval, max_iterations_);
    if (iteration_ < first_measure) return "exploitability: measuring at " + std::to_string(first_measure);
    char text[96];
    if (starting_pot_ > 0)
        std::snprintf(text, sizeof text, "exploitability %.4f (%.2f%% of the pot)", exploitability_,
                      exploitability_ / starting_pot_ * 100.0);
    else
        std::snprintf(text, sizeof text, "exploitability %.4f", exploitability_);
    return text;
}

// Speed over the iterations so far; the time left is an upper bound, since the target may end the run sooner.
std::string StatusEcho::pace_text(Clock::time_point now) const {
    std::string text = " | " + duration_text(seconds_between(started_, now)) + " elapsed";
    const double solving = solver_started_ ? seconds_between(*solver_started_, now) : 0.0;
    if (solving <= 0.0 || iteration_ == 0) return text;
    const double rate = iteration_ / solving;
    char speed[32];
    std::snprintf(speed, sizeof speed, " | %.1f it/s", rate);
    text = speed + text;
    if (max_iterations_ > iteration_)
        text += " | at most " + duration_text((max_iterations_ - iteration_) / rate) + " left";
    return text;
}

StatusEcho::Mode status_echo_mode(bool quiet) {
    if (quiet) return StatusEcho::Mode::silent;
    return stderr_is_terminal() ? StatusEcho::Mode::live : StatusEcho::Mode::lines;
}

}  // namespace kelvane_cli
