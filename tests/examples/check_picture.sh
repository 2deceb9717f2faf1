#!/usr/bin/env bash
# Runs a host and holds the picture that it makes against the one that is expected, pixel by pixel.
# check_picture.sh EXPECTED OUTPUT COMMAND...
set -euo pipefail
expected=$1 output=$2
shift 2
rm -f "$output"
"$@"
# What is expected is the work of the host without a window: its outputs are named "png-".
if [ -n "${VXGUI_UPDATE_GOLDEN:-}" ] && [ "${output#png-}" != "$output" ]; then cp "$output" "$expected"; fi
command -v compare >/dev/null || { echo "skipped: compare, of ImageMagick, isn't there"; exit 77; }
# Its exit status is 1 for a difference; what it prints says how many pixels differ.
different=$(compare -metric AE "$expected" "$output" null: 2>&1) || true
echo "$output: $different pixels differ from $expected"
[ "$different" = 0 ]
