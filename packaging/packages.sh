# Sourced by the scripts that build, test or measure: installs what is missing of
# debian-packages.txt. With everything there it neither needs a network nor asks for root.

# The packages of a list that are not installed: those without a second word in their line, and
# those whose second word is the given one.
barvon_missing_packages() {
  local package
  sed -e 's/#.*//' "$1" | awk -v kind="${2:-}" 'NF == 1 || (NF == 2 && $2 == kind) {print $1}' |
    while read -r package; do
      dpkg-query -W -f='${db:Status-Abbrev}' "$package" 2>/dev/null | grep -q '^.i' || echo "$package"
    done
}

barvon_install_packages() {
  local list="$1" kind="${2:-}" missing as_root=()
  missing=$(barvon_missing_packages "$list" "$kind")
  [ -n "$missing" ] || return 0
  echo "Installing what is missing:" $missing
  if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
      echo "Please install these as root, then start again: apt-get install" $missing >&2
      return 1
    fi
    as_root=(sudo)
  fi
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update
  # shellcheck disable=SC2086 # one word a package
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends \
    $missing
}
