#pragma once
// JSON values written into the tool's messages and output by hand.

#include <QJsonValue>

#include <string>

namespace kelvane_cli {

// Up to this magnitude a double holds every whole number exactly.
inline constexpr double kExactWholeLimit = 9007199254740992.0;  // 2^53

// The text as a JSON string literal, quotes and escapes included: "Ks9d", "a\"b".
std::string json_quoted(const std::string& text);

// A value as a message shows it: a string quoted, a number as short as it reads back (a whole one
// without a decimal point), true, false, null, an array, an object.
std::string describe_json(const QJsonValue& value);

}  // namespace kelvane_cli
