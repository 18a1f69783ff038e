#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Prints one part of the binary contract of a library as text, for tools/check-abi.sh.

usage: describe.py QT symbols LIBRARY           the exported symbols
       describe.py QT metaobjects FOLDER        the signals and slots of each exported class, in their
                                                order
       describe.py QT layouts FOLDER FLAGS...   the bases and fields of each exported class and where
                                                they lie, by Clang with these compiler flags

QT is 5 or 6. The folder has the public headers of the library, and a forwarding header for each
exported class.
"""

import json
import re
import subprocess
import sys
import tempfile
from pathlib import Path

# The constructor for whole objects of an abstract class: nobody can call it, and only GCC emits it.
NOT_IN_EVERY_BUILD = {'_ZN14RyCusInterfaceC1Ev'}

# Instances of the templates of Qt and of the standard library. They belong to nobody, and each compiler
# emits others.
OF_OTHERS = re.compile(r'_Z(GV|T[ISV])?Z?N?K?(St|\d+Q)')


def output_of(*command, text=None):
    return subprocess.run(command, check=True, input=text, stdout=subprocess.PIPE,
                          universal_newlines=True).stdout


def demangled(names):
    return output_of('c++filt', text='\n'.join(names)).splitlines()


def exported_classes(folder):
    """The header of each class, by name."""
    return {path.name: path.with_name(f'{path.name.lower()}.h')
            for path in sorted(Path(folder).glob('Ry*'))}


def symbols(library):
    lines = output_of('nm', '-D', '--defined-only', '--format=posix', library).splitlines()
    names = sorted({line.split()[0] for line in lines} - NOT_IN_EVERY_BUILD)
    names = [name for name in names if not OF_OTHERS.match(name)]
    for name, meaning in zip(names, demangled(names)):
        print(name, meaning)


def metaobjects(folder):
    """Compiled hosts know signals and slots by their places in these lists."""
    for header in exported_classes(folder).values():
        for meta in described_by_moc(header):
            print(meta['className'], 'after', meta['superClasses'][0]['name'])
            for kind in ('constructors', 'signals', 'slots', 'methods'):
                for method in meta.get(kind, []):
                    print(f'  {kind} {signature(method)}')
            for kind in ('properties', 'enums', 'classInfos'):
                for entry in meta.get(kind, []):
                    print(f'  {kind} {entry["name"]}')


def described_by_moc(header):
    folder = {'5': 'host_bins', '6': 'libexecdir'}[QT]
    moc = output_of('pkg-config', f'--variable={folder}', f'Qt{QT}Core').strip() + '/moc'
    with tempfile.TemporaryDirectory() as folder:
        output_of(moc, '--no-notes', '--output-json', header, '-o', f'{folder}/moc')
        # Empty for a class without a meta-object.
        text = Path(folder, 'moc.json').read_text()
    return json.loads(text)['classes'] if text else []


def signature(method):
    arguments = ', '.join(f'{argument["type"]} {argument.get("name", "")}'.rstrip()
                          for argument in method.get('arguments', []))
    return f'{method["access"]} {method["returnType"]} {method["name"]}({arguments})'


def layouts(folder, *flags):
    classes = exported_classes(folder)
    # A record is laid out once it is needed.
    source = ''.join(f'#include <{name.lower()}.h>\n' for name in classes)
    source += ''.join(f'static_assert(sizeof({name}) > 0, "");\n' for name in classes)
    dumped = output_of('clang++', '-x', 'c++', '-fsyntax-only', '-Xclang', '-fdump-record-layouts',
                       f'-I{folder}', *flags, '-', text=source)
    found = {}
    for record in dumped.split('*** Dumping AST Record Layout')[1:]:
        lines = [line for line in record.splitlines() if '|' in line]
        name = lines[0].split('| ')[1].replace('class ', '')
        # What is indented farther lies in members and bases and belongs to Qt.
        found[name] = [line for line in lines if re.search(r'\| (  )?(\S|$)', line)]
        found[name] = [re.sub(r' *\| \[(.*),$', r'  \1', line) for line in found[name]]
    for name in classes:
        print('\n'.join(found[name]))


if __name__ == '__main__':
    QT = sys.argv[1]
    {'symbols': symbols, 'metaobjects': metaobjects, 'layouts': layouts}[sys.argv[2]](*sys.argv[3:])
