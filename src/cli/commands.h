#pragma once
// The subcommands of orvanthis-cli: each takes the arguments after its name and returns the exit code.

#include <string>
#include <vector>

namespace kelvane_cli {

using Arguments = std::vector<std::string>;

inline constexpr int kExitOk = 0;
inline constexpr int kExitFailure = 1;
inline constexpr int kExitUsage = 2;

// Thrown by a subcommand on arguments it cannot accept; main prints the usage text and exits with 2.
struct UsageError {
    std::string message;
};

int run_eval(const Arguments& args);
int run_range(const Arguments& args);
int run_tree(const Arguments& args);
int run_estimate(const Arguments& args);
int run_solve(const Arguments& args);

}  // namespace kelvane_cli
