#!/usr/bin/env bash
# steps_test.sh SOURCES: what ./play and ./check share, with a package manager that only notes what it is asked for.
source "$1/tools/steps.sh"
shopt -s inherit_errexit

system=$(mktemp -d)
trap 'rm -rf "$system" "$log"' EXIT
mkdir "$system/bin"
for tool in sed grep tr cat id; do ln -s "$(command -v "$tool")" "$system/bin/$tool"; done
path=$PATH

# program NAME BODY: puts a program on that system's path.
program() {
    printf '#!%s\n%s\n' "$BASH" "$2" >"$system/bin/$1"
    chmod +x "$system/bin/$1"
}

# holds TITLE WANTED TOLD
holds() {
    [ "$2" = "$3" ] && return
    printf '%s\n--- wanted\n%s\n--- told\n%s\n' "$1" "$2" "$3"
    exit 1
}

as_root() { "$@"; }
on_the_system() { PATH=$system/bin "$@" 2>&1; }

program c++ :
holds "without dpkg, what a reader has to look for" "\
This is no Debian, so please install what is missing yourself; going on with what is there
There is no program ninja
CMake or a test will look for Qt 6.4 or newer" "$(on_the_system need g++ ninja-build qt6-base-dev)"

program dpkg-query 'case " $* " in *" cmake "*) echo installed cmake;; esac; echo config-files webp; exit 1'
program apt-get 'echo "$*" >>"${0%/bin/*}/asked"'
program env 'shift; exec "$@"'
program sudo :  # whoever runs this test
program apt-cache 'case "$2" in
    "") echo " 500 http://deb.debian.org/debian Packages" ;;
    webp|second-name) echo "  Candidate: 1.0" && for line in {1..20000}; do echo "  a long table of versions"; done ;;
    *) echo "  Candidate: (none)" ;;
esac'
holds "what is missing is installed by the name that the release knows" "\
This release has no package clang-format-14; going on without
Installing webp second-name" "$(on_the_system need cmake webp 'first-name|second-name' clang-format-14)"
holds "apt's order" "install -y --no-install-recommends webp second-name" "$(sed -n '$p' "$system/asked")"
rm "$system/asked"
holds "nothing is asked where nothing is missing" "" "$(on_the_system need 'other|cmake'; cat "$system/asked" 2>/dev/null)"

program apt-cache 'grep -q update "${0%/bin/*}/asked" 2>/dev/null && echo "  Candidate: 1.0 Packages"'
holds "a fresh system asks first which packages there are" "\
Asking which packages there are
Installing webp" "$(on_the_system need webp)"

PATH=$path
printf '\n100%% tests passed, 0 tests failed out of 5\n\nThe following tests did not run:\n\t  2 - page (Skipped)\n\t 13 - e2e.mouse (Disabled)\n' >"$log"
holds "tests that did not run are told and counted" "\
Skipped: page in build/web, for want of what it needs
Skipped: e2e.mouse in build/web, for want of what it needs
4 passed, 2 skipped" "$(count_tests web; echo "$passed passed, $skipped skipped")"
