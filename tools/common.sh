# SPDX-License-Identifier: MIT
# Shared by run, test and the sanitizer pass: installs what is missing, configures and builds, saying what it does.
# shellcheck shell=bash

top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

packages=(g++ cmake ninja-build ccache pkg-config git
    qt6-base-dev qt6-webengine-dev qt6-multimedia-dev qt6-svg-dev
    libgumbo-dev libzip-dev libcpp-httplib-dev libssl-dev openssl libbrotli-dev zlib1g-dev
    libgtest-dev libgmock-dev libbenchmark-dev
    fonts-dejavu-core)

say() { printf '\033[1m==>\033[0m %s\n' "$*"; }

fail() {
    printf '%s\n' "$*" >&2
    exit 1
}

install_missing() {
    local missing=() package
    for package in "${packages[@]}"; do
        dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    command -v apt-get >/dev/null || fail "These packages are missing and there is no apt-get to install them: ${missing[*]}"
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null ||
            fail "These packages are missing; install them as root and try again: ${missing[*]}"
        as_root=(sudo)
    fi
    say "Installing ${#missing[@]} Debian packages: ${missing[*]}"
    "${as_root[@]}" apt-get update -qq || fail "The list of packages could not be read. Is there a network?"
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
        "${missing[@]}" >/dev/null || fail "The packages could not be installed."
}

# build PRESET [TARGET...]
build() {
    local preset=$1
    shift
    local folder=$top/build/$preset
    # Ninja looks at the CMake files by itself; only a first call has to configure.
    if [ ! -f "$folder/build.ninja" ]; then
        say "Configuring ($preset)"
        (cd "$top" && cmake --preset "$preset" >"$top/build-$preset.log" 2>&1) ||
            { cat "$top/build-$preset.log"; fail "CMake could not configure."; }
        rm -f "$top/build-$preset.log"
    fi
    say "Building ($preset)"
    NINJA_STATUS='    [%f/%t] ' cmake --build "$folder" ${1:+--target "$@"} || fail "The build failed."
}

# Chromium refuses to run its sandbox as root. An ordinary user keeps it.
engine_environment() {
    [ "$(id -u)" -eq 0 ] && export QTWEBENGINE_DISABLE_SANDBOX=1
    export XDG_RUNTIME_DIR=${XDG_RUNTIME_DIR:-$(mktemp -d)}
}
