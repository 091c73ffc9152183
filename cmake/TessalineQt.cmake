# SPDX-License-Identifier: LGPL-3.0-or-later
# Chooses the Qt to build with. The only place that knows how the packages of Qt 4, 5 and 6 are
# called; everything else uses the variables set here:
#   TESSALINE_QT_CORE, TESSALINE_QT_WIDGETS, TESSALINE_QT_TEST   targets to link
#   tessaline_add_translations(variable file.ts...)      makes .qm files and lists them in the variable
#   TESSALINE_QT_SUFFIX                  what tells the library's file name of this Qt from the others

set(TESSALINE_QT 5 CACHE STRING "Major version of Qt to build with: 4, 5 or 6")
set_property(CACHE TESSALINE_QT PROPERTY STRINGS 5 6 4)

set(CMAKE_CXX_STANDARD 11)
if(TESSALINE_QT EQUAL 4)
    find_package(Qt4 4.8 REQUIRED COMPONENTS QtCore QtGui)
    if(TESSALINE_TESTS)
        find_package(Qt4 4.8 REQUIRED COMPONENTS QtCore QtGui QtTest)
    endif()
    set(TESSALINE_QT_CORE Qt4::QtCore)
    set(TESSALINE_QT_WIDGETS Qt4::QtGui)
    set(TESSALINE_QT_TEST Qt4::QtTest)
elseif(TESSALINE_QT EQUAL 5 OR TESSALINE_QT EQUAL 6)
    if(TESSALINE_QT EQUAL 6)
        set(CMAKE_CXX_STANDARD 17) # asked for by Qt 6's own headers
        find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets)
    else()
        find_package(Qt5 5.15 REQUIRED COMPONENTS Widgets)
    endif()
    if(TESSALINE_TESTS)
        find_package(Qt${TESSALINE_QT} REQUIRED COMPONENTS Test)
    endif()
    set(TESSALINE_QT_CORE Qt${TESSALINE_QT}::Core)
    set(TESSALINE_QT_WIDGETS Qt${TESSALINE_QT}::Widgets)
    set(TESSALINE_QT_TEST Qt${TESSALINE_QT}::Test)
else()
    message(FATAL_ERROR "TESSALINE_QT is \"${TESSALINE_QT}\"; it must be 4, 5 or 6.")
endif()
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)

# Builds for several Qt live side by side; the plain name is the primary Qt's.
if(TESSALINE_QT EQUAL 5)
    set(TESSALINE_QT_SUFFIX "")
else()
    set(TESSALINE_QT_SUFFIX "Qt${TESSALINE_QT}")
endif()

# Without the tools, which are in a package of their own, programs speak English.
function(tessaline_add_translations variable)
    set(${variable} "" PARENT_SCOPE)
    find_package(Qt${TESSALINE_QT}LinguistTools QUIET)
    if(NOT Qt${TESSALINE_QT}LinguistTools_FOUND)
        message(STATUS "Tessaline: without translations (no linguist tools for Qt ${TESSALINE_QT})")
        return()
    endif()
    set_source_files_properties(${ARGN} PROPERTIES
        OUTPUT_LOCATION "${CMAKE_CURRENT_BINARY_DIR}/translations")
    # Not create_translation: "make clean" would delete the .ts files.
    if(TESSALINE_QT EQUAL 5)
        qt5_add_translation(files ${ARGN})
    else()
        qt6_add_translation(files ${ARGN})
    endif()
    set(${variable} ${files} PARENT_SCOPE)
endfunction()
