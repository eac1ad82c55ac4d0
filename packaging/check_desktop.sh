#!/usr/bin/env bash
# What desktops read of the program, held to their own rules:
#
#   packaging/check_desktop.sh [FOLDER THAT BECOMES share/]
#
# Without a folder the sources of packaging/desktop/ are looked at. Exit code 1 when a validator
# finds something, 77 when one of them is not installed.
set -euo pipefail
cd "$(dirname "$0")/.."
share="${1:-packaging/desktop}"
asked=0 missing=()
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

has() {
  if command -v "$1" >/dev/null; then
    asked=$((asked + 1))
  else
    missing+=("$1")
    return 1
  fi
}
found() { find "$share" -name "$1"; }
fail() {
  echo "check_desktop: $1" >&2
  exit 1
}

if has desktop-file-validate; then
  desktop-file-validate "$(found barvon.desktop)" || fail "the menu entry"
fi
if has appstreamcli; then
  appstreamcli validate --no-net "$(found '*.metainfo.xml')" >"$scratch/said" 2>&1 || {
    cat "$scratch/said" >&2
    fail "the data for software centres"
  }
fi
if has xmllint; then
  while read -r file; do
    xmllint --noout "$file" || fail "$file"
  done < <(found '*.xml'; found '*.svg')
fi
if has update-mime-database; then
  mkdir -p "$scratch/mime/packages"
  cp "$(found barvon.xml)" "$scratch/mime/packages/"
  XDG_DATA_DIRS="$scratch" update-mime-database "$scratch/mime" || fail "the types of the files"
  for ending in dui:project dud:dilution; do
    grep -qx "50:application/x-barvon-${ending#*:}:\*\.${ending%:*}" "$scratch/mime/globs2" ||
      fail "no type for *.${ending%:*}"
    # Another type of that ending would leave open which one a file is of.
    ! grep -ihs ":\*\.${ending%:*}\(:\|$\)" /usr/share/mime/globs2 | grep -v x-barvon ||
      fail "another type has the ending ${ending%:*}"
  done
  [ ! -s "$scratch/mime/magic" ] || [ "$(stat -c %s "$scratch/mime/magic")" -le 12 ] ||
    fail "a file is told by its first bytes, which other texts have too"
fi
# A menu entry that took a file would promise what the program does not do.
! grep -qE '^(MimeType=|Exec=.*%)' "$(found barvon.desktop)" || fail "the menu entry takes a file"
if [ ${#missing[@]} -gt 0 ]; then
  echo "check_desktop: $asked validators find nothing, not installed: ${missing[*]}" >&2
  exit 77
fi
echo "check_desktop: $asked validators find nothing"
