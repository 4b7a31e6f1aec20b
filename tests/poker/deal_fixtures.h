#pragma once
// Shared helpers for the card context tests: deals from text, random ranges, a scoped worker limit.

#include <cstdlib>
#include <optional>
#include <random>
#include <string>

#include "poker/card_context.h"
#include "poker/range_text.h"

namespace kelvane::testing {

inline constexpr const char* kWorkersVariable = "KELVANE_CARDCTX_MAX_WORKERS";

inline std::array<RangeWeights, 2> ranges_of(const std::string& oop, const std::string& ip) {
    return {parse_range_or_percent(oop), parse_range_or_percent(ip)};
}

inline CardContext deal(const std::string& board, const std::string& oop, const std::string& ip) {
    return CardContext(parse_board_text(board), ranges_of(oop, ip));
}

// Roughly `share` of all pockets get a weight in (0, 1]; the rest stay out.
inline RangeWeights random_range(std::uint32_t seed, double share) {
    std::mt19937 rng(seed);
    std::uniform_real_distribution<float> unit(0.0f, 1.0f);
    RangeWeights weights{};
    for (float& weight : weights)
        if (unit(rng) < share) weight = 1.0f - unit(rng);
    return weights;
}

inline Pocket ordered(Card a, Card b) { return a < b ? Pocket{a, b} : Pocket{b, a}; }

// Sets the worker limit for one scope and restores what was there before.
class ScopedWorkers {
public:
    explicit ScopedWorkers(const char* value) {
        if (const char* old = std::getenv(kWorkersVariable)) previous_ = old;
        if (value)
            ::setenv(kWorkersVariable, value, 1);
        else
            ::unsetenv(kWorkersVariable);
    }
    ~ScopedWorkers() {
        if (previous_)
            ::setenv(kWorkersVariable, previous_->c_str(), 1);
        else
            ::unsetenv(kWorkersVariable);
    }
    ScopedWorkers(const ScopedWorkers&) = delete;
    ScopedWorkers& operator=(const ScopedWorkers&) = delete;

private:
    std::optional<std::string> previous_;
};

}  // namespace kelvane::testing
