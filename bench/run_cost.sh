#!/bin/sh
# What a run costs beside the solver's own time: waits for the disk and questions about files of one
# run, and the time that a project takes above the solver alone, for 1, 10 and 100 projects in one
# call. The solver writes its four outputs at once and ends. Medians of interleaved rounds.
#
#   bench/run_cost.sh [FOLDER OF barvon-run] [ROUNDS]
#
# Counting needs strace; without it only the times are printed.
set -eu
source=$(cd "$(dirname "$0")/.." && pwd)
program=$(cd "${1:-$source/build/release/bin}" && pwd)/barvon-run
rounds=${2:-21}
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder"
mkdir solver projects alone

# shellcheck disable=SC2016 # expanded by the solver
printf '#!/bin/sh\nfor e in duo dup dut duc; do echo x > tmpfile.$e; done\n' > solver/merak32
chmod +x solver/merak32
for i in $(seq 100); do
  cp "$source/samples/Hopper_Six_Openings.DUI" "projects/site$i.DUI"
done

run() { "$program" run --solver-dir solver "$@" > said.txt 2>&1 || { cat said.txt; exit 1; }; }

if command -v strace > where.txt; then
  strace -qq -o calls.txt -e trace=fsync,fdatasync,stat,lstat,newfstatat,statx,access,faccessat \
    "$program" run --solver-dir solver projects/site1.DUI > said.txt
  echo "waits for the disk:    $(grep -cE '^f(data)?sync' calls.txt)"
  # A descriptor that is asked about itself is no question to the disk.
  echo "questions about files: $(grep -vE '^f(data)?sync|, "",' calls.txt | grep -c '"')"
fi

# Milliseconds of a command.
time_of() {
  begun=$(date +%s%N)
  "$@"
  echo "$begun $(date +%s%N)" | awk '{printf "%.2f\n", ($2 - $1) / 1e6}'
}
alone() { (cd alone && ../solver/merak32); }
median() { sort -n "$1" | awk '{v[NR] = $1} END {print v[int((NR + 1) / 2)]}'; }

for _ in $(seq "$rounds"); do
  time_of alone >> alone.txt
  for count in 1 10 100; do
    # shellcheck disable=SC2046
    time_of run $(seq -f 'projects/site%.0f.DUI' "$count") >> "times$count.txt"
  done
done
echo "the solver alone:      $(median alone.txt) ms"
for count in 1 10 100; do
  echo "$(median "times$count.txt") $(median alone.txt)" |
    awk -v n="$count" '{printf "%3d at once, above it:  %.1f ms a project\n", n, $1 / n - $2}'
done
