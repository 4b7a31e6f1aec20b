// orvanthis-cli solve SPOT.json: one solve session run exactly as the application starts it, with
// the status texts (or, on a terminal, a live progress line) and a closing summary on standard error,
// and the result as JSON. A first SIGINT or SIGTERM cancels the run, which still reports what it reached.

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <sys/resource.h>

#include <algorithm>
#include <atomic>
#include <cctype>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <cmath>
#include <condition_variable>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <limits>
#include <memory>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "cli/commands.h"
#include "cli/memory_limit.h"
#include "cli/output_file.h"
#include "cli/result_lines.h"
#include "cli/solve_summary.h"
#include "cli/spot_file.h"
#include "cli/spot_matchup.h"
#include "cli/status_echo.h"
#include "session/memory_estimate.h"
#include "session/solve_session.h"
#include "session/solve_setup.h"
#include "session/solve_validation.h"

namespace kelvane_cli {
namespace {

using Clock = std::chrono::steady_clock;

constexpr auto kInterruptPoll = std::chrono::milliseconds(10);
constexpr const char* kSolverStartStatus = "Init: starting solver...";
constexpr const char* kFinalizingPrefix = "Finalizing:";
constexpr std::int64_t kRssUnitBytes = 1024;  // ru_maxrss is in kilobytes
constexpr std::uint64_t kMostIterations = std::numeric_limits<std::uint32_t>::max();
constexpr int kExitSignalBase = 128;  // the shell's code for a process ended by a signal
constexpr int kStopSignals[] = {SIGINT, SIGTERM};

std::atomic<bool> interrupted{false};
static_assert(std::atomic<bool>::is_always_lock_free, "the signal handler may only touch a lock-free flag");

// The first signal asks for a cancel, which keeps what was computed; a second one ends the process at once.
extern "C" void on_stop_signal(int signal_number) {
    if (interrupted.exchange(true)) std::_Exit(kExitSignalBase + signal_number);
}

void handle_stop_signals(void (*handler)(int)) {
    for (const int signal_number : kStopSignals) std::signal(signal_number, handler);
}

struct SolveOptions {
    std::string spot_path;
    std::optional<std::uint64_t> threads;
    std::optional<std::uint32_t> max_iterations;
    std::optional<double> target_pct;  // of the starting pot
    bool compress = false;
    bool showdown_early_stop = false;
    bool quiet = false;
    std::optional<std::uint64_t> max_memory;
    std::string output;
    std::vector<std::string> lines;
};

bool is_negative_whole(const std::string& text) {
    const auto digit = [](char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; };
    return text.size() > 1 && text[0] == '-' && std::all_of(text.begin() + 1, text.end(), digit);
}

// A whole number from 0 to `most`, refused in words that say which end it passed.
std::uint64_t parse_count(const std::string& text, const std::string& option, std::uint64_t most) {
    std::uint64_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool whole = end == text.data() + text.size() && error != std::errc::invalid_argument;
    if (whole && (error == std::errc::result_out_of_range || value > most))
        throw UsageError{option + " must be at most " + std::to_string(most) + " (got " + text + ")"};
    if (whole) return value;
    if (is_negative_whole(text)) throw UsageError{option + " must be at least 0 (got " + text + ")"};
    throw UsageError{option + " needs a number, not '" + text + "'"};
}

double parse_percent(const std::string& text, const std::string& option) {
    double value = 0.0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(value))
        throw UsageError{option + " needs a number, not '" + text + "'"};
    if (value < 0.0) throw UsageError{option + " must be at least 0 (got " + text + ")"};
    return value;
}

SolveOptions parse_options(const Arguments& args) {
    SolveOptions options;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& arg = args[i];
        const auto value = [&]() -> const std::string& {
            if (i + 1 >= args.size()) throw UsageError{arg + " needs a value"};
            return args[++i];
        };
        if (arg == "--threads") options.threads = parse_count(value(), arg, kelvane_app::kMaxThreadCount);
        else if (arg == "--max-iterations")
            options.max_iterations = static_cast<std::uint32_t>(parse_count(value(), arg, kMostIterations));
        else if (arg == "--target-pct") options.target_pct = parse_percent(value(), arg);
        else if (arg == "--compress") options.compress = true;
        else if (arg == "--showdown-early-stop") options.showdown_early_stop = true;
        else if (arg == "--quiet") options.quiet = true;
        else if (arg == kMaxMemoryOption) options.max_memory = parse_memory_size(value());
        else if (arg == "--output") options.output = value();
        else if (arg == "--line") options.lines.push_back(value());
        else if (arg.rfind("--", 0) == 0) throw UsageError{"unknown option '" + arg + "'"};
        else if (options.spot_path.empty()) options.spot_path = arg;
        else throw UsageError{"solve takes one spot file"};
    }
    if (options.spot_path.empty()) throw UsageError{"solve takes one spot file"};
    return options;
}

kelvane_app::SolveConfig make_config(const SolveOptions& options) {
    kelvane_app::SolveConfig config = read_spot_config(QString::fromStdString(options.spot_path));
    if (options.threads) config.thread_count = *options.threads;
    if (options.max_iterations) config.max_iterations = *options.max_iterations;
    if (options.target_pct) config.target_exploitability = static_cast<float>(*options.target_pct / 100.0 * config.starting_pot);
    if (options.compress) config.solver_flag = true;
    if (options.showdown_early_stop) config.showdown_early_stop = true;
    return config;
}

// The worker's messages as the command sees them: echoed, timed, and the result kept.
class RunWatch {
public:
    explicit RunWatch(StatusEcho& echo) : echo_(echo) {}

    kelvane_app::ProgressCallback callback() {
        return [this](kelvane_app::SolveProgress message) { receive(std::move(message)); };
    }

    // Waits for the last message, passing a stop signal on as a cancel, then for the worker to let go.
    kelvane_app::SolveResult wait(kelvane_app::SolveSession& session) {
        std::unique_lock lock(mutex_);
        bool cancel_sent = false;
        while (!result_) {
            arrived_.wait_for(lock, kInterruptPoll);
            if (interrupted.load() && !cancel_sent) {
                session.cancel();
                cancel_sent = true;
                echo_.show_cancelling();
            }
        }
        lock.unlock();
        while (session.is_running()) std::this_thread::sleep_for(kInterruptPoll);
        return std::move(*result_);
    }

    double build_ms() const { return milliseconds(started_, solver_started_); }
    double solve_ms() const { return milliseconds(solver_started_, solver_ended_); }
    double total_seconds() const { return milliseconds(started_, ended_) / kMillisecondsPerSecond; }

private:
    // 0 for a stage that a failed run never reached.
    static double milliseconds(std::optional<Clock::time_point> from, std::optional<Clock::time_point> to) {
        if (!from || !to) return 0.0;
        return std::chrono::duration<double, std::milli>(*to - *from).count();
    }

    void receive(kelvane_app::SolveProgress message) {
        echo_.show(message.status);
        const std::lock_guard lock(mutex_);
        const Clock::time_point now = Clock::now();
        if (message.status == kSolverStartStatus) solver_started_ = now;
        // A cancelled run sends no finalizing text: its solving ends with its result.
        const bool solver_done = message.status.rfind(kFinalizingPrefix, 0) == 0 || message.result;
        if (solver_done && solver_started_ && !solver_ended_) solver_ended_ = now;
        if (message.result) {
            ended_ = now;
            result_ = std::move(message.result);
            arrived_.notify_all();
        }
    }

    static constexpr double kMillisecondsPerSecond = 1000.0;

    StatusEcho& echo_;
    const std::optional<Clock::time_point> started_ = Clock::now();
    std::mutex mutex_;
    std::condition_variable arrived_;
    std::optional<Clock::time_point> solver_started_;
    std::optional<Clock::time_point> solver_ended_;
    std::optional<Clock::time_point> ended_;
    std::optional<kelvane_app::SolveResult> result_;
};

std::int64_t peak_rss_bytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<std::int64_t>(usage.ru_maxrss) * kRssUnitBytes;
}

QJsonArray root_actions_json(const kelvane_app::SolveResult& result) {
    QJsonArray actions;
    for (std::size_t a = 0; a < result.root_action_names.size(); ++a)
        actions.append(QJsonObject{
            {"name", QString::fromStdString(result.root_action_names[a])},
            {"type", QString::fromStdString(result.root_action_types[a])},
            {"frequency", static_cast<double>(result.root_action_frequencies[a])},
        });
    return actions;
}

QJsonObject result_json(const kelvane_app::SolveSession& session, const kelvane_app::SolveResult& result,
                        const kelvane_app::SolveConfig& config, const RunWatch& watch, std::uint64_t estimate_bytes,
                        const SolveOptions& options) {
    const double pot = result.starting_pot > 0 ? result.starting_pot : 0.0;
    const double solve_ms = watch.solve_ms();
    // Never measured (no iteration, a failure, a cancel): null, since a 0 would claim a solved game.
    const bool measured = result.exploitability_measured;
    const double exploitability = result.exploitability;
    const double exploitability_pct = pot > 0 ? exploitability / pot * 100.0 : 0.0;
    QJsonObject lines;
    for (const std::string& line : options.lines)
        lines.insert(QString::fromStdString(line), line_json(session, result, line));
    return {
        {"success", result.success},
        {"error", QString::fromStdString(result.error)},
        {"board", QString::fromStdString(result.board)},
        {"starting_pot", result.starting_pot},
        {"effective_stack", result.effective_stack},
        {"iterations", static_cast<qint64>(result.iterations)},
        {"exploitability", measured ? QJsonValue(exploitability) : QJsonValue()},
        {"exploitability_pct", measured ? QJsonValue(exploitability_pct) : QJsonValue()},
        {"ev_oop", static_cast<double>(result.ev_oop)},
        {"ev_ip", static_cast<double>(result.ev_ip)},
        {"root_actions", root_actions_json(result)},
        {"node_count", static_cast<qint64>(result.nodes.size())},
        {"estimate_bytes", static_cast<qint64>(estimate_bytes)},
        {"peak_rss_bytes", static_cast<qint64>(peak_rss_bytes())},
        {"build_ms", watch.build_ms()},
        {"solve_ms", solve_ms},
        {"ms_per_iteration", result.iterations > 0 ? solve_ms / result.iterations : 0.0},
        {"threads", static_cast<qint64>(config.thread_count)},
        {"lines", lines},
    };
}

QJsonObject failure_json(const std::exception& error) {
    return {{"success", false}, {"error", QString::fromStdString(failure_text(error))}};
}

void write_stdout(const QByteArray& text) {
    if (std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stdout) !=
            static_cast<std::size_t>(text.size()) ||
        std::fflush(stdout) != 0)
        throw std::runtime_error(std::string("cannot write to standard output: ") + std::strerror(errno));
}

// To the output file when there is one, else to standard output; a failure is told on standard error.
bool write_json(const QJsonObject& json, OutputFile* output) {
    const QByteArray text = QJsonDocument(json).toJson(QJsonDocument::Indented);
    try {
        if (output)
            output->write(text);
        else
            write_stdout(text);
        return true;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "orvanthis-cli: %s\n", error.what());
        return false;
    }
}

struct CheckedSpot {
    kelvane_app::SolveConfig config;
    std::uint64_t estimate_bytes = 0;
};

// A set-up that fails means a bad text, which the solve reports in its own words.
std::optional<kelvane_app::SolveSetup> try_setup(const kelvane_app::SolveConfig& config) {
    try {
        return kelvane_app::make_solve_setup(config);
    } catch (const std::logic_error&) {
        return std::nullopt;
    }
}

// The spot read and checked, down to whether its ranges can meet and its solve fits the memory, which
// only a valid set-up can tell.
CheckedSpot check_spot(const SolveOptions& options) {
    CheckedSpot spot{make_config(options)};
    const std::optional<kelvane_app::SolveSetup> setup = try_setup(spot.config);
    if (!setup) return spot;
    check_matchup(*setup, spot.config);
    spot.estimate_bytes = checked_estimate(spot.config, *setup, memory_limit(options.max_memory)).total_bytes;
    return spot;
}

}  // namespace

int run_solve(const Arguments& args) {
    const SolveOptions options = parse_options(args);
    std::unique_ptr<OutputFile> output;
    try {
        if (!options.output.empty()) output = std::make_unique<OutputFile>(QString::fromStdString(options.output));
    } catch (const std::exception& error) {
        write_json(failure_json(error), nullptr);
        return kExitFailure;
    }
    CheckedSpot spot;
    try {
        spot = check_spot(options);
    } catch (const std::exception& error) {
        write_json(failure_json(error), output.get());
        return kExitFailure;
    }

    interrupted.store(false);
    handle_stop_signals(on_stop_signal);
    kelvane_app::SolveSession session;
    StatusEcho echo(status_echo_mode(options.quiet), spot.config.max_iterations, spot.config.starting_pot);
    RunWatch watch(echo);
    session.start(spot.config, watch.callback());
    const kelvane_app::SolveResult result = watch.wait(session);
    handle_stop_signals(SIG_DFL);

    // A run that never reached the solver has said all there is in its error status.
    if (!options.quiet && (result.success || result.iterations > 0))
        print_summary(stderr, result, watch.total_seconds());
    const bool written =
        write_json(result_json(session, result, spot.config, watch, spot.estimate_bytes, options), output.get());
    return result.success && written ? kExitOk : kExitFailure;
}

}  // namespace kelvane_cli
