// The closing summary of orvanthis-cli solve.

#include "cli/solve_summary.h"

#include <algorithm>
#include <string>

namespace kelvane_cli {
namespace {

constexpr double kPercent = 100.0;

std::string outcome_text(const kelvane_app::SolveResult& result) {
    if (result.success) return "solved";
    return result.error == "Cancelled" ? "cancelled" : "failed (" + result.error + ")";
}

std::string root_strategy_text(const kelvane_app::SolveResult& result) {
    std::string text;
    const std::size_t count = std::min(result.root_action_names.size(), result.root_action_frequencies.size());
    for (std::size_t a = 0; a < count; ++a) {
        char frequency[32];
        std::snprintf(frequency, sizeof frequency, " %.1f%%", result.root_action_frequencies[a] * kPercent);
        text += (a == 0 ? "" : ", ") + result.root_action_names[a] + frequency;
    }
    return text.empty() ? "none" : text;
}

}  // namespace

void print_summary(std::FILE* out, const kelvane_app::SolveResult& result, double seconds) {
    std::fprintf(out, "Summary: %s %s in %.2f s, %u iterations\n", result.board.c_str(), outcome_text(result).c_str(),
                 seconds, result.iterations);
    if (!result.exploitability_measured)
        std::fputs("  exploitability: not measured\n", out);
    else if (result.starting_pot > 0)
        std::fprintf(out, "  exploitability: %.4f (%.3f%% of the pot)\n", result.exploitability,
                     static_cast<double>(result.exploitability) / result.starting_pot * kPercent);
    else
        std::fprintf(out, "  exploitability: %.4f\n", result.exploitability);
    std::fprintf(out, "  EV: OOP %.3f, IP %.3f\n", result.ev_oop, result.ev_ip);
    std::fprintf(out, "  root strategy (OOP): %s\n", root_strategy_text(result).c_str());
    std::fflush(out);
}

}  // namespace kelvane_cli
