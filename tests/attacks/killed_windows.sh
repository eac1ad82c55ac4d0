#!/usr/bin/env bash
# Kills the program under a person's hands and starts it again: what was not saved is offered and
# comes back, and neither a lock nor a copy stays behind a clean end. In each round it is killed over
# its main window, in the middle of a run whose solver leaves a process that goes on writing, and with
# the data wizard open over a grid that nobody has accepted.
#
#   tests/attacks/killed_windows.sh FOLDER [ROUNDS]
#
# FOLDER is that of the built program, "build/release/bin"; 3 rounds when nothing is given. It needs
# xvfb, openbox and xdotool (lines "proof" of packaging/debian-packages.txt). Ends with 1 when the
# work of a round is lost, when what nobody accepted comes back, when a killed run's solver writes
# over what is kept, or when a copy comes more than 30 s after the change.
set -euo pipefail

folder=$(cd "${1:?"usage: $0 FOLDER [ROUNDS]"}" && pwd)
rounds=${2:-3}
cd "$(dirname "$0")/../.."
. packaging/packages.sh
barvon_install_packages packaging/debian-packages.txt proof
samples=$PWD/samples
scratch=$(mktemp -d)
children=()
tidy() {
  for child in "${children[@]}"; do kill "$child" 2>/dev/null || true; done
  rm -rf "$scratch"
}
trap tidy EXIT

display=:$((90 + $$ % 900))
Xvfb "$display" -screen 0 1280x1024x24 >/dev/null 2>&1 &
children+=($!)
export DISPLAY=$display XDG_DATA_HOME=$scratch/data
await() { # a command that is true in the end, within so many seconds
  local seconds=$1
  shift
  for ((i = 0; i < seconds * 5; ++i)); do
    if "$@" >/dev/null 2>&1; then return 0; fi
    sleep 0.2
  done
  echo "in vain: $*" >&2
  return 1
}
await 30 xdotool getdisplaygeometry
openbox >/dev/null 2>&1 &
children+=($!)

mkdir "$scratch/program"
cp "$folder"/{barvon,barvon-run} "$scratch/program"
cp "$folder"/BARVON.HLP "$scratch/program"
project=$scratch/site.DUI
cp "$samples/Barge_Four_Layers.DUI" "$project"
lock=$scratch/.site.DUI.barvon-lock

# The first run leaves a process that writes the outputs for ever; later ones are done at once.
cat >"$scratch/program/merak32" <<'END'
#!/usr/bin/env bash
if [ -e done_at_once ]; then
  for kind in duo dup dut duc; do echo whole >"tmpfile.$kind"; done
  exit
fi
setsid bash -c 'echo $$ >stray; while :; do echo stray >tmpfile.duo; sleep 0.05; done' &
sleep 600
END
chmod +x "$scratch/program/merak32"

start() {
  (cd "$scratch/program" && exec ./barvon >/dev/null 2>&1) &
  window=$!
  children+=("$window")
}
titled() { xdotool search --onlyvisible --name "$1"; }
copies() { compgen -G "$scratch/data/barvon/recovery/*.barvon-copy"; }
no_copies() { ! copies; }
gone() { [ ! -e "$1" ]; }
saved() { grep -q "$1" "$project"; }

longest=0
open_project() {
  start
  await 20 titled '^BARVON - UNTITLED'
  xdotool key --delay 100 ctrl+o
  await 10 titled '^Open'
  xdotool type --delay 10 "$project"
  xdotool key Return
  await 20 titled "^BARVON - $project"
  await 5 test -e "$lock"
  sleep 1
}
# The title of the project has the keyboard when it is opened.
type_title() {
  xdotool key ctrl+a
  xdotool type --delay 10 "$1"
  local before took
  before=$(date +%s)
  await 35 copies
  took=$(($(date +%s) - before))
  if ((took > longest)); then longest=$took; fi
}
kill_window() {
  kill -9 "$window"
  wait "$window" 2>/dev/null || true
}
restore() {
  start
  await 20 titled 'Restore Unsaved Changes'
  sleep 1
  xdotool key Return # Restore
  await 10 titled "^BARVON - $project"
  sleep 1
}
save() { # the title that must be in the file then
  xdotool key ctrl+s
  sleep 2
  # Findings of the check: save all the same.
  if titled '^BARVON$' >/dev/null; then xdotool key alt+n; fi
  await 10 saved "$1"
  await 5 no_copies
}
end_window() {
  kill -TERM "$window"
  wait "$window" 2>/dev/null || true
  await 5 gone "$lock"
  no_copies
}
all_but_title() { "$scratch/program/barvon-run" show "$project" --json | grep -v '"ProjectTitle"'; }
stray_runs() { [ -e "/proc/$stray" ]; }
no_stray() { ! stray_runs; }
has() { [ "$(cat "$2" 2>/dev/null)" = "$1" ]; }

over_main_window() {
  open_project
  type_title "$1"
  kill_window
  restore
  save "$1"
  end_window
}

in_a_run() {
  rm -f "$scratch/program"/{done_at_once,stray}
  echo earlier >"$scratch/site.duo"
  open_project
  xdotool key F5
  await 10 test -s "$scratch/program/stray"
  stray=$(cat "$scratch/program/stray")
  type_title "$1"
  kill_window
  stray_runs || { echo "the solver has left nothing running" >&2; return 1; }
  children+=("$stray")
  restore
  has earlier "$scratch/site.duo"
  save "$1"
  touch "$scratch/program/done_at_once"
  xdotool key F5
  await 20 has whole "$scratch/site.duo"
  await 5 no_stray
  has whole "$scratch/program/tmpfile.duo"
  end_window
}

in_the_wizard() {
  local before
  before=$(all_but_title)
  open_project
  type_title "$1"
  xdotool key alt+w
  await 10 titled '^BARVON Data Wizard - Step 1'
  sleep 2 # its help comes beside it
  for step in 2 3 4; do
    xdotool key Return
    await 10 titled "^BARVON Data Wizard - Step $step"
  done
  sleep 1
  # From Next backwards over Back, salinity and temperature to depth, velocities in Z and X, duration
  # and plume distance.
  xdotool key --delay 100 shift+Tab shift+Tab shift+Tab
  for value in 50 0 1 2400 10000; do
    xdotool key shift+Tab
    xdotool key ctrl+a
    xdotool type --delay 10 "$value"
    sleep 0.2
  done
  xdotool key Return
  await 10 titled '^BARVON$'
  xdotool key alt+y # the computed grid
  await 10 titled '^Disposal Site Data'
  sleep 12 # the copy is looked after every 10 s
  kill_window
  restore
  save "$1"
  end_window
  [ "$before" = "$(all_but_title)" ] || { echo "what nobody accepted was restored" >&2; return 1; }
}

for ((round = 1; round <= rounds; ++round)); do
  over_main_window "round$round"
  in_a_run "run$round"
  in_the_wizard "wizard$round"
  echo "round $round: restored and saved, over the main window, in a run and in the wizard"
done
((longest <= 30)) || { echo "a copy came $longest s after the change, goal 30" >&2; exit 1; }
echo "killed windows: $((3 * rounds)) of $((3 * rounds)) restored; a copy at most $longest s after the change"
