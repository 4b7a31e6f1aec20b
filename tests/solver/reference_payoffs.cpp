#include "reference_payoffs.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

#include "poker/hand_evaluator.h"

namespace kelvane::game_test {
namespace {

constexpr double kRakeEpsilon = 1e-9;
constexpr std::int64_t kBlocked = -1;

struct Payoffs {
    double win = 0.0;
    double lose = 0.0;
    double tie = 0.0;
};

double per_matchup(double chips, double total_matchups) { return total_matchups > 0.0 ? chips / total_matchups : 0.0; }

bool meets(Pocket a, Pocket b) { return (pocket_mask(a) & pocket_mask(b)) == 0; }

std::vector<std::int64_t> strengths_on(const std::vector<Pocket>& pockets, const std::array<Card, 5>& board) {
    CardMask mask = 0;
    for (const Card card : board) mask |= card_bit(card);
    std::vector<std::int64_t> strengths(pockets.size(), kBlocked);
    for (std::size_t i = 0; i < pockets.size(); ++i)
        if ((pocket_mask(pockets[i]) & mask) == 0) strengths[i] = evaluate_on_board(pockets[i], board);
    return strengths;
}

// One complete board; false when a seat has no hand on it.
bool showdown_on(const Game& game, Seat seat, std::span<const float> reach, const std::array<Card, 5>& board,
                 const Payoffs& payoffs, bool three_way, std::vector<float>& out) {
    const auto& own_pockets = game.cards().pockets[seat];
    const auto& opp_pockets = game.cards().pockets[seat ^ 1];
    const auto own = strengths_on(own_pockets, board);
    const auto opp = strengths_on(opp_pockets, board);
    const auto live = [](std::int64_t s) { return s != kBlocked; };
    if (std::none_of(own.begin(), own.end(), live) || std::none_of(opp.begin(), opp.end(), live)) return false;

    struct Masses {
        double win = 0.0, tie = 0.0, lose = 0.0;
    };
    const auto masses_of = [&](std::size_t h) {
        Masses m;
        for (std::size_t o = 0; o < opp.size(); ++o) {
            if (!live(opp[o]) || !meets(own_pockets[h], opp_pockets[o]) || reach[o] == 0.0f) continue;
            (opp[o] < own[h] ? m.win : opp[o] == own[h] ? m.tie : m.lose) += reach[o];
        }
        return m;
    };

    if (three_way) {
        double total = 0.0;
        for (std::size_t o = 0; o < opp.size(); ++o)
            if (live(opp[o]) && reach[o] != 0.0f) total += reach[o];
        if (total == 0.0) return true;
        for (std::size_t h = 0; h < own.size(); ++h) {
            if (!live(own[h])) continue;
            const Masses m = masses_of(h);
            out[h] = static_cast<float>(m.tie * payoffs.tie + m.win * payoffs.win + m.lose * payoffs.lose);
        }
        return true;
    }

    // Strongest first; after the first hand below every opposing hand, the lose side is dropped.
    std::vector<std::size_t> order;
    for (std::size_t h = 0; h < own.size(); ++h)
        if (live(own[h])) order.push_back(h);
    std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        return own[a] != own[b] ? own[a] > own[b] : a > b;
    });
    std::int64_t weakest_opponent = INT64_MAX;
    for (const std::int64_t s : opp)
        if (live(s)) weakest_opponent = std::min(weakest_opponent, s);
    bool stopped = false;
    for (const std::size_t h : order) {
        const Masses m = masses_of(h);
        float value = static_cast<float>(m.win * payoffs.win);
        if (!stopped) value += static_cast<float>(m.lose * payoffs.lose);
        out[h] = value;
        if (own[h] < weakest_opponent) stopped = true;
    }
    return true;
}

bool pot_showdown_on(const Game& game, Seat seat, std::span<const float> reach, const std::array<Card, 5>& board,
                     double pot, std::vector<float>& out) {
    const GameConfig& config = game.config();
    const double n = game.cards().total_matchups;
    double after = 0.0;
    if (pot > 0.0) {
        double rake = config.rake_fraction > 0.0 ? pot * config.rake_fraction : 0.0;
        if (config.rake_cap > 0.0) rake = std::min(config.rake_cap, rake);
        after = std::max(pot - rake, 0.0);
    }
    if (std::abs(pot - after) <= kRakeEpsilon)
        return showdown_on(game, seat, reach, board, {per_matchup(pot * 0.5, n), per_matchup(-pot * 0.5, n), 0.0},
                           false, out);
    const double rake = std::min(config.rake_cap, pot * config.rake_fraction);
    return showdown_on(game, seat, reach, board,
                       {per_matchup(pot * 0.5 - rake, n), per_matchup(-pot * 0.5, n), per_matchup(-0.5 * rake, n)},
                       true, out);
}

}  // namespace

std::vector<float> reference_values(const Game& game, std::uint64_t node, Seat seat, std::span<const float> reach) {
    const CardContext& cards = game.cards();
    const Seat other = seat ^ 1;
    std::vector<float> out(cards.pockets[seat].size(), 0.0f);
    if (reach.size() != cards.pockets[other].size()) return out;

    const GameNode& n = game.node(node);
    const GameConfig& config = game.config();
    const double total_matchups = cards.total_matchups;
    const double pot = config.starting_pot + 2 * n.committed;
    const double rake = std::min(config.rake_cap, pot * config.rake_fraction);
    const CardMask board = board_mask(cards.board) | card_bit(n.turn_card) | card_bit(n.river_card);
    const std::array<Card, 3>& flop = cards.board.flop;

    if (n.terminal_kind == kActionFold) {
        const double win = per_matchup(pot / 2 - rake, total_matchups);
        const double payoff = static_cast<float>(n.folded_seat == seat ? per_matchup(-pot / 2, total_matchups) : win);
        for (std::size_t h = 0; h < out.size(); ++h) {
            const Pocket own = cards.pockets[seat][h];
            if (pocket_mask(own) & board) continue;
            double mass = 0.0;
            for (std::size_t o = 0; o < reach.size(); ++o) {
                const Pocket opp = cards.pockets[other][o];
                if ((pocket_mask(opp) & board) || !meets(own, opp) || reach[o] == 0.0f) continue;
                mass += reach[o];
            }
            out[h] = static_cast<float>(mass * payoff);
        }
        return out;
    }

    if (n.turn_card != kNoCard && n.river_card != kNoCard) {
        const std::array<Card, 5> full{flop[0], flop[1], flop[2], n.turn_card, n.river_card};
        if (std::abs(rake) > kRakeEpsilon)
            pot_showdown_on(game, seat, reach, full, n.pot, out);
        else
            showdown_on(game, seat, reach, full,
                        {per_matchup(pot / 2 - rake, total_matchups), per_matchup(-pot / 2, total_matchups), 0.0},
                        false, out);
        return out;
    }

    int counted = 0;
    std::vector<float> runout(out.size());
    const auto add = [&](Card turn, Card river) {
        std::fill(runout.begin(), runout.end(), 0.0f);
        if (!pot_showdown_on(game, seat, reach, {flop[0], flop[1], flop[2], turn, river}, n.pot, runout)) return;
        for (std::size_t h = 0; h < out.size(); ++h) out[h] += runout[h];
        ++counted;
    };
    for (int a = 0; a < kCardCount; ++a) {
        if (board & card_bit(static_cast<Card>(a))) continue;
        if (n.turn_card != kNoCard) {
            add(n.turn_card, static_cast<Card>(a));
            continue;
        }
        for (int b = a + 1; b < kCardCount; ++b)
            if (!(board & card_bit(static_cast<Card>(b)))) add(static_cast<Card>(a), static_cast<Card>(b));
    }
    if (counted == 0) return std::vector<float>(out.size(), 0.0f);
    for (float& value : out) value *= 1.0f / static_cast<float>(counted);
    return out;
}

double value_scale(const Game& game, std::uint64_t node, std::span<const float> reach) {
    const GameNode& n = game.node(node);
    const double pot = std::max<double>(game.config().starting_pot + 2 * n.committed, n.pot);
    double mass = 0.0;
    for (const float x : reach)
        if (!std::isnan(x)) mass += std::abs(x);
    const double n_matchups = game.cards().total_matchups;
    return n_matchups > 0.0 ? mass * pot / n_matchups : 0.0;
}

}  // namespace kelvane::game_test
