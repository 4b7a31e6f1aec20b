#pragma once
// A few lines for a person at the end of a solve; the JSON on standard output stays the record.

#include <cstdio>

#include "session/solve_result.h"

namespace kelvane_cli {

// Board, outcome, time and iterations, the exploitability or that it was never measured, both EVs and
// the root's strategy.
void print_summary(std::FILE* out, const kelvane_app::SolveResult& result, double seconds);

}  // namespace kelvane_cli
