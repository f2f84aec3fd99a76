#!/usr/bin/env bash
# Builds the game in release mode and starts it in build/bin, where its Resources lie.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
"$root/scripts/setup.sh" "$root/build" -DCMAKE_BUILD_TYPE=Release
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
  echo "Orvane needs a display to show its window and none was found; run the tests instead: scripts/test.sh"
  exit 1
fi
cd "$root/build/bin"
exec ./orvane
