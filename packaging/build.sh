# Sourced by run.sh, test.sh and lint.sh: configures a preset once, then builds the targets that are
# given, or everything. BARVON_WERROR=ON makes warnings errors.

barvon_configure() {
  local preset="$1" settings=()
  local cache="build/$preset/CMakeCache.txt"
  if [ -n "${BARVON_WERROR:-}" ]; then
    settings=("-DBARVON_WERROR=$BARVON_WERROR")
  fi
  # The build itself configures again when a build file has changed.
  if [ ! -f "build/$preset/build.ninja" ] || { [ -n "${BARVON_WERROR:-}" ] &&
    ! grep -q "^BARVON_WERROR:BOOL=$BARVON_WERROR\$" "$cache"; }; then
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
