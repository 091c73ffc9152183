# SPDX-License-Identifier: LGPL-3.0-or-later
# The build tree as a place where Qt Designer finds its plug-ins, and the target "designer", which
# starts it there on the example's form.
#   TESSALINE_PLUGIN_PATH      what QT_PLUGIN_PATH has to name
#   TESSALINE_DESIGNER_FILE    the plug-in there
#   TESSALINE_PLUGIN_FOLDER    where a program that links the library loads it as a plug-in

set(TESSALINE_PLUGIN_PATH "${PROJECT_BINARY_DIR}/qtplugins")
file(MAKE_DIRECTORY "${TESSALINE_PLUGIN_PATH}/designer")
# A link, not a copy: a program that links the library and loads its plug-in must not have it twice.
# Windows leaves links to administrators, so there such a program takes the library's own folder.
if(WIN32)
    set(TESSALINE_DESIGNER_FILE
        "${TESSALINE_PLUGIN_PATH}/designer/$<TARGET_FILE_NAME:TessalineLibrary>")
    set(TESSALINE_PLUGIN_FOLDER "$<TARGET_FILE_DIR:TessalineLibrary>")
    set(provide copy_if_different)
else()
    set(TESSALINE_DESIGNER_FILE
        "${TESSALINE_PLUGIN_PATH}/designer/$<TARGET_LINKER_FILE_NAME:TessalineLibrary>")
    set(TESSALINE_PLUGIN_FOLDER "${TESSALINE_PLUGIN_PATH}/designer")
    set(provide create_symlink)
endif()
add_custom_command(TARGET TessalineLibrary POST_BUILD
    COMMAND ${CMAKE_COMMAND} -E ${provide} "$<TARGET_FILE:TessalineLibrary>"
        "${TESSALINE_DESIGNER_FILE}"
    VERBATIM)

find_program(TESSALINE_DESIGNER designer HINTS "${TESSALINE_QT_PROGRAMS}" NO_DEFAULT_PATH)
mark_as_advanced(TESSALINE_DESIGNER)
if(TESSALINE_DESIGNER AND tessaline_is_top_level)
    add_custom_target(designer
        COMMAND ${CMAKE_COMMAND} -E env "QT_PLUGIN_PATH=${TESSALINE_PLUGIN_PATH}"
            "${TESSALINE_DESIGNER}" "${PROJECT_SOURCE_DIR}/examples/designerform/BackupForm.ui"
        DEPENDS TessalineLibrary
        VERBATIM USES_TERMINAL)
endif()
