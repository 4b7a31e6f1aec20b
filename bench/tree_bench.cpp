// Action plan build throughput on a realistic flop spot and on the stored bench spots.

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <fstream>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>

#include "poker/card_context.h"
#include "poker/cards.h"
#include "poker/range_text.h"
#include "tree/action_plan.h"
#include "tree/game_config.h"
#include "tree/sizing_profile.h"

namespace kelvane {
namespace {

constexpr const char* kWorkersVariable = "KELVANE_ACTIONPLAN_MAX_WORKERS";

void set_workers(std::int64_t workers) { ::setenv(kWorkersVariable, std::to_string(workers).c_str(), 1); }

struct Spot {
    GameConfig config;
    std::unique_ptr<CardContext> cards;
};

void run_builds(benchmark::State& state, const Spot& spot) {
    set_workers(state.range(0));
    std::size_t nodes = 0;
    for (auto _ : state) {
        const ActionPlan plan(spot.config, *spot.cards);
        nodes = plan.node_count();
        benchmark::DoNotOptimize(nodes);
    }
    state.counters["nodes"] = static_cast<double>(nodes);
    state.counters["nodes_per_s"] =
        benchmark::Counter(static_cast<double>(nodes), benchmark::Counter::kIsIterationInvariantRate);
}

// Two bet sizes and one raise size on every street, ranges of a few hundred combos.
const Spot& flop_spot() {
    static const Spot spot = [] {
        const StreetSizing seat{"33, 75", "100", false, false};
        Spot built;
        built.config.starting_street = kStreetFlop;
        built.config.starting_pot = 100;
        built.config.effective_stack = 400;
        build_sizing_profile(built.config.flop_sizing, seat, seat, "flop");
        build_sizing_profile(built.config.turn_sizing, seat, seat, "turn");
        build_sizing_profile(built.config.river_sizing, seat, seat, "river");
        built.cards = std::make_unique<CardContext>(
            parse_board_text("Td9d4c"),
            std::array<RangeWeights, 2>{parse_range_text("22+,A2s+,K9s+,QTs+,JTs,ATo+,KJo+,T9s,98s"),
                                        parse_range_text("22+,A2s+,K5s+,Q8s+,J8s+,T8s+,98s,87s,A9o+,KTo+,QJo")});
        return built;
    }();
    return spot;
}

void BM_FlopPlanBuild(benchmark::State& state) { run_builds(state, flop_spot()); }
BENCHMARK(BM_FlopPlanBuild)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond)->UseRealTime()->MinTime(2.0);

// The stored spot files are flat JSON objects of strings, numbers and booleans.
std::map<std::string, std::string> read_flat_json(const std::string& path) {
    std::ifstream file(path);
    std::stringstream buffer;
    buffer << file.rdbuf();
    const std::string text = buffer.str();
    std::map<std::string, std::string> values;
    std::size_t at = 0;
    while ((at = text.find('"', at)) != std::string::npos) {
        const std::size_t key_end = text.find('"', at + 1);
        const std::string key = text.substr(at + 1, key_end - at - 1);
        std::size_t value_at = text.find_first_not_of(" \t\r\n:", key_end + 1);
        std::size_t value_end = 0;
        if (text[value_at] == '"') {
            ++value_at;
            value_end = text.find('"', value_at);
            at = value_end + 1;
        } else {
            value_end = text.find_first_of(",}\r\n", value_at);
            at = value_end;
        }
        values[key] = text.substr(value_at, value_end - value_at);
    }
    return values;
}

StreetSizing street_sizing(const std::map<std::string, std::string>& values, const std::string& prefix) {
    const auto flag = [&](const std::string& key) {
        const auto found = values.find(prefix + key);
        return found != values.end() && found->second == "true";
    };
    return {values.at(prefix + "bet_sizes"), values.at(prefix + "raise_sizes"), flag("add_all_in"), flag("dont_donk")};
}

double jam_threshold(const std::map<std::string, std::string>& values, const std::string& seat) {
    const double percent = std::stod(values.at(seat + "_add_all_in_jam_threshold_pct"));
    const bool enabled = values.at(seat + "_add_all_in_jam_threshold_enabled") == "true";
    return enabled && percent > 0.0 ? percent / 100.0 : 0.0;
}

Spot load_spot(const std::string& path) {
    const std::map<std::string, std::string> values = read_flat_json(path);
    Spot spot;
    GameConfig& config = spot.config;
    const std::string& street = values.at("starting_street");
    config.starting_street = street == "turn" ? kStreetTurn : street == "river" ? kStreetRiver : kStreetFlop;
    config.starting_pot = std::stoi(values.at("starting_pot"));
    config.effective_stack = std::stoi(values.at("effective_stack"));
    config.oop_jam_threshold = jam_threshold(values, "oop");
    config.ip_jam_threshold = jam_threshold(values, "ip");
    for (const auto& [name, profile] : {std::pair<std::string, SizingProfile*>{"flop", &config.flop_sizing},
                                        {"turn", &config.turn_sizing},
                                        {"river", &config.river_sizing}}) {
        build_sizing_profile(*profile, street_sizing(values, "oop_" + name + "_"),
                             street_sizing(values, "ip_" + name + "_"), name);
    }
    spot.cards = std::make_unique<CardContext>(
        parse_board_text(values.at("board")),
        std::array<RangeWeights, 2>{parse_range_text(values.at("oop_range")), parse_range_text(values.at("ip_range"))});
    return spot;
}

void register_spot_files() {
    for (const char* name : {"river", "turn", "default", "anchor"}) {
        const std::string path = std::string(KELVANE_SOURCE_DIR) + "/bench/spots/" + name + ".json";
        if (!std::ifstream(path)) continue;
        auto spot = std::make_shared<Spot>(load_spot(path));
        benchmark::RegisterBenchmark((std::string("BM_SpotPlanBuild/") + name).c_str(),
                                     [spot](benchmark::State& state) { run_builds(state, *spot); })
            ->Arg(1)
            ->Arg(2)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime();
    }
}

}  // namespace
}  // namespace kelvane

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    kelvane::register_spot_files();
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
