#!/usr/bin/env bash
# Throughput of kestrova-calc: times one batch of 100,000 request lines, a
# mix of the examples, through the built executable.
set -euo pipefail
cd "$(dirname "$0")/.."
calc=${1:-build/bin/kestrova-calc}
lines=${2:-100000}
batch=$(mktemp)
trap 'rm -f "$batch"' EXIT
examples=examples/requests.jsonl
count=$(grep -c . "$examples")
for ((i = 0; i < (lines + count - 1) / count; i++)); do cat "$examples"; done | head -n "$lines" > "$batch"
start=$(date +%s.%N)
answered=$("$calc" < "$batch" | wc -l)
end=$(date +%s.%N)
awk -v n="$answered" -v s="$start" -v e="$end" \
  'BEGIN { t = e - s; printf "%d lines answered in %.3f s: %.0f lines/s, %.1f us/line\n", n, t, n / t, 1e6 * t / n }'
