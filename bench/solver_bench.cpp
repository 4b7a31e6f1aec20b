// Time per Discounted CFR iteration on river, turn and flop spots at 1 and 2 threads, against the
// machine's streaming bandwidth and the storage the solver allocates.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "../tests/solver/spot_file.h"
#include "solver/discounted_cfr.h"

namespace {

using kelvane::DiscountedCfr;
using kelvane::Game;

// Triad a = b + s·c over buffers far larger than any cache; bytes counted as two reads and one write.
double triad_bandwidth() {
    constexpr std::size_t kCount = std::size_t{1} << 25;  // 256 MiB per buffer
    std::vector<double> a(kCount, 0.0), b(kCount, 1.0), c(kCount, 2.0);
    double best = 0.0;
    for (int rep = 0; rep < 5; ++rep) {
        const auto t0 = std::chrono::steady_clock::now();
        const double s = 1.0 + rep;
        for (std::size_t i = 0; i < kCount; ++i) a[i] = b[i] + s * c[i];
        const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - t0).count();
        benchmark::DoNotOptimize(a.data());
        best = std::max(best, 3.0 * sizeof(double) * kCount / seconds);
    }
    return best;
}

struct SpotRun {
    std::unique_ptr<Game> game;
    std::uint64_t cells = 0;  // (decision node, action, hand) triples
};

// What one summary row's solver holds.
struct RowSizes {
    std::uint64_t cells = 0;
    std::uint64_t matrix_bytes = 0;  // regrets + strategy sums as allocated
    std::uint64_t solver_bytes = 0;  // the same plus the node records
};

struct Measure {
    double ms_per_iteration = 0.0;
    double cpu_ms_per_iteration = 0.0;  // all threads; tells a loaded machine from a slow solver
    RowSizes* sizes = nullptr;
};

double g_bandwidth = 0.0;
std::map<std::string, std::unique_ptr<SpotRun>> g_spots;
std::map<std::string, RowSizes> g_rows;
std::map<std::pair<std::string, int>, Measure> g_measures;

// A row of the summary: the spot, and whether its stores hold 16-bit values.
std::string row_name(const std::string& spot_name, bool packed) { return packed ? spot_name + "-16bit" : spot_name; }

SpotRun& spot(const std::string& name) {
    std::unique_ptr<SpotRun>& run = g_spots[name];
    if (!run) {
        run = std::make_unique<SpotRun>();
        run->game = kelvane::testing::SpotFile(kelvane::testing::spot_path(name)).game();
        const Game& game = *run->game;
        for (std::uint64_t n = 0; n < game.node_count(); ++n) {
            const kelvane::GameNode& node = game.node(n);
            if (node.kind == kelvane::kNodeDecision) run->cells += node.actions.size() * game.hand_count(node.seat);
        }
    }
    return *run;
}

void iterate(benchmark::State& state, const std::string& name, int threads, bool packed) {
    SpotRun& run = spot(name);
    kelvane::DiscountedCfrOptions options;
    options.thread_count = static_cast<std::uint64_t>(threads);
    options.compress_state = packed;
    DiscountedCfr cfr(options);
    run.game->set_compress_state(packed);
    cfr.prepare_states(*run.game);
    RowSizes& row = g_rows[row_name(name, packed)];
    row.matrix_bytes = cfr.state_bytes();
    row.solver_bytes = row.matrix_bytes + cfr.node_record_bytes();
    row.cells = run.cells;
    cfr.iteration(*run.game, 0);  // grows the frames
    std::uint32_t t = 1;
    for (auto _ : state) cfr.iteration(*run.game, t++);
    state.counters["state_MB"] = static_cast<double>(row.matrix_bytes) / 1e6;
}

void register_spot(const std::string& name, int iterations, bool packed = false) {
    for (int threads : {1, 2}) {
        const std::string title = "iteration/" + row_name(name, packed) + "/threads:" + std::to_string(threads);
        benchmark::RegisterBenchmark(title.c_str(), [name, threads, packed](benchmark::State& state) {
            iterate(state, name, threads, packed);
        })
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime()
            ->MeasureProcessCPUTime()
            ->Iterations(iterations);
    }
}

// Collects the real time of each run so that the summary can relate them.
class SummaryReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            const std::string name = run.benchmark_name();
            const std::size_t first = name.find('/');
            const std::size_t second = name.find('/', first + 1);
            const std::string spot_name = name.substr(first + 1, second - first - 1);
            const int threads = std::stoi(name.substr(name.find("threads:") + 8));
            const double ms = run.GetAdjustedRealTime();  // in the run's unit, milliseconds
            g_measures[{spot_name, threads}] = {ms, run.GetAdjustedCPUTime(), &g_rows[spot_name]};
        }
    }
};

void print_summary() {
    std::printf("\nstreaming bandwidth (triad, 1 thread): %.2f GB/s\n", g_bandwidth / 1e9);
    std::printf("%-8s %7s %10s %10s %10s %10s %10s %9s %9s\n", "spot", "threads", "ms/iter", "cpu ms", "bound ms",
                "ratio", "speed-up", "state MB", "alloc/8B");
    for (const auto& [key, measure] : g_measures) {
        const RowSizes& run = *measure.sizes;
        const double bound_ms = 2.5 * static_cast<double>(run.matrix_bytes) / g_bandwidth * 1e3;
        const Measure& single = g_measures[{key.first, 1}];
        const double speed_up = single.ms_per_iteration / measure.ms_per_iteration;
        const double nominal = 8.0 * static_cast<double>(run.cells);
        std::printf("%-8s %7d %10.3f %10.3f %10.3f %10.2f %10.2f %9.1f %9.3f\n", key.first.c_str(), key.second,
                    measure.ms_per_iteration, measure.cpu_ms_per_iteration, bound_ms, measure.ms_per_iteration / bound_ms,
                    speed_up,
                    static_cast<double>(run.matrix_bytes) / 1e6, static_cast<double>(run.solver_bytes) / nominal);
    }
}

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    g_bandwidth = triad_bandwidth();
    register_spot("river", 2000);
    register_spot("turn", 40);
    register_spot("default", 3);  // a flop spot of about 1.2 GB of strategy storage
    register_spot("anchor", 3);   // a deeper flop tree with all-ins, about 2.4 s per iteration
    register_spot("anchor", 3, true);
    SummaryReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    print_summary();
    benchmark::Shutdown();
    return 0;
}
