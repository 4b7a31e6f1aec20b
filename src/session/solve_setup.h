#pragma once
// The cards, ranges and game description that the texts of a solve configuration stand for.

#include <array>
#include <cstdint>
#include <string_view>

#include "poker/cards.h"
#include "poker/range_text.h"
#include "session/solve_config.h"
#include "tree/game_config.h"

namespace kelvane_app {

struct SolveSetup {
    kelvane::BoardCards board;
    std::array<kelvane::RangeWeights, 2> ranges{};  // by seat: OOP, IP
    kelvane::GameConfig game;
};

// A solve names the seat and street of a bad sizing text; the memory estimate passes the bare error.
enum class SizingErrors { labelled, unlabelled };

// "flop" 0, "turn" 1, "river" 2, compared exactly; anything else is the flop.
std::uint8_t starting_street_number(std::string_view name);

// Board and the limits of the numbers, then OOP and IP range, then the game description with all three
// streets' sizing.
SolveSetup make_solve_setup(const SolveConfig& config, SizingErrors errors = SizingErrors::labelled);

kelvane::GameConfig make_game_config(const SolveConfig& config, SizingErrors errors = SizingErrors::labelled);

}  // namespace kelvane_app
