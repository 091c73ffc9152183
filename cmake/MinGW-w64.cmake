# SPDX-License-Identifier: LGPL-3.0-or-later
# A toolchain file: builds for Windows on Debian, with MinGW-w64 (g++-mingw-w64-x86-64-posix). Where
# Qt and Qwt for it are is told by CMAKE_FIND_ROOT_PATH. Programs of the build run by Wine, if it is
# there.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
# The one with POSIX threads: the other has no std::thread before GCC 13.
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

list(APPEND CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

find_program(TESSALINE_WINE NAMES wine64 HINTS /usr/lib/wine)
mark_as_advanced(TESSALINE_WINE)
if(TESSALINE_WINE)
    set(CMAKE_CROSSCOMPILING_EMULATOR "${TESSALINE_WINE}")
endif()
