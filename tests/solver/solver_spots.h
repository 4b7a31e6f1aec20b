#pragma once
// Small spots built in code for the solver tests: a river, turns, and a game with a known equilibrium.

#include <memory>
#include <string>
#include <vector>

#include "poker/card_context.h"
#include "poker/cards.h"
#include "poker/range_text.h"
#include "solver/discounted_cfr.h"
#include "solver/game.h"
#include "tree/game_config.h"
#include "tree/sizing_profile.h"

namespace kelvane::testing {

struct SpotSetup {
    std::string board;
    std::string oop_range;
    std::string ip_range;
    std::int32_t pot = 100;
    std::int32_t stack = 100;
    std::string oop_bets;
    std::string oop_raises;
    std::string ip_bets;
    std::string ip_raises;
    double rake_fraction = 0.0;
    double rake_cap = 0.0;
};

inline std::unique_ptr<Game> make_game(const SpotSetup& setup) {
    const BoardCards board = parse_board_text(setup.board);
    GameConfig config;
    config.starting_street = static_cast<std::uint8_t>(board_street(board));
    config.starting_pot = setup.pot;
    config.effective_stack = setup.stack;
    config.rake_fraction = setup.rake_fraction;
    config.rake_cap = setup.rake_cap;
    const StreetSizing oop{setup.oop_bets, setup.oop_raises, false, false};
    const StreetSizing ip{setup.ip_bets, setup.ip_raises, false, false};
    build_sizing_profile(config.flop_sizing, oop, ip, "flop");
    build_sizing_profile(config.turn_sizing, oop, ip, "turn");
    build_sizing_profile(config.river_sizing, oop, ip, "river");
    const std::array<RangeWeights, 2> ranges{parse_range_text(setup.oop_range), parse_range_text(setup.ip_range)};
    return std::make_unique<Game>(config, CardContext(board, ranges));
}

// A turn spot small enough for many iterations, both seats with the same range.
inline SpotSetup small_turn_spot() {
    const std::string range = "AA,99,77,AK,KQs,QJs,JTs,T8s,86s,65s";
    return {"Ks9d4c7h", range, range, 100, 100, "50", "", "50", ""};
}

// One range far stronger than the other: many of the weak seat's hands lose to the strong seat's
// whole range, and the strong seat's best hands beat the weak seat's whole range.
inline SpotSetup lopsided_river_spot() {
    return {"Ks9d4c7h2s", "KK,99,77,AK,K9s,97s,QJo,JTo,T8o,65o,63o", "AA,QQ,JJ,TT,AQs,KQ,KJs,86s,A5s,T9s",
            100, 200, "50,100", "100", "75", "100"};
}

// A turn spot with more than 128 hands a side, so that the update pass fans out at the river deal.
inline SpotSetup wide_turn_spot() {
    const std::string range = "22+,A8s+,KTs+,QJs,AJo+,KQo";
    return {"Ks9h5d2c", range, range, 100, 100, "50", "", "50", ""};
}

// Nuts (99, trips) and air (43, playing the board) against a bluff-catcher (88), one pot-sized bet by
// the first seat and nothing else to do. The second seat also holds a trace of 65, which ties the air
// and so never calls.
// No card is shared across the two ranges, so every matchup is possible.
struct PolarizedSpot {
    static constexpr double kValueCombos = 3.0;   // 99 with a nine on the board
    static constexpr double kAirCombos = 16.0;    // 43
    static constexpr double kCatcherCombos = 6.0; // 88
    static constexpr double kTraceWeight = 0.001;
    static constexpr double kTraceCombos = 16.0;  // 65
    static SpotSetup setup() {
        return {"AhKdQcJs9h", "99,43", "88,65:0.001", 100, 100, "100", "", "", ""};
    }
};

// Every node's regrets and strategy sums as the solver holds them after a solve.
struct StoredStates {
    std::vector<std::vector<float>> regrets;
    std::vector<std::vector<float>> strategy_sums;
};

inline StoredStates stored_states(const DiscountedCfr& cfr) {
    StoredStates states;
    for (std::uint64_t n = 0; n < cfr.state_count(); ++n) {
        states.regrets.push_back(cfr.regrets_of(n));
        states.strategy_sums.push_back(cfr.strategy_sum_of(n));
    }
    return states;
}

inline DiscountedCfrOptions quiet_options(std::uint32_t max_iterations, std::uint64_t threads = 1) {
    DiscountedCfrOptions options;
    options.max_iterations = max_iterations;
    options.target_exploitability = -1.0f;  // never met
    options.thread_count = threads;
    return options;
}

// The first decision node below `parent` reached by an action of `kind`, or the node count.
inline std::uint64_t child_by_kind(const Game& game, std::uint64_t parent, std::uint8_t kind) {
    const GameNode& node = game.node(parent);
    for (std::size_t a = 0; a < node.actions.size(); ++a) {
        if (node.actions[a].kind == kind) return node.children[a];
    }
    return game.node_count();
}

}  // namespace kelvane::testing
