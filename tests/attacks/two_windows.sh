#!/usr/bin/env bash
# Two programs on one project, the long form: a project is read over and over while another process
# saves it, and processes race for the lock that a killed one left.
#
#   tests/attacks/two_windows.sh FOLDER [READS] [ROUNDS]
#
# FOLDER is that of the built tests, "build/release/bin". 20,000 reads and 20 times the race of the
# tests (60 takings by three processes each) when nothing is given. Ends with 1 when a read was
# broken, when fewer than one read of 20 met another version of the project, when a lock had two
# winners or none, when another test of the two subjects fails, or when a part takes more than ten
# minutes.
set -euo pipefail

. "$(dirname "$0")/build.sh"
program=${1:?"usage: $0 FOLDER [READS] [ROUNDS]"}/plain_tests
reads=${2:-20000}
rounds=${3:-20}
[ -x "$program" ] || { echo "$program is not built" >&2; exit 2; }
limited() { timeout 600 "$program" "$@"; }
whole='ProjectHold.A_Project_That_Another_Process_Saves_Is_Always_Read_Whole'

# In parts, so that one sees how it goes on.
part=1000
said=$(mktemp)
trap 'rm -f "$said"' EXIT
for ((done = 0; done < reads; done += part)); do
  BARVON_READS=$((reads - done < part ? reads - done : part)) \
    barvon_run_tests limited "$whole" | grep reads | tee -a "$said"
done
awk '{reads += $1; versions += $4}
  END {
    printf "%d reads met %d versions, %.1f of 100\n", reads, versions, 100 * versions / reads
    exit 20 * versions < reads
  }' "$said" || { echo "too few reads met another version" >&2; exit 1; }
for ((round = 1; round <= rounds; ++round)); do
  barvon_run_tests limited 'Lock.*:ProjectHold.*' "$whole" >/dev/null ||
    { echo "round $round failed" >&2; exit 1; }
done
echo "two windows: $reads reads whole, $((rounds * 60)) takings with one winner each"
