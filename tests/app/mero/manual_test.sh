#!/bin/sh
# SPDX-License-Identifier: MIT
# Checks the window program's manual page with a checker of such pages and compares it with the program's help.
# Use: manual_test.sh MERO PAGE
set -u

mero=$1
page=$2
. "$(dirname -- "$0")/../../support/manual_page.sh"

options=$("$mero" --help | options_of_help)
[ -n "$options" ] || fail "the help names no options"
for option in $options; do
    expect_in_page "$option"
done

# Unusable arguments are reported in one line, before anything is shown.
told=$("$mero" --palette blue 2>&1)
status=$?
[ $status -eq 2 ] || fail "an unknown palette exits with $status"
[ "$told" = "mero: neither light nor dark: blue" ] || fail "an unknown palette is told as: $told"
[ $failures -eq 0 ]
