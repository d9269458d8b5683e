#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Lists the Debian packages that MERO needs, in groups, and installs them.
# Use: tools/packages.sh GROUP...   installs the missing packages of the groups; asks no questions.
#      tools/packages.sh --missing GROUP...   only prints the missing packages.
set -euo pipefail

declare -A packages=(
    [run]="libqt6widgets6 libqt6printsupport6 qt6-qpa-plugins qt6-translations-l10n fonts-dejavu-core"
    [build]="g++ cmake ninja-build pkg-config qt6-base-dev nlohmann-json3-dev"
    [check]="libgtest-dev libgmock-dev librapidcheck-dev
             clang-14 clang-tidy-14 clang-format-14 libclang-rt-14-dev lld-14 ccache
             desktop-file-utils appstream
             mdbtools xvfb xauth chromium poppler-utils locales
             at-spi2-core gir1.2-atspi-2.0 python3-gi dbus-daemon xdotool
             python3 python3-jsonschema mandoc default-jdk-headless maven"
    [package]="dpkg-dev lintian appstream desktop-file-utils"
    [bench]="libbenchmark-dev"
    [screenshots]="xvfb openbox xdotool imagemagick at-spi2-core dbus python3-pyatspi"
    [coverage]="gcovr"
)

fail() {
    echo "packages: $*" >&2
    exit 1
}

# Prints the packages of the groups that are not installed, one per line.
missing() {
    local group name
    local -a wanted=()
    for group in "$@"; do
        [[ -v packages[$group] ]] || fail "no such group: $group (there are: ${!packages[*]})"
        for name in ${packages[$group]}; do
            wanted+=("$name")
        done
    done
    # dpkg-query prints nothing for an unknown package.
    local installed
    installed=$(dpkg-query -W -f '${db:Status-Status} ${Package}\n' "${wanted[@]}" 2>/dev/null || true)
    for name in "${wanted[@]}"; do
        grep -qx "installed $name" <<<"$installed" || echo "$name"
    done
}

only_list=no
if [[ ${1-} == --missing ]]; then
    only_list=yes
    shift
fi
[[ $# -gt 0 ]] || fail "which group? (there are: ${!packages[*]})"
if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
    fail "this needs Debian (dpkg-query, apt-get). On another system install the counterparts of what" \
        "stands at the top of tools/packages.sh and build with CMake: see README.md"
fi

list=$(missing "$@")
if [[ $only_list == yes || -z $list ]]; then
    [[ -z $list ]] || echo "$list"
    exit 0
fi
mapfile -t names <<<"$list"

as_root=()
if [[ $(id -u) -ne 0 ]]; then
    command -v sudo >/dev/null ||
        fail "packages are missing and you are neither root nor is there sudo. As root: apt-get install ${names[*]}"
    as_root=(sudo)
    # Without a terminal nobody could type a password: fail at once instead of waiting.
    [[ -t 0 ]] || as_root=(sudo -n)
fi

log=$(mktemp)
trap 'rm -f "$log"' EXIT
apt() {
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive LC_ALL=C.UTF-8 \
        apt-get -qq -o Dpkg::Use-Pty=0 -o DPkg::Lock::Timeout=300 "$@" </dev/null >>"$log" 2>&1
}
echo "packages: refreshing the package lists"
apt -o APT::Update::Error-Mode=any update || echo "packages: the package lists could not be refreshed; trying with those that are here"
echo "packages: installing ${names[*]}"
if ! apt install -y --no-install-recommends "${names[@]}"; then
    tail -n 15 "$log" >&2
    fail "apt-get could not install what is missing (its last lines are above)." \
        "Check the network, the free disk space and /etc/apt/sources.list, then call again." \
        "By hand, as root: apt-get install ${names[*]}"
fi
