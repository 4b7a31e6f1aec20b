#include "poker/number_text.h"

#include <cerrno>
#include <cstdlib>
#include <limits>
#include <stdexcept>
#include <string>

namespace kelvane {
namespace {

// Lower-case, zero-filled, no separators: makes stray bytes such as NUL or non-breaking spaces visible.
std::string hex_bytes(std::string_view text) {
    constexpr char kDigits[] = "0123456789abcdef";
    std::string hex;
    hex.reserve(text.size() * 2);
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        hex.push_back(kDigits[byte >> 4]);
        hex.push_back(kDigits[byte & 15]);
    }
    return hex;
}

}  // namespace

double parse_double(std::string_view text) {
    const std::string owned(text);  // strtod needs a terminator
    char* end = nullptr;
    errno = 0;
    const double value = std::strtod(owned.c_str(), &end);
    if (end == owned.c_str() || errno == ERANGE || end != owned.c_str() + owned.size())
        throw std::invalid_argument("Failed to parse floating-point number from '" + owned +
                                    "' (hex=" + hex_bytes(text) + ")");
    return value;
}

std::int32_t parse_integer(std::string_view text) {
    const std::string owned(text);
    char* end = nullptr;
    errno = 0;
    const long long value = std::strtoll(owned.c_str(), &end, 10);
    if (end == owned.c_str() || errno == ERANGE || end != owned.c_str() + owned.size())
        throw std::invalid_argument("Failed to parse integer from '" + owned + "'");
    if (value < std::numeric_limits<std::int32_t>::min() || value > std::numeric_limits<std::int32_t>::max())
        throw std::out_of_range("Integer value is out of range");
    return static_cast<std::int32_t>(value);
}

}  // namespace kelvane
