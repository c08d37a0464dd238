#!/usr/bin/env bash
# Installing what is missing: on a machine that has never heard of a package, and on one that has them all.
cd "$(dirname "$0")/../.."
source tools/steps.sh

world=$(mktemp -d)
trap 'rm -rf "$log" "$world"' EXIT
PATH=$world:$PATH
install_packages() { echo "$@" >>"$world/installed"; }
# packages LINES CODE: what the package database answers; it ends with 1 where it has never heard of a package.
packages() {
    printf '#!/bin/sh\ncat <<E\n%s\nE\nexit %d\n' "$1" "$2" >"$world/dpkg-query"
    chmod +x "$world/dpkg-query"
}
expect() {
    if [ "$(cat "$world/installed" 2>/dev/null)" != "$1" ]; then
        echo "Expected '$1' to be installed, not '$(cat "$world/installed" 2>/dev/null)'" >&2
        exit 1
    fi
    rm -f "$world/installed"
}

packages $'installed g++\nconfig-files xvfb' 1
need g++ xvfb openbox
expect "openbox xvfb"

packages $'installed g++\ninstalled libqt6' 0
need g++ libqt6
expect ""
