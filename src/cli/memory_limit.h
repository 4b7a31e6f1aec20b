#pragma once
// The memory a command may plan a solve for: what the system has available, or what --max-memory
// allows. A spot whose solve needs more is refused before its tree is built.

#include <cstdint>
#include <exception>
#include <optional>
#include <string>

#include "session/memory_estimate.h"
#include "session/solve_config.h"
#include "session/solve_setup.h"

namespace kelvane_cli {

inline constexpr const char* kMaxMemoryOption = "--max-memory";

struct MemoryLimit {
    std::uint64_t bytes = 0;
    std::string source;  // how the message names where the limit came from
};

// A --max-memory value: a whole number of bytes, or of K, M or G (powers of 1024), at least 1 byte.
// Throws UsageError naming the text.
std::uint64_t parse_memory_size(const std::string& text);

// The explicit limit when there is one, else the memory the system has available; when the system
// doesn't tell, nothing is refused.
MemoryLimit memory_limit(std::optional<std::uint64_t> max_memory);

// The solve's memory estimate, once it is known to fit. The tree is counted without being built, and
// the count stops as soon as the nodes seen so far can't fit. Throws std::runtime_error giving the bytes
// and the node count when the spot is too large; `setup` is what the config's texts stand for.
kelvane_app::SolveMemoryEstimate checked_estimate(const kelvane_app::SolveConfig& config,
                                                  const kelvane_app::SolveSetup& setup, const MemoryLimit& limit);

// An exception's message for the user; an allocation failure is named in words instead of "std::bad_alloc".
std::string failure_text(const std::exception& error);

}  // namespace kelvane_cli
