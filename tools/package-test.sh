#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Tests the packages on bare systems: installs each on a new Debian 12, uses it as an ordinary user (every example with
# and without the window, the description pages, report, project files, PDF) and removes it.
# Needs the packages that tools/package.sh makes. Takes some minutes.
# Use, as root: tools/package-test.sh [deb] [portable]
set -euo pipefail

root=$(dirname -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")")
packages=$root/build/packages
folder=$(mktemp -d)
trap '[[ ! -d $folder/system ]] || "$root/tools/clean-root.sh" remove "$folder/system"; rm -rf "$folder"' EXIT

kinds=("$@")
[[ $# -gt 0 ]] || kinds=(deb portable)
for kind in "${kinds[@]}"; do
    case $kind in
        deb) package=$(echo "$packages"/mero_*.deb) ;;
        portable) package=$(echo "$packages"/mero-*.tar.gz) ;;
        *)
            echo "package-test: no such package: $kind" >&2
            exit 2
            ;;
    esac
    [[ -f $package ]] || {
        echo "package-test: there is no package yet: call tools/package.sh" >&2
        exit 2
    }
    begin=$SECONDS
    "$root/tools/clean-root.sh" new "$folder/system"
    mkdir -p "$folder/system/proof/scripts"
    cp "$package" "$root/tools/package_proof.sh" "$folder/system/proof"
    # Uses the expected traces of the tests.
    cp "$root"/examples/*.mero "$root"/tests/scripts/examples/*.trace \
        "$root"/tests/scripts/description_pages.{mero,trace} "$folder/system/proof/scripts"
    cp "$root"/examples/projekty/sachta.json "$folder/system/proof"
    echo "== $kind: a bare system, $(basename "$package")"
    "$root/tools/clean-root.sh" run "$folder/system" bash /proof/package_proof.sh "$kind" "/proof/$(basename "$package")"
    "$root/tools/clean-root.sh" remove "$folder/system"
    echo "== $kind: passed in $((SECONDS - begin)) s"
done
