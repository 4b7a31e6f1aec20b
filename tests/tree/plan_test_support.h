#pragma once
// Small builders and tree walkers shared by the action plan tests.

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "poker/card_context.h"
#include "poker/cards.h"
#include "poker/range_text.h"
#include "tree/action_plan.h"
#include "tree/bet_size.h"
#include "tree/game_config.h"

namespace kelvane::plan_test {

inline std::vector<BetSizeToken> bets(std::string_view text) { return parse_bet_tokens(text, false); }
inline std::vector<BetSizeToken> raises(std::string_view text) { return parse_bet_tokens(text, true); }

// Leads use the out-of-position bets unless a donk text is given.
inline SizingProfile make_profile(std::string_view oop_bets, std::string_view oop_raises, std::string_view ip_bets,
                                  std::string_view ip_raises,
                                  std::optional<std::string_view> donk_text = std::nullopt) {
    SizingProfile profile;
    profile.oop_bets = bets(oop_bets);
    profile.oop_raises = raises(oop_raises);
    profile.ip_bets = bets(ip_bets);
    profile.ip_raises = raises(ip_raises);
    profile.donk_bets = bets(donk_text.value_or(oop_bets));
    return profile;
}

inline SizingProfile symmetric_profile(std::string_view bet_text, std::string_view raise_text) {
    return make_profile(bet_text, raise_text, bet_text, raise_text);
}

inline GameConfig make_config(int street, std::int32_t pot, std::int32_t stack, const SizingProfile& profile) {
    GameConfig config;
    config.starting_street = static_cast<std::uint8_t>(street);
    config.starting_pot = pot;
    config.effective_stack = stack;
    config.flop_sizing = profile;
    config.turn_sizing = profile;
    config.river_sizing = profile;
    return config;
}

inline CardContext make_cards(std::string_view board, std::string_view oop_range, std::string_view ip_range) {
    return CardContext(parse_board_text(board), {parse_range_text(oop_range), parse_range_text(ip_range)});
}

// Sets an environment variable for one scope and restores the old value after it.
class ScopedEnv {
public:
    ScopedEnv(const char* name, const char* value) : name_(name) {
        if (const char* old = std::getenv(name)) old_ = old;
        ::setenv(name, value, 1);
    }
    ~ScopedEnv() {
        if (old_) {
            ::setenv(name_, old_->c_str(), 1);
        } else {
            ::unsetenv(name_);
        }
    }
    ScopedEnv(const ScopedEnv&) = delete;
    ScopedEnv& operator=(const ScopedEnv&) = delete;

private:
    const char* name_;
    std::optional<std::string> old_;
};

inline std::string describe(const Action& action) {
    static constexpr std::array<const char*, 8> kNames{"none", "f", "x", "c", "b", "r", "a", "d"};
    return std::string(kNames.at(action.kind)) + std::to_string(action.amount);
}

inline std::string describe(const std::vector<Action>& actions) {
    std::string text;
    for (const Action& action : actions) {
        if (!text.empty()) text += ' ';
        text += describe(action);
    }
    return text;
}

// The child reached from node by the action, failing the test when there is none.
inline std::uint64_t child_by(const ActionPlan& plan, std::uint64_t node, Action action) {
    const PlanNode& parent = plan.nodes().at(node);
    for (std::size_t i = 0; i < parent.actions.size(); ++i) {
        if (parent.actions[i] == action) return parent.children[i];
    }
    ADD_FAILURE() << "no action " << describe(action) << " at node " << node << " (" << describe(parent.actions)
                  << ")";
    return node;
}

inline std::uint64_t follow(const ActionPlan& plan, const std::vector<Action>& line) {
    std::uint64_t node = 0;
    for (const Action& action : line) node = child_by(plan, node, action);
    return node;
}

// Every field of a node and, recursively, its children in order; independent of the indices.
inline void serialise(const ActionPlan& plan, std::uint64_t index, std::string& out) {
    const PlanNode& node = plan.nodes()[index];
    out += '(';
    for (const int field : {int{node.kind}, int{node.seat}, int{node.street}, int{node.all_in_runout},
                            int{node.committed}, int{node.pot}, int{node.invested[0]}, int{node.invested[1]},
                            int{node.terminal_kind}, int{node.folded_seat}, int{node.turn_card},
                            int{node.river_card}}) {
        out += std::to_string(field);
        out += ',';
    }
    for (std::size_t i = 0; i < node.children.size(); ++i) {
        out += describe(node.actions[i]);
        serialise(plan, node.children[i], out);
    }
    out += ')';
}

inline std::string serialise(const ActionPlan& plan) {
    std::string out;
    serialise(plan, 0, out);
    return out;
}

// Each node but the root has exactly one parent, and every index lies inside the list.
inline void expect_single_parents(const ActionPlan& plan) {
    std::vector<int> parents(plan.node_count(), 0);
    for (const PlanNode& node : plan.nodes()) {
        ASSERT_EQ(node.actions.size(), node.children.size());
        for (const std::uint64_t child : node.children) {
            ASSERT_LT(child, plan.node_count());
            ++parents[child];
        }
    }
    EXPECT_EQ(parents[0], 0);
    for (std::size_t i = 1; i < parents.size(); ++i) ASSERT_EQ(parents[i], 1) << "node " << i;
}

}  // namespace kelvane::plan_test
