# What ./play and ./check share. Sourced by bash in the top folder of the sources.

set -euo pipefail
log=$(mktemp)
trap 'rm -f "$log"' EXIT

# step TITLE COMMAND...: says what it does in one line; the command's output shows only when it fails, and then nothing follows.
# Bash forgets `set -e` inside COMMAND where that is a function: its commands are joined by &&.
step() {
    echo "$1"
    if ! "${@:2}" >"$log" 2>&1 </dev/null; then
        cat "$log"
        echo "Failed: $1" >&2
        exit 1
    fi
}

as_root() {
    if [ "$(id -u)" = 0 ]; then
        "$@"
    else
        sudo "$@"
    fi
}

install_packages() {
    as_root apt-get update -qq &&
        as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends "$@"
}

# need PACKAGE...: installs those Debian packages that are missing.
need() {
    local installed missing
    # It fails where it has never heard of one of them, which is no failure here.
    installed=$({ dpkg-query -W -f '${db:Status-Status} ${Package}\n' "$@" 2>/dev/null || true; } | sed -n 's/^installed //p' | sort -u)
    missing=$(comm -13 <(echo "$installed") <(printf '%s\n' "$@" | sort -u) | tr '\n' ' ')
    [ -z "$missing" ] && return
    if [ "$(id -u)" != 0 ] && ! command -v sudo >/dev/null; then
        echo "Please install these Debian packages first: $missing" >&2
        exit 1
    fi
    # shellcheck disable=SC2086  # one word a package
    step "Installing $missing" install_packages $missing
}
