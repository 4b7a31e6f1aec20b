// One spot file and an optional memory limit.

#include "cli/spot_arguments.h"

#include <optional>

namespace kelvane_cli {

SpotArguments parse_spot_arguments(const Arguments& args, const std::string& command) {
    SpotArguments parsed;
    std::optional<std::uint64_t> max_memory;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& arg = args[i];
        if (arg == kMaxMemoryOption) {
            if (i + 1 >= args.size()) throw UsageError{arg + " needs a value"};
            max_memory = parse_memory_size(args[++i]);
        } else if (arg.rfind("--", 0) == 0) {
            throw UsageError{"unknown option '" + arg + "'"};
        } else if (parsed.spot_path.empty()) {
            parsed.spot_path = arg;
        } else {
            throw UsageError{command + " takes one spot file"};
        }
    }
    if (parsed.spot_path.empty()) throw UsageError{command + " takes one spot file"};
    parsed.limit = memory_limit(max_memory);
    return parsed;
}

}  // namespace kelvane_cli
