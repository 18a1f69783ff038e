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
    """What a user does with pointer and keyboard, and what there is to see.

    A subclass has the devices: pointer(), move_along(), press_button(), hold_button(),
    release_button(), press(), type(), screen() and frame_around().
    """

    LEFT, RIGHT, WHEEL_UP, WHEEL_DOWN = 1, 3, 4, 5

    # --- Pointer ---

    def point_at(self, target):
        """Moves the pointer to a point in small steps, as a hand does."""
        start, steps = self.pointer(), 12
        self.move_along([Point(start.x + (target.x - start.x) * step // steps,
                               start.y + (target.y - start.y) * step // steps)
                         for step in range(1, steps + 1)])

    def click(self, target, button=LEFT):
        self.point_at(target)
        self.press_button(button)

    def double_click(self, target):
        self.point_at(target)
        self.press_button(self.LEFT, times=2)

    def turn_wheel(self, button):
        self.press_button(button)

    def drag(self, start, target):
        self.point_at(start)
        self.hold_button(self.LEFT)
        self.point_at(target)
        self.release_button(self.LEFT)

    # --- Pictures ---

    def picture_of_step(self, path):
        self.picture(path)

    def picture(self, path):
        """Saves the whole screen, with an arrow at the place of the pointer."""
        x, y = self.pointer()
        arrow = [(0, 0), (0, 17), (4, 13), (7, 19), (10, 18), (7, 12), (12, 12)]
        outline = " ".join(f"{x + right},{y + down}" for right, down in arrow)
        self._save(path, "-fill", "white", "-stroke", "black", "-draw", f"polygon {outline}")

    def picture_of_window(self, rect, path):
        """Saves the active window, whose inside is rect, with its frame but without the pointer."""
        left, right, top, bottom = self.frame_around()
        width, height = left + rect.width + right, top + rect.height + bottom
        crop = f"{width}x{height}+{rect.x - left}+{rect.y - top}"
        self._save(path, "-crop", crop, "+repage")

    def _save(self, path, *drawing):
        # Programs paint after they have answered.
        screen = settled("the screen", self.screen)
        subprocess.run(["convert", "ppm:-", *drawing, path], input=screen, check=True)


class XDesktop(Desktop):
    """An X display, driven through its own test interface."""

    def __init__(self):
        wait_for("no window manager runs", self._has_window_manager)

    # --- Pointer and keys ---

    def pointer(self):
        location = self._xdotool("getmouselocation", "--shell")
        values = dict(line.split("=") for line in location.split())
        return Point(int(values["X"]), int(values["Y"]))

    def move_along(self, points):
        moves = []
        for point in points:
            moves += ["mousemove", point.x, point.y, "sleep", 0.008]
        self._xdotool(*moves)

    def press_button(self, button, times=1):
        self._xdotool("click", "--repeat", times, "--delay", 40, button)

    def hold_button(self, button):
        self._xdotool("mousedown", button)

    def release_button(self, button):
        self._xdotool("mouseup", button)

    def press(self, *keys):
        self._xdotool("key", *keys)

    def type(self, text):
        self._xdotool("type", "--delay", 30, text)

    # --- Pictures ---

    def screen(self):
        return output_of("import", "-window", "root", "-depth", "8", "ppm:-")

    def frame_around(self):
        """The widths of the active window's frame: left, right, top, bottom."""
        extents = self._xprop("-id", self.active_window(), "_NET_FRAME_EXTENTS").partition("=")[2].split(",")
        return [int(extent) for extent in extents]

    # --- Windows ---

    def active_window(self):
        return self._xdotool("getactivewindow").strip()

    def minimize(self, window):
        self._xdotool("windowminimize", window)

    def activate(self, window):
        self._xdotool("windowactivate", window)

    # --- X ---

    def _has_window_manager(self):
        return "window id" in self._xprop("-root", "_NET_SUPPORTING_WM_CHECK")

    @staticmethod
    def _xdotool(*words):
        return output_of("xdotool", *words).decode()

    @staticmethod
    def _xprop(*words):
        return output_of("xprop", *words).decode()


def output_of(*words):
    return subprocess.run([str(word) for word in words], check=True, capture_output=True).stdout
