# shellcheck shell=bash
# Sourced by ./check and ./play: makes sure that everything named in debian/control is installed.
# debian/control is the one list of what the project needs.

build_dependencies_missing() {
    command -v dpkg-checkbuilddeps >/dev/null 2>&1 || return 0
    ! (cd "$1" && DEB_BUILD_PROFILES=${2:-} dpkg-checkbuilddeps >/dev/null 2>&1)
}

# The names in Build-Depends, one a line, for people who install by hand; with "nocheck" without those
# that only tests need.
build_dependency_names() {
    sed -n '/^Build-Depends:/,/^[^ ]*:/p' "$1/debian/control" | sed '1s/^Build-Depends://' |
        grep -v '^[A-Z][A-Za-z-]*:' | tr ',' '\n' | { [ "${2:-}" = nocheck ] && grep -v '<!nocheck>' || cat; } |
        sed 's/debhelper-compat.*/debhelper/; s/[[(<].*//; s/ //g' | grep .
}

# as_root MISSING COMMAND...: runs a command as root, or says that these packages are wanted and fails.
as_root() {
    local missing=$1
    shift
    if ! command -v apt-get >/dev/null 2>&1; then
        echo "This system has no apt-get. Please install: $missing" >&2
        return 1
    fi
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null 2>&1 && sudo -v; then
        sudo "$@"
    else
        echo "Some packages are missing and there is no root access to install them. Please install:" >&2
        echo "    $missing" >&2
        return 1
    fi
}

# install_packages NAME...: installs packages of the distribution.
install_packages() {
    as_root "$*" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "$@" </dev/null
}

# install_dependencies PROJECT [nocheck]: installs what is missing, or says what to install and fails. With
# "nocheck" what only tests need counts for nothing.
install_dependencies() {
    build_dependencies_missing "$@" || return 0
    local names
    names="build-essential $(build_dependency_names "$@" | xargs)"
    echo "Installing what is missing (debian/control names it) ..."
    as_root "$names" apt-get update -qq &&
        as_root "$names" env DEBIAN_FRONTEND=noninteractive \
            apt-get build-dep -y -qq --no-install-recommends ${2:+-P "$2"} "$1/" </dev/null &&
        install_packages build-essential dpkg-dev
}
