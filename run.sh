#!/usr/bin/env bash
# Installs what is missing, builds the client and starts it on the built-in practice node.
#   ./run.sh           start it
#   ./run.sh --setup   only install what is missing
# Without a display it runs on a virtual one for 30 seconds and writes a screenshot.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
source tools/setup.sh

readonly HOME_FOLDER=$PWD/build/home
readonly SCREENSHOT=$PWD/build/screenshot.png
readonly SECONDS_ON_VIRTUAL_DISPLAY=30
started=()

case "${1:-}" in
  '' | --setup) ;;
  *)
    echo "Usage: ./run.sh [--setup]" >&2
    exit 2
    ;;
esac

# The last one started goes first: the client before its display.
stop_all() {
  local i
  for ((i = ${#started[@]} - 1; i >= 0; i--)); do
    kill "${started[i]}" 2>/dev/null || continue
    wait "${started[i]}" 2>/dev/null || true
  done
}
trap stop_all EXIT

# wait_until SECONDS WHAT COMMAND...: until the command succeeds.
wait_until() {
  local tries=$(($1 * 10)) what=$2
  shift 2
  until "$@" 2>/dev/null; do
    tries=$((tries - 1))
    if [ "$tries" -le 0 ]; then
      echo "Gave up waiting for $what." >&2
      exit 1
    fi
    sleep 0.1
  done
}

build() {
  cmake --preset release >build/configure.log || {
    cat build/configure.log >&2
    exit 1
  }
  cmake --build --preset release
}

# A folder of its own, never the user's. What is there stays.
prepare_home() {
  mkdir -p "$HOME_FOLDER"
  chmod 700 "$HOME_FOLDER"
  [ -e "$HOME_FOLDER/molva.cfg" ] && return
  printf '%s\r\n' '"My Call","K1TST-2"' '"My Name","ANNA"' '"My QTH","Ann Arbor, MI"' \
    '"My Grid","EN82DG"' '"Gmt Offset","Ok"' '"AutoStart",-1' '"AutoReconnect",-1' \
    '"SelectedNode","N0DE-1"' '"SelectedNodesAddress","127.0.0.1"' '"PrimaryPort","7373"' \
    >"$HOME_FOLDER/molva.cfg"
}

start_virtual_display() {
  local number=build/display-number
  rm -f "$number"
  Xvfb -displayfd 3 -screen 0 1280x800x24 -nolisten tcp 3>"$number" 2>build/xvfb.log &
  started+=($!)
  wait_until 10 "the virtual display" test -s "$number"
  DISPLAY=:$(cat "$number")
  export DISPLAY
  export QT_QPA_PLATFORM=xcb
}

run_on_virtual_display() {
  echo "No display here: running on a virtual one for $SECONDS_ON_VIRTUAL_DISPLAY seconds."
  start_virtual_display
  MOLVA_HOME=$HOME_FOLDER build/release/src/molva-desk &
  local client=$!
  started+=("$client")
  local seconds
  for ((seconds = 0; seconds < SECONDS_ON_VIRTUAL_DISPLAY; seconds++)); do
    sleep 1
    if ! kill -0 "$client" 2>/dev/null; then
      echo "The client ended early." >&2
      exit 1
    fi
  done
  import -window root "$SCREENSHOT"
  kill -TERM "$client"
  wait "$client"
  echo "Screenshot: $SCREENSHOT"
}

mkdir -p build
need "${BUILD_PACKAGES[@]}" "${RUN_PACKAGES[@]}"
if [ "${1:-}" = --setup ]; then exit 0; fi
build
prepare_home
if [ -n "${DISPLAY:-}" ]; then
  MOLVA_HOME=$HOME_FOLDER build/release/src/molva-desk
else
  run_on_virtual_display
fi
