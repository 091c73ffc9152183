# SPDX-License-Identifier: LGPL-3.0-or-later
# Finds the Qwt that was built for one major version of Qt, told by Qwt_QT_MAJOR (default 5).
#
#   Qwt::Qwt           the target to link
#   Qwt_VERSION        such as 6.1.4
#   QWT_INCLUDE_DIR, QWT_LIBRARY    set these to say where it is
#
# Qwt ships no CMake files of its own, and distributions name its library after the Qt it links.

if(NOT Qwt_QT_MAJOR)
    set(Qwt_QT_MAJOR 5)
endif()

# A library that is just called "qwt" tells nothing about its Qt, so it is taken last.
set(_qwt_names qwt-qt${Qwt_QT_MAJOR} qwt6-qt${Qwt_QT_MAJOR})
if(Qwt_QT_MAJOR EQUAL 4)
    list(APPEND _qwt_names qwt5-qt4)
endif()
list(APPEND _qwt_names qwt)

set(_qwt_folders)
foreach(_qwt_name IN LISTS _qwt_names)
    list(APPEND _qwt_folders qt${Qwt_QT_MAJOR}/${_qwt_name} ${_qwt_name})
endforeach()

find_library(QWT_LIBRARY NAMES ${_qwt_names} NAMES_PER_DIR)
find_path(QWT_INCLUDE_DIR NAMES qwt_global.h
    HINTS "${QWT_LIBRARY}/Headers" # of a framework
    PATH_SUFFIXES qt${Qwt_QT_MAJOR}/qwt6 qt${Qwt_QT_MAJOR}/qwt ${_qwt_folders} qwt6)

# A framework of macOS is a folder with the library in it.
set(_qwt_file "${QWT_LIBRARY}")
if(QWT_LIBRARY MATCHES "/([^/]+)[.]framework$")
    set(_qwt_file "${QWT_LIBRARY}/${CMAKE_MATCH_1}")
endif()

# Whatever it is called, it tells by what it links itself, unless it is a static one.
set(QWT_LIBRARY_IS_FOR_THIS_QT TRUE)
if(EXISTS "${_qwt_file}")
    file(STRINGS "${_qwt_file}" _qwt_links REGEX "libQt[56]?Core[.]so")
    string(REPLACE "Qt4" "Qt" _qwt_core "libQt${Qwt_QT_MAJOR}Core")
    if(_qwt_links AND NOT _qwt_links MATCHES "${_qwt_core}[.]so")
        set(QWT_LIBRARY_IS_FOR_THIS_QT FALSE)
    endif()
endif()

unset(Qwt_VERSION)
if(QWT_INCLUDE_DIR AND EXISTS "${QWT_INCLUDE_DIR}/qwt_global.h")
    file(STRINGS "${QWT_INCLUDE_DIR}/qwt_global.h" _qwt_line REGEX "define[ \t]+QWT_VERSION_STR")
    string(REGEX REPLACE ".*\"([0-9.]+)\".*" "\\1" Qwt_VERSION "${_qwt_line}")
endif()

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Qwt
    REQUIRED_VARS QWT_LIBRARY QWT_INCLUDE_DIR Qwt_VERSION QWT_LIBRARY_IS_FOR_THIS_QT
    VERSION_VAR Qwt_VERSION)
mark_as_advanced(QWT_LIBRARY QWT_INCLUDE_DIR)

if(Qwt_FOUND AND NOT TARGET Qwt::Qwt)
    add_library(Qwt::Qwt UNKNOWN IMPORTED)
    set_target_properties(Qwt::Qwt PROPERTIES
        IMPORTED_LOCATION "${_qwt_file}"
        INTERFACE_INCLUDE_DIRECTORIES "${QWT_INCLUDE_DIR}")
    if(WIN32)
        # What is linked for a DLL names it. Qwt's headers have to be told of one.
        file(STRINGS "${QWT_LIBRARY}" _qwt_dll REGEX "[Qq]wt[^/]*[.][Dd][Ll][Ll]" LIMIT_COUNT 1)
        if(_qwt_dll)
            set_target_properties(Qwt::Qwt PROPERTIES INTERFACE_COMPILE_DEFINITIONS QWT_DLL)
        endif()
    endif()
endif()
