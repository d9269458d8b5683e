# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# Sourced by ./start and ./check, which set $root: builds a preset in $root/build, with ccache if it is installed.
: "${root:?}"

if command -v ccache >/dev/null; then
    export CMAKE_C_COMPILER_LAUNCHER=ccache CMAKE_CXX_COMPILER_LAUNCHER=ccache
    # Lets checkouts in different folders share cached objects.
    export CCACHE_BASEDIR=$root CCACHE_NOHASHDIR=1
fi
export CMAKE_BUILD_PARALLEL_LEVEL=${CMAKE_BUILD_PARALLEL_LEVEL:-$(nproc)}

# configure_preset NAME: configures a build folder. One that was copied or moved here is configured from scratch.
configure_preset() {
    local cache=$root/build/$1/CMakeCache.txt
    local -a fresh=()
    if [[ -f $cache ]] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$cache"; then
        fresh=(--fresh)
    fi
    # A folder that was built before ccache was installed stays without it, to avoid a full rebuild.
    local -a plain=()
    if [[ -f $cache && ${#fresh[@]} -eq 0 ]] && ! grep -q '^CMAKE_CXX_COMPILER_LAUNCHER:.*=ccache' "$cache"; then
        plain=(env -u CMAKE_C_COMPILER_LAUNCHER -u CMAKE_CXX_COMPILER_LAUNCHER)
    fi
    (cd "$root" && "${plain[@]}" cmake --preset "$1" "${fresh[@]}")
}

# build_preset NAME [TARGET...]: configures and builds.
build_preset() {
    local name=$1
    shift
    configure_preset "$name" && (cd "$root" && cmake --build --preset "$name" ${1:+--target "$@"})
}

# build_quietly NAME [TARGET...]: the same, but prints only the last lines, and only if it fails.
build_quietly() {
    local log=$root/build/$1.log
    mkdir -p "$root/build"
    if ! build_preset "$@" >"$log" 2>&1; then
        tail -n 40 "$log" >&2
        echo "The build of $1 failed; its last lines are above, all of them in $log" >&2
        return 1
    fi
}
