// Turning a solve configuration's texts into cards, ranges and the game description.

#include "session/solve_setup.h"

#include <algorithm>

#include "session/solve_validation.h"
#include "tree/sizing_profile.h"

namespace kelvane_app {
namespace {

struct StreetProfile {
    const char* name;
    kelvane::SizingProfile kelvane::GameConfig::*profile;
    StreetSizing SeatSizing::*sizing;
};

constexpr StreetProfile kStreets[] = {
    {"flop", &kelvane::GameConfig::flop_sizing, &SeatSizing::flop},
    {"turn", &kelvane::GameConfig::turn_sizing, &SeatSizing::turn},
    {"river", &kelvane::GameConfig::river_sizing, &SeatSizing::river},
};

double jam_threshold(const std::optional<double>& percent) {
    return percent ? std::max(*percent / 100.0, 0.0) : 0.0;
}

}  // namespace

std::uint8_t starting_street_number(std::string_view name) {
    if (name == "turn") return kelvane::kStreetTurn;
    if (name == "river") return kelvane::kStreetRiver;
    return kelvane::kStreetFlop;
}

kelvane::GameConfig make_game_config(const SolveConfig& config, SizingErrors errors) {
    kelvane::GameConfig game;
    game.starting_street = starting_street_number(config.starting_street);
    game.starting_pot = config.starting_pot;
    game.effective_stack = config.effective_stack;
    game.rake_fraction = config.rake_percent / 100.0;
    game.rake_cap = config.rake_cap;
    game.showdown_early_stop = config.showdown_early_stop;
    game.oop_jam_threshold = jam_threshold(config.oop_jam_threshold_pct);
    game.ip_jam_threshold = jam_threshold(config.ip_jam_threshold_pct);
    // Every street is compiled, also those before the start, so a bad flop text fails a river solve.
    for (const StreetProfile& street : kStreets) {
        kelvane::SizingProfile& profile = game.*street.profile;
        const StreetSizing& oop = config.oop.*street.sizing;
        const StreetSizing& ip = config.ip.*street.sizing;
        if (errors == SizingErrors::labelled)
            kelvane::build_sizing_profile(profile, oop, ip, street.name);
        else
            kelvane::build_sizing_profile_unlabelled(profile, oop, ip);
    }
    return game;
}

SolveSetup make_solve_setup(const SolveConfig& config, SizingErrors errors) {
    SolveSetup setup;
    setup.board = validate_solve_config(config);
    setup.ranges[0] = kelvane::parse_range_or_percent(config.oop_range);
    setup.ranges[1] = kelvane::parse_range_or_percent(config.ip_range);
    setup.game = make_game_config(config, errors);
    return setup;
}

}  // namespace kelvane_app
