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
echo "No display found: evaluating an example hand and range with orvanthis-cli instead."
"$bin/orvanthis-cli" eval "AhKh Qh Jh Th 2c 3d"
exec "$bin/orvanthis-cli" range "AA,KK,QQ,JJ,TT,AK,AQs"
