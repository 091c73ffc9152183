# SPDX-License-Identifier: LGPL-3.0-or-later
# tessaline_warnings(target): every warning worth having; errors where TESSALINE_WERROR says so.

option(TESSALINE_WERROR "Treat compiler warnings as errors" OFF)

function(tessaline_warnings target)
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion
        $<$<BOOL:${TESSALINE_WERROR}>:-Werror>)
endfunction()
