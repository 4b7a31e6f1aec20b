// Resolution of line texts against the snapshot's nodes.

#include "cli/result_lines.h"

#include <QJsonArray>

#include <optional>
#include <string_view>
#include <vector>

#include "session/action_stats.h"
#include "session/bucket_table.h"
#include "session/hand_strategy.h"
#include "session/result_text.h"

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

std::optional<std::uint32_t> child_named(const kelvane_app::SolveResult& result,
                                         const kelvane_app::ResultNode& node, const std::string& name) {
    for (const kelvane_app::ResultAction& action : kelvane_app::node_actions(result, node))
        if (kelvane_app::result_action_name(result, node, action) == name) return action.child_index;
    return std::nullopt;
}

QString text_value(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

template <typename Number>
QJsonArray number_array(const std::vector<Number>& values) {
    QJsonArray array;
    for (Number value : values) array.append(static_cast<double>(value));
    return array;
}

// Classes with weight, each with its action probabilities in node order.
QJsonObject hands_json(const kelvane_app::HandStrategy& strategy) {
    QJsonObject hands;
    const std::size_t actions = strategy.action_names.size();
    for (std::size_t label = 0; label < strategy.labels.size(); ++label) {
        if (!(strategy.weights[label] > 0.0f)) continue;
        QJsonArray probabilities;
        for (std::size_t a = 0; a < actions; ++a)
            probabilities.append(static_cast<double>(strategy.action_probs[label * actions + a]));
        hands.insert(QString::fromStdString(strategy.labels[label]),
                     QJsonObject{{"weight", static_cast<double>(strategy.weights[label])},
                                 {"strategy", probabilities}});
    }
    return hands;
}

QJsonArray action_stats_json(const kelvane_app::NodeActionStats& stats) {
    QJsonArray list;
    for (std::size_t a = 0; a < stats.names.size(); ++a)
        list.append(QJsonObject{
            {"name", QString::fromStdString(stats.names[a])},
            {"frequency", static_cast<double>(stats.frequencies[a])},
            {"combos", stats.combos[a]},
            {"equity", stats.equities[a]},
            {"ev", stats.evs[a]},
        });
    return list;
}

QJsonArray buckets_json(const kelvane_app::HandBuckets& buckets) {
    QJsonArray list;
    for (const kelvane_app::HandBucketRow& row : buckets.rows)
        list.append(QJsonObject{{"name", QString::fromStdString(row.name)},
                                {"combos", row.combos},
                                {"action_probs", number_array(row.action_probs)}});
    return list;
}

void add_hand_parts(QJsonObject& json, const kelvane_app::SolveSession& session, std::uint32_t index) {
    const kelvane_app::HandStrategy strategy = kelvane_app::hand_strategy(session, index);
    if (strategy.valid) json.insert("hands", hands_json(strategy));
    const kelvane_app::NodeActionStats stats = kelvane_app::action_stats(session, index);
    if (stats.valid) json.insert("action_stats", action_stats_json(stats));
    const kelvane_app::HandBuckets buckets = kelvane_app::hand_buckets(session, index);
    if (buckets.valid) json.insert("buckets", buckets_json(buckets));
}

QJsonObject node_json(const kelvane_app::SolveResult& result, std::uint32_t index) {
    const kelvane_app::ResultNode& node = result.nodes[index];
    QJsonArray names;
    QJsonArray types;
    QJsonArray frequencies;
    for (const kelvane_app::ResultAction& action : kelvane_app::node_actions(result, node)) {
        names.append(QString::fromStdString(kelvane_app::result_action_name(result, node, action)));
        types.append(QString::fromStdString(kelvane_app::result_action_type(result, node, action)));
        frequencies.append(static_cast<double>(action.frequency));
    }
    return {
        {"node_index", static_cast<qint64>(index)},
        {"node_type", text_value(kelvane_app::node_type_text(node))},
        {"player", text_value(kelvane_app::player_text(node))},
        {"pot", node.pot},
        {"action_names", names},
        {"action_types", types},
        {"action_frequencies", frequencies},
    };
}

}  // namespace

QJsonObject line_json(const kelvane_app::SolveSession& session, const kelvane_app::SolveResult& result,
                      const std::string& line) {
    if (result.nodes.empty()) return {{"error", "The result holds no tree"}};
    std::uint32_t index = 0;
    for (const std::string& name : line_actions(line)) {
        const std::optional<std::uint32_t> child = child_named(result, result.nodes[index], name);
        if (!child || *child >= result.nodes.size())
            return {{"error", QString::fromStdString("Action '" + name + "' not found at node " +
                                                     std::to_string(index))}};
        index = *child;
    }
    QJsonObject json = node_json(result, index);
    add_hand_parts(json, session, index);
    return json;
}

}  // namespace kelvane_cli
