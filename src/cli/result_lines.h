#pragma once
// Lines of play through a solve result: "Check,Bet 75%,Call,Ah" names the node reached from the
// root by those actions, the empty text the root itself.

#include <QJsonObject>

#include <string>

#include "session/solve_result.h"
#include "session/solve_session.h"

namespace kelvane_cli {

// The node's player and actions, and for a decision node its hands, action statistics and buckets
// from the live solution; or {"error"} naming the first action that isn't there.
QJsonObject line_json(const kelvane_app::SolveSession& session, const kelvane_app::SolveResult& result,
                      const std::string& line);

}  // namespace kelvane_cli
