// Construction time and size of a card context for full ranges, by build-thread limit.

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <string>

#include "poker/artifact_cache.h"
#include "poker/card_context.h"
#include "poker/range_text.h"

namespace {

using namespace kelvane;

// Each construction is a real build: the cache holds only weak references and no other
// constructor runs at the same time, so nothing can be shared between iterations.
void build_context(benchmark::State& state, const char* board_text) {
    const std::string workers = std::to_string(state.range(0));
    ::setenv("KELVANE_CARDCTX_MAX_WORKERS", workers.c_str(), 1);
    const BoardCards board = parse_board_text(board_text);
    const RangeWeights full = parse_range_or_percent("100%");
    const std::array<RangeWeights, 2> ranges{full, full};
    std::size_t bytes = 0;
    for (auto _ : state) {
        const CardContext context(board, ranges);
        benchmark::DoNotOptimize(context.showdown_rows.data());
        bytes = context.memory_bytes();
        if (artifact_cache_holds(context.cache_key)) state.SkipWithError("artifact cache kept a deal alive");
    }
    ::unsetenv("KELVANE_CARDCTX_MAX_WORKERS");
    state.counters["workers"] = static_cast<double>(state.range(0));
    state.counters["memory_MiB"] = static_cast<double>(bytes) / (1024.0 * 1024.0);
}

void BM_FlopFullRanges(benchmark::State& state) { build_context(state, "Td9d4s"); }
void BM_TurnFullRanges(benchmark::State& state) { build_context(state, "Td9d4s2c"); }

BENCHMARK(BM_FlopFullRanges)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_TurnFullRanges)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace

BENCHMARK_MAIN();
