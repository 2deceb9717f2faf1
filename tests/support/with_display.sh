#!/usr/bin/env bash
# Runs a command on an X display of its own: with_display.sh COMMAND... Answers the command's exit
# status, or 77 where there is no Xvfb.
set -euo pipefail
command -v Xvfb >/dev/null || { echo "skipped: Xvfb isn't there"; exit 77; }

work=$(mktemp -d)
mkfifo "$work/number"
Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp 3>"$work/number" 2>/dev/null &
server=$!
trap 'kill $server 2>/dev/null; rm -rf "$work"' EXIT
read -r number <"$work/number"
unset WAYLAND_DISPLAY
DISPLAY=:$number "$@"
