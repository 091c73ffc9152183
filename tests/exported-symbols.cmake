# SPDX-License-Identifier: LGPL-3.0-or-later
# Run by "cmake -P" with LIBRARY and NM: the shared library offers three classes with their
# meta-objects and the entry points of the plug-in, and nothing else of ours.

execute_process(COMMAND ${NM} --dynamic --defined-only --demangle ${LIBRARY}
    OUTPUT_VARIABLE output RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "Cannot read the symbols of ${LIBRARY}.")
endif()

foreach(wanted IN ITEMS
        "T qt_plugin_instance"
        "T qt_plugin_query_verification_data"
        "T EditableTableView::EditableTableView(QWidget*)"
        "T FileListTableView::FileListTableView(QWidget*)"
        "T SpinBox::SpinBox(QWidget*)"
        "EditableTableView::staticMetaObject"
        "FileListTableView::staticMetaObject"
        "SpinBox::staticMetaObject"
        "T EditableTableView::bindModel(int, QObject*, int)"
        "T FileListTableView::StartLoadingData()"
        "T SpinBox::focused()")
    string(FIND "${output}" "${wanted}" place)
    if(place EQUAL -1)
        message(SEND_ERROR "Not exported: ${wanted}")
    endif()
endforeach()

set(offered "EditableTableView|FileListTableView|SpinBox")
set(known
    "^(${offered})::"
    "^(vtable|typeinfo|typeinfo name) for (${offered})$"
    "^non-virtual thunk to (${offered})::"
    "^qt_plugin_(instance|query_verification_data|query_metadata|query_metadata_v2)$"
    # Of the linker, and instances of templates that the standard library has made public.
    "^(__bss_start|_edata|_end|_init|_fini)$"
    "^([a-z]+ )?std::"
    # Inline functions of Qt's public classes, where nothing was optimised.
    "^Q[A-Z][A-Za-z]+::")

string(REGEX REPLACE "\n$" "" output "${output}")
string(REPLACE ";" "," output "${output}")
string(REPLACE "\n" ";" lines "${output}")
foreach(line IN LISTS lines)
    string(REGEX REPLACE "^[0-9a-f]+ +[A-Za-z] " "" symbol "${line}")
    set(is_known OFF)
    foreach(pattern IN LISTS known)
        if(symbol MATCHES "${pattern}")
            set(is_known ON)
        endif()
    endforeach()
    if(NOT is_known)
        message(SEND_ERROR "Exported, but not offered: ${symbol}")
    endif()
endforeach()
