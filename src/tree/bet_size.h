#pragma once
// Bet size tokens such as "75%", "2.5x", "120c", "2e" or "a", and their chip amount at a node.

#include <cstdint>
#include <string_view>
#include <vector>

namespace kelvane {

enum class BetSizeKind : std::uint32_t {
    PotPercent = 0,
    RelativeRaise = 1,
    FixedChips = 2,
    Geometric = 3,
    AllIn = 4,
};

struct BetSizeToken {
    BetSizeKind kind = BetSizeKind::PotPercent;
    double fraction = 0.0;       // PotPercent: percent / 100; RelativeRaise: the multiple
    double geometric_max = 0.0;  // Geometric: ceiling as a fraction of the pot, infinity for none
    std::int32_t chips = 0;      // FixedChips: added on top of the current bet
    std::int32_t raise_cap = 0;  // FixedChips: raises on the street from which the size is left out, 0 none
    std::int32_t streets = 0;    // Geometric: streets to spread the stack over, 0 for those left
};

// What a node tells the resolver; chips are street totals unless named otherwise.
struct SizingContext {
    std::int32_t pot = 0;  // the pot once the player to act has called
    std::int32_t current_bet = 0;
    std::int32_t to_call = 0;
    std::int32_t max_to = 0;
    std::int32_t min_to = 1;
    std::int32_t remaining_streets = 0;
    std::int32_t raises_this_street = 0;
    double stack_to_pot = 0.0;  // opponent's remaining stack / pot, 0 when the pot is empty
};

// allow_raise is true for raise lists, false for bet lists.
BetSizeToken parse_bet_token(std::string_view text, bool allow_raise);
std::vector<BetSizeToken> parse_bet_tokens(std::string_view text, bool allow_raise);

// The street total the token asks for, clamped to [min_to, max_to] with min_to winning a cross.
std::int32_t resolve_bet_token(const BetSizeToken& token, const SizingContext& context);

}  // namespace kelvane
