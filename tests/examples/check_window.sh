#!/usr/bin/env bash
# Opens a host's window and works its button with the mouse: it must look as expected when the mouse
# is away, over it and pressing, and say "clicked" when it is let go. Needs a display.
# check_window.sh FOLDER_OF_EXPECTED NAME COMMAND...
set -euo pipefail
expected=$1 name=$2
shift 2
for needed in xdotool import compare; do
    command -v $needed >/dev/null || { echo "skipped: $needed isn't there"; exit 77; }
done

"$@" >"$name.log" 2>&1 &
host=$!
trap 'kill $host 2>/dev/null || true; cat "$name.log"' EXIT
window=$(timeout 20 xdotool search --sync --onlyvisible --name "^VxGUI in" | tail -1)

# Waits until the window shows a picture; hosts paint when they come to it.
shows() {
    local shot="$name-$1.png" different
    for _ in $(seq 40); do
        import -window "$window" "$shot"
        different=$(compare -metric AE "$expected/$1.png" "$shot" null: 2>&1) || true
        [ "$different" != 0 ] || return 0
        sleep 0.1
    done
    echo "$shot: $different pixels differ from $expected/$1.png"
    return 1
}

xdotool mousemove --window "$window" 5 5
[ "$name" = qt6 ] || shows Normal  # Qt gives the button the focus, which shows
xdotool mousemove --window "$window" 80 37
shows MouseOver
xdotool mousedown 1
shows Pressed
xdotool mouseup 1
shows MouseOver
xdotool mousemove --window "$window" 5 5
timeout 5 sh -c "until grep -q clicked '$name.log'; do sleep 0.1; done"
kill -0 $host
