// Cleaning of strategy rows for the result snapshot.

#include "session/frequency_row.h"

#include <cmath>

namespace kelvane_app {

void clean_frequency_row(std::vector<float>& row) {
    double sum = 0.0;
    for (float& value : row) {
        if (!std::isfinite(value) || value < 0.0f) value = 0.0f;
        sum += value;
    }
    if (sum > 0.0) {
        for (float& value : row) value = static_cast<float>(value / sum);
        return;
    }
    const float uniform = 1.0f / static_cast<float>(row.size());
    for (float& value : row) value = uniform;
}

}  // namespace kelvane_app
