# SPDX-License-Identifier: MIT

# ry_add_test(tst_name [SOURCES file...] [LIBRARIES target...] [TIMEOUT seconds])
#
# Adds the test program tst_name.cpp, which runs without a display.
function(ry_add_test name)
    cmake_parse_arguments(ARG "" "TIMEOUT" "SOURCES;LIBRARIES" ${ARGN})
    ry_add_test_program(${name} SOURCES ${ARG_SOURCES} LIBRARIES ${ARG_LIBRARIES})
    add_test(NAME ${name} COMMAND ${name})
    ry_set_test_properties(${name} "${ARG_TIMEOUT}" offscreen)
endfunction()

# ry_add_window_test(tst_name [SOURCES file...] [LIBRARIES target...] [TIMEOUT seconds])
#
# The same for a test that needs a real window: it runs on an X server and with a window manager of
# its own. The label "window" selects these tests.
function(ry_add_window_test name)
    cmake_parse_arguments(ARG "" "TIMEOUT" "SOURCES;LIBRARIES" ${ARGN})
    ry_add_test_program(${name} SOURCES ${ARG_SOURCES} LIBRARIES ${ARG_LIBRARIES})
    add_test(NAME ${name}
        COMMAND "${PROJECT_SOURCE_DIR}/tests/support/inwindow.sh" $<TARGET_FILE:${name}>)
    ry_set_test_properties(${name} "${ARG_TIMEOUT}" xcb)
    set_tests_properties(${name} PROPERTIES LABELS window)
endfunction()

function(ry_add_test_program name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBRARIES" ${ARGN})
    add_executable(${name} ${name}.cpp ${ARG_SOURCES})
    set_target_properties(${name} PROPERTIES
        AUTOMOC ON
        CXX_STANDARD 17
        CXX_STANDARD_REQUIRED ON
        CXX_EXTENSIONS OFF)
    target_compile_definitions(${name} PRIVATE QT_STRICT_ITERATORS)
    target_link_libraries(${name} PRIVATE
        RyCustomizedDialog::RyCustomizedDialog RyTestSupport ${ARG_LIBRARIES})
    ry_enable_warnings(${name})
endfunction()

function(ry_set_test_properties name timeout platform)
    if(NOT timeout)
        set(timeout 120)
    endif()
    set_tests_properties(${name} PROPERTIES
        TIMEOUT ${timeout}
        ENVIRONMENT "QT_QPA_PLATFORM=${platform};QT_STYLE_OVERRIDE=fusion;LC_ALL=C.UTF-8")
endfunction()
