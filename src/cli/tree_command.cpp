// orvanthis-cli tree SPOT.json: builds the betting tree of a spot file and prints its size.

#include <QString>

#include <array>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <string>

#include "cli/commands.h"
#include "cli/json_text.h"
#include "cli/memory_limit.h"
#include "cli/spot_arguments.h"
#include "cli/spot_file.h"
#include "cli/spot_matchup.h"
#include "poker/card_context.h"
#include "session/solve_setup.h"
#include "tree/action_plan.h"

namespace kelvane_cli {
namespace {

struct TreeCounts {
    std::uint64_t decision = 0;
    std::uint64_t chance = 0;
    std::uint64_t terminal = 0;
    std::array<std::uint64_t, 3> decision_by_street{};
};

TreeCounts count_nodes(const kelvane::ActionPlan& plan) {
    TreeCounts counts;
    for (const kelvane::PlanNode& node : plan.nodes()) {
        if (node.kind == kelvane::kNodeDecision) {
            ++counts.decision;
            ++counts.decision_by_street.at(node.street);
        } else if (node.kind == kelvane::kNodeChance) {
            ++counts.chance;
        } else {
            ++counts.terminal;
        }
    }
    return counts;
}

int print_failure(const std::string& message) {
    std::printf("{\"ok\": false, \"error\": %s}\n", json_quoted(message).c_str());
    return kExitFailure;
}

int print_tree(const kelvane_app::SolveConfig& config, const MemoryLimit& limit) {
    const kelvane_app::SolveSetup setup = kelvane_app::make_solve_setup(config);
    check_matchup(setup, config);
    checked_estimate(config, setup, limit);
    const kelvane::CardContext cards(setup.board, setup.ranges);
    const auto start = std::chrono::steady_clock::now();
    const kelvane::ActionPlan plan(setup.game, cards);
    const std::chrono::duration<double, std::milli> build_time = std::chrono::steady_clock::now() - start;

    const TreeCounts counts = count_nodes(plan);
    std::string json = "{\"ok\": true";
    const auto add = [&json](const char* key, std::uint64_t value) {
        json += ", \"" + std::string(key) + "\": " + std::to_string(value);
    };
    add("node_count", plan.node_count());
    add("decision_nodes", counts.decision);
    add("chance_nodes", counts.chance);
    add("terminal_nodes", counts.terminal);
    add("flop", counts.decision_by_street[kelvane::kStreetFlop]);
    add("turn", counts.decision_by_street[kelvane::kStreetTurn]);
    add("river", counts.decision_by_street[kelvane::kStreetRiver]);
    add("oop_hands", cards.pockets[kelvane::kSeatOop].size());
    add("ip_hands", cards.pockets[kelvane::kSeatIp].size());
    add("card_context_bytes", cards.memory_bytes());
    std::printf("%s, \"build_ms\": %.1f}\n", json.c_str(), build_time.count());
    return kExitOk;
}

}  // namespace

int run_tree(const Arguments& args) {
    const SpotArguments parsed = parse_spot_arguments(args, "tree");
    try {
        return print_tree(read_spot_config(QString::fromStdString(parsed.spot_path)), parsed.limit);
    } catch (const std::exception& error) {
        return print_failure(failure_text(error));
    }
}

}  // namespace kelvane_cli
