#!/usr/bin/env bash
# Paints the pictures of the documents anew. docs/make_pictures.sh TOOL [FOLDER]
# The pictures of windows (adjust-dialog.png) are no work of the tool and stay as they are.
set -euo pipefail
tool=$(realpath "$1")
source=$(dirname "$(dirname "$(realpath "$0")")")
out=$(realpath "${2:-$source/docs}")
mkdir -p "$out/guide"
cd "$source"

"$tool" gallery skins/aurora/aurora.theme -o "$out/gallery.png"
"$tool" gallery skins/porcelain/porcelain.uis --desktop -o "$out/porcelain.png"
for style in blue homestead metallic; do
    "$tool" gallery "res:DefaultStyles:$style" -o "$out/parts-$style.png"
    "$tool" gallery "res:DefaultStyles:$style" --desktop -o "$out/style-$style.png"
done

button() { # NAME STATE
    "$tool" render skins/aurora/aurora.theme --item PushButton --state "$2" --size 120x34 --text OK \
        -o "$out/guide/$1.png"
}
button button Normal
button button-over MouseOver
button button-pressed Pressed
button button-disabled Disabled

guide() { # NAME ITEM SIZE [MORE ...]
    "$tool" --any-folder render docs/guide/guide.theme --item "$2" --size "$3" -o "$out/guide/$1.png" "${@:4}"
}
for tile in 0 1 2 3 4; do guide "tile-$tile" "Tile$tile" 150x70; done
for mode in 0 1 2; do guide "mode-$mode" "Mode$mode" 90x46; done
style=0
for state in Normal MouseOver Pressed Disabled Default Focus; do
    guide "style-$style" Tile0 190x60 --state "$state" --text Aurora
    style=$((style + 1))
done
