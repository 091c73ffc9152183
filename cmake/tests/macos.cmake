# SPDX-License-Identifier: LGPL-3.0-or-later
# Run by "cmake -P" on Debian: configures for macOS, builds with tools that make empty files, installs,
# and looks at what comes out. Shows that no rule of ours is for one system only; it compiles nothing.

get_filename_component(source "${CMAKE_CURRENT_LIST_DIR}/../.." ABSOLUTE)
set(stubs "${CMAKE_CURRENT_LIST_DIR}/stubs")
set(scratch "${source}/build/macos")
set(prefix "${scratch}/prefix")
unset(ENV{CMAKE_CXX_COMPILER_LAUNCHER})
find_program(do_nothing true)

function(run)
    execute_process(COMMAND ${ARGN}
        RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        list(JOIN ARGN " " command)
        message(FATAL_ERROR "This failed: ${command}\n${output}")
    endif()
endfunction()

file(REMOVE_RECURSE "${scratch}")
run(${CMAKE_COMMAND} -S "${source}" -B "${scratch}" -G Ninja -DTESSALINE_QT=5 -DTESSALINE_PLOT=ON
    -DTESSALINE_EXAMPLES=OFF -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_LIBDIR=lib
    -DCMAKE_SYSTEM_NAME=Darwin -DCMAKE_LIBRARY_ARCHITECTURE=x86_64-linux-gnu
    -DCMAKE_CXX_COMPILER=${stubs}/compiler -DCMAKE_CXX_COMPILER_FORCED=ON
    -DCMAKE_CXX_COMPILER_ID_RUN=ON -DCMAKE_CXX_COMPILER_ID=AppleClang
    -DCMAKE_CXX_COMPILER_VERSION=14 -DCMAKE_CXX_STANDARD_COMPUTED_DEFAULT=14
    -DCMAKE_CXX_STANDARD_DEFAULT=14 -DCMAKE_SIZEOF_VOID_P=8
    "-DCMAKE_CXX_COMPILE_FEATURES=cxx_std_11\;cxx_std_14\;cxx_std_17\;cxx_decltype"
    -DCMAKE_AR=${stubs}/ar -DCMAKE_RANLIB=${do_nothing} -DCMAKE_INSTALL_NAME_TOOL=${do_nothing}
    -DCMAKE_PROJECT_INCLUDE=${stubs}/macos.cmake)
run(${CMAKE_COMMAND} --build "${scratch}")
run(${CMAKE_COMMAND} --install "${scratch}" --prefix "${prefix}")

file(GLOB_RECURSE files LIST_DIRECTORIES FALSE RELATIVE "${prefix}" "${prefix}/*")
file(STRINGS "${CMAKE_CURRENT_LIST_DIR}/files-macos.txt" expected)
if(NOT files STREQUAL expected)
    message(FATAL_ERROR "Installed is\n${files}\ninstead of\n${expected}")
endif()
foreach(plugin "${prefix}/lib/qt5/plugins/designer/libTessaline.dylib"
        "${scratch}/qtplugins/designer/libTessaline.dylib")
    if(NOT EXISTS "${plugin}")
        message(FATAL_ERROR "${plugin} is a link to nothing.")
    endif()
endforeach()

file(READ "${scratch}/build.ninja" rules)
file(READ "${scratch}/cmake_install.cmake" installation)
if(NOT rules MATCHES "INSTALLNAME_DIR = @rpath/" OR NOT installation MATCHES "@loader_path")
    message(FATAL_ERROR "Programs and plug-ins would not find the library where it is installed.")
endif()
file(REMOVE_RECURSE "${scratch}")
message(STATUS "Configured for macOS, installed what it should.")
