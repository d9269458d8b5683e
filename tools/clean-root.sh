#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Makes a bare Debian 12 in a folder and runs commands inside it, like on a newly installed machine.
# Use, as root: tools/clean-root.sh new FOLDER                    makes the system (minbase, ca-certificates)
#               tools/clean-root.sh run FOLDER [--bind FROM TO]... COMMAND...   runs a command inside
#               tools/clean-root.sh remove FOLDER
# Downloads are kept in build/clean-root. Mounts and processes are in namespaces of their own and end with the command.
# DEBIAN_MIRROR sets another mirror.
set -euo pipefail

root=$(dirname -- "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")")
store=$root/build/clean-root
mirror=${DEBIAN_MIRROR:-http://deb.debian.org/debian}
mark=.clean-root

fail() {
    echo "clean-root: $*" >&2
    exit 1
}

new() {
    local folder=$1
    [[ ! -e $folder ]] || fail "$folder is there already"
    command -v debootstrap >/dev/null || fail "debootstrap is missing: apt-get install debootstrap"
    mkdir -p "$store/archives"
    if [[ ! -f $store/bookworm.tar ]]; then
        rm -rf "$store/making"
        debootstrap --variant=minbase --include=ca-certificates bookworm "$store/making" "$mirror" >"$store/debootstrap.log" 2>&1 ||
            fail "debootstrap failed, see $store/debootstrap.log"
        rm -f "$store/making"/var/cache/apt/archives/*.deb
        tar -C "$store/making" --one-file-system -cf "$store/bookworm.tar.new" .
        mv "$store/bookworm.tar.new" "$store/bookworm.tar"
        rm -rf "$store/making"
    fi
    mkdir -p "$folder"
    tar -C "$folder" -xf "$store/bookworm.tar"
    touch "$folder/$mark"
    cp /etc/resolv.conf "$folder/etc/resolv.conf"
    grep -q 'bookworm-security' "$folder/etc/apt/sources.list" || cat >>"$folder/etc/apt/sources.list" <<END
deb $mirror bookworm-updates main
deb ${mirror%/}-security bookworm-security main
END
}

# Mounts exist only inside the namespace, so removing the folder never deletes the contents of a bound folder.
run() {
    local folder=$1
    shift
    [[ -f $folder/$mark ]] || fail "$folder was not made by this program"
    local -a binds=("$store/archives" /var/cache/apt/archives)
    while [[ ${1-} == --bind ]]; do
        binds+=("$2" "$3")
        shift 3
    done
    # shellcheck disable=SC2016
    exec env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LANG=C.UTF-8 TERM=dumb DEBIAN_FRONTEND=noninteractive \
        unshare --mount --pid --fork --kill-child bash -euc '
            folder=$1 count=$2
            shift 2
            mount --make-rprivate /
            mount -t proc proc "$folder/proc"
            mount -t tmpfs -o mode=755 tmpfs "$folder/dev"
            mkdir "$folder/dev/shm" "$folder/dev/pts"
            mount -t tmpfs -o mode=1777 tmpfs "$folder/dev/shm"
            mount -t devpts -o newinstance,ptmxmode=0666 devpts "$folder/dev/pts"
            ln -s pts/ptmx "$folder/dev/ptmx"
            for device in null zero full random urandom tty; do
                touch "$folder/dev/$device"
                mount --bind "/dev/$device" "$folder/dev/$device"
            done
            ln -s /proc/self/fd "$folder/dev/fd"
            for name in stdin:0 stdout:1 stderr:2; do ln -s "/proc/self/fd/${name#*:}" "$folder/dev/${name%:*}"; done
            while [ "$count" -gt 0 ]; do
                mkdir -p "$folder/$2"
                mount --bind "$1" "$folder/$2"
                shift 2
                count=$((count - 2))
            done
            exec chroot "$folder" "$@"
        ' bash "$folder" "${#binds[@]}" "${binds[@]}" "$@"
}

remove() {
    [[ -f $1/$mark ]] || fail "$1 was not made by this program"
    rm -rf --one-file-system "$1"
}

[[ $(id -u) -eq 0 ]] || fail "this needs root: sudo $0 $*"
[[ $# -ge 2 ]] || fail "what? (new FOLDER, run FOLDER COMMAND..., remove FOLDER)"
case $1 in
    new | remove) "$1" "$2" ;;
    run)
        [[ $# -ge 3 ]] || fail "run which command?"
        run "${@:2}"
        ;;
    *) fail "no such action: $1" ;;
esac
