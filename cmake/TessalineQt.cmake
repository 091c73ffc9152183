# SPDX-License-Identifier: LGPL-3.0-or-later
# Finds the chosen Qt. The only place that knows how the packages of Qt 4, 5 and 6 are called;
# everything else uses the variables set here:
#   TESSALINE_QT_CORE, TESSALINE_QT_WIDGETS, TESSALINE_QT_UIPLUGIN   targets to link
#   TESSALINE_QT_TEST, TESSALINE_QT_UITOOLS, TESSALINE_QT_DESIGNERCOMPONENTS   the same, for tests
#   TESSALINE_QT_PACKAGE, TESSALINE_QT_COMPONENTS   what find_package() takes
#   TESSALINE_QT_PKGCONFIG, TESSALINE_QT_DEBIAN_PACKAGE   how others call what its headers come in
#   TESSALINE_QT_PREFIX, TESSALINE_QT_PLUGINS, TESSALINE_QT_PROGRAMS   where it is installed
#   TESSALINE_QT_TRANSLATIONS            where the translations of Qt's own texts are
#   tessaline_add_translations(variable file.ts...)      makes .qm files and lists them in the variable
#   TESSALINE_QT_SUFFIX                  what tells the library's file name of this Qt from the others

include(TessalineQtChoice)

set(CMAKE_CXX_STANDARD 11)
if(TESSALINE_QT EQUAL 4)
    set(TESSALINE_QT_PACKAGE Qt4)
    set(TESSALINE_QT_COMPONENTS QtGui)
    set(TESSALINE_QT_PKGCONFIG QtGui)
    find_package(Qt4 ${TESSALINE_QT_MINIMUM} REQUIRED COMPONENTS QtCore QtGui)
    set(TESSALINE_QT_CORE Qt4::QtCore)
    set(TESSALINE_QT_WIDGETS Qt4::QtGui)
    add_library(TessalineQt4UiPlugin INTERFACE)
    target_include_directories(TessalineQt4UiPlugin INTERFACE "${QT_INCLUDE_DIR}/QtDesigner")
    set(TESSALINE_QT_UIPLUGIN TessalineQt4UiPlugin)
    if(TESSALINE_TESTS)
        find_package(Qt4 REQUIRED COMPONENTS QtCore QtGui QtTest QtXml QtUiTools)
        set(TESSALINE_QT_TEST Qt4::QtTest)
        set(TESSALINE_QT_UITOOLS Qt4::QtUiTools Qt4::QtXml)
    endif()
    set(_tessaline_qmake "${QT_QMAKE_EXECUTABLE}")
else()
    set(TESSALINE_QT_PACKAGE Qt${TESSALINE_QT})
    # Core by name, or CMake 3.18 does not know for which Qt to run moc if a function has found us first.
    set(TESSALINE_QT_COMPONENTS "Core Widgets")
    set(TESSALINE_QT_PKGCONFIG Qt${TESSALINE_QT}Widgets)
    if(TESSALINE_QT EQUAL 6)
        set(CMAKE_CXX_STANDARD 17) # asked for by Qt 6's own headers
        set(TESSALINE_QT_DEBIAN_PACKAGE qt6-base-dev)
    else()
        set(TESSALINE_QT_DEBIAN_PACKAGE qtbase5-dev)
    endif()
    find_package(${TESSALINE_QT_PACKAGE} ${TESSALINE_QT_MINIMUM} REQUIRED COMPONENTS Widgets)
    set(TESSALINE_QT_CORE ${TESSALINE_QT_PACKAGE}::Core)
    set(TESSALINE_QT_WIDGETS ${TESSALINE_QT_PACKAGE}::Widgets)
    if(TESSALINE_SHARED)
        find_package(${TESSALINE_QT_PACKAGE} REQUIRED COMPONENTS UiPlugin)
        set(TESSALINE_QT_UIPLUGIN ${TESSALINE_QT_PACKAGE}::UiPlugin)
    endif()
    if(TESSALINE_TESTS)
        find_package(${TESSALINE_QT_PACKAGE} REQUIRED COMPONENTS Test)
        set(TESSALINE_QT_TEST ${TESSALINE_QT_PACKAGE}::Test)
        find_package(${TESSALINE_QT_PACKAGE} QUIET OPTIONAL_COMPONENTS UiTools)
        if(TARGET ${TESSALINE_QT_PACKAGE}::UiTools)
            set(TESSALINE_QT_UITOOLS ${TESSALINE_QT_PACKAGE}::UiTools)
        else()
            message(STATUS
                "Tessaline: without the tests of forms loaded at run time, for want of Qt's UiTools")
        endif()
        if(TESSALINE_QT EQUAL 5)
            find_package(Qt5 QUIET OPTIONAL_COMPONENTS Designer DesignerComponents Xml)
            if(TARGET Qt5::DesignerComponents)
                set(TESSALINE_QT_DESIGNERCOMPONENTS Qt5::Designer Qt5::DesignerComponents Qt5::Xml)
            else()
                message(STATUS "Tessaline: without the test tst_designer, for want of Qt's Designer")
            endif()
        endif()
    endif()
    get_target_property(_tessaline_qmake ${TESSALINE_QT_PACKAGE}::qmake IMPORTED_LOCATION)
endif()
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)

function(_tessaline_query_qmake variable property)
    execute_process(COMMAND "${_tessaline_qmake}" -query ${property}
        OUTPUT_VARIABLE value OUTPUT_STRIP_TRAILING_WHITESPACE)
    set(${variable} "${value}" PARENT_SCOPE)
endfunction()
_tessaline_query_qmake(TESSALINE_QT_PREFIX QT_INSTALL_PREFIX)
_tessaline_query_qmake(TESSALINE_QT_PLUGINS QT_INSTALL_PLUGINS)
_tessaline_query_qmake(TESSALINE_QT_PROGRAMS QT_INSTALL_BINS)
_tessaline_query_qmake(TESSALINE_QT_TRANSLATIONS QT_INSTALL_TRANSLATIONS)
_tessaline_query_qmake(_tessaline_qt_libraries QT_INSTALL_LIBS)
_tessaline_query_qmake(_tessaline_qt_version QT_VERSION)

# Their package is private in Qt 6, and does not work everywhere; headers and libraries are there.
if(TESSALINE_TESTS AND TESSALINE_QT EQUAL 6)
    find_package(Qt6 QUIET OPTIONAL_COMPONENTS Designer Xml)
    find_library(TESSALINE_QT6_DESIGNERCOMPONENTS Qt6DesignerComponents
        HINTS "${_tessaline_qt_libraries}" NO_DEFAULT_PATH)
    mark_as_advanced(TESSALINE_QT6_DESIGNERCOMPONENTS)
    if(TARGET Qt6::Designer AND TARGET Qt6::Xml AND TESSALINE_QT6_DESIGNERCOMPONENTS)
        set(TESSALINE_QT_DESIGNERCOMPONENTS
            Qt6::Designer "${TESSALINE_QT6_DESIGNERCOMPONENTS}" Qt6::Xml)
    endif()
endif()

set(_tessaline_plot_choice "without the chart (${TESSALINE_PLOT_REASON})")
if(TESSALINE_HAS_PLOT)
    set(_tessaline_plot_choice "chart with Qwt ${Qwt_VERSION}")
endif()
message(STATUS
    "Tessaline: Qt ${_tessaline_qt_version} (${TESSALINE_QT_REASON}), ${_tessaline_plot_choice}")

# Builds for several Qt live side by side; the plain name is the primary Qt's.
if(TESSALINE_QT EQUAL 5)
    set(TESSALINE_QT_SUFFIX "")
else()
    set(TESSALINE_QT_SUFFIX "Qt${TESSALINE_QT}")
endif()

# Without the tools, which are in a package of their own, programs speak English.
function(tessaline_add_translations variable)
    set(${variable} "" PARENT_SCOPE)
    if(TESSALINE_QT EQUAL 4)
        set(has_tools ${QT_LRELEASE_EXECUTABLE})
    else()
        find_package(Qt${TESSALINE_QT}LinguistTools QUIET)
        set(has_tools ${Qt${TESSALINE_QT}LinguistTools_FOUND})
    endif()
    if(NOT has_tools)
        message(STATUS "Tessaline: without translations (no linguist tools for Qt ${TESSALINE_QT})")
        return()
    endif()
    set_source_files_properties(${ARGN} PROPERTIES
        OUTPUT_LOCATION "${CMAKE_CURRENT_BINARY_DIR}/translations")
    file(MAKE_DIRECTORY "${CMAKE_CURRENT_BINARY_DIR}/translations")
    # Not create_translation: "make clean" would delete the .ts files.
    if(TESSALINE_QT EQUAL 4)
        qt4_add_translation(files ${ARGN})
    elseif(TESSALINE_QT EQUAL 5)
        qt5_add_translation(files ${ARGN})
    else()
        qt6_add_translation(files ${ARGN})
    endif()
    set(${variable} ${files} PARENT_SCOPE)
endfunction()
