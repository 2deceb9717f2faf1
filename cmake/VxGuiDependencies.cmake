# What the platform layer stands on; nothing above it sees these.
find_package(PkgConfig REQUIRED)
find_package(Threads REQUIRED)
pkg_check_modules(VXGUI_DEPS REQUIRED IMPORTED_TARGET
                  pixman-1 cairo cairo-ft pangocairo pangoft2 freetype2 fontconfig
                  libpng libjpeg libtiff-4 libzstd zlib libcbor polyclipping)
find_package(GIF REQUIRED)
