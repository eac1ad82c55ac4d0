#!/usr/bin/env bash
# The graphics program on the outputs of the largest case: opening, painting, stepping through time.
#
#   bench/graphs.sh FOLDER OF THE PROGRAMS, FOLDER OF THE PLUGINS [ROUNDS]
set -euo pipefail
here=$(realpath "$(dirname "$0")")
bin=$(realpath "$1")
plugins=$(realpath "$2")
case=$(mktemp -d)
trap 'rm -rf "$case"' EXIT
"$here/worst_case.sh" "$case"
(cd "$case" && "$bin/barvon-solver" >/dev/null)
for output in "$case"/tmpfile.du?; do mv "$output" "$case/worst.${output##*.}"; done
echo "outputs: $(du -cb "$case"/worst.* | awk 'END { printf "%.1f", $1 / 1e6 }') MB"
"$bin/graphs_bench" "$case/worst.dut" "$bin/kv_graph" "$plugins" "${3:-21}"
