#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Checks that translations/ is up to date: the English file lists exactly the texts of the sources,
# and every language has a finished translation of each.
#
# usage: check-translations.sh [--update]
#   --update  adds new texts to all files, as unfinished, and removes obsolete ones; creates the files
#             of languages that are new in cmake/RyTranslations.cmake

# shellcheck disable=SC2317 # the steps are functions

cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit
. tools/steps.sh
start_log build/translations.log

fresh=build/translations
read -ra languages < <(sed -n 's/^set(RY_LANGUAGES \(.*\))$/\1/p' cmake/RyTranslations.cmake)
names=("${languages[@]/#/rycustomizeddialog_}")
files=("${names[@]/%/.ts}")

# On Debian, lupdate in the path may call that of a Qt that is not installed.
find_lupdate() {
    local program
    for program in /usr/lib/qt6/bin/lupdate /usr/lib/qt5/bin/lupdate lupdate; do
        if "$program" -version >/dev/null 2>&1; then
            lupdate=$program
            return
        fi
    done
    echo 'There is no lupdate.'
    return 1
}

# Writes the files as lupdate would write them now.
take_texts() {
    find_lupdate || return
    "$lupdate" -version
    rm -rf "$fresh"
    mkdir -p "$fresh" && cp translations/*.ts "$fresh" &&
        "$lupdate" -silent -no-obsolete -locations none -source-language en \
            dialog toolbareditor toolbarmanager ribbon kit -ts "${files[@]/#/$fresh/}"
}

compare() {
    diff -u translations "$fresh" && echo "${#files[@]} files are as lupdate writes them."
}

# The English file is the list of texts and stays untranslated.
look_for_gaps() {
    local file name count gaps=0
    for file in "${files[@]}"; do
        name=${file%.ts}
        count=$(grep -c '<translation>..*</translation>' "$fresh/$file")
        printf '%-6s %s of %s\n' "${name#rycustomizeddialog_}" "$count" "$texts"
        case $file in
            *_en.ts) [ "$count" -eq 0 ] || gaps=1 ;;
            *) [ "$count" -eq "$texts" ] || gaps=1 ;;
        esac
    done
    return "$gaps"
}

step 'Packages' tools/install-packages.sh check-translations
step 'Texts of the sources' take_texts
[ "${1-}" != --update ] || step 'Update' cp "${files[@]/#/$fresh/}" translations
try 'Every text is listed, and nothing else' compare
texts=$(grep -c '<source>' "$fresh/rycustomizeddialog_en.ts")
try 'Every text is translated' look_for_gaps
finish "all $texts texts are translated into $((${#files[@]} - 1)) languages"
