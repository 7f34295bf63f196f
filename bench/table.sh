#!/usr/bin/env bash
# Runs every benchmark and prints what has to hold as one table: the ratio, and what it may be at most. It fails
# nothing; a ratio beyond its bound is marked.
#
# usage: bench/table.sh [BIN_FOLDER]
set -eu
cd "$(dirname "$0")/.."
bin=${1:-build/release/bin}

# Takes lines "words ratio NUMBER (at most NUMBER)".
row() {
  awk -v name="$1" 'match($0, /ratio [0-9.]+/) {
    ratio = substr($0, RSTART + 6, RLENGTH - 6)
    match($0, /at most [0-9.]+/); bound = substr($0, RSTART + 8, RLENGTH - 8)
    if (name == "") { n = $0; sub(/:.*/, "", n) } else n = name
    printf "| %s | %s | %s |%s\n", n, ratio, bound, (ratio + 0 > bound + 0 ? " **missed**" : "")
  }'
}

echo "| What | Ratio | At most |"
echo "|---|---|---|"
"$bin/zefirondo_bench" --benchmark_color=false 2>/dev/null | awk '
  table {
    name = substr($0, 1, 42); sub(/ +$/, "", name)
    split(substr($0, 43), figure, " ")
    printf "| %s | %s | %s |%s\n", name, figure[1], figure[2], (figure[3] == "" ? "" : " **missed**")
  }
  /^Ratio/ { table = 1 }'
QT_QPA_PLATFORM=offscreen "$bin/paint_bench" 2>/dev/null | row "repaint with three curves / a plain polyline of all points"
"$bin/desktop_bench" 2>/dev/null | row ""
for project in "" "examples/maestrale-22.pro" "examples/maestrale-22.pro graphs"; do
  # shellcheck disable=SC2086
  bench/start.sh "$bin" $project | row ""
done
