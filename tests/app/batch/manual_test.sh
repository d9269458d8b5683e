#!/bin/sh
# SPDX-License-Identifier: MIT
# Checks the manual page with a checker of such pages and compares it with the commands' help.
# Use: manual_test.sh MERO_BATCH PAGE
set -u

batch=$1
page=$2
. "$(dirname -- "$0")/../../support/manual_page.sh"

for command in run design sweep stations rain; do
    options=$("$batch" $command --help | options_of_help)
    [ -n "$options" ] || fail "the help of $command names no options"
    for word in $options $command; do
        expect_in_page "$word"
    done
done
[ $failures -eq 0 ]
