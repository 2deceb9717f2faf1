#!/usr/bin/env bash
# Makes the Debian packages of a build, asks lintian what it thinks of them, unpacks them into a
# folder of its own and works with what is there. check_packages.sh BUILD_DIR SOURCE_DIR
set -eu
build=$1 source=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail() {
    echo "$*"
    exit 1
}

cpack -G DEB --config "$build/CPackConfig.cmake" -B "$work/packages" >"$work/log" 2>&1 ||
    { cat "$work/log"; exit 1; }
for package in libvxgui9 libvxgui-dev vxgui-tools; do
    deb=$(find "$work/packages" -maxdepth 1 -name "${package}_*.deb")
    [ -n "$deb" ] || fail "there is no package $package"
    dpkg -x "$deb" "$work/root"
    dpkg-deb -f "$deb" >"$work/$package.control"
    for file in copyright changelog.Debian.gz; do
        [ -s "$work/root/usr/share/doc/$package/$file" ] || fail "$package has no $file"
    done
done

# Whatever an installation lays down is in one of the packages.
for deb in "$work"/packages/*.deb; do dpkg -x "$deb" "$work/root"; done
cmake --install "$build" --prefix "$work/whole" >/dev/null
lost=$(cd "$work/whole" && find . ! -type d | sort | while read -r file; do
    [ -e "$work/root/usr/$file" ] || [ -L "$work/root/usr/$file" ] || echo "$file"
done)
[ -z "$lost" ] || fail "in no package: $lost"
rm -rf "$work/whole"

if command -v lintian >/dev/null; then
    lintian --allow-root --fail-on error "$work"/packages/*.deb || fail "lintian finds errors"
else
    echo "lintian isn't there; the rest is looked at all the same"
fi

# What each needs: the library by its tools' own dependencies, the others that very library.
version=$(sed -n 's/^Version: //p' "$work/libvxgui9.control")
for needed in libc6 libcairo2 libpango; do
    grep -q "^Depends:.*$needed" "$work/libvxgui9.control" || fail "libvxgui9 doesn't need $needed"
done
if grep -q 'libqt6\|libQt6' "$work/libvxgui9.control"; then fail "libvxgui9 needs Qt"; fi
for package in libvxgui-dev vxgui-tools; do
    grep -q "^Depends:.*libvxgui9 (= $version)" "$work/$package.control" ||
        fail "$package doesn't need the library of its own version"
done

root=$work/root/usr
libdir=$(dirname "$(find "$root/lib" -name libvxgui.so)")
for library in libvxgui libvxplatform; do
    [ "$(readlink "$libdir/$library.so")" = "$library.so.9" ] || fail "$library.so leads elsewhere"
    objdump -p "$libdir/$library.so.9" | grep -q "SONAME *$library.so.9\$" || fail "$library: no SONAME"
    if nm "$libdir/$library.so.9" 2>/dev/null | grep -q .; then fail "$library isn't stripped"; fi
done

export LD_LIBRARY_PATH=$libdir
cd "$work"
[ "$(root/usr/bin/vxgui --version)" = "vxgui ${version%.*}" ] ||
    fail "vxgui --version says $(root/usr/bin/vxgui --version), the package is $version"
root/usr/bin/vxgui gallery "$source/skins/aurora/aurora.theme" -o gallery.png
root/usr/bin/vxgui gallery res:DefaultStyles:blue --desktop -o blue.png
if [ -n "$(find "$work/packages" -name "vxgui-viewer_*.deb")" ]; then  # only where Qt is
    QT_QPA_PLATFORM=offscreen root/usr/bin/vxgui view "$source/skins/aurora/aurora.theme" --screenshot view.png
    [ -s view.png ] || fail "the viewer of the packages shows nothing"
elif root/usr/bin/vxgui view "$source/skins/aurora/aurora.theme" 2>log; then
    fail "there is a viewer, and no package of it"
fi
zcat "$root/share/man/man1/vxgui.1.gz" | grep -q '^\.SH RENDER' || fail "the manual page is none"
bash -n "$root/share/bash-completion/completions/vxgui"

flags=$(PKG_CONFIG_PATH=$libdir/pkgconfig pkg-config --cflags --libs vxgui)
${CXX:-c++} -o consumer "$source/tests/consumer/main.cpp" $flags
./consumer
