#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The libveskfmcore authors
# SPDX-License-Identifier: LGPL-2.1-or-later

# endtoend.sh BROWSER: a user's way through the demo: its real window on a display, keys in, and out of it what other
# programs see: titles of windows, the clipboard, the disk.
source "$(dirname "$(readlink -f "$0")")/../scripts/desktop.sh"
browser=$1

permissions_are() { [ "$(stat -c %a "$2")" = "$1" ]; }
settings_have() { grep -rqs -- "$1" "$XDG_CONFIG_HOME"; }

start_desktop 1280x900
mkdir -p "$HOME/Work/Letters" "$HOME/Work/Target" "$HOME/.hidden"
echo 'Dear Sir' >"$HOME/Work/Letters/one.txt"
echo 'Dear Madam' >"$HOME/Work/Letters/two.txt"
echo 'secret' >"$HOME/.hidden/three.txt"
chmod 600 "$HOME/Work/Letters/one.txt"
tar -czf "$HOME/Work/old.tar.gz" -C "$HOME/Work" Letters
"$browser" "$HOME" &
desktop_pids+=($!)

echo "# open"
window '^home$'
enter Work
enter Letters

echo "# copy and paste"
select_row one.txt
keys ctrl+c
await copied one.txt
visit "$HOME/Work/Target"
keys ctrl+v
await cmp "$HOME/Work/Letters/one.txt" "$HOME/Work/Target/one.txt"

echo "# rename in place, new folder, trash"
select_row one.txt
keys F2
write first
keys Return
await [ -e "$HOME/Work/Target/first.txt" ]
select_row first.txt
keys Delete
await [ -e "$HOME/.local/share/Trash/files/first.txt" ]

echo "# look into an archive, and copy out of it"
visit "$HOME/Work"
enter old.tar.gz
enter Letters
select_row two.txt
keys ctrl+c
await copied two.txt
visit "$HOME/Work/Target"
keys ctrl+v
await cmp "$HOME/Work/Letters/two.txt" "$HOME/Work/Target/two.txt"

echo "# find"
visit "$HOME"
keys ctrl+f
window '^Find'
write '*.TXT'
keys Return
window '^Find: 3 found$' # two letters and the copy, nothing below hidden folders
keys Escape
await no_window_titled '^Find'

echo "# properties: who may read it"
visit "$HOME/Work/Letters"
select_row one.txt
keys alt+Return
window 'one.txt'
[ "$(xdotool getactivewindow getwindowname)" = 'Properties of one.txt' ] || fail "another title"
keys ctrl+Tab Tab Tab Tab Tab space Return # on the page of permissions: the owner may write, off
await no_window_titled 'one.txt'
await permissions_are 400 "$HOME/Work/Letters/one.txt"

echo "# settings: hide a place from another window"
"$browser" "$HOME/Work" &
desktop_pids+=($!)
window '^Work$'
keys ctrl+comma
window '^Settings$'
keys ctrl+Tab ctrl+Tab ctrl+Tab Tab Home Down Down space # the third page, the first of the places
await settings_have hiddenTreeItems=FileSystem
