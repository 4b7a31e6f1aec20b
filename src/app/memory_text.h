// Memory amounts as the pages show them, in gigabytes.
#pragma once

#include <QString>
#include <cstdint>

namespace kelvane_app {

// "—" for zero, otherwise "%1 GB": one decimal below 10 GB, none from there on.
QString memoryText(std::uint64_t bytes);

}  // namespace kelvane_app
