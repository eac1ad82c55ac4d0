#!/usr/bin/env bash
# What checking and exporting many projects costs: whether a project's share stays the same from 1
# to 1,000 projects in one call, and what an export costs beside a script that only reads the
# numbers of the same files. Medians of interleaved rounds. The goals are held against the processor
# time: an export also waits for the disk, which the script does not. Ends with 1 when a goal is
# missed: a project's share never above 1.5 of that of 10 projects, an export at most 1.5 of the
# script.
#
#   bench/batch_cost.sh [FOLDER OF barvon-run] [ROUNDS] [MOST PROJECTS]
#
# The share is compared with 10 projects, not with one: in that the start of the program counts.
set -euo pipefail
source=$(cd "$(dirname "$0")/.." && pwd)
program=$(cd "${1:-$source/build/release/bin}" && pwd)/barvon-run
rounds=${2:-7}
most=${3:-1000}
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder"
for i in $(seq "$most"); do
  cp "$source/samples/Variable_96_By_96.DUI" "site$i.DUI"
done

# Reads each number of each file and prints their sum, so that none is left out.
cat > parse.pl <<'PERL'
my $sum = 0;
for my $name (@ARGV) {
  open(my $file, '<:raw', $name) or die;
  local $/;
  my $text = <$file>;
  for my $word (split ' ', $text) { $sum += $word; }
}
print "$sum\n";
PERL

check() { "$program" check "$@" > said.txt 2>&1 || true; }
export_all() { "$program" export "$@" > said.txt 2>&1; }
parse() { perl parse.pl "$@" > said.txt; }
# Milliseconds that a command takes, and of the processor, its children's included.
time_of() {
  local begun ended TIMEFORMAT='%3U %3S'
  begun=$(date +%s%N)
  { time "$@"; } 2> processor.txt
  ended=$(date +%s%N)
  awk -v taken="$((ended - begun))" '{printf "%.2f %.0f\n", taken / 1e6, 1000 * ($1 + $2)}' \
    processor.txt
}
# Of a file's column.
median() { sort -n -k"$2,$2" "$1" | awk -v c="$2" '{v[NR] = $c} END {print v[int((NR + 1) / 2)]}'; }

missed=0
for round in $(seq "$rounds"); do
  for count in 1 10 100 "$most"; do
    [ "$count" -le 100 ] || [ "$((round % 3))" -eq 1 ] || continue
    mapfile -t files < <(seq -f 'site%.0f.DUI' "$count")
    for command in check export_all parse; do
      time_of "$command" "${files[@]}" >> "$command.$count"
    done
  done
done
for command in check export_all; do
  ten=$(median "$command.10" 2)
  for count in 1 10 100 "$most"; do
    echo "$(median "$command.$count" 2) $ten $(median "parse.$count" 2)" \
      "$(median "$command.$count" 1) $(median "parse.$count" 1)" |
      awk -v n="$count" -v what="$command" '{
        share = $1 / n
        flat = share / ($2 / 10)
        beside = $1 / $3
        met = n == 1 || (flat <= 1.5 && (what == "check" || beside <= 1.5))
        printf "%-10s %4d projects: %.2f ms each (%.2f elapsed), %.2f of 10 (goal 1.5), ",
               what, n, share, $4 / n, flat
        printf "%.2f of the script%s (%.2f elapsed)  %s\n", beside,
               what == "check" ? "" : " (goal 1.5)", $4 / $5, n == 1 ? "" : met ? "met" : "MISSED"
        exit !met
      }' || missed=1
  done
done
exit "$missed"
