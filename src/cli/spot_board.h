#pragma once
// The board and starting street of a spot file, read more strictly than the session reads them.

#include <QJsonObject>

#include <string>

namespace kelvane_cli {

// Checks that the board is three to five well-formed, distinct cards (white space between them is
// allowed) and that a named street is "flop", "turn" or "river" and fits the card count. Returns the
// street, inferred from the cards when the file names none. Throws std::invalid_argument naming the board
// or the street. A board too short to hold a flop is left to the solve, which refuses it in its own words.
std::string spot_street(const QJsonObject& spot);

}  // namespace kelvane_cli
