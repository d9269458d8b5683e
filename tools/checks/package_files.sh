#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Checks the desktop entry, the AppStream metadata, and that every version number is the project's.
# Use: package_files.sh ROOT
set -euo pipefail

root=$1
failures=0
wrong() {
    echo "package_files: $*" >&2
    failures=$((failures + 1))
}

# The tool exits with success on warnings, so its output is checked.
said=$(desktop-file-validate "$root/packaging/mero.desktop" 2>&1) || true
[[ -z $said ]] || wrong "$said"
said=$(appstreamcli validate --no-net --explain "$root/packaging/local.mero.mero.metainfo.xml" 2>&1) || wrong "$said"

version=$(sed -n 's/^project(mero VERSION \([0-9.]*\) .*/\1/p' "$root/CMakeLists.txt")
[[ -n $version ]] || wrong "CMakeLists.txt names no version"
released=$(sed -n 's/.*<release version="\([^"]*\)" date=.*/\1/p' "$root/packaging/local.mero.mero.metainfo.xml" | head -n 1)
[[ $released == "$version" ]] || wrong "the metadata's latest release is $released, the project's version $version"
packed=$(sed -n '1s/^mero (\([^-]*\)-.*/\1/p' "$root/packaging/debian/changelog")
[[ $packed == "$version" ]] || wrong "the Debian changelog begins with $packed, the project's version is $version"

# Each program that users call has a manual page; the menu entry starts one of these programs.
for program in mero mero-batch; do
    [[ -f $root/docs/man/$program.1 ]] || wrong "docs/man/$program.1 is missing"
done
grep -qx 'Exec=mero %f' "$root/packaging/mero.desktop" || wrong "the menu entry does not start mero"
type=$(sed -n 's/.*<mime-type type="\([^"]*\)">.*/\1/p' "$root/packaging/mero-project.xml")
grep -qx "MimeType=$type;" "$root/packaging/mero.desktop" || wrong "the menu entry does not open $type"
for size in 16 22 24 32 48 64 128 256; do
    picture=$root/packaging/icons/${size}x$size/apps/mero.png
    # A PNG header holds the width and the height as 4-byte big-endian numbers.
    [[ -f $picture && $(od -An -tu1 -j16 -N8 "$picture" | tr -s ' ') == \
        " 0 0 $((size / 256)) $((size % 256)) 0 0 $((size / 256)) $((size % 256))" ]] || wrong "$picture is not $size pixels"
done
exit $((failures > 0))
