#pragma once
// The snake_case solve map of the pages read into a SolveConfig, with the defaults of a missing key.

#include <QString>
#include <QVariantMap>

#include "session/solve_config.h"

namespace kelvane_app {

// Whitespace removed, then pairs kept only as rank and suit ("as kd 7h" -> "AsKd7h"); other pairs drop.
QString normalizeBoardText(const QString& text);

// Every key but "apply_node_locks": node_locks stays empty, for the caller to fill when that key asks.
SolveConfig solveConfigFromMap(const QVariantMap& map);

}  // namespace kelvane_app
