# SPDX-License-Identifier: MIT

# The headers of the forms. Not with AUTOUIC: Ninja would run its rule too late to notice a changed
# form in the same build.
set(RY_FORMS dialog/customizeddialog.ui ribbon/cribbonpage.ui toolbareditor/ctoolbarpage.ui)
if(RYCUSTOMIZEDDIALOG_QT EQUAL 6)
    qt6_wrap_ui(RY_FORM_HEADERS ${RY_FORMS})
else()
    qt5_wrap_ui(RY_FORM_HEADERS ${RY_FORMS})
endif()
set(RY_FORM_INCLUDEDIR "${CMAKE_CURRENT_BINARY_DIR}")
add_custom_target(RyCustomizedDialogForms DEPENDS ${RY_FORM_HEADERS})
add_dependencies(RyCustomizedDialog RyCustomizedDialogForms)
target_include_directories(RyCustomizedDialog PRIVATE "${RY_FORM_INCLUDEDIR}")
