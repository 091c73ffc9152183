# SPDX-License-Identifier: LGPL-3.0-or-later
# Run by "cmake -P": what a configuration says and does where Qwt is missing, whatever is installed.

get_filename_component(source "${CMAKE_CURRENT_LIST_DIR}/../.." ABSOLUTE)
set(scratch "${source}/build/without-qwt")

function(configure plot result_variable output_variable)
    file(REMOVE_RECURSE "${scratch}")
    execute_process(
        COMMAND ${CMAKE_COMMAND} -S "${source}" -B "${scratch}" -DTESSALINE_PLOT=${plot}
            -DTESSALINE_TESTS=OFF -DTESSALINE_EXAMPLES=OFF ${ARGN}
        RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    set(${result_variable} "${result}" PARENT_SCOPE)
    set(${output_variable} "${output}" PARENT_SCOPE)
endfunction()

set(missing -DCMAKE_DISABLE_FIND_PACKAGE_Qwt=TRUE)
foreach(qwt IN ITEMS "${missing}" "-DQWT_INCLUDE_DIR=${source}/nowhere")
    configure(ON result output "${qwt}")
    if(result EQUAL 0)
        message(FATAL_ERROR "Configured a chart without Qwt:\n${output}")
    endif()
    foreach(word "Qwt 6.1" "libqwt-qt5-dev" "TESSALINE_PLOT=OFF")
        string(FIND "${output}" "${word}" place)
        if(place EQUAL -1)
            message(FATAL_ERROR "The message does not name \"${word}\":\n${output}")
        endif()
    endforeach()
endforeach()

foreach(plot OFF AUTO)
    configure(${plot} result output ${missing})
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "TESSALINE_PLOT=${plot} does not configure without Qwt:\n${output}")
    endif()
endforeach()
file(REMOVE_RECURSE "${scratch}")
message(STATUS "Named what is missing, and configured without it.")
