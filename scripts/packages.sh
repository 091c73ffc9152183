# SPDX-License-Identifier: LGPL-3.0-or-later
# Sourced by the other scripts. need PACKAGE...: installs the Debian packages that are missing, and
# says so. Where that cannot be done it names them and goes on: CMake will tell if one is needed.

need() {
    local missing=() package
    if ! command -v dpkg-query > /dev/null; then
        echo "This is not Debian. Needed, by their names there: $*"
        return 0
    fi
    for package in "$@"; do
        if [ "$(dpkg-query -W -f='${db:Status-Abbrev}' "$package" 2> /dev/null)" != "ii " ]; then
            missing+=("$package")
        fi
    done
    [ "${#missing[@]}" -gt 0 ] || return 0

    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        as_root=(sudo)
        if ! command -v sudo > /dev/null; then
            echo "Missing, and no right to install them: ${missing[*]}"
            return 0
        fi
    fi
    echo "Installing ${missing[*]}"
    if ! { "${as_root[@]}" apt-get -q update \
        && "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
            apt-get -q -y --no-install-recommends install "${missing[@]}"; } > /tmp/tessaline-apt.$$ 2>&1; then
        tail -n 5 /tmp/tessaline-apt.$$
        echo "Could not install: ${missing[*]}"
    fi
    rm -f /tmp/tessaline-apt.$$
}

# What any build takes. The fonts: without one, texts are blank and no error tells.
packages_build="cmake ninja-build g++ fonts-dejavu-core"
packages_qt5="qtbase5-dev libqwt-qt5-dev qttools5-dev qttools5-dev-tools"
packages_qt6="qt6-base-dev libgl-dev libqt6opengl6-dev qt6-tools-dev qt6-l10n-tools"
packages_fuzz="clang libclang-rt-dev"
packages_memcheck="valgrind"
packages_coverage="gcovr"
packages_benchmarks="libbenchmark-dev libqcustomplot-dev libqt5charts5-dev valgrind"
packages_checks="clang-format clang-tidy clazy $packages_benchmarks"
# For pictures of a program on a display.
packages_pictures="xvfb xdotool imagemagick"
# For the tests of the installed library and its packages.
packages_install="pkg-config make binutils dpkg-dev file lintian"
# For the manual.
packages_docs="doxygen qhelpgenerator-qt5"
