// orvanthis-cli estimate SPOT.json: the memory a solve of the spot would take, as JSON.

#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>
#include <exception>
#include <string>

#include "cli/commands.h"
#include "cli/memory_limit.h"
#include "cli/spot_arguments.h"
#include "cli/spot_file.h"
#include "cli/spot_matchup.h"
#include "session/solve_setup.h"

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
        {"result_bytes", bytes(estimate.result_bytes)},
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
    const SpotArguments parsed = parse_spot_arguments(args, "estimate");
    kelvane_app::SolveMemoryEstimate estimate;
    try {
        const kelvane_app::SolveConfig config = read_spot_config(QString::fromStdString(parsed.spot_path));
        // The estimate's own reading of the texts, so that a bad one fails in the estimate's words.
        const kelvane_app::SolveSetup setup =
            kelvane_app::make_solve_setup(config, kelvane_app::SizingErrors::unlabelled);
        check_matchup(setup, config);
        estimate = checked_estimate(config, setup, parsed.limit);
    } catch (const std::exception& error) {
        QJsonObject json = estimate_json({});
        json.insert("error", QString::fromStdString(failure_text(error)));
        print_json(json);
        return kExitFailure;
    }
    print_json(estimate_json(estimate));
    return kExitOk;
}

}  // namespace kelvane_cli
