#!/usr/bin/env bash
# Installs what the game needs from Debian's packages (only what is missing) and builds it.
#   scripts/setup.sh BUILD_DIR [cmake options...]
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=$1
shift

packages=(cmake ninja-build g++ qt6-base-dev qt6-svg-dev libgl-dev xvfb xauth x11-apps imagemagick xdotool
          iso-flags-png-320x240)
missing=()
for package in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "ok installed" || missing+=("$package")
done
if [ ${#missing[@]} -gt 0 ]; then
  sudo=""
  [ "$(id -u)" -ne 0 ] && sudo="sudo"
  echo "Installing ${missing[*]}"
  $sudo env DEBIAN_FRONTEND=noninteractive apt-get update -q
  $sudo env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${missing[@]}"
fi

cmake -S "$root" -B "$build" -G Ninja "$@"
cmake --build "$build"
