# Sourced by ./run, ./test and bench/run.sh: makes sure that Debian's packages are there.

BUILD_PACKAGES="g++ cmake ninja-build ccache pkg-config libpixman-1-dev libcairo2-dev
  libpango1.0-dev libfreetype-dev libfontconfig-dev libpng-dev libjpeg62-turbo-dev libgif-dev zlib1g-dev
  libtiff-dev libzstd-dev libcbor-dev libpolyclipping-dev libcli11-dev libkainjow-mustache-dev
  python3 fonts-dejavu-core fonts-wqy-microhei"
TEST_PACKAGES="$BUILD_PACKAGES libgtest-dev libgmock-dev fonts-noto-core imagemagick icoutils
  python3-pil qt6-base-dev libsdl2-dev libx11-dev xvfb xdotool doxygen lintian"
BENCH_PACKAGES="$BUILD_PACKAGES libbenchmark-dev libyuv-dev libopencv-core-dev libopencv-imgproc-dev libsdl2-dev
  libimlib2-dev libstb-dev qt6-base-dev"

missing_packages() {
    local package
    for package in "$@"; do
        [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || printf '%s ' "$package"
    done
}

# Installs what is missing of the named packages, with root or sudo; says what to install when
# there is neither.
need_packages() {
    if ! command -v dpkg-query >/dev/null; then
        echo "This is no Debian system; going on with the tools and libraries that are here." >&2
        return 0
    fi
    local missing sudo=""
    missing=$(missing_packages "$@")
    [ -n "$missing" ] || return 0
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "These packages are missing, and there is neither root nor sudo to install them:" >&2
            echo "    apt-get install $missing" >&2
            return 1
        fi
        sudo=sudo
    fi
    echo "Installing: $missing"
    $sudo apt-get update -q
    $sudo env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends $missing
}

# The number of jobs: one a core, and at least 1.
jobs_here() { nproc 2>/dev/null || echo 1; }

# Configures a preset once and builds the named targets (all without names), quietly when all is well.
build_preset() {
    local preset=$1
    shift
    if [ ! -f "build/$preset/build.ninja" ]; then
        echo "Configuring build/$preset"
        cmake --preset "$preset" >"/tmp/vxgui-configure.$$" 2>&1 || {
            cat "/tmp/vxgui-configure.$$"
            rm -f "/tmp/vxgui-configure.$$"
            return 1
        }
        rm -f "/tmp/vxgui-configure.$$"
    fi
    echo "Building build/$preset"
    cmake --build "build/$preset" --parallel "$(jobs_here)" ${1:+--target "$@"}
}
