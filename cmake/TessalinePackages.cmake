# SPDX-License-Identifier: LGPL-3.0-or-later
# Debian packages: "cpack" in the build folder makes one of the library and one for developers.
# Configure with -DCMAKE_INSTALL_PREFIX=/usr, or Designer does not find the plug-in by itself.

if(NOT tessaline_is_top_level OR NOT TESSALINE_SHARED OR TESSALINE_QT EQUAL 4
        OR NOT CMAKE_SYSTEM_NAME STREQUAL "Linux")
    return()
endif()

# Named after the soname, as Debian has it: libtessaline1, libtessalineqt6-1.
string(TOLOWER "libtessaline${TESSALINE_QT_SUFFIX}" package_stem)
set(runtime_package "${package_stem}${PROJECT_VERSION_MAJOR}")
if(package_stem MATCHES "[0-9]$")
    set(runtime_package "${package_stem}-${PROJECT_VERSION_MAJOR}")
endif()
set(development_package "${package_stem}-dev")

# What Debian wants each package to bring along. The copies are made once, at configuration.
set(package_files "${CMAKE_CURRENT_BINARY_DIR}/packages")
configure_file(packaging/changelog.in "${package_files}/changelog" @ONLY)
execute_process(COMMAND gzip --best --no-name --force --keep "${package_files}/changelog")
foreach(component IN ITEMS runtime development)
    install(FILES "${package_files}/changelog.gz" packaging/copyright
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${${component}_package}
        COMPONENT ${component} EXCLUDE_FROM_ALL)
endforeach()
install(FILES packaging/lintian-overrides DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides
    RENAME ${runtime_package} COMPONENT runtime EXCLUDE_FROM_ALL)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ${package_stem})
set(CPACK_PACKAGE_VENDOR "Tessaline")
set(CPACK_PACKAGE_CONTACT "Tessaline maintainers <maintainers@tessaline.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL runtime development)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS runtime)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
string(CONCAT package_description
    "Tables whose columns are declared by strings, a list of files that loads\n"
    "page by page, a spin box that tells when it gets the focus, and a strip\n"
    "chart of bytes.\n.\n")

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${runtime_package})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA "${PROJECT_SOURCE_DIR}/packaging/triggers")
# The plug-in was in the other package at first.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_REPLACES "${development_package} (<= 1.0.0)")
string(CONCAT CPACK_COMPONENT_RUNTIME_DESCRIPTION "${package_description}"
    "This package holds the library, which is the plug-in for Qt Designer and for\n"
    "forms that are loaded at run time, too.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME ${development_package})
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${TESSALINE_QT_DEBIAN_PACKAGE}")
if(TESSALINE_HAS_PLOT)
    string(APPEND CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS ", libqwt-qt${TESSALINE_QT}-dev")
endif()
string(CONCAT CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "${package_description}"
    "This package holds the headers and the files for CMake and pkg-config.")
include(CPack)
