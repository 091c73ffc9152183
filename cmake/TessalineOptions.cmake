# SPDX-License-Identifier: LGPL-3.0-or-later
# What users can choose. Sets TESSALINE_SHARED besides.

if(CMAKE_SOURCE_DIR STREQUAL PROJECT_SOURCE_DIR)
    set(tessaline_is_top_level ON)
    set(tessaline_default_plot ON)
else()
    set(tessaline_is_top_level OFF)
    set(tessaline_default_plot AUTO)
endif()

# As option() does it: what the surrounding project has set is left alone.
macro(tessaline_setting name value description)
    if(NOT DEFINED ${name})
        set(${name} "${value}" CACHE STRING "${description}")
    endif()
endmacro()

tessaline_setting(TESSALINE_QT "" "Qt to build with: 4, 5 or 6; empty: the one that is found")
tessaline_setting(TESSALINE_PLOT ${tessaline_default_plot}
    "Build the chart with Qwt: ON (Qwt must be there), OFF, or AUTO (only where Qwt is found)")
option(TESSALINE_TESTS "Build the tests" ${tessaline_is_top_level})
option(TESSALINE_EXAMPLES "Build the examples (Qt 5 and 6)" ${tessaline_is_top_level})
option(TESSALINE_INSTALL "Install the library with the project" ${tessaline_is_top_level})
option(TESSALINE_INSTALL_TESTS "Test the installed library too (Qt 5 and 6 on Debian)" OFF)
option(TESSALINE_BENCHMARKS "Build the benchmarks (needs Google Benchmark)" OFF)
option(TESSALINE_FUZZERS "Build the fuzzers (needs Clang)" OFF)
option(TESSALINE_DOCS "Build the manual (needs Doxygen)" OFF)

# Shared without a word: as a static library it is no plug-in for Qt Designer.
set(TESSALINE_SHARED ON)
if(DEFINED BUILD_SHARED_LIBS AND NOT BUILD_SHARED_LIBS)
    set(TESSALINE_SHARED OFF)
endif()
