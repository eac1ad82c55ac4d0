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
# The saves with the most calls come first: they take the longest.
sed -nE 's/^([^ ].*[^ ]) +([0-9]+)( +0){6} \|.*/\2 \1/p' "$scratch/count" | grep -v ' all$' |
  sort -rn | cut -d' ' -f2- >"$scratch/rows"
missed=0
xargs -d '\n' -a "$scratch/rows" -P "$processes" -I{} \
  sh -c '"$1" --row "$2" fail "$3" >"$4" && code=0 || code=$?
         grep -vE "^(fail|all) " "$4"; exit "$code"' \
  - "$bin/attack_saves" {} "$every" "$scratch/row-{}" | tee "$scratch/seen" || missed=1
[ "$(grep -c ' | ' "$scratch/seen")" = "$(wc -l <"$scratch/rows")" ] || missed=1
awk '/ \| / {
       split($0, halves, " [|] ")
       count = split(halves[1], left, " ")
       for (i = 1; i <= 7; ++i) sums[i] += left[count - 7 + i]
       count = split(halves[2], right, " ")
       for (i = 1; i <= 5; ++i) finds[i] += right[i]
     }
     END {
       printf "%-32s %5d", "all", sums[1]
       for (i = 2; i <= 7; ++i) printf " %6d", sums[i]
       printf " | %7d", finds[1]
       for (i = 2; i <= 5; ++i) printf " %6d", finds[i]
       print ""
     }' "$scratch/seen"
exit "$missed"
