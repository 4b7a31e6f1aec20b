// The actions of a decision node: sizes resolved, normalised, ordered and merged, then one child each.

#include <algorithm>
#include <cstdint>
#include <limits>
#include <stdexcept>

#include "tree/action_plan.h"
#include "tree/chips.h"

namespace kelvane {
namespace {

using BuildContext = ActionPlan::BuildContext;

// Below 1 so that an exact duplicate never survives floating-point noise.
constexpr double kMergeSlack = 0.999999999999;
constexpr std::int32_t kNothingKept = std::numeric_limits<std::int32_t>::max();

const SizingProfile& street_profile(const GameConfig& config, int street) {
    switch (street) {
        case kStreetFlop: return config.flop_sizing;
        case kStreetTurn: return config.turn_sizing;
        case kStreetRiver: return config.river_sizing;
        default: throw std::logic_error("Unknown street");
    }
}

constexpr std::uint8_t other_seat(std::uint8_t seat) { return static_cast<std::uint8_t>(1 - seat); }

bool is_sized(const Action& action) {
    return action.kind >= kActionBet && action.kind <= kActionAllIn && action.amount >= 1;
}

SizingContext sizing_context(const GameConfig& config, const PlanNode& node, const BuildContext& context) {
    const std::int64_t own = context.stacks[node.seat];
    const std::int64_t opp = context.stacks[other_seat(node.seat)];
    SizingContext sizing;
    sizing.to_call = chip_sum(own - opp);  // the stacks started equal
    sizing.pot = chip_sum(config.starting_pot + 2 * (std::int64_t{node.committed} + sizing.to_call));
    sizing.current_bet = context.current_bet;
    sizing.max_to = chip_sum(context.current_bet + opp);
    // A raise adds at least the last raise, which is exactly what is left to call.
    sizing.min_to = chip_sum(std::max<std::int64_t>(
        1, std::min<std::int64_t>(std::int64_t{context.current_bet} + sizing.to_call, sizing.max_to)));
    sizing.remaining_streets = 3 - node.street;
    sizing.raises_this_street = context.raises_this_street;
    sizing.stack_to_pot = sizing.pot > 0 ? static_cast<double>(opp) / sizing.pot : 0.0;
    return sizing;
}

// A lead into the seat that was called on the last street, or the first action of the spot.
bool is_lead(const GameConfig& config, const SizingProfile& profile, const PlanNode& node,
             const BuildContext& context) {
    if (!profile.donk_bets.has_value() || node.seat != kSeatOop) return false;
    if (context.last_kind == kActionChance) return context.aggressor != kSeatOop;
    return context.last_kind == kActionNone && node.street == config.starting_street;
}

Action sized_action(std::int32_t amount, std::uint8_t kind, const SizingContext& sizing) {
    return Action{amount == sizing.max_to ? kActionAllIn : kind, amount};
}

void append_bets(std::vector<Action>& actions, const std::vector<BetSizeToken>& tokens,
                 const SizingContext& sizing) {
    for (const BetSizeToken& token : tokens) {
        actions.push_back(sized_action(resolve_bet_token(token, sizing), kActionBet, sizing));
    }
}

void append_raises(std::vector<Action>& actions, const std::vector<BetSizeToken>& tokens,
                   const SizingContext& sizing) {
    for (const BetSizeToken& token : tokens) {
        if (token.kind == BetSizeKind::FixedChips && token.raise_cap >= 1 &&
            sizing.raises_this_street >= token.raise_cap) {
            continue;
        }
        std::int32_t amount = 0;
        if (token.kind == BetSizeKind::PotPercent) {
            // Measured on the pot after the call, on top of the bet being raised.
            const std::int64_t wanted = std::int64_t{round_chips(sizing.pot * token.fraction)} + sizing.current_bet;
            amount = chip_sum(std::max<std::int64_t>(sizing.min_to, std::min<std::int64_t>(wanted, sizing.max_to)));
        } else {
            amount = resolve_bet_token(token, sizing);
        }
        actions.push_back(sized_action(amount, kActionRaise, sizing));
    }
}

std::vector<Action> raw_actions(const GameConfig& config, const SizingProfile& profile, const PlanNode& node,
                                const BuildContext& context, const SizingContext& sizing) {
    const bool oop = node.seat == kSeatOop;
    std::vector<Action> actions;
    if (is_lead(config, profile, node, context)) {
        actions.push_back(Action{kActionCheck, 0});
        append_bets(actions, *profile.donk_bets, sizing);
    } else if (context.last_kind == kActionNone || context.last_kind == kActionCheck ||
               context.last_kind == kActionChance) {
        actions.push_back(Action{kActionCheck, 0});
        append_bets(actions, oop ? profile.oop_bets : profile.ip_bets, sizing);
    } else {
        const std::int32_t call = std::min(sizing.to_call, context.stacks[node.seat]);
        actions.push_back(Action{kActionFold, 0});
        actions.push_back(Action{kActionCall, call < 1 ? 0 : call});
        if (!context.all_in) append_raises(actions, oop ? profile.oop_raises : profile.ip_raises, sizing);
    }
    return actions;
}

void apply_jam_rule(std::vector<Action>& actions, double threshold, const BuildContext& context,
                    const SizingContext& sizing) {
    if (context.all_in || threshold <= 0.0) return;
    const std::int32_t jam_limit = round_chips(sizing.pot * threshold);
    const bool has_all_in =
        std::any_of(actions.begin(), actions.end(), [](const Action& a) { return a.kind == kActionAllIn; });
    if (sizing.max_to >= 1 && sizing.max_to <= jam_limit && !has_all_in) {
        actions.push_back(Action{kActionAllIn, sizing.max_to});
    }
}

void normalise_wagers(std::vector<Action>& actions, double force_all_in_threshold, const BuildContext& context,
                      const SizingContext& sizing) {
    for (Action& action : actions) {
        if (action.kind != kActionBet && action.kind != kActionRaise) continue;
        const std::int32_t amount = std::max(sizing.min_to, std::min(action.amount, sizing.max_to));
        const double pot_after = context.pot + 2.0 * (static_cast<double>(amount) - sizing.current_bet);
        const std::int64_t force = round_chips(pot_after * force_all_in_threshold);
        if (sizing.max_to <= force + sizing.current_bet || amount == sizing.max_to) {
            action = Action{kActionAllIn, sizing.max_to};
        } else {
            action.amount = amount;
        }
    }
}

// Unsized actions keep their place in front; sized ones follow by amount, then kind.
void order_actions(std::vector<Action>& actions) {
    const auto sized = std::stable_partition(actions.begin(), actions.end(),
                                             [](const Action& a) { return !is_sized(a); });
    std::stable_sort(sized, actions.end(), [](const Action& a, const Action& b) {
        return a.amount != b.amount ? a.amount < b.amount : a.kind < b.kind;
    });
}

// Drops each sized action too close below the next one kept; with threshold 0, only exact duplicates.
void merge_actions(std::vector<Action>& actions, double threshold, const SizingContext& sizing) {
    const double pot = sizing.pot;
    const double current_bet = sizing.current_bet;
    double kept = kNothingKept;
    auto write = actions.end();
    for (auto read = actions.end(); read != actions.begin();) {
        --read;
        if (is_sized(*read)) {
            const double ratio = (read->amount - current_bet) / pot;
            const double limit = ((kept - current_bet) / pot - threshold) / (1.0 + threshold) * kMergeSlack;
            if (!(ratio < limit)) continue;
            kept = read->amount;
        }
        *--write = *read;
    }
    actions.erase(actions.begin(), write);
}

}  // namespace

std::vector<ActionPlan::Child> ActionPlan::expand_decision(const PlanNode& node, const BuildContext& context) const {
    const SizingProfile& profile = street_profile(config_, node.street);
    const SizingContext sizing = sizing_context(config_, node, context);
    const double jam_threshold = node.seat == kSeatOop ? config_.oop_jam_threshold : config_.ip_jam_threshold;

    std::vector<Action> actions = raw_actions(config_, profile, node, context, sizing);
    apply_jam_rule(actions, jam_threshold, context, sizing);
    normalise_wagers(actions, config_.force_all_in_threshold, context, sizing);
    order_actions(actions);
    if (sizing.pot > 0) merge_actions(actions, config_.merge_threshold, sizing);

    std::vector<Child> children;
    children.reserve(actions.size());
    for (const Action& action : actions) children.push_back(decision_child(node, context, action, sizing));
    return children;
}

ActionPlan::Child ActionPlan::decision_child(const PlanNode& node, const BuildContext& context, const Action& action,
                                             const SizingContext& sizing) {
    const std::uint8_t seat = node.seat;
    Child child;
    child.action = action;

    BuildContext& next = child.context;
    next = context;
    next.last_kind = action.kind;
    next.last_action = action.kind;
    next.last_seat = seat;
    next.aggressor = kSeatOop;

    PlanNode& out = child.node;
    out.kind = kNodeDecision;
    out.seat = seat;
    out.street = node.street;
    out.committed = node.committed;
    out.all_in_runout = 0;

    const bool river = node.street == kStreetRiver;
    const auto next_street = static_cast<std::uint8_t>(node.street + 1);
    switch (action.kind) {
        case kActionFold:
            out.kind = kNodeTerminal;
            break;
        case kActionCheck:
            if (seat == kSeatOop) {
                out.seat = kSeatIp;
            } else if (river) {
                out.kind = kNodeTerminal;
            } else {
                out.kind = kNodeChance;
                out.seat = kSeatOop;
                out.street = next_street;
            }
            break;
        case kActionCall:
            next.raises_this_street = 0;
            next.aggressor = other_seat(seat);
            next.stacks[seat] = chip_sum(std::int64_t{next.stacks[seat]} - action.amount);
            next.current_bet = 0;
            next.pot = chip_sum(std::int64_t{next.pot} + action.amount);
            next.invested[seat] = chip_sum(std::int64_t{next.invested[seat]} + action.amount);
            out.committed = chip_sum(std::int64_t{out.committed} + action.amount);
            out.seat = kSeatOop;
            if (river) {
                out.kind = kNodeTerminal;
            } else if (context.all_in || next.stacks[0] < 1 || next.stacks[1] < 1) {
                out.kind = kNodeTerminal;
                out.street = next_street;
                out.all_in_runout = 1;
                next.all_in = true;
            } else {
                out.kind = kNodeChance;
                out.street = next_street;
            }
            break;
        default: {
            const std::int64_t own = context.stacks[seat];
            const std::int64_t call_part = std::max<std::int64_t>(std::min<std::int64_t>(std::max(sizing.to_call, 0), own), 0);
            const std::int64_t raise_part = std::max<std::int64_t>(std::int64_t{action.amount} - context.current_bet, 0);
            const std::int64_t pay = std::max<std::int64_t>(std::min(raise_part + call_part, own), 0);
            next.raises_this_street += 1;
            next.all_in = action.kind == kActionAllIn;
            next.stacks[seat] = chip_sum(own - pay);
            next.pot = chip_sum(next.pot + pay);
            next.invested[seat] = chip_sum(next.invested[seat] + pay);
            next.current_bet = action.amount;
            out.committed = chip_sum(out.committed + call_part);
            out.seat = other_seat(seat);
            break;
        }
    }

    take_from_context(out, next);
    return child;
}

}  // namespace kelvane
