#include "poker/card_context.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <future>
#include <memory>
#include <numeric>
#include <stdexcept>
#include <thread>

#include "poker/artifact_cache.h"

namespace kelvane {
namespace {

constexpr const char* kCodeMessage = "Card code must be in [0, 52)";
constexpr const char* kWorkersVariable = "KELVANE_CARDCTX_MAX_WORKERS";
constexpr double kNormalizationFloor = 2.220446049250313e-16;

void check_board_code(Card card) {
    if (card >= kCardCount) throw std::out_of_range(kCodeMessage);
}

void validate_board(const BoardCards& board) {
    for (Card card : board.flop) {
        if (card == kNoCard) throw std::invalid_argument("Flop cards must be defined");
        check_board_code(card);
    }
    const auto& flop = board.flop;
    if (flop[0] == flop[1] || flop[0] == flop[2] || flop[1] == flop[2])
        throw std::invalid_argument("Flop cards must be unique");
    const auto on_flop = [&](Card card) { return std::find(flop.begin(), flop.end(), card) != flop.end(); };
    if (board.turn != kNoCard) {
        check_board_code(board.turn);
        if (on_flop(board.turn)) throw std::invalid_argument("Turn conflicts with flop");
    }
    if (board.river != kNoCard) {
        check_board_code(board.river);
        if (on_flop(board.river) || board.river == board.turn)
            throw std::invalid_argument("River conflicts with existing cards");
        if (board.turn == kNoCard) throw std::invalid_argument("River cannot be dealt without a turn");
    }
}

void collect_live_pockets(const RangeWeights& range, CardMask dead, std::vector<Pocket>& pockets,
                          std::vector<float>& weights) {
    pockets.clear();
    weights.clear();
    pockets.reserve(kPocketCount);
    weights.reserve(kPocketCount);
    for (int index = 0; index < kPocketCount; ++index) {
        const float weight = range[index];
        if (!(weight > 0.0f)) continue;
        const Pocket pocket = pocket_from_index(index);
        if (pocket_mask(pocket) & dead) continue;
        pockets.push_back(pocket);
        weights.push_back(weight);
    }
    if (pockets.empty()) throw std::invalid_argument("Player range empty after filtering board cards");
}

double sum_matchups(const std::array<std::vector<Pocket>, 2>& pockets, const std::array<std::vector<float>, 2>& weights) {
    double total = 0.0;
    for (std::size_t i = 0; i < pockets[0].size(); ++i) {
        const CardMask mask = pocket_mask(pockets[0][i]);
        const double weight = weights[0][i];
        for (std::size_t j = 0; j < pockets[1].size(); ++j)
            if (!(mask & pocket_mask(pockets[1][j]))) total += weight * static_cast<double>(weights[1][j]);
    }
    return total;
}

std::uint16_t pocket_key(Pocket pocket) {
    const Card low = std::min(pocket.first, pocket.second);
    const Card high = std::max(pocket.first, pocket.second);
    return static_cast<std::uint16_t>(high << 8 | low);
}

std::vector<std::uint16_t> match_positions(const std::vector<Pocket>& own, const std::vector<Pocket>& other) {
    std::vector<std::array<std::uint16_t, 2>> sorted;  // key, position
    sorted.reserve(other.size());
    for (std::size_t position = 0; position < other.size(); ++position)
        sorted.push_back({pocket_key(other[position]), static_cast<std::uint16_t>(position)});
    std::sort(sorted.begin(), sorted.end());
    std::vector<std::uint16_t> matches(own.size(), kNoPocketPosition);
    for (std::size_t position = 0; position < own.size(); ++position) {
        const std::uint16_t key = pocket_key(own[position]);
        const auto found = std::lower_bound(sorted.begin(), sorted.end(), std::array<std::uint16_t, 2>{key, 0});
        if (found != sorted.end() && (*found)[0] == key) matches[position] = (*found)[1];
    }
    return matches;
}

std::vector<std::uint16_t> positions_avoiding(const std::vector<Pocket>& pockets, CardMask cards) {
    std::vector<std::uint16_t> positions;
    positions.reserve(pockets.size());
    for (std::size_t position = 0; position < pockets.size(); ++position)
        if (!(pocket_mask(pockets[position]) & cards)) positions.push_back(static_cast<std::uint16_t>(position));
    return positions;
}

}  // namespace

CardContext::CardContext(const BoardCards& board_cards, const std::array<RangeWeights, 2>& seat_ranges)
    : board(board_cards), ranges(seat_ranges) {
    validate_board(board);
    dead_cards = board_mask(board);
    board_list = board_card_list(board);
    street = static_cast<std::uint8_t>(board_street(board));

    cache_key = deal_cache_key(board, ranges);
    if (const SharedArtifacts cached = find_artifacts(cache_key)) {
        adopt(*cached);
        return;
    }

    rebuild_private();
    total_matchups = sum_matchups(pockets, weights);
    for (int seat = 0; seat < 2; ++seat) same_pocket[seat] = match_positions(pockets[seat], pockets[1 - seat]);
    showdown_rows = build_showdown_rows(board, pockets, card_workers());
    build_blocker_lists();
    build_reach();
    suit_symmetry = build_suit_symmetry(board, ranges, pockets);
    remember_artifacts(cache_key, std::make_shared<const CachedArtifacts>(artifacts()));
}

void CardContext::rebuild_private() {
    if (card_workers() < 2) {
        for (int seat = 0; seat < 2; ++seat) collect_live_pockets(ranges[seat], dead_cards, pockets[seat], weights[seat]);
        return;
    }
    std::array<std::future<void>, 2> tasks;
    for (int seat = 0; seat < 2; ++seat)
        tasks[seat] = std::async(std::launch::async, collect_live_pockets, std::cref(ranges[seat]), dead_cards,
                                 std::ref(pockets[seat]), std::ref(weights[seat]));
    for (auto& task : tasks) task.wait();
    for (auto& task : tasks) task.get();
}

void CardContext::build_blocker_lists() {
    const CardMask flop_cards = board_mask({board.flop, kNoCard, kNoCard});
    const bool turn_dealt = board.turn != kNoCard;
    const bool river_dealt = board.river != kNoCard;
    for (int seat = 0; seat < 2; ++seat) {
        all_pockets[seat].resize(pockets[seat].size());
        std::iota(all_pockets[seat].begin(), all_pockets[seat].end(), std::uint16_t{0});
    }
    pockets_without_card.assign(kCardCount, {});
    for (int card = 0; card < kCardCount; ++card) {
        if ((flop_cards & card_bit(card)) || (turn_dealt && card != board.turn)) continue;
        for (int seat = 0; seat < 2; ++seat)
            pockets_without_card[card][seat] = positions_avoiding(pockets[seat], card_bit(card));
    }
    pockets_without_pair.assign(kPocketCount, {});
    for (int low = 0; low < kCardCount; ++low) {
        for (int high = low + 1; high < kCardCount; ++high) {
            const CardMask pair = card_bit(low) | card_bit(high);
            if (flop_cards & pair) continue;
            if (river_dealt ? pair != (card_bit(board.turn) | card_bit(board.river))
                            : turn_dealt && !(pair & card_bit(board.turn)))
                continue;
            for (int seat = 0; seat < 2; ++seat)
                pockets_without_pair[pocket_index(low, high)][seat] = positions_avoiding(pockets[seat], pair);
        }
    }
}

void CardContext::build_reach() {
    std::array<double, 2> total{};
    std::array<std::array<double, kCardCount>, 2> card_weight{};
    for (int seat = 0; seat < 2; ++seat) {
        for (std::size_t i = 0; i < pockets[seat].size(); ++i) {
            const double weight = weights[seat][i];
            if (!(weight > 0.0)) continue;
            total[seat] += weight;
            card_weight[seat][pockets[seat][i].first] += weight;
            card_weight[seat][pockets[seat][i].second] += weight;
        }
    }
    for (int seat = 0; seat < 2; ++seat) {
        const int other = 1 - seat;
        reach_matchups[seat].assign(pockets[seat].size(), 0.0f);
        double sum = 0.0;
        for (std::size_t i = 0; i < pockets[seat].size(); ++i) {
            const Pocket pocket = pockets[seat][i];
            const double weight = weights[seat][i];
            const std::uint16_t twin = same_pocket[seat][i];
            const double same = twin != kNoPocketPosition ? weights[other][twin] : 0.0;
            // Inclusion and exclusion: the identical pocket was subtracted twice.
            const double meet = same + total[other] - card_weight[other][pocket.first] - card_weight[other][pocket.second];
            if (weight > 0.0 && meet > 0.0) {
                reach_matchups[seat][i] = static_cast<float>(meet * weight);
                sum += meet * weight;
            }
        }
        reach_normalized[seat] = reach_matchups[seat];
        if (sum > kNormalizationFloor) {
            const float scale = static_cast<float>(1.0 / sum);
            for (float& reach : reach_normalized[seat]) reach *= scale;
        }
    }
}

CardContext::CachedArtifacts CardContext::artifacts() const {
    return {pockets,       weights,     reach_normalized,     reach_matchups,       same_pocket,   showdown_rows,
            suit_symmetry, all_pockets, pockets_without_card, pockets_without_pair, total_matchups};
}

void CardContext::adopt(const CachedArtifacts& cached) {
    pockets = cached.pockets;
    weights = cached.weights;
    reach_normalized = cached.reach_normalized;
    reach_matchups = cached.reach_matchups;
    same_pocket = cached.same_pocket;
    showdown_rows = cached.showdown_rows;
    suit_symmetry = cached.suit_symmetry;
    all_pockets = cached.all_pockets;
    pockets_without_card = cached.pockets_without_card;
    pockets_without_pair = cached.pockets_without_pair;
    total_matchups = cached.total_matchups;
}

const ShowdownRow& CardContext::showdown_row(Card turn, Card river) const {
    static const ShowdownRow kEmptyRow;
    if (turn == kNoCard || river == kNoCard) return kEmptyRow;
    const int index = pocket_index(turn, river);
    if (index < 0 || static_cast<std::size_t>(index) >= showdown_rows.size()) return kEmptyRow;
    return showdown_rows[index];
}

namespace {

template <typename T>
std::size_t list_bytes(const std::vector<T>& list) {
    return list.capacity() * sizeof(T);
}

template <typename T, std::size_t N>
std::size_t list_bytes(const std::array<std::vector<T>, N>& lists) {
    std::size_t bytes = 0;
    for (const auto& list : lists) bytes += list_bytes(list);
    return bytes;
}

template <typename T, std::size_t N>
std::size_t list_bytes(const std::vector<std::array<std::vector<T>, N>>& table) {
    std::size_t bytes = list_bytes<std::array<std::vector<T>, N>>(table);
    for (const auto& lists : table) bytes += list_bytes(lists);
    return bytes;
}

std::size_t symmetry_bytes(const SuitSymmetry& symmetry) {
    std::size_t bytes = list_bytes(symmetry.turn_child_of_skipped) + list_bytes(symmetry.turn_skipped) +
                        list_bytes(symmetry.river_child_of_skipped) + list_bytes(symmetry.river_skipped);
    for (const auto& lists : symmetry.river_child_of_skipped) bytes += list_bytes(lists);
    for (const auto& seats : symmetry.turn_swaps) bytes += list_bytes(seats);
    for (const auto& by_suit : symmetry.river_swaps)
        for (const auto& seats : by_suit) bytes += list_bytes(seats);
    return bytes;
}

}  // namespace

std::size_t CardContext::memory_bytes() const {
    return list_bytes(pockets) + list_bytes(weights) + list_bytes(reach_normalized) + list_bytes(reach_matchups) +
           list_bytes(board_list) + symmetry_bytes(suit_symmetry) + list_bytes(showdown_rows) +
           list_bytes(same_pocket) + list_bytes(all_pockets) + list_bytes(pockets_without_card) +
           list_bytes(pockets_without_pair);
}

std::size_t CardContext::card_workers() {
    const std::size_t fallback = std::max(1u, std::thread::hardware_concurrency());
    const char* text = std::getenv(kWorkersVariable);
    if (!text) return fallback;
    char* end = nullptr;
    errno = 0;
    const long value = std::strtol(text, &end, 10);
    if (end == text || errno == ERANGE || value <= 0) return fallback;
    return static_cast<std::size_t>(value);
}

}  // namespace kelvane
