#!/usr/bin/env bash
# Holds the scripts that judge costs to figures that are made up: what grew is told, what did not
# passes, and the middle of an even count lies between the middle two. Ends with 1 otherwise.
set -euo pipefail
export LC_ALL=C
here=$(cd "$(dirname "$0")" && pwd)
. "$here/time_of.sh"
. "$here/run_share.sh"
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
wrong=0
expect() { # what, expected, seen
  [ "$2" = "$3" ] || { echo "$1: $3 instead of $2"; wrong=1; }
}
verdict() { # projects, six figures
  local projects=$1
  shift
  judge_share "$projects" 7 "$@" | sed 's/.* //'
}
# A solver of 10 ms; 10 projects that take 5 ms each above it.
expect "1,000 as dear as 10" met "$(verdict 1000 15000 9000 10 2 150 90)"
expect "1.4 times as dear" met "$(verdict 1000 17000 9000 10 2 150 90)"
expect "twice as dear, which with the solver is 1.33" MISSED "$(verdict 1000 20000 9000 10 2 150 90)"
expect "100 at twice" MISSED "$(verdict 100 2000 900 10 2 150 90)"
expect "one, in which the start counts" met "$(verdict 1 28 20 10 2 150 90)"
expect "one above the goal" MISSED "$(verdict 1 31 20 10 2 150 90)"
expect "a figure too few" MISSED "$(verdict 1000 15000 9000 10 2 150)"
expect "no number" MISSED "$(verdict 1000 nan 9000 10 2 150 90)"
expect "10 that cost nothing" MISSED "$(verdict 1000 15000 9000 10 2 100 90)"

printf '9 1\n1 4\n3 2\n2 8\n' > "$folder/even"
printf '9\n1\n3\n' > "$folder/odd"
expect "the middle of 1 2 3 9" 2.5 "$(median "$folder/even" 1)"
expect "the middle of 1 2 4 8" 3 "$(median "$folder/even" 2)"
expect "the middle of 1 3 9" 3 "$(median "$folder/odd" 1)"
expect "rounds" 4 "$(rounds_of "$folder/even")"
exit "$wrong"
