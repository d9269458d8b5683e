#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Proof that the packages work on machines that have nothing else: each is put on a new bare Debian 12, used there by an
# ordinary user (every example in the window and without it, the description pages, report, project files, PDF), and
# removed. Needs what tools/package.sh made; takes some minutes.
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
    # The expected traces are those of the tests.
    cp "$root"/examples/*.mero "$root"/tests/scripts/examples/*.trace \
        "$root"/tests/scripts/description_pages.{mero,trace} "$folder/system/proof/scripts"
    cp "$root"/examples/projekty/sachta.json "$folder/system/proof"
    echo "== $kind: a bare system, $(basename "$package")"
    "$root/tools/clean-root.sh" run "$folder/system" bash /proof/package_proof.sh "$kind" "/proof/$(basename "$package")"
    "$root/tools/clean-root.sh" remove "$folder/system"
    echo "== $kind: passed in $((SECONDS - begin)) s"
done
