#!/usr/bin/env bash
# Does every save on a small file system that has room for 0, 1, 2, ... pages more: 60 sizes, or in
# larger steps where the files need more than 60 pages. Nothing may be cut off without a word.
#
#   tests/attacks/full_disk.sh [-b BIN] [-n SIZES] [-s SAVE]
#
# BIN: the folder with attack_saves, else that of the release build. SIZES: 60. SAVE: those alone
# whose names have it in them. The file system is a tmpfs in a name space of the attack's own, which
# needs no rights where the kernel lets users make one. Ends with 1 when there is a find.
set -euo pipefail
here="$(dirname "$0")"
. "$here/build.sh"
bin="" sizes=60 save=""
while getopts b:n:s: option; do
  case "$option" in
    b) bin="$OPTARG" ;;
    n) sizes="$OPTARG" ;;
    s) save="$OPTARG" ;;
    *) exit 2 ;;
  esac
done
barvon_build_attacks "$bin"
unshare --user --map-root-user --mount "$bin/attack_saves" --save "$save" full "$sizes"
