// Refusing a spot too large for the memory before anything large is allocated.

#include "cli/memory_limit.h"

#include <array>
#include <cctype>
#include <charconv>
#include <limits>
#include <new>
#include <stdexcept>

#include "app/platform.h"
#include "cli/commands.h"
#include "poker/card_context.h"
#include "session/solve_result.h"
#include "solver/state_store.h"
#include "tree/plan_count.h"

namespace kelvane_cli {
namespace {

constexpr std::uint64_t kUnlimited = std::numeric_limits<std::uint64_t>::max();
constexpr const char* kOutOfMemory =
    "Out of memory: the system refused an allocation; try a smaller tree or fewer hands";

std::uint64_t suffix_factor(char suffix) {
    switch (std::toupper(static_cast<unsigned char>(suffix))) {
        case 'K': return std::uint64_t{1} << 10;
        case 'M': return std::uint64_t{1} << 20;
        case 'G': return std::uint64_t{1} << 30;
        default: return 0;
    }
}

// What the nodes counted so far will hold at the least: the card tables, the regrets and strategy sums
// of their decisions, and their snapshot. The whole estimate only adds to this.
class SolveFloor {
public:
    SolveFloor(const kelvane::CardContext& cards, bool packed)
        : context_bytes_(cards.memory_bytes()),
          hands_{cards.pockets[kelvane::kSeatOop].size(), cards.pockets[kelvane::kSeatIp].size()},
          packed_(packed) {}

    std::uint64_t operator()(const kelvane::PlanCount& count) const {
        const std::uint64_t entries = hands_[kelvane::kSeatOop] * count.seat_actions[kelvane::kSeatOop] +
                                      hands_[kelvane::kSeatIp] * count.seat_actions[kelvane::kSeatIp];
        return context_bytes_ + 2 * kelvane::store_bytes(entries, packed_) +
               count.nodes * sizeof(kelvane_app::ResultNode) + count.actions * sizeof(kelvane_app::ResultAction);
    }

private:
    std::uint64_t context_bytes_;
    std::array<std::uint64_t, 2> hands_;
    bool packed_;
};

std::string nodes_text(std::uint64_t count) {
    return std::to_string(count) + (count == 1 ? " node" : " nodes");
}

std::string limit_text(const MemoryLimit& limit) {
    return limit.source + " (" + std::to_string(limit.bytes) + " bytes)";
}

}  // namespace

std::uint64_t parse_memory_size(const std::string& text) {
    const auto refuse = [&text] {
        return UsageError{std::string(kMaxMemoryOption) +
                          " needs a whole number of bytes, optionally followed by K, M or G, not '" + text + "'"};
    };
    std::uint64_t count = 0;
    const char* const end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, count);
    if (error != std::errc() || end - rest > 1) throw refuse();
    const std::uint64_t factor = rest == end ? 1 : suffix_factor(*rest);
    if (factor == 0) throw refuse();
    if (count == 0) throw UsageError{std::string(kMaxMemoryOption) + " must be at least 1 byte (got " + text + ")"};
    if (count > kUnlimited / factor)
        throw UsageError{std::string(kMaxMemoryOption) + " is too large (got " + text + ")"};
    return count * factor;
}

MemoryLimit memory_limit(std::optional<std::uint64_t> max_memory) {
    if (max_memory) return {*max_memory, std::string("the limit set by ") + kMaxMemoryOption};
    const std::uint64_t available = kelvane_app::platform::physical_memory().available_bytes;
    if (available == 0) return {kUnlimited, "no limit"};
    return {available, "the memory available"};
}

kelvane_app::SolveMemoryEstimate checked_estimate(const kelvane_app::SolveConfig& config,
                                                  const kelvane_app::SolveSetup& setup, const MemoryLimit& limit) {
    {
        const kelvane::CardContext cards(setup.board, setup.ranges);
        const SolveFloor floor(cards, config.solver_flag);
        const kelvane::PlanCount count = kelvane::count_plan(
            setup.game, cards, [&](const kelvane::PlanCount& totals) { return floor(totals) <= limit.bytes; });
        if (!count.complete)
            throw std::runtime_error("Spot too large to solve: it needs more than " + std::to_string(floor(count)) +
                                     " bytes, above " + limit_text(limit) + "; counting stopped after " +
                                     nodes_text(count.nodes) + " of its tree");
    }
    std::string error;
    const kelvane_app::SolveMemoryEstimate estimate = kelvane_app::estimate_solve_memory(config, &error);
    if (!estimate.valid) throw std::invalid_argument(error);
    if (estimate.total_bytes > limit.bytes)
        throw std::runtime_error("Spot too large to solve: it needs " + std::to_string(estimate.total_bytes) +
                                 " bytes for a tree of " + nodes_text(estimate.node_count) + ", above " +
                                 limit_text(limit));
    return estimate;
}

std::string failure_text(const std::exception& error) {
    if (dynamic_cast<const std::bad_alloc*>(&error) != nullptr) return kOutOfMemory;
    return error.what();
}

}  // namespace kelvane_cli
