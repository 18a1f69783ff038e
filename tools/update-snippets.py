#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Copies the code on the pages of the guide from the files that are compiled and tested.

    update-snippets.py [--check] [--docs DIR] [--snippets DIR]

A page in docs/ requests a snippet with a comment. The code block below it is the copy:

    <!-- snippet tst_guide_names.cpp audit -->
    ```cpp
    ...
    ```

The snippet is the text between two lines "//! [audit]" in tests/docs/tst_guide_names.cpp, without the
common indentation. In other kinds of files the lines are "#! [audit]" or "<!--! [audit] -->".
Without a name, the snippet is the whole file. On a page with snippets, other C++ code is an error,
and so is a snippet that no page shows.

Without --check, the pages are rewritten. With --check, nothing is written, and differing pages are an
error.
"""

import argparse
import difflib
import re
import sys
import textwrap
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
DOCS = ROOT / 'docs'
SNIPPETS = ROOT / 'tests' / 'docs'
MARKER = re.compile(r'^\s*(?://|#|<!--)! \[([\w-]+)\]')
BLOCK = re.compile(r'^(?:<!-- snippet (?P<file>\S+)(?: (?P<name>[\w-]+))? -->\n)?'
                   r'```(?P<language>\w*)\n(?P<code>.*?)^```$', re.MULTILINE | re.DOTALL)
REQUEST = re.compile(r'^<!-- snippet .*$', re.MULTILINE)


class Wrong(Exception):
    """An error in a page or a file of snippets that a person must fix."""


def snippets_of(path):
    """The named snippets of a file."""
    found = {}
    opened = {}
    for number, line in enumerate(path.read_text(encoding='utf-8').splitlines(), 1):
        marker = MARKER.match(line)
        if not marker:
            for lines in opened.values():
                lines.append(line)
        elif marker.group(1) in opened:
            name = marker.group(1)
            code = textwrap.dedent('\n'.join(opened.pop(name)) + '\n')
            if not code.strip():
                raise Wrong(f'{path.name}:{number}: the snippet {name} is empty')
            found[name] = code
        elif marker.group(1) in found:
            raise Wrong(f'{path.name}:{number}: a second snippet {marker.group(1)}')
        else:
            opened[marker.group(1)] = []
    if opened:
        raise Wrong(f'{path.name}: no end of the snippet {", ".join(opened)}')
    return found


class Guide:
    """The pages of a folder, and the snippets of another one."""

    def __init__(self, docs, snippets):
        self.docs = docs
        self.folder = snippets
        self.snippets = {path.name: snippets_of(path)
                         for path in sorted(snippets.iterdir())
                         if path.suffix in ('.cpp', '.h', '.txt')}
        self.unused = {(file, name) for file, names in self.snippets.items() for name in names}
        self.used = 0

    def pages(self):
        return sorted(self.docs.rglob('*.md'))

    def updated(self, page):
        """The text of a page with its current snippets."""
        text = page.read_text(encoding='utf-8')
        blocks = [match for match in BLOCK.finditer(text) if match.group('file')]
        if len(blocks) != len(REQUEST.findall(text)):
            raise Wrong(f'{page.name}: a snippet comment without a code block right below it')
        return BLOCK.sub(lambda match: self._block(page, match), text) if blocks else text

    def _block(self, page, match):
        file, name, language = match.group('file', 'name', 'language')
        if not file:
            if language in ('cpp', 'c++'):
                raise Wrong(f'{page.name}: C++ that no test compiles: {match.group("code")}')
            return match.group(0)
        code = self._code(page, file, name)
        named = f' {name}' if name else ''
        return f'<!-- snippet {file}{named} -->\n```{language}\n{code}```'

    def _code(self, page, file, name):
        if file not in self.snippets or (name and name not in self.snippets[file]):
            raise Wrong(f'{page.name}: there is no snippet {file} {name or ""}')
        self.used += 1
        if not name:
            return (self.folder / file).read_text(encoding='utf-8')
        self.unused.discard((file, name))
        return self.snippets[file][name]


def main():
    parser = argparse.ArgumentParser(description='Copies tested code into the pages of the guide.')
    parser.add_argument('--check', action='store_true', help='only compare')
    parser.add_argument('--docs', type=Path, default=DOCS, help='the folder of the pages')
    parser.add_argument('--snippets', type=Path, default=SNIPPETS, help='the folder of the code')
    arguments = parser.parse_args()

    guide = Guide(arguments.docs, arguments.snippets)
    differing = []
    for page in guide.pages():
        old = page.read_text(encoding='utf-8')
        new = guide.updated(page)
        if new == old:
            continue
        differing.append(page.name)
        if arguments.check:
            sys.stdout.writelines(difflib.unified_diff(
                old.splitlines(True), new.splitlines(True), str(page), 'the tested code'))
        else:
            page.write_text(new, encoding='utf-8')
    if guide.unused:
        raise Wrong('no page shows ' + ', '.join(' '.join(pair) for pair in sorted(guide.unused)))
    verb = 'differ' if arguments.check else 'rewritten'
    print(f'{guide.used} snippets in {len(guide.pages())} pages; {verb}: '
          f'{", ".join(differing) or "none"}')
    return 1 if arguments.check and differing else 0


if __name__ == '__main__':
    try:
        sys.exit(main())
    except Wrong as wrong:
        sys.exit(f'update-snippets.py: {wrong}')
