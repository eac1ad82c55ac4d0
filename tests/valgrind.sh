#!/usr/bin/env bash
# The plain tests and the companion solver's under valgrind's memcheck: invalid reads and writes,
# jumps by uninitialised values, memory that is definitely lost. Ends with 1 on any of them, and
# when no test fits.
#
#   tests/valgrind.sh [PROGRAM]
#
# PROGRAM is a plain_tests or solver_tests without sanitizers; both, built first for stepping
# through, unless told. BARVON_FILTER chooses the tests, as --gtest_filter does. Properties are tried
# five times each instead of a hundred. Left out are the random records, which are the same code for
# hundreds of records, two suites of processes, as memcheck ends a child whose program can't be
# started and does not know the descriptors that tell a process's end, and powers held against the C
# library's long double, which memcheck cuts to a double. It does not look into the programs that are
# started.
set -euo pipefail
cd "$(dirname "$0")/.."
. packaging/packages.sh
. packaging/build.sh

left_out="RandomRecords.*:Det_Math.Pow_Against_The_C_Library:CreateProcess.*:ProcessControl.*"
filter="${BARVON_FILTER:--$left_out}"
barvon_install_packages packaging/debian-packages.txt proof
programs=("$@")
if [ $# -eq 0 ]; then
  programs=(build/debug/bin/plain_tests build/debug/bin/solver_tests)
  barvon_install_packages packaging/debian-packages.txt
  barvon_build debug plain_tests solver_tests
fi
failed=0 all=0
for program in "${programs[@]}"; do
  count=$("$program" --gtest_list_tests --gtest_filter="$filter" | grep -c '^  ' || true)
  echo "$(basename "$program"): $count tests"
  all=$((all + count))
  [ "$count" -gt 0 ] || continue
  RC_PARAMS="max_success=5" nice -n 10 valgrind --quiet --leak-check=full \
    --errors-for-leak-kinds=definite --show-leak-kinds=definite --error-exitcode=1 \
    --exit-on-first-error=no --num-callers=20 \
    "$program" --gtest_brief=1 --gtest_filter="$filter" || failed=1
done
[ "$all" -gt 0 ] || {
  echo "no test fits $filter" >&2
  exit 1
}
exit "$failed"
