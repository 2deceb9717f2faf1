#!/usr/bin/env bash
# Every symbol that the shared libraries define for others belongs to them: names of the library's
# namespace, or the platform's published flat functions. check_exports.sh LIBRARY ...
set -eu
status=0
for library in "$@"; do
    strange=$(nm -D --defined-only --demangle "$library" | cut -d' ' -f3- |
        grep -vE '^(vtable for |typeinfo (name )?for |non-virtual thunk to |guard variable for |VTT for )?vxgui::|^(Gdip|Gdiplus)[A-Z][A-Za-z0-9]*$|^VxCoreHlpEntry$|^(std::|__gnu_cxx::|(vtable|typeinfo|typeinfo name) for std::|operator |void std|bool std|decltype)|^std::|vxgui::' || true)
    if [ -n "$strange" ]; then
        echo "$library exports what isn't the library's own:"
        echo "$strange" | head -20
        status=1
    fi
done
[ $status = 0 ] && echo "All exports are the library's own."
exit $status
