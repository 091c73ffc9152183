# SPDX-License-Identifier: LGPL-3.0-or-later
# tessaline_add_test(name): the test program made of name.cpp, run by CTest under that name.
#   LIBRARIES   what it links besides the test support
#   LABELS      CTest labels; a test labelled "slow" is only run by "ctest -C slow"
# tessaline_find_programs(variable test program...): whether all are there; says so of those that are
# not, for the test that is left out then.

# The waiting macros of Qt Test 6.8 narrow the time they are given, in the line that calls them. Newer
# ones reckon in std::chrono to the end.
if(TESSALINE_QT EQUAL 6 AND Qt6Test_VERSION VERSION_GREATER_EQUAL 6.8
        AND Qt6Test_VERSION VERSION_LESS 6.11)
    target_compile_options(${TESSALINE_QT_TEST} INTERFACE -Wno-conversion)
endif()

function(tessaline_add_test name)
    cmake_parse_arguments(arg "" "" "LIBRARIES;LABELS" ${ARGN})
    add_executable(${name} ${name}.cpp)
    target_link_libraries(${name} PRIVATE ${arg_LIBRARIES})
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    tessaline_warnings(${name})
    set(configurations)
    if("slow" IN_LIST arg_LABELS)
        set(configurations CONFIGURATIONS slow)
    endif()
    set(log)
    if(WIN32) # where a program that shows windows may have no console
        set(log -o ${name}.txt,txt)
    endif()
    add_test(NAME ${name} COMMAND ${name} ${log} ${configurations})
    set_tests_properties(${name} PROPERTIES TIMEOUT 900)
    if(arg_LABELS)
        set_tests_properties(${name} PROPERTIES LABELS "${arg_LABELS}")
    endif()
endfunction()

function(tessaline_find_programs variable test)
    set(missing)
    foreach(program IN LISTS ARGN)
        find_program(TESSALINE_PROGRAM_${program} ${program} HINTS "${TESSALINE_QT_PROGRAMS}")
        mark_as_advanced(TESSALINE_PROGRAM_${program})
        if(NOT TESSALINE_PROGRAM_${program})
            list(APPEND missing ${program})
        endif()
    endforeach()
    set(${variable} ON PARENT_SCOPE)
    if(missing)
        list(JOIN missing ", " missing)
        message(STATUS "Tessaline: without the test ${test}, for want of ${missing}")
        set(${variable} OFF PARENT_SCOPE)
    endif()
endfunction()
