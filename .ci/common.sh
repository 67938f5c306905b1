# shellcheck shell=bash disable=SC2034
# For ./run and ./test: what must be installed, and steps that are timed.

say() { printf '%s\n' "$*"; }

# as_root COMMAND...: as it is for root, else through sudo.
as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    else
        sudo "$@"
    fi
}

installed() { dpkg-query -W -f='${Status}' "$1" 2>/dev/null | grep -q '^install ok installed$'; }

# need PACKAGE[:COMMAND]...: installs the packages that are missing. With a COMMAND, any program of that name will do.
need() {
    local item package command missing=()
    for item in "$@"; do
        package=${item%%:*}
        command=${item#"$package"}
        command=${command#:}
        if [ -n "$command" ] && command -v "$command" >/dev/null; then continue; fi
        if command -v dpkg-query >/dev/null && installed "$package"; then continue; fi
        missing+=("$package")
    done
    if [ ${#missing[@]} -eq 0 ]; then return 0; fi
    if ! command -v apt-get >/dev/null; then
        if ! command -v dpkg-query >/dev/null; then
            say "This is no Debian. Kalco needs what Debian calls: ${missing[*]}. Going on in the hope that it is there."
            return 0
        fi
        say "Missing packages: ${missing[*]}"
        return 1
    fi
    if [ "$(id -u)" -ne 0 ] && ! command -v sudo >/dev/null; then
        say "Missing packages: ${missing[*]}. Install them as root, or run this as root: there is no sudo here."
        return 1
    fi
    say "Installing through apt: ${missing[*]}"
    as_root env DEBIAN_FRONTEND=noninteractive apt-get update -qq &&
        as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

build_packages=(g++:g++ cmake:cmake ninja-build:ninja ccache:ccache libcli11-dev nlohmann-json3-dev libpugixml-dev
    qt6-base-dev qt6-svg-dev qt6-translations-l10n libgl-dev)
run_packages=(libqt6svg6 libqt6svgwidgets6 fonts-dejavu-core)
test_packages=(python3:python3 clang:clang++ libclang-rt-dev lld:ld.lld clang-format:clang-format clang-tidy:clang-tidy libgtest-dev
    libbenchmark-dev binutils:readelf desktop-file-utils:desktop-file-validate appstream:appstreamcli dpkg-dev:dpkg-shlibdeps
    file:file lintian:lintian)

jobs() { nproc 2>/dev/null || echo 2; }
