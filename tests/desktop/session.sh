# Sourced: `desktop_session DISPLAY COMMAND...` runs a command in a desktop of its own: an X server
# without a screen, a window manager, a session bus with the accessibility bus on it, and a folder
# for the person's files that goes when it ends.

desktop_session() {
  local display="$1"
  shift
  local home
  home=$(mktemp -d)
  (
    trap 'kill $(jobs -p) 2>/dev/null || true; wait 2>/dev/null || true; rm -rf "$home"' EXIT
    Xvfb "$display" -screen 0 1280x1024x24 -nolisten tcp >"$home/xvfb.log" 2>&1 &
    for _ in $(seq 100); do
      [ -S "/tmp/.X11-unix/X${display#:}" ] && break
      sleep 0.1
    done
    mkdir -m 700 "$home/runtime"
    export DISPLAY="$display" HOME="$home" XDG_RUNTIME_DIR="$home/runtime" LC_ALL=C.UTF-8
    unset WAYLAND_DISPLAY XDG_CONFIG_HOME XDG_DATA_HOME XDG_CACHE_HOME AT_SPI_BUS_ADDRESS
    export QT_ACCESSIBILITY=1 QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 QT_QPA_PLATFORM=xcb
    openbox >"$home/openbox.log" 2>&1 &
    # A window that comes up before its manager is not given the keyboard.
    for _ in $(seq 100); do
      xdotool get_num_desktops >/dev/null 2>&1 && break
      sleep 0.1
    done
    dbus-run-session -- bash -c '
      /usr/libexec/at-spi-bus-launcher --launch-immediately >/dev/null 2>&1 &
      bus=$!
      trap "kill $bus 2>/dev/null || true" EXIT
      "$@"' desktop "$@"
  )
}
