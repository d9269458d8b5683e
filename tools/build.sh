# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# Sourced by ./start and ./check, which set $root: builds a preset in $root/build, with ccache where it is there.
: "${root:?}"

if command -v ccache >/dev/null; then
    export CMAKE_C_COMPILER_LAUNCHER=ccache CMAKE_CXX_COMPILER_LAUNCHER=ccache
    # Two checkouts in different folders share their objects.
    export CCACHE_BASEDIR=$root CCACHE_NOHASHDIR=1
fi
export CMAKE_BUILD_PARALLEL_LEVEL=${CMAKE_BUILD_PARALLEL_LEVEL:-$(nproc)}

# build_preset NAME: a build folder that was copied or moved here from elsewhere is configured anew.
build_preset() {
    local cache=$root/build/$1/CMakeCache.txt
    local -a fresh=()
    if [[ -f $cache ]] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$cache"; then
        fresh=(--fresh)
    fi
    # What was built before ccache was installed is not built again for its sake.
    local -a plain=()
    if [[ -f $cache && ${#fresh[@]} -eq 0 ]] && ! grep -q '^CMAKE_CXX_COMPILER_LAUNCHER:.*=ccache' "$cache"; then
        plain=(env -u CMAKE_C_COMPILER_LAUNCHER -u CMAKE_CXX_COMPILER_LAUNCHER)
    fi
    (cd "$root" && "${plain[@]}" cmake --preset "$1" "${fresh[@]}" && cmake --build --preset "$1")
}

# The same without a word, unless it fails: then its last lines.
build_quietly() {
    local log=$root/build/$1.log
    mkdir -p "$root/build"
    if ! build_preset "$1" >"$log" 2>&1; then
        tail -n 40 "$log" >&2
        echo "The build of $1 failed; its last lines are above, all of them in $log" >&2
        return 1
    fi
}
