#!/usr/bin/env bash
# Which lines and branches of src/ and solver/ the tests of ./test.sh reach: a row for each folder,
# then the files with the most lines that none reaches. Branches that only an exception takes are
# left out.
#
#   tests/coverage.sh [FOLDER]
#
# With a FOLDER, pages of the sources with every line's count are left there. BARVON_FILTER chooses
# the tests, as --gtest_filter does.
set -euo pipefail
cd "$(dirname "$0")/.."
. packaging/packages.sh
. packaging/build.sh

barvon_install_packages packaging/debian-packages.txt
barvon_install_packages packaging/debian-packages.txt proof
barvon_build coverage
find build/coverage -name '*.gcda' -delete
export QT_QPA_PLATFORM=offscreen
# Three processes, not one for each test: at its end each adds its counts to those of hundreds of
# files. What is measured is what was reached, also by a test that failed for being slow.
failed=0
for tests in plain_tests screen_tests solver_tests; do
  nice -n 10 build/coverage/bin/$tests --gtest_brief=1 --gtest_filter="${BARVON_FILTER:-*}" || failed=1
done

pages=()
if [ $# -gt 0 ]; then
  mkdir -p "$1"
  pages=(--html-details "$1/index.html")
fi
table=build/coverage/coverage.csv
gcovr --root . --filter src/ --filter solver/ --object-directory build/coverage \
  --exclude-throw-branches --exclude-unreachable-branches --gcov-ignore-parse-errors \
  --csv "$table" "${pages[@]}" build/coverage
awk -F, '
  function row(name, lines, reached, branches, taken) {
    printf "%-14s %7d %7d %6.1f %% %8d %8d %6.1f %%\n", name, lines, reached,
      lines ? 100 * reached / lines : 100, branches, taken, branches ? 100 * taken / branches : 100
  }
  NR == 1 { for (i = 1; i <= NF; ++i) at[$i] = i; next }
  { split($(at["filename"]), path, "/"); folder = path[1] == "solver" ? path[1] : path[2]
    if (folder ~ /\./) folder = "(top)"
    all[folder]
    l[folder] += $(at["line_total"]); r[folder] += $(at["line_covered"])
    b[folder] += $(at["branch_total"]); t[folder] += $(at["branch_covered"])
    L += $(at["line_total"]); R += $(at["line_covered"])
    B += $(at["branch_total"]); T += $(at["branch_covered"]) }
  END {
    printf "%-14s %7s %7s %8s %8s %8s %8s\n", "folder", "lines", "reached", "", "branches", "taken", ""
    for (folder in all) row(folder, l[folder], r[folder], b[folder], t[folder]) | "sort"
    close("sort")
    row("all", L, R, B, T)
  }' "$table"
echo
echo "Lines that no test reaches, by file:"
awk -F, 'NR == 1 { for (i = 1; i <= NF; ++i) at[$i] = i; next }
  $(at["line_total"]) > $(at["line_covered"]) {
    print $(at["line_total"]) - $(at["line_covered"]), $(at["filename"]) }' "$table" |
  sort -rn | head -n 25
exit "$failed"
