#!/usr/bin/env bash
# Installs what is missing, builds QEL Setup with its tests and runs the whole
# suite headless. QEL_SANITIZE=1 builds with AddressSanitizer and UBSan instead.
set -euo pipefail
cd "$(dirname "$0")"
bash tools/install-deps.sh
if [ "${QEL_SANITIZE:-0}" = 1 ]; then
  BUILD_DIR=${BUILD_DIR:-build-asan}
  options=(-DCMAKE_BUILD_TYPE=Debug -DQEL_SANITIZE=ON)
  export ASAN_OPTIONS=${ASAN_OPTIONS:-detect_leaks=0:abort_on_error=1}
  export UBSAN_OPTIONS=${UBSAN_OPTIONS:-print_stacktrace=1:halt_on_error=1}
else
  BUILD_DIR=${BUILD_DIR:-build-test}
  options=(-DCMAKE_BUILD_TYPE=RelWithDebInfo)
fi
[ -f "$BUILD_DIR/build.ninja" ] || cmake -S . -B "$BUILD_DIR" -G Ninja "${options[@]}" >/dev/null
if ! cmake --build "$BUILD_DIR" -j "$(nproc)" >"$BUILD_DIR/build.log" 2>&1; then
  grep -vE '^\[[0-9]+/[0-9]+\]' "$BUILD_DIR/build.log"
  exit 1
fi
export QT_QPA_PLATFORM=offscreen
cd "$BUILD_DIR"
ctest --output-on-failure -j "$(nproc)"
