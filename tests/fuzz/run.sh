#!/usr/bin/env bash
# Reads what no program should have written, under the address and undefined-behaviour checks:
# mutated files with a fixed seed and with one of the day, then inputs that coverage leads through
# every reader. Ends with 1 on any crash, on anything that does not hold, and on an input that takes
# more than 100 ms of processor time: both programs measure each reading.
#
#   tests/fuzz/run.sh [MINUTES] [FILES]
#
# MINUTES for each reader that coverage leads, 2 unless told; 0 leaves them out. FILES that are
# mutated for each of the two seeds, 100000 unless told; 0 leaves them out. BARVON_SEED is the seed
# of the day unless set; BARVON_READERS names the readers, all unless set. What is found stays in
# build/fuzz/finds.
set -euo pipefail
cd "$(dirname "$0")/../.."
. packaging/packages.sh
. packaging/build.sh

minutes="${1:-2}"
files="${2:-100000}"
seed="${BARVON_SEED:-$(date +%Y%m%d)}"

barvon_install_packages packaging/debian-packages.txt
barvon_install_packages packaging/debian-packages.txt proof
barvon_build fuzz mutated_files led_inputs

programs="$PWD/build/fuzz/bin"
corpora="$PWD/build/fuzz/corpora"
finds="$PWD/build/fuzz/finds"
dictionary="$PWD/tests/fuzz/letters.dict"
TMPDIR=$(mktemp -d -p "$([ -d /dev/shm ] && echo /dev/shm || echo /tmp)")
export TMPDIR
trap 'rm -rf "$TMPDIR"' EXIT
failed=0

if [ "$files" -gt 0 ]; then
  passes=()
  for each in 20260101 "$seed"; do
    nice -n 10 "$programs/mutated_files" --count "$files" --seed "$each" >"$TMPDIR/$each" &
    passes+=("$!:$TMPDIR/$each")
  done
  for pass in "${passes[@]}"; do
    wait "${pass%%:*}" || failed=1
    cat "${pass#*:}"
  done
fi

# One reader: its row of the table. The process fails where something was found.
lead() {
  local reader="$1" found=0
  local corpus="$corpora/$reader" log="$TMPDIR/$reader.log" least="$TMPDIR/$reader.least"
  local before
  before=$(find "$finds" -name "$reader-*" | wc -l)
  # led_inputs holds the 100 ms; -timeout stops, in seconds that pass, what would never end:
  # a busy machine may let a process wait for some of them.
  BARVON_READER="$reader" nice -n 10 "$programs/led_inputs" "$corpus" -dict="$dictionary" \
    -max_total_time="$(awk "BEGIN {print int($minutes * 60)}")" -timeout=60 -rss_limit_mb=4096 \
    -print_final_stats=1 -artifact_prefix="$finds/$reader-" >"$log" 2>&1 ||
    { found=1 && tail -n 40 "$log"; }
  # Of two inputs that reach the same edges the shorter one stays. Where that fails all stay: what
  # was found before is in none but them.
  mkdir "$least"
  if BARVON_READER="$reader" nice -n 10 "$programs/led_inputs" -merge=1 "$least" "$corpus" \
    >"$log.merge" 2>&1 && [ -n "$(ls -A "$least")" ]; then
    rm -rf "$corpus"
    mv "$least" "$corpus"
  else
    found=1
    echo "$reader: the corpus can't be made shorter and stays whole"
    tail -n 20 "$log.merge"
  fi
  printf '%-14s %10s %8s %8s %8s %8s\n' "$reader" \
    "$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")" \
    "$(sed -n 's/.* cov: \([0-9]*\) .*/\1/p' "$log" | tail -n 1)" \
    "$(find "$corpus" -type f | wc -l)" "$(du -sk --apparent-size "$corpus" | cut -f1)" \
    "$(($(find "$finds" -name "$reader-*" | wc -l) - before))"
  return "$found"
}

if [ "$minutes" != 0 ]; then
  mkdir -p "$finds"
  "$programs/mutated_files" --samples "$corpora"
  printf '%-14s %10s %8s %8s %8s %8s\n' reader runs edges corpus KB finds
  # project_lines and recovery_short read what project and recovery do, shorter.
  readers="${BARVON_READERS:-$("$programs/mutated_files" --names | grep -vx 'project\|recovery')}"
  export minutes programs corpora finds dictionary
  export -f lead
  # shellcheck disable=SC2086 # one word a reader
  printf '%s\n' $readers | xargs -P "$(nproc)" -I '{}' bash -c 'set -uo pipefail; lead {}' ||
    failed=1
fi
exit "$failed"
