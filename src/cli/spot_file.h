#pragma once
// Reading a spot file: one JSON object holding the snake_case solve map of the pages.

#include <QString>
#include <QVariantMap>

namespace kelvane_cli {

// Throws std::runtime_error naming the file when it can't be read or isn't a JSON object.
QVariantMap read_spot_file(const QString& path);

}  // namespace kelvane_cli
