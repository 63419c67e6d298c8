#!/usr/bin/env bash
# Sets the machine up, builds Tarvane Tides and starts it. With no display: today's tides in the terminal, and a picture of
# the main window.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

tools/setup.sh run

build=build/release
log=$build/build.log
mkdir -p "$build"
[ -x "$build/bin/tarvane" ] || echo "Building (the first time takes some minutes) ..."
if ! { { [ -f "$build/build.ninja" ] || cmake --preset release; } && cmake --build --preset release --target program; } >"$log" 2>&1; then
  tail -n 30 "$log" >&2
  echo "The build failed: all of it stands in $log" >&2
  exit 1
fi

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec "$build/bin/tarvane"
fi
echo "There is no display here, so the window can't be opened. Today's tides instead:"
echo
"$build/bin/tides"
picture=$build/mainwindow.png
if [ -z "${XDG_RUNTIME_DIR:-}" ]; then
  XDG_RUNTIME_DIR=$(mktemp -d)
  export XDG_RUNTIME_DIR
  trap 'rmdir "$XDG_RUNTIME_DIR"' EXIT
fi
"$build/bin/shots" --mainwindow "$picture"
echo
echo "A picture of the main window: $picture"
