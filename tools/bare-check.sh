#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Proof that ./start and ./check need nothing but a bare Debian 12: a new system, the committed tree cloned into a folder
# with blanks and diacritics, ./start (no display there), then steps of ./check. Takes the better part of an hour.
# Use, as root: tools/bare-check.sh [STEP...]     steps of ./check; default: format rules build test start
#               MERO_CCACHE=FOLDER tools/bare-check.sh   shares a compiler cache, to save time
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
