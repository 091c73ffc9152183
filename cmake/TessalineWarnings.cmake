# SPDX-License-Identifier: LGPL-3.0-or-later
# tessaline_warnings(target): every warning worth having; errors where TESSALINE_WERROR says so.

option(TESSALINE_WERROR "Treat compiler warnings as errors" OFF)

set(_tessaline_warnings -Wall -Wextra -Wpedantic -Wshadow -Wconversion)
set(_tessaline_errors -Werror)
if(MSVC) # and what takes its options
    set(_tessaline_warnings /W4)
    set(_tessaline_errors /WX)
endif()

function(tessaline_warnings target)
    target_compile_options(${target} PRIVATE ${_tessaline_warnings}
        $<$<BOOL:${TESSALINE_WERROR}>:${_tessaline_errors}>)
endfunction()
