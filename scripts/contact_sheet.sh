#!/usr/bin/env bash
# One picture of the drawn Resources at a glance: portraits in chance combinations, logos, icons,
# flags and the world map with its overlays.
#   scripts/contact_sheet.sh [BUILD_DIR] [OUT.png] [SEED]
# BUILD_DIR defaults to build/; the Resources tree is drawn there first if it is out of date.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)
build=$(realpath -m "${1:-$root/build}")
out=$(realpath -m "${2:-$build/contact_sheet.png}")
seed=${3:-1}
cmake --build "$build" --target orvane-art-resources
QT_QPA_PLATFORM=offscreen "$build/tools/art/orvane-art" --contact-sheet "$build/bin/Resources" "$out" "$seed"
echo "$out"
