#pragma once
// Strict number parsing shared by range weights and bet size tokens.

#include <cstdint>
#include <string_view>

namespace kelvane {

double parse_double(std::string_view text);
std::int32_t parse_integer(std::string_view text);

}  // namespace kelvane
