#!/usr/bin/env bash
# Starts the tool's colour dialog on a real X display and closes it by key presses.
# check_dialog_under_x.sh TOOL PICTURE. Needs a display; the exit status is 77 without xdotool.
set -euo pipefail
tool=$1 picture=$2
command -v xdotool >/dev/null || { echo "skipped: xdotool isn't there"; exit 77; }

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export QT_QPA_PLATFORM=xcb

# Opens the dialog on the picture, presses the keys, and answers the tool's exit status.
press() {
    local output=$1 status=0
    shift
    "$tool" adjust --dialog "$picture" -o "$output" >"$work/log" 2>&1 &
    local host=$! window
    window=$(timeout 20 xdotool search --sync --onlyvisible --pid $host | tail -1)
    xdotool windowfocus --sync "$window"
    xdotool "$@"
    wait $host || status=$?
    return $status
}

press "$work/changed.png" key Tab key Down key Down key Return || { cat "$work/log"; exit 1; }
[ -s "$work/changed.png" ] || { echo "Return wrote no picture"; exit 1; }
if press "$work/cancelled.png" key Escape; then echo "Escape didn't cancel"; exit 1; fi
[ ! -e "$work/cancelled.png" ] || { echo "Escape wrote a picture"; exit 1; }
echo "The dialog opened twice, and closed by its keys."
