#!/usr/bin/env bash
# Starts the tool's colour dialog on a real X display and closes it by key presses.
# check_dialog_under_x.sh TOOL PICTURE. Exit status 77 where the display can't be had.
set -euo pipefail
tool=$1 picture=$2
for needed in Xvfb xdotool; do
    command -v "$needed" >/dev/null || { echo "skipped: $needed isn't there"; exit 77; }
done

work=$(mktemp -d)
mkfifo "$work/number"
Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp 3>"$work/number" 2>/dev/null &
server=$!
trap 'kill $server 2>/dev/null; rm -rf "$work"' EXIT
read -r number <"$work/number"
export DISPLAY=:$number QT_QPA_PLATFORM=xcb
unset WAYLAND_DISPLAY

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
