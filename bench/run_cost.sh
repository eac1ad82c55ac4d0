#!/usr/bin/env bash
# What a run costs beside the solver's own time: waits for the disk and questions about files of one
# run, and the time that a project takes above the solver alone, for 1, 10, 100 and more projects in
# one call. The solver writes its four outputs at once and ends. Medians of interleaved rounds. Ends
# with 1 when a goal is missed: 5 waits and 60 questions, 20 ms a project above the solver, and no
# number of projects more than 1.5 times as dear for each of them as one alone; or, with the reason,
# when a run fails or leaves a project without its outputs.
#
#   bench/run_cost.sh [FOLDER OF barvon-run] [ROUNDS] [MOST PROJECTS]
#
# Counting needs strace; without it only the times are printed. More than 100 projects are measured
# in every seventh round alone. 10 are the fewest, as the others are compared with them.
set -euo pipefail
export LC_ALL=C # the decimal points of the times
source=$(cd "$(dirname "$0")/.." && pwd)
program=$(cd "${1:-$source/build/release/bin}" && pwd)/barvon-run
rounds=${2:-21}
most=${3:-1000}
if ! [[ $rounds =~ ^[1-9][0-9]*$ && $most =~ ^[1-9][0-9]+$ ]]; then
  echo "$0: the rounds are a whole number from 1 on, the most projects one from 10 on" >&2
  exit 1
fi
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder"
mkdir solver projects alone

# shellcheck disable=SC2016 # expanded by the solver
printf '#!/bin/sh\nfor e in duo dup dut duc; do echo x > tmpfile.$e; done\n' > solver/merak32
chmod +x solver/merak32
for i in $(seq "$most"); do
  cp "$source/samples/Hopper_Six_Openings.DUI" "projects/site$i.DUI"
done

# What is measured has its own standard error.
exec 3>&2
run() {
  "$program" run --solver-dir solver "$@" > said.txt 2>&1 || {
    echo "a run of $# projects ended with $?:" >&3
    cat said.txt >&3
    exit 1
  }
}
# All four outputs of so many projects, written since begun.txt.
see_outputs() {
  local seen
  seen=$(find projects -name '*.du[optc]' -newer begun.txt -size +0 | wc -l)
  [ "$seen" -eq "$((4 * $1))" ] || {
    echo "$seen outputs of $1 projects instead of $((4 * $1))" >&3
    exit 1
  }
}

missed=0
if command -v strace > where.txt; then
  : > begun.txt
  strace -f -qq -o calls.txt -e trace=fsync,fdatasync,stat,lstat,newfstatat,statx,access,faccessat \
    "$program" run --solver-dir solver projects/site1.DUI > said.txt 2>&1 ||
    { echo "the counted run ended with $?:" >&2; cat said.txt >&2; exit 1; }
  see_outputs 1
  # The number of the thread comes first in a line.
  waits=$(grep -cE 'f(data)?sync\(' calls.txt || true)
  # A descriptor that is asked about itself is no question to the disk.
  questions=$(grep -vE 'f(data)?sync|, "",' calls.txt | grep -c '"' || true)
  judge() { # what, seen, goal: none at all was not counted
    local verdict=met
    [ "$2" -ge 1 ] && [ "$2" -le "$3" ] || verdict=MISSED missed=1
    printf '%-22s %d (goal %d)  %s\n' "$1:" "$2" "$3" "$verdict"
  }
  judge "waits for the disk" "$waits" 5
  judge "questions about files" "$questions" 60
fi

. "$source/bench/time_of.sh"
. "$source/bench/run_share.sh"
alone() { (cd alone && ../solver/merak32); }

counts=()
for count in 1 10 100; do
  [ "$count" -ge "$most" ] || counts+=("$count")
done
counts+=("$most")
for round in $(seq "$rounds"); do
  time_of alone >> alone.txt
  for count in "${counts[@]}"; do
    [ "$count" -le 100 ] || [ "$((round % 7))" -eq 1 ] || continue
    : > begun.txt
    # shellcheck disable=SC2046
    time_of run $(seq -f 'projects/site%.0f.DUI' "$count") >> "times$count.txt"
    see_outputs "$count"
  done
done
echo "load:                  $(cut -d' ' -f1-3 /proc/loadavg)"
echo "the solver alone:      $(median alone.txt 1) ms, $(median alone.txt 2) ms of the processor," \
  "$(rounds_of alone.txt) rounds"
for count in "${counts[@]}"; do
  judge_share "$count" "$(rounds_of "times$count.txt")" \
    "$(median "times$count.txt" 1)" "$(median "times$count.txt" 2)" \
    "$(median alone.txt 1)" "$(median alone.txt 2)" \
    "$(median times10.txt 1)" "$(median times10.txt 2)" || missed=1
done
exit "$missed"
