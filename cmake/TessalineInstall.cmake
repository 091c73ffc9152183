# SPDX-License-Identifier: LGPL-3.0-or-later
# What is installed, and where. Builds for several Qt fit into one prefix: whatever would clash has
# the Qt in its name.

include(CMakePackageConfigHelpers)

set(package Tessaline${TESSALINE_QT_SUFFIX})
set(config_dir ${CMAKE_INSTALL_LIBDIR}/cmake/${package})
set(TESSALINE_DATA_DIR ${CMAKE_INSTALL_DATADIR}/${package})

# Where the Designer of this Qt looks, if the library goes where this Qt is. Elsewhere a folder that
# QT_PLUGIN_PATH can name.
tessaline_setting(TESSALINE_PLUGINS_DIR ""
    "Folder under the prefix whose subfolder \"designer\" takes the plug-in; empty: by the prefix")
set(plugins_dir "${TESSALINE_PLUGINS_DIR}")
string(FIND "${TESSALINE_QT_PLUGINS}/" "${CMAKE_INSTALL_PREFIX}/" place)
if(NOT plugins_dir AND CMAKE_INSTALL_PREFIX STREQUAL TESSALINE_QT_PREFIX AND place EQUAL 0)
    file(RELATIVE_PATH plugins_dir "${CMAKE_INSTALL_PREFIX}" "${TESSALINE_QT_PLUGINS}")
elseif(NOT plugins_dir AND WIN32)
    set(plugins_dir plugins) # so that what is installed can be unpacked over a Qt
elseif(NOT plugins_dir)
    set(plugins_dir ${CMAKE_INSTALL_LIBDIR}/qt${TESSALINE_QT}/plugins)
endif()
tessaline_make_relative(plugins_dir)

set(folders "${config_dir}" "${CMAKE_INSTALL_LIBDIR}/pkgconfig" "${TESSALINE_INCLUDE_DIR}"
    "${TESSALINE_DATA_DIR}/translations")
if(TESSALINE_SHARED)
    list(APPEND folders "${plugins_dir}/designer")
endif()
configure_file(cmake/record-folders.cmake.in record-folders.cmake @ONLY)
install(SCRIPT "${CMAKE_CURRENT_BINARY_DIR}/record-folders.cmake")

# The package for find_package(), and its targets.
set(targets TessalineLibrary Tessaline)
if(TARGET TessalinePlot)
    list(APPEND targets TessalinePlot)
endif()
install(TARGETS ${targets} EXPORT ${package}Targets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
install(EXPORT ${package}Targets NAMESPACE Tessaline:: DESTINATION ${config_dir}
    COMPONENT development)
configure_package_config_file(cmake/TessalineConfig.cmake.in ${package}Config.cmake
    INSTALL_DESTINATION ${config_dir}
    PATH_VARS TESSALINE_DATA_DIR)
write_basic_package_version_file(${package}ConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES
    "${CMAKE_CURRENT_BINARY_DIR}/${package}Config.cmake"
    "${CMAKE_CURRENT_BINARY_DIR}/${package}ConfigVersion.cmake"
    DESTINATION ${config_dir} COMPONENT development)
if(TESSALINE_HAS_PLOT)
    install(FILES cmake/FindQwt.cmake DESTINATION ${config_dir} COMPONENT development)
endif()

# The package for pkg-config: it finds its prefix from its own place, which may be moved.
file(RELATIVE_PATH TESSALINE_UP
    "${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "${CMAKE_INSTALL_PREFIX}")
string(REGEX REPLACE "/$" "" TESSALINE_UP "${TESSALINE_UP}")
set(pc_cflags)
set(pc_plot)
set(pc_libs)
if(NOT TESSALINE_SHARED)
    string(APPEND pc_cflags " -DTESSALINE_STATIC")
endif()
if(TESSALINE_HAS_PLOT)
    # Qwt has no package there that could be relied on.
    get_filename_component(qwt_dir "${QWT_LIBRARY}" DIRECTORY)
    get_filename_component(qwt_name "${QWT_LIBRARY}" NAME_WE)
    string(REGEX REPLACE "^lib" "" qwt_name "${qwt_name}")
    string(APPEND pc_cflags " -DTESSALINE_HAS_PLOT -I\"${QWT_INCLUDE_DIR}\"")
    get_target_property(qwt_definition Qwt::Qwt INTERFACE_COMPILE_DEFINITIONS)
    if(qwt_definition)
        string(APPEND pc_cflags " -D${qwt_definition}")
    endif()
    if(TARGET TessalinePlot)
        set(pc_plot " -lTessalinePlot${TESSALINE_QT_SUFFIX}")
    endif()
    set(pc_libs " -L\"${qwt_dir}\" -l${qwt_name}")
    if(QWT_LIBRARY MATCHES "[.]framework$")
        set(pc_libs " -F\"${qwt_dir}\" -framework ${qwt_name}")
    endif()
endif()
configure_file(cmake/Tessaline.pc.in ${package}.pc @ONLY)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/${package}.pc"
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)

foreach(header IN LISTS TESSALINE_PUBLIC_HEADERS)
    install(FILES widgets/${header} DESTINATION ${TESSALINE_INCLUDE_DIR} COMPONENT development)
endforeach()
install(FILES ${TESSALINE_TRANSLATIONS} DESTINATION ${TESSALINE_DATA_DIR}/translations
    COMPONENT runtime)

# The plug-in is a link to the library: as a copy, a program that links the library and loads its
# plug-in would have everything twice. On Windows it is one, and the manual tells what to do.
# It goes with the library, not with what developers take: programs that load forms at run time look
# for it too.
if(TESSALINE_SHARED AND WIN32)
    install(FILES "$<TARGET_FILE:TessalineLibrary>"
        DESTINATION ${plugins_dir}/designer COMPONENT runtime)
elseif(TESSALINE_SHARED)
    file(RELATIVE_PATH library_dir "${CMAKE_INSTALL_PREFIX}/${plugins_dir}/designer"
        "${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_LIBDIR}")
    string(REGEX REPLACE "/$" "" library_dir "${library_dir}")
    set(plugin
        "${PROJECT_BINARY_DIR}/installed-plugin/$<TARGET_LINKER_FILE_NAME:TessalineLibrary>")
    file(MAKE_DIRECTORY "${PROJECT_BINARY_DIR}/installed-plugin")
    add_custom_command(TARGET TessalineLibrary POST_BUILD
        COMMAND ${CMAKE_COMMAND} -E create_symlink
            "${library_dir}/$<TARGET_SONAME_FILE_NAME:TessalineLibrary>" "${plugin}"
        VERBATIM)
    install(FILES "${plugin}" DESTINATION ${plugins_dir}/designer COMPONENT runtime)
endif()

configure_file(cmake/uninstall.cmake.in uninstall.cmake @ONLY)
if(NOT TARGET uninstall)
    add_custom_target(uninstall
        COMMAND ${CMAKE_COMMAND} -P "${CMAKE_CURRENT_BINARY_DIR}/uninstall.cmake" VERBATIM)
endif()
