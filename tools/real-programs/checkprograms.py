# SPDX-License-Identifier: MIT
"""Runs the checks of the programs: checkprograms.py SCRATCH OUTPUT QT [PROGRAM...]"""

import os
import sys

from checks import Checks
from desktop import XDesktop
from programs import PROGRAMS


def main(scratch, output, qt, *names):
    known = {what.name: what for what in PROGRAMS if what.qt == int(qt)}
    unknown = [name for name in names if name not in known]
    if unknown:
        print(f"unknown: {', '.join(unknown)}; known with Qt {qt}: {', '.join(known)}")
        return 2
    desktop = XDesktop()
    failed = []
    for name in names or known:
        folder = os.path.join(scratch, name)
        os.mkdir(folder)
        checks = Checks(desktop, known[name], folder, output)
        checks.run()
        if checks.failures:
            failed.append(name)
    if failed:
        print(f"The kit does not hold in: {', '.join(failed)}")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
