// Limits of a solve's numbers, each refused in one sentence that names the field and the value.

#include "session/solve_validation.h"

#include <charconv>
#include <cmath>
#include <stdexcept>
#include <string>

namespace kelvane_app {
namespace {

// The shortest text that reads back as the same value: 101, 0.5, -1e+308, nan.
std::string number_text(double value) {
    char text[32];
    const auto end = std::to_chars(text, text + sizeof text, value).ptr;
    return std::string(text, end);
}

[[noreturn]] void refuse(const std::string& field, const std::string& rule, const std::string& value) {
    throw std::out_of_range(field + " must be " + rule + " (got " + value + ")");
}

}  // namespace

void check_chip_amounts(std::int64_t starting_pot, std::int64_t effective_stack) {
    if (starting_pot < 1) refuse("starting_pot", "at least 1", std::to_string(starting_pot));
    if (starting_pot > kMaxChipTotal)
        refuse("starting_pot", "at most " + std::to_string(kMaxChipTotal), std::to_string(starting_pot));
    if (effective_stack < 0) refuse("effective_stack", "at least 0", std::to_string(effective_stack));
    const std::int64_t most_stack = (kMaxChipTotal - starting_pot) / 2;
    if (effective_stack > most_stack)
        refuse("effective_stack",
               "at most " + std::to_string(most_stack) + " with a starting_pot of " +
                   std::to_string(starting_pot),
               std::to_string(effective_stack));
}

void check_rake(double rake_percent, double rake_cap) {
    // Written so that NaN fails too: it is neither at least 0 nor at most 100.
    if (!(rake_percent >= 0.0 && rake_percent <= kMaxRakePercent))
        refuse("rake_percent", "from 0 to " + number_text(kMaxRakePercent), number_text(rake_percent));
    if (!std::isfinite(rake_cap)) refuse("rake_cap", "a finite number", number_text(rake_cap));
    if (rake_cap < 0.0) refuse("rake_cap", "at least 0", number_text(rake_cap));
}

void check_thread_count(std::uint64_t thread_count) {
    if (thread_count > kMaxThreadCount)
        refuse("thread_count", "at most " + std::to_string(kMaxThreadCount), std::to_string(thread_count));
}

kelvane::BoardCards validate_solve_config(const SolveConfig& config) {
    const kelvane::BoardCards board = kelvane::parse_board_text(config.board);
    check_chip_amounts(config.starting_pot, config.effective_stack);
    check_rake(config.rake_percent, config.rake_cap);
    check_thread_count(config.thread_count);
    return board;
}

}  // namespace kelvane_app
