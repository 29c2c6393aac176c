# What ./play, ./check, .ci/run and packaging/try-package share; sourced by them from the root of the
# checkout. A script that has something to undo at its end says how by a clean_up of its own.
# shellcheck shell=sh

# Everything that building, testing and the demonstration need, by Debian package.
packages="g++ cmake ninja-build qt6-base-dev fonts-dejavu-core libgtest-dev libbenchmark-dev"
packages="$packages libxcb1-dev libxcb-xtest0-dev xvfb qt6-tools-dev qt6-l10n-tools"

logs=build/logs
progress_every=30

say() {
    printf '%s\n' "$*"
}

fail() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

has() {
    command -v "$1" >/dev/null 2>&1
}

clean_up() {
    :
}
watcher=
trap 'stop_progress; clean_up' EXIT
trap 'exit 130' INT
trap 'exit 143' TERM

# quietly LABEL LOG command...: runs the command with its output in build/logs/LOG. Says LABEL and
# how far it is only when it takes long, and shows the output only when it fails.
quietly() {
    label=$1
    log=$logs/$2
    shift 2
    mkdir -p "$logs" || exit 1
    : >"$log" || exit 1
    show_progress "$label" "$log" &
    watcher=$!
    "$@" >"$log" 2>&1 </dev/null
    status=$?
    stop_progress
    if [ "$status" -ne 0 ]; then
        tail -n 60 "$log" >&2
        printf '%s: %s failed (all output: %s)\n' "${0##*/}" "$label" "$log" >&2
    fi
    return "$status"
}

# On a terminal the log's last line, once a second; elsewhere one line now and then, so that nobody
# takes a long build for a dead one. The sleeps let go of standard output: a reader of ours must
# not wait for them.
show_progress() {
    sleep 2 >/dev/null 2>&1
    seconds=0
    while kill -0 $$ 2>/dev/null; do
        if [ -t 1 ]; then
            printf '\r\033[K%.76s' "$1: $(tail -n 1 "$2" | tr -d '\r\t\033')"
        elif [ $((seconds % progress_every)) -eq 0 ]; then
            say "$1 ... $(tail -n 1 "$2" | cut -c 1-60)"
        fi
        seconds=$((seconds + 1))
        sleep 1 >/dev/null 2>&1
    done
}

stop_progress() {
    [ -n "$watcher" ] || return 0
    kill "$watcher" 2>/dev/null
    wait "$watcher" 2>/dev/null
    watcher=
    if [ -t 1 ]; then
        printf '\r\033[K'
    fi
}

# ensure_packages: installs what is missing, or says what that is and ends.
ensure_packages() {
    if has apt-get && has dpkg-query; then
        wanted=$packages
        if [ -n "${WAYLAND_DISPLAY-}" ] && [ -z "${DISPLAY-}" ]; then
            wanted="$wanted qt6-wayland"
        fi
        missing=$(missing_packages "$wanted")
        [ -z "$missing" ] || install_packages "$missing"
    else
        require_tools
    fi
}

missing_packages() {
    # shellcheck disable=SC2086  # a list
    installed=" $(dpkg-query -W -f '${db:Status-Status}=${Package} ' $1 2>/dev/null) "
    absent=
    for package in $1; do
        case $installed in
        *" installed=$package "*) ;;
        *) absent="$absent $package" ;;
        esac
    done
    printf '%s' "${absent# }"
}

install_packages() {
    by_hand="As root: apt-get update && apt-get install --no-install-recommends $1"
    as_root=
    if [ "$(id -u)" -ne 0 ]; then
        has sudo || fail "these packages are missing and there is no sudo to install them: $1
$by_hand"
        # Asks for the password here, where it can be seen; without a terminal it must not ask.
        if [ -t 0 ]; then sudo -v; else sudo -n true 2>/dev/null; fi ||
            fail "these packages are missing and sudo does not let us install them: $1
$by_hand"
        as_root="sudo -n"
    fi
    say "Installing what is missing: $1"
    apt="$as_root env DEBIAN_FRONTEND=noninteractive apt-get -y -q -o DPkg::Lock::Timeout=300"
    # A package list that cannot be renewed need not stand in the way: the installation decides.
    # shellcheck disable=SC2086  # lists
    quietly "Renewing the package lists" apt-update.log $apt update
    # shellcheck disable=SC2086
    quietly "Installing packages" apt-install.log $apt install --no-install-recommends $1 ||
        fail "apt could not install: $1
$by_hand"
}

# Without apt: names the commands and libraries that are not there. Whether the libraries found are
# recent enough is CMake's to say.
require_tools() {
    absent=
    has c++ || has g++ || has clang++ || absent="$absent, a C++20 compiler (g++ or clang++)"
    has cmake || absent="$absent, cmake (3.25 or later)"
    has ninja || has ninja-build || absent="$absent, ninja"
    has_cmake_package Qt6 || absent="$absent, the development files of Qt 6.4 or later (qtbase)"
    has_cmake_package GTest || absent="$absent, GoogleTest"
    has_cmake_package Qt6LinguistTools ||
        absent="$absent, the Linguist tools of Qt 6 (qttools)"
    has Xvfb || absent="$absent, Xvfb"
    [ -z "$absent" ] || fail "there is no apt here to install what is missing: ${absent#, }
On Debian the packages are: $packages"
}

has_cmake_package() {
    for place in $(printf %s "${CMAKE_PREFIX_PATH-}" | tr ';:' '  ') /usr /usr/local; do
        for folder in "$place"/lib*/cmake/"$1" "$place"/lib/*/cmake/"$1"; do
            [ ! -d "$folder" ] || return 0
        done
    done
    return 1
}

# build PRESET [target...]: configures build/PRESET where that has not been done for this checkout,
# and builds the targets, or everything. A build folder that came along with a copied checkout still
# points to the old place and is of no use.
build() {
    preset=$1
    shift
    folder=build/$preset
    if [ ! -f "$folder/build.ninja" ] ||
        ! grep -sqxF "CMAKE_HOME_DIRECTORY:INTERNAL=$(pwd -P)" "$folder/CMakeCache.txt"; then
        rm -rf "$folder"
        quietly "Configuring" "configure-$preset.log" cmake --preset "$preset" || return 1
    fi
    quietly "Building" "build-$preset.log" cmake --build "$folder" ${1:+--target "$@"}
}

# run_tests PRESET [ctest argument...]: the quick tests, without those labelled soak or long. The
# output is shown when a test fails.
run_tests() {
    preset=$1
    shift
    quietly "Testing" "test-$preset.log" ctest --preset "$preset" --no-tests=error \
        -j "$(getconf _NPROCESSORS_ONLN)" "$@" || return 1
    say "Tests ($preset): $(grep 'tests passed' "$logs/test-$preset.log")," \
        "$(sed -n 's/^Total Test time (real) = *//p' "$logs/test-$preset.log")"
}

# Programs on Qt complain about a locale without UTF-8, which is what a bare system has.
if [ -z "${LC_ALL-}${LC_CTYPE-}${LANG-}" ]; then
    export LC_CTYPE=C.UTF-8
fi
