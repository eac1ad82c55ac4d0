#!/usr/bin/env bash
# Starts the window and the graphics program on a display without a session bus, in a folder full
# of planted programs that stands in the search path as ".", as an empty entry and by a relative
# name, from a folder that everybody can write and that holds a `qt.conf` and folders for plugins.
# No plant may be started, no library looked for beside the programs, nothing written through a
# link under the name of the toolkit's settings.
#
#   tests/attacks/planted_starts.sh BIN
#
# Exit code 1 when a goal is missed. BIN holds barvon and kv_graph.
set -euo pipefail
bin="$(cd "$1" && pwd)"
here="$(mktemp -d)"
display=
trap '[ -z "$display" ] || kill "$display"; rm -rf "$here"' EXIT
missed=0
miss() { echo "MISSED: $*" >&2; missed=1; }

mkdir -p "$here/app" "$here/current/rel" "$here/home" "$here/runtime"
chmod 700 "$here/runtime"
chmod 1777 "$here/app"
cp "$bin/barvon" "$bin/kv_graph" "$here/app/"
for folder in "$here/current" "$here/current/rel"; do
  for plant in dbus-launch dbus-daemon xdg-open xdg-mime xdg-desktop-menu sh dosbox; do
    printf '#!/bin/sh\necho "$0" >>"%s"\n' "$here/started" >"$folder/$plant"
    chmod +x "$folder/$plant"
  done
done
for kind in platforms platformthemes platforminputcontexts xcbglintegrations \
  egldeviceintegrations generic styles imageformats iconengines accessible accessiblebridge \
  sqldrivers printsupport; do
  mkdir "$here/app/$kind"
  echo "no library" >"$here/app/$kind/libplant.so"
done
printf '[Paths]\nPrefix=%s\nPlugins=%s\n' "$here/app" "$here/app" >"$here/app/qt.conf"
echo precious >"$here/victim"
ln -s "$here/victim" "$here/app/QtProject.conf"

Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$here/display" 2>/dev/null &
display=$!
for _ in $(seq 100); do [ -s "$here/display" ] && break; sleep 0.1; done
export DISPLAY=":$(cat "$here/display")" HOME="$here/home" XDG_RUNTIME_DIR="$here/runtime"
export QT_ACCESSIBILITY=1 QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 QT_DEBUG_PLUGINS=1 QT_QPA_PLATFORM=xcb
unset DBUS_SESSION_BUS_ADDRESS AT_SPI_BUS_ADDRESS WAYLAND_DISPLAY QT_PLUGIN_PATH
unset XDG_CONFIG_HOME XDG_DATA_HOME
cd "$here/current"
starts=0
for path in ".:/usr/bin:/bin" ":rel:/usr/bin:/bin:" "/usr/bin:/bin:." "."; do
  for program in barvon kv_graph; do
    code=0
    # The windows stand for a moment; SIGTERM is how they are ended in good order.
    env PATH="$path" /usr/bin/timeout -k 20 5 "$here/app/$program" >"$here/said" 2>&1 || code=$?
    [ "$code" = 124 ] || miss "$program ended with $code, PATH=$path"
    grep -q 'checking directory path' "$here/said" || miss "$program does not tell where it looks"
    ! grep "checking directory path \"$here" "$here/said" >&2 || miss "$program, plugins"
    starts=$((starts + 1))
  done
done
[ ! -e "$here/started" ] || miss "started: $(sort -u "$here/started" | tr '\n' ' ')"
[ "$(cat "$here/victim")" = precious ] || miss "a link of the toolkit's settings was written through"
echo "$starts starts beside planted programs, plugins and settings"
exit "$missed"
