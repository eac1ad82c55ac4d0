#!/usr/bin/env bash
# Kills saves with SIGKILL, half of them at a random time and half at a random file call, and looks
# at what is left: each file old or new, whole, and no litter behind the next start.
#
#   tests/attacks/killed_saves.sh [-b BIN] [-n COUNT] [-r SEED] [-s SAVE]
#
# BIN: the folder with attack_saves, else that of the release build. COUNT: 1000. SEED: of the day
# unless given; it is printed. SAVE: those alone whose names have it in them. Ends with 1 when there
# is a find.
set -euo pipefail
here="$(dirname "$0")"
. "$here/build.sh"
bin="" count=1000 save="" seed="$(date +%Y%m%d)"
while getopts b:n:r:s: option; do
  case "$option" in
    b) bin="$OPTARG" ;;
    n) count="$OPTARG" ;;
    r) seed="$OPTARG" ;;
    s) save="$OPTARG" ;;
    *) exit 2 ;;
  esac
done
barvon_build_attacks "$bin"
echo "seed $seed"
"$bin/attack_saves" --save "$save" kill "$count" "$seed"
