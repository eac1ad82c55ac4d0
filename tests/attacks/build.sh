# Sourced by the attacks, which run from any folder: finds the programs in BUILD, or builds them.

barvon_build_attacks() {
  local source
  source="$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)"
  bin="${1:-$source/build/release/bin}"
  if [ ! -x "$bin/attack_saves" ]; then
    (
      cd "$source"
      . packaging/packages.sh
      . packaging/build.sh
      barvon_install_packages packaging/debian-packages.txt
      barvon_build release
    ) >&2
  fi
  export QT_QPA_PLATFORM=offscreen LD_PRELOAD="$bin/libfile_calls.so"
}
