#!/bin/sh
# SPDX-FileCopyrightText: 2026 The libveskfmcore authors
# SPDX-License-Identifier: LGPL-2.1-or-later

# Runs one test program with a home, XDG directories and a session bus of its own, and leaves nothing behind.
# VESKFM_TEST_SERVICES: directories, separated by ":", with the activation files that the bus knows; none without it.
# VESKFM_TEST_BUS_TIMEOUT_MS: how long the bus waits for a service to start and for a reply; its usual times without it.
here=$(dirname "$(readlink -f "$0")")
scratch=$(mktemp -d "${TMPDIR:-/tmp}/veskfm-test.XXXXXX") || exit 1
trap 'chmod -R u+rwx "$scratch"; rm -rf "$scratch"' EXIT
mkdir -p "$scratch/home" "$scratch/run" "$scratch/tmp"
chmod 700 "$scratch/run"
servicedirs=$(IFS=:; for dir in ${VESKFM_TEST_SERVICES:-}; do printf '<servicedir>%s</servicedir>' "$dir"; done)
timeouts=$(for kind in ${VESKFM_TEST_BUS_TIMEOUT_MS:+service_start_timeout reply_timeout}; do
    printf '<limit name="%s">%s</limit>' "$kind" "$VESKFM_TEST_BUS_TIMEOUT_MS"; done)
sed "s|<!-- service directories -->|$servicedirs|; s|<!-- time-outs -->|$timeouts|" "$here/session.conf" >"$scratch/session.conf"
env -u DISPLAY -u WAYLAND_DISPLAY -u ROOT_DISPLAY -u SUDO_USER -u XDG_CURRENT_DESKTOP -u DBUS_SESSION_BUS_ADDRESS \
    HOME="$scratch/home" TMPDIR="$scratch/tmp" LANG=C.UTF-8 LC_ALL=C.UTF-8 QT_QPA_PLATFORM=offscreen \
    XDG_CONFIG_HOME="$scratch/home/.config" XDG_DATA_HOME="$scratch/home/.local/share" \
    XDG_CACHE_HOME="$scratch/home/.cache" XDG_STATE_HOME="$scratch/home/.local/state" XDG_RUNTIME_DIR="$scratch/run" \
    LSAN_OPTIONS="suppressions=$here/lsan.supp print_suppressions=0 $LSAN_OPTIONS" \
    TSAN_OPTIONS="suppressions=$here/tsan.supp $TSAN_OPTIONS" \
    XDG_CONFIG_DIRS=/etc/xdg XDG_DATA_DIRS=/usr/local/share:/usr/share \
    dbus-run-session --config-file="$scratch/session.conf" -- "$@"
