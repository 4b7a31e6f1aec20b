#pragma once
// The arguments of the commands that take a spot file and a memory limit only: tree and estimate.

#include <string>

#include "cli/commands.h"
#include "cli/memory_limit.h"

namespace kelvane_cli {

struct SpotArguments {
    std::string spot_path;
    MemoryLimit limit;
};

// "SPOT.json [--max-memory BYTES]" in any order; throws UsageError naming what is wrong.
SpotArguments parse_spot_arguments(const Arguments& args, const std::string& command);

}  // namespace kelvane_cli
