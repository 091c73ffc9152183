# SPDX-License-Identifier: LGPL-3.0-or-later
# Chooses the Qt to build with, and with it whether the chart is built, which takes a Qwt for that Qt.
# Sets TESSALINE_QT, TESSALINE_QT_MINIMUM, TESSALINE_QWT_MINIMUM, TESSALINE_HAS_PLOT, and what to tell
# of the choice: TESSALINE_QT_REASON, TESSALINE_PLOT_REASON.

set(_tessaline_qt_minimum_6 6.4)
set(_tessaline_qt_minimum_5 5.15)
set(_tessaline_qt_minimum_4 4.8)
set(_tessaline_qwt_minimum_6 6.2)
set(_tessaline_qwt_minimum_5 6.1)
set(_tessaline_qwt_minimum_4 5.2)

# Where find_package() would find it, without loading it: what a Qt defines when it is loaded stays,
# and gets into the other one's way. No package has this version, so they are only asked for theirs.
function(_tessaline_locate variable package minimum)
    set(${variable} "" PARENT_SCOPE)
    set(QT_NO_PACKAGE_VERSION_CHECK OFF)
    set(known_folder "${${package}_DIR}")
    find_package(${package} 999 EXACT QUIET CONFIG HINTS ${ARGN})
    unset(${package}_DIR CACHE)
    if(known_folder)
        set(${package}_DIR "${known_folder}" CACHE PATH "The directory containing ${package}.")
    endif()

    foreach(version IN LISTS ${package}_CONSIDERED_VERSIONS)
        list(FIND ${package}_CONSIDERED_VERSIONS "${version}" place)
        # One for another word size says so in its version.
        if(version MATCHES "^[0-9.]+$" AND NOT version VERSION_LESS minimum)
            list(GET ${package}_CONSIDERED_CONFIGS ${place} config)
            get_filename_component(folder "${config}" DIRECTORY)
            set(${variable} "${folder}" PARENT_SCOPE)
            return()
        endif()
    endforeach()
endfunction()

# The major versions of those Qt that are installed with all that the library takes, newest first.
function(_tessaline_list_installed variable)
    set(installed)
    foreach(qt IN ITEMS 6 5)
        _tessaline_locate(folder Qt${qt} ${_tessaline_qt_minimum_${qt}})
        if(folder AND TESSALINE_SHARED)
            _tessaline_locate(folder Qt${qt}UiPlugin ${_tessaline_qt_minimum_${qt}} "${folder}/..")
        endif()
        if(folder)
            list(APPEND installed ${qt})
        endif()
    endforeach()
    set(${variable} ${installed} PARENT_SCOPE)
endfunction()

# Those that the surrounding project has found, newest first.
function(_tessaline_list_found variable)
    set(found)
    foreach(core IN ITEMS Qt6::Core Qt5::Core Qt4::QtCore)
        if(TARGET ${core})
            string(SUBSTRING ${core} 2 1 qt)
            list(APPEND found ${qt})
        endif()
    endforeach()
    set(${variable} ${found} PARENT_SCOPE)
endfunction()

# Leaves no trace of a Qwt that does not fit, and what the user has said of it as it was.
macro(_tessaline_find_qwt qt)
    set(_tessaline_given_library "$CACHE{QWT_LIBRARY}")
    set(_tessaline_given_headers "$CACHE{QWT_INCLUDE_DIR}")
    set(Qwt_QT_MAJOR ${qt})
    find_package(Qwt ${_tessaline_qwt_minimum_${qt}} QUIET)
    if(NOT Qwt_FOUND)
        unset(QWT_LIBRARY CACHE)
        unset(QWT_INCLUDE_DIR CACHE)
        if(_tessaline_given_library)
            set(QWT_LIBRARY "${_tessaline_given_library}" CACHE FILEPATH "Qwt's library")
        endif()
        if(_tessaline_given_headers)
            set(QWT_INCLUDE_DIR "${_tessaline_given_headers}" CACHE PATH "Qwt's headers")
        endif()
    endif()
endmacro()

string(TOUPPER "${TESSALINE_PLOT}" _tessaline_plot)
if(_tessaline_plot MATCHES "^(ON|TRUE|YES|1)$")
    set(_tessaline_plot ON)
elseif(_tessaline_plot MATCHES "^(OFF|FALSE|NO|0)$")
    set(_tessaline_plot OFF)
elseif(NOT _tessaline_plot STREQUAL "AUTO")
    message(FATAL_ERROR "TESSALINE_PLOT is \"${TESSALINE_PLOT}\"; it must be ON, OFF or AUTO.")
endif()

_tessaline_list_found(_tessaline_found)
if(NOT TESSALINE_QT STREQUAL "")
    if(NOT TESSALINE_QT MATCHES "^[456]$")
        message(FATAL_ERROR "TESSALINE_QT is \"${TESSALINE_QT}\"; it must be 4, 5 or 6, or empty for "
            "the Qt that is found.")
    endif()
    if(_tessaline_found AND NOT TESSALINE_QT IN_LIST _tessaline_found)
        list(JOIN _tessaline_found " and " _tessaline_found)
        message(FATAL_ERROR "Tessaline is to be built with Qt ${TESSALINE_QT} (TESSALINE_QT), but this "
            "project has found Qt ${_tessaline_found}, and a program cannot use both. Leave "
            "TESSALINE_QT empty, or find Qt ${TESSALINE_QT} before Tessaline is added.")
    endif()
    set(_tessaline_candidates ${TESSALINE_QT})
    set(TESSALINE_QT_REASON "as TESSALINE_QT says")
elseif(_tessaline_found)
    set(_tessaline_candidates ${_tessaline_found})
    set(TESSALINE_QT_REASON "the project's")
else()
    _tessaline_list_installed(_tessaline_candidates)
    set(TESSALINE_QT_REASON "newest found")
    if(NOT _tessaline_candidates)
        message(FATAL_ERROR "Neither Qt ${_tessaline_qt_minimum_6} or newer nor Qt "
            "${_tessaline_qt_minimum_5} was found, with what plug-ins for Designer take (Debian's "
            "packages: qt6-base-dev qt6-tools-dev, or qtbase5-dev qttools5-dev). Say where it is with "
            "CMAKE_PREFIX_PATH; Qt 4 is only taken with -DTESSALINE_QT=4.")
    endif()
endif()

set(TESSALINE_HAS_PLOT OFF)
set(TESSALINE_PLOT_REASON "TESSALINE_PLOT is off")
list(GET _tessaline_candidates 0 TESSALINE_QT)
if(_tessaline_plot STREQUAL "AUTO")
    set(_tessaline_candidates ${TESSALINE_QT})
endif()
if(_tessaline_plot)
    set(_tessaline_missing)
    foreach(_tessaline_qt IN LISTS _tessaline_candidates)
        _tessaline_find_qwt(${_tessaline_qt})
        if(Qwt_FOUND)
            set(TESSALINE_QT ${_tessaline_qt})
            break()
        endif()
        list(APPEND _tessaline_missing
            "Qwt ${_tessaline_qwt_minimum_${_tessaline_qt}} or newer, built for Qt ${_tessaline_qt}")
    endforeach()
    set(TESSALINE_HAS_PLOT ${Qwt_FOUND})
    set(TESSALINE_PLOT_REASON "no Qwt for Qt ${TESSALINE_QT}")
    if(Qwt_FOUND AND _tessaline_missing)
        set(TESSALINE_QT_REASON "newest that has Qwt")
    elseif(NOT Qwt_FOUND AND NOT _tessaline_plot STREQUAL "AUTO")
        list(JOIN _tessaline_missing ", or " _tessaline_missing)
        message(FATAL_ERROR
            "The chart needs ${_tessaline_missing}, which was not found. Install it (Debian: "
            "libqwt-qt5-dev; libqwt-qt6-dev only after Debian 13), say where it is with QWT_LIBRARY "
            "and QWT_INCLUDE_DIR, or build without the chart with -DTESSALINE_PLOT=OFF.")
    endif()
endif()
set(TESSALINE_QT_MINIMUM ${_tessaline_qt_minimum_${TESSALINE_QT}})
set(TESSALINE_QWT_MINIMUM ${_tessaline_qwt_minimum_${TESSALINE_QT}})
