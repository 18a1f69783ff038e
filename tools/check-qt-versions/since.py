#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Says since which Qt there is what uses.py prints.

usage: since.py lookup PAGES LIST <USES    looks it up in Qt's documentation and prints a new list
       since.py check LIST OLDEST <USES    fails for what is not in the list or newer than that Qt
       since.py deprecated LIST <USES      fails for what is in this list

The first LIST has lines of "VERSION<tab>NAME". The version is "-" for what is documented without one,
which is as old as Qt 5 itself or older, and "?" where the pages do not say it clearly. Lines with a
third field were written by hand: it gives the reason, and a look-up keeps them.

The list of what is deprecated has lines of "VERSION<tab>NAME<tab>SUBSTITUTE". The name of a class or
function is also that of its members or overloads.
"""

import html
import re
import sys
from pathlib import Path

INTRODUCED = re.compile(r'(?:introduced|added)(?: or modified)? in (?:Qt )?(\d+\.\d+)')


def plain(text):
    return html.unescape(re.sub(r'<[^>]*>', '', text))


def version_in(text):
    found = INTRODUCED.search(plain(text))
    return found.group(1) if found else '-'


def number(version):
    return tuple(map(int, version.split('.')))


def is_old(version, oldest='5.6'):
    return version == '-' or number(version) <= number(oldest)


def squeezed(types):
    return re.sub(r'\s|\bT \b|::enum_type', '', types)


class Pages:

    def __init__(self, folder):
        self.files = {path.stem: path for path in sorted(Path(folder).glob('*/*.html'))}
        self.texts = {}

    def text(self, name):
        if name not in self.texts:
            path = self.files.get(name)
            self.texts[name] = path.read_text(errors='replace') if path else None
        return self.texts[name]

    def sections(self, page, name):
        """The headings and texts of the functions, types and macros of that name."""
        name = re.escape(html.escape(name))
        for part in re.split(r'<h3 class=', self.text(page) or '')[1:]:
            heading, _, rest = part.partition('</h3>')
            # The setter of a property stands in a list below it.
            setter = re.search(rf'<td[^>]*> *<span class="name"><b>{name}</b></span>.*', rest)
            if re.search(rf'<span class="name">{name}</span>', heading):
                yield heading, rest
            elif setter:
                yield setter.group(0), rest

    def of_class(self, name):
        text = self.text(name.lower().replace('::', '-').replace('_', '-'))
        if text is None:
            return None
        found = re.search(r'This class was introduced in (Qt \d+\.\d+)', plain(text))
        return found.group(1)[3:] if found else '-'

    def of_function(self, page, name, types):
        sections = list(self.sections(page, name))
        for heading, rest in sections:
            without_names = re.sub(r'<i>.*?</i>|= [^,)]*(\([^)]*\))?', '', heading)
            given = plain(without_names)
            given = given[given.index('(') + 1:given.rindex(')')] if '(' in given else ''
            if squeezed(given) == squeezed(types):
                return version_in(rest)
        # Without the same types, all functions of that name have to be old.
        versions = {version_in(rest) for _, rest in sections}
        if versions and all(map(is_old, versions)):
            return max(versions)
        return None

    def of_value(self, page, enum, value):
        for _, rest in self.sections(page, enum):
            row = re.search(rf'<code>[\w:]*\b{value}</code>.*?</tr>', rest, re.DOTALL)
            if row:
                own = version_in(row.group(0))
                return own if own != '-' or is_old(version_in(rest)) else None
        return None

    def since(self, name):
        function = re.match(r'(?:(.*?)::)?([^:(]+|operator.*?)\((.*)\)(?: const)?$', name)
        if name.startswith(('?', 'SIGNAL')):
            return None
        if function:
            owner, own, types = function.groups()
            page = (owner or 'QtGlobal').lower().replace('::', '-').replace('_', '-')
            return self.of_function(page, re.sub(r'<.*>$', '', own), types)
        parts = name.split('::')
        if len(parts) == 3:
            return self.of_value(parts[0].lower(), parts[1], parts[2])
        if len(parts) == 2:
            sections = list(self.sections(parts[0].lower(), parts[1]))
            return version_in(sections[0][1]) if sections else None
        if self.of_class(name) is not None:
            return self.of_class(name)
        for page in ('qtglobal', 'qobject', 'qstring'):
            for _, rest in self.sections(page, name):
                return version_in(rest)
        return None


def read_list(path):
    lines = Path(path).read_text().splitlines() if Path(path).exists() else []
    return {line.split('\t')[1]: line for line in lines if '\t' in line}


def lookup(folder, path):
    pages, known = Pages(folder), read_list(path)
    print('# SPDX-License-Identifier: MIT')
    for line in sys.stdin:
        name = line.split('\t')[0]
        by_hand = known.get(name, '').count('\t') == 2
        print(known[name] if by_hand else f'{pages.since(name) or "?"}\t{name}')


def check(path, oldest):
    known, uses, wrong = read_list(path), sys.stdin.read().splitlines(), 0
    for name, place in (line.split('\t') for line in uses):
        version = known.get(name, 'not in the list').split('\t')[0]
        if not re.fullmatch(r'-|\d+\.\d+', version) or not is_old(version, oldest):
            print(f'{place}: {name}: {version}')
            wrong += 1
    print(f'{len(uses)} things of Qt are used; {wrong} are too new or unknown.')
    return 1 if wrong or not uses else 0


def deprecated(path):
    known, uses, wrong = read_list(path), sys.stdin.read().splitlines(), 0
    for name, place in (line.split('\t') for line in uses):
        for entry in known:
            if re.match(re.escape(entry) + r'($|[(:])', name):
                version, _, substitute = known[entry].split('\t')
                print(f'{place}: {name}: deprecated since {version}; {substitute}')
                wrong += 1
    print(f'{len(uses)} things of Qt 6 are used; {wrong} of them are deprecated in a later one.')
    return 1 if wrong or not uses else 0


if __name__ == '__main__':
    sys.exit({'lookup': lookup, 'check': check, 'deprecated': deprecated}[sys.argv[1]](*sys.argv[2:]))
