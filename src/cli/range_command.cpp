// range: the weights of a range text, summed per hand class, as one line of JSON.

#include <QJsonDocument>
#include <QJsonObject>
#include <QString>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <map>
#include <string>

#include "cli/commands.h"
#include "poker/range_text.h"

namespace kelvane_cli {
namespace {

// Weights are single precision; digits beyond the seventh would only show rounding noise.
double float_precision(double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%.7g", value);
    return std::strtod(text, nullptr);
}

QJsonObject summarise(const kelvane::RangeWeights& weights) {
    std::map<std::string, double> class_sums;
    int pockets = 0;
    double combos = 0.0;
    for (int index = 0; index < kelvane::kPocketCount; ++index) {
        const float weight = weights[static_cast<std::size_t>(index)];
        combos += weight;
        if (weight <= 0.0f) continue;
        ++pockets;
        class_sums[kelvane::hand_class_label(kelvane::pocket_from_index(index))] += weight;
    }
    QJsonObject classes;
    for (const std::string& label : kelvane::hand_class_grid()) {
        const auto found = class_sums.find(label);
        if (found != class_sums.end())
            classes.insert(QString::fromStdString(label), float_precision(found->second));
    }
    return {{"ok", true}, {"pockets", pockets}, {"combos", float_precision(combos)}, {"classes", classes}};
}

void print_line(const QJsonObject& object) {
    const QByteArray json = QJsonDocument(object).toJson(QJsonDocument::Compact);
    std::fwrite(json.constData(), 1, static_cast<std::size_t>(json.size()), stdout);
    std::fputc('\n', stdout);
}

}  // namespace

int run_range(const Arguments& args) {
    if (args.empty()) throw UsageError{"range needs a range text"};
    std::string text = args[0];
    for (std::size_t i = 1; i < args.size(); ++i) text += ' ' + args[i];
    try {
        print_line(summarise(kelvane::parse_range_or_percent(text)));
        return kExitOk;
    } catch (const std::exception& error) {
        print_line({{"ok", false}, {"error", QString::fromUtf8(error.what())}});
        return kExitFailure;
    }
}

}  // namespace kelvane_cli
