#!/usr/bin/env bash
# Solvers of every temper against the window and barvon-run: missing, not executable, at an end at
# once, with an error, without outputs, with some, without end, deaf to the polite end, flooding what
# they print and write, killed by a signal, leaving children, started twice. Each must end in words,
# with the project untouched, no process and no descriptor left, at most 16 MiB of memory more, and
# the window's event loop back within the given time at all times; what it waits for a processor that
# others have is told and not counted.
#
#   tests/attacks/bad_solvers.sh [ROUNDS] [LONGEST STALL IN MS] [BYTES OF THE FLOOD]
#
# Usual: 1 round, 50 ms, 1 GiB. Exit code 1 when a goal is missed.
# BARVON_PROOF_BIN names a folder with tests that are built already.
set -euo pipefail
cd "$(dirname "$0")/../.."
. packaging/packages.sh
. packaging/build.sh
. tests/attacks/build.sh
rounds=${1:-1}
export BARVON_PROOF_STALL=${2:-50} BARVON_PROOF_FLOOD=${3:-1073741824} QT_QPA_PLATFORM=offscreen

bin=${BARVON_PROOF_BIN:-}
if [ -z "$bin" ]; then
  barvon_install_packages packaging/debian-packages.txt
  barvon_build release plain_tests screen_tests
  bin=build/release/bin
fi
missed=0
for round in $(seq "$rounds"); do
  echo "Round $round: in the window"
  barvon_run_tests "$bin"/screen_tests 'BadSolvers.*' || missed=1
  echo "Round $round: through barvon-run"
  barvon_run_tests "$bin"/plain_tests 'BatchBadSolvers.*' || missed=1
done
exit "$missed"
