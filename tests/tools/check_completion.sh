#!/usr/bin/env bash
# Holds what the shells complete, and the manual page, against what `--help` tells.
# check_completion.sh TOOL
set -eu
tool=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
"$tool" completion bash >"$work/vxgui.bash"
"$tool" completion zsh >"$work/_vxgui"
"$tool" manual >"$work/vxgui.1"
. "$work/vxgui.bash"
status=0

# What is completed behind the words of a command line, sorted.
completed() {
    COMP_WORDS=("$@") COMP_CWORD=$(($# - 1))
    _vxgui
    printf '%s\n' ${COMPREPLY[@]+"${COMPREPLY[@]}"} | sort
}

expect() {
    if [ "$2" != "$3" ]; then
        printf '%s\nexpected: %s\nfound:    %s\n' "$1" "${2//$'\n'/ }" "${3//$'\n'/ }"
        status=1
    fi
}

names=$("$tool" --help | sed -n '/^Subcommands:/,/^$/s/^  \([a-z]*\)  .*/\1/p' | sort)
[ "$(wc -w <<<"$names")" -ge 12 ] || { echo "--help lists hardly any subcommand"; exit 1; }
# The options that a help text lists.
options_in() { grep -oE '^  (-[a-zA-Z],)?--?[a-z0-9-]+|^  -[a-zA-Z]' | tr -d ' ' | tr ',' '\n' | sort -u; }
expect "vxgui" "$(printf '%s\n' $names $("$tool" --help | options_in) | sort)" "$(completed vxgui '')"
for name in $names; do
    options=$("$tool" "$name" --help | options_in)
    expect "vxgui $name -" "$options" "$(completed vxgui "$name" - | sort -u)"
    grep -q "^\.SH $(tr a-z A-Z <<<"$name")\$" "$work/vxgui.1" || { echo "no $name in the manual"; status=1; }
    for option in $options; do
        grep -qF -- "${option//-/\\-}" "$work/vxgui.1" || { echo "no $name $option in the manual"; status=1; }
        grep -qF -- "'$option[" "$work/_vxgui" || { echo "zsh: no $name $option"; status=1; }
    done
done
expect "--state F" "Focus
FocusMouseOver
FocusPressed" "$(completed vxgui render skin --state F)"
expect "--to" "adib
bmp
png
tga" "$(completed vxgui convert --to '')"
expect "a file" "" "$(completed vxgui render some)"
expect "an option of the second command" "" "$(completed vxgui render --desk)"

if command -v zsh >/dev/null; then zsh -n "$work/_vxgui"; fi
if command -v groff >/dev/null; then
    complaints=$(groff -man -Tutf8 -ww "$work/vxgui.1" 2>&1 >/dev/null)
    expect "groff" "" "$complaints"
fi
[ $status = 0 ] && echo "What shells complete and the manual tells is what --help tells."
exit $status
