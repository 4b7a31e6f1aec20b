// Terminal payoffs of Game: fold values, showdown sweeps with card removal, rake and all-in runouts.

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>

#include "solver/game.h"

namespace kelvane {
namespace {

// Below this a rake amount counts as none.
constexpr double kRakeEpsilon = 1e-9;
// A row holds hands only beyond its two sentinels.
constexpr std::size_t kMinRowEntries = 3;

using CardSums = std::array<double, kCardCount>;

// Reach mass of opposing hands met so far, in total and by card; `cursor` is the next entry of the
// opposing row, starting just past the low sentinel.
struct MassSums {
    double total = 0.0;
    CardSums cards{};
    std::size_t cursor = 1;
};

// An exact zero adds nothing; NaN is not zero and is carried along.
inline void add_mass(MassSums& sums, Pocket pocket, float reach) {
    if (reach == 0.0f) return;
    sums.total += reach;
    sums.cards[pocket.first] += reach;
    sums.cards[pocket.second] += reach;
}

// The mass of hands that share no card with `pocket`.
inline double mass_without(const MassSums& sums, Pocket pocket) {
    return sums.total - sums.cards[pocket.first] - sums.cards[pocket.second];
}

struct ShowdownPayoffs {
    double win = 0.0;
    double lose = 0.0;
    double tie = 0.0;
};

// The opponent's reach of the combo identical to `own`, or 0 when the opponent can't hold it.
inline float reach_of_same_pocket(std::span<const std::uint16_t> same_pocket, std::uint16_t own,
                                  std::span<const float> reach) {
    const std::uint16_t match = same_pocket[own];
    return match < kNoPocketPosition && match < reach.size() ? reach[match] : 0.0f;
}

// Rows keep their sentinels: the high one stops every upward scan and the low one every downward
// scan, so the scans need no bounds tests.
struct Sweep {
    const std::vector<ShowdownEntry>& own_row;
    const std::vector<ShowdownEntry>& opponent_row;
    std::span<const Pocket> own_pockets;
    std::span<const Pocket> opponent_pockets;
    std::span<const std::uint16_t> same_pocket;
    std::span<const float> reach;
    bool early_stop;

    bool has_hands() const { return own_row.size() >= kMinRowEntries && opponent_row.size() >= kMinRowEntries; }

    void take(MassSums& sums) const {
        const std::uint16_t opponent = opponent_row[sums.cursor].pocket;
        add_mass(sums, opponent_pockets[opponent], reach[opponent]);
    }

    float identical_combo_reach(std::uint16_t own) const { return reach_of_same_pocket(same_pocket, own, reach); }
};

Sweep sweep_on(const Game& game, Seat seat, Card turn, Card river, std::span<const float> opponent_reach) {
    const CardContext& cards = game.cards();
    const ShowdownRow& row = cards.showdown_row(turn, river);
    const Seat other = seat ^ 1;
    return {row[seat],           row[other],     cards.pockets[seat],
            cards.pockets[other], cards.same_pocket[seat], opponent_reach,
            game.config().showdown_early_stop};
}

// The rake of a pot: a cap or a percentage that is not above 0 means none.
double rake_of(double pot, const GameConfig& config) {
    if (config.rake_cap <= 0.0 || config.rake_fraction <= 0.0 || pot <= 0.0) return 0.0;
    return std::min(config.rake_cap, pot * config.rake_fraction);
}

// The earlier rule, kept with the early stop so that the comparison setting reproduces old values:
// a cap of 0 took the whole percentage in showdowns paid from the node's pot.
double early_stop_rake_of(double pot, const GameConfig& config) {
    if (pot <= 0.0) return pot;
    double rake = config.rake_fraction > 0.0 ? pot * config.rake_fraction : 0.0;
    if (config.rake_cap > 0.0) rake = std::min(config.rake_cap, rake);
    return std::min(rake, pot);
}

double per_matchup(double chips, double total_matchups) { return total_matchups > 0.0 ? chips / total_matchups : 0.0; }

// Strictly stronger hands win, strictly weaker lose, ties pay nothing: every own hand is paid against
// every opposing hand. With the early stop the downward pass ends right after the first own hand that
// has passed the whole opposing row, and weaker own hands keep only what the upward pass gave them.
bool two_pass_sweep(const Sweep& sweep, double win, double lose, std::span<float> out) {
    if (!sweep.has_hands()) return false;
    const auto& own_row = sweep.own_row;
    const auto& opponent_row = sweep.opponent_row;
    const std::size_t own_last = own_row.size() - 2;

    MassSums below;
    for (std::size_t i = 1; i <= own_last; ++i) {
        const ShowdownEntry own = own_row[i];
        while (opponent_row[below.cursor].value < own.value) {
            sweep.take(below);
            ++below.cursor;
        }
        out[own.pocket] = static_cast<float>(mass_without(below, sweep.own_pockets[own.pocket]) * win);
    }

    MassSums above;
    above.cursor = opponent_row.size() - 2;
    for (std::size_t i = own_last; i >= 1; --i) {
        const ShowdownEntry own = own_row[i];
        while (opponent_row[above.cursor].value > own.value) {
            sweep.take(above);
            --above.cursor;
        }
        out[own.pocket] += static_cast<float>(mass_without(above, sweep.own_pockets[own.pocket]) * lose);
        if (sweep.early_stop && above.cursor == 0) break;
    }
    return true;
}

// Win, tie and lose masses from two cursors: `below` strictly under the own value, `at_or_below`
// up to it. A tie pays each seat its half of the rake.
bool three_way_sweep(const Sweep& sweep, const ShowdownPayoffs& payoffs, std::span<float> out) {
    if (!sweep.has_hands()) return false;
    const auto& own_row = sweep.own_row;
    const auto& opponent_row = sweep.opponent_row;
    const std::size_t own_last = own_row.size() - 2;

    MassSums all;
    for (; all.cursor + 1 < opponent_row.size(); ++all.cursor) sweep.take(all);
    if (all.total == 0.0) return true;

    MassSums below;
    MassSums at_or_below;
    std::uint32_t previous = 0;
    for (std::size_t i = 1; i <= own_last; ++i) {
        const ShowdownEntry own = own_row[i];
        if (own.value > previous) {
            previous = own.value;
            if (below.cursor < at_or_below.cursor) below = at_or_below;
            while (opponent_row[below.cursor].value < own.value) {
                sweep.take(below);
                ++below.cursor;
            }
            if (at_or_below.cursor < below.cursor) at_or_below = below;
            while (opponent_row[at_or_below.cursor].value == own.value) {
                sweep.take(at_or_below);
                ++at_or_below.cursor;
            }
        }
        const Pocket pocket = sweep.own_pockets[own.pocket];
        const double win_mass = mass_without(below, pocket);
        const double le_mass = mass_without(at_or_below, pocket);
        const double all_mass = mass_without(all, pocket);
        const double tie_mass = le_mass - win_mass + sweep.identical_combo_reach(own.pocket);
        const double lose_mass = all_mass - le_mass;
        out[own.pocket] =
            static_cast<float>(tie_mass * payoffs.tie + win_mass * payoffs.win + lose_mass * payoffs.lose);
    }
    return true;
}

// A showdown paid from the node's own pot: the three-way sweep when rake takes anything, the
// two-pass sweep otherwise. Returns whether both rows held hands.
bool pot_showdown(const Sweep& sweep, double pot, const GameConfig& config, double total_matchups,
                  std::span<float> out) {
    const double taken = sweep.early_stop ? early_stop_rake_of(pot, config) : rake_of(pot, config);
    const double half = pot * 0.5;
    if (!(std::abs(taken) > kRakeEpsilon))
        return two_pass_sweep(sweep, per_matchup(half, total_matchups), per_matchup(-half, total_matchups), out);
    const double rake = std::min(config.rake_cap, pot * config.rake_fraction);
    const ShowdownPayoffs payoffs{per_matchup(half - rake, total_matchups), per_matchup(-half, total_matchups),
                                  per_matchup(rake * -0.5, total_matchups)};
    return three_way_sweep(sweep, payoffs, out);
}

// The pot both seats built, summed in 64 bits so that a large pot does not wrap.
double pot_of(const GameConfig& config, const GameNode& n) {
    return static_cast<double>(std::int64_t{config.starting_pot} + 2 * std::int64_t{n.committed});
}

// Everything the opponent can hold, less the hands that share a card with the own hand.
void fold_values(const Game& game, std::uint64_t node, Seat seat, std::span<const float> opponent_reach,
                 double payoff, std::span<float> out) {
    const CardContext& cards = game.cards();
    const Seat other = seat ^ 1;
    const std::vector<Pocket>& opponent_pockets = cards.pockets[other];
    MassSums opponents;
    for (const std::uint16_t o : game.live_hands(node, other)) {
        if (o >= opponent_reach.size()) continue;
        add_mass(opponents, opponent_pockets[o], opponent_reach[o]);
    }
    if (opponents.total == 0.0) return;

    const std::vector<Pocket>& own_pockets = cards.pockets[seat];
    const std::vector<std::uint16_t>& same_pocket = cards.same_pocket[seat];
    for (const std::uint16_t h : game.live_hands(node, seat)) {
        // The card sums remove the identical combo twice; add it back once.
        const double identical = reach_of_same_pocket(same_pocket, h, opponent_reach);
        const Pocket pocket = own_pockets[h];
        out[h] = static_cast<float>(
            (identical + opponents.total - opponents.cards[pocket.first] - opponents.cards[pocket.second]) * payoff);
    }
}

// The runouts that one pair of hands leaves possible: every unseen card but their four.
double runouts_per_matchup(CardMask board, bool turn_missing) {
    const double left = kCardCount - std::popcount(board) - 4;
    return turn_missing ? left * (left - 1) / 2 : left;
}

// Every missing turn and river card pair weighs the same. A runout pays only the pairs of hands that
// leave it possible, so the sum is divided by the number of runouts each pair sees, as a chance node
// divides by its fixed card count. With the early stop the sum is divided by the runouts whose rows
// hold hands, as before.
void runout_average(const Game& game, std::uint64_t node, Seat seat, std::span<const float> opponent_reach,
                    std::span<float> out) {
    const GameNode& n = game.node(node);
    const CardMask board = game.node_dead_cards(node);
    std::array<float, kPocketCount> scratch;
    const std::span<float> runout_values(scratch.data(), out.size());
    const double pot = pot_of(game.config(), n);
    std::uint32_t counted = 0;

    const auto add_runout = [&](Card turn, Card river) {
        std::fill(runout_values.begin(), runout_values.end(), 0.0f);
        const Sweep sweep = sweep_on(game, seat, turn, river, opponent_reach);
        if (!pot_showdown(sweep, pot, game.config(), game.cards().total_matchups, runout_values)) return;
        for (std::size_t h = 0; h < out.size(); ++h) out[h] += runout_values[h];
        ++counted;
    };

    const auto is_free = [board](int card) { return (board & card_bit(static_cast<Card>(card))) == 0; };
    if (n.turn_card == kNoCard) {
        for (int first = 0; first < kCardCount; ++first) {
            if (!is_free(first)) continue;
            for (int second = first + 1; second < kCardCount; ++second)
                if (is_free(second)) add_runout(static_cast<Card>(first), static_cast<Card>(second));
        }
    } else {
        for (int river = 0; river < kCardCount; ++river)
            if (is_free(river)) add_runout(n.turn_card, static_cast<Card>(river));
    }

    if (counted == 0) {
        std::fill(out.begin(), out.end(), 0.0f);
        return;
    }
    const double divisor = game.config().showdown_early_stop
                               ? counted
                               : runouts_per_matchup(board, n.turn_card == kNoCard);
    const float share = 1.0f / static_cast<float>(divisor);
    for (float& value : out) value *= share;
}

}  // namespace

void Game::evaluate(std::uint64_t node, Seat seat, std::span<const float> opponent_reach,
                    std::span<float> out) const {
    std::fill(out.begin(), out.end(), 0.0f);
    const Seat other = seat ^ 1;
    if (node >= nodes_.size() || opponent_reach.size() != hand_count(other) || out.size() != hand_count(seat))
        return;
    const GameNode& n = nodes_[node];
    const double total_matchups = cards_.total_matchups;

    const double pot = pot_of(config_, n);
    const double rake = rake_of(pot, config_);
    const double win = per_matchup(pot / 2 - rake, total_matchups);
    const double lose = per_matchup(-(pot / 2), total_matchups);

    if (n.terminal_kind == kActionFold) {
        // The fold payoff goes through float once, as a stored payoff would.
        const double payoff = static_cast<float>(seat == n.folded_seat ? lose : win);
        fold_values(*this, node, seat, opponent_reach, payoff, out);
        return;
    }
    if (n.turn_card == kNoCard || n.river_card == kNoCard) {
        runout_average(*this, node, seat, opponent_reach, out);
        return;
    }
    const Sweep sweep = sweep_on(*this, seat, n.turn_card, n.river_card, opponent_reach);
    if (std::abs(rake) > kRakeEpsilon)
        pot_showdown(sweep, pot, config_, total_matchups, out);
    else
        two_pass_sweep(sweep, win, lose, out);
}

}  // namespace kelvane
