#!/usr/bin/env bash
# Compares the desktop program with an empty multi-document window of 60 fields: the time to a visible window, and
# the resident memory a second later, in alternating runs under Xvfb. Needs xvfb and xdotool.
#
# usage: bench/start.sh [BIN_FOLDER] [PROJECT [graphs]]
# With "graphs", every graph of the project is opened before its memory is read.
set -eu
bin=$(realpath "${1:-build/release/bin}")
project=${2:-}
[ -z "$project" ] || project=$(realpath "$project")
graphs=${3:-}
export DISPLAY=:83 XDG_RUNTIME_DIR=/tmp LC_ALL=C.UTF-8 QT_QPA_PLATFORM=xcb
home=$(mktemp -d)
Xvfb :83 -screen 0 1280x1024x24 >/dev/null 2>&1 &
server=$!
trap 'kill $server; rm -rf "$home"' EXIT
sleep 1

# Prints milliseconds and kilobytes of one start.
start() {
  local title=$1
  shift
  local begin=$(date +%s%N)
  HOME=$home "$@" >/dev/null 2>&1 &
  local pid=$!
  xdotool search --sync --onlyvisible --name "^$title\$" >/dev/null
  local end=$(date +%s%N)
  sleep 1
  if [ -n "$graphs" ] && [ "$title" = Zefirondo ]; then
    xdotool search --onlyvisible --name "^$title\$" windowfocus
    for letter in s m e a p; do # level, maximum level, excursion, air speed, phase: each menu leads to the others
      xdotool key alt+s
      sleep 0.2
      xdotool key $letter
      sleep 0.3
    done
    [ -z "${PICTURE:-}" ] || import -window root "$PICTURE"
  fi
  echo "$(((end - begin) / 1000000)) $(awk '/VmRSS/ {print $2}' /proc/$pid/status)"
  kill $pid
  wait $pid 2>/dev/null || true
}

median() { sort -n | awk '{v[NR] = $1} END {print v[int((NR + 1) / 2)]}'; }

cp "$bin/zefirondo" "$home/zefirondo"
for run in 1 2 3 4 5 6 7; do
  start Yardstick "$bin/empty_window" >>"$home/yardstick"
  start Zefirondo "$home/zefirondo" ${project:+"$project"} >>"$home/program"
done
with=${project:+" with a project"}${graphs:+" and every graph"}
for figure in 1 2; do
  yardstick=$(awk -v f=$figure '{print $f}' "$home/yardstick" | median)
  program=$(awk -v f=$figure '{print $f}' "$home/program" | median)
  [ $figure = 1 ] && what=start unit=ms bound=1.50 || what=memory unit=kB bound=1.40
  [ -z "$project" ] || bound=2.00
  awk -v p="$program" -v y="$yardstick" -v what="$what$with" -v unit="$unit" -v bound=$bound 'BEGIN {
    printf "%s / an empty window: %d %s, yardstick %d %s, ratio %.2f (at most %s)\n", what, p, unit, y, unit, p / y, bound
  }'
done
