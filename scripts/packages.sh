# SPDX-License-Identifier: LGPL-3.0-or-later
# Sourced by the other scripts.
# need PACKAGE...: installs the Debian packages that are missing, and says so. A name with "?" behind
# it is taken only where the release has such a package. Where that cannot be done it names them and
# goes on: CMake will tell if one is needed.

need() {
    local missing=() package
    if ! command -v dpkg-query > /dev/null; then
        echo "This is not Debian. Needed, by their names there: ${*//\?/}"
        return 0
    fi
    for package in "$@"; do
        if ! is_installed "${package%\?}" && { [ "${package%\?}" = "$package" ] || is_offered "${package%\?}"; }; then
            missing+=("${package%\?}")
        fi
    done
    [ "${#missing[@]}" -eq 0 ] || install_packages "${missing[@]}"
}

# As itself, or as what another package provides.
is_installed() {
    dpkg-query -W -f='${db:Status-Abbrev}${Package}, ${Provides}\n' | sed -n 's/^ii //p' \
        | sed -e 's/ ([^)]*)//g' -e 's/, */\n/g' | grep -xF "$1" > /dev/null
}

is_offered() {
    # A fresh system has no lists of packages at all, which looks like a release without this one.
    [ -n "$(apt-cache madison dpkg)" ] || as_root apt-get -q update > /dev/null 2>&1 || true
    [ -n "$(apt-cache madison "$1")" ]
}

as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    else
        sudo "$@"
    fi
}

install_packages() {
    if [ "$(id -u)" -ne 0 ] && ! command -v sudo > /dev/null; then
        echo "Missing, and no right to install them: $*"
        return 0
    fi
    echo "Installing $*"
    local log
    log=$(mktemp)
    if ! { as_root apt-get -q update \
        && as_root env DEBIAN_FRONTEND=noninteractive \
            apt-get -q -y --no-install-recommends install "$@"; } > "$log" 2>&1; then
        tail -n 5 "$log"
        echo "Could not install: $*"
    fi
    rm -f "$log"
}

# The newest Qt for which the release has Qwt: 6 or 5.
newest_qt() {
    if command -v apt-cache > /dev/null; then
        { is_installed libqwt-qt6-dev || is_offered libqwt-qt6-dev; } && echo 6 || echo 5
    else
        command -v qmake6 > /dev/null && echo 6 || echo 5
    fi
}

# The presets' workflows came with CMake 3.25.
need_workflows() {
    local version
    version=$(cmake --version | sed -n 's/^cmake version //p')
    if [ "$(printf '%s\n' 3.25 "$version" | sort -V | head -n 1)" != 3.25 ]; then
        echo "This takes CMake 3.25 or newer; this one is $version. By hand it goes like this:" >&2
        echo "    cmake -S . -B build/mine && cmake --build build/mine && cd build/mine && ctest" >&2
        exit 1
    fi
}

# What any build takes. The fonts: without one, texts are blank and no error tells.
packages_build="cmake ninja-build g++ fonts-dejavu-core"
packages_qt5="qtbase5-dev libqwt-qt5-dev qttools5-dev qttools5-dev-tools qttranslations5-l10n"
packages_qt6="qt6-base-dev libgl-dev libqt6opengl6-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools qt6-translations-l10n libqwt-qt6-dev?"
# The program behind the example.
packages_example="restic"
packages_fuzz="clang libclang-rt-dev"
packages_memcheck="valgrind"
packages_coverage="gcovr"
packages_benchmarks="libbenchmark-dev libqcustomplot-dev libqt5charts5-dev valgrind"
packages_checks="clang-format clang-tidy clazy python3 $packages_benchmarks"
# For pictures of a program on a display.
packages_pictures="xvfb xdotool imagemagick"
# For the test that looks at widgets as a screen reader does.
packages_reader="xvfb dbus at-spi2-core python3-gi gir1.2-atspi-2.0"
# For the tests of the installed library and its packages.
packages_install="pkg-config make binutils dpkg-dev file lintian"
# For Windows, in scripts/windows.
packages_windows="g++-mingw-w64-x86-64-posix wine64 dpkg-dev make perl"
# For the manual.
packages_docs="doxygen qhelpgenerator-qt5"
