#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks of the files that git keeps, without building anything.

CMake runs the test classes one by one and sets SOURCE_DIR in the environment.
"""

import os
import re
import shutil
import subprocess
import sys
import unittest
from pathlib import Path

SOURCE_DIR = Path(os.environ['SOURCE_DIR'])
SUBSYSTEMS = ('dialog', 'toolbarmanager', 'toolbareditor', 'ribbon', 'kit')

# Headers of functions that share a class.
NAMED_AFTER_FUNCTIONS = ('toolbarmanager/nameindex.h',)


def tracked(*patterns):
    """The files that git keeps and that match one of the patterns."""
    # Whoever runs the tests need not be the owner of the checkout.
    command = ['git', '-c', f'safe.directory={SOURCE_DIR}', 'ls-files', '-z', '--', *patterns]
    names = subprocess.run(command, cwd=SOURCE_DIR, check=True, stdout=subprocess.PIPE).stdout
    return [SOURCE_DIR / name for name in sorted(names.decode().split('\0')) if name]


def in_repository(path):
    return str(path.relative_to(SOURCE_DIR))


def is_code(path):
    """True for what people write in a language with comments: sources, scripts, build files."""
    if path.suffix in ('.h', '.cpp', '.py', '.sh', '.cmake', '.yml', '.yaml'):
        return True
    if path.name == 'CMakeLists.txt' or path.name.endswith('.cmake.in'):
        return True
    return path.read_bytes().startswith(b'#!')


class Files(unittest.TestCase):

    def test_sources_have_the_layout_of_clang_format_14(self):
        names = ('clang-format-14', 'clang-format')
        program = next((found for found in map(shutil.which, names) if found), None)
        self.assertIsNotNone(program, 'clang-format 14 is not installed')
        version = subprocess.run([program, '--version'], check=True, stdout=subprocess.PIPE,
                                 universal_newlines=True).stdout
        self.assertIn('version 14.', version, 'other versions lay out other code')
        sources = tracked('*.h', '*.cpp')
        self.assertGreater(len(sources), 0)
        done = subprocess.run([program, '--dry-run', '-Werror', *sources], stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, universal_newlines=True)
        self.assertEqual(done.returncode, 0, done.stdout)

    def test_none_has_marks_of_a_merge(self):
        marked = [in_repository(path) for path in tracked()
                  if re.search(rb'^(<{7}|>{7}) ', path.read_bytes(), re.MULTILINE)]
        self.assertEqual(marked, [])

    def test_each_names_its_licence(self):
        code = [path for path in tracked() if is_code(path)]
        self.assertGreater(len(code), 0)
        without = [in_repository(path) for path in code
                   if 'SPDX-License-Identifier: MIT' not in path.read_text()[:200]]
        self.assertEqual(without, [])

    def test_headers_define_one_class_and_are_named_after_it(self):
        wrong = {}
        # Helpers of tests may keep functions beside a class, and benchmarks both sides together.
        for path in tracked('*.h', ':!tests/', ':!benchmarks/'):
            if in_repository(path) in NAMED_AFTER_FUNCTIONS:
                continue
            classes = re.findall(r'^(?:template <.*>\s)?class (?:\w+_EXPORT )?(\w+)[^;{]*\{',
                                 path.read_text(), re.MULTILINE)
            if [name.lower() for name in classes] not in ([], [path.stem]):
                wrong[in_repository(path)] = classes
        self.assertEqual(wrong, {})

    def test_forms_are_named_after_their_class(self):
        for path in tracked('*.ui'):
            name = re.search(r'<class>(\w+)</class>', path.read_text()).group(1)
            self.assertEqual(path.stem, name.lower(), in_repository(path))

    def test_sources_of_the_library_belong_to_a_header(self):
        # The sources of a class with several concerns add the concern: class_concern.cpp.
        sources = tracked(*(f'{folder}/*.cpp' for folder in SUBSYSTEMS))
        self.assertGreater(len(sources), 0)
        alone = [in_repository(path) for path in sources
                 if not (path.parent / f'{path.stem.split("_")[0]}.h').exists()]
        self.assertEqual(alone, [])

    def test_explained_changes_fit_the_sources(self):
        # tools/mutate.py would make them only after hours.
        done = subprocess.run([sys.executable, '-B', SOURCE_DIR / 'tools' / 'mutate.py',
                               '--check-explained'], stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, universal_newlines=True)
        self.assertEqual(done.returncode, 0, done.stdout)

    def test_debian_packages_promise_the_symbols_of_the_contract(self):
        contracts = {'librycustomizeddialog1': 'symbols.txt',
                     'librycustomizeddialog-qt6-1': 'symbols-qt6.txt',
                     'librytoolbarkit1': 'kit-symbols.txt',
                     'librytoolbarkit-qt6-1': 'kit-symbols-qt6.txt'}
        lists = tracked('debian/*.symbols')
        self.assertEqual(sorted(path.stem for path in lists), sorted(contracts))
        for path in lists:
            promised = re.findall(r'^ (?!\(optional)(\w+)@Base ', path.read_text(), re.MULTILINE)
            contract = SOURCE_DIR / 'tools' / 'check-abi' / contracts[path.stem]
            exported = {line.split()[0] for line in contract.read_text().splitlines()}
            # The marks of the linker and the templates of others belong to nobody.
            ours = {name for name in exported if 'Ry' in name}
            self.assertGreater(len(ours), 0)
            self.assertEqual(sorted(promised), sorted(ours),
                             f'{path.name}: tools/package.sh --update-symbols adds what is new')

    def test_debian_change_log_begins_with_this_version(self):
        newest = (SOURCE_DIR / 'debian' / 'changelog').read_text().splitlines()[0]
        version = (SOURCE_DIR / 'VERSION').read_text().strip()
        self.assertRegex(newest, rf'^rycustomizeddialog \({re.escape(version)}\) ')


class ReadmeExample(unittest.TestCase):

    def test_host_in_the_readme_is_the_minimal_example_word_for_word(self):
        readme = SOURCE_DIR / 'README.md'
        example = SOURCE_DIR / 'examples' / 'minimal' / 'main.cpp'
        for path in (readme, example):
            self.assertTrue(path.exists(), f'{in_repository(path)} is missing')
        blocks = re.findall(r'^```cpp\n(.*?)^```$', readme.read_text(), re.MULTILINE | re.DOTALL)
        hosts = [self.without_licence(block) for block in blocks if 'int main(' in block]
        self.assertEqual(len(hosts), 1, 'one block of C++ in README.md holds a main()')
        self.maxDiff = None
        self.assertMultiLineEqual(hosts[0], self.without_licence(example.read_text()))

    def without_licence(self, code):
        return re.sub(r'\A(// SPDX-.*\n)?\n*', '', code)


if __name__ == '__main__':
    unittest.main(verbosity=2)
