// Looking for one pair of hands, one from each range, that can be dealt together with the board.

#include "cli/spot_matchup.h"

#include <stdexcept>
#include <string>
#include <vector>

#include "cli/json_text.h"
#include "poker/cards.h"
#include "tree/action_plan.h"

namespace kelvane_cli {
namespace {

// The card masks of the range's hands that have weight and miss the board.
std::vector<kelvane::CardMask> live_hands(const kelvane::RangeWeights& weights, kelvane::CardMask board) {
    std::vector<kelvane::CardMask> hands;
    for (int index = 0; index < kelvane::kPocketCount; ++index) {
        const kelvane::CardMask hand = kelvane::pocket_mask(kelvane::pocket_from_index(index));
        if (weights[index] > 0.0f && (hand & board) == 0) hands.push_back(hand);
    }
    return hands;
}

bool can_meet(const std::vector<kelvane::CardMask>& oop, const std::vector<kelvane::CardMask>& ip) {
    for (const kelvane::CardMask first : oop)
        for (const kelvane::CardMask second : ip)
            if ((first & second) == 0) return true;
    return false;
}

}  // namespace

void check_matchup(const kelvane_app::SolveSetup& setup, const kelvane_app::SolveConfig& config) {
    const kelvane::CardMask board = kelvane::board_mask(setup.board);
    if (can_meet(live_hands(setup.ranges[kelvane::kSeatOop], board),
                 live_hands(setup.ranges[kelvane::kSeatIp], board)))
        return;
    throw std::invalid_argument("oop_range " + json_quoted(config.oop_range) + " and ip_range " +
                                json_quoted(config.ip_range) + " have no possible matchup on board " +
                                json_quoted(config.board) +
                                ": every hand of one shares a card with every hand of the other");
}

}  // namespace kelvane_cli
