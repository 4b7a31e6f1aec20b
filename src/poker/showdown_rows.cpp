#include "poker/showdown_rows.h"

#include <algorithm>
#include <exception>
#include <thread>

#include "poker/hand_evaluator.h"

namespace kelvane {
namespace {

using Runout = std::array<Card, 2>;  // lower code first

std::vector<Runout> runouts_to_tabulate(const BoardCards& board) {
    const CardMask dead = board_mask(board);
    std::vector<Runout> runouts;
    if (board.turn == kNoCard) {
        for (int low = 0; low < kCardCount; ++low)
            for (int high = low + 1; high < kCardCount; ++high)
                if (!(dead & (card_bit(low) | card_bit(high))))
                    runouts.push_back({static_cast<Card>(low), static_cast<Card>(high)});
    } else if (board.river == kNoCard) {
        for (int other = 0; other < kCardCount; ++other)
            if (!(dead & card_bit(other)))
                runouts.push_back({std::min(board.turn, static_cast<Card>(other)),
                                   std::max(board.turn, static_cast<Card>(other))});
    } else {
        runouts.push_back({std::min(board.turn, board.river), std::max(board.turn, board.river)});
    }
    return runouts;
}

// Every pocket of either seat, and where each pocket index stands in each seat's list.
struct PocketTable {
    std::vector<std::uint16_t> indices;  // ascending
    std::vector<Pocket> pockets;         // same order
    std::array<std::array<std::uint16_t, kPocketCount>, 2> position_of;
    std::array<std::size_t, 2> seat_size;
};

PocketTable pocket_table(const std::array<std::vector<Pocket>, 2>& pockets) {
    PocketTable table;
    std::array<bool, kPocketCount> held{};
    for (int seat = 0; seat < 2; ++seat) {
        table.position_of[seat].fill(kNoPocketPosition);
        table.seat_size[seat] = pockets[seat].size();
        for (std::size_t position = 0; position < pockets[seat].size(); ++position) {
            const int index = pocket_index(pockets[seat][position].first, pockets[seat][position].second);
            table.position_of[seat][index] = static_cast<std::uint16_t>(position);
            held[index] = true;
        }
    }
    for (int index = 0; index < kPocketCount; ++index) {
        if (!held[index]) continue;
        table.indices.push_back(static_cast<std::uint16_t>(index));
        table.pockets.push_back(pocket_from_index(index));
    }
    return table;
}

// A pocket held by both seats is evaluated and sorted once per runout. Positions ascend with
// pocket index in both lists, so order by (value, index) is order by (value, position) in each.
void build_rows(const BoardCards& board, const PocketTable& table, const std::vector<Runout>& runouts,
                std::size_t begin, std::size_t end, std::vector<ShowdownRow>& rows) {
    std::vector<std::uint64_t> order;  // value << 16 | pocket index
    order.reserve(table.indices.size());
    for (std::size_t i = begin; i < end; ++i) {
        const Runout& runout = runouts[i];
        const std::array<Card, 5> complete{board.flop[0], board.flop[1], board.flop[2], runout[0], runout[1]};
        const CardMask runout_cards = card_bit(runout[0]) | card_bit(runout[1]);
        order.clear();
        for (std::size_t k = 0; k < table.indices.size(); ++k) {
            const Pocket pocket = table.pockets[k];
            if (pocket_mask(pocket) & runout_cards) continue;
            const std::uint64_t value = evaluate_on_board(pocket, complete) + 1;
            order.push_back(value << 16 | table.indices[k]);
        }
        std::sort(order.begin(), order.end());
        ShowdownRow& row = rows[pocket_index(runout[0], runout[1])];
        for (int seat = 0; seat < 2; ++seat) {
            std::vector<ShowdownEntry>& entries = row[seat];
            entries.reserve(table.seat_size[seat] + 2);
            entries.push_back(kLowSentinel);
            for (std::uint64_t key : order) {
                const std::uint16_t position = table.position_of[seat][key & 0xFFFF];
                if (position != kNoPocketPosition) entries.push_back({static_cast<std::uint32_t>(key >> 16), position});
            }
            entries.push_back(kHighSentinel);
        }
    }
}

}  // namespace

std::vector<ShowdownRow> build_showdown_rows(const BoardCards& board, const std::array<std::vector<Pocket>, 2>& pockets,
                                             std::size_t max_workers) {
    std::vector<ShowdownRow> rows(kPocketCount);
    const std::vector<Runout> runouts = runouts_to_tabulate(board);
    const PocketTable table = pocket_table(pockets);
    const std::size_t count = runouts.size();
    const std::size_t workers = std::min(std::max<std::size_t>(count, 1), max_workers);
    if (workers < 2) {
        build_rows(board, table, runouts, 0, count, rows);
        return rows;
    }
    // Each row belongs to exactly one chunk, so the threads write disjoint rows without a lock.
    const std::size_t chunk = (count - 1 + workers) / workers;
    std::vector<std::thread> threads;
    std::vector<std::exception_ptr> failures(workers);
    for (std::size_t w = 0; w < workers && w * chunk < count; ++w) {
        const std::size_t begin = w * chunk;
        const std::size_t end = std::min(count, begin + chunk);
        threads.emplace_back([&, w, begin, end] {
            try {
                build_rows(board, table, runouts, begin, end, rows);
            } catch (...) {
                failures[w] = std::current_exception();
            }
        });
    }
    for (std::thread& thread : threads) thread.join();
    for (const std::exception_ptr& failure : failures)
        if (failure) std::rethrow_exception(failure);
    return rows;
}

}  // namespace kelvane
