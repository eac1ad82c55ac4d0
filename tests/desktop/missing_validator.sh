#!/usr/bin/env bash
# A validator that is not installed is named and is no pass.
set -euo pipefail
cd "$(dirname "$0")/../.."
# The script that is started has this one in the place of the shell's own.
command() {
  [ "$*" != "-v xmllint" ] && builtin command "$@"
}
export -f command
code=0
said=$(packaging/check_desktop.sh 2>&1) || code=$?
[ "$code" -eq 77 ] && grep -q 'not installed:.* xmllint' <<<"$said" || {
  echo "ended with $code: $said"
  exit 1
}
