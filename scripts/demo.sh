#!/usr/bin/env bash
# demo.sh TICKLOG FOLDER: shows Ticklog at work where there is no display. On a private screen with a window manager and
# a few real programs, Ticklog follows what is in front for some fifteen seconds; then its record is printed, and FOLDER
# holds the picture of its window. Nothing of the user's is touched, and nothing keeps running.
set -euo pipefail
here=$(dirname "${BASH_SOURCE[0]}")
ticklog=$(realpath "$1")
mkdir -p "$2"
picture=$(realpath "$2")/ticklog.png

# Not where $TMPDIR says: the addresses of sockets are short and plain, and the display has one here in any case.
place=$(mktemp -d /tmp/ticklog-demo.XXXXXX)
started=()
leave() {
  local i
  for ((i = ${#started[@]} - 1; i >= 0; --i)); do
    # Programs that have ended already are no error.
    kill "${started[i]}" 2>/dev/null || true
    wait "${started[i]}" 2>/dev/null || true
  done
  rm -rf "$place"
}
trap leave EXIT
trap 'exit 130' INT TERM

# start LOG COMMAND...: in the background; ended with the rest. Leaves the process number in $last.
start() { local log=$place/$1.log; shift; "$@" >"$log" 2>&1 & last=$!; started+=("$last"); }

# wait_for WHAT LOG COMMAND...: until the command succeeds, for at most half a minute.
wait_for() {
  local what=$1 log=$place/$2.log tries=300; shift 2
  until "$@" >/dev/null 2>&1; do
    if ((--tries == 0)); then echo "demo: $what did not come up" >&2; cat "$log" >&2; exit 1; fi
    sleep 0.1
  done
}

export HOME=$place/home XDG_RUNTIME_DIR=$place/run LC_ALL=C.UTF-8 QT_QPA_PLATFORM=xcb
export XDG_DATA_HOME=$HOME/.local/share XDG_CONFIG_HOME=$HOME/.config XDG_CACHE_HOME=$HOME/.cache XDG_STATE_HOME=$HOME/.state
unset WAYLAND_DISPLAY XAUTHORITY XDG_CURRENT_DESKTOP XDG_SESSION_ID QT_STYLE_OVERRIDE LANGUAGE
mkdir -m 700 "$HOME" "$XDG_RUNTIME_DIR" "$XDG_CONFIG_HOME"

# -noreset: the server would reset when its last client leaves, such as a program that only looks.
start display Xvfb -displayfd 9 -screen 0 1100x760x24 -nolisten tcp -ac -noreset 9>"$place/display"
wait_for "the display" display test -s "$place/display"
DISPLAY=:$(cat "$place/display"); export DISPLAY
export DBUS_SESSION_BUS_ADDRESS=unix:path=$place/bus
start bus dbus-daemon --session --nofork --nopidfile --address="$DBUS_SESSION_BUS_ADDRESS"
wait_for "the bus" bus test -S "$place/bus"
start windows openbox
wait_for "the window manager" windows sh -c 'xprop -root _NET_SUPPORTING_WM_CHECK | grep -q "window id"'

# Two terminals whose titles we set, as an editor sets its title to the file's name.
terminal() {
  mkfifo "$place/$1"
  start "$1" xterm -geometry "$2" -title "$3" -e sh -c "while read -r title; do printf '\\033]2;%s\\007' \"\$title\"; done <'$place/$1'"
}
terminal letter 60x14+20+20 "Letter to Anna"; letter=$last
terminal report 60x14+60+420 "Yearly report"; report=$last
exec 7>"$place/letter" 8>"$place/report"
start calculator xcalc -geometry +700+60

# The settings say that the timer ran when Ticklog was last quit, so it runs from the beginning.
cat >"$XDG_CONFIG_HOME/org.ticklog.Ticklog.plist" <<'XML'
<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0">
<dict>
	<key>kTKWasTimerRunning</key>
	<true/>
</dict>
</plist>
XML
start ticklog "$ticklog"; process=$last

window() { xdotool search --onlyvisible "$@" 2>/dev/null | head -n 1; }
is_there() { [ -n "$(window "$@")" ]; }
wait_for "the first terminal" letter is_there --pid "$letter"
wait_for "the second terminal" report is_there --pid "$report"
wait_for "the calculator" calculator is_there --class XCalc
wait_for "Ticklog" ticklog is_there --all --pid "$process" --name '^Ticklog$'
front() { xdotool windowactivate "$(window "$@")" >/dev/null 2>&1 || true; }

echo "demo: Ticklog follows what is in front for fifteen seconds" >&2
front --pid "$letter"; sleep 3
echo "Letter to Anna, second page" >&7; sleep 2
front --pid "$report"; sleep 3
front --class XCalc; sleep 3
front --pid "$report"
echo "Yearly report (saved)" >&8; sleep 2
front --all --pid "$process" --name '^Ticklog$'; sleep 1
# The last row is that of the terminals; opening it shows their windows.
xdotool key End Right; sleep 1
import -frame -window "$(window --all --pid "$process" --name '^Ticklog$')" "$picture"

# On this signal Ticklog saves and quits.
kill -TERM "$process"
status=0; wait "$process" || status=$?
[ "$status" = 0 ] || { echo "demo: Ticklog ended with $status" >&2; cat "$place/ticklog.log" >&2; exit 1; }

store="$XDG_DATA_HOME/Ticklog/Primary Database.tkd"
[ -s "$store" ] || { echo "demo: Ticklog saved nothing" >&2; cat "$place/ticklog.log" >&2; exit 1; }
echo "What Ticklog recorded:"
awk -f "$here/tree.awk" "$store"
echo "The picture of its window: $picture"
