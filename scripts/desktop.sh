#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The libveskfmcore authors
# SPDX-License-Identifier: LGPL-2.1-or-later
# shellcheck shell=bash

# Sourced by what drives the demo as a user does: a display with a window manager, the keyboard and the mouse, and what
# can be seen. Everything waits for what it wants to see, and gives up after a deadline.
set -euo pipefail
patience=${VESKFM_PATIENCE:-30} # seconds; a busy machine is slow to draw

fail() {
    echo "FAIL: $*" >&2
    [ -z "${DISPLAY:-}" ] || xwininfo -root -tree | grep '"vesk-browser"' >&2 || true
    exit 1
}

# start_desktop WIDTHxHEIGHT: a display of its own, and openbox on it; both end with the script.
start_desktop() {
    local pipe
    pipe=$(mktemp -u) && mkfifo "$pipe"
    Xvfb -displayfd 3 -screen 0 "$1x24" -nolisten tcp -noreset 3>"$pipe" >/dev/null 2>&1 &
    desktop_pids=($!)
    trap 'kill "${desktop_pids[@]}" 2>/dev/null || true' EXIT
    DISPLAY=:$(timeout "$patience" head -n 1 "$pipe") || fail "Xvfb does not start"
    rm "$pipe"
    export DISPLAY QT_QPA_PLATFORM=xcb
    openbox --sm-disable >/dev/null 2>&1 &
    desktop_pids+=($!)
    await window_manager_runs
}

window_manager_runs() { xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; }

# await COMMAND...: until it succeeds
await() {
    local deadline=$((SECONDS + patience))
    until "$@"; do
        [ "$SECONDS" -lt "$deadline" ] || fail "in vain: $*"
        sleep 0.05
    done
}

window_titled() { xdotool search --onlyvisible --name "$1" >/dev/null 2>&1; }
no_window_titled() { ! window_titled "$1"; }

# window REGEX: waits for the window with that title, and brings it to the front
window() {
    await window_titled "$1"
    xdotool search --onlyvisible --name "$1" windowactivate --sync >/dev/null
}

keys() { xdotool key --clearmodifiers --delay 40 "$@"; }
write() { xdotool type --clearmodifiers --delay 15 -- "$1"; }

# copied_urls: what is in the clipboard, a URL a line
copied_urls() { timeout 5 xclip -selection clipboard -o -t text/uri-list 2>/dev/null | tr -d '\r'; }
copied() { copied_urls | grep -q -- "/$1\$"; }

# select_row NAME: waits for the row of that name, and puts the cursor on it. It goes through the clipboard.
select_row() {
    await row_is_there "$1"
    sleep 0.5 # so that the toolkit does not take it for more of the name typed before
    write "$1"
}
row_is_there() {
    keys ctrl+a ctrl+c
    copied "$1"
}

# enter NAME: opens a row; the window then bears its name
enter() {
    select_row "$1"
    keys Return
    window "^$1\$"
}

# visit DIR: goes there by its path
visit() {
    keys ctrl+l
    write "$1"
    keys Return
    window "^${1##*/}\$"
}
