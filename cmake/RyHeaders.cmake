# SPDX-License-Identifier: MIT

# The public headers, and one forwarding header for each exported class: a file named like the class
# that includes the header named like it in lower case. The forwarding headers are made in the build
# tree, so that a host that adds this project as a subdirectory includes what an installed one does.

set(RY_PUBLIC_CLASSES
    dialog/RyAbstatcManager
    dialog/RyCusInterface
    dialog/RyCustomizedDialog
    ribbon/RyCRibbonPage
    ribbon/RyCRibbonWidget
    toolbareditor/RyCToolBarPage
    toolbareditor/RyCToolBarWidget
    toolbareditor/RyTreeItemMimeData
    toolbareditor/RyTreeWidget
    toolbarmanager/RyToolBarManager)

set(RY_FORWARDING_DIR "${PROJECT_BINARY_DIR}/include/RyCustomizedDialog")
set(RY_PUBLIC_HEADERS "${PROJECT_SOURCE_DIR}/dialog/rycustomizeddialogexport.h")
foreach(path IN LISTS RY_PUBLIC_CLASSES)
    get_filename_component(folder ${path} DIRECTORY)
    get_filename_component(class ${path} NAME)
    string(TOLOWER ${class} header)
    list(APPEND RY_PUBLIC_HEADERS "${PROJECT_SOURCE_DIR}/${folder}/${header}.h")
    file(WRITE "${RY_FORWARDING_DIR}/${class}.in" "#include \"${header}.h\"\n")
    configure_file("${RY_FORWARDING_DIR}/${class}.in" "${RY_FORWARDING_DIR}/${class}" COPYONLY)
    file(REMOVE "${RY_FORWARDING_DIR}/${class}.in")
    list(APPEND RY_FORWARDING_HEADERS "${RY_FORWARDING_DIR}/${class}")
endforeach()

foreach(folder IN ITEMS dialog ribbon toolbareditor toolbarmanager)
    target_include_directories(RyCustomizedDialog PUBLIC
        "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/${folder}>")
endforeach()
# The inner folder comes first: beside it stands a folder that is named like one of the headers.
target_include_directories(RyCustomizedDialog PUBLIC
    "$<BUILD_INTERFACE:${RY_FORWARDING_DIR}>"
    "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/RyCustomizedDialog>"
    "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>")
