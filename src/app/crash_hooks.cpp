// Crash hooks: each one writes its FATAL line to both logs, then lets the process end as the hook requires.
#include "app/crash_hooks.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <exception>
#include <new>

#include "app/app_log.h"
#include "app/platform.h"

namespace kelvane_app {
namespace {

constexpr std::string_view vectored_kind = "Vectored exception";
constexpr std::string_view unhandled_kind = "Unhandled SEH exception";
constexpr std::string_view terminate_text = "FATAL: std::terminate() called";
constexpr std::string_view allocation_text = "FATAL: std::new_handler invoked (out of memory)";

void on_vectored_exception(std::uint64_t code, std::uint64_t address) {
    append_to_both(exception_line(vectored_kind, code, address).view());
}

void on_unhandled_exception(std::uint64_t code, std::uint64_t address) {
    append_to_both(exception_line(unhandled_kind, code, address).view());
}

[[noreturn]] void on_terminate() {
    append_to_both(terminate_text);
    std::abort();
}

[[noreturn]] void on_allocation_failure() {
    append_to_both(allocation_text);
    std::abort();
}

void on_signal(int number) {
    append_to_both(signal_line(number).view());
    std::abort();
}

}  // namespace

CrashLine& CrashLine::append(std::string_view text) noexcept {
    const std::size_t count = std::min(text.size(), text_.size() - size_);
    text.copy(text_.data() + size_, count);
    size_ += count;
    return *this;
}

CrashLine& CrashLine::append_decimal(std::int64_t value) noexcept {
    const auto result = std::to_chars(text_.data() + size_, text_.data() + text_.size(), value);
    if (result.ec == std::errc()) size_ = static_cast<std::size_t>(result.ptr - text_.data());
    return *this;
}

CrashLine& CrashLine::append_hex(std::uint64_t value) noexcept {
    const auto result = std::to_chars(text_.data() + size_, text_.data() + text_.size(), value, 16);
    if (result.ec == std::errc()) size_ = static_cast<std::size_t>(result.ptr - text_.data());
    return *this;
}

CrashLine exception_line(std::string_view kind, std::uint64_t code, std::uint64_t address) noexcept {
    CrashLine line;
    line.append("FATAL: ")
        .append(kind)
        .append(" code=0x")
        .append_hex(code)
        .append(" addr=")
        .append_hex(address);
    return line;
}

CrashLine signal_line(int number) noexcept {
    CrashLine line;
    line.append("FATAL: C signal received sig=").append_decimal(number);
    return line;
}

void install_crash_hooks() noexcept {
    platform::install_exception_hooks(on_vectored_exception, on_unhandled_exception);
    std::set_terminate(on_terminate);
    std::set_new_handler(on_allocation_failure);
    platform::install_signal_hooks(on_signal);
}

}  // namespace kelvane_app
