#!/usr/bin/env bash
# What checking and exporting many projects costs: whether a project's share stays the same from 1
# to 1,000 projects in one call, and what an export costs beside a script that only reads the
# numbers of the same files. Medians of interleaved rounds. The goals are held against the processor
# time: an export also waits for the disk, which the script does not. Ends with 1 when a goal is
# missed: a project's share never above 1.5 of that of 10 projects, an export at most 1.5 of the
# script; or, with the reason, when a command fails or an export leaves a project without its file.
#
#   bench/batch_cost.sh [FOLDER OF barvon-run] [ROUNDS] [MOST PROJECTS]
#
# The share is compared with 10 projects, not with one: in that the start of the program counts. So
# 10 are the fewest.
set -euo pipefail
export LC_ALL=C # the decimal points of the times
source=$(cd "$(dirname "$0")/.." && pwd)
program=$(cd "${1:-$source/build/release/bin}" && pwd)/barvon-run
rounds=${2:-7}
most=${3:-1000}
if ! [[ $rounds =~ ^[1-9][0-9]*$ && $most =~ ^[1-9][0-9]+$ ]]; then
  echo "$0: the rounds are a whole number from 1 on, the most projects one from 10 on" >&2
  exit 1
fi
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

# What is measured has its own standard error.
exec 3>&2
measured() { # what, then the command
  local what=$1
  shift
  "$@" > said.txt 2>&1 || {
    echo "$what ended with $?:" >&3
    cat said.txt >&3
    exit 1
  }
}
check() { measured "check of $# projects" "$program" check "$@"; }
export_all() { measured "export of $# projects" "$program" export "$@"; }
parse() { measured "the script for $# projects" perl parse.pl "$@"; }
. "$source/bench/time_of.sh"

counts=(1 10)
[ "$most" -le 100 ] || counts+=(100)
[ "$most" -eq 10 ] || counts+=("$most")
missed=0
for round in $(seq "$rounds"); do
  for count in "${counts[@]}"; do
    [ "$count" -le 100 ] || [ "$((round % 3))" -eq 1 ] || continue
    mapfile -t files < <(seq -f 'site%.0f.DUI' "$count")
    : > begun.txt
    for command in check export_all parse; do
      time_of "$command" "${files[@]}" >> "$command.$count"
    done
    seen=$(find . -name '*.DUE' -newer begun.txt -size +0 | wc -l)
    [ "$seen" -eq "$count" ] || { echo "$seen exports of $count projects" >&2; exit 1; }
  done
done
echo "load: $(cut -d' ' -f1-3 /proc/loadavg)"
for command in check export_all; do
  ten=$(median "$command.10" 2)
  for count in "${counts[@]}"; do
    echo "$(median "$command.$count" 2) $ten $(median "parse.$count" 2)" \
      "$(median "$command.$count" 1) $(median "parse.$count" 1)" |
      awk -v n="$count" -v what="$command" -v rounds="$(rounds_of "$command.$count")" '{
        # A figure that is missing would shift the others, and none compares with NaN.
        whole = NF == 5
        for (i = 1; i <= NF; ++i) whole = whole && $i > 0 && $i ~ /^[0-9]+([.][0-9]+)?$/
        if (!whole) {
          printf "%-10s %4d projects: no figures (%s)  MISSED\n", what, n, $0
          exit 1
        }
        share = $1 / n
        flat = share / ($2 / 10)
        beside = $1 / $3
        met = n == 1 || (flat <= 1.5 && (what == "check" || beside <= 1.5))
        printf "%-10s %4d projects: %.2f ms each (%.2f elapsed), %.2f of 10 (goal 1.5), ",
               what, n, share, $4 / n, flat
        printf "%.2f of the script%s (%.2f elapsed), %d rounds  %s\n", beside,
               what == "check" ? "" : " (goal 1.5)", $4 / $5, rounds,
               n == 1 ? "" : met ? "met" : "MISSED"
        exit !met
      }' || missed=1
  done
done
exit "$missed"
