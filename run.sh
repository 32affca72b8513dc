#!/usr/bin/env bash
# Installs what is missing, builds QEL Setup and starts it.
set -euo pipefail
cd "$(dirname "$0")"
bash tools/install-deps.sh
BUILD_DIR=${BUILD_DIR:-build}
[ -f "$BUILD_DIR/build.ninja" ] || cmake -S . -B "$BUILD_DIR" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
if ! cmake --build "$BUILD_DIR" --target qelsetup >"$BUILD_DIR/build.log" 2>&1; then
  grep -vE '^\[[0-9]+/[0-9]+\]' "$BUILD_DIR/build.log"
  exit 1
fi
if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  # No screen (a server or a container): run on a virtual one.
  exec xvfb-run -a "$BUILD_DIR/qelsetup" "$@"
fi
exec "$BUILD_DIR/qelsetup" "$@"
