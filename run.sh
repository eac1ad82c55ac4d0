#!/usr/bin/env bash
# Builds BARVON, takes a sample project down the whole road, and opens the workbench where there
# is a display.
set -euo pipefail
cd "$(dirname "$0")"
. packaging/packages.sh
. packaging/build.sh

barvon_install_packages packaging/debian-packages.txt
barvon_build release barvon barvon-run merak32

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
echo "3. Run: $bin/merak32, an input echo that simulates nothing"
said=$("$bin/barvon-run" run "$project")
printf '%s\n' "$said" | sed -n 's/^.*\tran\t/   /p'
echo
echo "4. Kept: its outputs, beside the project"
printf '%s\n' "$said" | sed -n 's/^.*\tkept\t/   /p'
echo
echo "   The first lines of the listing:"
head -n 8 "$demo/Section_404_Zid.duo" | tr -d '\r' | sed 's/^/   | /'
echo

if [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; then
  echo "Opening the workbench. File, Open takes it to the projects in samples/ or in $demo."
  exec "$bin/barvon"
fi
echo "There is no display here; with one, this opens the workbench: $bin/barvon"
