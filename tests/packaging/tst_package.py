#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Tests of what `cmake --install` gives, as a host meets it.

CMake runs the test classes one by one and sets what they need in the environment: SOURCE_DIR,
BUILD_DIR, QT, LIBDIR, TRANSLATIONS, CMAKE, QMAKE, CXX and CXXFLAGS of the build under test.
"""

import os
import re
import shlex
import shutil
import subprocess
import tempfile
import unittest
from collections import namedtuple
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

SOURCE_DIR = Path(os.environ['SOURCE_DIR'])
BUILD_DIR = Path(os.environ['BUILD_DIR'])
QT = os.environ['QT']
LIBDIR = os.environ['LIBDIR']
TRANSLATIONS = os.environ['TRANSLATIONS']
CMAKE = os.environ['CMAKE']
QMAKE = os.environ['QMAKE']
CXX = os.environ['CXX']
CXXFLAGS = shlex.split(os.environ['CXXFLAGS'])
# One name for each compiler that is there.
COMPILERS = {os.path.realpath(path): path
             for path in map(shutil.which, ('clang++', 'g++', CXX)) if path}.values()

VERSION = (SOURCE_DIR / 'VERSION').read_text().strip()
MAJOR = int(VERSION.split('.')[0])
# What depends on the Qt that a library is for.
Flavour = namedtuple('Flavour',
                     'qt name kit include features qt_minimum not_deprecated_since standard')
FLAVOURS = {
    '5': Flavour('5', 'RyCustomizedDialog', 'RyToolBarKit', 'include',
                 f'{LIBDIR}/qt5/mkspecs/features', '5.6', '0x050600', '-std=c++11'),
    '6': Flavour('6', 'RyCustomizedDialog-qt6', 'RyToolBarKit-qt6',
                 'include/RyCustomizedDialog-qt6', f'{LIBDIR}/qt6/mkspecs/features', '6.2',
                 '0x060200', '-std=c++17'),
}
TESTED = FLAVOURS[QT]
OTHER = FLAVOURS['6' if QT == '5' else '5']
NAME = TESTED.name
KIT = TESTED.kit
HOST_DIR = SOURCE_DIR / 'tests' / 'packaging' / 'host'
EXAMPLES = ('minimal', 'plugins', 'texteditor', 'tree')

CLASSES = (
    'RyAbstatcManager',
    'RyCRibbonPage',
    'RyCRibbonWidget',
    'RyCToolBarPage',
    'RyCToolBarWidget',
    'RyCusInterface',
    'RyCustomizedDialog',
    'RyToolBarManager',
    'RyTreeItemMimeData',
    'RyTreeWidget',
)
LANGUAGES = [path.stem for path in (SOURCE_DIR / 'translations').glob('*.ts')
             if TRANSLATIONS == 'ON']
# The argument of hosts that have to find them.
TRANSLATED = ['translated'] if LANGUAGES else []
# Both libraries have the same ones.
SHARED_FILES = [f'share/rycustomizeddialog/translations/{name}.qm' for name in LANGUAGES]
HEADERS = CLASSES + tuple(name.lower() + '.h' for name in CLASSES) + ('rycustomizeddialogexport.h',)
KIT_HEADERS = ('RyToolBarKit', 'rytoolbarkit.h', 'rytoolbarkitexport.h')
# With the folder where a host may say that they are.
HEADERS_IN_FOLDERS = ([('RyCustomizedDialog', header) for header in HEADERS]
                      + [('RyToolBarKit', header) for header in KIT_HEADERS])

# What a host may define before it includes a header.
STRICT = (
    '-DQT_DEPRECATED_WARNINGS',
    f'-DQT_DISABLE_DEPRECATED_BEFORE={TESTED.not_deprecated_since}',
    '-DQT_NO_CAST_FROM_ASCII',
    '-DQT_NO_CAST_FROM_BYTEARRAY',
    '-DQT_NO_CAST_TO_ASCII',
    '-DQT_NO_FOREACH',
    '-DQT_NO_KEYWORDS',
    '-DQT_NO_NARROWING_CONVERSIONS_IN_CONNECT',
    '-DQT_NO_URL_CAST_FROM_STRING',
    '-DQT_STRICT_ITERATORS',
)
PEDANTIC = (TESTED.standard, '-pedantic', '-Wall', '-Wextra', '-Werror', '-fPIC')


def setUpModule():
    """Installs into an empty prefix, and then moves the tree to where nobody expects it."""
    global work, prefix, installed_to
    folder = tempfile.TemporaryDirectory(prefix='rycustomizeddialog-')
    unittest.addModuleCleanup(folder.cleanup)
    work = Path(folder.name)
    installed_to = work / 'installed'
    run(CMAKE, '--install', BUILD_DIR, '--prefix', installed_to)
    prefix = work / 'moved' / 'elsewhere'
    prefix.parent.mkdir()
    installed_to.rename(prefix)


def attempt(*command, **environment):
    """Runs a command and returns its exit code and everything that it printed."""
    done = subprocess.run([str(word) for word in command], env={**os.environ, **environment},
                          stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, universal_newlines=True)
    return done.returncode, done.stdout


def run(*command, **environment):
    """The same for a command that must succeed; returns what it printed."""
    code, output = attempt(*command, **environment)
    if code != 0:
        raise AssertionError(f'{" ".join(map(str, command))}\nended with {code}:\n{output}')
    return output


def pkg_config(*arguments):
    path = prefix / LIBDIR / 'pkgconfig'
    return run('pkg-config', *arguments, PKG_CONFIG_PATH=str(path)).split()


def installed_files(flavour):
    """All but those that are named after the build type."""
    name = flavour.name
    package = f'{LIBDIR}/cmake/{name}/{name}'
    files = [f'{flavour.include}/{folder}/{header}' for folder, header in HEADERS_IN_FOLDERS]
    files += [f'{package}{end}.cmake'
              for end in ('Config', 'ConfigVersion', 'Targets', 'KitTargets')]
    for library in (name, flavour.kit):
        files += [f'{LIBDIR}/lib{library}.so{end}' for end in ('', f'.{MAJOR}', f'.{VERSION}')]
        files += [f'{LIBDIR}/pkgconfig/{library}.pc']
    files += [f'{flavour.features}/{feature}.prf'
              for feature in ('rycustomizeddialog', 'rytoolbarkit')]
    return files + SHARED_FILES


def qt_flags():
    """Qt's compiler flags, with its headers as system headers: their warnings are not ours."""
    flags = run('pkg-config', '--cflags', f'Qt{QT}Widgets').split()
    return ['-isystem' + flag[2:] if flag.startswith('-I') else flag for flag in flags]


def failures_of(commands):
    """Runs named commands side by side and returns the output of those that fail."""
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        results = pool.map(lambda command: attempt(*command), commands.values())
    return '\n'.join(f'{name}:\n{output}' for name, (code, output) in zip(commands, results) if code)


class InstalledTree(unittest.TestCase):

    def test_installs_exactly_these_files(self):
        named_after_the_build_type = rf'.*/{NAME}(Kit)?Targets-\w+\.cmake'
        found = [name for name in self.found() if not re.fullmatch(named_after_the_build_type, name)]
        self.assertEqual(sorted(found), sorted(installed_files(TESTED)))

    def test_shares_only_translations_with_the_library_for_the_other_qt(self):
        shared = set(self.found()) & set(installed_files(OTHER))
        self.assertEqual(sorted(shared), sorted(SHARED_FILES))

    def found(self):
        return [str(path.relative_to(prefix)) for path in prefix.rglob('*') if not path.is_dir()]

    def test_libraries_are_found_by_their_links(self):
        links = {path.name: os.readlink(path)
                 for path in (prefix / LIBDIR).iterdir() if path.is_symlink()}
        expected = {}
        for library in (NAME, KIT):
            expected[f'lib{library}.so'] = f'lib{library}.so.{MAJOR}'
            expected[f'lib{library}.so.{MAJOR}'] = f'lib{library}.so.{VERSION}'
        self.assertEqual(links, expected)

    def test_no_path_of_the_build_stays_in_it(self):
        unwanted = [str(path).encode() for path in (SOURCE_DIR, BUILD_DIR, installed_to)]
        for path in prefix.rglob('*'):
            if not path.is_file():
                continue
            content = path.read_bytes()
            if path.name.endswith(f'.so.{VERSION}'):
                run('strip', '--strip-debug', '-o', work / 'stripped', path)
                content = (work / 'stripped').read_bytes()
            found = [text.decode() for text in unwanted if text in content]
            self.assertEqual(found, [], f'in {path.relative_to(prefix)}')

    def test_pkg_config_knows_the_version_and_what_it_needs(self):
        requirements = {NAME: [f'Qt{QT}Widgets', '>=', TESTED.qt_minimum],
                        KIT: [NAME, '>=', VERSION]}
        for name, requirement in requirements.items():
            self.assertEqual(pkg_config('--modversion', name), [VERSION])
            self.assertEqual(pkg_config('--print-requires', name), requirement)


class Library(unittest.TestCase):

    def test_needs_qt_and_the_standard_runtime_only(self):
        allowed = {f'libQt{QT}{module}.so.{QT}' for module in ('Core', 'Gui', 'Widgets')}
        allowed |= {'libstdc++.so.6', 'libm.so.6', 'libgcc_s.so.1', 'libc.so.6'}
        self.assertEqual(sorted(set(self.dynamic('NEEDED', NAME)) - allowed), [])
        own = f'lib{NAME}.so.{MAJOR}'
        self.assertEqual(sorted(set(self.dynamic('NEEDED', KIT)) - allowed), [own])

    def test_starts_no_timer_or_thread_and_reads_no_file_or_setting(self):
        # C functions stand alone, and what belongs to a class has its name in front.
        unwanted = re.compile(
            r'\b(Q(Basic)?Timer|Q(Abstract)?Socket|QDir|QFile|QFileInfo|QLibrary|QLockFile|QMutex|'
            r'QNetwork\w+|QProcess|QReadWriteLock|QSaveFile|QSemaphore|QSettings|QStandardPaths|'
            r'QTemporary\w+|QThread|QThreadPool|QWaitCondition)::|'
            r'\bQObject::(startTimer|moveToThread)\b|\b(qgetenv|qEnvironmentVariable\w*)\b|'
            r'^(f?open(64)?|creat|(secure_)?getenv|pthread_\w+|socket|syscall|std::.*f?stream.*)\b')
        library = prefix / LIBDIR / f'lib{NAME}.so'
        lines = run('nm', '-DC', '--undefined-only', '--format=posix', library).splitlines()
        self.assertGreater(len(lines), 0)
        self.assertEqual([line for line in lines if unwanted.search(line)], [])

    def test_soname_holds_the_major_version(self):
        for name in (NAME, KIT):
            self.assertEqual(self.dynamic('SONAME', name), [f'lib{name}.so.{MAJOR}'])

    def test_only_the_kit_searches_a_folder_which_is_its_own(self):
        for name, folders in {NAME: [], KIT: ['$ORIGIN']}.items():
            self.assertEqual(self.dynamic('RPATH', name) + self.dynamic('RUNPATH', name), folders)

    def dynamic(self, tag, name):
        library = prefix / LIBDIR / f'lib{name}.so'
        return re.findall(rf'\({tag}\).*\[(.*)\]', run('readelf', '-dW', library))


class Hosts(unittest.TestCase):

    # The hosts by the library that they use.
    HOSTS = {NAME: 'main.cpp', KIT: 'kithost.cpp'}
    SOURCES = ('-DUSES=sources', f'-DQT={QT}')

    def package(self, prefix):
        return (f'-DUSES={NAME}', f'-DCMAKE_PREFIX_PATH={prefix}')

    def configure(self, source, name, *options):
        command = (CMAKE, '-S', source, '-B', work / name, '-G', 'Ninja',
                   f'-DCMAKE_CXX_COMPILER={CXX}', '-DCMAKE_BUILD_TYPE=',
                   '-DCMAKE_CXX_FLAGS=' + ' '.join(CXXFLAGS),
                   '-DCMAKE_FIND_USE_PACKAGE_REGISTRY=OFF', *options)
        return attempt(*command)

    def build(self, source, name, *options, target):
        code, output = self.configure(source, name, *options)
        self.assertEqual(code, 0, output)
        run(CMAKE, '--build', work / name, '--target', target)

    def build_and_run(self, name, *options):
        self.build(HOST_DIR, name, *options, target='all')
        for host in ('host', 'kithost'):
            run(work / name / host, *TRANSLATED)

    def test_cmake_package_works_wherever_it_lies(self):
        self.build_and_run('package', *self.package(prefix))
        for host, library in {'host': NAME, 'kithost': KIT}.items():
            used = run('ldd', work / 'package' / host)
            self.assertIn(str(prefix / LIBDIR / f'lib{library}.so.'), used)

    def test_kit_brings_the_library_where_linkers_leave_out_what_a_program_does_not_use(self):
        folder = work / 'unused'
        folder.mkdir()
        (folder / 'main.cpp').write_text(
            '#include <RyToolBarKit>\nint main() { return RyToolBarKit::tr("").size(); }\n')
        (folder / 'CMakeLists.txt').write_text(
            'cmake_minimum_required(VERSION 3.16)\nproject(Unused CXX)\n'
            f'find_package({NAME} CONFIG REQUIRED COMPONENTS Kit)\nadd_executable(unused main.cpp)\n'
            'target_link_options(unused PRIVATE -Wl,--as-needed)\n'
            'target_link_libraries(unused PRIVATE RyCustomizedDialog::Kit)\n')
        self.build(folder, 'unused-build', f'-DCMAKE_PREFIX_PATH={prefix}', target='all')
        needed = run('readelf', '-dW', work / 'unused-build' / 'unused')
        self.assertIn(f'lib{KIT}.so', needed)
        self.assertNotIn(f'lib{NAME}.so', needed)
        run(work / 'unused-build' / 'unused')

    def test_library_is_found_without_the_kit(self):
        without = work / 'without-kit'
        shutil.copytree(prefix, without, symlinks=True)
        shutil.rmtree(without / TESTED.include / 'RyToolBarKit')
        for path in without.rglob('*[Kk]it*'):
            path.unlink()
        self.build(HOST_DIR, 'without-kit-build', *self.package(without), target='all')
        run(work / 'without-kit-build' / 'host', *TRANSLATED)
        self.assertFalse((work / 'without-kit-build' / 'kithost').exists())
        code, output = self.configure(HOST_DIR, 'with-kit-build', *self.package(without),
                                      '-DWANTED_COMPONENTS=Kit')
        self.assertNotEqual(code, 0)
        self.assertRegex(output, rf'The kit is not installed\.\s+On Debian, it is in lib{KIT.lower()}-dev\.')

    def test_unknown_component_is_not_found(self):
        code, output = self.configure(HOST_DIR, 'unknown', *self.package(prefix),
                                      '-DWANTED_COMPONENTS=Kit;Unknown')
        self.assertNotEqual(code, 0)
        self.assertNotIn('The kit is not installed', output)

    def test_cmake_package_answers_requests_for_versions(self):
        answers = {
            f'{MAJOR}': True,
            f'{MAJOR}.0': True,
            VERSION: True,
            f'{MAJOR}.999': False,
            f'{MAJOR - 1}.9': False,
            f'{MAJOR + 1}.0': False,
        }
        for wanted, answer in answers.items():
            with self.subTest(wanted=wanted):
                code, output = self.configure(
                    HOST_DIR, 'versions', *self.package(prefix),
                    f'-DWANTED_VERSION={wanted}', f'-U{NAME}_DIR')
                self.assertEqual(code == 0, answer, output)
                if not answer:
                    self.assertIn(f'version: {VERSION}', output)

    def test_pkg_config_files_work_wherever_they_lie(self):
        folder = ''.join(pkg_config('--variable=translationsdir', NAME))
        for name, source in self.HOSTS.items():
            host = work / f'pc-{name}'
            run(CXX, *CXXFLAGS, TESTED.standard, '-fPIC', f'-DTRANSLATIONS_DIR="{folder}"',
                HOST_DIR / source, '-o', host, *pkg_config('--cflags', '--libs', name))
            run(host, *TRANSLATED, LD_LIBRARY_PATH=str(prefix / LIBDIR))

    def test_subdirectory_gives_the_same_target_without_tests_and_examples(self):
        self.build_and_run('sources', *self.SOURCES,
                           f'-DRYCUSTOMIZEDDIALOG_BUILD_TRANSLATIONS={TRANSLATIONS}')
        cache = (work / 'sources' / 'CMakeCache.txt').read_text()
        for what in ('TESTS', 'EXAMPLES'):
            self.assertIn(f'\nRYCUSTOMIZEDDIALOG_BUILD_{what}:BOOL=OFF\n', cache)

    def test_subdirectory_takes_the_qt_of_the_host(self):
        code, output = self.configure(HOST_DIR, 'qt', *self.SOURCES)
        self.assertEqual(code, 0, output)
        cache = (work / 'qt' / 'CMakeCache.txt').read_text()
        self.assertIn(f'\nRYCUSTOMIZEDDIALOG_QT:STRING={QT}\n', cache)

    def test_package_without_translations_names_no_folder(self):
        # In the folder of the other test, so that the library is compiled once.
        self.build(HOST_DIR, 'sources', *self.SOURCES,
                   '-DRYCUSTOMIZEDDIALOG_BUILD_TRANSLATIONS=OFF', target='all')
        run(work / 'sources' / 'host')
        run(work / 'sources' / 'kithost')
        run(CMAKE, '--install', work / 'sources', '--prefix', work / 'without')
        self.assertEqual(list((work / 'without').rglob('*translations*')), [])
        self.build(HOST_DIR, 'untranslated', *self.package(work / 'without'), target='host')
        run(work / 'untranslated' / 'host')
        file = work / 'without' / LIBDIR / 'pkgconfig' / f'{NAME}.pc'
        self.assertNotIn('translationsdir', file.read_text())

    def test_one_build_cannot_use_the_libraries_for_both_qts(self):
        self.write_other_package()
        for uses in ((NAME, OTHER.name), (OTHER.name, NAME),
                     ('sources', OTHER.name), (OTHER.name, 'sources')):
            with self.subTest(uses=uses):
                code, output = self.configure(
                    HOST_DIR, '-'.join(uses), f'-DUSES={";".join(uses)}', f'-DQT={QT}',
                    '-DWANTED_VERSION=', f'-DCMAKE_PREFIX_PATH={prefix};{work / "other"}')
                self.assertNotEqual(code, 0)
                first = OTHER.qt if uses[0] == OTHER.name else QT
                self.assertIn(f'This build already uses RyCustomizedDialog for Qt {first}', output)

    def write_other_package(self):
        """What our package does before it looks for Qt, because the other Qt may not be there."""
        text = (prefix / LIBDIR / 'cmake' / NAME / f'{NAME}Config.cmake').read_text()
        text = text[:text.index('include(CMakeFindDependencyMacro)')]
        text = re.sub(rf'\b(EQUAL|Qt|RYCUSTOMIZEDDIALOG_QT) {QT}\b', rf'\1 {OTHER.qt}', text)
        folder = work / 'other' / LIBDIR / 'cmake' / OTHER.name
        folder.mkdir(parents=True)
        (folder / f'{OTHER.name}Config.cmake').write_text(text)

    def test_examples_build_against_the_package(self):
        folders = [path.parent for path in (SOURCE_DIR / 'examples').glob('*/CMakeLists.txt')]
        self.assertEqual(sorted(folder.name for folder in folders), sorted(EXAMPLES))
        for folder in folders:
            name = folder.name
            with self.subTest(name):
                self.build(folder, name, f'-DCMAKE_PREFIX_PATH={prefix}', target='all')
                self.assertTrue(os.access(work / name / name, os.X_OK))

    def test_qmake_features_work_wherever_they_lie(self):
        both = 'rycustomizeddialog rytoolbarkit'
        for feature, source in {'rycustomizeddialog': 'main.cpp', 'rytoolbarkit': 'kithost.cpp',
                                both: 'kithost.cpp'}.items():
            with self.subTest(feature):
                self.build_with_qmake(work / f'qmake {feature}'.replace(' ', '-'), feature, source)

    def build_with_qmake(self, folder, feature, source):
        folder.mkdir()
        (folder / 'host.pro').write_text(
            f'CONFIG += {feature}\nSOURCES = {HOST_DIR}/{source}\n'
            r'DEFINES += TRANSLATIONS_DIR=\\\"\\\"')
        # Debian's qmake would mix these with the flags of its own compiler.
        run('env', '-u', 'CXX', '-u', 'CXXFLAGS', QMAKE, '-o', folder / 'Makefile',
            folder / 'host.pro', QMAKEFEATURES=str(prefix / TESTED.features))
        run('make', '-C', folder)
        run(folder / 'host', LD_LIBRARY_PATH=str(prefix / LIBDIR))


class Headers(unittest.TestCase):
    """Each header alone and twice in a file, under all the names that a host may give it."""

    def test_each_compiles_with_everything_forbidden(self):
        self.compile_each(*STRICT)

    def test_each_compiles_with_nothing_defined(self):
        self.compile_each()

    def compile_each(self, *defines):
        include = [flag for flag in pkg_config('--cflags', KIT)
                   if str(prefix.parent) in flag]
        common = (*PEDANTIC, *defines, *include, *qt_flags(), '-fsyntax-only')
        commands = {}
        for folder, header in HEADERS_IN_FOLDERS:
            source = work / f'{header}.cpp'
            source.write_text(f'#include <{header}>\n#include <{folder}/{header}>\n')
            for compiler in COMPILERS:
                commands[f'<{header}> with {compiler}'] = (compiler, *common, source)
        self.assertEqual(failures_of(commands), '')


if __name__ == '__main__':
    unittest.main(verbosity=2)
