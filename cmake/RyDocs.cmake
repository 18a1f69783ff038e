# SPDX-License-Identifier: MIT

include_guard()

# The target RyCustomizedDialogDocs: the reference of the public headers, as HTML and as a help
# collection for Qt's tools, in the folder docs of the build tree. Fails if a name has no comment.

find_package(Doxygen 1.9 REQUIRED)
get_target_property(RY_QMAKE ${RY_QT}::qmake IMPORTED_LOCATION)
execute_process(COMMAND "${RY_QMAKE}" -query QT_INSTALL_BINS
    OUTPUT_VARIABLE RY_QT_BINDIR OUTPUT_STRIP_TRAILING_WHITESPACE)
find_program(RY_QHELPGENERATOR qhelpgenerator HINTS "${RY_QT_BINDIR}")
if(NOT RY_QHELPGENERATOR)
    message(FATAL_ERROR "The reference needs qhelpgenerator, one of Qt's tools.")
endif()

set(RY_DOCS_DIR "${PROJECT_BINARY_DIR}/docs")
get_property(RY_PUBLIC_HEADERS GLOBAL PROPERTY RY_PUBLIC_HEADERS)
set(RY_DOCS_DEPENDS "${PROJECT_SOURCE_DIR}/docs/reference.md" ${RY_PUBLIC_HEADERS})
string(REPLACE "${PROJECT_SOURCE_DIR}/" "" RY_DOCS_INPUT "${RY_DOCS_DEPENDS}")
string(REPLACE ";" " " RY_DOCS_INPUT "${RY_DOCS_INPUT}")
configure_file(docs/Doxyfile.in "${RY_DOCS_DIR}/Doxyfile" @ONLY)

# Doxygen's pages load scripts even if they use none. It also adds a number to each identifier, and
# Qt's tools look up names by these identifiers.
set(RY_SCRIPTS "rm html/*.js && sed -i '/<script /d' html/*.html && sed -i '/\\.js</d' html/index.qhp")
set(RY_IDENTIFIERS "sed -i 's/ id=\"\\([^\"]*\\)_[0-9a-f]*\"/ id=\"\\1\"/' html/index.qhp")
add_custom_command(OUTPUT "${RY_DOCS_DIR}/RyCustomizedDialog.qch"
    COMMAND "${CMAKE_COMMAND}" -E rm -rf "${RY_DOCS_DIR}/html"
    COMMAND "${CMAKE_COMMAND}" -E chdir "${PROJECT_SOURCE_DIR}"
        $<TARGET_FILE:Doxygen::doxygen> "${RY_DOCS_DIR}/Doxyfile"
    COMMAND sh -c "${RY_SCRIPTS}"
    COMMAND sh -c "${RY_IDENTIFIERS}"
    COMMAND "${RY_QHELPGENERATOR}" -s html/index.qhp -o RyCustomizedDialog.qch
    DEPENDS ${RY_DOCS_DEPENDS} "${RY_DOCS_DIR}/Doxyfile"
    WORKING_DIRECTORY "${RY_DOCS_DIR}"
    COMMENT "Writing the reference"
    VERBATIM)
add_custom_target(RyCustomizedDialogDocs ALL DEPENDS "${RY_DOCS_DIR}/RyCustomizedDialog.qch")
