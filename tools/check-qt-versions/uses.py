#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Prints what the given sources use of Qt, one thing a line: classes, functions with the types of
their parameters, values, macros, and signatures in SIGNAL().

usage: uses.py FOLDER... -- SOURCE... -- COMPILER-FLAGS...

Counted is what stands in files below the folders. libclang reads the sources, so that overloads are
distinct; in templates it cannot know which class a function belongs to and calls the class "?".
"""

import os
import re
import sys
from ctypes import POINTER, byref, c_uint
from pathlib import Path

from clang import cindex
from clang.cindex import CursorKind as Kind

CALLED = (Kind.FUNCTION_DECL, Kind.CXX_METHOD, Kind.CONSTRUCTOR, Kind.DESTRUCTOR,
          Kind.CONVERSION_FUNCTION, Kind.FUNCTION_TEMPLATE)
NAMED = (Kind.CLASS_DECL, Kind.STRUCT_DECL, Kind.CLASS_TEMPLATE, Kind.TYPEDEF_DECL, Kind.ENUM_DECL,
         Kind.ENUM_CONSTANT_DECL, Kind.VAR_DECL, Kind.FIELD_DECL, Kind.TYPE_ALIAS_DECL,
         Kind.TYPE_ALIAS_TEMPLATE_DECL)
UNRESOLVED = (Kind.MEMBER_REF_EXPR, Kind.DECL_REF_EXPR, Kind.MEMBER_REF, Kind.OVERLOADED_DECL_REF)
TRANSPARENT = (Kind.TRANSLATION_UNIT, Kind.UNEXPOSED_DECL, Kind.LINKAGE_SPEC)

library = cindex.conf.lib
library.clang_getOverriddenCursors.argtypes = [
    cindex.Cursor, POINTER(POINTER(cindex.Cursor)), POINTER(c_uint)]
library.clang_getOverriddenCursors.restype = None


def is_qt(cursor):
    file = cursor.location.file
    return file is not None and re.search('/qt[56]/', file.name) is not None


def qualified(cursor):
    names = []
    while cursor is not None and cursor.kind not in TRANSPARENT:
        # An unnamed enum and the like stand for nothing.
        if cursor.spelling:
            names.insert(0, cursor.spelling)
        cursor = cursor.semantic_parent
    return '::'.join(names)


def described(cursor):
    """The name of a declaration of Qt, or None for what is none."""
    # A member of QList<QAction *> is a member of QList.
    template = library.clang_getSpecializedCursorTemplate(cursor)
    if template is not None and template.kind != Kind.NO_DECL_FOUND:
        cursor = template
    if not is_qt(cursor):
        return None
    # The compiler makes and chooses these; an object that can be moved can be copied without it.
    if cursor.is_copy_constructor() or cursor.is_move_constructor():
        return None
    if cursor.kind in CALLED:
        const = ' const' if cursor.is_const_method() else ''
        types = cursor.type.spelling
        return f'{qualified(cursor)}{types[types.index("("):types.rindex(")") + 1]}{const}'
    return qualified(cursor) if cursor.kind in NAMED else None


def overridden(cursor):
    """The functions of Qt that a method overrides; nearest first."""
    found, count = POINTER(cindex.Cursor)(), c_uint()
    library.clang_getOverriddenCursors(cursor, byref(found), byref(count))
    for i in range(count.value):
        base = found[i]
        base._tu = cursor._tu
        yield base


class Uses:

    def __init__(self, folders):
        self.folders = [str(Path(folder).resolve()) + '/' for folder in folders]
        self.found = {}

    def read(self, sources, flags):
        # Together, so that Qt's headers are read only once.
        text = ''.join(f'#include "{Path(source).resolve()}"\n' for source in sources)
        unit = cindex.Index.create().parse(
            'all.cpp', args=flags, unsaved_files=[('all.cpp', text)],
            options=cindex.TranslationUnit.PARSE_DETAILED_PROCESSING_RECORD)
        errors = [str(each) for each in unit.diagnostics if each.severity >= 3]
        if errors:
            sys.exit('\n'.join(errors))
        for cursor in unit.cursor.get_children():
            if self.is_ours(cursor):
                self.walk(cursor, '')

    def is_ours(self, cursor):
        file = cursor.location.file
        return file is not None and str(Path(file.name).resolve()).startswith(tuple(self.folders))

    def add(self, name, place):
        if name:
            self.found.setdefault(name, set()).add(place)

    def walk(self, cursor, place):
        # What the compiler adds stands where it was needed.
        if cursor.location.file is not None:
            place = f'{os.path.relpath(cursor.location.file.name)}:{cursor.location.line}'
        if cursor.kind == Kind.MACRO_INSTANTIATION:
            self.add_macro(cursor, place)
        elif cursor.kind == Kind.CXX_METHOD:
            for base in overridden(cursor):
                self.add(described(base), place)
        target = cursor.referenced
        if target is not None and target != cursor and target.kind != Kind.OVERLOADED_DECL_REF:
            self.add(described(target), place)
        elif cursor.kind in UNRESOLVED and cursor.spelling:
            self.add(f'?::{cursor.spelling}', place)
        for child in cursor.get_children():
            self.walk(child, place)

    def add_macro(self, cursor, place):
        target = cursor.referenced
        if target is None or not is_qt(target):
            return
        name = cursor.spelling
        # The slots are our own.
        if name == 'SLOT':
            return
        if name == 'SIGNAL':
            name = ''.join(token.spelling for token in cursor.get_tokens())
        self.add(name, place)


def main():
    words = sys.argv[1:]
    first = words.index('--')
    second = words.index('--', first + 1)
    uses = Uses(words[:first])
    uses.read(words[first + 1:second], words[second + 1:])
    for name, places in sorted(uses.found.items()):
        print(name, min(places), sep='\t')


if __name__ == '__main__':
    main()
