# SPDX-License-Identifier: MIT

# The translations of the library's own texts: translations/*.ts compiled for QTranslator.

# English is untranslated. Its file is the list of all texts. It also keeps Qt from trying another
# language for users who prefer English.
set(RY_LANGUAGES ar de en es fr he it ja ko pl pt_BR ru tr uk zh_CN)

# Sets RY_LRELEASE to a working lrelease of Qt 5 or 6. Qt 5 can read the files of both.
function(ry_find_lrelease)
    if(EXISTS "${RY_LRELEASE}")
        return()
    endif()
    get_target_property(qmake ${RY_QT}::qmake IMPORTED_LOCATION)
    get_filename_component(qt_bin "${qmake}" DIRECTORY)
    set(found "")
    foreach(place "${qt_bin}" /usr/lib/qt5/bin /usr/lib/qt6/bin "")
        foreach(name lrelease lrelease-qt5 lrelease-qt6 lrelease6)
            unset(RY_LRELEASE_CANDIDATE CACHE)
            if(place)
                find_program(RY_LRELEASE_CANDIDATE ${name} PATHS "${place}" NO_DEFAULT_PATH)
            else()
                find_program(RY_LRELEASE_CANDIDATE ${name})
            endif()
            # On Debian, lrelease in the path may call that of a Qt that is not installed.
            if(RY_LRELEASE_CANDIDATE AND NOT found)
                execute_process(COMMAND "${RY_LRELEASE_CANDIDATE}" -version
                    RESULT_VARIABLE failed OUTPUT_QUIET ERROR_QUIET)
                if(failed EQUAL 0)
                    set(found "${RY_LRELEASE_CANDIDATE}")
                endif()
            endif()
        endforeach()
    endforeach()
    unset(RY_LRELEASE_CANDIDATE CACHE)
    set(RY_LRELEASE "${found}" CACHE FILEPATH "The lrelease that compiles the translations" FORCE)
endfunction()

ry_find_lrelease()
if(RY_LRELEASE)
    option(RYCUSTOMIZEDDIALOG_BUILD_TRANSLATIONS "Build the translations" ON)
elseif(RYCUSTOMIZEDDIALOG_BUILD_TRANSLATIONS)
    message(FATAL_ERROR "The translations need lrelease: install qt6-l10n-tools or "
        "qttools5-dev-tools, or set RYCUSTOMIZEDDIALOG_BUILD_TRANSLATIONS to OFF.")
else()
    # Not in the cache, so that translations are built as soon as lrelease is installed.
    set(RYCUSTOMIZEDDIALOG_BUILD_TRANSLATIONS OFF)
    message(STATUS "RyCustomizedDialog: there is no lrelease, so no translations are built")
endif()

set(RY_TRANSLATIONS "")
if(RYCUSTOMIZEDDIALOG_BUILD_TRANSLATIONS)
    set(RY_TRANSLATIONS_BUILD_DIR "${PROJECT_BINARY_DIR}/translations")
    file(MAKE_DIRECTORY "${RY_TRANSLATIONS_BUILD_DIR}")
    foreach(language ${RY_LANGUAGES})
        set(source "${PROJECT_SOURCE_DIR}/translations/rycustomizeddialog_${language}.ts")
        set(translation "${RY_TRANSLATIONS_BUILD_DIR}/rycustomizeddialog_${language}.qm")
        add_custom_command(OUTPUT "${translation}"
            COMMAND "${RY_LRELEASE}" -silent "${source}" -qm "${translation}"
            DEPENDS "${source}"
            COMMENT "Compiling the translations for ${language}"
            VERBATIM)
        list(APPEND RY_TRANSLATIONS "${translation}")
    endforeach()
    add_custom_target(RyCustomizedDialogTranslations DEPENDS ${RY_TRANSLATIONS})
    # So that a build of the library includes the translations.
    add_dependencies(RyCustomizedDialog RyCustomizedDialogTranslations)
endif()
# For hosts that have this as a subdirectory; an installed package sets the same variable.
set(RyCustomizedDialog_TRANSLATIONS_DIR "${RY_TRANSLATIONS_BUILD_DIR}" CACHE INTERNAL
    "Where the translations are")
