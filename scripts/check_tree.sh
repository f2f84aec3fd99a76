#!/usr/bin/env bash
# Quick checks of the tree before any build: nothing may lean on a path of one machine, so a
# fresh clone builds anywhere. Debian's own package folders (/usr/...) are allowed.
set -euo pipefail
cd "$(dirname "$0")/.."

failed=0
report() {
  echo "check_tree: $1" >&2
  failed=1
}

# an include by an absolute path only builds where that path exists
if git grep -nE '^\s*#\s*include\s*[<"]/' -- '*.h' '*.cpp'; then
  report "includes by an absolute path (above)"
fi
# scratch and home folders of a machine, wherever they are named
if git grep -nE '(^|[^A-Za-z0-9_.$])/(work|tmp|home|root|mnt|opt|srv|scratch)(/|\b)' -- \
     ':!*.png' ':!*.jpg' ':!*.svg' ':!*.tsv' ':!data/names/*'; then
  report "paths of one machine (above)"
fi

exit $failed
