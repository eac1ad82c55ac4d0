#!/usr/bin/env bash
# Builds BARVON, takes a sample project down the whole road with the companion solver, and opens the
# workbench where there is a display.
set -euo pipefail
cd "$(dirname "$0")"
. packaging/packages.sh
. packaging/build.sh

barvon_install_packages packaging/debian-packages.txt
barvon_build release barvon barvon-run barvon-solver kv_graph

bin="$PWD/build/release/bin"
demo="$PWD/build/demo"
project="$demo/Section_404_Zid.DUI"
rm -rf "$demo"
mkdir -p "$demo"
cp samples/Section_404_Zid.DUI "$project"

echo
echo "One project down the whole road, in $demo"
echo
echo "1. Checked: $project"
"$bin/barvon-run" check "$project"
echo "   no findings"
echo
echo "2. Written: the model input"
"$bin/barvon-run" export "$project" | cut -f3 | sed 's/^/   /'
echo
echo "3. Run: by the companion solver, $bin/barvon-solver"
said=$("$bin/barvon-run" run --solver companion "$project")
printf '%s\n' "$said" | sed -n 's/^.*\tran\t/   /p'
echo
echo "4. Kept: its outputs, beside the project"
printf '%s\n' "$said" | sed -n 's/^.*\tkept\t/   /p'
echo
# A section of the listing, without its heading.
section() { # HEADING
  tr -d '\r' <"$demo/Section_404_Zid.duo" | awk -v heading="$1" '
    { line[NR] = $0 }
    END {
      for (i = 1; i < NR; ++i) {
        if (line[i + 1] !~ /^-+$/) continue
        if (inside) last = i - 1
        inside = line[i] == heading
        if (inside) first = i + 2
      }
      for (i = first; i <= last; ++i) if (line[i] != "") print "   |" line[i]
    }'
}
echo "   The listing's first line:"
head -n 1 "$demo/Section_404_Zid.duo" | tr -d '\r' | fold -s -w 90 | sed 's/^/   |  /'
echo
echo "   Its balance:"
section "BALANCE AT THE END" | sed '/The same in parts/,$d'
echo
echo "   Its maxima:"
section "MAXIMA OVER TIME" | sed -n '/At any point/,$p'
echo
echo "   Its verdicts:"
section "VERDICTS"
echo
if [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; then
  echo "Opening the workbench. File, Open takes it to the projects in samples/ or in $demo;"
  echo "there View Graphics shows the run of above."
  exec "$bin/barvon"
fi
echo "There is no display here; with one, this opens the workbench: $bin/barvon"
