#!/usr/bin/env bash
# Builds the game and runs every test through CTest.
#   scripts/test.sh              everything, release build in build/
#   scripts/test.sh --sanitize   the core and its tests with AddressSanitizer and UBSan, in build-sanitize/
# ORVANE_WERROR=ON in the environment turns warnings into errors, as CI does.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
if [ "${1:-}" = "--sanitize" ]; then
  build="$root/build-sanitize"
  "$root/scripts/setup.sh" "$build" -DCMAKE_BUILD_TYPE=RelWithDebInfo -DORVANE_CORE_ONLY=ON -DORVANE_SANITIZE=ON \
    -DORVANE_WERROR="${ORVANE_WERROR:-OFF}"
else
  build="$root/build"
  "$root/scripts/setup.sh" "$build" -DCMAKE_BUILD_TYPE=Release -DORVANE_WERROR="${ORVANE_WERROR:-OFF}"
fi
cd "$build"
ctest --output-on-failure -j2
