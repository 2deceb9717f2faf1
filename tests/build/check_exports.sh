#!/usr/bin/env bash
# Every symbol that the shared libraries define for others belongs to them: names of the library's
# namespace, its C interface, or the platform's published flat functions. check_exports.sh LIBRARY ...
set -eu
status=0
for library in "$@"; do
    # What the compiler makes of standard templates is weak and nobody's.
    strange=$(nm -D --defined-only --demangle "$library" | cut -d' ' -f3- |
        grep -vE 'vxgui::|std::|^(Gdip|Gdiplus)[A-Z][A-Za-z0-9]*$|^vxgui_[a-z_]+$|^VxCoreHlpEntry$|^operator ' || true)
    if [ -n "$strange" ]; then
        echo "$library exports what isn't the library's own:"
        echo "$strange" | head -20
        status=1
    fi
done
[ $status = 0 ] && echo "All exports are the library's own."
exit $status
