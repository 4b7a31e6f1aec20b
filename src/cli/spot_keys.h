#pragma once
// The keys of a spot file, each with the kind of JSON value its field takes.

#include <QJsonObject>
#include <QString>

#include <vector>

namespace kelvane_cli {

// Throws std::invalid_argument for the first key (in the file's key order) whose value is of the wrong
// type, or outside what its field can hold, naming the key and the value, as in
// "starting_pot: expected a number, got \"abc\"". Writes one warning line on standard error for each key
// that no field reads. The chip amounts are held to the solve's own limits here already, since a value
// past 32 bits could not reach the solve to be refused there.
void check_spot_keys(const QJsonObject& spot);

// The twelve keys of the sizing texts, "oop_flop_bet_sizes" to "ip_river_raise_sizes".
std::vector<QString> sizing_text_keys();

}  // namespace kelvane_cli
