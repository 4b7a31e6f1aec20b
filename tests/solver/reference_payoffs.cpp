#include "reference_payoffs.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "poker/hand_evaluator.h"

namespace kelvane::game_test {
namespace {

// What one pair of hands pays the own seat, in chips.
struct Payoffs {
    double win = 0.0;
    double lose = 0.0;
    double tie = 0.0;
};

double rake_of(double pot, const GameConfig& config) {
    if (config.rake_cap <= 0.0 || config.rake_fraction <= 0.0 || pot <= 0.0) return 0.0;
    return std::min(config.rake_cap, pot * config.rake_fraction);
}

// The winner takes the other's half of the pot less the rake; a tie costs each seat half the rake.
Payoffs showdown_payoffs(double pot, const GameConfig& config) {
    const double rake = rake_of(pot, config);
    return {pot / 2 - rake, -pot / 2, -rake / 2};
}

bool disjoint(Pocket a, Pocket b) { return (pocket_mask(a) & pocket_mask(b)) == 0; }

double showdown(Pocket own, Pocket opponent, std::span<const Card> board, const Payoffs& payoffs) {
    const HandStrength a = evaluate_on_board(own, board);
    const HandStrength b = evaluate_on_board(opponent, board);
    return a > b ? payoffs.win : a < b ? payoffs.lose : payoffs.tie;
}

// The mean showdown over every turn and river the two hands leave in the deck.
double runout_mean(Pocket own, Pocket opponent, const std::array<Card, 5>& known, CardMask dead,
                   const Payoffs& payoffs) {
    const CardMask used = dead | pocket_mask(own) | pocket_mask(opponent);
    const auto free = [used](int card) { return (used & card_bit(static_cast<Card>(card))) == 0; };
    std::array<Card, 5> board = known;
    double sum = 0.0;
    int count = 0;
    if (known[3] != kNoCard) {
        for (int river = 0; river < kCardCount; ++river) {
            if (!free(river)) continue;
            board[4] = static_cast<Card>(river);
            sum += showdown(own, opponent, board, payoffs);
            ++count;
        }
    } else {
        for (int turn = 0; turn < kCardCount; ++turn) {
            if (!free(turn)) continue;
            for (int river = turn + 1; river < kCardCount; ++river) {
                if (!free(river)) continue;
                board[3] = static_cast<Card>(turn);
                board[4] = static_cast<Card>(river);
                sum += showdown(own, opponent, board, payoffs);
                ++count;
            }
        }
    }
    return count > 0 ? sum / count : 0.0;
}

}  // namespace

std::vector<float> reference_values(const Game& game, std::uint64_t node, Seat seat, std::span<const float> reach) {
    const CardContext& cards = game.cards();
    const Seat other = seat ^ 1;
    std::vector<float> out(cards.pockets[seat].size(), 0.0f);
    if (reach.size() != cards.pockets[other].size()) return out;
    const double total_matchups = cards.total_matchups;
    if (!(total_matchups > 0.0)) return out;

    const GameNode& n = game.node(node);
    const GameConfig& config = game.config();
    const double pot = static_cast<double>(config.starting_pot) + 2.0 * n.committed;
    const std::array<Card, 3>& flop = cards.board.flop;
    const std::array<Card, 5> known{flop[0], flop[1], flop[2], n.turn_card, n.river_card};
    const CardMask dead = game.node_dead_cards(node);
    const bool complete = n.turn_card != kNoCard && n.river_card != kNoCard;
    const Payoffs payoffs = showdown_payoffs(pot, config);
    // A fold pays the folder's loss or the winner's gain, whoever holds what.
    const double fold_payoff = static_cast<float>(n.folded_seat == seat ? -pot / 2 : pot / 2 - rake_of(pot, config));

    for (std::size_t h = 0; h < out.size(); ++h) {
        const Pocket own = cards.pockets[seat][h];
        if (pocket_mask(own) & dead) continue;
        double value = 0.0;
        for (std::size_t o = 0; o < reach.size(); ++o) {
            const Pocket opponent = cards.pockets[other][o];
            if ((pocket_mask(opponent) & dead) || !disjoint(own, opponent) || reach[o] == 0.0f) continue;
            double chips = fold_payoff;
            if (n.terminal_kind != kActionFold)
                chips = complete ? showdown(own, opponent, known, payoffs)
                                 : runout_mean(own, opponent, known, dead, payoffs);
            value += reach[o] * chips;
        }
        out[h] = static_cast<float>(value / total_matchups);
    }
    return out;
}

double value_scale(const Game& game, std::uint64_t node, std::span<const float> reach) {
    const GameNode& n = game.node(node);
    const double pot = std::max<double>(game.config().starting_pot + 2.0 * n.committed, n.pot);
    double mass = 0.0;
    for (const float x : reach)
        if (!std::isnan(x)) mass += std::abs(x);
    const double n_matchups = game.cards().total_matchups;
    return n_matchups > 0.0 ? mass * pot / n_matchups : 0.0;
}

}  // namespace kelvane::game_test
