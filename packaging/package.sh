#!/usr/bin/env bash
# Makes the Debian package and the portable archive of the last commit, from a tree that holds
# nothing else:
#
#   packaging/package.sh [FOLDER]
#
# They come to stand in the folder, build/package unless it is given. What is not committed is not
# in them.
set -euo pipefail
cd "$(dirname "$0")/.."
. packaging/packages.sh

out=$(realpath -m "${1:-build/package}")
barvon_install_packages packaging/debian-packages.txt
git diff --quiet HEAD || echo "package: changes that are not committed are left out" >&2

# Always the same place, so that a compiler's cache knows what it has compiled there.
source="$PWD/build/package/source"
SOURCE_DATE_EPOCH=$(git log -1 --format=%ct)
export SOURCE_DATE_EPOCH
rm -rf "$source"
mkdir -p "$source" "$out"
git archive HEAD | tar -x -C "$source"
cd "$source"
cmake --preset release -DBARVON_TESTS=OFF -DCMAKE_DISABLE_FIND_PACKAGE_benchmark=ON \
  -DBARVON_WERROR="${BARVON_WERROR:-OFF}"
cmake --build --preset release --parallel "$(nproc)"
rm -f "$out"/barvon*.deb "$out"/barvon*.tar.gz
cpack --config build/release/CPackConfig.cmake -B build/packages >build/cpack.log ||
  { cat build/cpack.log >&2; exit 1; }
mv build/packages/barvon*.deb build/packages/barvon*.tar.gz "$out"
ls "$out"/barvon*.deb "$out"/barvon*.tar.gz
