// Reading the solve map: one key at a time, a missing key taking its default.

#include "app/solve_map.h"

#include <array>

namespace kelvane_app {
namespace {

const QString kRankChars = QStringLiteral("AKQJT98765432");
const QString kSuitChars = QStringLiteral("shdc");

struct StreetKeys {
    const char* prefix;
    SeatSizing SolveConfig::*seat;
    StreetSizing SeatSizing::*street;
};

constexpr std::array<StreetKeys, 6> kStreetKeys{{
    {"oop_flop", &SolveConfig::oop, &SeatSizing::flop},
    {"oop_turn", &SolveConfig::oop, &SeatSizing::turn},
    {"oop_river", &SolveConfig::oop, &SeatSizing::river},
    {"ip_flop", &SolveConfig::ip, &SeatSizing::flop},
    {"ip_turn", &SolveConfig::ip, &SeatSizing::turn},
    {"ip_river", &SolveConfig::ip, &SeatSizing::river},
}};

std::string text(const QVariantMap& map, const QString& key, const QString& fallback = {}) {
    return map.value(key, fallback).toString().toStdString();
}

std::optional<double> jamThreshold(const QVariantMap& map, const QString& seat) {
    if (!map.value(seat + "_add_all_in_jam_threshold_enabled", false).toBool()) return std::nullopt;
    return map.value(seat + "_add_all_in_jam_threshold_pct", 0.0).toDouble();
}

StreetSizing streetSizing(const QVariantMap& map, const QString& prefix) {
    StreetSizing sizing;
    sizing.bet_sizes = text(map, prefix + "_bet_sizes");
    sizing.raise_sizes = text(map, prefix + "_raise_sizes");
    sizing.add_all_in = map.value(prefix + "_add_all_in", false).toBool();
    sizing.dont_donk = map.value(prefix + "_dont_donk", false).toBool();
    return sizing;
}

}  // namespace

QString normalizeBoardText(const QString& text) {
    QString compact;
    for (QChar c : text)
        if (!c.isSpace()) compact += c;
    QString board;
    for (qsizetype i = 0; i + 1 < compact.size(); i += 2) {
        const QChar rank = compact[i].toUpper();
        const QChar suit = compact[i + 1].toLower();
        if (kRankChars.contains(rank) && kSuitChars.contains(suit)) board += QString(rank) + suit;
    }
    return board;
}

SolveConfig solveConfigFromMap(const QVariantMap& map) {
    SolveConfig config;
    config.board = normalizeBoardText(map.value("board").toString()).toStdString();
    config.starting_pot = map.value("starting_pot", 100).toInt();
    config.effective_stack = map.value("effective_stack", 100).toInt();
    config.rake_percent = map.value("rake_percent", 0.0).toDouble();
    config.rake_cap = map.value("rake_cap", 0.0).toDouble();
    config.starting_street = text(map, "starting_street", "flop");
    config.max_iterations = map.value("max_iterations", 2000u).toUInt();
    config.target_exploitability = static_cast<float>(map.value("target_exploitability", 0.1).toDouble());
    config.thread_count = map.value("thread_count", 1u).toUInt();
    config.showdown_early_stop = map.value("showdown_early_stop", false).toBool();
    config.oop_range = text(map, "oop_range");
    config.ip_range = text(map, "ip_range");
    config.oop_jam_threshold_pct = jamThreshold(map, "oop");
    config.ip_jam_threshold_pct = jamThreshold(map, "ip");
    for (const StreetKeys& keys : kStreetKeys)
        config.*keys.seat.*keys.street = streetSizing(map, QString::fromLatin1(keys.prefix));
    return config;
}

}  // namespace kelvane_app
