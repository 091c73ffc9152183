# SPDX-License-Identifier: LGPL-3.0-or-later
# tessaline_refuse_undefined(target): nothing the target uses may be missing when it is linked, where
# that is not so by itself.

include(CheckCXXSourceCompiles)

# Linkers that do not know the option refuse it; that of Visual C++ just warns, and needs none.
if(NOT MSVC)
    set(_tessaline_required "${CMAKE_REQUIRED_LINK_OPTIONS}")
    list(APPEND CMAKE_REQUIRED_LINK_OPTIONS -Wl,--no-undefined)
    check_cxx_source_compiles("int main() { return 0; }" TESSALINE_LINKER_HAS_NO_UNDEFINED)
    set(CMAKE_REQUIRED_LINK_OPTIONS "${_tessaline_required}")
endif()

function(tessaline_refuse_undefined target)
    if(TESSALINE_LINKER_HAS_NO_UNDEFINED)
        target_link_options(${target} PRIVATE -Wl,--no-undefined)
    endif()
endfunction()
