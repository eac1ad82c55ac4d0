# Sourced by run.sh, test.sh and lint.sh: configures a preset once, then builds the targets that are
# given, or everything. BARVON_WERROR=ON makes warnings errors; BARVON_PRECOMPILED=ON parses the
# headers of most tests once.

barvon_configure() {
  local preset="$1" option settings=() differs=0
  local cache="build/$preset/CMakeCache.txt"
  for option in BARVON_WERROR BARVON_PRECOMPILED; do
    [ -n "${!option:-}" ] || continue
    settings+=("-D$option=${!option}")
    grep -q "^$option:BOOL=${!option}\$" "$cache" 2>/dev/null || differs=1
  done
  # The build itself configures again when a build file has changed.
  if [ ! -f "build/$preset/build.ninja" ] || [ "$differs" = 1 ]; then
    cmake --preset "$preset" "${settings[@]}"
  fi
}

barvon_build() {
  local preset="$1"
  shift
  barvon_configure "$preset"
  if [ $# -gt 0 ]; then
    cmake --build --preset "$preset" --parallel "$(nproc)" --target "$@"
  else
    cmake --build --preset "$preset" --parallel "$(nproc)"
  fi
}
