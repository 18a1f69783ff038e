# SPDX-License-Identifier: MIT

# ry_enable_warnings(target)
#
# Turns on the warnings that make our own builds fail. Without the option, as in builds by others, it
# changes nothing.
function(ry_enable_warnings target)
    if(NOT RYCUSTOMIZEDDIALOG_WARNINGS_AS_ERRORS)
        return()
    endif()
    target_compile_options(${target} PRIVATE
        -Werror
        -Wall
        -Wextra
        -Wpedantic
        -Wshadow
        -Wnon-virtual-dtor
        -Woverloaded-virtual
        -Wundef
        -Wcast-align
        -Wzero-as-null-pointer-constant)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        target_compile_options(${target} PRIVATE
            -Wdocumentation
            -Winconsistent-missing-destructor-override
            -Wsuggest-override)
    else()
        target_compile_options(${target} PRIVATE -Wsuggest-override)
    endif()
    target_link_options(${target} PRIVATE -Wl,--fatal-warnings)
    # With Clang, the program provides the functions of the sanitizers.
    if(NOT RYCUSTOMIZEDDIALOG_BUILD_FUZZERS)
        target_link_options(${target} PRIVATE -Wl,--no-undefined)
    endif()
endfunction()
