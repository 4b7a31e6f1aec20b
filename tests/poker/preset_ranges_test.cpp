// The bundled range documents (written by scripts/generate_ranges.py): their names and shape, that every
// value reads with the range grammar, and the poker rules the generator keeps between the presets.

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "poker/cards.h"
#include "poker/range_text.h"
#include "support/expect_error.h"

namespace kelvane {
namespace {

using ClassWeights = std::map<std::string, float>;
using Values = std::map<std::string, std::string>;
using Spot = std::pair<std::string, std::string>;

constexpr float kSlack = 1e-4f;
const std::vector<std::string> kRakes{"No rake", "50nl rake", "100nl rake", "200nl rake", "500nl rake"};
// Mildest first: micro stakes pay the most rake per big blind.
const std::vector<std::string> kRakesBySeverity{"No rake", "500nl rake", "200nl rake", "100nl rake",
                                                "50nl rake"};
const std::vector<std::string> kPositions{"UTG", "HJ", "CO", "BTN", "SB"};
const std::vector<std::string> kOpeners{"UTG", "HJ", "CO", "BTN"};
const std::vector<Spot> kOopThreebetSpots{{"UTG", "HJ"}, {"UTG", "CO"}, {"UTG", "BTN"}, {"HJ", "CO"},
                                          {"HJ", "BTN"}, {"CO", "BTN"}, {"SB", "BB"}};
const std::vector<Spot> kIpColdSpots = kOopThreebetSpots;
const std::vector<Spot> kIpFourbetSpots{{"HJ", "UTG"}, {"CO", "UTG"}, {"BTN", "UTG"}, {"CO", "HJ"},
                                        {"BTN", "HJ"}, {"BTN", "CO"}, {"BB", "SB"}};
const std::string kUtgOpen =
    "AA, KK, QQ, JJ, TT, 99:0.8, 88:0.8, 77, 66, 55, 44:0.6, 33:0.4, 22:0.4, AKs, AQs, AJs:0.8, ATs:0.8, "
    "A9s:0.8, A8s:0.8, A7s:0.8, A6s:0.8, A5s:0.8, A4s:0.8, A3s:0.8, A2s:0.4, KQs:0.8, KJs:0.8, KTs, K9s:0.6, "
    "K8s:0.2, K7s:0.4, K6s:0.4, QJs:0.8, QTs:0.8, Q9s:0.2, JTs:0.8, J9s:0.8, T9s:0.8, T8s:0.4, 98s:0.2, "
    "87s:0.2, 76s:0.2, AKo, AQo, AJo:0.8, ATo:0.8, KQo:0.8, KJo:0.4, KTo:0.2, QJo:0.2";
const std::string kLooserReg = "Weaker regs / Looser reg / ";
const std::string kTighterReg = "Weaker regs / Tighter reg / ";

// ---- reading ----------------------------------------------------------------------------------------

QJsonObject read_document(const char* file) {
    QFile input(QStringLiteral(KELVANE_RANGE_DATA_DIR "/") + QString::fromUtf8(file));
    if (!input.open(QIODevice::ReadOnly)) {
        ADD_FAILURE() << "cannot open " << file;
        return {};
    }
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(input.readAll(), &error);
    EXPECT_EQ(error.error, QJsonParseError::NoError) << file << ": " << error.errorString().toStdString();
    return document.object();
}

const QJsonObject& standard_document() {
    static const QJsonObject document = read_document("standard_ranges.json");
    return document;
}

const QJsonObject& population_document() {
    static const QJsonObject document = read_document("exploit_ranges.json");
    return document;
}

std::string text_of(const QJsonValue& value) { return value.toString().toStdString(); }

std::vector<std::pair<std::string, std::string>> standard_entries(const char* player) {
    std::vector<std::pair<std::string, std::string>> entries;
    for (const QJsonValue& item : standard_document()[player].toObject()["standard"].toArray())
        entries.emplace_back(text_of(item.toObject()["name"]), text_of(item.toObject()["value"]));
    return entries;
}

// Both seats' presets by full name; the shared opens are equal (tested below).
const Values& standard_values() {
    static const Values values = [] {
        Values all;
        for (const char* player : {"oop", "ip"})
            for (const auto& [name, value] : standard_entries(player)) all[name] = value;
        return all;
    }();
    return values;
}

struct Tree {
    Values leaves;                   // path key ("A / B / leaf") to value
    std::vector<std::string> shape;  // every node's path key, folders marked with a trailing " /"
    int folders = 0;
};

void collect(const QJsonArray& nodes, const std::string& path, Tree& tree) {
    for (const QJsonValue& item : nodes) {
        const QJsonObject node = item.toObject();
        const std::string key = path + text_of(node["name"]);
        if (node.contains("children")) {
            EXPECT_EQ(text_of(node["type"]), "folder") << key;
            ++tree.folders;
            tree.shape.push_back(key + " /");
            collect(node["children"].toArray(), key + " / ", tree);
        } else {
            EXPECT_FALSE(node.contains("type")) << key;
            tree.shape.push_back(key);
            tree.leaves[key] = text_of(node["value"]);
        }
    }
}

const Tree& population(const std::string& player) {
    static std::map<std::string, Tree> trees;
    if (!trees.count(player))
        collect(population_document()[QString::fromStdString(player)].toObject()["exploit"].toArray(), "",
                trees[player]);
    return trees[player];
}

// ---- range helpers ----------------------------------------------------------------------------------

std::vector<std::string> tokens_of(const std::string& value) {
    std::vector<std::string> tokens;
    std::size_t start = 0;
    while (start <= value.size()) {
        const std::size_t comma = value.find(", ", start);
        tokens.push_back(value.substr(start, comma == std::string::npos ? std::string::npos : comma - start));
        if (comma == std::string::npos) break;
        start = comma + 2;
    }
    return tokens;
}

// Tokens of the Population notes that are not hands.
bool is_stray(const std::string& token) { return token == "50" || token == "AA25"; }

std::string without_strays(const std::string& value) {
    std::string kept;
    for (const std::string& token : tokens_of(value))
        if (!is_stray(token)) kept += (kept.empty() ? "" : ", ") + token;
    return kept;
}

ClassWeights classes_of(const std::string& value) {
    const RangeWeights weights = parse_range_or_percent(without_strays(value));
    ClassWeights classes;
    for (int index = 0; index < kPocketCount; ++index) {
        const float weight = weights[static_cast<std::size_t>(index)];
        if (weight > 0) classes[hand_class_label(pocket_from_index(index))] = weight;
    }
    return classes;
}

float combos_of(const std::string& value) {
    const RangeWeights weights = parse_range_or_percent(without_strays(value));
    float sum = 0;
    for (float weight : weights) sum += weight;
    return sum;
}

float weight_of(const ClassWeights& classes, const std::string& hand) {
    const auto found = classes.find(hand);
    return found == classes.end() ? 0.0f : found->second;
}

// Hands of `parts` together never exceed the hand's weight in `whole`.
void expect_shares(const std::vector<std::string>& parts, const std::string& whole, const Values& values,
                   const std::string& where) {
    const ClassWeights total = whole.empty() ? ClassWeights{} : classes_of(values.at(whole));
    std::vector<ClassWeights> split;
    for (const std::string& part : parts) split.push_back(classes_of(values.at(part)));
    for (const std::string& hand : hand_class_grid()) {
        float sum = 0;
        for (const ClassWeights& classes : split) sum += weight_of(classes, hand);
        EXPECT_LE(sum, (whole.empty() ? 1.0f : weight_of(total, hand)) + kSlack) << where << ": " << hand;
    }
}

bool holds_wheel_ace(const ClassWeights& classes) {
    const std::vector<std::string> wheel_aces{"A5s", "A4s", "A3s", "A2s"};
    return std::any_of(wheel_aces.begin(), wheel_aces.end(),
                       [&](const std::string& hand) { return weight_of(classes, hand) > 0; });
}

// ---- names ------------------------------------------------------------------------------------------

std::vector<std::string> six_max_presets(const std::string& player) {
    std::vector<std::string> names;
    for (const auto& position : kPositions) names.push_back("RFI " + position);
    if (player == "oop") {
        for (const auto& opener : kOpeners)
            for (const char* seat : {"SB", "BB"})
                for (const char* action : {"Call ", "3bet "})
                    names.push_back("vs RFI " + opener + ": " + action + seat);
        for (const auto& [first, second] : kOopThreebetSpots)
            for (const char* action : {" Call", " 4bet"})
                names.push_back(first + " vs " + second + " 3bet: " + first + action);
        for (const auto& opener : kOpeners)
            for (const std::string seat : {"SB", "BB"})
                names.push_back(seat + " 3bet vs " + opener + " 4bet: " + seat + " Call");
        return names;
    }
    for (const auto& [opener, seat] : kIpColdSpots)
        for (const char* action : {"Call ", "3bet "})
            names.push_back("vs RFI " + opener + ": " + action + seat);
    for (const auto& opener : kOpeners)
        for (const char* blind : {"SB", "BB"})
            for (const char* action : {" Call", " 4bet"})
                names.push_back(opener + " vs " + blind + " 3bet: " + opener + action);
    for (const auto& [seat, opener] : kIpFourbetSpots)
        names.push_back(seat + " 3bet vs " + opener + " 4bet: " + seat + " Call");
    return names;
}

std::vector<std::string> heads_up_presets(const std::string& player) {
    if (player == "oop") return {"vs RFI SB: Call BB", "vs RFI SB: 3bet BB", "BB 3bet vs SB 4bet: BB Call"};
    return {"RFI SB", "SB vs BB 3bet: SB Call", "SB vs BB 3bet: SB 4bet"};
}

// Every preset name of both seats under one rake prefix ("No rake / " or "Heads up / No rake / ").
std::vector<std::string> names_under(const Values& values, const std::string& prefix) {
    std::vector<std::string> names;
    for (const auto& [name, value] : values)
        if (name.rfind(prefix, 0) == 0 && name.find(" / ", prefix.size()) == std::string::npos)
            names.push_back(name.substr(prefix.size()));
    return names;
}

std::vector<std::string> all_prefixes() {
    std::vector<std::string> prefixes;
    for (const auto& rake : kRakes) prefixes.push_back(rake + " / ");
    for (const auto& rake : kRakes) prefixes.push_back("Heads up / " + rake + " / ");
    return prefixes;
}

// ---- poker rules shared by the Standard presets and the regular players of the Population tree --------

enum class Action { open, flat, threebet, call_3bet, fourbet, call_4bet };

bool ends_with(const std::string& text, const std::string& tail) {
    return text.size() >= tail.size() && text.compare(text.size() - tail.size(), tail.size(), tail) == 0;
}

Action action_of(const std::string& name) {
    if (name.rfind("RFI ", 0) == 0) return Action::open;
    if (name.rfind("vs RFI ", 0) == 0)
        return name.find(": 3bet ") != std::string::npos ? Action::threebet : Action::flat;
    if (name.find(" 4bet: ") != std::string::npos) return Action::call_4bet;
    return ends_with(name, " 4bet") ? Action::fourbet : Action::call_3bet;
}

// The call preset of the spot whose raise is `raise`.
std::string call_beside(std::string raise) {
    if (raise.find(": 3bet ") != std::string::npos) return raise.replace(raise.find(": 3bet "), 7, ": Call ");
    return raise.replace(raise.size() - 4, 4, "Call");
}

// The range an answer comes out of: the open facing a 3-bet, the 3-bet facing a 4-bet.
std::string source_of(const std::string& name) {
    const std::string first = name.substr(0, name.find(' '));
    if (action_of(name) != Action::call_4bet) return "RFI " + first;
    const std::size_t opener = name.find(" vs ") + 4;
    return "vs RFI " + name.substr(opener, name.find(' ', opener) - opener) + ": 3bet " + first;
}

void expect_spot_rules(const Values& values, const std::string& prefix) {
    for (const std::string& name : names_under(values, prefix)) {
        const std::string full = prefix + name;
        const Action action = action_of(name);
        if (action == Action::threebet) expect_shares({full, call_beside(full)}, "", values, full);
        if (action == Action::fourbet)
            expect_shares({full, call_beside(full)}, prefix + source_of(name), values, full);
        if (action == Action::call_4bet) expect_shares({full}, prefix + source_of(name), values, full);
    }
}

// A raise holds aces and a suited wheel ace but leaves out some middle pair that outranks that ace: value
// and bluffs with a gap between them.
void expect_polarised(const Values& values, const std::string& prefix) {
    for (const std::string& name : names_under(values, prefix)) {
        if (action_of(name) != Action::threebet && action_of(name) != Action::fourbet) continue;
        const ClassWeights raises = classes_of(values.at(prefix + name));
        EXPECT_FLOAT_EQ(weight_of(raises, "AA"), 1.0f) << prefix << name;
        EXPECT_TRUE(holds_wheel_ace(raises)) << prefix << name;
        const std::vector<std::string> middle_pairs{"99", "88", "77", "66", "55"};
        EXPECT_TRUE(std::any_of(middle_pairs.begin(), middle_pairs.end(),
                                [&](const std::string& pair) { return weight_of(raises, pair) == 0.0f; }))
            << prefix << name;
    }
}

// Against the tightest opener a 3-bet is a big pair or a hand with an ace or king blocker.
void expect_blockers_against_utg(const Values& values, const std::string& prefix) {
    static const std::set<std::string> big_pairs{"AA", "KK", "QQ", "JJ", "TT"};
    for (const std::string& name : names_under(values, prefix)) {
        if (name.rfind("vs RFI UTG: 3bet ", 0) != 0) continue;
        for (const auto& [hand, weight] : classes_of(values.at(prefix + name)))
            EXPECT_TRUE(big_pairs.count(hand) || hand[0] == 'A' || hand[0] == 'K')
                << prefix << name << ": " << hand;
    }
}

// ---- Standard document ------------------------------------------------------------------------------

TEST(StandardDocument, HoldsTheEntryCountsPerSeat) {
    EXPECT_EQ(standard_entries("oop").size(), 230u);
    EXPECT_EQ(standard_entries("ip").size(), 225u);
}

TEST(StandardDocument, NamesRunThroughTheRakeLevelsThenHeadsUp) {
    for (const char* player : {"oop", "ip"}) {
        std::vector<std::string> expected;
        for (const auto& rake : kRakes)
            for (const auto& preset : six_max_presets(player)) expected.push_back(rake + " / " + preset);
        for (const auto& rake : kRakes)
            for (const auto& preset : heads_up_presets(player))
                expected.push_back("Heads up / " + rake + " / " + preset);
        std::vector<std::string> names;
        for (const auto& [name, value] : standard_entries(player)) names.push_back(name);
        EXPECT_EQ(names, expected) << player;
    }
    EXPECT_EQ(six_max_presets("oop").size(), 43u);
    EXPECT_EQ(six_max_presets("ip").size(), 42u);
}

TEST(StandardDocument, FirstEntryIsTheFixedUtgOpen) {
    for (const char* player : {"oop", "ip"}) {
        ASSERT_FALSE(standard_entries(player).empty());
        EXPECT_EQ(standard_entries(player).front().first, "No rake / RFI UTG");
        EXPECT_EQ(standard_entries(player).front().second, kUtgOpen);
    }
}

TEST(StandardDocument, OpensAreTheOnlySharedPresetsAndMatch) {
    const auto oop = standard_entries("oop");
    const auto ip = standard_entries("ip");
    const Values oop_values(oop.begin(), oop.end());
    std::set<std::string> shared;
    for (const auto& [name, value] : ip) {
        if (name.rfind("Heads up / ", 0) == 0 || !oop_values.count(name)) continue;
        shared.insert(name);
        EXPECT_EQ(oop_values.at(name), value) << name;
    }
    std::set<std::string> opens;
    for (const auto& rake : kRakes)
        for (const auto& position : kPositions) opens.insert(rake + " / RFI " + position);
    EXPECT_EQ(shared, opens);
}

TEST(StandardDocument, ValuesAreEnumeratedHandsWithWeightsInFifths) {
    const std::set<std::string> hands(hand_class_grid().begin(), hand_class_grid().end());
    const std::set<std::string> weights{"0.2", "0.4", "0.6", "0.8"};
    for (const auto& [name, value] : standard_values()) {
        ASSERT_FALSE(value.empty()) << name;
        std::set<std::string> seen;
        for (const std::string& token : tokens_of(value)) {
            const std::size_t colon = token.find(':');
            const std::string hand = token.substr(0, colon);
            EXPECT_TRUE(hands.count(hand)) << name << ": " << token;
            EXPECT_TRUE(seen.insert(hand).second) << name << ": " << hand << " twice";
            if (colon != std::string::npos) {
                EXPECT_TRUE(weights.count(token.substr(colon + 1))) << name << ": " << token;
            }
        }
    }
}

TEST(StandardDocument, EveryValueReadsWithTheRangeGrammar) {
    for (const auto& [name, value] : standard_values()) {
        EXPECT_NO_THROW(parse_range_or_percent(value)) << name;
        EXPECT_GT(combos_of(value), 0.0f) << name;
    }
}

TEST(StandardDocument, EachPresetDiffersFromRakeToRake) {
    for (const char* player : {"oop", "ip"}) {
        std::vector<std::pair<std::string, std::string>> forms;
        for (const auto& preset : six_max_presets(player)) forms.emplace_back("", " / " + preset);
        for (const auto& preset : heads_up_presets(player)) forms.emplace_back("Heads up / ", " / " + preset);
        for (const auto& [head, tail] : forms) {
            std::set<std::string> texts;
            for (const auto& rake : kRakes) texts.insert(standard_values().at(head + rake + tail));
            EXPECT_EQ(texts.size(), kRakes.size()) << head << tail;
        }
    }
}

// ---- Standard ranges as poker -----------------------------------------------------------------------

TEST(StandardRanges, OpensWidenPositionByPosition) {
    const std::vector<Spot> wider{{"UTG", "HJ"}, {"HJ", "CO"}, {"CO", "BTN"}, {"CO", "SB"}};
    for (const auto& rake : kRakes) {
        for (const auto& [tight, loose] : wider) {
            const ClassWeights inner = classes_of(standard_values().at(rake + " / RFI " + tight));
            const ClassWeights outer = classes_of(standard_values().at(rake + " / RFI " + loose));
            for (const auto& [hand, weight] : inner)
                EXPECT_LE(weight, weight_of(outer, hand) + kSlack)
                    << rake << " RFI " << loose << ": " << hand;
            EXPECT_GT(combos_of(standard_values().at(rake + " / RFI " + loose)),
                      combos_of(standard_values().at(rake + " / RFI " + tight)));
        }
        const ClassWeights six_max = classes_of(standard_values().at(rake + " / RFI SB"));
        const ClassWeights heads_up = classes_of(standard_values().at("Heads up / " + rake + " / RFI SB"));
        for (const auto& [hand, weight] : six_max)
            EXPECT_LE(weight, weight_of(heads_up, hand) + kSlack) << hand;
    }
}

TEST(StandardRanges, RakeTightensOpensAndNarrowsCalls) {
    for (std::size_t level = 1; level < kRakesBySeverity.size(); ++level) {
        for (const std::string head : {"", "Heads up / "}) {
            const std::string milder = head + kRakesBySeverity[level - 1] + " / ";
            const std::string harsher = head + kRakesBySeverity[level] + " / ";
            for (const std::string& name : names_under(standard_values(), harsher)) {
                const std::string& now = standard_values().at(harsher + name);
                const std::string& before = standard_values().at(milder + name);
                const Action action = action_of(name);
                if (action == Action::open) {
                    const ClassWeights wide = classes_of(before);
                    for (const auto& [hand, weight] : classes_of(now))
                        EXPECT_LE(weight, weight_of(wide, hand) + kSlack) << harsher << name << ": " << hand;
                }
                const bool blind_flat =
                    action == Action::flat && (ends_with(name, "SB") || ends_with(name, "BB"));
                if (action == Action::open || blind_flat) {
                    EXPECT_LT(combos_of(now), combos_of(before)) << harsher << name;
                }
                if (name.find("Call") != std::string::npos) {
                    EXPECT_LE(combos_of(now), combos_of(before) + kSlack) << harsher << name;
                }
            }
        }
    }
}

TEST(StandardRanges, ActionsOfOneSpotShareTheHand) {
    for (const std::string& prefix : all_prefixes()) expect_spot_rules(standard_values(), prefix);
}

TEST(StandardRanges, RaisesArePolarised) {
    for (const std::string& prefix : all_prefixes()) expect_polarised(standard_values(), prefix);
}

TEST(StandardRanges, ThreebetsAgainstUtgHoldBigPairsOrBlockers) {
    for (const auto& rake : kRakes) expect_blockers_against_utg(standard_values(), rake + " / ");
}

// ---- Population tree --------------------------------------------------------------------------------

using Layout = std::vector<std::pair<std::string, std::vector<std::string>>>;

void add_seats(std::vector<std::string>& shape, const std::string& path, const Layout& layout) {
    for (const auto& [seat, leaves] : layout) {
        shape.push_back(path + seat + " /");
        for (const auto& leaf : leaves) shape.push_back(path + seat + " / " + leaf);
    }
}

// Where the library files a six-max preset: folders, then the action as leaf.
std::string regular_path(const std::string& preset) {
    if (preset.rfind("RFI ", 0) == 0) return "RFI / " + preset.substr(4);
    const std::size_t colon = preset.find(": ");
    const std::string spot = preset.substr(0, colon), action = preset.substr(colon + 2);
    if (preset.rfind("vs RFI ", 0) == 0) return "vs RFI / vs " + spot.substr(7) + " RFI / " + action;
    const bool facing_4bet =
        preset.find("3bet vs") != std::string::npos && preset.find("4bet") != std::string::npos;
    return std::string(facing_4bet ? "vs 4bet / " : "vs 3bet / ") + spot + " / " + action;
}

void add_regular(std::vector<std::string>& shape, const std::string& path, const std::string& player) {
    std::vector<std::string> seen;
    for (const std::string& preset : six_max_presets(player)) {
        const std::string full = regular_path(preset);
        for (std::size_t cut = full.find(" / "); cut != std::string::npos; cut = full.find(" / ", cut + 3)) {
            const std::string folder = path + full.substr(0, cut) + " /";
            if (std::find(seen.begin(), seen.end(), folder) == seen.end()) seen.push_back(folder);
        }
        seen.push_back(path + full);
    }
    // Section folders first in the library's order, each followed by its contents.
    for (const std::string section : {"RFI", "vs RFI", "vs 3bet", "vs 4bet"}) {
        shape.push_back(path + section + " /");
        for (const std::string& key : seen)
            if (key.rfind(path + section + " / ", 0) == 0) shape.push_back(key);
    }
}

std::vector<std::string> expected_population(const std::string& player) {
    const bool oop = player == "oop";
    const Layout passive =
        oop ? Layout{{"UTG/HJ/CO", {"Limp", "Limp-call", "Limp-3b", "RFI", "Call 3b", "4b"}},
                     {"SB", {"Limp", "Limp-3b", "RFI", "3b", "4b", "Call 3b", "Call 4b"}},
                     {"BB", {"Check back", "Call raise", "3b", "Call 4b"}}}
            : Layout{{"UTG/HJ/CO", {"Limp", "Limp-call", "Limp-3b", "RFI", "3b", "Call 3b", "4b", "Call 4b"}},
                     {"BU", {"Limp", "Limp-call", "Limp-3b", "RFI", "3b", "Call 3b", "4b", "Call 4b"}},
                     {"BB", {"Call raise", "3b", "Call 4b"}}};
    const std::vector<std::string> opener{"RFI", "3b", "Call 3b", "4b", "Call 4b"};
    const Layout lag = oop ? Layout{{"UTG/HJ/CO", {"RFI", "Call 3b", "4b"}},
                                    {"SB", {"RFI", "3b", "4b", "Call 3b", "Call 4b"}},
                                    {"BB", {"Call raise", "3b", "Call 4b"}}}
                           : Layout{{"UTG/HJ/CO", opener}, {"BU", opener}, {"BB", {"Call", "3b"}}};
    Layout nit = lag;
    nit.back().second = oop ? std::vector<std::string>{"Check back", "Call raise", "3b", "Call 4b"}
                            : std::vector<std::string>{"Call raise", "3b", "Call 4b"};
    std::vector<std::string> shape;
    const std::string passive_top = "Passive (VPIP 18–65)";
    shape.push_back(passive_top + " /");
    for (const char* type : {"Passive tight (VPIP 18–25)", "Passive neutral (VPIP 25–35)",
                             "Passive loose (VPIP 35–45)", "Extreme loose (VPIP 45–65)"}) {
        const std::string path = passive_top + " / " + type;
        shape.push_back(path + " /");
        shape.push_back(path + " / 3b cold call");
        add_seats(shape, path + " / ", passive);
    }
    const std::string lag_top = "Loose aggressive (VPIP 28–70)";
    shape.push_back(lag_top + " /");
    for (const char* type : {"Standard LAG (VPIP 28–40)", "Maniac (VPIP 45–70)"}) {
        shape.push_back(lag_top + " / " + type + " /");
        add_seats(shape, lag_top + " / " + type + " / ", lag);
    }
    shape.push_back("Weaker regs /");
    for (const char* type : {"Tighter reg", "Looser reg"}) {
        shape.push_back(std::string("Weaker regs / ") + type + " /");
        add_regular(shape, std::string("Weaker regs / ") + type + " / ", player);
    }
    shape.push_back("Overfolder (10-22 VPIP) /");
    shape.push_back("Overfolder (10-22 VPIP) / Nit /");
    add_seats(shape, "Overfolder (10-22 VPIP) / Nit / ", nit);
    shape.push_back("Other /");
    shape.push_back("Other / Bomb pot");
    return shape;
}

// A regular player's leaves under their preset names, so that the Standard rules apply to them.
Values regular_presets(const std::string& player, const std::string& type) {
    Values presets;
    for (const std::string& preset : six_max_presets(player))
        presets[type + " / " + preset] =
            population(player).leaves.at("Weaker regs / " + type + " / " + regular_path(preset));
    return presets;
}

std::string leaf(const std::string& player, const std::string& path) {
    return population(player).leaves.at(path);
}

TEST(PopulationDocument, HeaderAndEmptyStandardLists) {
    EXPECT_EQ(text_of(population_document()["format"]), "kelvane_ranges_export");
    EXPECT_EQ(population_document()["version"].toInt(), 1);
    EXPECT_FALSE(text_of(population_document()["generatedAt"]).empty());
    for (const char* player : {"oop", "ip"}) {
        const QJsonObject seat = population_document()[player].toObject();
        EXPECT_TRUE(seat["standard"].isArray() && seat["standard"].toArray().isEmpty()) << player;
        EXPECT_EQ(seat["exploit"].toArray().size(), 5) << player;
    }
}

TEST(PopulationDocument, TreeHoldsTheListedFoldersAndLeaves) {
    for (const char* player : {"oop", "ip"})
        EXPECT_EQ(population(player).shape, expected_population(player)) << player;
    EXPECT_EQ(population("oop").folders, 81);
    EXPECT_EQ(population("oop").leaves.size(), 193u);
    EXPECT_EQ(population("ip").folders, 81);
    EXPECT_EQ(population("ip").leaves.size(), 202u);
}

TEST(PopulationDocument, ValuesReadWithTheRangeGrammarExceptStrayTokens) {
    std::set<std::string> with_fifty, with_aa25;
    for (const char* player : {"oop", "ip"}) {
        for (const auto& [path, value] : population(player).leaves) {
            EXPECT_FALSE(without_strays(value).empty()) << path;
            const std::vector<std::string> tokens = tokens_of(value);
            if (std::count(tokens.begin(), tokens.end(), "50")) {
                with_fifty.insert(player + (": " + path));
                EXPECT_ERROR(std::invalid_argument, parse_range_or_percent(value), "Invalid rank character");
            } else if (std::count(tokens.begin(), tokens.end(), "AA25")) {
                with_aa25.insert(player + (": " + path));
                EXPECT_ERROR(std::invalid_argument, parse_range_or_percent(value),
                             "Invalid combo pattern length");
            } else {
                EXPECT_NO_THROW(parse_range_or_percent(value)) << path;
            }
            EXPECT_NO_THROW(parse_range_or_percent(without_strays(value))) << path;
        }
    }
    std::set<std::string> call_sb;
    for (const auto& opener : kOpeners)
        call_sb.insert("oop: " + kLooserReg + "vs RFI / vs " + opener + " RFI / Call SB");
    EXPECT_EQ(with_fifty, call_sb);
    EXPECT_EQ(with_aa25,
              std::set<std::string>{"oop: " + kTighterReg + "vs 3bet / UTG vs CO 3bet / UTG 4bet"});
}

TEST(PopulationDocument, WeightOfZeroTakesKJoOut) {
    int zero_weights = 0;
    for (const char* player : {"oop", "ip"}) {
        for (const auto& [path, value] : population(player).leaves) {
            const std::vector<std::string> tokens = tokens_of(value);
            if (!std::count(tokens.begin(), tokens.end(), "KJo:0")) continue;
            ++zero_weights;
            const RangeWeights weights = parse_range_or_percent(value);
            for (int index : expand_combo(parse_combo("KJo")))
                EXPECT_EQ(weights[static_cast<std::size_t>(index)], 0.0f) << path;
            EXPECT_GT(combos_of(value), 0.0f) << path;
        }
    }
    EXPECT_GT(zero_weights, 0);
}

TEST(PopulationDocument, BombPotIsTheWholeDeck) {
    for (const char* player : {"oop", "ip"}) {
        EXPECT_EQ(leaf(player, "Other / Bomb pot"), "100%");
        EXPECT_FLOAT_EQ(combos_of(leaf(player, "Other / Bomb pot")), static_cast<float>(kPocketCount));
    }
}

TEST(PopulationDocument, ValuesUseRangeFormsAndQuarterWeights) {
    const std::set<std::string> weights{"0", "0.25", "0.5", "0.75"};
    std::set<std::string> forms;
    for (const char* player : {"oop", "ip"}) {
        for (const auto& [path, value] : population(player).leaves) {
            for (const std::string& token : tokens_of(without_strays(value))) {
                const std::size_t colon = token.find(':');
                if (colon != std::string::npos) {
                    EXPECT_TRUE(weights.count(token.substr(colon + 1))) << path << ": " << token;
                }
                const std::string hand = token.substr(0, colon);
                if (hand.back() == '+') forms.insert(hand.size() == 3 ? "pair plus" : "kicker plus");
                if (hand.find('-') != std::string::npos)
                    forms.insert(hand.size() == 5 ? "pair dash" : "kicker dash");
            }
        }
    }
    EXPECT_EQ(forms, (std::set<std::string>{"kicker dash", "kicker plus", "pair dash", "pair plus"}));
}

// ---- Population types as poker ----------------------------------------------------------------------

const std::vector<std::string> kPassiveTypes{"Passive (VPIP 18–65) / Passive tight (VPIP 18–25) / ",
                                             "Passive (VPIP 18–65) / Passive neutral (VPIP 25–35) / ",
                                             "Passive (VPIP 18–65) / Passive loose (VPIP 35–45) / ",
                                             "Passive (VPIP 18–65) / Extreme loose (VPIP 45–65) / "};
const std::string kLag = "Loose aggressive (VPIP 28–70) / Standard LAG (VPIP 28–40) / ";
const std::string kManiac = "Loose aggressive (VPIP 28–70) / Maniac (VPIP 45–70) / ";
const std::string kNit = "Overfolder (10-22 VPIP) / Nit / ";

std::vector<std::string> opening_seats(const std::string& player) {
    return player == "oop" ? std::vector<std::string>{"UTG/HJ/CO", "SB"}
                           : std::vector<std::string>{"UTG/HJ/CO", "BU"};
}

float leaf_combos(const std::string& player, const std::string& path) {
    return combos_of(leaf(player, path));
}

TEST(PopulationTypes, PassivePlayersLimpMoreThanTheyRaise) {
    for (const char* player : {"oop", "ip"})
        for (const auto& type : kPassiveTypes)
            for (const auto& seat : opening_seats(player)) {
                const std::string at = type + seat + " / ";
                EXPECT_GT(leaf_combos(player, at + "Limp"), leaf_combos(player, at + "RFI")) << at;
                expect_shares({at + "Limp", at + "RFI"}, "", population(player).leaves, at);
            }
}

TEST(PopulationTypes, PassiveTypesWidenWithTheirVpip) {
    for (const char* player : {"oop", "ip"})
        for (std::size_t looser = 1; looser < kPassiveTypes.size(); ++looser) {
            const std::string& before = kPassiveTypes[looser - 1];
            const std::string& after = kPassiveTypes[looser];
            for (const auto& seat : opening_seats(player)) {
                const auto entered = [&](const std::string& type) {
                    return leaf_combos(player, type + seat + " / Limp") +
                           leaf_combos(player, type + seat + " / RFI");
                };
                EXPECT_GT(entered(after), entered(before)) << after << seat;
            }
            EXPECT_GT(leaf_combos(player, after + "BB / Call raise"),
                      leaf_combos(player, before + "BB / Call raise"));
            EXPECT_GT(leaf_combos(player, after + "3b cold call"),
                      leaf_combos(player, before + "3b cold call"));
        }
}

TEST(PopulationTypes, PassivePlayersThreebetLessThanLags) {
    for (const char* player : {"oop", "ip"})
        for (const auto& type : kPassiveTypes) {
            const std::string seat = player == std::string("oop") ? "SB" : "BU";
            EXPECT_LT(leaf_combos(player, type + seat + " / 3b"), leaf_combos(player, kLag + seat + " / 3b"))
                << type;
            EXPECT_LT(leaf_combos(player, type + "BB / 3b"), leaf_combos(player, kLag + "BB / 3b")) << type;
        }
}

TEST(PopulationTypes, ManiacsOpenWiderThanLagsAndLagsThanNits) {
    for (const char* player : {"oop", "ip"})
        for (const auto& seat : opening_seats(player)) {
            const std::string rfi = seat + " / RFI";
            EXPECT_GT(leaf_combos(player, kManiac + rfi), leaf_combos(player, kLag + rfi)) << player << seat;
            EXPECT_GT(leaf_combos(player, kLag + rfi), leaf_combos(player, kNit + rfi)) << player << seat;
            if (seat == "UTG/HJ/CO" && player == std::string("oop")) continue;
            const std::string threebet = seat + " / 3b";
            EXPECT_GT(leaf_combos(player, kManiac + threebet), leaf_combos(player, kLag + threebet)) << seat;
            EXPECT_GT(leaf_combos(player, kLag + threebet), leaf_combos(player, kNit + threebet)) << seat;
        }
}

TEST(PopulationTypes, NitsFoldMostOpensToA3bet) {
    for (const char* player : {"oop", "ip"})
        for (const auto& seat : opening_seats(player)) {
            const auto kept = [&](const std::string& type) {
                const std::string at = type + seat + " / ";
                return (leaf_combos(player, at + "Call 3b") + leaf_combos(player, at + "4b")) /
                       leaf_combos(player, at + "RFI");
            };
            EXPECT_LT(kept(kNit), 0.3f) << player << seat;
            EXPECT_LT(kept(kNit), kept(kLag)) << player << seat;
        }
}

// Within one seat of one type, later actions come out of the range that reached them.
TEST(PopulationTypes, ActionsOfOneSeatShareItsHands) {
    for (const char* player : {"oop", "ip"}) {
        const Values& leaves = population(player).leaves;
        int seats = 0;
        for (const auto& [path, value] : leaves) {
            const std::size_t cut = path.rfind(" / ");
            if (path.substr(cut + 3) != "RFI" || path.rfind("Weaker regs", 0) == 0) continue;
            const std::string at = path.substr(0, cut + 3);
            ++seats;
            if (leaves.count(at + "4b")) expect_shares({at + "Call 3b", at + "4b"}, at + "RFI", leaves, at);
            if (leaves.count(at + "Limp-call"))
                expect_shares({at + "Limp-call", at + "Limp-3b"}, at + "Limp", leaves, at);
            if (leaves.count(at + "Call 4b")) expect_shares({at + "Call 4b"}, at + "3b", leaves, at);
        }
        EXPECT_EQ(seats, 14);
        for (const auto& [path, value] : leaves) {
            const std::size_t cut = path.rfind(" / ");
            if (path.substr(cut + 3) != "3b" || path.find(" / BB / ") == std::string::npos) continue;
            const std::string at = path.substr(0, cut + 3);
            const std::string call = leaves.count(at + "Call raise") ? at + "Call raise" : at + "Call";
            expect_shares({call, at + "3b"}, "", leaves, at);
            if (leaves.count(at + "Call 4b")) expect_shares({at + "Call 4b"}, at + "3b", leaves, at);
        }
    }
}

TEST(PopulationTypes, WeakerRegsOpenAroundTheStandardOpens) {
    for (const char* player : {"oop", "ip"})
        for (const auto& position : kPositions) {
            const float standard = combos_of(standard_values().at("No rake / RFI " + position));
            EXPECT_LT(leaf_combos(player, kTighterReg + "RFI / " + position), standard) << position;
            EXPECT_GT(leaf_combos(player, kLooserReg + "RFI / " + position), standard) << position;
        }
}

TEST(PopulationTypes, WeakerRegsKeepTheStandardRules) {
    for (const char* player : {"oop", "ip"})
        for (const char* type : {"Tighter reg", "Looser reg"}) {
            const Values presets = regular_presets(player, type);
            const std::string prefix = std::string(type) + " / ";
            expect_spot_rules(presets, prefix);
            expect_polarised(presets, prefix);
            expect_blockers_against_utg(presets, prefix);
        }
}

}  // namespace
}  // namespace kelvane
