# shellcheck shell=bash
# Sourced by every script: where the project is, how to speak, how to become root, how to
# install packages.

project_root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd -P)
cache_root="${XDG_CACHE_HOME:-${HOME:-/var/cache}/.cache}/queueshift"
# Used by the scripts that source this file.
export project_root cache_root

say() { printf '== %s\n' "$*"; }

fail() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo -n true 2>/dev/null || [ -t 0 ] ||
            fail "needs root to run '$*', and sudo asks for a password"
        sudo "$@"
    else
        fail "needs root to run '$*': run as root or install sudo"
    fi
}

# Prints those of the given packages that are not installed.
missing_packages() {
    local package
    for package in "$@"; do
        case "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null || true)" in
        installed*) ;;
        *) printf '%s\n' "$package" ;;
        esac
    done
}

# Installs what is missing; asks the network nothing when nothing is. Services that packages
# bring along are not started: policy-rc.d is the distribution's own switch for that, put in
# place only for the length of the installation and only when the machine has none.
install_packages() {
    local missing policy=/usr/sbin/policy-rc.d own_policy='' status=0
    mapfile -t missing < <(missing_packages "$@")
    [ "${#missing[@]}" -gt 0 ] || return 0
    say "installing ${missing[*]}"
    if [ ! -e "$policy" ]; then
        own_policy=yes
        printf '#!/bin/sh\nexit 101\n' | as_root tee "$policy" >/dev/null
        as_root chmod 755 "$policy"
    fi
    {
        as_root env DEBIAN_FRONTEND=noninteractive apt-get -q update &&
            as_root env DEBIAN_FRONTEND=noninteractive \
                apt-get -q install -y --no-install-recommends "${missing[@]}"
    } </dev/null || status=$?
    [ -z "$own_policy" ] || as_root rm -f "$policy"
    [ "$status" -eq 0 ] || fail "could not install: ${missing[*]}"
}

# draw_icon SIZE FILE: the program's icon as a picture; below 32 pixels from the drawing with fewer
# parts. Needs librsvg2-bin.
draw_icon() {
    local drawing=queueshift
    [ "$1" -ge 32 ] || drawing=queueshift-small
    rsvg-convert -w "$1" -h "$1" -o "$2" "$project_root/resources/icons/$drawing.svg"
}

# The version of the product, from its one place.
project_version() {
    local version
    version=$(sed -n 's/^ *VERSION \([0-9.]*\)$/\1/p' "$project_root/CMakeLists.txt")
    [ -n "$version" ] || fail "no version in CMakeLists.txt"
    printf '%s\n' "$version"
}
