#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Tests that ./start and ./check need only a bare Debian 12: makes a new system, clones the committed tree into a folder
# whose name has blanks and diacritics, runs ./start without a display, then steps of ./check. Takes up to an hour.
# Use, as root: tools/bare-check.sh [STEP...]     steps of ./check; default: format rules build test start
#               MERO_CCACHE=FOLDER tools/bare-check.sh   uses this compiler cache
set -euo pipefail

root=$(dirname -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")")
steps=("$@")
[[ $# -gt 0 ]] || steps=(format rules build test start)
folder=$(mktemp -d)
system=$folder/system
trap '"$root/tools/clean-root.sh" remove "$system" || true; rm -rf "$folder"' EXIT

"$root/tools/clean-root.sh" new "$system"
tree="/home/stranger/Můj projekt/mero"
mkdir -p "$system/home/stranger/Můj projekt"
git clone -q --no-hardlinks "file://$root" "$system$tree"
binds=()
[[ -z ${MERO_CCACHE-} ]] || binds=(--bind "$MERO_CCACHE" /root/.cache/ccache)
inside() {
    "$root/tools/clean-root.sh" run "$system" "${binds[@]}" "$@"
}

echo "== packages of the bare system: $(inside dpkg-query -W | wc -l)"
echo "== ./start"
begin=$SECONDS
inside "$tree/start"
echo "== ./start took $((SECONDS - begin)) s"
begin=$SECONDS
inside "$tree/start" >/dev/null
echo "== a second ./start took $((SECONDS - begin)) s"
begin=$SECONDS
inside "$tree/check" "${steps[@]}"
echo "== ./check ${steps[*]} took $((SECONDS - begin)) s"
