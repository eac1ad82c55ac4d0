#!/usr/bin/env bash
# Installs a build into a folder of its own, as the Debian package is laid out, and holds what stands
# there to installed-files.txt; then asks the installed program for its version through its link.
#
#   tests/desktop/installed_files.sh FOLDER OF THE BUILD
set -euo pipefail
build=$(realpath "$1")
here=$(realpath "$(dirname "$0")")
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
cmake --install "$build" --prefix "$root" --component system >"$root/said" ||
  { cat "$root/said"; exit 1; }
rm "$root/said"
(cd "$root" && find . -type f -printf '%m %P\n' -o -type l -printf '%P -> %l\n' | LC_ALL=C sort) |
  diff "$here/installed-files.txt" - || { echo "wanted <, installed >"; exit 1; }
[ "$("$root/bin/barvon-run" --version)" = "$("$build/bin/barvon-run" --version)" ]
"$root/bin/barvon-run" database check "$root/lib/barvon"
"$here/../../packaging/check_desktop.sh" "$root/share" || [ $? -eq 77 ]
