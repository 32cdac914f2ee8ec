#!/usr/bin/env bash
# Makes the pictures of the manual, docs/pictures/*.png, from the running client, so that they never
# go stale. A new picture is a row of tools/pictures/pictures.py and its place on a page.
#   tools/make_pictures.sh            all of them, from the release, which it builds
#   tools/make_pictures.sh BUILD      from the client and the practice node in that build folder
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/setup.sh

need "${RUN_PACKAGES[@]}" "${PICTURE_PACKAGES[@]}"
if [ $# -eq 0 ]; then
  need "${BUILD_PACKAGES[@]}"
  cmake --preset release
  cmake --build --preset release
fi

# A display and a bus of their own; no desktop's settings, no user's language or scale.
work=$(mktemp -d)
trap 'kill "$display" 2>/dev/null; rm -rf "$work"' EXIT
Xvfb -displayfd 3 -screen 0 1280x800x24 -nolisten tcp -noreset 3>"$work/number" 2>"$work/xvfb.log" &
display=$!
until [ -s "$work/number" ]; do
  kill -0 "$display" 2>/dev/null || { cat "$work/xvfb.log" >&2; exit 1; }
  sleep 0.1
done
# The bus and the registry of names have a good deal to say; it matters if something fails.
env -i PATH="$PATH" HOME="$work" XDG_RUNTIME_DIR="$work" LC_ALL=C.UTF-8 TZ=UTC \
  DISPLAY=":$(cat "$work/number")" QT_QPA_PLATFORM=xcb QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 \
  dbus-run-session -- /usr/bin/python3 -B tools/pictures/make.py "${1:-build/release}" "$work" \
  docs/pictures 2>"$work/errors" || { cat "$work/errors" >&2; exit 1; }
