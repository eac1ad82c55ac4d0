# Sourced by check_package.sh: drives the window program on $DISPLAY by its keys, as a user with a
# home folder. A key that a busy machine has lost is pressed again.

window() { xdotool search --onlyvisible --name "$1" | head -n 1 | grep .; }
no_window() { ! window "$1"; }

wait_for() { # TENTHS OF A SECOND, COMMAND...
  local i tenths="$1"
  shift
  for i in $(seq "$tenths"); do
    if "$@" >/dev/null 2>&1; then return 0; fi
    sleep 0.1
  done
  return 1
}

# Presses keys in a window, one after the other, until the condition holds; two minutes at most.
press() { # WINDOW NAME, "KEY KEY...", CONDITION...
  local name="$1" keys="$2" id key round
  shift 2
  for round in $(seq 12); do
    wait_for 100 window "$name" || true
    id=$(window "$name") || continue
    xdotool windowactivate --sync "$id" 2>/dev/null || xdotool windowfocus "$id" || true
    for key in $keys; do
      xdotool key "$key"
      sleep 0.3
    done
    if wait_for 100 "$@"; then return 0; fi
  done
  echo "$keys in $name: not seen: $*" >&2
  xdotool search --onlyvisible --name '.' getwindowname %@ >&2 || true
  return 1
}

# Opens a project, looks at the database and the help, runs, leaves by Ctrl+Q. The program must end by itself.
drive_window() { # HOME PROGRAM PROJECT
  local home="$1" program="$2" project="$3" process code=0
  local opened="^BARVON - $project"
  as_user "$home" "$program" >"$work/window.said" 2>&1 &
  process=$!
  processes+=($process)
  press '^BARVON - UNTITLED' ctrl+o window '^Open$' || return 1
  xdotool type --delay 20 "$project"
  press '^Open$' Return window "$opened" || return 1
  press "$opened" 'Escape alt+t d' window 'Data ?[Bb]ase' || return 1
  press 'Data ?[Bb]ase' Escape no_window 'Data ?[Bb]ase' || return 1
  press "$opened" F1 window 'BARVON Help' || return 1
  press 'BARVON Help' Escape no_window 'BARVON Help' || return 1
  press "$opened" F5 test -s "${project%.DUI}.duc" || return 1
  sleep 1  # the run's end is told
  press "$opened" 'ctrl+q alt+y' ended $process || return 1
  wait "$process" || code=$?
  cat "$work/window.said"
  [ "$code" -eq 0 ]
}

ended() { ! kill -0 "$1"; }
