#!/usr/bin/env bash
# Installs the build into a folder of its own and builds a project outside the tree against it, by
# find_package and by pkg-config, in C++ and in C; all find the library where the folder was moved to
# afterwards. check_consumer.sh BUILD_DIR SOURCE_DIR
set -eu
build=$1 source=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cmake --install "$build" --prefix "$work/first" >/dev/null
mv "$work/first" "$work/usr"
# The tool finds the styles that were installed with it, wherever that is, and not the build's.
mkdir "$work/elsewhere"
if [ -x "$work/usr/bin/vxgui" ] && [ -n "$(find "$work/usr/share" -name DefaultStyles.dll)" ]; then
    (cd "$work/elsewhere" && "$work/usr/bin/vxgui" gallery res:DefaultStyles:blue --desktop -o blue.png)
fi
cp -r "$source/tests/consumer" "$work/project"

cmake -S "$work/project" -B "$work/by-cmake" -DCMAKE_PREFIX_PATH="$work/usr" >/dev/null
cmake --build "$work/by-cmake" >/dev/null
"$work/by-cmake/consumer"

libdir=$(dirname "$(find "$work/usr" -name libvxgui.so)")
export PKG_CONFIG_PATH="$libdir/pkgconfig" LD_LIBRARY_PATH="$libdir"
flags=$(pkg-config --cflags --libs vxgui)
${CXX:-c++} -o "$work/by-pkg-config" "$work/project/main.cpp" $flags
"$work/by-pkg-config"

flags=$(pkg-config --cflags --libs vxgui-c)
${CC:-cc} -std=c11 -pedantic -Wall -Wextra -Werror -o "$work/in-c" "$work/project/main.c" $flags
"$work/in-c"
