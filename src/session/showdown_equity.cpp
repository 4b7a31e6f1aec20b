// Exact and sampled showdown equity for the node statistics.

#include "session/showdown_equity.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "poker/hand_evaluator.h"
#include "session/solution_view.h"

namespace kelvane_app {
namespace {

using kelvane::Card;
using kelvane::CardMask;
using kelvane::Pocket;

constexpr std::uint32_t kSeedMix = 0xC0FFEE;
constexpr int kOpponentDraws = 32;
constexpr std::size_t kFlopCards = 3;
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

// Strength by hand position, 0 for a hand that isn't in the row.
std::vector<std::uint32_t> showdown_values(const std::vector<kelvane::ShowdownEntry>& row, std::size_t hands) {
    std::vector<std::uint32_t> values(hands, 0);
    for (std::size_t i = 1; i + 1 < row.size(); ++i)
        if (row[i].pocket < hands) values[row[i].pocket] = row[i].value;
    return values;
}

// Uniform in [0, 1) from 53 bits of two draws.
double unit_draw(std::mt19937& generator) {
    const double high = static_cast<double>(generator() >> 5);
    const double low = static_cast<double>(generator() >> 6);
    return (high * 67108864.0 + low) / 9007199254740992.0;
}

// Uniform in [0, n) by multiply-and-reject, free of modulo bias.
std::uint32_t bounded_draw(std::mt19937& generator, std::uint32_t n) {
    std::uint64_t product = std::uint64_t{generator()} * n;
    auto low = static_cast<std::uint32_t>(product);
    if (low < n) {
        const std::uint32_t threshold = (0u - n) % n;
        while (low < threshold) {
            product = std::uint64_t{generator()} * n;
            low = static_cast<std::uint32_t>(product);
        }
    }
    return static_cast<std::uint32_t>(product >> 32);
}

// The first index whose running sum reaches u·total, the last if rounding leaves none.
std::size_t weighted_pick(const std::vector<double>& running, std::mt19937& generator) {
    const double x = unit_draw(generator) * running.back();
    const auto hit = std::lower_bound(running.begin(), running.end(), x);
    return hit == running.end() ? running.size() - 1 : static_cast<std::size_t>(hit - running.begin());
}

std::vector<double> running_sum(std::span<const double> weights) {
    std::vector<double> running(weights.size());
    double total = 0.0;
    for (std::size_t i = 0; i < weights.size(); ++i) running[i] = total += weights[i];
    return running;
}

// Adds one card not in `mask`, chosen uniformly; false if the deck is empty.
bool deal_card(CardMask& mask, Card& card, std::mt19937& generator) {
    std::vector<Card> free;
    for (int c = 0; c < kelvane::kCardCount; ++c)
        if (!(mask & kelvane::card_bit(static_cast<Card>(c)))) free.push_back(static_cast<Card>(c));
    if (free.empty()) return false;
    card = free[bounded_draw(generator, static_cast<std::uint32_t>(free.size()))];
    mask |= kelvane::card_bit(card);
    return true;
}

bool same_cards(Pocket a, Pocket b) { return kelvane::pocket_mask(a) == kelvane::pocket_mask(b); }

}  // namespace

double exact_river_equity(const kelvane::Game& game, std::uint64_t node, kelvane::Seat seat,
                          std::span<const double> own, std::span<const float> other) {
    const kelvane::GameNode& n = game.node(node);
    const kelvane::ShowdownRow& rows = game.cards().showdown_row(n.turn_card, n.river_card);
    const kelvane::Seat opponent = other_seat(seat);
    if (rows[seat].size() < 3 || rows[opponent].size() < 3) return kNaN;
    const std::span<const Pocket> own_hands = game.hands(seat);
    const std::span<const Pocket> other_hands = game.hands(opponent);
    const std::vector<std::uint32_t> own_values = showdown_values(rows[seat], own_hands.size());
    const std::vector<std::uint32_t> other_values = showdown_values(rows[opponent], other_hands.size());

    double total = 0.0, win = 0.0, tie = 0.0;
    for (std::size_t h = 0; h < own_hands.size() && h < own.size(); ++h) {
        if (!(own[h] > 0.0) || own_values[h] == 0) continue;
        const CardMask own_mask = kelvane::pocket_mask(own_hands[h]);
        for (std::size_t j = 0; j < other_hands.size() && j < other.size(); ++j) {
            if (!(other[j] > 0.0f) || other_values[j] == 0 || (kelvane::pocket_mask(other_hands[j]) & own_mask)) continue;
            const double x = static_cast<double>(other[j]) * own[h];
            total += x;
            if (own_values[h] > other_values[j]) win += x;
            else if (own_values[h] == other_values[j]) tie += x;
        }
    }
    return total > 0.0 ? (tie * 0.5 + win) / total : kNaN;
}

std::mt19937 equity_generator(std::uint64_t node) {
    return std::mt19937(static_cast<std::uint32_t>(node) ^ kSeedMix);
}

EquityEstimate sampled_equity(const kelvane::Game& game, std::uint64_t node, kelvane::Seat seat,
                              std::span<const double> own, std::span<const float> other, std::mt19937& generator) {
    const kelvane::GameNode& n = game.node(node);
    const kelvane::Seat opponent = other_seat(seat);
    const std::span<const Pocket> own_hands = game.hands(seat);
    const std::span<const Pocket> other_hands = game.hands(opponent);
    if (own_hands.empty() || other_hands.empty() || own.size() != own_hands.size() ||
        other.size() != other_hands.size())
        return {};
    std::vector<double> other_clean(other.size());
    for (std::size_t j = 0; j < other.size(); ++j) other_clean[j] = clean_weight(other[j]);
    const std::vector<double> own_running = running_sum(own);
    const std::vector<double> other_running = running_sum(other_clean);
    if (!(own_running.back() > 0.0) || !(other_running.back() > 0.0)) return {};

    const std::vector<Card>& board = game.cards().board_list;
    if (board.size() < kFlopCards) return {};
    CardMask dead = kelvane::card_bit(n.turn_card) | kelvane::card_bit(n.river_card);
    for (std::size_t i = 0; i < kFlopCards; ++i) dead |= kelvane::card_bit(board[i]);

    const std::uint32_t deals = n.turn_card != kelvane::kNoCard ? kTurnKnownDeals : kFlopDeals;
    std::uint64_t samples = 0;
    double score = 0.0;  // wins plus half the ties
    for (std::uint32_t deal = 0; deal < deals; ++deal) {
        const Pocket mine = own_hands[weighted_pick(own_running, generator)];
        const CardMask mine_mask = kelvane::pocket_mask(mine);
        if (mine_mask & dead) continue;
        Pocket theirs{};
        for (int draw = 0; draw < kOpponentDraws; ++draw) {
            theirs = other_hands[weighted_pick(other_running, generator)];
            if (!(kelvane::pocket_mask(theirs) & (dead | mine_mask))) break;
        }
        if (same_cards(theirs, mine)) continue;

        CardMask mask = dead | mine_mask | kelvane::pocket_mask(theirs);
        Card turn = n.turn_card;
        Card river = n.river_card;
        if (turn == kelvane::kNoCard && !deal_card(mask, turn, generator)) continue;
        if (river == kelvane::kNoCard && !deal_card(mask, river, generator)) continue;
        const std::array<Card, 5> cards{board[0], board[1], board[2], turn, river};
        const kelvane::HandStrength mine_strength = kelvane::evaluate_on_board(mine, cards);
        const kelvane::HandStrength theirs_strength = kelvane::evaluate_on_board(theirs, cards);
        ++samples;
        if (mine_strength > theirs_strength) score += 1.0;
        else if (mine_strength == theirs_strength) score += 0.5;
    }
    if (samples == 0) return {};
    return {score / static_cast<double>(samples), samples};
}

}  // namespace kelvane_app
