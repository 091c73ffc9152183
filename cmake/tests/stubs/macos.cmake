# SPDX-License-Identifier: LGPL-3.0-or-later
# What CMake asks a Mac about, as it stands on one.
set(CMAKE_SHARED_LIBRARY_RUNTIME_C_FLAG "-Wl,-rpath,")
set(CMAKE_SHARED_LIBRARY_RUNTIME_CXX_FLAG "-Wl,-rpath,")
