#!/usr/bin/env bash
# What no compiler says. "format": every source is laid out as .clang-format wants it. "tidy": the
# checks of .clang-tidy find nothing in src/ and solver/, or only in the given sources of them.
# Without a word both, the quick one first.
set -euo pipefail
cd "$(dirname "$0")/.."
. packaging/packages.sh
. packaging/build.sh

barvon_check_format() {
  echo "Checking the format"
  find src solver tests help samples bench -name '*.cpp' -o -name '*.h' | sort |
    xargs clang-format --dry-run -Werror || {
    echo "lint: not laid out as .clang-format wants it; clang-format -i mends it" >&2
    return 1
  }
}

# In a tree of its own, in which nothing is built: each source is read with the headers that it
# names, however the programs are built.
barvon_check_tidy() {
  local sources=("$@")
  BARVON_PRECOMPILED=OFF barvon_configure lint
  cmake --build build/lint --target build.ninja  # configures again if a build file has changed
  [ $# -gt 0 ] || mapfile -t sources < <(find src solver -name '*.cpp' | sort)
  echo "Checking ${#sources[@]} sources with clang-tidy"
  # The compiler's own warnings are the build's matter, and it has some that clang does not know.
  # How many warnings of the libraries were passed over is nobody's.
  local one='clang-tidy --quiet -p build/lint --extra-arg=-Wno-error \
    --extra-arg=-Wno-unknown-warning-option "$1" 2> >(grep -v "warnings\? generated" >&2)'
  printf '%s\n' "${sources[@]}" | xargs -P "$(nproc)" -n 1 \
    bash -c "$one" tidy || {
    echo "lint: clang-tidy finds what is told above" >&2
    return 1
  }
}

what="${1:-all}"
[ $# -eq 0 ] || shift
case "$what" in
  all | format | tidy) ;;
  *)
    echo "usage: packaging/lint.sh [format | tidy [SOURCE...]]" >&2
    exit 2
    ;;
esac
barvon_install_packages packaging/debian-packages.txt
[ "$what" = tidy ] || barvon_check_format
[ "$what" = format ] || barvon_check_tidy "$@"
