#!/usr/bin/env bash
# Takes a picture of the running game under a virtual display.
#   scripts/screenshot.sh OUT.png [DELAY] [xdotool steps...]
# The game starts in build/bin; after DELAY seconds the optional xdotool steps run (for example
# "mousemove 300 400 click 1 sleep 1"), then the window is grabbed.
set -euo pipefail
out=$(realpath -m "$1")
delay=${2:-3}
shift $(( $# > 1 ? 2 : 1 ))
root=$(cd "$(dirname "$0")/.." && pwd)
cd "$root/build/bin"
xvfb-run -a -s "-screen 0 1100x700x24" bash -c '
  ./orvane & game=$!
  sleep '"$delay"'
  if [ $# -gt 0 ]; then xdotool "$@"; sleep 1; fi
  xwd -root -silent | convert xwd:- -resize 75% -colors 192 "'"$out"'"
  kill $game
' -- "$@"
echo "$out"
