#!/usr/bin/env bash
# The program as a person meets it who does not see it or has no mouse: every window through the
# accessibility bus, a project opened, changed, checked and run through it, and one made and run by
# keys alone. Each part runs in a desktop of its own on a display without a screen. Ends with 1 when
# a control has no name, the wrong role or no value, can't be told from another or is out of reach,
# and when a window that is expected was not seen.
#
#   tests/desktop/walk.sh [FOLDER OF barvon] [DISPLAY] [windows | graphics | journey | keys]
set -euo pipefail
cd "$(dirname "$0")/../.."
. packaging/packages.sh
. tests/desktop/session.sh

bin=$(cd "${1:-build/release/bin}" && pwd)
display="${2:-:77}"
what="${3:-all}"
case "$what" in
  all | windows | graphics | journey | keys) ;;
  *)
    sed -n '/^#   /s/^# *//p' "$0" >&2
    exit 2
    ;;
esac
barvon_install_packages packaging/debian-packages.txt proof

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
export PYTHONDONTWRITEBYTECODE=1
python=/usr/bin/python3 # Debian's own: another one has no bindings of the bus

# A fresh folder with the program in it, and a part of the walk in a desktop of its own.
part() {
  local script="$1" folder
  shift
  folder=$(mktemp -d -p "$scratch")
  cp "$bin"/{barvon,barvon-run,barvon-solver,kv_graph,BARVON.HLP} resources/TIPOFDAY.TXT samples/*.DUI \
    samples/database/*.dat "$folder"
  printf 'line 1\nline 2\nlast' >"$folder/walk.duo"
  printf 'heading\n%020000d\n' 0 >"$folder/long.duo"
  desktop_session "$display" "$python" "tests/desktop/$script" "$folder" "$@"
}

# The judge of windows is judged first: faults that were planted are found.
"$python" tests/desktop/planted_faults.py

failed=0
if [ "$what" = all ] || [ "$what" = windows ]; then
  part assistive_walk.py at_start tools errors Hopper_Six_Openings.DUI velocities wizard ||
    failed=1
  part assistive_walk.py Section_103_Water_Quality.DUI Section_404_Zid.DUI Section_404_Sediment.DUI \
    Barge_Four_Layers.DUI Tidal_Estuary.DUI || failed=1
  part assistive_walk.py Variable_96_By_96.DUI depth_grid || failed=1
fi
if [ "$what" = all ] || [ "$what" = graphics ]; then
  part assistive_walk.py graphics || failed=1
  part graphs_journey.py || failed=1
fi
if [ "$what" = all ] || [ "$what" = journey ]; then
  part assistive_journey.py bad_run || failed=1
  part assistive_journey.py || failed=1
fi
if [ "$what" = all ] || [ "$what" = keys ]; then
  part key_journey.py || failed=1
fi
exit "$failed"
