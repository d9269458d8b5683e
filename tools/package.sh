#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Makes the Debian package and the portable archive in build/packages and checks them with lintian and others.
# Needs root only if packages are missing. The same commit gives the same bytes.
set -euo pipefail

root=$(dirname -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")")
target=$root/build/packages
"$root/tools/packages.sh" run build package
source "$root/tools/build.sh"
umask 022

# All times in the packages are the commit's.
SOURCE_DATE_EPOCH=$(git -C "$root" log -1 --format=%ct 2>/dev/null || stat -c %Y "$root/CMakeLists.txt")
export SOURCE_DATE_EPOCH

echo "== desktop entry, metadata, versions"
"$root/tools/checks/package_files.sh" "$root"

rm -rf "$target"
mkdir -p "$target"
for preset in package portable; do
    echo "== building: $preset"
    build_quietly "$preset"
    rm -rf "$root/build/$preset"/{_CPack_Packages,*.deb,*.tar.gz}
    log=$target/$preset.log
    (cd "$root/build/$preset" && cpack) >"$log" 2>&1 || {
        cat "$log" >&2
        exit 1
    }
    rm "$log"
done
mv "$root"/build/package/*.deb "$target"

# Packs the archive again: sorted by name, without the user's name, with the commit's time.
folders=("$root"/build/portable/_CPack_Packages/*/TGZ/*/)
[[ ${#folders[@]} -eq 1 ]]
name=$(basename "${folders[0]}")
tar --sort=name --owner=0 --group=0 --numeric-owner --mtime="@$SOURCE_DATE_EPOCH" \
    -C "$(dirname "${folders[0]}")" -c "$name" | gzip -9n >"$target/$name.tar.gz"

echo "== lintian"
lintian --fail-on error,warning --tag-display-limit 0 "$target"/*.deb
(cd "$target" && sha256sum -- * && ls -l -- *)
