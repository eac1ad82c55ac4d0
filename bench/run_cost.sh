#!/usr/bin/env bash
# What a run costs beside the solver's own time: waits for the disk and questions about files of one
# run, and the time that a project takes above the solver alone, for 1, 10, 100 and more projects in
# one call. The solver writes its four outputs at once and ends. Medians of interleaved rounds. Ends
# with 1 when a goal is missed: 20 ms a project above the solver, and no number of projects more
# than 1.5 times as dear for each of them as one alone.
#
#   bench/run_cost.sh [FOLDER OF barvon-run] [ROUNDS] [MOST PROJECTS]
#
# Counting needs strace; without it only the times are printed. The largest number is measured in
# every seventh round alone.
set -euo pipefail
source=$(cd "$(dirname "$0")/.." && pwd)
program=$(cd "${1:-$source/build/release/bin}" && pwd)/barvon-run
rounds=${2:-21}
most=${3:-1000}
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

run() { "$program" run --solver-dir solver "$@" > said.txt 2>&1 || { cat said.txt; exit 1; }; }

if command -v strace > where.txt; then
  strace -qq -o calls.txt -e trace=fsync,fdatasync,stat,lstat,newfstatat,statx,access,faccessat \
    "$program" run --solver-dir solver projects/site1.DUI > said.txt
  echo "waits for the disk:    $(grep -cE '^f(data)?sync' calls.txt || true)"
  # A descriptor that is asked about itself is no question to the disk.
  echo "questions about files: $(grep -vE '^f(data)?sync|, "",' calls.txt | grep -c '"')"
fi

# Milliseconds that a command takes, and of the processor, its children's included.
time_of() {
  local begun ended TIMEFORMAT='%3U %3S'
  begun=$(date +%s%N)
  { time "$@"; } 2> processor.txt
  ended=$(date +%s%N)
  awk -v taken="$((ended - begun))" '{printf "%.2f %.0f\n", taken / 1e6, 1000 * ($1 + $2)}' \
    processor.txt
}
alone() { (cd alone && ../solver/merak32); }
# Of a file's column.
median() { sort -n -k"$2,$2" "$1" | awk -v c="$2" '{v[NR] = $c} END {print v[int((NR + 1) / 2)]}'; }

counts=(1 10 100)
[ "$most" -le 100 ] || counts+=("$most")
for round in $(seq "$rounds"); do
  time_of alone >> alone.txt
  for count in "${counts[@]}"; do
    [ "$count" -le 100 ] || [ "$((round % 7))" -eq 1 ] || continue
    # shellcheck disable=SC2046
    time_of run $(seq -f 'projects/site%.0f.DUI' "$count") >> "times$count.txt"
  done
done
echo "load:                  $(cut -d' ' -f1-3 /proc/loadavg)"
echo "the solver alone:      $(median alone.txt 1) ms, $(median alone.txt 2) ms of the processor"
missed=0
one=$(median times1.txt 1)
for count in "${counts[@]}"; do
  echo "$(median "times$count.txt" 1) $(median alone.txt 1) $one" \
    "$(median "times$count.txt" 2) $(median alone.txt 2)" |
    awk -v n="$count" '{
      above = $1 / n - $2
      grown = ($1 / n) / $3
      processor = $4 / n - $5
      met = above <= 20 && grown <= 1.5
      printf "%4d at once, above it: %.1f ms a project (goal 20), %.1f of the processor, ",
             n, above, processor
      printf "%.2f of one alone (goal 1.5)  %s\n", grown, met ? "met" : "MISSED"
      exit !met
    }' || missed=1
done
exit "$missed"
