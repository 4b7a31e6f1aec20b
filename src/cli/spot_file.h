#pragma once
// Reading a spot file: one JSON object holding the snake_case solve map of the pages, checked more
// strictly than the pages' own map, since nobody sees it typed.

#include <QString>

#include "session/solve_config.h"

namespace kelvane_cli {

// Spot files are a few kilobytes; anything larger is refused before it is read whole.
inline constexpr qint64 kMaxSpotFileBytes = qint64{1} << 20;

// The spot's solve configuration. Throws a std::exception whose message names the file (it can't be
// read, is larger than 1 MiB or isn't a JSON object) or the key, value, board, street, range or size at fault;
// the numbers' own limits are the solve's. Unknown keys are warned about on standard error.
kelvane_app::SolveConfig read_spot_config(const QString& path);

}  // namespace kelvane_cli
