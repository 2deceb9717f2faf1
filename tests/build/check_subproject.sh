#!/usr/bin/env bash
# Builds a project that takes the library in with add_subdirectory: the library alone is built, and none
# of its tests, examples or tools.
# check_subproject.sh BUILD_DIR SOURCE_DIR TYPE COMPILER_FLAGS WARNINGS_ARE_ERRORS
set -eu
build=$1 source=$2 type=$3 flags=$4 strict=$5
# Beside the build, and with its flags, so that the sources come from the cache of compilations.
work=$build-subproject
rm -rf "$work"
trap 'rm -rf "$work"' EXIT

cmake -G Ninja -S "$source/tests/consumer" -B "$work" -DCONSUMER_VXGUI_SOURCE="$source" \
    -DCMAKE_BUILD_TYPE="$type" "-DCMAKE_CXX_FLAGS_${type^^}=$flags" -DVXGUI_WERROR="$strict" >/dev/null
targets=$(cmake --build "$work" --target help)
for strange in test_ example_ vxgui_tool; do
    if grep -q "^$strange" <<<"$targets"; then
        echo "a project that takes the library in gets $strange too"
        exit 1
    fi
done
cmake --build "$work" >"$work/log" 2>&1 || { tail -40 "$work/log"; exit 1; }
"$work/consumer"
