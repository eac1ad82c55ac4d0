# Sourced by run.sh, test.sh and lint.sh: installs what is missing of debian-packages.txt. With everything
# there it neither needs a network nor asks for root.

barvon_missing_packages() {
  local package
  sed -e 's/#.*//' -e '/^[[:space:]]*$/d' "$1" | while read -r package; do
    dpkg-query -W -f='${db:Status-Abbrev}' "$package" 2>/dev/null | grep -q '^.i' || echo "$package"
  done
}

barvon_install_packages() {
  local list="$1" missing as_root=()
  missing=$(barvon_missing_packages "$list")
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
