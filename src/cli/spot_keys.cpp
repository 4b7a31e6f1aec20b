// Types and ranges of a spot file's values, key by key.

#include "cli/spot_keys.h"

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <optional>
#include <stdexcept>
#include <string>

#include "cli/json_text.h"
#include "session/solve_validation.h"

namespace kelvane_cli {
namespace {

enum class Kind { text, flag, number, chips, count };

struct SpotKey {
    const char* name;
    Kind kind;
    std::uint64_t most = 0;  // for a count
};

constexpr std::uint64_t kMostIterations = std::numeric_limits<std::uint32_t>::max();

constexpr SpotKey kKeys[] = {
    {"board", Kind::text},
    {"starting_street", Kind::text},
    {"oop_range", Kind::text},
    {"ip_range", Kind::text},
    {"starting_pot", Kind::chips},
    {"effective_stack", Kind::chips},
    {"rake_percent", Kind::number},
    {"rake_cap", Kind::number},
    {"target_exploitability", Kind::number},
    {"max_iterations", Kind::count, kMostIterations},
    {"thread_count", Kind::count, kelvane_app::kMaxThreadCount},
    {"showdown_early_stop", Kind::flag},
    {"oop_add_all_in_jam_threshold_enabled", Kind::flag},
    {"oop_add_all_in_jam_threshold_pct", Kind::number},
    {"ip_add_all_in_jam_threshold_enabled", Kind::flag},
    {"ip_add_all_in_jam_threshold_pct", Kind::number},
};

constexpr const char* kStreetPrefixes[] = {"oop_flop", "oop_turn", "oop_river",
                                           "ip_flop",  "ip_turn",  "ip_river"};

constexpr SpotKey kStreetSuffixes[] = {
    {"_bet_sizes", Kind::text},
    {"_raise_sizes", Kind::text},
    {"_add_all_in", Kind::flag},
    {"_dont_donk", Kind::flag},
};

std::optional<SpotKey> spot_key(const QString& name) {
    for (const SpotKey& key : kKeys)
        if (name == QLatin1String(key.name)) return key;
    for (const char* prefix : kStreetPrefixes)
        for (const SpotKey& suffix : kStreetSuffixes)
            if (name == QLatin1String(prefix) + QLatin1String(suffix.name)) return suffix;
    return std::nullopt;
}

[[noreturn]] void refuse(const QString& key, const char* expected, const QJsonValue& value) {
    throw std::invalid_argument(key.toStdString() + ": expected " + expected + ", got " +
                                describe_json(value));
}

double whole_number(const QString& key, const QJsonValue& value) {
    if (!value.isDouble()) refuse(key, "a number", value);
    const double number = value.toDouble();
    if (!std::isfinite(number) || std::trunc(number) != number) refuse(key, "a whole number", value);
    return number;
}

void check_count(const QString& key, std::uint64_t most, const QJsonValue& value) {
    const double number = whole_number(key, value);
    const std::string name = key.toStdString();
    if (number < 0.0)
        throw std::out_of_range(name + " must be at least 0 (got " + describe_json(value) + ")");
    if (number > static_cast<double>(most))
        throw std::out_of_range(name + " must be at most " + std::to_string(most) + " (got " +
                                describe_json(value) + ")");
}

// The amount as a whole number of 64 bits, or the config's own default when the key is missing.
std::int64_t chips(const QJsonObject& spot, const char* name, std::int64_t fallback) {
    const QString key = QLatin1String(name);
    if (!spot.contains(key)) return fallback;
    const double number = whole_number(key, spot.value(key));
    if (std::abs(number) > kExactWholeLimit)
        throw std::out_of_range(std::string(name) + ": " + describe_json(spot.value(key)) + " is too large");
    return static_cast<std::int64_t>(number);
}

void check_value(const QString& key, const SpotKey& expected, const QJsonValue& value) {
    switch (expected.kind) {
        case Kind::text:
            if (!value.isString()) refuse(key, "a string", value);
            return;
        case Kind::flag:
            if (!value.isBool()) refuse(key, "true or false", value);
            return;
        case Kind::number:
            if (!value.isDouble()) refuse(key, "a number", value);
            return;
        case Kind::chips:
            whole_number(key, value);
            return;
        case Kind::count:
            check_count(key, expected.most, value);
            return;
    }
}

}  // namespace

void check_spot_keys(const QJsonObject& spot) {
    // All warnings come first: a misspelt key often explains the error that follows.
    for (const QString& key : spot.keys())
        if (!spot_key(key))
            std::fprintf(stderr, "orvanthis-cli: warning: unknown key %s in the spot file is ignored\n",
                         json_quoted(key.toStdString()).c_str());
    for (auto entry = spot.begin(); entry != spot.end(); ++entry)
        if (const std::optional<SpotKey> expected = spot_key(entry.key()))
            check_value(entry.key(), *expected, entry.value());
    const kelvane_app::SolveConfig defaults;
    kelvane_app::check_chip_amounts(chips(spot, "starting_pot", defaults.starting_pot),
                                    chips(spot, "effective_stack", defaults.effective_stack));
}

std::vector<QString> sizing_text_keys() {
    std::vector<QString> keys;
    for (const char* prefix : kStreetPrefixes)
        for (const SpotKey& suffix : kStreetSuffixes)
            if (suffix.kind == Kind::text) keys.push_back(QLatin1String(prefix) + QLatin1String(suffix.name));
    return keys;
}

}  // namespace kelvane_cli
