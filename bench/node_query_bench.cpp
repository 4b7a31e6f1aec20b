// Time of the four hand queries the Results page makes at a node change, on the default flop spot
// after a short solve: the session's queries on a first visit, and the controller's answer on a second.

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QFile>
#include <QJsonDocument>
#include <QStandardPaths>
#include <QThread>
#include <QVariantMap>
#include <cstdint>
#include <cstdio>
#include <functional>
#include <future>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "app/app_controller.h"
#include "app/solve_map.h"
#include "session/action_stats.h"
#include "session/bucket_table.h"
#include "session/hand_combos.h"
#include "session/hand_strategy.h"
#include "session/solution_view.h"

namespace {

using kelvane_app::AppController;
using kelvane_app::SolveSession;

constexpr int kIterations = 3;
constexpr int kThreads = 2;
constexpr int kRepetitions = 3;

QVariantMap defaultSpot() {
    QFile file(QStringLiteral(KELVANE_SOURCE_DIR "/bench/spots/default.json"));
    if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("bench/spots/default.json not found");
    QVariantMap map = QJsonDocument::fromJson(file.readAll()).toVariant().toMap();
    map.insert("max_iterations", kIterations);
    map.insert("thread_count", kThreads);
    return map;
}

// The nodes timed, found by their action types from the root; a chance node takes its first card.
struct Nodes {
    std::uint64_t flop_root = 0;
    std::uint64_t flop_ip = 0;     // IP after OOP checks
    std::uint64_t turn_oop = 0;    // check, check, first turn card
    std::uint64_t river_oop = 0;   // the turn checked through, first river card
};

std::uint64_t child(const kelvane::Game& game, std::uint64_t node, std::string_view type) {
    if (game.node(node).kind == kelvane::kNodeChance) return game.node(node).children[0];
    const std::vector<std::string> types = kelvane_app::node_action_types(game, node);
    for (std::size_t a = 0; a < types.size(); ++a)
        if (types[a].rfind(type, 0) == 0) return game.node(node).children[a];
    throw std::runtime_error("no action of type " + std::string(type));
}

Nodes findNodes(const kelvane::Game& game) {
    Nodes nodes;
    nodes.flop_ip = child(game, 0, "check");
    nodes.turn_oop = child(game, child(game, nodes.flop_ip, "check"), "chance");
    const std::uint64_t turn_ip = child(game, nodes.turn_oop, "check");
    nodes.river_oop = child(game, child(game, turn_ip, "check"), "chance");
    return nodes;
}

struct SessionSpot {
    SolveSession session;
    Nodes nodes;
};

struct ControllerSpot {
    AppController controller;
};

std::unique_ptr<SessionSpot> g_session;
std::unique_ptr<ControllerSpot> g_controller;
Nodes g_nodes;

void solveSession() {
    g_session = std::make_unique<SessionSpot>();
    std::promise<bool> done;
    std::future<bool> finished = done.get_future();
    const kelvane_app::SolveConfig config = kelvane_app::solveConfigFromMap(defaultSpot());
    g_session->session.start(config, [&done](const kelvane_app::SolveProgress& message) {
        if (message.result) done.set_value(message.result->success);
    });
    if (!finished.get()) throw std::runtime_error("the default spot did not solve");
    while (g_session->session.is_running()) QThread::msleep(1);
    const kelvane_app::SolvedGame solved = g_session->session.solution();
    g_nodes = findNodes(*solved.game);
    std::printf("default spot: %llu nodes; flop IP node %llu, turn OOP node %llu, river OOP node %llu\n",
                static_cast<unsigned long long>(solved.game->node_count()),
                static_cast<unsigned long long>(g_nodes.flop_ip), static_cast<unsigned long long>(g_nodes.turn_oop),
                static_cast<unsigned long long>(g_nodes.river_oop));
}

// Only one solved spot lives at a time: the session's goes before the controller solves its own.
void solveController() {
    g_session.reset();
    g_controller = std::make_unique<ControllerSpot>();
    AppController& c = g_controller->controller;
    c.startSolveWithConfig(defaultSpot());
    while (c.running()) QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    QCoreApplication::sendPostedEvents();
    if (c.treeNodeCount() == 0) throw std::runtime_error("the controller's solve gave no tree");
}

std::uint64_t nodeOf(int which) {
    switch (which) {
        case 0: return g_nodes.flop_root;
        case 1: return g_nodes.flop_ip;
        case 2: return g_nodes.turn_oop;
        default: return g_nodes.river_oop;
    }
}

using SessionQuery = std::function<bool(const SolveSession&, std::uint64_t)>;
using ControllerQuery = std::function<bool(const AppController&, int)>;

void firstVisit(benchmark::State& state, const SessionQuery& query) {
    if (!g_session) solveSession();
    const std::uint64_t node = nodeOf(static_cast<int>(state.range(0)));
    for (auto _ : state)
        if (!query(g_session->session, node)) state.SkipWithError("the query did not answer");
}

void secondVisit(benchmark::State& state, const ControllerQuery& query) {
    if (!g_controller) solveController();
    const int node = static_cast<int>(nodeOf(static_cast<int>(state.range(0))));
    const AppController& c = g_controller->controller;
    if (!query(c, node)) state.SkipWithError("the query did not answer");
    for (auto _ : state) benchmark::DoNotOptimize(query(c, node));
}

struct Query {
    const char* name;
    SessionQuery session;
    ControllerQuery controller;
};

std::vector<Query> queries() {
    using namespace kelvane_app;
    return {
        {"action_stats", [](const SolveSession& s, std::uint64_t n) { return action_stats(s, n).valid; },
         [](const AppController& c, int n) { return !c.nodeActionStats(n).isEmpty(); }},
        {"hand_combos", [](const SolveSession& s, std::uint64_t n) { return hand_combos(s, n).valid; },
         [](const AppController& c, int n) { return !c.nodeHandCombos(n).isEmpty(); }},
        {"hand_strategy", [](const SolveSession& s, std::uint64_t n) { return hand_strategy(s, n).valid; },
         [](const AppController& c, int n) { return !c.nodeHandStrategy(n).isEmpty(); }},
        {"hand_buckets", [](const SolveSession& s, std::uint64_t n) { return hand_buckets(s, n).valid; },
         [](const AppController& c, int n) { return !c.nodeHandBuckets(n).isEmpty(); }},
    };
}

// Arguments 0 to 3: the flop root, the flop IP node, the turn and the river decision.
void overNodes(benchmark::internal::Benchmark* b, benchmark::TimeUnit unit) {
    b->ArgName("node")->DenseRange(0, 3)->Unit(unit);
}

// All first visits run before the second ones, so each spot is solved once.
void registerBenchmarks() {
    for (const Query& query : queries())
        overNodes(benchmark::RegisterBenchmark((std::string("first_visit/") + query.name).c_str(),
                                               [q = query.session](benchmark::State& s) { firstVisit(s, q); })
                      ->Iterations(1)
                      ->Repetitions(kRepetitions)
                      ->MeasureProcessCPUTime()
                      ->UseRealTime()
                      ->ReportAggregatesOnly(true),
                  benchmark::kMillisecond);
    for (const Query& query : queries())
        overNodes(benchmark::RegisterBenchmark((std::string("second_visit/") + query.name).c_str(),
                                               [q = query.controller](benchmark::State& s) { secondVisit(s, q); })
                      ->MinTime(0.2),
                  benchmark::kMicrosecond);
}

}  // namespace

int main(int argc, char** argv) {
    // The controller records each solve in the settings store: keep that away from the user's.
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("OrvanthisNodeQueryBench"));
    QCoreApplication::setApplicationName(QStringLiteral("OrvanthisNodeQueryBench"));
    benchmark::Initialize(&argc, argv);
    registerBenchmarks();
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
