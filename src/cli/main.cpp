// orvanthis-cli: scripting and outside checks of the engine.

#include <cstdio>
#include <string_view>

#include "cli/commands.h"

namespace {

using kelvane_cli::Arguments;

struct Command {
    std::string_view name;
    std::string_view synopsis;
    int (*run)(const Arguments&);
};

constexpr Command kCommands[] = {
    {"eval", "eval CARDS | eval --stdin      strength and category of exactly seven cards\n"
     "                                                other card counts: error, exit 1", kelvane_cli::run_eval},
    {"range", "range TEXT                      weights of a range text as JSON", kelvane_cli::run_range},
    {"tree", "tree SPOT.json                  size of the betting tree of a spot file", kelvane_cli::run_tree},
    {"estimate", "estimate SPOT.json              memory estimate of a solve as JSON", kelvane_cli::run_estimate},
    {"solve", "solve SPOT.json [--threads N] [--max-iterations N] [--target-pct P] [--compress]\n"
              "                [--showdown-early-stop] [--quiet] [--output FILE] [--line TEXT]...\n"
              "                                                solve a spot, result as JSON",
     kelvane_cli::run_solve},
};

int print_usage(std::string_view problem) {
    if (!problem.empty()) std::fprintf(stderr, "orvanthis-cli: %.*s\n", int(problem.size()), problem.data());
    std::fputs("usage: orvanthis-cli COMMAND [ARGS]\n", stderr);
    for (const Command& command : kCommands)
        std::fprintf(stderr, "  orvanthis-cli %.*s\n", int(command.synopsis.size()), command.synopsis.data());
    return kelvane_cli::kExitUsage;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2) return print_usage({});
    const std::string_view name = argv[1];
    for (const Command& command : kCommands) {
        if (command.name != name) continue;
        try {
            return command.run(Arguments(argv + 2, argv + argc));
        } catch (const kelvane_cli::UsageError& error) {
            return print_usage(error.message);
        }
    }
    return print_usage("unknown command '" + std::string(name) + "'");
}
