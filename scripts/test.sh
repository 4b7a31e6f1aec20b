#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test: the release build with all tests,
# the engine tests under AddressSanitizer + UndefinedBehaviorSanitizer, and the concurrent
# engine tests under ThreadSanitizer.
set -uo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
"$root/scripts/install-deps.sh" || exit 1
export QT_QPA_PLATFORM=offscreen
jobs=$(nproc)
logs=$(mktemp -d)
status=0

run_suite() {  # name build-dir ctest-args...
  local name=$1 dir=$2
  shift 2
  echo "=== $name ==="
  (cd "$dir" && ctest --output-on-failure -j "$jobs" "$@") 2>&1 | tee "$logs/$name.log"
  [ "${PIPESTATUS[0]}" -eq 0 ] || status=1
}

build() {  # dir cmake-options...
  "$root/scripts/build.sh" "$@" || { echo "Build of $1 failed"; exit 1; }
}

build "$root/build" -DCMAKE_BUILD_TYPE=Release
run_suite release "$root/build"

KELVANE_TARGETS=tests_engine build "$root/build-asan" -DCMAKE_BUILD_TYPE=RelWithDebInfo -DKELVANE_SANITIZE=ON \
  -DKELVANE_BUILD_QT=OFF -DKELVANE_BUILD_BENCH=OFF
ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1 \
  run_suite asan-ubsan "$root/build-asan" -L engine -LE heavy

KELVANE_TARGETS=app_controller_exit_test build "$root/build-asan-qt" -DCMAKE_BUILD_TYPE=RelWithDebInfo \
  -DKELVANE_SANITIZE=ON -DKELVANE_BUILD_BENCH=OFF
ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1 \
  run_suite asan-shutdown "$root/build-asan-qt" -L shutdown

KELVANE_TARGETS=tests_concurrent build "$root/build-tsan" -DCMAKE_BUILD_TYPE=RelWithDebInfo -DKELVANE_TSAN=ON \
  -DKELVANE_BUILD_QT=OFF -DKELVANE_BUILD_BENCH=OFF
TSAN_OPTIONS=halt_on_error=1 run_suite tsan "$root/build-tsan" -L concurrent -LE heavy

passed=0
failed=0
for log in "$logs"/*.log; do
  line=$(grep -E '[0-9]+% tests passed, [0-9]+ tests failed out of [0-9]+' "$log" | tail -n 1)
  [ -n "$line" ] || continue
  total=$(sed -E 's/.*out of ([0-9]+).*/\1/' <<<"$line")
  bad=$(sed -E 's/.* ([0-9]+) tests failed.*/\1/' <<<"$line")
  passed=$((passed + total - bad))
  failed=$((failed + bad))
done
echo
echo "Total: $passed passed, $failed failed"
[ "$failed" -eq 0 ] || status=1
exit $status
