#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks of the pages in docs/ and of the links in all pages, without building anything.

CMake runs the test classes one by one and sets SOURCE_DIR in the environment.
"""

import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path
from urllib.parse import unquote

SOURCE_DIR = Path(os.environ['SOURCE_DIR'])
DOCS = SOURCE_DIR / 'docs'
SNIPPETS = SOURCE_DIR / 'tests' / 'docs'
UPDATE = SOURCE_DIR / 'tools' / 'update-snippets.py'

# What Qt offers since a later version than the first one that a host may have. The library itself is
# read by tools/check-qt-versions.sh.
NEWER_THAN_QT_5_6 = {
    r'\bqAsConst\b': '5.7',
    r'\b(qOverload|qConstOverload|qNonConstOverload|QOverload|QConstOverload|QNonConstOverload)\b':
        '5.7',
    r'\b(Q_FALLTHROUGH|Q_NAMESPACE|Q_ENUM_NS|QDeadlineTimer)\b': '5.8',
    r'\b(qEnvironmentVariable|QRandomGenerator|QStringView|QOperatingSystemVersion)\b': '5.10',
    r'\bchopped\(|\bisPersistentEditorOpen\(': '5.10',
    r'\bhorizontalAdvance\(': '5.11',
    r'\b(Q_DISABLE_COPY_MOVE|Q_DISABLE_MOVE)\b|\bswapItemsAt\(': '5.13',
    r'\bQt::(SkipEmptyParts|KeepEmptyParts|SplitBehavior|endl|flush|hex|dec)\b': '5.14',
    r'\bQ(List|Vector|Set|StringList|Queue|Stack)\b(<.*>)?( \w+)?[({]\S*\bc?begin\(\)': '5.14',
    r'\bQ(Multi)?(Map|Hash)\b(<.*>)?( \w+)?\(\{': '5.14',
    r'\bremoveIf\(': '6.1',
}


class Snippets(unittest.TestCase):
    """The pages show the code that is compiled and tested, and nothing else."""

    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.copy = Path(scratch.name) / 'docs'
        self.snippets = Path(scratch.name) / 'tests' / 'docs'
        shutil.copytree(DOCS, self.copy)
        shutil.copytree(SNIPPETS, self.snippets)

    def run_tool(self, *arguments):
        """Runs the tool on the copies."""
        return self.run_on('--docs', self.copy, '--snippets', self.snippets, *arguments)

    def run_on(self, *arguments):
        return subprocess.run([sys.executable, '-B', UPDATE, *arguments], stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, universal_newlines=True)

    def replace(self, name, old, new):
        path = (self.copy if name.endswith('.md') else self.snippets) / name
        text = path.read_text()
        self.assertIn(old, text)
        path.write_text(text.replace(old, new, 1))

    def test_pages_show_the_tested_code(self):
        done = self.run_on('--check')
        self.assertEqual(done.returncode, 0, done.stdout)

    def test_a_changed_page_is_reported_and_fixed(self):
        self.replace('names.md', 'QStringList', 'QList<QString>')
        self.assertEqual(self.run_tool('--check').returncode, 1)
        self.assertEqual(self.run_tool().returncode, 0)
        self.assertEqual((self.copy / 'names.md').read_text(), (DOCS / 'names.md').read_text())

    def test_a_changed_snippet_is_reported(self):
        self.replace('tst_guide_names.cpp', 'QStringList nameProblems', 'auto nameProblems')
        done = self.run_tool('--check')
        self.assertEqual(done.returncode, 1)
        self.assertIn('names.md', done.stdout)

    def test_code_that_no_test_compiles_is_reported(self):
        self.replace('names.md', '\n## ', '\n```cpp\nint untested;\n```\n\n## ')
        self.assertIn('no test compiles: int untested;', self.run_tool('--check').stdout)

    def test_an_unknown_snippet_is_reported(self):
        self.replace('names.md', 'tst_guide_names.cpp audit', 'tst_guide_names.cpp odd')
        self.assertIn('no snippet tst_guide_names.cpp odd', self.run_tool('--check').stdout)

    def test_a_snippet_that_no_page_shows_is_reported(self):
        self.replace('names.md', '<!-- snippet tst_guide_names.cpp audit -->\n```cpp', '```text')
        self.assertIn('no page shows tst_guide_names.cpp audit', self.run_tool('--check').stdout)

    def test_snippets_for_hosts_use_nothing_newer_than_qt_5_6(self):
        found = []
        for path in sorted(SNIPPETS.glob('*.cpp')):
            blocks = re.findall(r'^ *//! \[([\w-]+)\]\n(.*?)^ *//! \[\1\]$', path.read_text(),
                                re.MULTILINE | re.DOTALL)
            self.assertGreater(len(blocks), 0, path.name)
            found += [f'{path.name} {name}: since Qt {version}: {pattern}'
                      for name, code in blocks
                      for pattern, version in NEWER_THAN_QT_5_6.items()
                      if re.search(pattern, code)]
        self.assertEqual(found, [])


class UserGuide(unittest.TestCase):
    """The help of the kit is made from the pages for users."""

    UPDATE = SOURCE_DIR / 'tools' / 'update-user-guide.py'
    PAGES = SOURCE_DIR / 'kit' / 'userguide'

    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.docs = Path(scratch.name) / 'docs'
        self.pages = Path(scratch.name) / 'pages'
        shutil.copytree(DOCS, self.docs)
        shutil.copytree(self.PAGES, self.pages)

    def run_tool(self, *arguments):
        """Runs the tool on the copies, with the Python that has what it needs."""
        return subprocess.run([self.UPDATE, '--docs', self.docs, '--pages', self.pages, *arguments],
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                              universal_newlines=True)

    def change(self, old, new):
        page = self.docs / 'user-guide.md'
        self.assertIn(old, page.read_text())
        page.write_text(page.read_text().replace(old, new, 1))

    def test_the_help_is_made_from_the_pages(self):
        done = self.run_tool('--check')
        self.assertEqual(done.returncode, 0, f'{done.stdout}tools/update-user-guide.py updates it')

    def test_a_changed_page_is_reported_and_fixed(self):
        self.change('Toolbars are', 'A toolbar is')
        self.assertEqual(self.run_tool('--check').returncode, 1)
        self.assertEqual(self.run_tool().returncode, 0)
        self.assertIn('<p>A toolbar is', (self.pages / 'user-guide.html').read_text())
        self.assertEqual(self.run_tool('--check').returncode, 0)

    def test_a_help_without_a_page_is_reported(self):
        (self.docs / 'user-guide.de.md').unlink()
        done = self.run_tool('--check')
        self.assertEqual(done.returncode, 1)
        self.assertIn('user-guide.de.html', done.stdout)

    def test_links_that_the_help_cannot_show_are_reported(self):
        self.change('(#separators)', '(names.md)')
        self.assertIn('names.md leads out of the page', self.run_tool('--check').stdout)
        self.change('(names.md)', '(#separator)')
        self.assertIn('#separator leads to no heading', self.run_tool('--check').stdout)

    def test_every_page_and_picture_is_compiled_in(self):
        listed = (self.PAGES / 'userguide.qrc').read_text()
        pages = sorted(path.name for path in self.PAGES.glob('*.html'))
        self.assertGreater(len(pages), 1)
        self.assertEqual(sorted(re.findall(r'>([\w.-]+\.html)<', listed)), pages)
        pictures = set()
        for page in pages:
            pictures |= set(re.findall(r'src="([^"]*)"', (self.PAGES / page).read_text()))
        self.assertEqual(sorted(re.findall(r'alias="(images/[^"]*)"', listed)), sorted(pictures))


class Pages(unittest.TestCase):
    """The links in all pages lead somewhere."""

    CODE = re.compile(r'^```.*?^```$|`[^`\n]*`', re.MULTILINE | re.DOTALL)
    LINK = re.compile(r'!?\[[^\]]*\]\(([^)\s]+)\)')
    HEADING = re.compile(r'^#+ +(.+?) *#*$', re.MULTILINE)

    def pages(self):
        return [SOURCE_DIR / 'README.md', SOURCE_DIR / 'CONTRIBUTING.md', *sorted(DOCS.rglob('*.md')),
                *sorted((SOURCE_DIR / 'examples').rglob('*.md'))]

    def anchors(self, page):
        """The anchors of the headings, as GitHub makes them."""
        found = []
        code = re.sub(r'^```.*?^```$', '', page.read_text(), flags=re.MULTILINE | re.DOTALL)
        for heading in self.HEADING.findall(code):
            plain = self.LINK.sub(lambda link: link.group(0)[1:].split(']')[0], heading)
            anchor = re.sub(r'[^\w\- ]', '', plain.lower()).replace(' ', '-')
            found.append(f'{anchor}-{found.count(anchor)}' if anchor in found else anchor)
        return found

    def problem(self, page, link):
        """What is wrong with a link of a page; None if nothing is."""
        if re.match(r'[a-z]+:', link):
            return None if link.startswith('https:') else 'neither relative nor https'
        path, _, anchor = unquote(link).partition('#')
        target = (page.parent / path).resolve() if path else page
        if SOURCE_DIR not in target.parents:
            return 'leads out of the project'
        if not target.exists():
            return 'leads nowhere'
        if anchor and (target.suffix != '.md' or anchor not in self.anchors(target)):
            return 'leads to no heading'
        return None

    def test_links_lead_somewhere(self):
        wrong = []
        links = 0
        for page in self.pages():
            for link in self.LINK.findall(self.CODE.sub('', page.read_text())):
                links += 1
                problem = self.problem(page, link)
                if problem:
                    wrong.append(f'{page.relative_to(SOURCE_DIR)}: {link} {problem}')
        self.assertEqual(wrong, [])
        self.assertGreater(links, 50)

    def test_links_of_the_guide_lead_to_what_is_installed_with_it(self):
        # The packages have docs/, and beside it examples/.
        wrong = []
        links = 0
        for page in sorted(DOCS.rglob('*.md')):
            for link in self.LINK.findall(self.CODE.sub('', page.read_text())):
                if re.match(r'[a-z]+:|#', link):
                    continue
                links += 1
                target = (page.parent / unquote(link).partition('#')[0]).resolve()
                if (SOURCE_DIR / 'examples') in target.parents:
                    continue
                if DOCS not in target.parents:
                    wrong.append(f'{page.relative_to(SOURCE_DIR)}: {link}')
        self.assertEqual(wrong, [])
        self.assertGreater(links, 50)

    def test_wrong_links_are_reported(self):
        page = DOCS / 'README.md'
        self.assertIsNone(self.problem(page, 'names.md'))
        self.assertIsNone(self.problem(page, 'testing.md#random-bytes-into-restorestate'))
        self.assertEqual(self.problem(page, 'nmaes.md'), 'leads nowhere')
        self.assertEqual(self.problem(page, 'testing.md#random-bits'), 'leads to no heading')
        self.assertEqual(self.problem(page, '#random-bits'), 'leads to no heading')
        self.assertEqual(self.problem(page, '../../elsewhere.md'), 'leads out of the project')
        self.assertEqual(self.problem(page, 'file:///tmp'), 'neither relative nor https')

    def test_index_names_every_page(self):
        named = self.LINK.findall((DOCS / 'README.md').read_text())
        missing = [str(page.relative_to(DOCS)) for page in sorted(DOCS.rglob('*.md'))
                   if page.name != 'README.md' and named.count(str(page.relative_to(DOCS))) != 1]
        self.assertEqual(missing, [], 'each needs one line in docs/README.md')

    def test_every_picture_for_users_is_shown(self):
        shown = self.LINK.findall((DOCS / 'user-guide.md').read_text())
        pictures = [f'images/{path.name}' for path in sorted((DOCS / 'images').glob('user-*'))]
        self.assertEqual(sorted(link for link in shown if link.startswith('images/')), pictures)
        self.assertGreater(len(pictures), 0)


if __name__ == '__main__':
    unittest.main(verbosity=2)
