#pragma once
// Seven-card hand strength from rank and suit bit masks: higher is better, equal ties.

#include <array>
#include <cstdint>
#include <span>

#include "poker/cards.h"

namespace kelvane {

using HandStrength = std::uint32_t;

inline constexpr int kCategoryShift = 26;
inline constexpr int kPrimaryShift = 13;

constexpr int strength_category(HandStrength strength) { return static_cast<int>(strength >> kCategoryShift); }

HandStrength evaluate_seven(const std::array<Card, 7>& cards);
HandStrength evaluate_on_board(Pocket pocket, std::span<const Card> board);
int hand_category(std::span<const Card> cards);

}  // namespace kelvane
