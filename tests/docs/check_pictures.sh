#!/usr/bin/env bash
# Paints the pictures of the documents anew, and compares their pixels with those that the documents
# show. check_pictures.sh TOOL SOURCE
set -eu
tool=$1 source=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
"$source/docs/make_pictures.sh" "$tool" "$work" >"$work/log" || { cat "$work/log"; exit 1; }
status=0 count=0
while read -r name; do
    count=$((count + 1))
    if ! differing=$(compare -metric AE "$work/$name" "$source/docs/$name" null: 2>&1); then
        echo "docs/$name shows something else than what is painted today ($differing pixels)"
        status=1
    fi
done < <(cd "$work" && find . -name '*.png' | sed 's,^\./,,' | sort)
[ "$count" -ge 20 ] || { echo "only $count pictures were made"; status=1; }
[ $status = 0 ] || echo "Where this is meant: docs/make_pictures.sh $tool, and look at each"
exit $status
