# Sourced by the attacks, which run from any folder: finds the programs in BUILD, or in the folder
# that BARVON_PROOF_BIN names, or builds them; runs tests of which none may be missing.

barvon_build_attacks() {
  local source
  source="$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)"
  bin="${1:-${BARVON_PROOF_BIN:-}}"
  if [ -z "$bin" ]; then
    (
      cd "$source"
      . packaging/packages.sh
      . packaging/build.sh
      barvon_install_packages packaging/debian-packages.txt
      barvon_build release attack_saves
    ) >&2
    bin="$source/build/release/bin"
  fi
  [ -x "$bin/attack_saves" ] || { echo "$bin/attack_saves is not built" >&2; exit 1; }
  bin="$(cd "$bin" && pwd)"
  export QT_QPA_PLATFORM=offscreen LD_PRELOAD="$bin/libfile_calls.so"
}

# TESTS PATTERNS [PATTERNS LEFT OUT]: fails also where one of the patterns, with colons in
# between, finds no test, and where the program does not say that it ran some.
barvon_run_tests() {
  local tests="$1" without="${3:+-$3}" pattern patterns found said code=0
  IFS=: read -ra patterns <<<"$2"
  for pattern in "${patterns[@]}"; do
    found="$("$tests" --gtest_list_tests --gtest_filter="$pattern$without" | grep -c '^  ' || true)"
    [ "$found" -gt 0 ] || { echo "no test is $pattern" >&2; return 1; }
  done
  said="$(mktemp)"
  "$tests" --gtest_brief=1 --gtest_filter="$2$without" | tee "$said" || code=1
  grep -qE '^\[=+\] [1-9][0-9]* tests? from .* ran' "$said" ||
    { echo "no test of $2 ran" >&2; code=1; }
  rm -f "$said"
  return "$code"
}
