#pragma once
// Card codes, card masks, boards, pocket indices and hand class labels.

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kelvane {

using Card = std::uint8_t;
using CardMask = std::uint64_t;

inline constexpr Card kNoCard = 255;
inline constexpr int kCardCount = 52;
inline constexpr int kRankCount = 13;
inline constexpr int kSuitCount = 4;
inline constexpr int kPocketCount = 1326;
inline constexpr int kHandClassCount = 169;

inline constexpr int kStreetFlop = 0;
inline constexpr int kStreetTurn = 1;
inline constexpr int kStreetRiver = 2;

// Three flop slots in the order the user wrote them, then turn and river.
struct BoardCards {
    std::array<Card, 3> flop{kNoCard, kNoCard, kNoCard};
    Card turn = kNoCard;
    Card river = kNoCard;
};

// Two card codes; every list built by the card context keeps the lower code first.
struct Pocket {
    Card first = kNoCard;
    Card second = kNoCard;
    friend bool operator==(const Pocket&, const Pocket&) = default;
};

constexpr int rank_of(Card card) { return card >> 2; }
constexpr int suit_of(Card card) { return card & 3; }
constexpr Card make_card(int rank, int suit) { return static_cast<Card>(rank * 4 + suit); }

// A card outside the deck, such as an undealt slot, has no bit.
constexpr CardMask card_bit(Card card) { return card < kCardCount ? CardMask{1} << card : 0; }
constexpr CardMask pocket_mask(Pocket pocket) { return card_bit(pocket.first) | card_bit(pocket.second); }

// A pocket packed into one number: first card in the low byte.
constexpr std::uint16_t pack_pocket(Pocket pocket) {
    return static_cast<std::uint16_t>(pocket.first | (pocket.second << 8));
}

int parse_rank(char character);
int parse_suit(char character);
char rank_char(int rank);
void check_card(int code);
Card parse_card(std::string_view text);
std::array<Card, 3> parse_flop(std::string_view text);
std::string card_to_string(std::int8_t code);

// The board string of a solve configuration: cut at fixed positions, extra characters ignored.
BoardCards parse_board_text(std::string_view text);
int board_street(const BoardCards& board);
CardMask board_mask(const BoardCards& board);
std::vector<Card> board_card_list(const BoardCards& board);

int pocket_index(int card_a, int card_b);
Pocket pocket_from_index(int index);

std::string hand_class_label(Pocket pocket);
const std::vector<std::string>& hand_class_grid();

}  // namespace kelvane
