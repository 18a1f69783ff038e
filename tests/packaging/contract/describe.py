#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Prints one part of the binary contract as text, for tools/check-abi.sh.

usage: describe.py symbols LIBRARY    the exported symbols
       describe.py vtables LIBRARY    the virtual functions of each exported class, in their order
       describe.py layouts FLAGS...   the bases and fields of each exported class and where they lie,
                                      by Clang with these compiler flags
"""

import re
import subprocess
import sys
from pathlib import Path

SOURCE_DIR = Path(__file__).resolve().parents[3]

# The constructor for whole objects of an abstract class: nobody can call it, and only GCC emits it.
NOT_IN_EVERY_BUILD = {'_ZN14RyCusInterfaceC1Ev'}

PURE = '__cxa_pure_virtual'


def output_of(*command, text=None):
    return subprocess.run(command, check=True, input=text, stdout=subprocess.PIPE,
                          universal_newlines=True).stdout


def demangled(names):
    return output_of('c++filt', text='\n'.join(names)).splitlines()


def exported_classes():
    listed = (SOURCE_DIR / 'cmake' / 'RyHeaders.cmake').read_text()
    return sorted(re.findall(r'^    \w+/(Ry\w+)', listed, re.MULTILINE))


def symbols(library):
    lines = output_of('nm', '-D', '--defined-only', '--format=posix', library).splitlines()
    names = sorted({line.split()[0] for line in lines} - NOT_IN_EVERY_BUILD)
    for name, meaning in zip(names, demangled(names)):
        print(name, meaning)


def vtables(library):
    """Reads the tables from the library itself: each place is a relocation."""
    tables = {}
    for line in output_of('nm', '-D', '--defined-only', '--format=posix', library).splitlines():
        name, _, address, size = (line.split() + ['0'])[:4]
        if name.startswith('_ZTV'):
            tables[name] = range(int(address, 16), int(address, 16) + int(size, 16))
    targets = {}
    for line in output_of('readelf', '-rW', library).splitlines():
        found = re.match(r'([0-9a-f]{16}) +\S+ +R_X86_64_64 +\S+ +([^@\s]+)\S* \+ 0$', line)
        if found:
            targets[int(found.group(1), 16)] = found.group(2)
    for table, places in sorted(tables.items()):
        names = [targets.get(address, '(offset)') for address in places[::8]]
        # The first two are the offset of the object and its type.
        names = [name_in_abstract(name) for name in names[2:]] if PURE in names else names[2:]
        print(demangled([table])[0])
        for place, meaning in enumerate(demangled(names)):
            print(f'  {place} {meaning}')


def name_in_abstract(name):
    """In the table of an abstract class, GCC leaves the places of the destructor empty."""
    return name if name == PURE else '(destructor)'


def layouts(*flags):
    classes = exported_classes()
    # A record is laid out once it is needed.
    source = ''.join(f'#include <{name.lower()}.h>\n' for name in classes)
    source += ''.join(f'static_assert(sizeof({name}) > 0, "");\n' for name in classes)
    dumped = output_of('clang++', '-x', 'c++', '-std=c++11', '-fPIC', '-fsyntax-only', '-Xclang',
                       '-fdump-record-layouts', *flags, '-', text=source)
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
    {'symbols': symbols, 'vtables': vtables, 'layouts': layouts}[sys.argv[1]](*sys.argv[2:])
