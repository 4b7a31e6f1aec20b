// orvanthis-cli: scripting and outside checks of the engine.

#include <algorithm>
#include <cstdio>
#include <new>
#include <string_view>

#include "cli/commands.h"

namespace {

using kelvane_cli::Arguments;

constexpr std::string_view kVersion = ORVANTHIS_VERSION;
constexpr std::string_view kHelpOptions[] = {"--help", "-h"};

struct Command {
    std::string_view name;
    std::string_view synopsis;
    std::string_view help;  // the command's own page, after its synopsis
    int (*run)(const Arguments&);
};

constexpr Command kCommands[] = {
    {"eval", "eval CARDS | eval --stdin      strength and category of exactly seven cards\n"
     "                                                other card counts: error, exit 1",
     "Evaluates seven distinct cards, given as arguments (\"AhKh Qh Jh Th 2c 3d\") or, with --stdin,\n"
     "one hand a line. Prints the strength (higher is better, equal ties) and the category.\n"
     "Other card counts, unknown or duplicate cards: an error on standard error and exit 1.\n",
     kelvane_cli::run_eval},
    {"range", "range TEXT                      weights of a range text as JSON",
     "Reads a range text (\"AA,KK:0.5,AQs+\", \"22+,A2s+\", \"15%\") and prints, as JSON, its pockets,\n"
     "combos and the weight of each hand class. A text that can't be read: ok false, exit 1.\n",
     kelvane_cli::run_range},
    {"tree", "tree SPOT.json [--max-memory BYTES]\n"
             "                                                size of the betting tree of a spot file",
     "Builds the betting tree of a spot file and prints its node counts and build time as JSON.\n"
     "  --max-memory BYTES  refuse a spot whose solve would need more memory than this (K, M or G\n"
     "                      suffixes allowed); by default, the memory the system has available.\n"
     "A spot too large is refused, before its tree is built, with its bytes and node count.\n",
     kelvane_cli::run_tree},
    {"estimate", "estimate SPOT.json [--max-memory BYTES]\n"
                 "                                                memory estimate of a solve as JSON",
     "Prints, as JSON, the memory a solve of the spot would take, part by part.\n"
     "  --max-memory BYTES  refuse a spot whose solve would need more than this (K, M or G\n"
     "                      suffixes allowed); by default, the memory the system has available.\n",
     kelvane_cli::run_estimate},
    {"solve", "solve SPOT.json [--threads N] [--max-iterations N] [--target-pct P] [--compress]\n"
              "                [--showdown-early-stop] [--quiet] [--max-memory BYTES] [--output FILE]\n"
              "                [--line TEXT]...\n"
              "                                                solve a spot, result as JSON",
     "Solves a spot file and prints the result as JSON on standard output. Progress goes to standard\n"
     "error: on a terminal one line rewritten in place, otherwise the solver's status texts one a line;\n"
     "a short summary follows at the end.\n"
     "  --threads N            solver threads, 0 to 1024 (0 and 1: no pool)\n"
     "  --max-iterations N     iteration limit (overrides the spot file)\n"
     "  --target-pct P         stop once exploitability is at most P% of the starting pot\n"
     "  --compress             keep regrets and strategy sums in 16 bits\n"
     "  --showdown-early-stop  the older, inexact showdown payoff, for comparison\n"
     "  --quiet                neither progress nor summary\n"
     "  --max-memory BYTES     refuse a spot whose solve would need more (K, M or G suffixes\n"
     "                         allowed); by default, the memory the system has available\n"
     "  --output FILE          write the JSON to FILE instead, all or nothing\n"
     "  --line TEXT            add the node reached by the comma-separated actions, as in\n"
     "                         \"Check,Bet 75%\" (the empty text is the root); repeatable\n"
     "Interrupt (Ctrl+C) or SIGTERM once to stop and still get the result reached so far (exit 1);\n"
     "interrupt twice to quit at once (exit 130).\n",
     kelvane_cli::run_solve},
};

void print_synopsis(std::FILE* out, const Command& command) {
    std::fprintf(out, "  orvanthis-cli %.*s\n", int(command.synopsis.size()), command.synopsis.data());
}

void print_overview(std::FILE* out) {
    std::fputs("usage: orvanthis-cli COMMAND [ARGS]\n", out);
    for (const Command& command : kCommands) print_synopsis(out, command);
}

int print_usage(std::string_view problem) {
    if (!problem.empty()) std::fprintf(stderr, "orvanthis-cli: %.*s\n", int(problem.size()), problem.data());
    print_overview(stderr);
    std::fputs("Run 'orvanthis-cli --help' or 'orvanthis-cli COMMAND --help' for more.\n", stderr);
    return kelvane_cli::kExitUsage;
}

int print_help() {
    print_overview(stdout);
    std::fputs("\n  orvanthis-cli COMMAND --help   the options of one command\n"
               "  orvanthis-cli --version        the version\n"
               "Exit codes: 0 done, 1 failed (the reason on standard error or in the JSON), 2 bad usage.\n",
               stdout);
    return kelvane_cli::kExitOk;
}

int print_command_help(const Command& command) {
    std::fputs("usage:\n", stdout);
    print_synopsis(stdout, command);
    std::fputs("\n", stdout);
    std::fwrite(command.help.data(), 1, command.help.size(), stdout);
    return kelvane_cli::kExitOk;
}

bool asks_for_help(const Arguments& args) {
    return std::any_of(args.begin(), args.end(), [](const std::string& arg) {
        return std::find(std::begin(kHelpOptions), std::end(kHelpOptions), arg) != std::end(kHelpOptions);
    });
}

int run_command(const Command& command, const Arguments& args) {
    if (asks_for_help(args)) return print_command_help(command);
    try {
        return command.run(args);
    } catch (const kelvane_cli::UsageError& error) {
        return print_usage(error.message);
    } catch (const std::bad_alloc&) {
        // The commands refuse what won't fit before building it; this is the last resort.
        std::fputs("orvanthis-cli: out of memory: the system refused an allocation\n", stderr);
        return kelvane_cli::kExitFailure;
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2) return print_usage({});
    const std::string_view name = argv[1];
    if (std::find(std::begin(kHelpOptions), std::end(kHelpOptions), name) != std::end(kHelpOptions))
        return print_help();
    if (name == "--version") {
        std::printf("orvanthis-cli %.*s\n", int(kVersion.size()), kVersion.data());
        return kelvane_cli::kExitOk;
    }
    for (const Command& command : kCommands)
        if (command.name == name) return run_command(command, Arguments(argv + 2, argv + argc));
    return print_usage("unknown command '" + std::string(name) + "'");
}
