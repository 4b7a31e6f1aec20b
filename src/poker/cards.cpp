#include "poker/cards.h"

#include <algorithm>
#include <cctype>
#include <stdexcept>

namespace kelvane {
namespace {

constexpr std::string_view kRankText = "23456789TJQKA";
constexpr std::string_view kSuitText = "cdhs";
constexpr std::string_view kGridOrder = "AKQJT98765432";
constexpr const char* kCardCodeError = "Card code must be in [0, 52)";

}  // namespace

int parse_rank(char character) {
    const char upper = static_cast<char>(std::toupper(static_cast<unsigned char>(character)));
    const auto at = kRankText.find(upper);
    if (at == std::string_view::npos) throw std::invalid_argument("Invalid rank character");
    return static_cast<int>(at);
}

int parse_suit(char character) {
    const char lower = static_cast<char>(std::tolower(static_cast<unsigned char>(character)));
    const auto at = kSuitText.find(lower);
    if (at == std::string_view::npos) throw std::invalid_argument("Invalid suit character");
    return static_cast<int>(at);
}

char rank_char(int rank) {
    if (rank < 0 || rank >= kRankCount) throw std::out_of_range("Rank is out of range");
    return kRankText[static_cast<std::size_t>(rank)];
}

void check_card(int code) {
    if (code < 0 || code >= kCardCount) throw std::out_of_range(kCardCodeError);
}

Card parse_card(std::string_view text) {
    if (text.size() != 2) throw std::invalid_argument("Card token must consist of two characters");
    const int rank = parse_rank(text[0]);  // rank first, so a token bad in both places names the rank
    return make_card(rank, parse_suit(text[1]));
}

std::array<Card, 3> parse_flop(std::string_view text) {
    std::string compact;
    for (char c : text)
        if (!std::isspace(static_cast<unsigned char>(c))) compact.push_back(c);
    if (compact.size() != 6) throw std::invalid_argument("Flop string must contain exactly three cards");
    const std::string_view view = compact;
    const std::array<Card, 3> flop{parse_card(view.substr(0, 2)), parse_card(view.substr(2, 2)),
                                   parse_card(view.substr(4, 2))};
    auto sorted = flop;
    std::sort(sorted.begin(), sorted.end());
    if (sorted[1] == sorted[0] || sorted[1] == sorted[2])
        throw std::invalid_argument("Flop cards must be unique");
    return flop;
}

std::string card_to_string(std::int8_t code) {
    if (code < 0) throw std::out_of_range(kCardCodeError);
    const char rank = rank_char(code >> 2);
    return {rank, kSuitText[static_cast<std::size_t>(code & 3)]};
}

BoardCards parse_board_text(std::string_view text) {
    if (text.size() < 6) throw std::invalid_argument("Board must include at least a flop (6 chars, e.g. AhKsQd)");
    BoardCards board;
    board.flop = parse_flop(text.substr(0, 6));
    if (text.size() >= 8) board.turn = parse_card(text.substr(6, 2));
    if (text.size() >= 10) board.river = parse_card(text.substr(8, 2));
    return board;
}

int board_street(const BoardCards& board) {
    if (board.river != kNoCard) return kStreetRiver;
    if (board.turn != kNoCard) return kStreetTurn;
    return kStreetFlop;
}

CardMask board_mask(const BoardCards& board) {
    CardMask mask = card_bit(board.turn) | card_bit(board.river);
    for (Card card : board.flop) mask |= card_bit(card);
    return mask;
}

std::vector<Card> board_card_list(const BoardCards& board) {
    std::vector<Card> cards;
    for (Card card : {board.flop[0], board.flop[1], board.flop[2], board.turn, board.river})
        if (card != kNoCard) cards.push_back(card);
    return cards;
}

int pocket_index(int card_a, int card_b) {
    const int a = std::min(card_a, card_b);
    const int b = std::max(card_a, card_b);
    return (a * (101 - a)) / 2 - 1 + b;
}

Pocket pocket_from_index(int index) {
    if (index < 0 || index >= kPocketCount) throw std::out_of_range("Pocket index is out of range");
    int offset = index;
    for (int a = 0; a < kCardCount - 1; ++a) {
        const int row_length = kCardCount - 1 - a;
        if (offset < row_length) return {static_cast<Card>(a), static_cast<Card>(a + 1 + offset)};
        offset -= row_length;
    }
    throw std::logic_error("Failed to resolve pocket index");
}

std::string hand_class_label(Pocket pocket) {
    const int high = std::max(rank_of(pocket.first), rank_of(pocket.second));
    const int low = std::min(rank_of(pocket.first), rank_of(pocket.second));
    std::string label{rank_char(high), rank_char(low)};
    if (high != low) label.push_back(suit_of(pocket.first) == suit_of(pocket.second) ? 's' : 'o');
    return label;
}

const std::vector<std::string>& hand_class_grid() {
    static const std::vector<std::string> grid = [] {
        std::vector<std::string> labels;
        labels.reserve(kHandClassCount);
        for (std::size_t row = 0; row < kGridOrder.size(); ++row) {
            for (std::size_t col = 0; col < kGridOrder.size(); ++col) {
                if (row == col) labels.push_back({kGridOrder[row], kGridOrder[row]});
                else if (col > row) labels.push_back({kGridOrder[row], kGridOrder[col], 's'});
                else labels.push_back({kGridOrder[col], kGridOrder[row], 'o'});
            }
        }
        return labels;
    }();
    return grid;
}

}  // namespace kelvane
