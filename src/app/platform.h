// Operating-system calls of the application: crash-safe log appends, crash hooks, memory and processors.
#pragma once

#include <cstdint>
#include <string_view>

namespace kelvane_app::platform {

// Receives the exception code and the faulting address from an exception hook.
using ExceptionHook = void (*)(std::uint64_t code, std::uint64_t address);
using SignalHook = void (*)(int signal_number);

// Appends line and a carriage return, line feed to the file at path (UTF-8, null-terminated),
// creating it if missing. Opens, writes once and closes, and takes no lock, so that it works inside
// a crash handler on any thread and lines from two threads interleave whole. Failures are ignored;
// an empty path does nothing.
void append_line(std::string_view line, const char* path) noexcept;

// Hooks called with every processor or language exception before any handler runs (vectored) and
// with an exception that nothing handled. Only Windows has these stages.
void install_exception_hooks(ExceptionHook vectored, ExceptionHook unhandled) noexcept;

// Hooks SIGABRT, SIGSEGV, SIGILL and SIGFPE, in this order.
void install_signal_hooks(SignalHook hook) noexcept;

// Both zero when the system does not tell.
struct PhysicalMemory {
    std::uint64_t total_bytes = 0;
    std::uint64_t available_bytes = 0;
};

PhysicalMemory physical_memory() noexcept;

// Logical processors this process may run on; at least 1.
unsigned logical_processor_count() noexcept;

}  // namespace kelvane_app::platform
