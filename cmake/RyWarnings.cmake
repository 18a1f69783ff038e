# SPDX-License-Identifier: MIT

# The warnings that our own builds fail on. Without the option, as in builds by others, both
# lists are empty.
set(RY_COMPILE_WARNINGS)
set(RY_LINK_WARNINGS)
if(RYCUSTOMIZEDDIALOG_WARNINGS_AS_ERRORS)
    set(RY_COMPILE_WARNINGS
        -Werror
        -Wall
        -Wextra
        -Wpedantic
        -Wshadow
        -Wnon-virtual-dtor
        -Woverloaded-virtual
        -Wundef
        -Wcast-align
        -Wzero-as-null-pointer-constant
        -Wsuggest-override)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        list(APPEND RY_COMPILE_WARNINGS -Wdocumentation -Winconsistent-missing-destructor-override)
    endif()
    set(RY_LINK_WARNINGS -Wl,--fatal-warnings)
    # With Clang, the program provides the functions of the sanitizers.
    if(NOT RYCUSTOMIZEDDIALOG_BUILD_FUZZERS)
        list(APPEND RY_LINK_WARNINGS -Wl,--no-undefined)
    endif()
endif()

# ry_enable_warnings(target)
#
# Turns these warnings on for one target.
function(ry_enable_warnings target)
    target_compile_options(${target} PRIVATE ${RY_COMPILE_WARNINGS})
    target_link_options(${target} PRIVATE ${RY_LINK_WARNINGS})
endfunction()
