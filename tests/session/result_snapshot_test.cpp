// The compact snapshot against the live game it was taken from: every derived text, the action slices,
// the child links and the cleaned frequencies.
#include "session/result_snapshot.h"

#include <gtest/gtest.h>

#include <span>
#include <string>

#include "session/action_text.h"
#include "session/result_text.h"
#include "session_test_support.h"

namespace kelvane_app {
namespace {

static_assert(sizeof(ResultAction) == 16);
static_assert(sizeof(ResultNode) == 24);

// A flop start with a raise size and an all-in, so the tree holds every node kind, both deals, sized
// raises and runouts; checks only on later streets keep it small.
SolveConfig small_flop_spot() {
    SolveConfig config = small_river_spot();
    config.board = "AhKs7d";
    config.starting_street = "flop";
    config.effective_stack = 300;
    for (SeatSizing* seat : {&config.oop, &config.ip}) {
        seat->flop.bet_sizes = "50";
        seat->flop.raise_sizes = "2x";
        seat->flop.add_all_in = true;
        seat->turn.bet_sizes.clear();
        seat->river.bet_sizes.clear();
    }
    config.max_iterations = 3;
    return config;
}

// The texts a node had when the snapshot stored them, taken straight from the game node.
std::string expected_node_type(const kelvane::GameNode& node) {
    if (node.kind == kelvane::kNodeDecision) return "decision";
    if (node.kind == kelvane::kNodeChance) return "chance";
    return "terminal";
}

std::string expected_player(const kelvane::GameNode& node) {
    if (node.kind != kelvane::kNodeDecision) return "";
    return node.seat == kelvane::kSeatOop ? "OOP" : "IP";
}

std::string expected_chance_deal(const kelvane::GameNode& node) {
    if (node.kind != kelvane::kNodeChance) return "";
    if (node.turn_card >= kelvane::kNoCard) return "turn";
    if (node.river_card >= kelvane::kNoCard) return "river";
    return "";
}

class SolvedFlop : public ::testing::Test {
  protected:
    static void SetUpTestSuite() {
        session_ = new SolveSession;
        result_ = new SolveResult(solve_to_end(*session_, small_flop_spot()));
    }
    static void TearDownTestSuite() {
        delete result_;
        delete session_;
    }
    void SetUp() override {
        ASSERT_TRUE(result_->success) << result_->error;
        ASSERT_TRUE(session_->solution().game);
    }

    static const SolveResult& result() { return *result_; }
    static const kelvane::Game& game() { return *session_->solution().game; }

  private:
    static inline SolveSession* session_ = nullptr;
    static inline SolveResult* result_ = nullptr;
};

TEST_F(SolvedFlop, HoldsEveryNodeAndEveryKind) {
    ASSERT_EQ(result().nodes.size(), game().node_count());
    bool seen[3] = {false, false, false};
    bool turn_deal = false;
    bool river_deal = false;
    for (const ResultNode& node : result().nodes) {
        seen[node.node_type] = true;
        turn_deal |= chance_deal_text(node) == "turn";
        river_deal |= chance_deal_text(node) == "river";
    }
    EXPECT_TRUE(seen[kelvane::kNodeDecision] && seen[kelvane::kNodeChance] && seen[kelvane::kNodeTerminal]);
    EXPECT_TRUE(turn_deal && river_deal);
}

TEST_F(SolvedFlop, EveryTextEqualsTheOneDerivedFromTheGame) {
    ASSERT_EQ(result().nodes.size(), game().node_count());
    std::size_t raises = 0;
    for (std::uint64_t i = 0; i < game().node_count(); ++i) {
        const kelvane::GameNode& node = game().node(i);
        const ResultNode& record = result().nodes[i];
        EXPECT_EQ(node_type_text(record), expected_node_type(node)) << i;
        EXPECT_EQ(player_text(record), expected_player(node)) << i;
        EXPECT_EQ(chance_deal_text(record), expected_chance_deal(node)) << i;
        EXPECT_EQ(record.pot, node.pot);
        EXPECT_EQ(record.invested_oop, node.invested[kelvane::kSeatOop]);
        EXPECT_EQ(record.invested_ip, node.invested[kelvane::kSeatIp]);

        const std::span<const ResultAction> actions = node_actions(result(), record);
        ASSERT_EQ(actions.size(), node.actions.size()) << i;
        const double base = node_percent_base(node.pot, result().starting_pot);
        for (std::size_t a = 0; a < actions.size(); ++a) {
            EXPECT_EQ(result_action_name(result(), record, actions[a]), action_name(node.actions[a], base))
                << i;
            EXPECT_EQ(result_action_type(result(), record, actions[a]),
                      action_type_text(node.actions[a], base))
                << i;
            raises += node.actions[a].kind == kelvane::kActionRaise;
        }
    }
    EXPECT_GT(raises, 0u);
}

TEST_F(SolvedFlop, RootTextsAgreeWithTheRootNode) {
    const ResultNode& root = result().nodes[0];
    const std::span<const ResultAction> actions = node_actions(result(), root);
    ASSERT_EQ(actions.size(), result().root_action_names.size());
    for (std::size_t a = 0; a < actions.size(); ++a) {
        EXPECT_EQ(result_action_name(result(), root, actions[a]), result().root_action_names[a]);
        EXPECT_EQ(result_action_type(result(), root, actions[a]), result().root_action_types[a]);
        EXPECT_NEAR(actions[a].frequency, result().root_action_frequencies[a], 1e-6f);
    }
}

TEST_F(SolvedFlop, ActionSlicesFollowOneAnotherInNodeOrder) {
    std::uint32_t next = 0;
    for (const ResultNode& node : result().nodes) {
        EXPECT_EQ(node.first_action, next);
        next += node.action_count;
    }
    EXPECT_EQ(next, result().actions.size());
}

// Only a terminal reached by an all-in call before the river keeps its runout cards as actions.
TEST_F(SolvedFlop, TerminalNodesHaveNoActionsButRunouts) {
    std::size_t terminals = 0;
    std::size_t runouts = 0;
    for (std::uint64_t i = 0; i < game().node_count(); ++i) {
        const ResultNode& node = result().nodes[i];
        if (node.node_type != kelvane::kNodeTerminal) continue;
        const std::span<const ResultAction> actions = node_actions(result(), node);
        if (game().node(i).all_in_runout == 0) {
            EXPECT_TRUE(actions.empty()) << i;
            ++terminals;
            continue;
        }
        EXPECT_EQ(actions.size(), game().node(i).actions.size()) << i;
        for (const ResultAction& action : actions)
            EXPECT_EQ(result_action_type(result(), node, action), "chance") << i;
        ++runouts;
    }
    EXPECT_GT(terminals, 0u);
    EXPECT_GT(runouts, 0u);
}

TEST_F(SolvedFlop, ChildIndicesAreTheGamesChildren) {
    for (std::uint64_t i = 0; i < game().node_count(); ++i) {
        const kelvane::GameNode& node = game().node(i);
        const std::span<const ResultAction> actions = node_actions(result(), result().nodes[i]);
        ASSERT_EQ(actions.size(), node.actions.size());
        for (std::size_t a = 0; a < actions.size(); ++a) {
            EXPECT_EQ(actions[a].child_index, node.children[a]) << i;
            EXPECT_EQ(actions[a].action, node.actions[a]) << i;
        }
    }
}

TEST_F(SolvedFlop, DecisionFrequenciesSumToOne) {
    for (const ResultNode& node : result().nodes) {
        if (node.node_type != kelvane::kNodeDecision) continue;
        double sum = 0.0;
        for (const ResultAction& action : node_actions(result(), node)) {
            EXPECT_GE(action.frequency, 0.0f);
            sum += action.frequency;
        }
        EXPECT_NEAR(sum, 1.0, 1e-5);
    }
}

// A node without a pot sizes its bets against the starting pot; one with a pot against its own.
TEST(ResultText, PercentBaseFallsBackToTheStartingPot) {
    SolveResult result;
    result.starting_pot = 200;
    result.actions = {{{kelvane::kActionBet, 100}, 1.0f, 1}, {{kelvane::kActionRaise, 300}, 1.0f, 2}};
    const ResultNode potless{kelvane::kNodeDecision, kNoDeal, kelvane::kSeatIp, 0, 0, 0, 0, 1};
    const ResultNode potted{kelvane::kNodeDecision, kNoDeal, kelvane::kSeatOop, 400, 0, 0, 1, 1};
    EXPECT_EQ(result_action_name(result, potless, node_actions(result, potless)[0]), "Bet 50%");
    EXPECT_EQ(result_action_type(result, potless, node_actions(result, potless)[0]), "bet 50%");
    EXPECT_EQ(result_action_name(result, potted, node_actions(result, potted)[0]), "Raise 75%");
    EXPECT_EQ(result_action_type(result, potted, node_actions(result, potted)[0]), "raise 75%");
    EXPECT_EQ(player_text(potless), "IP");
    EXPECT_EQ(player_text(potted), "OOP");
}

TEST(ResultText, DefaultNodeIsATerminalWithoutTexts) {
    const SolveResult result;
    const ResultNode node;
    EXPECT_EQ(node_type_text(node), "terminal");
    EXPECT_EQ(chance_deal_text(node), "");
    EXPECT_EQ(player_text(node), "");
    EXPECT_TRUE(node_actions(result, node).empty());
}

}  // namespace
}  // namespace kelvane_app
