#!/usr/bin/env bash
# Loads and saves of a project and runs of an instant solver in one window process, offscreen. After
# a warm-up of 200 loads and saves and 20 runs its own memory (RssAnon) may grow by 1 MiB, and no
# descriptor and no child may be left.
#
#   bench/soak.sh [LOADS AND SAVES] [RUNS]
#
# Usual: 10000 and 200. Exit code 1 when a goal is missed.
# BARVON_PROOF_BIN names a folder with tests that are built already.
set -euo pipefail
cd "$(dirname "$0")/.."
. packaging/packages.sh
. packaging/build.sh
. tests/attacks/build.sh
export BARVON_PROOF_LOADS=${1:-10000} BARVON_PROOF_RUNS=${2:-200} QT_QPA_PLATFORM=offscreen

bin=${BARVON_PROOF_BIN:-}
if [ -z "$bin" ]; then
  barvon_install_packages packaging/debian-packages.txt
  barvon_build release screen_tests
  bin=build/release/bin
fi
barvon_run_tests "$bin"/screen_tests 'Soak.*'
