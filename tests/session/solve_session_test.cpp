#include "session/solve_session.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <future>
#include <numeric>
#include <semaphore>
#include <span>

#include "session/detached_threads.h"
#include "session/result_text.h"
#include "session_test_support.h"

namespace kelvane_app {
namespace {

constexpr const char* kInitGame = "Init: building game object...";
constexpr const char* kInitTree = "Init: building game tree structures...";
constexpr const char* kInitSolver = "Init: starting solver...";
constexpr const char* kComputing = "Finalizing: computing results...";
constexpr const char* kSnapshot = "Finalizing: building result snapshot...";
constexpr const char* kBoardError = "Board must include at least a flop (6 chars, e.g. AhKsQd)";
constexpr std::chrono::minutes kWorkerTimeout{4};

bool starts_with(const std::string& text, const std::string& prefix) { return text.rfind(prefix, 0) == 0; }

TEST(SolveSession, StartsIdleAndEmpty) {
    SolveSession session;
    EXPECT_FALSE(session.is_running());
    EXPECT_FALSE(session.solution().game);
    EXPECT_FALSE(session.solution().solver);
}

TEST(SolveSession, RunAnnouncesEveryStageInOrder) {
    SolveSession session;
    RunRecorder recorder;
    const SolveConfig config = small_river_spot();
    ASSERT_TRUE(session.start(config, recorder.callback()));
    const std::vector<SolveProgress> messages = recorder.wait(session);

    std::vector<std::string> expected{kInitGame, kInitTree, kInitSolver};
    for (std::uint32_t i = 1; i <= config.max_iterations; ++i) expected.push_back("");
    expected.insert(expected.end(), {kComputing, kSnapshot, "Done"});
    ASSERT_EQ(messages.size(), expected.size());
    for (std::size_t i = 0; i < messages.size(); ++i) {
        if (!expected[i].empty()) {
            EXPECT_EQ(messages[i].status, expected[i]);
        }
        EXPECT_EQ(messages[i].result.has_value(), i + 1 == messages.size());
    }
    for (std::size_t i = 0; i < 3; ++i) EXPECT_EQ(messages[i].progress, 0.0);
    for (std::uint32_t iteration = 1; iteration <= config.max_iterations; ++iteration) {
        const SolveProgress& message = messages[2 + iteration];
        EXPECT_TRUE(starts_with(message.status, "Iter " + std::to_string(iteration) + " | exploitability\xE2\x89\x88"))
            << message.status;
        EXPECT_DOUBLE_EQ(message.progress, std::min(double(iteration) / config.max_iterations, 0.999));
    }
    // The last iteration is measured, and the finalizing messages carry the capped progress.
    EXPECT_EQ(messages[messages.size() - 3].progress, 0.999);
    EXPECT_EQ(messages[messages.size() - 2].progress, 0.999);
    EXPECT_EQ(messages.back().progress, 1.0);

    const SolveResult& result = *messages.back().result;
    EXPECT_TRUE(result.success);
    EXPECT_EQ(result.error, "");
    EXPECT_EQ(result.board, config.board);
    EXPECT_EQ(result.starting_pot, 100);
    EXPECT_EQ(result.effective_stack, 100);
    EXPECT_EQ(result.iterations, config.max_iterations);
    EXPECT_EQ(messages[messages.size() - 4].status, iteration_status(config.max_iterations, result.exploitability));
    EXPECT_TRUE(std::isfinite(result.ev_oop) && std::isfinite(result.ev_ip));

    const SolvedGame solved = session.solution();
    ASSERT_TRUE(solved.game);
    ASSERT_TRUE(solved.solver);
    EXPECT_EQ(result.nodes.size(), solved.game->node_count());
}

TEST(SolveSession, SnapshotDescribesEveryNode) {
    SolveSession session;
    const SolveResult result = solve_to_end(session, small_river_spot());
    ASSERT_TRUE(result.success);
    const SolvedGame solved = session.solution();
    const kelvane::Game& game = *solved.game;

    EXPECT_EQ(result.root_action_names, (std::vector<std::string>{"Check", "Bet 50%"}));
    EXPECT_EQ(result.root_action_types, (std::vector<std::string>{"check", "bet 50%"}));
    ASSERT_EQ(result.root_action_frequencies.size(), 2u);
    EXPECT_NEAR(result.root_action_frequencies[0] + result.root_action_frequencies[1], 1.0f, 1e-6f);

    ASSERT_EQ(result.nodes.size(), game.node_count());
    for (std::uint64_t i = 0; i < game.node_count(); ++i) {
        const kelvane::GameNode& node = game.node(i);
        const ResultNode& record = result.nodes[i];
        EXPECT_EQ(record.pot, node.pot);
        EXPECT_EQ(record.invested_oop, node.invested[0]);
        EXPECT_EQ(record.invested_ip, node.invested[1]);
        EXPECT_EQ(chance_deal_text(record), "");
        const std::span<const ResultAction> actions = node_actions(result, record);
        ASSERT_EQ(actions.size(), node.actions.size());
        if (node.kind == kelvane::kNodeDecision) {
            EXPECT_EQ(node_type_text(record), "decision");
            EXPECT_EQ(player_text(record), node.seat == 0 ? "OOP" : "IP");
            float sum = 0.0f;
            for (std::size_t a = 0; a < node.actions.size(); ++a) {
                EXPECT_EQ(actions[a].child_index, node.children[a]);
                sum += actions[a].frequency;
            }
            EXPECT_NEAR(sum, 1.0f, 1e-5f);
            const std::vector<float> strategy = solved.solver->average_strategy(i);
            for (std::size_t a = 0; a < node.actions.size(); ++a)
                EXPECT_NEAR(actions[a].frequency, strategy[a], 1e-5f);
        } else {
            EXPECT_EQ(node_type_text(record), "terminal");
            EXPECT_EQ(player_text(record), "");
        }
    }
    // Facing the 50 chip bet, the in-position seat may fold or call; its percent base is the node's pot.
    const std::span<const ResultAction> root = node_actions(result, result.nodes[0]);
    const ResultNode& facing = result.nodes[root[1].child_index];
    const std::span<const ResultAction> facing_actions = node_actions(result, facing);
    ASSERT_EQ(facing_actions.size(), 2u);
    EXPECT_EQ(result_action_name(result, facing, facing_actions[0]), "Fold");
    EXPECT_EQ(result_action_name(result, facing, facing_actions[1]), "Call");
    EXPECT_EQ(facing.pot, 150);
    const ResultNode& checked = result.nodes[root[0].child_index];
    EXPECT_EQ(player_text(checked), "IP");
    EXPECT_EQ(result_action_name(result, checked, node_actions(result, checked)[1]), "Bet 50%");
}

TEST(SolveSession, BoardOfFiveCharactersFails) {
    SolveSession session;
    RunRecorder recorder;
    SolveConfig config = small_river_spot();
    config.board = "AhKs7";
    ASSERT_TRUE(session.start(config, recorder.callback()));
    const std::vector<SolveProgress> messages = recorder.wait(session);
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages[0].status, std::string("Error: ") + kBoardError);
    EXPECT_EQ(messages[0].progress, 0.0);
    ASSERT_TRUE(messages[0].result);
    EXPECT_FALSE(messages[0].result->success);
    EXPECT_EQ(messages[0].result->error, kBoardError);
    EXPECT_EQ(messages[0].result->board, "AhKs7");
    EXPECT_FALSE(session.solution().game);
    EXPECT_FALSE(session.is_running());
}

TEST(SolveSession, BadRangeAndBadSizingFailWithTheirMessages) {
    SolveSession session;
    SolveConfig bad_range = small_river_spot();
    bad_range.ip_range = "AA,QX";
    const SolveResult range_result = solve_to_end(session, bad_range);
    EXPECT_FALSE(range_result.success);
    EXPECT_FALSE(range_result.error.empty());

    SolveConfig bad_sizing = small_river_spot();
    bad_sizing.oop.flop.bet_sizes = "3x";
    RunRecorder recorder;
    ASSERT_TRUE(session.start(bad_sizing, recorder.callback()));
    const std::vector<SolveProgress> messages = recorder.wait(session);
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_TRUE(starts_with(messages[0].status, "Error: OOP flop sizing (bet='3x'")) << messages[0].status;
    EXPECT_EQ(messages[0].status, "Error: " + messages[0].result->error);
    EXPECT_EQ(messages[0].result->starting_pot, 100);
    EXPECT_FALSE(session.solution().game);
}

TEST(SolveSession, ExceptionWithoutMessageIsUnknownError) {
    SolveSession session;
    RunRecorder recorder;
    recorder.hook = [](const SolveProgress& message) {
        if (message.status == kInitTree) throw 42;
    };
    ASSERT_TRUE(session.start(small_river_spot(), recorder.callback()));
    const std::vector<SolveProgress> messages = recorder.wait(session);
    EXPECT_EQ(statuses(messages), (std::vector<std::string>{kInitGame, kInitTree, "Error: Unknown error"}));
    EXPECT_EQ(messages.back().result->error, "Unknown error");
    EXPECT_EQ(messages.back().progress, 0.0);
    EXPECT_FALSE(session.solution().solver);
}

TEST(SolveSession, OddBoardCharactersAreIgnored) {
    SolveSession session;
    SolveConfig config = small_river_spot();
    config.starting_street = "flop";
    config.oop.river.bet_sizes.clear();
    config.ip.river.bet_sizes.clear();
    config.max_iterations = 0;

    config.board = "AhKs7d2";  // a flop alone
    const SolveResult flop = solve_to_end(session, config);
    ASSERT_TRUE(flop.success) << flop.error;
    EXPECT_EQ(flop.board, "AhKs7d2");
    const auto deals = [](const SolveResult& result, const char* street) {
        return std::count_if(result.nodes.begin(), result.nodes.end(),
                             [&](const ResultNode& node) { return chance_deal_text(node) == street; });
    };
    // Only checks are possible: the root's check-through reaches one chance node.
    const auto first_child = [](const SolveResult& result, const ResultNode& node) -> const ResultNode& {
        return result.nodes[node_actions(result, node)[0].child_index];
    };
    const auto first_deal = [&](const SolveResult& result) -> const ResultNode& {
        return first_child(result, first_child(result, result.nodes[0]));
    };
    EXPECT_EQ(chance_deal_text(first_deal(flop)), "turn");
    EXPECT_GT(node_actions(flop, first_deal(flop)).size(), 1u);
    EXPECT_GT(deals(flop, "river"), 1);

    config.board = "AhKs7d2c3";  // a flop and a turn
    const SolveResult turn = solve_to_end(session, config);
    ASSERT_TRUE(turn.success) << turn.error;
    // The turn is known from the root on, so the flop's check-through deals the river at once.
    EXPECT_EQ(deals(turn, "turn"), 0);
    EXPECT_EQ(chance_deal_text(first_deal(turn)), "river");
    EXPECT_EQ(deals(turn, "river"), 1);
    for (const ResultAction& card : node_actions(turn, first_deal(turn)))
        EXPECT_NE(result_action_name(turn, first_deal(turn), card), "2c");
}

TEST(SolveSession, CapitalisedStreetCountsAsTheFlop) {
    SolveSession session;
    SolveConfig config = small_river_spot();
    config.max_iterations = 0;
    const auto chance_nodes = [](const SolveResult& result) {
        return std::count_if(result.nodes.begin(), result.nodes.end(),
                             [](const ResultNode& node) { return node_type_text(node) == "chance"; });
    };
    const SolveResult river = solve_to_end(session, config);
    config.starting_street = "River";
    const SolveResult capital = solve_to_end(session, config);
    config.starting_street = "flop";
    const SolveResult flop = solve_to_end(session, config);
    ASSERT_TRUE(river.success && capital.success && flop.success);
    EXPECT_EQ(chance_nodes(river), 0);
    EXPECT_GT(chance_nodes(capital), 0);
    EXPECT_EQ(capital.nodes.size(), flop.nodes.size());
}

TEST(SolveSession, ZeroIterationsSendNoIterationMessage) {
    SolveSession session;
    RunRecorder recorder;
    SolveConfig config = small_river_spot();
    config.max_iterations = 0;
    ASSERT_TRUE(session.start(config, recorder.callback()));
    const std::vector<SolveProgress> messages = recorder.wait(session);
    EXPECT_EQ(statuses(messages),
              (std::vector<std::string>{kInitGame, kInitTree, kInitSolver, kComputing, kSnapshot, "Done"}));
    EXPECT_EQ(messages[3].progress, 0.0);
    EXPECT_EQ(messages[4].progress, 0.0);
    EXPECT_EQ(messages[5].progress, 1.0);
    EXPECT_EQ(messages.back().result->iterations, 0u);
    EXPECT_EQ(messages.back().result->exploitability, 0.0f);
    // Nothing was learned: the root plays uniformly.
    EXPECT_EQ(messages.back().result->root_action_frequencies, (std::vector<float>{0.5f, 0.5f}));
}

TEST(SolveSession, SecondStartDuringARunIsRefusedAndHarmless) {
    SolveSession session;
    RunRecorder first;
    RunRecorder second;
    bool refused = false;
    first.hook = [&](const SolveProgress& message) {
        if (message.status.rfind("Iter 1 ", 0) != 0) return;
        SolveConfig other = small_river_spot();
        other.board = "2c3d4h5s6s";
        refused = !session.start(other, second.callback());
    };
    ASSERT_TRUE(session.start(small_river_spot(), first.callback()));
    const std::vector<SolveProgress> messages = first.wait(session);
    EXPECT_TRUE(refused);
    ASSERT_TRUE(messages.back().result->success);
    EXPECT_EQ(messages.back().result->board, "AhKs7d2c3h");
    EXPECT_EQ(messages.back().result->iterations, 20u);
    ASSERT_TRUE(session.solution().game);
    EXPECT_EQ(session.solution().game->node_count(), messages.back().result->nodes.size());
}

// Cancel from inside a given message; the init stages still build everything before the solver stops.
struct CancelCase {
    const char* stage;
    const char* outcome;
};

class CancelAtStage : public ::testing::TestWithParam<CancelCase> {};

TEST_P(CancelAtStage, EndsAsExpected) {
    SolveSession session;
    RunRecorder recorder;
    const std::string stage = GetParam().stage;
    recorder.hook = [&](const SolveProgress& message) {
        if (message.status.rfind(stage, 0) == 0) session.cancel();
    };
    ASSERT_TRUE(session.start(small_river_spot(), recorder.callback()));
    const std::vector<SolveProgress> messages = recorder.wait(session);
    const SolveProgress& last = messages.back();
    EXPECT_EQ(last.status, GetParam().outcome);
    if (last.status == "Cancelled") {
        EXPECT_EQ(last.progress, 0.0);
        EXPECT_FALSE(last.result->success);
        EXPECT_EQ(last.result->error, "Cancelled");
        EXPECT_FALSE(session.solution().game);
        EXPECT_FALSE(session.solution().solver);
        // The three init messages always come; the solver stops at its first poll after the cancel.
        EXPECT_EQ(messages[2].status, kInitSolver);
        const bool during_iterations = stage.rfind("Iter", 0) == 0;
        EXPECT_EQ(messages.size(), during_iterations ? 5u : 4u);
    } else {
        EXPECT_TRUE(last.result->success);
        EXPECT_TRUE(session.solution().game);
    }
}

INSTANTIATE_TEST_SUITE_P(Stages, CancelAtStage,
                         ::testing::Values(CancelCase{kInitGame, "Cancelled"}, CancelCase{kInitTree, "Cancelled"},
                                           CancelCase{kInitSolver, "Cancelled"}, CancelCase{"Iter 1 ", "Cancelled"},
                                           CancelCase{kComputing, "Done"}, CancelCase{kSnapshot, "Done"}));

TEST(SolveSession, CancelledRunLeavesNoSolutionAndDroppedThePreviousOneAtStart) {
    SolveSession session;
    ASSERT_TRUE(solve_to_end(session, small_river_spot()).success);
    ASSERT_TRUE(session.solution().game);

    RunRecorder recorder;
    bool empty_at_first_message = false;
    recorder.hook = [&](const SolveProgress& message) {
        if (message.status != kInitGame) return;
        empty_at_first_message = !session.solution().game && !session.solution().solver;
        session.cancel();
    };
    ASSERT_TRUE(session.start(small_river_spot(), recorder.callback()));
    EXPECT_EQ(recorder.wait(session).back().status, "Cancelled");
    EXPECT_TRUE(empty_at_first_message);
    EXPECT_FALSE(session.solution().game);
}

// The result of a cancelled run still carries what the iterations before the cancel computed.
TEST(SolveSession, CancelledResultKeepsTheIterationsDone) {
    SolveSession session;
    RunRecorder recorder;
    recorder.hook = [&](const SolveProgress& message) {
        if (message.status.rfind("Iter 2 ", 0) == 0) session.cancel();
    };
    ASSERT_TRUE(session.start(small_river_spot(), recorder.callback()));
    const std::vector<SolveProgress> messages = recorder.wait(session);
    const SolveProgress& last = messages.back();
    ASSERT_EQ(last.status, "Cancelled");
    ASSERT_TRUE(last.result.has_value());
    EXPECT_FALSE(last.result->success);
    EXPECT_GE(last.result->iterations, 2u);
    EXPECT_FALSE(last.result->exploitability_measured);
    EXPECT_FALSE(last.result->root_action_names.empty());
    EXPECT_FALSE(last.result->nodes.empty());
    EXPECT_FALSE(session.solution().game);
}

TEST(SolveSession, ClearDuringARunDoesNotStopIt) {
    SolveSession session;
    RunRecorder recorder;
    recorder.hook = [&](const SolveProgress& message) {
        if (message.status.rfind("Iter 2 ", 0) == 0) session.clear();
    };
    ASSERT_TRUE(session.start(small_river_spot(), recorder.callback()));
    EXPECT_EQ(recorder.wait(session).back().status, "Done");
    EXPECT_TRUE(session.solution().game);
    session.clear();
    EXPECT_FALSE(session.solution().game);
    EXPECT_FALSE(session.solution().solver);
}

TEST(SolveSession, StartRightAfterCancelIsRefusedUntilTheRunEnds) {
    SolveSession session;
    RunRecorder recorder;
    RunRecorder refused_run;
    bool refused = false;
    recorder.hook = [&](const SolveProgress& message) {
        if (message.status.rfind("Iter 1 ", 0) != 0) return;
        session.cancel();
        refused = !session.start(small_river_spot(), refused_run.callback());
    };
    ASSERT_TRUE(session.start(small_river_spot(), recorder.callback()));
    EXPECT_EQ(recorder.wait(session).back().status, "Cancelled");
    EXPECT_TRUE(refused);

    // The next start clears the cancel request, so it runs to the end.
    const SolveResult next = solve_to_end(session, small_river_spot());
    EXPECT_TRUE(next.success);
    EXPECT_EQ(next.iterations, 20u);
}

TEST(SolveSession, LocksReachTheGame) {
    SolveSession session;
    SolveConfig config = small_river_spot();
    config.node_locks = {{0, "KK", 1, 1.0f}};
    const SolveResult result = solve_to_end(session, config);
    ASSERT_TRUE(result.success);
    const SolvedGame solved = session.solution();
    const std::vector<float>* lock = solved.game->locking_strategy(0);
    ASSERT_NE(lock, nullptr);
    // KK always bets, so its average strategy at the root is exactly that.
    const std::vector<float> hand_strategy = solved.solver->average_hand_strategy(0);
    const auto hands = solved.game->hands(0);
    for (std::size_t h = 0; h < hands.size(); ++h) {
        if (kelvane::hand_class_label(hands[h]) != "KK") continue;
        EXPECT_FLOAT_EQ(hand_strategy[h], 0.0f);
        EXPECT_FLOAT_EQ(hand_strategy[hands.size() + h], 1.0f);
    }
}

// What the end notice saw of the session: how often it came and whether the flag was down each time.
struct EndNotices {
    std::mutex mutex;
    int count = 0;
    bool flag_was_down = true;

    RunEndCallback callback(const SolveSession& session) {
        return [this, &session] {
            const std::lock_guard lock(mutex);
            ++count;
            flag_was_down = flag_was_down && !session.is_running();
        };
    }
};

TEST(SolveSession, EndNoticeComesOnceAfterTheFlagHasFallen) {
    SolveConfig failing = small_river_spot();
    failing.board = "AhKs7";
    for (const SolveConfig& config : {small_river_spot(), failing}) {
        SolveSession session;
        RunRecorder recorder;
        EndNotices ends;
        ASSERT_TRUE(session.start(config, recorder.callback(), ends.callback(session)));
        recorder.wait(session);
        ASSERT_TRUE(wait_for_detached_threads(kWorkerTimeout));
        EXPECT_EQ(ends.count, 1);
        EXPECT_TRUE(ends.flag_was_down);
    }
}

TEST(SolveSession, HoldKeepsTheFlagUpAfterTheLastMessageUntilReleased) {
    SolveSession session;
    std::binary_semaphore held{0};
    std::binary_semaphore released{0};
    session.set_hold_before_flag_falls([&] {
        held.release();
        released.acquire();
    });
    std::promise<void> ended;
    RunRecorder recorder;
    bool running_at_result = false;
    recorder.hook = [&](const SolveProgress& message) {
        if (message.result) running_at_result = session.is_running();
    };
    ASSERT_TRUE(session.start(small_river_spot(), recorder.callback(), [&] { ended.set_value(); }));
    held.acquire();
    EXPECT_TRUE(running_at_result);
    EXPECT_TRUE(session.is_running());
    released.release();
    ASSERT_EQ(ended.get_future().wait_for(kWorkerTimeout), std::future_status::ready);
    EXPECT_FALSE(session.is_running());
    ASSERT_TRUE(wait_for_detached_threads(kWorkerTimeout));
    EXPECT_EQ(recorder.wait(session).back().status, "Done");
}

TEST(SolveSession, EndingTheSessionCancelsItsRunWhichFinishesOnItsOwn) {
    std::mutex mutex;
    std::vector<std::string> seen;
    std::binary_semaphore iterating{0};
    const ProgressCallback record = [&](const SolveProgress& message) {
        const std::lock_guard lock(mutex);
        seen.push_back(message.status);
        if (message.status.rfind("Iter 1 ", 0) == 0) iterating.release();
    };
    std::promise<void> ended;
    {
        SolveSession session;
        SolveConfig endless = small_river_spot();
        endless.max_iterations = 100000000;
        endless.target_exploitability = 0.0f;
        ASSERT_TRUE(session.start(endless, record, [&] { ended.set_value(); }));
        iterating.acquire();
    }
    ASSERT_EQ(ended.get_future().wait_for(kWorkerTimeout), std::future_status::ready);
    ASSERT_TRUE(wait_for_detached_threads(kWorkerTimeout));
    ASSERT_FALSE(seen.empty());
    EXPECT_EQ(seen.back(), "Cancelled");
}

TEST(SolveProgressText, IterationStatus) {
    EXPECT_EQ(iteration_status(7, 0.12345f), "Iter 7 | exploitability\xE2\x89\x88" "0.1235");
    EXPECT_EQ(iteration_status(1, 0.0f), "Iter 1 | exploitability\xE2\x89\x88" "0.0000");
    EXPECT_EQ(iteration_status(150, 12.5f), "Iter 150 | exploitability\xE2\x89\x88" "12.5000");
    EXPECT_EQ(iteration_status(3, -0.00004f), "Iter 3 | exploitability\xE2\x89\x88" "-0.0000");
}

TEST(SolveProgressText, CappedProgress) {
    EXPECT_EQ(capped_progress(0, 0), 0.0);
    EXPECT_EQ(capped_progress(5, 0), 0.0);
    EXPECT_EQ(capped_progress(0, 10), 0.0);
    EXPECT_EQ(capped_progress(5, 10), 0.5);
    EXPECT_EQ(capped_progress(10, 10), 0.999);
    EXPECT_EQ(capped_progress(20, 10), 0.999);
}

TEST(SolveSession, ExploitabilityIsMarkedMeasuredOnlyWhenAnIterationMeasuredIt) {
    SolveSession session;
    SolveConfig config = small_river_spot();
    config.max_iterations = 0;
    const SolveResult none = solve_to_end(session, config);
    ASSERT_TRUE(none.success) << none.error;
    EXPECT_FALSE(none.exploitability_measured);

    config.max_iterations = 3;  // before the first interval: the last iteration measures
    const SolveResult last = solve_to_end(session, config);
    ASSERT_EQ(last.iterations, 3u);
    EXPECT_TRUE(last.exploitability_measured);
    EXPECT_GT(last.exploitability, 0.0f);

    config.max_iterations = 1000;
    config.target_exploitability = 1e9f;  // met at the first measuring iteration
    const SolveResult early = solve_to_end(session, config);
    ASSERT_EQ(early.iterations, kExploitCheckInterval);
    EXPECT_TRUE(early.exploitability_measured);

    config.board = "AhKs7";
    const SolveResult failed = solve_to_end(session, config);
    ASSERT_FALSE(failed.success);
    EXPECT_FALSE(failed.exploitability_measured);
}

}  // namespace
}  // namespace kelvane_app
