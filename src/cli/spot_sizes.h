#pragma once
// The sizing texts of a spot file, read without the forgiving filter that the pages' texts go through.

#include <QJsonObject>

namespace kelvane_cli {

// Every size between the commas of the twelve sizing keys must be written only in characters the size
// grammar reads (digits, '%', '.', and the letters a, c, e, r, x): the solve drops any other character
// without a word, so "-50" would become 50%, "nan" an all-in and "75 75" 7575%. Throws
// std::invalid_argument naming the key, its text and the size.
void check_spot_sizes(const QJsonObject& spot);

}  // namespace kelvane_cli
