#!/usr/bin/env bash
# Lets every file call of every save fail in turn and looks at what is left: the old file or the new
# one, whole, and never the old one without a word.
#
#   tests/attacks/failing_calls.sh [-b BIN] [-e EVERY] [-s SAVE]
#
# BIN: the folder with attack_saves, else that of the release build. EVERY: every so manieth case
# alone, 1. SAVE: those alone whose names have it in them. Ends with 1 when there is a find.
set -euo pipefail
here="$(dirname "$0")"
. "$here/build.sh"
bin="" every=1 save=""
while getopts b:e:s: option; do
  case "$option" in
    b) bin="$OPTARG" ;;
    e) every="$OPTARG" ;;
    s) save="$OPTARG" ;;
    *) exit 2 ;;
  esac
done
barvon_build_attacks "$bin"
"$bin/attack_saves" --save "$save" count
"$bin/attack_saves" --save "$save" fail "$every"
