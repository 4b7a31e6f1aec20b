// orvanthis-cli estimate SPOT.json: the memory a solve of the spot would take, as JSON.

#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>
#include <exception>
#include <string>

#include "app/solve_map.h"
#include "cli/commands.h"
#include "cli/spot_file.h"
#include "session/memory_estimate.h"

namespace kelvane_cli {
namespace {

QJsonObject estimate_json(const kelvane_app::SolveMemoryEstimate& estimate) {
    const auto bytes = [](std::uint64_t value) { return static_cast<qint64>(value); };
    return {
        {"ok", estimate.valid},
        {"total_bytes", bytes(estimate.total_bytes)},
        {"card_context_bytes", bytes(estimate.card_context_bytes)},
        {"tree_bytes", bytes(estimate.tree_bytes)},
        {"state_bytes", bytes(estimate.state_bytes)},
        {"node_count", bytes(estimate.node_count)},
        {"decision_node_count", bytes(estimate.decision_node_count)},
        {"oop_hands", bytes(estimate.oop_hands)},
        {"ip_hands", bytes(estimate.ip_hands)},
        {"valid", estimate.valid},
    };
}

void print_json(const QJsonObject& object) {
    std::printf("%s\n", QJsonDocument(object).toJson(QJsonDocument::Compact).constData());
}

}  // namespace

int run_estimate(const Arguments& args) {
    if (args.size() != 1) throw UsageError{"estimate takes one spot file"};
    kelvane_app::SolveConfig config;
    try {
        config = kelvane_app::solveConfigFromMap(read_spot_file(QString::fromStdString(args[0])));
    } catch (const std::exception& error) {
        print_json({{"ok", false}, {"error", QString::fromStdString(error.what())}});
        return kExitFailure;
    }
    std::string error;
    const kelvane_app::SolveMemoryEstimate estimate = kelvane_app::estimate_solve_memory(config, &error);
    QJsonObject json = estimate_json(estimate);
    if (!estimate.valid) json.insert("error", QString::fromStdString(error));
    print_json(json);
    return estimate.valid ? kExitOk : kExitFailure;
}

}  // namespace kelvane_cli
