# SPDX-License-Identifier: MIT
"""A program as assistive technology sees it: from outside, through the accessibility bus."""

import os
import subprocess

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib

from desktop import Rect
from waiting import PATIENCE, NotSo, deliver_events, settled, wait_for

EVENTS = ["object:state-changed:focused", "object:state-changed:showing"]


class Widget:
    """One accessible object. Every question goes to the program; nothing is remembered."""

    def __init__(self, accessible):
        self._accessible = accessible

    @property
    def role(self):
        return self._accessible.get_role_name()

    @property
    def name(self):
        return self._accessible.get_name()

    @property
    def text(self):
        return Atspi.Text.get_text(self._accessible, 0, -1)

    @property
    def rect(self):
        extents = Atspi.Component.get_extents(self._accessible, Atspi.CoordType.SCREEN)
        return Rect(extents.x, extents.y, extents.width, extents.height)

    @property
    def process(self):
        return self._accessible.get_process_id()

    def has(self, *states):
        held = {state.value_nick for state in self._accessible.get_state_set().get_states()}
        return held.issuperset(states)

    def is_showing(self):
        return self.has("showing") and not self.rect.is_empty()

    def is_gone(self):
        try:
            return not self.is_showing()
        except GLib.Error:
            return True

    def children(self):
        return list(self._children(range(self._accessible.get_child_count())))

    def children_from_last(self):
        """Yields the children one by one, only as far as the caller needs them."""
        return self._children(reversed(range(self._accessible.get_child_count())))

    def showing(self, role):
        """The visible widgets of this role inside this one."""
        found = []
        for child in self.children():
            if child.is_showing():
                found += [child] if child.role == role else []
                found += child.showing(role)
        return found

    def find(self, role, name):
        """The only visible widget of this role and name inside this one."""
        def named():
            return [widget for widget in self.showing(role) if plain(widget.name) == name]

        return wait_for(f'there is not one {role} "{name}"', named, lambda all: len(all) == 1)[0]

    def _children(self, indexes):
        for index in indexes:
            child = self._accessible.get_child_at_index(index)
            if child:
                yield Widget(child)

    def outline(self, indent=0):
        """Everything inside this widget as lines of text, to analyze a failure."""
        try:
            place = ",".join(map(str, self.rect)) if self.has("visible") else "hidden"
            states = [state for state in ("active", "focused", "selected") if self.has(state)]
            lines = [" ".join([f'{" " * indent}{self.role} "{self.name}"', place, *states])]
            for child in self.children():
                lines += child.outline(indent + 2)
            return lines
        except GLib.Error as error:
            return [f'{" " * indent}{error.message}']


class Application:
    """A program that runs as a separate process."""

    def __init__(self, command, log):
        environment = dict(os.environ, QT_ACCESSIBILITY="1", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        self._focused = None
        self._popup = None
        self._listener = Atspi.EventListener.new(self._take_event)
        for event in EVENTS:
            self._listener.register(event)
        with open(log, "ab") as output:
            self._process = subprocess.Popen(command, stdout=output, stderr=output,
                                             env=environment)
        try:
            self.root = wait_for("the program does not answer", self._find_root)
        except NotSo:
            self.stop()
            raise

    def window(self, role, name=None):
        """The active window, once it is the only one of this role and in its place."""
        def active():
            return [window for window in self.root.children() if window.role == role
                    and window.has("active") and name in (None, window.name)]

        window = wait_for(f"no {role} is active", active, lambda all: len(all) == 1)[0]
        settled(f"the place of the {role}", lambda: window.rect)
        return window

    def windows(self, role):
        return [window for window in self.root.children()
                if window.role == role and window.has("showing")]

    def last_focused(self):
        """The widget or menu entry that got the keyboard last, even one outside the tree."""
        return wait_for("nothing has got the keyboard", lambda: self._focused)

    def popup_after(self, gesture):
        """The popup menu that a gesture opens."""
        deliver_events()
        self._popup = None
        gesture()
        return wait_for("no menu opens", lambda: self._popup,
                        lambda popup: popup and popup.is_showing())

    def wait_for_end(self):
        try:
            status = self._process.wait(PATIENCE)
        except subprocess.TimeoutExpired:
            raise NotSo("the program does not end") from None
        if status != 0:
            raise NotSo(f"the program ended with status {status}")
        for event in EVENTS:
            self._listener.deregister(event)

    def stop(self):
        """Ends the program if it still runs."""
        if self._process.poll() is None:
            self._process.terminate()
            self._process.wait()

    def _find_root(self):
        for program in Widget(Atspi.get_desktop(0)).children():
            if program.process == self._process.pid:
                return program
        if self._process.poll() is not None:
            raise NotSo(f"the program ended with status {self._process.returncode}")
        return None

    def _take_event(self, event):
        try:
            if event.detail1 != 1:
                return
            if event.type.endswith("focused"):
                self._focused = Widget(event.source)
            elif event.source.get_role_name() == "popup menu":
                self._popup = Widget(event.source)
        except GLib.Error:
            pass  # gone already


def plain(text):
    """The visible text of a command, without the mark of its key and without the dots."""
    marker = "\0"
    text = text.replace("&&", marker).replace("&", "").replace(marker, "&")
    return text.removesuffix("…").removesuffix("...")


Atspi.set_timeout(10000, 20000)
# Answers are always fresh.
Atspi.get_desktop(0).set_cache_mask(Atspi.Cache.NONE)
