// Strict reading of a spot's board text and street word.

#include "cli/spot_board.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <optional>
#include <stdexcept>
#include <string_view>
#include <vector>

#include "cli/json_text.h"
#include "poker/cards.h"

namespace kelvane_cli {
namespace {

constexpr std::size_t kTokenLength = 2;
constexpr std::size_t kFlopCards = 3;
constexpr std::size_t kMostCards = 5;
constexpr std::array<std::string_view, 3> kStreetNames = {"flop", "turn", "river"};  // by street number
constexpr std::string_view kDefaultStreet = "flop";

std::string compact(const std::string& text) {
    std::string kept;
    for (const char c : text)
        if (!std::isspace(static_cast<unsigned char>(c))) kept += c;
    return kept;
}

[[noreturn]] void refuse_board(const std::string& board, const std::string& reason) {
    throw std::invalid_argument("board " + json_quoted(board) + ": " + reason);
}

kelvane::Card board_card(const std::string& board, std::string_view token) {
    try {
        return kelvane::parse_card(token);
    } catch (const std::exception&) {
        refuse_board(board, json_quoted(std::string(token)) + " is not a card");
    }
}

// The number of cards, or nothing when the text is too short for a flop.
std::optional<std::size_t> board_card_count(const std::string& board) {
    const std::string cards = compact(board);
    if (cards.size() < kFlopCards * kTokenLength) return std::nullopt;
    std::vector<kelvane::Card> seen;
    for (std::size_t at = 0; at < cards.size(); at += kTokenLength)
        seen.push_back(board_card(board, std::string_view(cards).substr(at, kTokenLength)));
    if (seen.size() > kMostCards)
        refuse_board(board, std::to_string(seen.size()) + " cards, a board has 3 to 5");
    for (auto card = seen.begin(); card != seen.end(); ++card)
        if (std::find(seen.begin(), card, *card) != card)
            refuse_board(board, kelvane::card_to_string(static_cast<std::int8_t>(*card)) + " appears twice");
    return seen.size();
}

}  // namespace

std::string spot_street(const QJsonObject& spot) {
    const std::string board = spot.value("board").toString().toStdString();
    const std::optional<std::size_t> cards = board_card_count(board);
    const QJsonValue named = spot.value("starting_street");
    if (named.isUndefined()) return std::string(cards ? kStreetNames[*cards - kFlopCards] : kDefaultStreet);

    const std::string street = named.toString().toStdString();
    const auto word = std::find(kStreetNames.begin(), kStreetNames.end(), street);
    if (word == kStreetNames.end())
        throw std::invalid_argument("starting_street " + json_quoted(street) +
                                    ": expected \"flop\", \"turn\" or \"river\"");
    const std::size_t street_cards = kFlopCards + static_cast<std::size_t>(word - kStreetNames.begin());
    if (cards && *cards != street_cards)
        throw std::invalid_argument("starting_street " + json_quoted(street) + " does not fit board " +
                                    json_quoted(board) + ", which has " + std::to_string(*cards) +
                                    " cards: a " + std::string(kStreetNames[*cards - kFlopCards]));
    return street;
}

}  // namespace kelvane_cli
