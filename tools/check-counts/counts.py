#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Counts the instructions of each operation under callgrind and compares them with the record.

usage: counts.py PROGRAM OUTPUT [--update]

OUTPUT is the folder for callgrind's files. There are two counts: the library together with
everything that it calls, and the library's own code alone. Fails if one of them has grown by more
than a tenth.
"""

import os
import re
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

RECORD = Path(__file__).resolve().parent / 'instructioncounts.txt'
HEAD = '''# SPDX-License-Identifier: MIT
#
# Instructions of each operation: in all, and in the library's own code. Written by
# tools/check-counts.sh --update; they hold for one version of Qt and of the compiler.
'''
OPERATIONS = ('setToolBar', 'saveState', 'restoreState-first', 'restoreState-unchanged',
              'restoreState-changed', 'createToolBar', 'removeAction', 'openDialog', 'addAndRemoveEntry',
              'apply-unchanged', 'apply-changed')
GROWTH = 1.10
# Smaller differences in the library's own code are ignored: they depend on addresses.
SLACK = 1000
# The same everywhere: no settings of the user, and the same order in all hashes.
ENVIRONMENT = {'PATH': os.environ['PATH'], 'HOME': '/nonexistent', 'LC_ALL': 'C.UTF-8',
               'QT_HASH_SEED': '0'}


def versions(program):
    """The versions that the counts depend on."""
    said = subprocess.run([program, '--about'], check=True, capture_output=True, text=True).stdout
    return dict(line.split(' ', 1) for line in said.splitlines())


def run(program, operation, output):
    """Counts one operation; returns the total and the count of the library."""
    file = Path(output) / f'{operation}.callgrind'
    command = ['valgrind', '--tool=callgrind', '--toggle-collect=ry_counted_operation',
               f'--callgrind-out-file={file}', program, '--count', operation]
    process = subprocess.run(command, env=ENVIRONMENT, capture_output=True, text=True, check=False)
    if process.returncode != 0:
        sys.exit(f'cannot count {operation}:\n{process.stderr}')
    return counts_of(file)


def counts_of(file):
    """Adds up the counts in a file of callgrind."""
    names = {}
    total = own = 0
    in_library = call_follows = False
    for line in file.read_text(errors='replace').splitlines():
        found = re.match(r'(c?ob)=\((\d+)\)(?: (.*))?', line)
        if found:
            # A name is only given where its number is first used.
            if found[3]:
                names[found[2]] = found[3]
            if found[1] == 'ob':
                in_library = 'libRyCustomizedDialog' in names[found[2]]
        elif line.startswith('summary: '):
            total = int(line.split()[1])
        elif line.startswith('calls='):
            call_follows = True
        elif re.match(r'[+*\-]?\d* ?\d+$', line):
            # The cost of a call is counted in the called function.
            if in_library and not call_follows:
                own += int(line.split()[-1])
            call_follows = False
    return total, own


def read_record():
    record = {}
    for line in RECORD.read_text().splitlines():
        if line and not line.startswith('#'):
            key, value = line.split(' ', 1)
            record[key] = value
    return record


def write_record(about, counts):
    lines = [f'{key} {value}' for key, value in about.items()]
    lines += [f'{operation} {total} {own}' for operation, (total, own) in counts.items()]
    RECORD.write_text(HEAD + '\n'.join(lines) + '\n')


def change(now, before):
    return f'{100 * (now / before - 1):+.1f} %' if before else 'new'


def compare(counts, record):
    """Prints all counts and returns the names of what has grown."""
    grown = []
    print(f'{"operation":24}{"in all":>14}{"change":>10}{"library":>14}{"change":>10}')
    for operation, (total, own) in counts.items():
        before = [int(count) for count in record.get(operation, '0 0').split()]
        print(f'{operation:24}{total:14,}{change(total, before[0]):>10}'
              f'{own:14,}{change(own, before[1]):>10}')
        if not before[0]:
            grown.append(f'{operation} (not recorded)')
        elif total > before[0] * GROWTH or own > before[1] * GROWTH + SLACK:
            grown.append(operation)
    return grown


def main():
    program, output = sys.argv[1:3]
    update = sys.argv[3:] == ['--update']
    about = versions(program)
    record = read_record() if RECORD.exists() else {}
    others = [f'{key} {value} instead of {record.get(key)}' for key, value in about.items()
              if record.get(key) != value]
    if others and not update:
        print(f'Nothing is compared, because the record is for another Qt or compiler: '
              f'{", ".join(others)}.')
        return
    Path(output).mkdir(parents=True, exist_ok=True)
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        results = pool.map(lambda operation: run(program, operation, output), OPERATIONS)
        counts = dict(zip(OPERATIONS, results))
    grown = compare(counts, record)
    if update:
        write_record(about, counts)
        print(f'Written: {RECORD.name}')
    elif grown:
        sys.exit(f'More than {GROWTH - 1:.0%} more instructions than recorded: {", ".join(grown)}')


if __name__ == '__main__':
    main()
