#!/usr/bin/env bash
# Lets every file call of every save fail in turn and looks at what is left: the old file or the new
# one, whole, and never the old one without a word.
#
#   tests/attacks/failing_calls.sh [-b BIN] [-e EVERY] [-j PROCESSES] [-s SAVE]
#
# BIN: the folder with attack_saves, else that of the release build. EVERY: every so manieth case
# alone, 1. PROCESSES: so many saves at a time, twice as many as there are processors. SAVE: those
# alone whose names have it in them. Ends with 1 when there is a find.
set -euo pipefail
here="$(dirname "$0")"
. "$here/build.sh"
bin="" every=1 save="" processes=$((2 * $(nproc)))
while getopts b:e:j:s: option; do
  case "$option" in
    b) bin="$OPTARG" ;;
    e) every="$OPTARG" ;;
    j) processes="$OPTARG" ;;
    s) save="$OPTARG" ;;
    *) exit 2 ;;
  esac
done
barvon_build_attacks "$bin"
scratch="$(mktemp -d)"
trap 'rm -rf "$scratch"' EXIT

"$bin/attack_saves" --save "$save" count | tee "$scratch/count"
# The saves with the most calls come first, in parts of about 30 calls: a line has the save's name,
# how many parts it has and which this is.
sed -nE 's/^([^ ].*[^ ]) +([0-9]+)( +0){6} \|.*/\2 \1/p' "$scratch/count" | grep -v ' all$' |
  sort -rn | awk -v every="$every" '{
    parts = int($1 / 30) + 1
    # A call has more than one case, so each part has one as long as it starts below the calls.
    while (parts > 1 && every * (parts - 1) >= $1) --parts
    sub(/^[0-9]+ /, "")
    for (part = 0; part < parts; ++part) print $0 "\t" parts "\t" part
  }' >"$scratch/jobs"
do_job() {
  local row parts part code=0
  IFS=$'\t' read -r row parts part <<<"$1"
  "$bin/attack_saves" --row "$row" fail $((every * parts)) $((every * part)) \
    >"$scratch/$row $part" || code=$?
  grep '^ ' "$scratch/$row $part" || true # finds
  tail -1 "$scratch/$row $part" | sed "s/^all/$row/" >>"$scratch/seen"
  return "$code"
}
export -f do_job
export bin every scratch
missed=0
xargs -d '\n' -a "$scratch/jobs" -P "$processes" -I{} bash -c 'do_job "$1"' - {} || missed=1
[ "$(wc -l <"$scratch/seen")" = "$(wc -l <"$scratch/jobs")" ] || missed=1
awk 'function sum_up(name, i, count, words) {
       count = split($0, words, /[ |]+/)
       calls[name] = words[count - 12]
       for (i = 2; i <= 13; ++i) sums[name, i] += words[count - 13 + i]
     }
     function show(name, calls, i) {
       printf "%-34s %5d", name, calls
       for (i = 2; i <= 13; ++i) printf "%s %6d", i == 8 ? " | " : "", sums[name, i]
       print ""
     }
     BEGIN {
       print "save                               calls  cases    met    old    new   new+   left |" \
             " damaged silent unsync litter  again    bad"
     }
     {
       name = $0
       sub(/ +[0-9].*/, "", name)
       if (!(name in calls)) names[++rows] = name
       sum_up(name)
       sum_up("all")
     }
     END {
       for (row = 1; row <= rows; ++row) {
         all += calls[names[row]]
         show(names[row], calls[names[row]])
       }
       show("all", all)
     }' "$scratch/seen"
exit "$missed"
