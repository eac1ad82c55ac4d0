#!/usr/bin/env bash
# Kills the program under a person's hands and starts it again: what was not saved is offered and
# comes back, and neither a lock nor a copy stays behind a clean end.
#
#   tests/attacks/killed_windows.sh FOLDER [ROUNDS]
#
# FOLDER is that of the built program, "build/release/bin"; 3 rounds when nothing is given. It needs
# xvfb, openbox and xdotool (lines "proof" of packaging/debian-packages.txt). Ends with 1 when the
# work of a round is lost, or when a copy comes more than 30 s after the change.
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
cp "$folder"/barvon "$scratch/program"
cp "$folder"/BARVON.HLP "$scratch/program"
project=$scratch/site.DUI
cp "$samples/Barge_Four_Layers.DUI" "$project"
lock=$scratch/.site.DUI.barvon-lock

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
for ((round = 1; round <= rounds; ++round)); do
  word=round$round
  start
  await 20 titled '^BARVON - UNTITLED'
  xdotool key --delay 100 ctrl+o
  await 10 titled '^Open'
  xdotool type --delay 10 "$project"
  xdotool key Return
  await 20 titled "^BARVON - $project"
  await 5 test -e "$lock"
  sleep 1
  # The title of the project has the keyboard.
  xdotool key ctrl+a
  xdotool type --delay 10 "$word"
  before=$(date +%s)
  await 35 copies
  took=$(($(date +%s) - before))
  if ((took > longest)); then longest=$took; fi
  kill -9 "$window"
  wait "$window" 2>/dev/null || true
  start
  await 20 titled 'Restore Unsaved Changes'
  sleep 1
  xdotool key Return # Restore
  await 10 titled "^BARVON - $project"
  sleep 1
  xdotool key ctrl+s
  sleep 2
  # Findings of the check: save all the same.
  if titled '^BARVON$' >/dev/null; then xdotool key alt+n; fi
  await 10 saved "$word"
  await 5 no_copies
  kill -TERM "$window"
  wait "$window" 2>/dev/null || true
  await 5 gone "$lock"
  no_copies
  echo "round $round: restored and saved"
done
((longest <= 30)) || { echo "a copy came $longest s after the change, goal 30" >&2; exit 1; }
echo "killed windows: $rounds of $rounds restored; a copy at most $longest s after the change"
