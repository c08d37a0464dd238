# What ./play and ./check share. Sourced by bash in the top folder of the sources.

set -euo pipefail
log=$(mktemp)
trap 'rm -f "$log"' EXIT

# step TITLE COMMAND...: says what it does in one line; the command's output shows only when it fails, and then nothing follows.
# When COMMAND is a function, its commands must be joined by &&, because bash ignores `set -e` inside of it.
step() {
    echo "$1"
    if ! "${@:2}" >"$log" 2>&1 </dev/null; then
        cat "$log"
        echo "Failed: $1" >&2
        exit 1
    fi
}

passed=0
skipped=0

skip() {
    echo "Skipped: $1"
    skipped=$((skipped + 1))
}

# count_tests WHERE: adds up what ctest has just told. It counts skipped tests as passed, and leaves out those that are disabled.
count_tests() {
    local test kind
    passed=$((passed + $(sed -n 's/.* tests failed out of //p' "$log")))
    while IFS=$'\t' read -r test kind; do
        skip "$test in build/$1, for want of what it needs"
        [ "$kind" = Disabled ] || passed=$((passed - 1))
    done < <(sed -En 's/^\t *[0-9]+ - (.*) \((Skipped|Disabled)\)$/\1\t\2/p' "$log")
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

# The name, of NAME|NAME..., under which apt can install it here.
name_for_apt() {
    local name
    for name in ${1//|/ }; do
        # Not `grep -q`, because it ends at the first match, apt-cache then fails on the closed pipe, and pipefail makes of that failure
        # "no such package".
        if LC_ALL=C apt-cache policy "$name" 2>/dev/null | grep 'Candidate: [^(]' >/dev/null; then
            echo "$name"
            return
        fi
    done
    return 1
}

# need PACKAGE...: installs those Debian packages that are missing. A|B is whichever of the two this release has. A package that this
# release does not have is reported and left out; a test that needs it is skipped later.
need() {
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        tell_what_is_needed "$@"
        return
    fi
    local installed package name missing=() absent=()
    # dpkg-query fails when it has never heard of one of the packages, which only means that this one is missing.
    # shellcheck disable=SC2068,SC2086  # one word a package
    installed=" $({ dpkg-query -W -f '${db:Status-Status} ${Package}\n' ${@//|/ } 2>/dev/null || true; } | sed -n 's/^installed //p' | tr '\n' ' ')"
    for package; do
        for name in ${package//|/ }; do
            [[ $installed == *" $name "* ]] && continue 2
        done
        missing+=("$package")
    done
    [ ${#missing[@]} = 0 ] && return
    if ! LC_ALL=C apt-cache policy | grep ' Packages$' >/dev/null; then  # because a fresh system has no lists of packages yet
        can_install "${missing[@]}"
        step "Asking which packages there are" as_root apt-get update
    fi
    local found=()
    for package in "${missing[@]}"; do
        if name=$(name_for_apt "$package"); then found+=("$name"); else absent+=("$package"); fi
    done
    [ ${#absent[@]} = 0 ] || echo "This release has no package ${absent[*]}; going on without"
    [ ${#found[@]} = 0 ] && return
    can_install "${found[@]}"
    step "Installing ${found[*]}" install_packages "${found[@]}"
}

can_install() {
    if [ "$(id -u)" != 0 ] && ! command -v sudo >/dev/null; then
        echo "Please install these Debian packages first: $*" >&2
        exit 1
    fi
}

# The package of the page's compiler, unless an emsdk is in the environment.
emscripten=emscripten
[ -z "${EMSDK:-}" ] || emscripten=

# For a system without apt: the programs and libraries in these packages, by the names that every system has for them.
brings() {
    case "$1" in
        g++) echo "program c++ (a C++20 compiler, as GCC 12)" ;;
        ninja-build) echo "program ninja" ;;
        librsvg2-bin) echo "program rsvg-convert (of librsvg)" ;;
        webp) echo "program cwebp (of libwebp)" ;;
        emscripten) echo "program em++ (emscripten, or an emsdk that EMSDK names)" ;;
        xvfb) echo "program Xvfb" ;;
        dbus-daemon) echo "program dbus-run-session" ;;
        desktop-file-utils) echo "program desktop-file-validate" ;;
        appstream) echo "program appstreamcli" ;;
        webkit*) echo "program WebKitWebDriver (of WebKitGTK)" ;;
        qt6-base-dev) echo "library Qt 6.4 or newer" ;;
        libxcb1-dev) echo "library XCB" ;;
        libpng-dev) echo "library libpng" ;;
        nlohmann-json3-dev) echo "library nlohmann-json" ;;
        libgtest-dev) echo "library GoogleTest" ;;
        libgmock-dev) echo "library GoogleMock" ;;
        libbenchmark-dev) echo "library Google Benchmark" ;;
        fonts-liberation) echo "library the Liberation fonts" ;;
        hunspell-cs) echo "library hunspell's Czech dictionary" ;;
        at-spi2-core) echo "library AT-SPI" ;;
        python3-*) echo "library ${1#python3-} for Python" ;;
        *) echo "program $1" ;;
    esac
}

tell_what_is_needed() {
    local package kind program rest programs=() libraries=()
    for package; do
        read -r kind program rest <<<"$(brings "$package")"
        if [ "$kind" = library ]; then
            libraries+=("$program${rest:+ $rest}")
        elif ! command -v "$program" >/dev/null; then
            programs+=("$program${rest:+ $rest}")
        fi
    done
    echo "This is no Debian, so please install what is missing yourself; going on with what is there"
    [ ${#programs[@]} = 0 ] || printf 'There is no program %s\n' "${programs[@]}"
    [ ${#libraries[@]} = 0 ] || printf 'CMake or a test will look for %s\n' "${libraries[@]}"
}
