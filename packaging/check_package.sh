#!/usr/bin/env bash
# Tests the Debian package and the portable archive, as an ordinary user has them:
#
#   packaging/check_package.sh [FOLDER THAT HOLDS BOTH]
#
# Without a folder both are made first, from a clean tree. Run it as root, who can be another user;
# as another user the parts that need root are left out and told. The installed program, whose folder
# can't be written, is taken down the same road as the unpacked one, by barvon-run and in its window:
# what comes out must be the same, what is written must stand in the user's folder. Exit code 1 when
# something differs.
set -euo pipefail
cd "$(dirname "$0")/.."
. packaging/packages.sh
barvon_install_packages packaging/debian-packages.txt proof

built="$PWD/build/package"
[ $# -gt 0 ] && built=$(realpath "$1") || packaging/package.sh
deb=$(ls "$built"/barvon_*.deb)
archive=$(ls "$built"/barvon-*.tar.gz)
work=$(mktemp -d)
chmod 755 "$work"
processes=()
finish() {
  for process in "${processes[@]}"; do kill "$process" 2>/dev/null || true; done
  chmod -R u+rwX "$work"
  rm -rf "$work"
}
trap finish EXIT
failed=0
say() { printf '%-9s %s\n' "$1" "$2"; }
check() { # TEXT COMMAND...
  local text="$1"
  shift
  if "$@" >"$work/said" 2>&1; then
    say ok "$text"
  else
    say FAILED "$text"
    sed 's/^/    /' "$work/said"
    failed=1
  fi
}

# An ordinary user without rights of any kind, with a home of its own.
user=65534
[ "$(id -u)" -eq 0 ] || user=$(id -u)
as_user() { # HOME COMMAND...
  local home="$1" so=()
  shift
  [ "$(id -u)" -ne 0 ] || so=(setpriv --reuid=$user --regid=$user --clear-groups --no-new-privs)
  env -i HOME="$home" PATH=/usr/bin:/bin TMPDIR="$work/tmp" LANG=C.UTF-8 \
    DISPLAY="${DISPLAY:-}" "${so[@]}" "$@"
}
make_folder() {
  mkdir -p "$1"
  [ "$(id -u)" -ne 0 ] || chown "$user:$user" "$1"
}
make_folder "$work/tmp"

# --- Both are whole ------------------------------------------------------------------------------

root="$work/root"
mkdir -p "$root/var/lib/dpkg/updates" "$root/var/lib/dpkg/info" "$work/unpacked"
: >"$root/var/lib/dpkg/status"
if [ "$(id -u)" -eq 0 ]; then
  check "the package is installed" \
    dpkg --root="$root" --force-depends --log="$work/dpkg.log" -i "$deb"
else
  say "left out" "installing by dpkg, which needs root"
  dpkg-deb -x "$deb" "$root"
  chmod -R a-w "$root/usr/lib/barvon"
fi
tar xzf "$archive" -C "$work/unpacked"
portable=$(ls -d "$work"/unpacked/barvon-*)
[ "$(id -u)" -ne 0 ] || chown -R "$user:$user" "$portable"
installed="$root/usr/lib/barvon"
beside() { (cd "$1" && find . -maxdepth 1 -type f \( -name '*.dat' -o \
  -name '*.HLP' -o -name 'TIP*' -o -name 'barvon*' -o -name kv_graph \) -exec md5sum {} + | sort -k 2); }
check "both hold the same programs, help, tips, database and solver" \
  diff <(beside "$installed") <(beside "$portable")
check "that is the programs, the help, the tips, seven files of the database and the solver" \
  test "$(beside "$portable" | wc -l)" = 13
check "the desktop's files of the package pass" packaging/check_desktop.sh "$root/usr/share"
check "the desktop's files of the archive pass" packaging/check_desktop.sh "$portable/share"
check "every library that the programs need is a dependency that is installed here" \
  bash -c "dpkg-deb -f '$deb' Depends | tr ',' '\n' | sed 's/(.*//; s/ //g' | xargs dpkg-query -W"
check "lintian finds no error" lintian --fail-on error --profile debian "$deb"
lintian --profile debian "$deb" 2>&1 | sed 's/^/          /' || true

# --- The same without a window -------------------------------------------------------------------

# All samples by barvon-run of a folder; what it says and makes goes to $work/NAME.
projects="$work/projects"
batch_road() { # NAME PROGRAM
  local name="$1" program="$2" home="$work/home-$1"
  make_folder "$home"
  make_folder "$projects"
  cp "$portable"/samples/*.DUI "$projects"
  [ "$(id -u)" -ne 0 ] || chown -R "$user:$user" "$projects"
  (
    cd "$projects"
    for what in check export "run --jobs 2" "report --pdf"; do
      # shellcheck disable=SC2086 # two words
      as_user "$home" "$program" $what ./*.DUI || echo "exit code $?"
    done
  ) 2>&1 | sed "s#$(dirname "$(readlink -f "$program")")/#PROGRAM/#
    s#after [0-9.]* s;#after TIME;#" >"$work/$name.said"
  rm -f "$projects"/*.pdf  # they bear the time
  mv "$projects" "$work/$name"
}
batch_road portable "$portable/barvon-run"
batch_road installed "$root/usr/bin/barvon-run"
check "barvon-run makes the same files, byte for byte" diff -r "$work/portable" "$work/installed"
check "barvon-run says the same" diff "$work/portable.said" "$work/installed.said"
check "it ran the seven hopper and barge samples by the companion solver" \
  test "$(grep -c $'\tran\tcompanion solver ' "$work/installed.said")" = 7
check "it wrote the eight reports, which the window program prints" \
  test "$(grep -c 'written.*\.pdf$' "$work/installed.said")" = 8
check "the database of the installed program has no fault" \
  as_user "$work/home-installed" "$root/usr/bin/barvon-run" database check "$installed"

# --- The same in the window ----------------------------------------------------------------------

. packaging/window_road.sh
export DISPLAY=:$((100 + $$ % 400))
Xvfb "$DISPLAY" -screen 0 1280x1024x24 -nolisten tcp >"$work/xvfb" 2>&1 &
processes+=($!)
wait_for 100 xdotool getmouselocation
openbox --sm-disable >"$work/openbox" 2>&1 &
processes+=($!)
# A window that comes up before its manager is not given the keyboard.
wait_for 100 xdotool get_num_desktops

window_road() { # NAME PROGRAM [NAME OF THE HOME]
  local name="$1" home="$work/window-home-${3:-$1}" place="$work/window"
  make_folder "$home"
  make_folder "$place"
  cp "$portable/samples/Section_404_Zid.DUI" "$place/site.DUI"
  [ "$(id -u)" -ne 0 ] || chown -R "$user:$user" "$place"
  check "$name: a project is opened, run, its outputs kept, the database shown, all left" \
    drive_window "$home" "$2" "$place/site.DUI"
  mv "$place" "$work/window-$name"
}
window_road portable "$portable/barvon"
before=$(cd "$root/usr" && find . -type f -exec md5sum {} + | sort)
window_road installed "$root/usr/bin/barvon"
check "the window makes the same files, byte for byte" \
  diff -r "$work/window-portable" "$work/window-installed"
check "nothing of the installed program has changed" \
  diff <(echo "$before") <(cd "$root/usr" && find . -type f -exec md5sum {} + | sort)
own="$work/window-home-installed/.local/share/barvon"
# What the program writes beside it where it can: in the one folder, and in the other.
written() { (cd "$1" && find . -maxdepth 1 -type f -printf '%f\n' | grep -vxE \
  'barvon|barvon-run|barvon-solver|kv_graph|BARVON.HLP|TIPOFDAY.TXT|README.md|CHANGELOG.md' | sort); }
check "the user's folder holds what the portable program keeps beside it" \
  diff <(written "$portable") <(written "$own")
check "settings, scratch files and the database are among them" \
  bash -c "cd '$own' && ls BARVON.INI KOLBREE.TMP Tmpfile.Due tmpfile.duo dspsites.dat vesdb.dat"
# Copies of what is not saved are the user's, wherever the program stands; a clean end leaves none.
check "the portable program has put no file into the user's folder" \
  bash -c "! find '$work/window-home-portable/.local/share/barvon' -type f | grep ."
check "the settings name the project" grep -q "site.DUI" "$own/BARVON.INI"

# --- A folder that can be written no longer, a solver of the user's own --------------------------

chmod -R a-w "$portable"
[ "$(id -u)" -ne 0 ] || chown -R root:root "$portable"
window_road locked "$portable/barvon"
own="$work/window-home-locked/.local/share/barvon"
check "a portable program that is locked goes on with its settings in the user's folder" \
  grep -q "RecentFile1=$work/window/site.DUI" "$own/BARVON.INI"
# shellcheck disable=SC2016 # expanded by the solver
printf '#!/bin/sh\nfor e in duo dup dut duc; do echo mine > tmpfile.$e; done\n' >"$work/merak32"
install -m 755 "$work/merak32" "$own/merak32"
make_folder "$projects"
cp "$portable/samples/Hopper_Six_Openings.DUI" "$projects/site.DUI"
check "a solver in the user's folder comes before the companion" \
  as_user "$work/window-home-locked" "$portable/barvon-run" run "$projects/site.DUI"
check "its output is what is kept" grep -qx mine "$projects/site.duo"
window_road own-solver "$portable/barvon" locked
check "the window runs it too" grep -qx mine "$work/window-own-solver/site.duo"
if [ "$(id -u)" -eq 0 ]; then
  dpkg --root="$root" --log="$work/dpkg.log" -P barvon >"$work/said" 2>&1
  check "the package is taken away whole" \
    test -z "$(find "$root/usr" ! -type d 2>/dev/null)"
fi
exit $failed
