#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Breaks the library on purpose, one place at a time, and checks that the tests notice.

usage: tools/mutate.py [--kit] [--count N | --all] [--jobs N] [--only FILE[:LINE]] [--explained] [--list]
       tools/mutate.py --check-explained

With --kit it breaks the kit, for which only the tests count that use it. Those of the kit do not count for
the library.

Each job works in a copy of the sources below build/mutants/, so the sources do not change. Changes
that do not compile are not counted. Changes that no test catches are printed at the end. For a public
header, tools/check-abi.sh is one of the tests. The changes in tools/mutate/equivalent.txt, and for the
kit in equivalent-kit.txt, have no visible effect, each for the reason given there. They take the most
time, because every test runs, so they are made only with --explained. An entry that fits no line of the
sources is an error.
"""

import argparse
import collections
import concurrent.futures
import filecmp
import hashlib
import json
import os
import queue
import re
import shutil
import subprocess
import sys
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
WORK = ROOT / "build" / "mutants"
# The largest accepted share of changes that no test catches; each is printed.
ALLOWED = 0.03
TEST_TIMEOUT = 300
CODE_IN_HEADERS = ("nameindex.h", "toolbarstateformat.h")

Mutant = collections.namedtuple("Mutant", "path line kind old new")
# What is broken: the build target, the folders with the sources, and the list of explained changes.
Subject = collections.namedtuple("Subject", "target folders equivalent")
LIBRARY = Subject("RyCustomizedDialog",
                  ("dialog", "toolbarmanager", "toolbareditor", "ribbon", "resources"),
                  ROOT / "tools" / "mutate" / "equivalent.txt")
KIT = Subject("RyToolBarKit", ("kit",), ROOT / "tools" / "mutate" / "equivalent-kit.txt")


def code_changes(line):
    """Yields (kind, new line) for one line of C++."""
    code = line.split("//")[0].rstrip()
    tail = line[len(code):]
    indent = code[:len(code) - len(code.lstrip())]
    text = code.strip()

    def at(match, replacement):
        return code[:match.start()] + replacement + code[match.end():] + tail

    condition = re.fullmatch(r"(if|while) \((.*)\)( \{)?", text)
    if condition and " const " not in condition[2].split("=")[0] + " ":
        yield "negated", f"{indent}{condition[1]} (!({condition[2]})){condition[3] or ''}{tail}"
    value = re.fullmatch(r"return (.+);", text)
    if value and re.search(r"[=!<>]=|[<>&|]{1,2} |^!|contains|isDefault|true|false|\.next", value[1]):
        yield "negated", f"{indent}return !({value[1]});{tail}"
    elif value and value[1] not in ("nullptr", "{}"):
        yield "nothing returned", f"{indent}return {{}};{tail}"

    for old, news in (("&&", ["||"]), ("||", ["&&"]), (" == ", [" != "]), (" != ", [" == "]),
                      (" < ", [" <= "]), (" <= ", [" < "]), (" > ", [" >= "]), (" >= ", [" > "]),
                      (" + ", [" - "]), (" - ", [" + "]), ("++", ["--"]), ("--", ["++"]),
                      (" ? ", [" ? !"]), ("true", ["false"]), ("false", ["true"]),
                      ("nullptr", ["this"]), ("qMin", ["qMax"]), ("|", ["&"]), (" & ", [" | "])):
        for match in re.finditer(re.escape(old), code):
            around = code[match.start() - 1:match.end() + 1]
            if old == "|" and "||" in around:
                continue
            for new in news:
                yield "exchanged", at(match, new)
    for match in re.finditer(r"(?<![\w.\"%])(\d+)(?![\w.\"])", code):
        yield "one more", at(match, str(int(match[1]) + 1))
    for match in re.finditer(r"\"((?:[^\"\\]|\\.)+)\"", code):
        if not code.startswith("#"):
            yield "other text", at(match, f'"{match[1]}x"')
    for match in re.finditer(r"(?<=\()([^(),]+), ([^(),]+)(?=\))", code):
        if not code.startswith("#"):
            yield "swapped", at(match, f"{match[2]}, {match[1]}")
    for match in re.finditer(r"\bQt::(\w+Order|\w+Action|dark\w+)\b", code):
        other = {"AscendingOrder": "DescendingOrder", "CopyAction": "MoveAction",
                 "MoveAction": "CopyAction", "darkGreen": "darkBlue"}.get(match[1])
        if other:
            yield "exchanged", at(match, "Qt::" + other)


def form_changes(line):
    """Yields (kind, new line) for one line of a form or of the list of icons."""
    text = re.search(r"<string>([^<]+)</string>", line)
    if text:
        yield "other text", line.replace(text[1], text[1] + "x")
    # Only the size of a geometry is used.
    number = re.search(r"(?<!<x)(?<!<y)>(\d+)<", line)
    if number:
        yield "one more", line.replace(f">{number[1]}<", f">{int(number[1]) + 1}<")
    for match in re.finditer(r"(row|column|colspan|rowspan)=\"(\d+)\"", line):
        yield "one more", line.replace(match[0], f'{match[1]}="{int(match[2]) + 1}"')
    name = re.search(r"name=\"(\w+)\"/?>$", line)
    if name and ("<widget" in line or "<layout" in line):
        yield "other name", line.replace(f'name="{name[1]}"', f'name="{name[1]}X"')
    prefix = re.search(r"prefix=\"([^\"]+)\"", line)
    if prefix:
        yield "other text", line.replace(prefix[1], prefix[1] + "x")
    hint = re.search(r"hsizetype=\"(\w+)\"", line)
    if hint:
        yield "exchanged", line.replace(hint[1], "Maximum")


DECLARATION = re.compile(r"(const )?(auto|int|bool|q?u?int\d*|[A-Z]\w*(<.*>)?)( | \*| &)(const )?\w+"
                         r"( =|;|\()|using |class |struct |template |typedef ")


def statement_at(lines, index):
    """The lines of the statement that begins here, or none."""
    text = lines[index].strip()
    before = next((l.strip() for l in reversed(lines[:index]) if l.strip()), "")
    if not text or text.startswith(("return", "//", "#", "}", ":", ",", "Q_UNUSED", "if ", "for ")):
        return []
    if not lines[index].startswith("    ") or DECLARATION.match(text) or "= default" in text:
        return []
    if not before.endswith((";", "{", "}", ")", "else")) and not before.startswith("//"):
        return []
    for end in range(index, min(index + 4, len(lines))):
        if "{" in lines[end]:
            return []
        if lines[end].rstrip().endswith(";"):
            return lines[index:end + 1]
    return []


def swappable_statements(line, following):
    return all(re.fullmatch(r"    +[^\s{}#/].*;", l) and not re.match(r"\s*(return|break|using)", l)
               for l in (line, following))


def code_mutants(path, lines):
    for number, line in enumerate(lines):
        if re.match(r"\s*(//|/?\*|#)", line):
            continue
        for kind, new in code_changes(line):
            yield Mutant(path, number + 1, kind, line, new)
        statement = statement_at(lines, number)
        if statement:
            yield Mutant(path, number + 1, "dropped", "\n".join(statement), "    ;")
        following = lines[number + 1] if number + 1 < len(lines) else ""
        if swappable_statements(line, following):
            yield Mutant(path, number + 1, "order", f"{line}\n{following}", f"{following}\n{line}")


def header_mutants(path, lines):
    """Changes of a visible order in a public header: of slots, signals, virtual functions and fields."""
    section = ""
    for number, (line, following) in enumerate(zip(lines, lines[1:])):
        if re.match(r"\w+( \w+)?:$|Q_\w+:$", line):
            section = line
        listed = re.search("slots|SLOTS|SIGNALS", section)
        pair = (line, following)
        if all(re.fullmatch(r"    [^\s/*].*;", l) for l in pair) and (
                listed or all("virtual" in l or "override" in l for l in pair)
                or all(re.search(r"m_\w+;", l) for l in pair)):
            yield Mutant(path, number + 1, "order", f"{line}\n{following}", f"{following}\n{line}")


def form_mutants(path, lines):
    for number, line in enumerate(lines):
        for kind, new in form_changes(line):
            yield Mutant(path, number + 1, kind, line, new)


def mutants_of(path):
    lines = (ROOT / path).read_text().split("\n")
    if path.suffix in (".ui", ".qrc"):
        return form_mutants(path, lines)
    if path.suffix == ".cpp" or path.name in CODE_IN_HEADERS:
        return code_mutants(path, lines)
    return header_mutants(path, lines) if is_public_header(path) else []


def tracked(*folders):
    # Whoever runs the tests need not be the owner of the checkout.
    done = subprocess.run(["git", "-c", f"safe.directory={ROOT}", "ls-files", "-z", "--", *folders],
                          cwd=ROOT, check=True, capture_output=True, text=True)
    return [Path(name) for name in done.stdout.split("\0") if name]


def all_mutants(subject):
    sources = [p for p in tracked(*subject.folders) if p.suffix in (".cpp", ".h", ".ui", ".qrc")]
    return [m for path in sources for m in mutants_of(path)]


def is_public_header(path):
    return (path.suffix == ".h" and path.name.startswith("ry")
            and not path.name.endswith("private.h"))


def digest(*texts):
    return hashlib.sha256(repr(texts).encode()).digest()


def sample(mutants, count):
    """About count mutants: from each file its share, but at least two. They are the same in each
    run, even if other lines of the file change."""
    by_path = collections.defaultdict(list)
    for mutant in mutants:
        by_path[mutant.path].append(mutant)
    chosen = []
    for path in sorted(by_path):
        of_path = sorted(by_path[path], key=lambda m: digest(m.kind, m.old, m.new))
        share = max(2, round(count * len(of_path) / len(mutants)))
        chosen += sorted(of_path[:share], key=lambda m: m.line)
    return chosen


def read_equivalent(file):
    """The changes in the list, like identity()."""
    known = []
    for block in re.split(r"\n\s*\n", file.read_text()):
        rows = [r.strip() for r in block.split("\n") if r.strip() and not r.startswith("#")]
        if len(rows) not in (0, 4):
            sys.exit(f"{file.name}: not a file, a line, a changed line and a reason:\n{block}")
        if rows:
            known.append((rows[0], squeezed(rows[1]), squeezed(rows[2])))
    return known


def squeezed(text):
    return " ".join(text.split())


def identity(mutant):
    """The same wherever the line is in its file, and however it is indented."""
    return str(mutant.path), squeezed(mutant.old), squeezed(mutant.new)


def check_explained(subject, mutants):
    """Returns the explained changes. Ends with a message if an entry fits no line of the sources or is
    there twice."""
    known = read_equivalent(subject.equivalent)
    possible = {identity(m) for m in mutants}
    wrong = [entry for entry in known if entry not in possible or known.count(entry) > 1]
    if wrong:
        sys.exit(f"{subject.equivalent.name}: no such change of the sources, or there twice:\n\n"
                 + "\n\n".join("\n".join(entry) for entry in wrong))
    return known


class Tree:
    """A copy of the sources with a separate build."""

    def __init__(self, number, subject, with_headers):
        self.subject = subject
        self.source = WORK / f"tree{number}"
        self.build = WORK / f"build{number}"
        for name in tracked():
            target = self.source / name
            target.parent.mkdir(parents=True, exist_ok=True)
            # Unchanged files keep their times, so only files that an aborted run changed are rebuilt.
            if (ROOT / name).is_file() and not (target.exists() and
                                                filecmp.cmp(ROOT / name, target, shallow=False)):
                shutil.copy(ROOT / name, target)
        self.run("cmake", "-G", "Ninja", "-S", self.source, "-B", self.build,
                 "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS=-O0 -g0 -w",
                 "-DRYCUSTOMIZEDDIALOG_BUILD_EXAMPLES=OFF",
                 # The tests need no new link when the library changes.
                 "-DCMAKE_LINK_DEPENDS_NO_SHARED=ON", check=True)
        self.run("ninja", "-C", self.build, check=True)
        listed = json.loads(self.run("ctest", "--show-only=json-v1", check=True).stdout)
        self.commands = {t["name"]: t["command"] for t in listed["tests"]}
        self.tests = [t for t in self.commands
                      if not t.startswith(("tst_package", "tst_sources")) and self.counts(t)]
        if not self.passes(self.tests):
            sys.exit("The tests fail before anything is broken:\n" + self.output)
        if with_headers and not self.keeps_contract():
            sys.exit("tools/check-abi.sh fails before anything is broken:\n" + self.output)

    def counts(self, test):
        if self.subject is LIBRARY:
            return self.folder(test) != "kit"
        if self.folder(test) == "kit":
            return True
        programs = [Path(argument) for argument in self.commands[test]]
        return any(program.is_file() and b"libRyToolBarKit.so" in program.read_bytes()
                   for program in programs)

    def run(self, *command, check=False):
        done = subprocess.run([str(c) for c in command], cwd=self.build if self.build.exists()
                              else ROOT, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, text=True, errors="replace")
        if check and done.returncode:
            sys.exit(done.stdout)
        return done

    def passes(self, tests):
        if not tests:
            return True
        pattern = "^(" + "|".join(tests) + ")$"
        done = self.run("ctest", "--stop-on-failure", "--timeout", TEST_TIMEOUT, "-R", pattern)
        self.output = done.stdout
        return done.returncode == 0

    def keeps_contract(self):
        done = self.run(self.source / "tools" / "check-abi.sh")
        self.output = done.stdout
        return done.returncode == 0

    def rounds(self, path):
        """The tests, the fastest and most likely to fail first."""
        slow = [t for t in self.tests
                if re.search("_damage|_findings|_window|_titlebar|_spoken|^operations", t)]
        own = [t for t in self.tests if t not in slow and path.parts[0] == self.folder(t)]
        rest = [t for t in self.tests if t not in slow and t not in own]
        # The manager does not use windows, and except for the kit nothing else uses saved bytes.
        worth = {"toolbarmanager": "damage|findings|operations",
                 "kit": ""}.get(path.parts[0], "window|operations")
        return own, rest, [t for t in slow if re.search(worth, t)]

    def folder(self, test):
        """That of the program or script which it runs, and not of one that only starts others."""
        found = re.search(r"/tests/(?!support/)(\w+)/", " ".join(self.commands[test]))
        return found[1] if found else ""

    def verdict(self, mutant):
        target = self.source / mutant.path
        original = target.read_text()
        lines = original.split("\n")
        span = mutant.old.count("\n") + 1
        lines[mutant.line - 1:mutant.line - 1 + span] = mutant.new.split("\n")
        try:
            target.write_text("\n".join(lines))
            # The tests need not notice another order of slots or fields. They take long to build.
            if is_public_header(mutant.path):
                if self.run("ninja", "-C", self.build, self.subject.target).returncode:
                    return "does not compile"
                if not self.keeps_contract():
                    return "caught by tools/check-abi.sh"
            if self.run("ninja", "-C", self.build).returncode:
                return "does not compile"
            for tests in self.rounds(mutant.path):
                if not self.passes(tests):
                    failed = re.search(r"\d+ - (\S+) \(", self.output)
                    return "caught by " + (failed[1] if failed else "?")
            return "SURVIVED"
        finally:
            target.write_text(original)


def check(subject, mutants, jobs):
    trees = queue.Queue()
    with_headers = any(is_public_header(m.path) for m in mutants)
    for number in range(jobs):
        trees.put(Tree(number, subject, with_headers))
    done = []

    def judge(mutant):
        tree = trees.get()
        try:
            return mutant, tree.verdict(mutant)
        finally:
            trees.put(tree)

    start = time.monotonic()
    with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
        for mutant, verdict in pool.map(judge, mutants):
            done.append((mutant, verdict))
            print(f"[{len(done)}/{len(mutants)} {time.monotonic() - start:.0f} s] "
                  f"{mutant.path}:{mutant.line} {mutant.kind}: {verdict}", flush=True)
    return done


def report(done, explained):
    """Prints the results, and returns whether enough changes were caught. An explained change in
    done is treated as explained only if no test caught it."""
    counted = [(m, v) for m, v in done if v != "does not compile"]
    survivors = [m for m, v in counted if v == "SURVIVED"]
    missed = [m for m in survivors if m not in explained]
    for mutant in missed:
        print(f"\nNot caught: {mutant.path}:{mutant.line} ({mutant.kind})\n"
              f"- {mutant.old.strip()}\n+ {mutant.new.strip()}")
    judged = len(counted) - len(survivors) + len(missed)
    share = 1 - len(missed) / judged if judged else 0
    print(f"\n{len(counted)} places in {len({m.path for m, _ in counted})} files broken "
          f"({len(done) - len(counted)} more did not compile), {judged - len(missed)} caught, "
          f"{len(missed)} not caught: {100 * share:.1f} % of those that matter were caught. "
          f"{len(explained)} have no visible effect; "
          f"{len(survivors) - len(missed)} of them were tried.")
    return judged > 0 and 1 - share <= ALLOWED


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("--kit", action="store_true", help="the kit, not the library")
    parser.add_argument("--count", type=int, default=200, help="number of places, roughly (200)")
    parser.add_argument("--all", action="store_true", help="all known places")
    parser.add_argument("--jobs", type=int, default=os.cpu_count())
    parser.add_argument("--only", help="FILE or FILE:LINE")
    parser.add_argument("--explained", action="store_true",
                        help="also make those that are explained")
    parser.add_argument("--list", action="store_true", help="only print the changes")
    parser.add_argument("--check-explained", action="store_true",
                        help="only check that the explained changes of both are possible")
    arguments = parser.parse_args()

    if arguments.check_explained:
        counts = [len(check_explained(s, all_mutants(s))) for s in (LIBRARY, KIT)]
        print(f"{counts[0]} explained changes of the library and {counts[1]} of the kit are possible.")
        return 0
    subject = KIT if arguments.kit or str(arguments.only).startswith("kit/") else LIBRARY
    mutants = all_mutants(subject)
    known = check_explained(subject, mutants)
    if arguments.only:
        mutants = [m for m in mutants
                   if arguments.only in (str(m.path), f"{m.path}:{m.line}")]
    elif not arguments.all:
        mutants = sample(mutants, arguments.count)
    explained = {m for m in mutants if identity(m) in known}
    if not arguments.explained:
        mutants = [m for m in mutants if m not in explained]
    if arguments.list:
        for m in mutants:
            print(f"{m.path}:{m.line} {m.kind}\n- {m.old.strip()}\n+ {m.new.strip()}")
        print(len(mutants))
        return 0
    WORK.mkdir(parents=True, exist_ok=True)
    return 0 if report(check(subject, mutants, arguments.jobs), explained) else 1


if __name__ == "__main__":
    sys.exit(main())
