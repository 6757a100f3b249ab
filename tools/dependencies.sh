# shellcheck shell=bash
# Sourced by ./check and ./play: makes sure that everything named in debian/control is installed.
# debian/control is the one list of what the project needs.

build_dependencies_missing() {
    command -v dpkg-checkbuilddeps >/dev/null 2>&1 || return 0
    ! (cd "$1" && dpkg-checkbuilddeps ${2:+-P"$2"} >/dev/null 2>&1)
}

# The names in Build-Depends, one a line, for people who install by hand.
build_dependency_names() {
    sed -n '/^Build-Depends:/,/^[^ ]*:/p' "$1/debian/control" | sed '1s/^Build-Depends://' |
        grep -v '^[A-Z][A-Za-z-]*:' | tr ',' '\n' |
        sed 's/debhelper-compat.*/debhelper/; s/[[(<].*//; s/ //g' | grep .
}

# install_dependencies PROJECT [PROFILE]: installs what is missing, or says what to install and fails. With
# the build profile pkg.varnello.play without the compilers that only ./check uses.
install_dependencies() {
    build_dependencies_missing "$1" "${2:-}" || return 0
    if ! command -v apt-get >/dev/null 2>&1; then
        echo "This system has no apt-get. Please install: $(build_dependency_names "$1" | xargs)" >&2
        return 1
    fi
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null 2>&1 || ! sudo -v; then
            echo "Some packages are missing and there is no root access to install them. Please install:" >&2
            echo "    build-essential $(build_dependency_names "$1" | xargs)" >&2
            return 1
        fi
        as_root=(sudo)
    fi
    echo "Installing what is missing (debian/control names it) ..."
    "${as_root[@]}" apt-get update -qq &&
        "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
            apt-get build-dep -y -qq --no-install-recommends ${2:+-P"$2"} "$1/" </dev/null &&
        "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
            apt-get install -y -qq --no-install-recommends build-essential dpkg-dev </dev/null
}
