#!/usr/bin/env bash
# Installs the Debian packages that building, running and testing need, if any
# is missing. Says nothing when everything is already there.
set -euo pipefail

PACKAGES=(
  g++ cmake ninja-build pkg-config
  qt6-base-dev qt6-serialport-dev libgl-dev
  xvfb xauth fonts-dejavu-core poppler-utils
  desktop-file-utils appstream
)

missing=()
for package in "${PACKAGES[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed"; then
    missing+=("$package")
  fi
done
((${#missing[@]} == 0)) && exit 0

sudo=""
if [ "$(id -u)" -ne 0 ]; then sudo="sudo"; fi
echo "Installing missing packages: ${missing[*]}"
$sudo apt-get update -qq
DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq "${missing[@]}" >/dev/null
