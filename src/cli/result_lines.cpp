// Resolution of line texts against the snapshot's nodes.

#include "cli/result_lines.h"

#include <QJsonArray>

#include <algorithm>
#include <optional>
#include <vector>

namespace kelvane_cli {
namespace {

std::string trimmed(const std::string& text) {
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

std::vector<std::string> line_actions(const std::string& line) {
    std::vector<std::string> actions;
    if (trimmed(line).empty()) return actions;
    std::size_t start = 0;
    while (true) {
        const std::size_t comma = line.find(',', start);
        actions.push_back(trimmed(line.substr(start, comma - start)));
        if (comma == std::string::npos) return actions;
        start = comma + 1;
    }
}

std::optional<std::uint32_t> child_named(const kelvane_app::ResultNode& node, const std::string& name) {
    const auto action = std::find_if(node.actions.begin(), node.actions.end(),
                                     [&](const kelvane_app::ResultAction& a) { return a.name == name; });
    if (action == node.actions.end()) return std::nullopt;
    return action->child_index;
}

QJsonObject node_json(const kelvane_app::SolveResult& result, std::uint32_t index) {
    const kelvane_app::ResultNode& node = result.nodes[index];
    QJsonArray names;
    QJsonArray types;
    QJsonArray frequencies;
    for (const kelvane_app::ResultAction& action : node.actions) {
        names.append(QString::fromStdString(action.name));
        types.append(QString::fromStdString(action.action_type));
        frequencies.append(static_cast<double>(action.frequency));
    }
    // Per-hand parts (hands, action_stats, buckets) need the solution queries on the live solver.
    return {
        {"node_index", static_cast<qint64>(index)},
        {"node_type", QString::fromStdString(node.node_type)},
        {"player", QString::fromStdString(node.player)},
        {"pot", node.pot},
        {"action_names", names},
        {"action_types", types},
        {"action_frequencies", frequencies},
    };
}

}  // namespace

QJsonObject line_json(const kelvane_app::SolveResult& result, const std::string& line) {
    const QString text = QString::fromStdString(line);
    if (result.nodes.empty()) return {{"line", text}, {"error", "The result holds no tree"}};
    std::uint32_t index = 0;
    for (const std::string& name : line_actions(line)) {
        const std::optional<std::uint32_t> child = child_named(result.nodes[index], name);
        if (!child || *child >= result.nodes.size())
            return {{"line", text},
                    {"error", QString::fromStdString("Action '" + name + "' not found at node " +
                                                     std::to_string(index))}};
        index = *child;
    }
    QJsonObject json = node_json(result, index);
    json.insert("line", text);
    return json;
}

}  // namespace kelvane_cli
