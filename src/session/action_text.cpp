// Action names and type texts.

#include "session/action_text.h"

#include <cstdio>

#include "poker/cards.h"

namespace kelvane_app {
namespace {

constexpr double kSmallestBase = 1.0;

std::string percent_of(std::int32_t amount, double base) {
    char text[64];
    std::snprintf(text, sizeof text, "%.0f", amount / base * 100.0);
    return text;
}

// "Bet 75%" / "bet 75%", or the bare word when there is no usable base.
std::string sized(const char* word, std::int32_t amount, double base) {
    if (base < kSmallestBase) return word;
    return std::string(word) + ' ' + percent_of(amount, base) + '%';
}

}  // namespace

std::string action_name(const kelvane::Action& action, double percent_base) {
    switch (action.kind) {
        case kelvane::kActionFold: return "Fold";
        case kelvane::kActionCheck: return "Check";
        case kelvane::kActionCall: return "Call";
        case kelvane::kActionBet: return sized("Bet", action.amount, percent_base);
        case kelvane::kActionRaise: return sized("Raise", action.amount, percent_base);
        case kelvane::kActionAllIn: return "All-In";
        case kelvane::kActionChance: return kelvane::card_to_string(static_cast<std::int8_t>(action.amount));
        default: return "Action";
    }
}

std::string action_type_text(const kelvane::Action& action, double percent_base) {
    switch (action.kind) {
        case kelvane::kActionFold: return "fold";
        case kelvane::kActionCheck: return "check";
        case kelvane::kActionCall: return "call";
        case kelvane::kActionBet: return sized("bet", action.amount, percent_base);
        case kelvane::kActionRaise: return sized("raise", action.amount, percent_base);
        case kelvane::kActionAllIn: return "allin";
        case kelvane::kActionChance: return "chance";
        default: return "none";
    }
}

double root_percent_base(std::int32_t starting_pot, std::int32_t root_pot) {
    return starting_pot > 0 ? starting_pot : root_pot;
}

double node_percent_base(std::int32_t node_pot, std::int32_t starting_pot) {
    return node_pot > 0 ? node_pot : starting_pot;
}

}  // namespace kelvane_app
