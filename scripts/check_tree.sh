#!/usr/bin/env bash
# Quick checks of the tree before any build: nothing may lean on a path of one machine, so a
# fresh clone builds anywhere (Debian's own package folders, /usr/..., are allowed), and every
# source keeps the project's layout.
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

# one layout for the whole tree, the project's .clang-format
if ! command -v clang-format >/dev/null; then
  sudo=""
  [ "$(id -u)" -ne 0 ] && sudo="sudo"
  $sudo env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends clang-format >/dev/null
fi
if ! git ls-files -z '*.h' '*.cpp' | xargs -0 clang-format --dry-run --Werror 2>/dev/null; then
  report "files that clang-format would change (run clang-format -i on them)"
fi

exit $failed
