#!/usr/bin/env bash
# What the companion solver takes for the samples and for the worst case: processor time, greatest
# memory, size of the outputs. Ends with 1 when a goal is missed: 2 s for a sample, 4 s for the worst
# case, 64 MiB.
#
#   bench/companion.sh [FOLDER OF barvon-run, barvon-solver AND solver_bench] [ROUNDS]
set -euo pipefail
export LC_ALL=C
source=$(cd "$(dirname "$0")/.." && pwd)
bin=$(cd "${1:-$source/build/release/bin}" && pwd)
rounds=${2:-5}
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

# In a solver's place: keeps what a run hands to it, additions included.
mkdir "$folder/keeper"
cat > "$folder/keeper/merak32" <<END
#!/bin/sh
mkdir -p "$folder/input"
cp KOLBREE.TMP [Tt]mp[Ff]ile.* "$folder/input/"
for e in duo dup dut duc; do echo kept > tmpfile.\$e; done
END
chmod +x "$folder/keeper/merak32"

missed=0
measure() { "$bin/solver_bench" "$bin/barvon-solver" "$rounds" "$1" "$2" 64 || missed=1; }

echo "load: $(cut -d' ' -f1-3 /proc/loadavg), cores: $(nproc)"
for sample in "$source"/samples/*.DUI; do
  name=$(basename "$sample" .DUI)
  [ "$name" != Pipeline_Continuous ] || continue # no solver takes it
  cp "$sample" "$folder"
  "$bin/barvon-run" run --solver-dir "$folder/keeper" "$folder/$name.DUI" > "$folder/said" ||
    { cat "$folder/said" >&2; exit 1; }
  mv "$folder/input" "$folder/$name"
  measure "$folder/$name" 2
done
"$source/bench/worst_case.sh" "$folder/Worst_case"
measure "$folder/Worst_case" 4
exit "$missed"
