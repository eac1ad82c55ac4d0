#!/usr/bin/env bash
# Names of files that a careless program would trip over, through open, save, save as, run, view and
# the recent files of the window and through check, export, report and run of barvon-run, with
# programs planted in the current folder, which stands in the search path. Then links, second names,
# pipes and folders planted at every fixed name, and folders that everybody can write; the part with
# another user's files takes root. Last the programs are started in such folders on a display
# (planted_starts.sh). Nothing may be changed, started or overwritten.
#
#   tests/attacks/hostile_names.sh [NAMES] [SEED]
#
# Usual: 2000 names, the day as seed. Exit code 1 when a goal is missed.
# BARVON_PROOF_BIN names a folder with tests that are built already.
set -euo pipefail
cd "$(dirname "$0")/../.."
. packaging/packages.sh
. packaging/build.sh
. tests/attacks/build.sh
export BARVON_PROOF_NAMES=${1:-2000} BARVON_PROOF_SEED=${2:-$(date +%Y%m%d)}
export QT_QPA_PLATFORM=offscreen

bin=${BARVON_PROOF_BIN:-}
if [ -z "$bin" ]; then
  barvon_install_packages packaging/debian-packages.txt
  barvon_build release plain_tests screen_tests
  bin=build/release/bin
fi
echo "Seed $BARVON_PROOF_SEED"
missed=0
barvon_run_tests "$bin"/screen_tests 'HostileNames.*' || missed=1
barvon_run_tests "$bin"/plain_tests 'BatchHostileNames.*:PlantedFiles.*:StrangersFiles.*' || missed=1
tests/attacks/planted_starts.sh "$bin" || missed=1
exit "$missed"
