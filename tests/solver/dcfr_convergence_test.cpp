// Convergence on real spots, a game with a closed-form equilibrium, state packing and thread-count
// independence of every stored number.

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "solver/discounted_cfr.h"
#include "solver_spots.h"
#include "spot_file.h"

namespace kelvane {
namespace {

using testing::child_by_kind;
using testing::PolarizedSpot;
using testing::quiet_options;

// Exploitability every 50 iterations as a share of the starting pot.
std::vector<float> measured_shares(Game& game, DiscountedCfrOptions options) {
    std::vector<float> shares;
    const float pot = static_cast<float>(game.config().starting_pot);
    options.on_iteration = [&](std::uint32_t i, float e, double) {
        if (i % options.exploit_check_interval == 0 || i == options.max_iterations) shares.push_back(e / pot);
    };
    DiscountedCfr cfr(options);
    cfr.solve(game);
    return shares;
}

// A best response can't do worse than the strategy it answers; below 0 is float rounding only.
constexpr float kRoundingShare = 1e-6f;

void expect_converges(Game& game, std::uint32_t iterations) {
    const std::vector<float> shares = measured_shares(game, quiet_options(iterations));
    ASSERT_GE(shares.size(), 3u);
    EXPECT_LT(shares.back(), shares.front());
    EXPECT_LT(shares.back(), 0.005f);
    for (std::size_t i = 0; i < shares.size(); ++i) EXPECT_GE(shares[i], -kRoundingShare) << "measure " << i;
}

// Without rake no chip leaves the table: what one seat wins the other loses.
void expect_zero_sum(Game& game, std::uint32_t iterations) {
    DiscountedCfr cfr(quiet_options(iterations));
    cfr.solve(game);
    const SeatValues ev = cfr.average_strategy_values(game);
    EXPECT_NEAR(static_cast<double>(ev[0]) + ev[1], 0.0, 0.01) << ev[0] << " " << ev[1];
    EXPECT_GE(cfr.last_exploitability(), -kRoundingShare * game.config().starting_pot);
}

TEST(Convergence, RiverSpotFallsBelowHalfAPercentOfThePot) {
    auto game = testing::SpotFile(testing::spot_path("river")).game();
    EXPECT_GT(game->hand_count(0), 80u);
    expect_converges(*game, 300);
}

TEST(Convergence, SmallTurnSpotFallsBelowHalfAPercentOfThePot) {
    auto game = testing::make_game(testing::small_turn_spot());
    expect_converges(*game, 200);
}

TEST(Convergence, RiverSpotWithOneRangeFarStrongerConverges) {
    auto game = testing::make_game(testing::lopsided_river_spot());
    expect_converges(*game, 300);
}

TEST(Convergence, UnrakedSolvesAreZeroSum) {
    expect_zero_sum(*testing::SpotFile(testing::spot_path("river")).game(), 300);
    expect_zero_sum(*testing::make_game(testing::lopsided_river_spot()), 300);
    expect_zero_sum(*testing::make_game(testing::small_turn_spot()), 200);
}

// Pot 100, one pot-sized bet, 77 (3 combos) against AK's top pair with QTo (12 combos) as air: the
// value always bets, the air bluffs one combo for two of value (1/8 of QTo), AK calls half the time,
// and OOP, who wins 100 with each set and loses 50 with each air, is worth -20 from the half pot.
TEST(Convergence, PolarizedRiverSpotFileMatchesTheTextbook) {
    auto game = testing::SpotFile(testing::spot_path("polarized_river")).game();
    DiscountedCfr cfr(quiet_options(1000));
    cfr.solve(*game);
    const SeatValues ev = cfr.average_strategy_values(*game);
    EXPECT_NEAR(ev[0], -20.0, 0.5);
    EXPECT_NEAR(ev[1], 20.0, 0.5);

    const std::size_t oop_hands = game->hand_count(0);
    ASSERT_EQ(oop_hands, 15u);
    const std::vector<float> root = cfr.average_hand_strategy(0);
    ASSERT_EQ(game->node(0).actions[1].kind, kActionBet);
    double air_bets = 0.0;
    for (std::size_t h = 0; h < oop_hands; ++h) {
        const Pocket pocket = game->hands(0)[h];
        const float bet = root[oop_hands + h];
        if (rank_of(pocket.first) == rank_of(pocket.second))
            EXPECT_GT(bet, 0.97f) << h;
        else
            air_bets += bet;
    }
    EXPECT_NEAR(air_bets / 12.0, 1.0 / 8.0, 0.03);

    const std::uint64_t facing = child_by_kind(*game, 0, kActionBet);
    const std::size_t ip_hands = game->hand_count(1);
    const std::vector<float> response = cfr.average_hand_strategy(facing);
    ASSERT_EQ(game->node(facing).actions[1].kind, kActionCall);
    for (std::size_t h = 0; h < ip_hands; ++h) EXPECT_NEAR(response[ip_hands + h], 0.5, 0.03) << h;
}

TEST(Convergence, StatePackingReachesNearlyTheSameExploitability) {
    auto game = testing::SpotFile(testing::spot_path("river")).game(true);
    DiscountedCfr plain(quiet_options(300));
    plain.solve(*game);
    DiscountedCfrOptions packed_options = quiet_options(300);
    packed_options.compress_state = true;
    DiscountedCfr packed(packed_options);
    packed.solve(*game);
    EXPECT_TRUE(game->compress_state());
    const float pot = static_cast<float>(game->config().starting_pot);
    EXPECT_LT(packed.last_exploitability() / pot, 0.005f);
    EXPECT_NEAR(packed.last_exploitability(), plain.last_exploitability(), 0.005f * pot);
    // Sixteen bits a value and no float copy: half the bytes of the float stores.
    EXPECT_EQ(packed.state_bytes(), plain.state_bytes() / 2);
    const std::uint64_t ip = child_by_kind(*game, 0, kActionCheck);
    ASSERT_EQ(packed.node_state(ip).seat, 1);
    EXPECT_EQ(packed.regrets_of(ip).size(), packed.node_state(ip).entries());
    const std::vector<float> plain_root = plain.average_strategy(0);
    const std::vector<float> packed_root = packed.average_strategy(0);
    for (std::size_t a = 0; a < plain_root.size(); ++a) EXPECT_NEAR(packed_root[a], plain_root[a], 0.02f);
}

TEST(Convergence, RakeWithoutCapIsNoRake) {
    testing::SpotSetup setup = testing::small_turn_spot();
    auto plain_game = testing::make_game(setup);
    setup.rake_fraction = 0.05;
    auto capless_game = testing::make_game(setup);
    DiscountedCfr plain(quiet_options(50));
    DiscountedCfr capless(quiet_options(50));
    plain.solve(*plain_game);
    capless.solve(*capless_game);
    EXPECT_EQ(plain.last_exploitability(), capless.last_exploitability());
    const SeatValues best = capless.best_response_values(*capless_game);
    EXPECT_EQ(capless.last_exploitability(), static_cast<float>((static_cast<double>(best[1]) + best[0]) * 0.5));
}

TEST(Convergence, RakedExploitabilitySubtractsTheAverageValues) {
    testing::SpotSetup setup = testing::small_turn_spot();
    setup.rake_fraction = 0.05;
    setup.rake_cap = 3.0;
    auto game = testing::make_game(setup);
    DiscountedCfr cfr(quiet_options(200));
    cfr.solve(*game);
    const SeatValues best = cfr.best_response_values(*game);
    const SeatValues average = cfr.average_strategy_values(*game);
    const float d1 = best[1] - average[1];
    const float d0 = best[0] - average[0];
    EXPECT_EQ(cfr.last_exploitability(), static_cast<float>((static_cast<double>(d1) + d0) * 0.5));
    EXPECT_LT(average[0] + average[1], -0.1f);  // the rake leaves the table
    EXPECT_LT(cfr.last_exploitability() / 100.0f, 0.005f);
}

// Closed forms for a pot P, a bet B, value V, air A, catchers C and a trace T that ties the air:
// the catcher calls c = P (C + T/2) / (C (P + B)), which leaves the air indifferent; the value bets
// always and the air bluffs V·B/(P + B) combos, which leaves the catcher indifferent.
TEST(Convergence, PolarizedRiverMatchesTheClosedForm) {
    auto game = testing::make_game(PolarizedSpot::setup());
    DiscountedCfr cfr(quiet_options(2000));
    cfr.solve(*game);

    const double P = 100.0;
    const double B = 100.0;
    const double V = PolarizedSpot::kValueCombos;
    const double A = PolarizedSpot::kAirCombos;
    const double C = PolarizedSpot::kCatcherCombos;
    const double T = PolarizedSpot::kTraceCombos * PolarizedSpot::kTraceWeight;
    const double call = P * (C + T / 2.0) / (C * (P + B));
    const double bluffs = V * B / (P + B);
    const double value_total = V * (C * (call * (P / 2 + B) + (1.0 - call) * P / 2) + T * P / 2);
    const double air_total = A * (-C * P / 2);
    const double oop_ev = (value_total + air_total) / ((V + A) * (C + T));

    EXPECT_LT(cfr.last_exploitability(), 0.05f);  // a twentieth of a percent of the pot
    const SeatValues ev = cfr.average_strategy_values(*game);
    EXPECT_NEAR(ev[0], oop_ev, 0.02);
    EXPECT_NEAR(ev[1], -oop_ev, 0.02);

    const std::size_t oop_hands = game->hand_count(0);
    ASSERT_EQ(static_cast<double>(oop_hands), V + A);
    const std::vector<float> root = cfr.average_hand_strategy(0);
    ASSERT_EQ(game->node(0).actions[1].kind, kActionAllIn);
    double bluff_combos = 0.0;
    for (std::size_t h = 0; h < oop_hands; ++h) {
        const Pocket pocket = game->hands(0)[h];
        const float bet = root[oop_hands + h];
        if (rank_of(pocket.first) == rank_of(pocket.second)) {
            EXPECT_GT(bet, 0.99f) << h;
        } else {
            bluff_combos += bet;
        }
    }
    EXPECT_NEAR(bluff_combos, bluffs, 0.05);

    const std::uint64_t facing = child_by_kind(*game, 0, kActionAllIn);
    const std::size_t ip_hands = game->hand_count(1);
    const std::vector<float> response = cfr.average_hand_strategy(facing);
    ASSERT_EQ(game->node(facing).actions[1].kind, kActionCall);
    double catcher_calls = 0.0;
    for (std::size_t h = 0; h < ip_hands; ++h) {
        const Pocket pocket = game->hands(1)[h];
        if (rank_of(pocket.first) == rank_of(pocket.second)) {
            catcher_calls += response[ip_hands + h];
        } else {
            EXPECT_LT(response[ip_hands + h], 0.01f) << h;  // the trace ties the air and can't call
        }
    }
    EXPECT_NEAR(catcher_calls / C, call, 0.02);
}

struct SolveSnapshot : testing::StoredStates {
    float exploitability = 0.0f;
    SeatValues root_values{};
    SeatValues best_values{};
};

SolveSnapshot solve_snapshot(Game& game, std::uint32_t iterations, std::uint64_t threads) {
    DiscountedCfrOptions options = quiet_options(iterations, threads);
    options.exploit_check_interval = 5;
    DiscountedCfr cfr(options);
    cfr.solve(game);
    SolveSnapshot snapshot;
    static_cast<testing::StoredStates&>(snapshot) = testing::stored_states(cfr);
    snapshot.exploitability = cfr.last_exploitability();
    snapshot.root_values = cfr.average_strategy_values(game);
    snapshot.best_values = cfr.best_response_values(game);
    return snapshot;
}

bool bitwise_equal(const std::vector<float>& a, const std::vector<float>& b) {
    return a.size() == b.size() && (a.empty() || std::memcmp(a.data(), b.data(), a.size() * sizeof(float)) == 0);
}

bool bitwise_equal(float a, float b) { return std::memcmp(&a, &b, sizeof a) == 0; }

TEST(Determinism, EveryStoredNumberIsIndependentOfTheThreadCount) {
    auto game = testing::make_game(testing::wide_turn_spot());
    ASSERT_GE(game->hand_count(0), 128u);  // wide enough for the update pass to fan out
    ASSERT_GE(game->hand_count(1), 128u);
    const SolveSnapshot one = solve_snapshot(*game, 12, 1);
    EXPECT_GT(one.exploitability, 0.0f);
    for (std::uint64_t threads : {2u, 3u}) {
        const SolveSnapshot many = solve_snapshot(*game, 12, threads);
        ASSERT_EQ(many.regrets.size(), one.regrets.size());
        for (std::size_t n = 0; n < one.regrets.size(); ++n) {
            EXPECT_TRUE(bitwise_equal(many.regrets[n], one.regrets[n])) << "node " << n << ", " << threads;
            EXPECT_TRUE(bitwise_equal(many.strategy_sums[n], one.strategy_sums[n])) << "node " << n;
        }
        EXPECT_TRUE(bitwise_equal(many.exploitability, one.exploitability)) << threads;
        for (std::size_t seat = 0; seat < 2; ++seat) {
            EXPECT_TRUE(bitwise_equal(many.root_values[seat], one.root_values[seat])) << threads;
            EXPECT_TRUE(bitwise_equal(many.best_values[seat], one.best_values[seat])) << threads;
        }
    }
}

}  // namespace
}  // namespace kelvane
