#pragma once
// Whether a person is watching standard error.

namespace kelvane_cli {

bool stderr_is_terminal();

}  // namespace kelvane_cli
