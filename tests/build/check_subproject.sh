#!/usr/bin/env bash
# Builds a project that takes the library in with add_subdirectory: the library alone is built, by the
# project's own rules about warnings, and nothing of it is installed or tested with the project.
# check_subproject.sh SOURCE_DIR COMPILER_FLAGS
set -eu
source=$1 flags=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp -r "$source/tests/consumer" "$work/project"

# With the cache of a developer's build the sources need not be compiled again.
export CCACHE_NOHASHDIR=1
cmake -G Ninja -S "$work/project" -B "$work/build" -DCONSUMER_VXGUI_SOURCE="$source" \
    -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG="$flags" >/dev/null
targets=$(cmake --build "$work/build" --target help)
for strange in test_ example_ vxgui_tool; do
    if grep -q ": phony $strange\|^$strange" <<<"$targets"; then
        echo "a project that takes the library in gets $strange too"
        exit 1
    fi
done
cmake --build "$work/build" >"$work/log" 2>&1 || { tail -40 "$work/log"; exit 1; }
"$work/build/consumer"
