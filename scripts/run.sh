#!/usr/bin/env bash
# Installs what is missing, builds the release tree and starts Orvanthis.
# Without a display it solves the default spot with the command-line tool instead.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
"$root/scripts/install-deps.sh"
"$root/scripts/build.sh" "$root/build" -DCMAKE_BUILD_TYPE=Release
bin="$root/build/bin"
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec "$bin/orvanthis" "$@"
fi
echo "No display found: solving the default spot with orvanthis-cli instead."
exec "$bin/orvanthis-cli" solve "$root/bench/spots/default.json" --threads "$(nproc)" --line ""
