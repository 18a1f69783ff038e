# SPDX-License-Identifier: MIT
"""Drags in a Wayland session as a program asks for them, started by drags.sh."""

import os
import subprocess
import sys
import time

from devices import Devices

# As in sway.conf.
SCREEN = (1280, 860)
STEPS = 20


def drag(devices, start, end):
    """In small steps, as a hand does."""
    devices.move(*start)
    devices.hold(1)
    for step in range(1, STEPS + 1):
        devices.move(*(begin + (finish - begin) * step // STEPS for begin, finish in zip(start, end)))
        time.sleep(0.02)
    devices.release(1)


def main(program):
    devices = Devices(os.environ["WAYLAND_DISPLAY"], *SCREEN)
    with subprocess.Popen([program], stdout=subprocess.PIPE, text=True) as running:
        for line in running.stdout:
            print(line, end="", flush=True)
            places = line.split()
            if len(places) == 4 and all(place.isdigit() for place in places):
                x, y, to_x, to_y = map(int, places)
                drag(devices, (x, y), (to_x, to_y))
    return running.returncode


sys.exit(main(sys.argv[1]))
