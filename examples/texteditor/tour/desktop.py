# SPDX-License-Identifier: MIT
"""The screen, the pointer and the keyboard."""

import subprocess
from typing import NamedTuple

from waiting import settled, wait_for


class Point(NamedTuple):
    x: int
    y: int


class Rect(NamedTuple):
    x: int
    y: int
    width: int
    height: int

    @property
    def center(self):
        return Point(self.x + self.width // 2, self.y + self.height // 2)

    def is_empty(self):
        return self.width <= 0 or self.height <= 0

    def contains(self, other):
        return (self.x <= other.x and other.x + other.width <= self.x + self.width
                and self.y <= other.y and other.y + other.height <= self.y + self.height)

    def relative_to(self, other):
        return Rect(self.x - other.x, self.y - other.y, self.width, self.height)


class Desktop:
    """An X display, driven through its own test interface like a user's devices would."""

    LEFT, RIGHT, WHEEL_UP, WHEEL_DOWN = 1, 3, 4, 5

    def __init__(self):
        wait_for("no window manager runs", self._has_window_manager)

    # --- Pointer and keys ---

    def point_at(self, target):
        """Moves the pointer to a point in small steps, as a hand does."""
        start, steps, moves = self._pointer(), 12, []
        for step in range(1, steps + 1):
            x = start.x + (target.x - start.x) * step // steps
            y = start.y + (target.y - start.y) * step // steps
            moves += ["mousemove", x, y, "sleep", 0.008]
        self._xdotool(*moves)

    def click(self, target, button=LEFT):
        self.point_at(target)
        self._xdotool("click", button)

    def double_click(self, target):
        self.point_at(target)
        self._xdotool("click", "--repeat", 2, "--delay", 40, self.LEFT)

    def turn_wheel(self, button):
        self._xdotool("click", button)

    def drag(self, start, target):
        self.point_at(start)
        self._xdotool("mousedown", self.LEFT)
        self.point_at(target)
        self._xdotool("mouseup", self.LEFT)

    def press(self, *keys):
        self._xdotool("key", *keys)

    def type(self, text):
        self._xdotool("type", "--delay", 30, text)

    # --- Pictures ---

    def picture(self, path):
        """Saves the whole screen, with an arrow at the place of the pointer."""
        x, y = self._pointer()
        arrow = [(0, 0), (0, 17), (4, 13), (7, 19), (10, 18), (7, 12), (12, 12)]
        outline = " ".join(f"{x + right},{y + down}" for right, down in arrow)
        self._save(path, "-fill", "white", "-stroke", "black", "-draw", f"polygon {outline}")

    def picture_of_window(self, rect, path):
        """Saves the active window, whose inside is rect, with its frame but without the pointer."""
        window = self._xdotool("getactivewindow").strip()
        extents = self._xprop("-id", window, "_NET_FRAME_EXTENTS").partition("=")[2].split(",")
        left, right, top, bottom = (int(extent) for extent in extents)
        width, height = left + rect.width + right, top + rect.height + bottom
        crop = f"{width}x{height}+{rect.x - left}+{rect.y - top}"
        self._save(path, "-crop", crop, "+repage")

    def _save(self, path, *drawing):
        # Programs paint after they have answered.
        screen = settled("the screen", self._screen)
        subprocess.run(["convert", "ppm:-", *drawing, path], input=screen, check=True)

    @staticmethod
    def _screen():
        return subprocess.run(["import", "-window", "root", "-depth", "8", "ppm:-"], check=True,
                              capture_output=True).stdout

    # --- X ---

    def _pointer(self):
        location = self._xdotool("getmouselocation", "--shell")
        values = dict(line.split("=") for line in location.split())
        return Point(int(values["X"]), int(values["Y"]))

    def _has_window_manager(self):
        return "window id" in self._xprop("-root", "_NET_SUPPORTING_WM_CHECK")

    @staticmethod
    def _xdotool(*words):
        return _output_of("xdotool", *words)

    @staticmethod
    def _xprop(*words):
        return _output_of("xprop", *words)


def _output_of(*words):
    return subprocess.run([str(word) for word in words], check=True, capture_output=True,
                          text=True).stdout
