#!/usr/bin/env bash
# Every figure of speed, with its goal: builds what it needs, measures, and ends with 1 when a goal
# is missed. Nothing else should be at work on the machine; the load is printed first.
#
#   bench/performance.sh [ROUNDS]
#
# Single figures: project_file, start, memory, screens, wait, run, batch, companion, graphs behind the rounds.
set -euo pipefail
cd "$(dirname "$0")/.."
. packaging/packages.sh
. packaging/build.sh
rounds=${1:-21}
[ $# -eq 0 ] || shift
parts=("$@")
[ ${#parts[@]} -gt 0 ] || parts=(project_file start memory screens wait run batch companion graphs)

barvon_install_packages packaging/debian-packages.txt
barvon_install_packages packaging/debian-packages.txt proof
barvon_build release barvon barvon-run barvon-solver kv_graph merak32 help_file project_file_bench \
  screen_bench memory_bench wait_bench stub_solver bare_window start_bench first_paint solver_bench \
  graphs_bench
bin="$PWD/build/release/bin"
plugins="$PWD/build/release/bench/plugins"
source="$PWD"
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder"
export QT_QPA_PLATFORM=offscreen HOME="$folder" XDG_RUNTIME_DIR="$folder"

project_file() { "$bin/project_file_bench"; }
start() { "$bin/start_bench" "$bin/barvon" "$bin/bare_window" "$plugins" "$rounds"; }
memory() { "$bin/memory_bench"; }
screens() { "$bin/screen_bench" "$rounds"; }
wait_for_solver() {
  "$bin/wait_bench" "$bin/stub_solver" window "$rounds" &&
    "$bin/wait_bench" "$bin/stub_solver" console "$rounds"
}
run() { "$source/bench/run_cost.sh" "$bin" "$rounds"; }
batch() { "$source/bench/batch_cost.sh" "$bin"; }
companion() { "$source/bench/companion.sh" "$bin" "$rounds"; }
graphs() { "$source/bench/graphs.sh" "$bin" "$plugins" "$rounds"; }

missed=()
echo "load: $(cut -d' ' -f1-3 /proc/loadavg), cores: $(nproc)"
for part in "${parts[@]}"; do
  echo
  echo "== $part"
  command=$part
  [ "$part" != wait ] || command=wait_for_solver
  "$command" || missed+=("$part")
done
echo
[ ${#missed[@]} -eq 0 ] || { echo "missed: ${missed[*]}"; exit 1; }
echo "every goal was met"
