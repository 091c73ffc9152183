# SPDX-License-Identifier: LGPL-3.0-or-later
# tessaline_add_test(name): the test program made of name.cpp, run by CTest under that name.
#   LIBRARIES   what it links besides the test support
#   LABELS      CTest labels; "slow" keeps a test out of the everyday presets

function(tessaline_add_test name)
    cmake_parse_arguments(arg "" "" "LIBRARIES;LABELS" ${ARGN})
    add_executable(${name} ${name}.cpp)
    target_link_libraries(${name} PRIVATE ${arg_LIBRARIES})
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    tessaline_warnings(${name})
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT 900)
    if(arg_LABELS)
        set_tests_properties(${name} PROPERTIES LABELS "${arg_LABELS}")
    endif()
endfunction()
