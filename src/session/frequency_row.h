#pragma once
// Turns a raw strategy row into one that is safe to show: finite, non-negative, summing to 1.

#include <vector>

namespace kelvane_app {

// Bad entries count 0; a row with nothing left becomes uniform; an empty row stays empty.
void clean_frequency_row(std::vector<float>& row);

}  // namespace kelvane_app
