#pragma once
// Range text such as "AA,KK:0.5,AQs+,T9s-65s" or "37.5%" as a table of 1326 pocket weights.

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

#include "poker/cards.h"

namespace kelvane {

using RangeWeights = std::array<float, kPocketCount>;

enum class Suitedness : std::uint32_t { any = 0, suited = 1, offsuit = 2, exact = 3 };

struct ComboPattern {
    std::uint8_t high_rank = 0;
    std::uint8_t low_rank = 0;
    Suitedness suitedness = Suitedness::any;
    std::uint8_t suit_a = 0;
    std::uint8_t suit_b = 0;
};

RangeWeights parse_range_text(std::string_view text);
RangeWeights parse_range_or_percent(std::string_view text);
ComboPattern parse_combo(std::string_view text);
std::vector<int> expand_combo(const ComboPattern& pattern);
void set_pocket_weight(RangeWeights& weights, int card_a, int card_b, float weight);
float get_pocket_weight(const RangeWeights& weights, int card_a, int card_b);

}  // namespace kelvane
