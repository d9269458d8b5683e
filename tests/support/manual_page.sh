# SPDX-License-Identifier: MIT
# shellcheck shell=sh
# Sourced by the tests of the manual pages, which set $page: checks the page and the words in it.
: "${page:?}"
failures=0

fail() {
    echo "FAILED: $*"
    failures=$((failures + 1))
}

if command -v mandoc >/dev/null; then
    mandoc -Tlint -Wwarning "$page" || fail "mandoc finds faults"
elif command -v groff >/dev/null; then
    [ -z "$(groff -man -Tutf8 -ww -z "$page" 2>&1)" ] || fail "groff finds faults"
fi

# The page has options with escaped hyphens.
plain=$(sed 's/\\-/-/g; s/\\f[BIR]//g' "$page")

# Prints the options in a help text from standard input, one per line.
options_of_help() {
    grep -oE -- '--[a-z][a-z-]*' | sort -u
}

# Fails unless the page contains the word.
expect_in_page() {
    printf '%s\n' "$plain" | grep -qF -- "$1" || fail "$1 is not in the page"
}
