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
    # It waits for ever where the manager does not give the window the keyboard.
    timeout 5 xdotool windowactivate --sync "$id" 2>/dev/null || xdotool windowfocus "$id" || true
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

# Opens a project, looks at the database and the help, runs, leaves by Ctrl+Q. The program must end
# by itself; one that does not is ended here, so that the next one is not taken for it.
drive_window() { # HOME PROGRAM PROJECT
  local process code=0
  as_user "$1" "$2" >"$work/window.said" 2>&1 &
  process=$!
  if go_through "$3" $process; then
    wait $process || code=$?
  else
    code=1
    pkill -P $process || true
    wait $process || true
  fi
  cat "$work/window.said"
  [ $code -eq 0 ]
}

go_through() { # PROJECT PROCESS
  local project="$1" opened="^BARVON - $1" process="$2"
  press '^BARVON - UNTITLED' ctrl+o window '^Open$' || return 1
  xdotool type --delay 20 "$project"
  press '^Open$' Return window "$opened" || return 1
  press "$opened" 'Escape alt+t d' window 'Data ?[Bb]ase' || return 1
  press 'Data ?[Bb]ase' Escape no_window 'Data ?[Bb]ase' || return 1
  press "$opened" F1 window 'BARVON Help' || return 1
  press 'BARVON Help' Escape no_window 'BARVON Help' || return 1
  press "$opened" F5 test -s "${project%.DUI}.duc" || return 1
  sleep 1  # the run's end is told
  press "$opened" 'ctrl+q alt+y' ended "$process"
}

ended() { ! kill -0 "$1"; }
