// Last-gasp hooks that leave one FATAL line in both logs when the process is failing.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace kelvane_app {

// A line of bounded length composed without allocation, so that crash handlers can build their text.
class CrashLine {
  public:
    CrashLine& append(std::string_view text) noexcept;
    CrashLine& append_decimal(std::int64_t value) noexcept;
    CrashLine& append_hex(std::uint64_t value) noexcept;  // lower case, no padding, no prefix
    std::string_view view() const noexcept { return {text_.data(), size_}; }

  private:
    std::array<char, 160> text_{};
    std::size_t size_ = 0;
};

// "FATAL: <kind> code=0x<code> addr=<address>", both numbers in hexadecimal.
CrashLine exception_line(std::string_view kind, std::uint64_t code, std::uint64_t address) noexcept;

// "FATAL: C signal received sig=<number>".
CrashLine signal_line(int number) noexcept;

// Installs, in this order, the vectored exception handler and the unhandled-exception filter (where the
// system has them), the terminate hook, the allocation-failure hook and the signal hooks. Each writes its
// line through append_to_both, so the log paths are set first.
void install_crash_hooks() noexcept;

}  // namespace kelvane_app
