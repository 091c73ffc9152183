# SPDX-License-Identifier: LGPL-3.0-or-later
# Decides whether the chart is built, which takes a Qwt made for the chosen Qt.
# Sets TESSALINE_HAS_PLOT and TESSALINE_QWT_MINIMUM.

set(TESSALINE_PLOT ON CACHE STRING
    "Build the chart with Qwt: ON (Qwt must be there), OFF, or AUTO (only where Qwt is found)")
set_property(CACHE TESSALINE_PLOT PROPERTY STRINGS ON OFF AUTO)

set(TESSALINE_HAS_PLOT OFF)
if(TESSALINE_PLOT)
    set(Qwt_QT_MAJOR ${TESSALINE_QT})
    if(TESSALINE_QT EQUAL 4)
        set(TESSALINE_QWT_MINIMUM 5.2)
    elseif(TESSALINE_QT EQUAL 5)
        set(TESSALINE_QWT_MINIMUM 6.1)
    else()
        set(TESSALINE_QWT_MINIMUM 6.2)
    endif()
    find_package(Qwt ${TESSALINE_QWT_MINIMUM} QUIET)
    set(TESSALINE_HAS_PLOT ${Qwt_FOUND})
    if(NOT Qwt_FOUND AND NOT TESSALINE_PLOT STREQUAL "AUTO")
        message(FATAL_ERROR
            "Qwt ${TESSALINE_QWT_MINIMUM} or newer, built for Qt ${TESSALINE_QT}, was not found "
            "(Debian's package for Qt 5 is libqwt-qt5-dev). The chart needs it. Install it, say "
            "where it is with QWT_INCLUDE_DIR and QWT_LIBRARY, or build without the chart with "
            "-DTESSALINE_PLOT=OFF.")
    endif()
endif()
if(TESSALINE_HAS_PLOT)
    message(STATUS "Tessaline: Qt ${TESSALINE_QT}, chart with Qwt ${Qwt_VERSION}")
else()
    message(STATUS "Tessaline: Qt ${TESSALINE_QT}, without the chart")
endif()
