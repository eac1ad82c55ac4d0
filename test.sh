#!/usr/bin/env bash
# Builds everything and runs every test; ends with the summary. With --asan the same under the
# address, leak and undefined-behaviour checks.
set -euo pipefail
cd "$(dirname "$0")"
. packaging/packages.sh
. packaging/build.sh

preset=release
case "${1:-}" in
  "") ;;
  --asan) preset=asan ;;
  *)
    echo "usage: ./test.sh [--asan]" >&2
    exit 2
    ;;
esac

barvon_install_packages packaging/debian-packages.txt
barvon_build "$preset"
export QT_QPA_PLATFORM=offscreen
ctest --preset "$preset" --parallel "$(nproc)"
