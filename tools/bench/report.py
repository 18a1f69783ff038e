#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Prints the results of the benchmarks as a table, and writes them as CSV and the curves as SVG.

usage: report.py OUTPUT FIGURES.json... [--update]

OUTPUT is the path of the files to write, without suffix. Each file of figures is of another Qt and
has columns of its own. Fails if a target is missed and explained.txt does not give the reason.
"""

import csv
import datetime
import json
import math
import os
import platform
import re
import sys
from pathlib import Path
from xml.sax.saxutils import escape

SOURCE_DIR = Path(__file__).resolve().parents[2]
EXPLAINED = Path(__file__).resolve().parent / 'explained.txt'
DOCUMENT = SOURCE_DIR / 'docs' / 'performance.md'
PICTURE = SOURCE_DIR / 'docs' / 'images' / 'performance-curves.svg'


def machine(all_figures):
    """Date and machine of the measurement, in one sentence."""
    model = platform.processor() or platform.machine()
    for line in Path('/proc/cpuinfo').read_text().splitlines():
        if line.startswith('model name'):
            model = line.split(':')[1].strip()
            break
    system = platform.machine()
    release = Path('/etc/os-release')
    if release.exists():
        found = re.search(r'PRETTY_NAME="(.*)"', release.read_text())
        system = found.group(1) if found else system
    versions = ' and '.join(f'Qt {figures["qt"]}' for figures in all_figures)
    return (f'{datetime.date.today()}, {system}, {os.cpu_count()} cores of {model}, '
            f'{versions}, {all_figures[0]["compiler"]}, optimized build, offscreen platform')


def milliseconds(value):
    if value < 0.01:
        return f'{value * 1000:.2g} µs'
    if value >= 100:
        return f'{value:.0f} ms'
    return f'{value:.3g} ms' if value >= 1 else f'{value:.2g} ms'


def number(value):
    return f'{value:,.0f}'


def explained():
    """The titles of the lines that may miss their target, each with the reason."""
    reasons = {}
    for line in EXPLAINED.read_text().splitlines():
        if line and not line.startswith('#'):
            title, reason = line.split(' = ', 1)
            reasons[title] = reason
    return reasons


def names_of(all_figures):
    """Qt 5 and Qt 6, in the order of the figures."""
    return [f'Qt {figures["qt"].split(".")[0]}' for figures in all_figures]


def verdict(title, met, reasons):
    """What came of the target; met says it for each Qt by name."""
    missed = [name for name in met if not met[name]]
    if not missed:
        return 'met'
    result = 'missed' if len(missed) == len(met) else f'missed with {missed[0]}'
    known = all({title, f'{title} ({name})'} & reasons.keys() for name in missed)
    return f'{result}, explained' if known else result


def time_cells(row):
    """What we need, what bare Qt needs, and the ratio."""
    ours, bare = (' → '.join(map(milliseconds, row[side])) for side in ('ours', 'bare'))
    ratio = {'milliseconds': '', 'beyond': f'+{milliseconds(row["value"])}'}
    return [ours, bare, ratio.get(row['kind'], f'{row["value"]:.2f}')]


def time_line(rows, names, reasons):
    first = rows[0]
    targets = {'milliseconds': f'{first["target"]:g} ms', 'beyond': f'+{first["target"]:g} ms'}
    target = targets.get(first['kind'], f'{first["target"]:.2f}')
    met = {name: round(row['value'], 2) <= row['target'] for name, row in zip(names, rows)}
    cells = [cell for row in rows for cell in time_cells(row)]
    return [first['title'], *cells, target, verdict(first['title'], met, reasons)]


def memory_line(rows, names, reasons):
    first = rows[0]
    cells, met = [], {}
    for name, row in zip(names, rows):
        own = row['ours'] - row['bare']
        cells += [number(row['ours']), number(row['bare']), number(own)]
        met[name] = own <= row['target']
    if not first['target']:
        return [first['title'], *cells, '', '']
    return [first['title'], *cells, number(first['target']), verdict(first['title'], met, reasons)]


def figure_line(rows):
    return [rows[0]['title'], *(cell for row in rows for cell in time_cells(row))]


def columns(names, last):
    """The heads of the columns of each Qt, the last of which is the comparison."""
    if len(names) == 1:
        return ['ours', 'bare Qt', last]
    return [head for name in names for head in (f'ours, {name}', f'bare {name}', last)]


def tables(all_figures):
    """Three tables: title, head, lines."""
    reasons, names = explained(), names_of(all_figures)
    rows = list(zip(*(figures['rows'] for figures in all_figures)))
    memory = zip(*(figures.get('memory', []) for figures in all_figures))
    return [
        ('Times', ['operation', *columns(names, 'ratio'), 'target', 'result'],
         [time_line(row, names, reasons) for row in rows if row[0]['kind'] != 'figure']),
        ('Large hosts', ['host and operation', *columns(names, 'ratio')],
         [figure_line(row) for row in rows if row[0]['kind'] == 'figure']),
        ('Memory', ['figure', *columns(names, 'own share'), 'target', 'result'],
         [memory_line(row, names, reasons) for row in memory]),
    ]


def print_table(head, lines):
    widths = [max(len(line[i]) for line in [head] + lines) for i in range(len(head))]
    for line in [head] + lines:
        cells = [line[0].ljust(widths[0])]
        cells += [cell.rjust(width) for cell, width in zip(line[1:], widths[1:])]
        print('  '.join(cells).rstrip())


def markdown(head, lines):
    text = ['| ' + ' | '.join(head) + ' |', '|---' + '|---:' * (len(head) - 1) + '|']
    text += ['| ' + ' | '.join(line) + ' |' for line in lines]
    return '\n'.join(text)


def write_csv(path, parts):
    with open(path, 'w', newline='', encoding='utf-8') as file:
        writer = csv.writer(file)
        for title, head, lines in parts:
            writer.writerow([title])
            writer.writerow(head)
            writer.writerows(lines)


class Chart:
    """One operation: time against a number, both logarithmic, for the library and for bare Qt."""

    WIDTH, HEIGHT = 400, 290
    LEFT, RIGHT, TOP, BOTTOM = 68, 26, 30, 44

    def __init__(self, curve):
        self.curve = curve
        self.points = [(n, max(ours, 1e-5), max(bare, 1e-5)) for n, ours, bare in curve['points']]
        times = [time for point in self.points for time in point[1:]]
        self.x_range = (1, max(2, math.ceil(math.log10(self.points[-1][0]))))
        self.y_range = (math.floor(math.log10(min(times))), math.ceil(math.log10(max(times))))

    def x(self, n):
        low, high = self.x_range
        return self.LEFT + (math.log10(n) - low) / (high - low) * (
            self.WIDTH - self.LEFT - self.RIGHT)

    def y(self, time):
        low, high = self.y_range
        return self.HEIGHT - self.BOTTOM - (math.log10(time) - low) / (high - low) * (
            self.HEIGHT - self.TOP - self.BOTTOM)

    def grid(self):
        bottom, right = self.HEIGHT - self.BOTTOM, self.WIDTH - self.RIGHT
        for power in range(self.x_range[0], self.x_range[1] + 1):
            x = self.x(10 ** power)
            yield f'<path class="grid" d="M{x:.1f} {self.TOP}V{bottom}"/>'
            yield f'<text x="{x:.1f}" y="{bottom + 15}" class="middle">{10 ** power:,}</text>'
        for power in range(self.y_range[0], self.y_range[1] + 1):
            y = self.y(10 ** power)
            label = f'{10 ** power:,} ms' if power >= 0 else f'{10 ** (power + 3):g} µs'
            yield f'<path class="grid" d="M{self.LEFT} {y:.1f}H{right}"/>'
            yield f'<text x="{self.LEFT - 6}" y="{y + 4:.1f}" class="end">{label}</text>'

    def line(self, column, name):
        places = [(self.x(point[0]), self.y(point[column])) for point in self.points]
        path = 'L'.join(f'{x:.1f} {y:.1f}' for x, y in places)
        yield f'<path class="{name}" d="M{path}"/>'
        for x, y in places:
            yield f'<circle class="{name}" cx="{x:.1f}" cy="{y:.1f}" r="3"/>'

    def svg(self, left, top):
        yield f'<g transform="translate({left} {top})">'
        yield f'<text x="{self.LEFT}" y="18" class="title">{escape(self.curve["title"])}</text>'
        yield from self.grid()
        # Bare Qt first, so that ours is on top where both are the same.
        yield from self.line(2, 'bare')
        yield from self.line(1, 'ours')
        middle = (self.LEFT + self.WIDTH - self.RIGHT) / 2
        yield (f'<text x="{middle}" y="{self.HEIGHT - 10}" class="middle">'
               f'{escape(self.curve["axis"])}</text>')
        yield '</g>'


STYLE = '''
text { font: 12px "DejaVu Sans", Verdana, sans-serif; fill: #333; }
.title { font-weight: bold; fill: #000; }
.middle { text-anchor: middle; }
.end { text-anchor: end; }
.grid { stroke: #ddd; }
path.ours, path.bare { fill: none; stroke-width: 2; }
path.ours { stroke: #0b62a8; }
path.bare { stroke: #e08214; stroke-dasharray: 6 4; }
circle.ours { fill: #0b62a8; }
circle.bare { fill: #e08214; }
'''


def curves_svg(curves):
    columns = 2
    charts = [Chart(curve) for curve in curves]
    width = columns * Chart.WIDTH
    height = 34 + math.ceil(len(charts) / columns) * Chart.HEIGHT
    lines = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" '
             f'viewBox="0 0 {width} {height}">',
             f'<style>{STYLE}</style>',
             f'<rect width="{width}" height="{height}" fill="#fff"/>',
             '<path class="ours" d="M62 20h40"/><text x="110" y="24">with the library</text>',
             '<path class="bare" d="M262 20h40"/><text x="310" y="24">bare Qt</text>']
    for index, chart in enumerate(charts):
        lines += chart.svg(index % columns * Chart.WIDTH, 34 + index // columns * Chart.HEIGHT)
    return '\n'.join(lines + ['</svg>', ''])


def update_document(all_figures, parts):
    text = DOCUMENT.read_text(encoding='utf-8')
    blocks = {'machine': machine(all_figures) + '.'}
    blocks.update({title.lower(): markdown(head, lines) for title, head, lines in parts})
    for name, block in blocks.items():
        pattern = rf'(<!-- begin {name} -->\n).*?(<!-- end {name} -->)'
        text, count = re.subn(pattern, lambda match, block=block: match[1] + block + '\n' + match[2],
                              text, flags=re.DOTALL)
        if count != 1:
            sys.exit(f'{DOCUMENT.name} has no place for "{name}".')
    DOCUMENT.write_text(text, encoding='utf-8')


def main():
    update = sys.argv[-1] == '--update'
    output, *paths = sys.argv[1:-1] if update else sys.argv[1:]
    all_figures = [json.loads(Path(path).read_text(encoding='utf-8')) for path in paths]
    parts = tables(all_figures)
    print(machine(all_figures))
    for title, head, lines in parts:
        print(f'\n{title}\n')
        print_table(head, lines)
    write_csv(f'{output}.csv', parts)
    # The curves of all Qts look alike.
    picture = curves_svg(all_figures[0]['curves'])
    Path(f'{output}.svg').write_text(picture, encoding='utf-8')
    if update:
        update_document(all_figures, parts)
        PICTURE.write_text(picture, encoding='utf-8')
        print(f'\nWritten: {DOCUMENT.name} and {PICTURE.name}')
    missed = [f'{line[0]}: {line[-1]}' for part in parts for line in part[2]
              if line[-1].startswith('missed') and not line[-1].endswith('explained')]
    if missed:
        print('\nMissed:\n  ' + '\n  '.join(missed))
    sys.exit(1 if missed else 0)


if __name__ == '__main__':
    main()
