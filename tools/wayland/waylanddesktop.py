# SPDX-License-Identifier: MIT
"""The screen, the pointer and the keyboard of a sway session."""

import os
import time

from desktop import Desktop, Point, output_of
from devices import Devices

# As in sway.conf.
SCREEN = Point(1280, 860)
# Long enough to show the pressed button: Qt 6.4.2 can crash if it closes a window that it has just painted.
CLICK = 0.05


class WaylandDesktop(Desktop):
    """A Wayland session of sway, with devices of our own."""

    def __init__(self):
        self._devices = Devices(os.environ["WAYLAND_DISPLAY"], *SCREEN)
        self._place = Point(*(length // 2 for length in SCREEN))

    # --- Pointer and keys ---

    def pointer(self):
        return self._place

    def move_along(self, points):
        for self._place in points:
            self._devices.move(*self._place)
            time.sleep(0.008)

    def press_button(self, button, times=1):
        if button in (self.WHEEL_UP, self.WHEEL_DOWN):
            self._devices.turn_wheel(-1 if button == self.WHEEL_UP else 1)
            return
        for _ in range(times):
            self._devices.hold(button)
            time.sleep(CLICK)
            self._devices.release(button)

    def hold_button(self, button):
        self._devices.hold(button)

    def release_button(self, button):
        self._devices.release(button)

    def press(self, *keys):
        for key in keys:
            self._devices.press(*key.split("+"))

    def type(self, text):
        for letter in text:
            shift = ["shift"] if letter.isupper() else []
            self._devices.press(*shift, "space" if letter == " " else letter.lower())

    # --- Pictures ---

    def picture_of_step(self, path):
        """Takes no picture, to save time. A failure is still worth one."""

    def picture_of_window(self, rect, path):
        """Takes none either."""

    def screen(self):
        return output_of("grim", "-t", "ppm", "-")
