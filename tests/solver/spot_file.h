#pragma once
// Reads the flat JSON spot files under bench/spots into a game; only the keys a spot needs.

#include <fstream>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>

#include "poker/card_context.h"
#include "poker/range_text.h"
#include "solver/game.h"
#include "tree/game_config.h"
#include "tree/sizing_profile.h"

namespace kelvane::testing {

class SpotFile {
public:
    explicit SpotFile(const std::string& path) {
        std::ifstream in(path);
        if (!in) throw std::runtime_error("cannot open " + path);
        std::ostringstream text;
        text << in.rdbuf();
        content = text.str();
    }

    // The raw text of a string, number or bool value; empty when the key is absent.
    std::string value(const std::string& key) const {
        const std::size_t at = content.find("\"" + key + "\"");
        if (at == std::string::npos) return {};
        std::size_t i = content.find(':', at) + 1;
        while (i < content.size() && (content[i] == ' ' || content[i] == '\t')) ++i;
        if (i < content.size() && content[i] == '"') {
            const std::size_t end = content.find('"', i + 1);
            return content.substr(i + 1, end - i - 1);
        }
        std::size_t end = i;
        while (end < content.size() && content[end] != ',' && content[end] != '}' && content[end] != '\n') ++end;
        return content.substr(i, end - i);
    }

    bool flag(const std::string& key) const { return value(key) == "true"; }

    StreetSizing sizing(const std::string& seat, const std::string& street) const {
        const std::string prefix = seat + "_" + street + "_";
        return {value(prefix + "bet_sizes"), value(prefix + "raise_sizes"), flag(prefix + "add_all_in"),
                flag(prefix + "dont_donk")};
    }

    GameConfig config() const {
        GameConfig config;
        const std::string street = value("starting_street");
        config.starting_street = street == "river" ? 2 : street == "turn" ? 1 : 0;
        config.starting_pot = std::stoi(value("starting_pot"));
        config.effective_stack = std::stoi(value("effective_stack"));
        config.rake_fraction = std::stod(value("rake_percent")) / 100.0;
        config.rake_cap = std::stod(value("rake_cap"));
        build_sizing_profile(config.flop_sizing, sizing("oop", "flop"), sizing("ip", "flop"), "flop");
        build_sizing_profile(config.turn_sizing, sizing("oop", "turn"), sizing("ip", "turn"), "turn");
        build_sizing_profile(config.river_sizing, sizing("oop", "river"), sizing("ip", "river"), "river");
        return config;
    }

    // mirror_oop gives the in-position seat the out-of-position range as well.
    std::unique_ptr<Game> game(bool mirror_oop = false) const {
        const std::string oop = value("oop_range");
        const std::string ip = mirror_oop ? oop : value("ip_range");
        const std::array<RangeWeights, 2> ranges{parse_range_or_percent(oop), parse_range_or_percent(ip)};
        return std::make_unique<Game>(config(), CardContext(parse_board_text(value("board")), ranges));
    }

private:
    std::string content;
};

inline std::string spot_path(const std::string& name) {
    return std::string(KELVANE_SOURCE_DIR) + "/bench/spots/" + name + ".json";
}

}  // namespace kelvane::testing
