#!/usr/bin/env bash
# Configures and builds one build tree: build.sh DIR [cmake options...]
# With KELVANE_TARGETS set, builds only those targets.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
dir=$1
shift
cmake -S "$root" -B "$dir" -G Ninja "$@" >/dev/null
cmake --build "$dir" -j "$(nproc)" ${KELVANE_TARGETS:+--target $KELVANE_TARGETS}
