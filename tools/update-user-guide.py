#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Makes the pages that the kit shows as help from docs/user-guide.md and its translations.

    update-user-guide.py [--check] [--docs DIR] [--pages DIR]

A page of the kit is HTML that QTextBrowser can show. Its pictures are those of the guide; kit/userguide/
has the list of what is compiled in. The first heading is the title of the window.

Without --check, the pages are written. With --check, nothing is written, and differing pages are an
error.

Debian's own Python has the package python3-markdown.
"""

import argparse
import difflib
import html
import re
import sys
from pathlib import Path

import markdown
from markdown.extensions.toc import slugify_unicode

ROOT = Path(__file__).resolve().parent.parent
HEADING = re.compile(r'<h1 id="[^"]*">(.*?)</h1>')
LINK = re.compile(r'<a href="([^"]*)"')
PAGE = '''<!DOCTYPE html>
<html lang="{language}">
<head>
<meta http-equiv="Content-Type" content="text/html; charset=utf-8">
<title>{title}</title>
</head>
<body>
{body}
</body>
</html>
'''


class Wrong(Exception):
    """An error in a page that a person must fix."""


def page_of(source):
    """The HTML page of a Markdown file, such as user-guide.md or user-guide.de.md."""
    # Anchors with all letters, as GitHub makes them.
    body = markdown.markdown(source.read_text(encoding='utf-8'), output_format='html',
                             extensions=['tables', 'toc', 'sane_lists'],
                             extension_configs={'toc': {'slugify': slugify_unicode}})
    title = HEADING.search(body)
    if not title:
        raise Wrong(f'{source.name}: no heading')
    anchors = set(re.findall(r' id="([^"]*)"', body))
    for link in LINK.findall(body):
        if not link.startswith('#'):
            raise Wrong(f'{source.name}: {link} leads out of the page, which the help cannot show')
        if link[1:] not in anchors:
            raise Wrong(f'{source.name}: {link} leads to no heading')
    # Qt's tables have neither borders nor space without these.
    body = body.replace('<table>', '<table border="1" cellspacing="0" cellpadding="4">')
    suffixes = source.suffixes
    return PAGE.format(language=suffixes[0][1:] if len(suffixes) > 1 else 'en',
                       title=html.escape(html.unescape(title.group(1)), quote=False), body=body)


def main():
    parser = argparse.ArgumentParser(description='Makes the pages that the kit shows as help.')
    parser.add_argument('--check', action='store_true', help='only compare')
    parser.add_argument('--docs', type=Path, default=ROOT / 'docs', help='the folder of the guide')
    parser.add_argument('--pages', type=Path, default=ROOT / 'kit' / 'userguide',
                        help='the folder of the pages')
    arguments = parser.parse_args()

    sources = sorted(arguments.docs.glob('user-guide*.md'))
    pages = {arguments.pages / f'{source.stem}.html': page_of(source) for source in sources}
    differing = [path.name for path in sorted(arguments.pages.glob('*.html')) if path not in pages]
    for path, new in pages.items():
        old = path.read_text(encoding='utf-8') if path.exists() else ''
        if new == old:
            continue
        differing.append(path.name)
        if arguments.check:
            sys.stdout.writelines(difflib.unified_diff(old.splitlines(True), new.splitlines(True),
                                                       str(path), 'made from the guide'))
        else:
            path.write_text(new, encoding='utf-8')
    verb = 'differ' if arguments.check else 'rewritten'
    print(f'{len(pages)} pages; {verb}: {", ".join(differing) or "none"}')
    return 1 if arguments.check and differing else 0


if __name__ == '__main__':
    try:
        sys.exit(main())
    except Wrong as wrong:
        sys.exit(f'update-user-guide.py: {wrong}')
