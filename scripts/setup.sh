# SPDX-FileCopyrightText: 2026 The libveskfmcore authors
# SPDX-License-Identifier: LGPL-2.1-or-later
# shellcheck shell=bash

# Sourced by the scripts at the root: installs what is missing, configures and builds. All of it talks on standard
# error, so that a script's output is its program's alone.
set -euo pipefail
root=$(dirname "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")")
export CCACHE_BASEDIR=$root CCACHE_NOHASHDIR=1 # one clone's objects serve the next
export LANG="${LANG:-C.UTF-8}"                 # bare containers set none, and file names would be read as ASCII

install_missing_packages() {
    command -v dpkg-query >/dev/null || { echo "Not a Debian system: install what scripts/packages names." >&2; return; }
    local -a missing as_root=(env DEBIAN_FRONTEND=noninteractive)
    mapfile -t missing < <(comm -23 <(sed 's/#.*//' "$root/scripts/packages" | tr -s ' ' '\n' | sed '/^$/d' | sort) \
        <(dpkg-query -W -f '${db:Status-Status} ${Package}\n' | sed -n 's/^installed //p' | sort))
    [ ${#missing[@]} -eq 0 ] && return
    [ "$(id -u)" -eq 0 ] || as_root=(sudo "${as_root[@]}")
    echo "Installing Debian packages: ${missing[*]}" >&2
    "${as_root[@]}" apt-get -qq update >&2
    "${as_root[@]}" apt-get -qq install -y --no-install-recommends "${missing[@]}" >/dev/null
}

# build PRESET [TARGET...]: build/PRESET becomes up to date
build() {
    local dir=$root/build/$1
    local -a options=()
    install_missing_packages
    # By content: a later configuration by ninja keeps what the presets said before.
    if [ ! -e "$dir/build.ninja" ] || ! cmp -s "$root/CMakePresets.json" "$dir/CMakePresets.used"; then
        # Where no compiler cache was ever filled, as on a fresh machine, precompiled headers save nearly half of the time.
        # Both together save nothing: the cache reads each precompiled header for each source.
        if [ ! -d "$(ccache --get-config cache_dir)" ]; then
            options=(-D VESKFM_PRECOMPILE_HEADERS=ON -D CMAKE_CXX_COMPILER_LAUNCHER=)
        fi
        (cd "$root" && cmake --preset "$1" "${options[@]}") >&2
        cp "$root/CMakePresets.json" "$dir/CMakePresets.used"
    fi
    cmake --build "$dir" --parallel "$(nproc)" ${2:+--target "${@:2}"} >&2
}
