# shellcheck shell=bash
# For tests of scripts that call a Mac's tools: fakes of those, which note their calls in the file $CALLS,
# one a line with "|" between the arguments. One whose line begins with $FAILS ends with 3. PATH is to be
# "$stage/fakes:$stage/basics", which holds the fakes and the few tools that every system has, nothing
# else, so that the tests run anywhere. Sourced by the tests beside this file.

fail() {
    echo "$test: $*" >&2
    exit 1
}
same() { [ "$1" = "$2" ] || fail "expected \"$2\", found \"$1\""; }
has() { grep -qF -- "$2" <<<"$1" || fail "\"$2\" is not in: $1"; }
has_not() { ! grep -qF -- "$2" <<<"$1" || fail "\"$2\" is in: $1"; }

write_fake() {
    cat >"$stage/fakes/$1"
    chmod +x "$stage/fakes/$1"
}
set_up_fakes() { # NAME...
    stage=$(mktemp -d "${TMPDIR:-/tmp}/scrivel package test.XXXXXX")
    stage=$(cd "$stage" && pwd -P) # a Mac's TMPDIR ends with a slash and goes through a link
    trap 'rm -rf "$stage"' EXIT
    mkdir -p "$stage/fakes" "$stage/basics" "$stage/tmp folder"
    local tool
    for tool in bash sh find sort mktemp rm mv mkdir cp cat grep sed tr dirname basename chmod touch; do
        ln -s "$(command -v "$tool")" "$stage/basics/$tool"
    done
    export CALLS="$stage/calls"
    : >"$CALLS"
    cat >"$stage/fakes/.note" <<'FAKE'
name=$(basename "$0")
line=$name
for argument in "$@"; do line="$line|$argument"; done
printf '%s\n' "$line" >>"$CALLS"
case $line in "${FAILS:-none}"*) exit 3 ;; esac
FAKE
    # shellcheck disable=SC2016 # these are for the fakes to expand
    local begin='#!/usr/bin/env bash
. "$(dirname "$0")/.note"' system='#!/usr/bin/env bash
[ "${1:--s}" = -s ] && echo "${SYSTEM:-Darwin}" || echo arm64'
    for tool in "$@"; do
        write_fake "$tool" <<<"$begin"
    done
    write_fake uname <<<"$system"
}
# Each test with a stage of its own.
run_tests() { # NAME...
    for test in "$@"; do
        (
            set_up
            "$test"
        )
    done
}
