#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Tests an installed copy, also after its folder was moved: rain reader, data, description pages, PDF.
# The program must not change the installed files: it writes to the user's data folder.
# Use: installed_copy.sh CMAKE BUILD_FOLDER SOURCE_FOLDER
set -euo pipefail

cmake=$1 build=$2 source=$3
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() {
    echo "installed_copy: $*" >&2
    exit 1
}

prefix="$work/místo s mezerami"
"$cmake" --install "$build" --prefix "$prefix" >"$work/log" 2>&1 || fail "$(tail -n 5 "$work/log")"
state() {
    (cd "$prefix" && find . -type f -print0 | sort -z | xargs -0 sha256sum)
}
state >"$work/before"

export XDG_DATA_HOME="$work/data uživatele"
follow() {
    local script=$1 expected=$2
    "$prefix/bin/mero-batch" run --clock 2026-11-20T14:05:09 "$script" >"$work/trace"
    sed "s#<folder>#$XDG_DATA_HOME/mero#g" "$expected" | diff - "$work/trace" || fail "another trace of $script"
}
example=$source/tests/scripts/examples/sachta-kruhova-a.trace
follow "$prefix/share/mero/examples/sachta-kruhova-a.mero" "$example"
follow "$source/tests/scripts/description_pages.mero" "$source/tests/scripts/description_pages.trace"
[[ $(LC_ALL=C ls --ignore='Mero_*' "$XDG_DATA_HOME/mero") == $'Webs\nmero.mdb' ]] || fail "the data folder holds something else"
diff -r "$prefix/share/mero/Webs" "$XDG_DATA_HOME/mero/Webs"

"$prefix/bin/mero" --export-pdf "$(ls "$XDG_DATA_HOME"/mero/Mero_*)" "$work/report.pdf" 2>"$work/log"
[[ $(head -c 5 "$work/report.pdf") == %PDF- ]] || fail "no PDF file"

for file in share/applications/mero.desktop share/mime/packages/mero-project.xml share/metainfo/local.mero.mero.metainfo.xml share/man/man1/mero-batch.1.gz \
    share/icons/hicolor/16x16/apps/mero.png share/icons/hicolor/scalable/apps/mero.svg share/doc/mero/licences.md; do
    [[ -s $prefix/$file ]] || fail "$file is missing"
done

state | diff "$work/before" - || fail "an installed file changed"
mv "$prefix" "$work/jinde"
prefix=$work/jinde
follow "$prefix/share/mero/examples/sachta-kruhova-a.mero" "$example"
