#!/usr/bin/env bash
# Puts two tables into docs/companion-solver.md: the verification cases with what the tests found,
# and the constants as the solver's headers have them. With --check it changes nothing and ends with
# 1, telling what differs, when a case, its theory or bound, or a constant is not as the document
# says; the figures found may differ in their last digit and are not compared.
#
#   tests/solver/verification_table.sh [--check] [SOLVER_TESTS]
set -euo pipefail
export LC_ALL=C
source=$(cd "$(dirname "$0")/../.." && pwd)
check=
[ "${1:-}" != --check ] || { check=yes; shift; }
tests=${1:-$source/build/release/bin/solver_tests}
document=$source/docs/companion-solver.md
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

# Those of the document's own would fail as long as it is old.
BARVON_VERIFICATION=$folder/cases "$tests" --gtest_brief=1 --gtest_filter='-Solver_Document.*' \
  > "$folder/said" ||
  { cat "$folder/said" >&2; exit 1; }

# One row a case and theory, the largest figure seen, in the order of the cases' names.
{
  echo '| Case | Theory or laboratory | Off by | Bound |'
  echo '|---|---|---|---|'
  awk -F '\t' '
    { key = $1 "\t" $2 }
    !(key in got) || $3 + 0 > got[key] + 0 { got[key] = $3 }
    !(key in bound) || $4 + 0 > bound[key] + 0 { bound[key] = $4 }
    END { for (key in got) print key "\t" got[key] "\t" bound[key] }' "$folder/cases" | sort -f |
    awk -F '\t' '{ printf "| %s | %s | %s | %s |\n", $1, $2, $3, $4 }'
} > "$folder/verification"

{
  echo '| Constant | Value | Meaning | Where |'
  echo '|---|---|---|---|'
  for header in "$source"/solver/*.h; do
    awk -v header="solver/$(basename "$header")" '
      /^inline constexpr (double|int|std::size_t) k[A-Za-z0-9]+ = [^;]*;/ {
        name = $4
        value = $0
        sub(/^[^=]*= /, "", value)
        sub(/;.*/, "", value)
        if (!match($0, /; *\/\/ /)) next # a width of a column and the like
        meaning = substr($0, RSTART + RLENGTH)
        printf "| `%s` | %s | %s | `%s` |\n", name, value, meaning, header
      }' "$header"
  done
} > "$folder/constants"

# The document with the table of that name replaced.
with_table() { # name, document
  awk -v from="<!-- $1 -->" -v to="<!-- end of $1 -->" -v table="$folder/$1" '
    $0 == to { inside = 0; ended = 1 }
    !inside { print }
    $0 == from {
      inside = 1
      begun = 1
      while ((getline line < table) > 0) print line
    }
    END { exit !(begun && ended) }' "$2" ||
    { echo "$document has no lines <!-- $1 --> and <!-- end of $1 -->" >&2; exit 1; }
}
with_table verification "$document" > "$folder/first"
with_table constants "$folder/first" > "$folder/document"

if [ -z "$check" ]; then
  cp "$folder/document" "$document"
  exit
fi
without_figures() { awk -F ' [|] ' 'NF == 4 { print $1 " | " $2 " | " $4; next } { print }' "$1"; }
diff <(without_figures "$document") <(without_figures "$folder/document") ||
  { echo "$document is older than the tests: run $0" >&2; exit 1; }
