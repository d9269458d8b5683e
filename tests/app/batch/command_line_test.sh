#!/bin/sh
# SPDX-License-Identifier: MIT
# The command line of mero-batch: exit status, standard output and standard error.
# Use: command_line_test.sh MERO_BATCH SOURCE_FOLDER
batch=$1
source=$2
scratch=$(mktemp -d) || exit 1
trap 'rm -rf "$scratch"' EXIT
mkdir "$scratch/folder"
failures=0

# check NAME STATUS OUT ERR: the last run's status, standard output, and a text that standard error contains.
check() {
    if [ "$status" -ne "$2" ]; then
        echo "$1: status $status, not $2"
        failures=$((failures + 1))
    fi
    if [ "$(cat "$scratch/out")" != "$3" ]; then
        echo "$1: standard output is: $(cat "$scratch/out")"
        failures=$((failures + 1))
    fi
    if ! grep -qF -- "$4" "$scratch/err" && [ -n "$4" ]; then
        echo "$1: standard error is: $(cat "$scratch/err")"
        failures=$((failures + 1))
    fi
    if [ -z "$4" ] && [ -s "$scratch/err" ]; then
        echo "$1: standard error is not empty: $(cat "$scratch/err")"
        failures=$((failures + 1))
    fi
}
run() {
    "$batch" "$@" >"$scratch/out" 2>"$scratch/err" </dev/null
    status=$?
}
# follow TEXT [OPTIONS]: runs a script file with the text.
follow() {
    printf '%b' "$1" >"$scratch/a b.mero"
    shift
    run run --folder "$scratch/folder" "$@" "$scratch/a b.mero"
}

run
check "no command" 2 "" "usage: mero-batch"
run nothing
check "unknown command" 2 "" "unknown command nothing"
run run
check "no script" 2 "" "which script"
run run "$scratch/none.mero"
check "missing script" 2 "" "cannot read the script"
run run "$scratch"
check "a folder as script" 2 "" "cannot read the script"
run run --folder "$scratch/none" -
check "missing folder" 2 "" "no such folder"
run run --clock yesterday -
check "bad clock" 2 "" "yesterday"
run run --wrong -
check "unknown option" 2 "" "--wrong"
run run a b
check "two scripts" 2 "" "more than one script"
run run --folder "$scratch/folder" -
check "empty standard input" 0 "" ""

follow ''
check "empty script" 0 "" ""
follow 'echo "a"\n'
check "echo" 0 '{"echo": "a"}' ""
follow 'tick\nget lblTime\n' --clock 2026-11-20T03:04:05
check "frozen clock" 0 \
    '{"get": "lblTime", "kind": "label", "enabled": true, "visible": true, "text": "03:04:05"}' ""
follow 'echo a\n\njump\n'
check "unknown action" 2 '{"echo": "a"}' "a b.mero:3: "
follow 'echo a\nget txtNone\n'
check "unknown control" 2 '{"echo": "a"}' "a b.mero:2: "
follow 'close frmCalc\njump\n'
check "closed" 0 '{"closed": "frmCalc"}
{"ended": true}' ""

printf 'echo "ze vstupu"\n' | "$batch" run --folder "$scratch/folder" - >"$scratch/out" 2>"$scratch/err"
status=$?
check "standard input" 0 '{"echo": "ze vstupu"}' ""
printf 'jump\n' | "$batch" run --folder "$scratch/folder" - >"$scratch/out" 2>"$scratch/err"
status=$?
check "unusable standard input" 2 "" "-:1: "

# A whole example, from another folder, with a relative path of the program's folder.
cp -r "$source/Webs" "$source/data/mero.mdb" "$scratch/folder"
(cd "$scratch" && "$batch" run --folder folder "$source/examples/plosne-vsakovani.mero" >out 2>err)
status=$?
[ "$status" -eq 0 ] && [ -f "$scratch/folder/Mero_Plošné vsakování" ] || {
    echo "example: status $status, $(cat "$scratch/err")"
    failures=$((failures + 1))
}

run --help
[ "$status" -eq 0 ] && grep -q '^usage: mero-batch' "$scratch/out" || failures=$((failures + 1))
run run --help
[ "$status" -eq 0 ] && grep -q '^usage: mero-batch run' "$scratch/out" || failures=$((failures + 1))
run --version
[ "$status" -eq 0 ] && grep -q '^mero-batch [0-9]' "$scratch/out" || failures=$((failures + 1))

# Nothing of a window system is linked.
if command -v ldd >/dev/null && ldd "$batch" | grep -qE 'libQt|libX11|libwayland'; then
    echo "mero-batch links a window system"
    failures=$((failures + 1))
fi

[ "$failures" -eq 0 ] || echo "$failures failures"
[ "$failures" -eq 0 ]
