#!/usr/bin/env bash
# Times whole solves of the spot files with orvanthis-cli at 1 and 2 threads and prints a table.
# usage: bench/solve_spots.sh [BUILD_DIR] [SPOT...]   (spots default to river turn default anchor)
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=${1:-$root/build}
shift || true
spots=("$@")
[ ${#spots[@]} -gt 0 ] || spots=(river turn default anchor)
cli="$build/bin/orvanthis-cli"
[ -x "$cli" ] || { echo "missing $cli: build first" >&2; exit 2; }
out=$(mktemp -d)

printf '%-8s %3s %9s %12s %12s %10s %6s %9s %11s %10s %10s\n' \
  spot thr nodes estimate peak_rss ms/iter iters seconds exploit_pct ev_oop ev_ip
for spot in "${spots[@]}"; do
  for threads in 1 2; do
    json="$out/$spot-$threads.json"
    "$cli" solve "$root/bench/spots/$spot.json" --threads "$threads" --quiet --output "$json" || true
    python3 - "$json" "$spot" "$threads" <<'PY'
import json, sys
path, spot, threads = sys.argv[1:]
r = json.load(open(path))
mib = 1 << 20
print(f"{spot:<8} {threads:>3} {r.get('node_count', 0):>9} {r.get('estimate_bytes', 0) / mib:>10.1f}Mi "
      f"{r.get('peak_rss_bytes', 0) / mib:>10.1f}Mi {r.get('ms_per_iteration', 0):>10.2f} {r.get('iterations', 0):>6} "
      f"{(r.get('build_ms', 0) + r.get('solve_ms', 0)) / 1000:>9.2f} {r.get('exploitability_pct', 0):>11.3f} "
      f"{r.get('ev_oop', 0):>10.3f} {r.get('ev_ip', 0):>10.3f}" + ("" if r.get("success") else f"  ({r.get('error')})"))
PY
  done
done
