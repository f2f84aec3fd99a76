#!/usr/bin/env bash
# Builds the game and runs every test through CTest.
#   scripts/test.sh              everything, release build in build/
#   scripts/test.sh --sanitize   the core and its tests with AddressSanitizer and UBSan, in build-sanitize/
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
if [ "${1:-}" = "--sanitize" ]; then
  build="$root/build-sanitize"
  "$root/scripts/setup.sh" "$build" -DCMAKE_BUILD_TYPE=RelWithDebInfo -DORVANE_CORE_ONLY=ON -DORVANE_SANITIZE=ON
else
  build="$root/build"
  "$root/scripts/setup.sh" "$build" -DCMAKE_BUILD_TYPE=Release
fi
cd "$build"
ctest --output-on-failure -j2
