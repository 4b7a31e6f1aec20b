// orvanthis-cli solve SPOT.json: one solve session run exactly as the application starts it, with
// the status texts on standard error and the result as JSON.

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <sys/resource.h>

#include <atomic>
#include <charconv>
#include <chrono>
#include <condition_variable>
#include <csignal>
#include <cstdio>
#include <exception>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "app/solve_map.h"
#include "cli/commands.h"
#include "cli/result_lines.h"
#include "cli/spot_file.h"
#include "session/memory_estimate.h"
#include "session/solve_session.h"

namespace kelvane_cli {
namespace {

using Clock = std::chrono::steady_clock;

constexpr auto kInterruptPoll = std::chrono::milliseconds(10);
constexpr const char* kSolverStartStatus = "Init: starting solver...";
constexpr const char* kFinalizingPrefix = "Finalizing:";
constexpr std::int64_t kRssUnitBytes = 1024;  // ru_maxrss is in kilobytes

std::atomic<bool> interrupted{false};
static_assert(std::atomic<bool>::is_always_lock_free, "the SIGINT handler may only touch a lock-free flag");

extern "C" void on_sigint(int) { interrupted.store(true); }

struct SolveOptions {
    std::string spot_path;
    std::optional<std::uint64_t> threads;
    std::optional<std::uint32_t> max_iterations;
    std::optional<double> target_pct;  // of the starting pot
    bool compress = false;
    bool showdown_early_stop = false;
    bool quiet = false;
    std::string output;
    std::vector<std::string> lines;
};

template <typename Number>
Number parse_number(const std::string& text, const std::string& option) {
    Number value{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size())
        throw UsageError{option + " needs a number, not '" + text + "'"};
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
        if (arg == "--threads") options.threads = parse_number<std::uint64_t>(value(), arg);
        else if (arg == "--max-iterations") options.max_iterations = parse_number<std::uint32_t>(value(), arg);
        else if (arg == "--target-pct") options.target_pct = parse_number<double>(value(), arg);
        else if (arg == "--compress") options.compress = true;
        else if (arg == "--showdown-early-stop") options.showdown_early_stop = true;
        else if (arg == "--quiet") options.quiet = true;
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
    kelvane_app::SolveConfig config =
        kelvane_app::solveConfigFromMap(read_spot_file(QString::fromStdString(options.spot_path)));
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
    explicit RunWatch(bool quiet) : quiet_(quiet) {}

    kelvane_app::ProgressCallback callback() {
        return [this](const kelvane_app::SolveProgress& message) { receive(message); };
    }

    // Waits for the last message, passing a SIGINT on as a cancel, then for the worker to let go.
    kelvane_app::SolveResult wait(kelvane_app::SolveSession& session) {
        std::unique_lock lock(mutex_);
        bool cancel_sent = false;
        while (!result_) {
            arrived_.wait_for(lock, kInterruptPoll);
            if (interrupted.load() && !cancel_sent) {
                session.cancel();
                cancel_sent = true;
            }
        }
        lock.unlock();
        while (session.is_running()) std::this_thread::sleep_for(kInterruptPoll);
        return *result_;
    }

    double build_ms() const { return milliseconds(started_, solver_started_); }
    double solve_ms() const { return milliseconds(solver_started_, finalizing_); }

private:
    // 0 for a stage that a failed run never reached.
    static double milliseconds(std::optional<Clock::time_point> from, std::optional<Clock::time_point> to) {
        if (!from || !to) return 0.0;
        return std::chrono::duration<double, std::milli>(*to - *from).count();
    }

    void receive(const kelvane_app::SolveProgress& message) {
        if (!quiet_) {
            std::fprintf(stderr, "%s\n", message.status.c_str());
            std::fflush(stderr);
        }
        const std::lock_guard lock(mutex_);
        if (message.status == kSolverStartStatus) solver_started_ = Clock::now();
        if (message.status.rfind(kFinalizingPrefix, 0) == 0 && !finalizing_) finalizing_ = Clock::now();
        if (message.result) {
            result_ = message.result;
            arrived_.notify_all();
        }
    }

    const bool quiet_;
    const std::optional<Clock::time_point> started_ = Clock::now();
    std::mutex mutex_;
    std::condition_variable arrived_;
    std::optional<Clock::time_point> solver_started_;
    std::optional<Clock::time_point> finalizing_;
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
        {"exploitability", static_cast<double>(result.exploitability)},
        {"exploitability_pct", pot > 0 ? result.exploitability / pot * 100.0 : 0.0},
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

bool write_json(const QJsonObject& json, const std::string& output) {
    const QByteArray text = QJsonDocument(json).toJson(QJsonDocument::Indented);
    if (output.empty()) {
        std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stdout);
        return true;
    }
    QFile file(QString::fromStdString(output));
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(text) == text.size()) return true;
    std::fprintf(stderr, "orvanthis-cli: cannot write '%s'\n", output.c_str());
    return false;
}

}  // namespace

int run_solve(const Arguments& args) {
    const SolveOptions options = parse_options(args);
    kelvane_app::SolveConfig config;
    try {
        config = make_config(options);
    } catch (const std::exception& error) {
        write_json({{"success", false}, {"error", QString::fromStdString(error.what())}}, options.output);
        return kExitFailure;
    }
    const std::uint64_t estimate_bytes = kelvane_app::estimate_solve_memory(config).total_bytes;

    interrupted.store(false);
    std::signal(SIGINT, on_sigint);
    kelvane_app::SolveSession session;
    RunWatch watch(options.quiet);
    session.start(config, watch.callback());
    const kelvane_app::SolveResult result = watch.wait(session);
    std::signal(SIGINT, SIG_DFL);

    const bool written = write_json(result_json(session, result, config, watch, estimate_bytes, options), options.output);
    return result.success && written ? kExitOk : kExitFailure;
}

}  // namespace kelvane_cli
