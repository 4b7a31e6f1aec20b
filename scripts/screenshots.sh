#!/usr/bin/env bash
# Renders the real window headless at 1600x1000 and writes one PNG per page and state into OUTDIR, one
# document of tests/qml/screenshots/ after the other:
#   screenshots.sh OUTDIR
# KELVANE_BUILD_DIR names the build tree to use (default: build/ of the repository); the QML test runner is
# built there first if it is missing or out of date.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
if [ $# -ne 1 ]; then
  echo "usage: $0 OUTDIR" >&2
  exit 2
fi
mkdir -p "$1"
out=$(cd "$1" && pwd)
build=${KELVANE_BUILD_DIR:-$root/build}

if [ ! -f "$build/CMakeCache.txt" ]; then
  cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release >/dev/null
fi
cmake --build "$build" -j "$(nproc)" --target kelvane_qml_tests

# A virtual X server with Mesa's OpenGL draws what a real screen draws, the shader effects (tinted icons,
# shadows) included; the offscreen platform has no OpenGL and leaves them out.
status=0
for document in "$root"/tests/qml/screenshots/*.qml; do
  shots=("$build/bin/kelvane_qml_tests" -input "$document")
  if command -v xvfb-run >/dev/null; then
    KELVANE_SCREENSHOT_DIR="$out" QT_QPA_PLATFORM=xcb xvfb-run -a -s "-screen 0 1920x1200x24" "${shots[@]}" || status=1
  else
    echo "xvfb-run is missing: icons and shadows will not show" >&2
    KELVANE_SCREENSHOT_DIR="$out" QT_QPA_PLATFORM=offscreen "${shots[@]}" || status=1
  fi
done
echo "Screenshots in $out"
exit $status
