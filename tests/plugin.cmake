# SPDX-License-Identifier: LGPL-3.0-or-later
# The descriptors, and the library as a plug-in.

foreach(test IN ITEMS tst_designedwidgets tst_designerplugins)
    tessaline_add_test(${test} LIBRARIES TessalineTestSupport TessalineWidgets TessalineDesigner
        ${plot_objects})
    target_include_directories(${test} PRIVATE ${PROJECT_SOURCE_DIR}/designer)
endforeach()

tessaline_add_test(tst_plugin LIBRARIES TessalineTestSupport TessalineLibrary
    ${TESSALINE_QT_UIPLUGIN})
target_compile_definitions(tst_plugin PRIVATE
    TESSALINE_PLUGIN_FILE="$<TARGET_FILE:TessalineLibrary>"
    TESSALINE_DESIGNER_FILE="${TESSALINE_DESIGNER_FILE}")

if(TESSALINE_HAS_PLOT AND NOT TESSALINE_QT EQUAL 4) # what is left in the program is about charts
    tessaline_add_test(tst_pluginreloading LIBRARIES TessalineTestSupport Qwt::Qwt
        ${TESSALINE_QT_UIPLUGIN})
    add_dependencies(tst_pluginreloading TessalineLibrary)
    target_compile_definitions(tst_pluginreloading PRIVATE
        TESSALINE_PLUGIN_FILE="$<TARGET_FILE:TessalineLibrary>")
endif()

set(plugin_tests tst_designedwidgets tst_designerplugins tst_plugin)
if(TESSALINE_QT_UITOOLS)
    list(APPEND plugin_tests tst_loadedforms)
    tessaline_add_test(tst_loadedforms LIBRARIES TessalineTestSupport TessalineLibrary
        ${TESSALINE_QT_UITOOLS})
    target_compile_definitions(tst_loadedforms PRIVATE
        TESSALINE_PLUGIN_FOLDER="${TESSALINE_PLUGIN_FOLDER}"
        TESSALINE_FORM="${form}")
endif()
if(TESSALINE_QT_DESIGNERCOMPONENTS)
    list(APPEND plugin_tests tst_designer)
    tessaline_add_test(tst_designer LIBRARIES TessalineTestSupport
        ${TESSALINE_QT_DESIGNERCOMPONENTS})
    add_dependencies(tst_designer TessalineLibrary)
    target_compile_definitions(tst_designer PRIVATE TESSALINE_FORM="${form}")
    set_tests_properties(tst_designer PROPERTIES
        ENVIRONMENT "QT_PLUGIN_PATH=${TESSALINE_PLUGIN_PATH}")
endif()
if(TESSALINE_HAS_PLOT)
    foreach(test IN LISTS plugin_tests)
        target_compile_definitions(${test} PRIVATE TESSALINE_HAS_PLOT)
    endforeach()
endif()

if(TESSALINE_INSTALL_TESTS)
    tessaline_find_programs(found exported_symbols nm)
    if(found)
        add_test(NAME exported_symbols COMMAND ${CMAKE_COMMAND}
            -DNM=${TESSALINE_PROGRAM_nm} -DLIBRARY=$<TARGET_FILE:TessalineLibrary>
            -P ${CMAKE_CURRENT_SOURCE_DIR}/exported-symbols.cmake)
    endif()
    # Qt's own tool finds fault with a plug-in whose metadata is not as it should be.
    tessaline_find_programs(found plugin_info qtplugininfo)
    if(found)
        add_test(NAME plugin_info COMMAND "${TESSALINE_PROGRAM_qtplugininfo}"
            $<TARGET_FILE:TessalineLibrary>)
    endif()
endif()
