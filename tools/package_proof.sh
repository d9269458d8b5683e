#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Runs inside a bare system, started by tools/package-test.sh: installs a package, uses it as an ordinary user, removes it.
# Use: package_proof.sh deb|portable PACKAGE
set -euo pipefail

kind=$1 package=$2
clock=2026-11-20T14:05:09
scripts=/proof/scripts
user=jana
home=/home/$user
data=$home/.local/share/mero

failures=0
check() {
    local what=$1
    shift
    if "$@" >/proof/said 2>&1; then
        echo "  ok      $what"
    else
        echo "  FAILED  $what"
        head -n 30 /proof/said
        failures=$((failures + 1))
    fi
}

as_user() {
    runuser -u "$user" -- env -i PATH=/usr/bin:/bin HOME="$home" LANG=C.UTF-8 XDG_RUNTIME_DIR=/run/user/$user "$@"
}

apt() {
    apt-get -qq -o Dpkg::Use-Pty=0 "$@" >/proof/apt.log 2>&1 || {
        tail -n 20 /proof/apt.log
        exit 1
    }
}

# Prints a checksum of every system file. An ordinary user's work must not change them.
state() {
    find /usr /etc /opt -xdev -type f -newermt 2000-01-01 -print0 | sort -z | xargs -0 sha256sum
}

# follows FRONT FOLDER SCRIPT COMMAND...: compares the trace with the expected one; <folder> is the program's folder.
follows() {
    local folder=$1 script=$2 status=0
    shift 2
    local trace=/proof/trace
    as_user "$@" >"$trace" 2>/proof/errors || status=$?
    sed "s#<folder>#${folder//&/\\&}#g" "$scripts/$script.trace" >/proof/expected
    if ! diff /proof/expected "$trace" || [[ $status -ne 0 ]]; then
        echo "status $status"
        cat /proof/errors
        return 1
    fi
}

# uses FOLDER BIN: does what an ordinary user does with the programs in BIN, whose data are in FOLDER.
uses() {
    local folder=$1 bin=$2 script name
    for script in "$scripts"/*.mero; do
        name=$(basename "$script" .mero)
        check "$name, without a window" \
            follows "$folder" "$name" "$bin/mero-batch" run --clock "$clock" "$script"
        rm -f "$folder"/Mero_*
        check "$name, in the window" follows "$folder" "$name" \
            xvfb-run -a "$bin/mero" --clock "$clock" --script "$script"
        if [[ $name != description_pages ]]; then
            check "$name leaves its report" grep -aqs '</body><html>' "$folder"/Mero_*
        fi
        rm -f "$folder"/Mero_*
    done
    check "the data are there" test -s "$folder/mero.mdb" -a -s "$folder/Webs/Desc06.htm"
    check "a project file, with its report" \
        as_user "$bin/mero-batch" design --clock "$clock" --report "$home/šachta 1" /proof/sachta.json
    check "the report as PDF" as_user "$bin/mero" --export-pdf "$home/šachta 1" "$home/šachta 1.pdf"
    check "which is one" grep -qa '^%PDF' "$home/šachta 1.pdf"
    check "the rain of a station" as_user "$bin/mero-batch" stations Brno
    check "the version" grep -q '^mero [1-9]' <(as_user "$bin/mero" --version)
    # Without a script the window must stay open for some seconds and print nothing.
    check "the window stays open" stays_open "$bin/mero"
}

stays_open() {
    local status=0
    as_user timeout 4 xvfb-run -a "$@" >/proof/window 2>&1 || status=$?
    cat /proof/window
    [[ $status -eq 124 && ! -s /proof/window ]]
}

no_trace_of_it() {
    local found
    found=$(find / -xdev \( -path /proof -o -path /home -o -path /proc -o -path /var/cache/apt \) -prune -o \
        -iname '*mero*' ! -iname '*numero*' -print)
    echo "$found"
    [[ -z $found ]]
}

libraries_found() {
    local program
    for program in "$@"; do
        ldd "$program" | grep 'not found' && return 1
    done
    return 0
}

# Checks that every plugin finds its libraries; at run time the program has loaded those of its own folder.
plugins_complete() {
    local plugin
    find "$1/plugins" -name '*.so' ! -name '*cups*' -print0 >/proof/plugins
    while IFS= read -r -d '' plugin; do
        LD_LIBRARY_PATH="$1/lib" libraries_found "$plugin" || return 1
    done </proof/plugins
}

proof_of_deb() {
    apt install -y "$package"
    echo "  packages now: $(dpkg-query -W | wc -l), Qt $(dpkg-query -W -f '${Version}' libqt6core6)"
    apt install -y --no-install-recommends xvfb xauth
    check "every library is found" libraries_found /usr/bin/mero /usr/bin/mero-batch
    check "dpkg finds all files whole" dpkg --verify mero
    check "the manual pages" test -s /usr/share/man/man1/mero.1.gz -a -s /usr/share/man/man1/mero-batch.1.gz
    check "the user cannot write the program's data" \
        as_user sh -c '! test -w /usr/share/mero/mero.mdb && ! test -w /usr/share/mero && ! test -w /usr/bin'
    state >/proof/before
    check "no data folder before the first start" test ! -e "$data"
    uses "$data" /usr/bin
    check "the data folder holds only what the program needs" \
        diff <(printf '%s\n' Webs mero.mdb) <(ls "$data")
    check "its files are the installed ones" diff -r "$data/Webs" /usr/share/mero/Webs
    as_user sh -c "echo own >'$data/Webs/Desc01.htm'; rm '$data/Webs/Desc02.htm'"
    as_user mero-batch stations Brno >/dev/null
    check "what the user replaced stays" grep -qx own "$data/Webs/Desc01.htm"
    check "what he lost comes back" cmp "$data/Webs/Desc02.htm" /usr/share/mero/Webs/Desc02.htm
    state >/proof/after
    check "no file of the system changed" diff /proof/before /proof/after

    apt purge -y mero
    check "removed, nothing of it is left" no_trace_of_it
    check "but the user's own folder" test -s "$data/mero.mdb"
}

proof_of_portable() {
    # Libraries that every X11 desktop has.
    apt install -y --no-install-recommends xvfb xauth fonts-dejavu-core fontconfig \
        libgl1 libegl1 libopengl0 libx11-xcb1 libharfbuzz0b libglib2.0-0 libdbus-1-3 libstdc++6
    check "there is no Qt here" \
        sh -c '! dpkg-query -W | grep -E "^libqt"'
    local place="$home/Můj počítač/výpočty 2026"
    as_user mkdir -p "$place"
    as_user tar -C "$place" -xzf "$package"
    place=$(echo "$place"/mero-*)
    check "every library is found" libraries_found "$place"/mero{,-batch,-rain}
    check "those of the plugins, too" plugins_complete "$place"
    state >/proof/before
    uses "$place" "$place"
    check "nothing was put anywhere else" test ! -e "$home/.local/share/mero"

    echo "-- the folder is moved"
    mv "$place" "$home/jinde"
    check "it runs there" follows "$home/jinde" sachta-kruhova-a \
        xvfb-run -a "$home/jinde/mero" --clock "$clock" --script "$scripts/sachta-kruhova-a.mero"

    echo "-- unpacked by the administrator, for everybody"
    mkdir /opt/mero
    tar -C /opt/mero --strip-components=1 --no-same-owner -xzf "$package"
    state >/proof/before
    check "it runs with the data in the user's folder" follows "$data" sachta-kruhova-a \
        xvfb-run -a /opt/mero/mero --clock "$clock" --script "$scripts/sachta-kruhova-a.mero"
    check "which was filled" diff -r /opt/mero/Webs "$data/Webs"
    state >/proof/after
    check "no file of the system changed" diff /proof/before /proof/after
}

apt-get -qq update >/proof/apt.log 2>&1
useradd -m "$user"
# As a desktop session sets it.
install -d -o "$user" -m 700 "/run/user/$user"
chmod -R a+rX /proof
echo "  packages before: $(dpkg-query -W | wc -l)"
"proof_of_$kind"
if [[ $failures -gt 0 ]]; then
    echo "$failures checks FAILED"
    exit 1
fi
echo "  all checks passed"
