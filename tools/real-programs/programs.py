# SPDX-License-Identifier: MIT
"""The programs, and what a user has to know of each."""

import os
from dataclasses import dataclass, field
from typing import Callable, Optional

FLOATING, LEFT, BOTTOM = 0, 1, 8  # where toolbars can be dragged to

def nothing(*_):
    """For a program that needs no such step."""


def from_menu(*path):
    return lambda run: run.choose(*path)


def by_key(key):
    return lambda run: run.press(key)


def from_context_menu(title):
    """Shows or hides a toolbar with the context menu that every main window has."""
    def toggle(run):
        run.right_click_menu_bar()
        run.choose_from_popup(title)
    return toggle


def by_button(text):
    return lambda run: run.click_button(text)


def closes(window):
    """Closes a message that comes after each start."""
    return lambda run: run.close_message(window)


@dataclass
class What:
    """One program. Texts are those that the user sees, without marks of keys."""

    name: str
    qt: int
    command: list
    window: str  # its class
    tool_bar: str  # the object name, or the class if it has none
    action: tuple  # its category and text, not on that toolbar, and harmless when it is triggered
    other_action: tuple
    toggle_tool_bar: Optional[Callable]  # none if only the program's settings can hide it
    full_screen: Optional[tuple] = None  # how to enter and to leave it
    environment: dict = field(default_factory=dict)
    fill_home: Callable = nothing
    after_start: Callable = nothing
    place_of_tool_bar: Optional[tuple] = None  # if the name does not do
    keeps_hidden: bool = True  # no, if it hides toolbars itself and forgets it
    drag_to: Optional[int] = LEFT  # None if the program has locked its toolbars
    status: int = 0  # with which it always ends
    close: Callable = by_key("alt+F4")

    def __post_init__(self):
        self.place_of_tool_bar = self.place_of_tool_bar or ("name", self.tool_bar)


def write(*path):
    """Writes a file into the home folder: the parts of its path, then its text."""
    def fill(home):
        *parts, text = path
        file = os.path.join(home, *parts)
        os.makedirs(os.path.dirname(file), exist_ok=True)
        with open(file, "w", encoding="utf-8") as output:
            output.write(text)
    return fill


BY_F11 = (by_key("F11"),) * 2

PROGRAMS = [
    What("texworks", 5, ["texworks"], "TeXDocumentWindow", "toolBar_edit",
         ("Format", "Wrap Lines"), ("Search", "Find Again"),
         from_menu("Window", "Show", "Edit Toolbar")),
    What("featherpad", 5, ["featherpad", "--standalone"], "FeatherPad::FPwin", "mainToolBar",
         ("Options", "Line Numbers"), ("Options", "Wrap Lines"), None, BY_F11, drag_to=None),
    What("juffed", 5, ["juffed"], "JuffMW", "mainToolBar",
         ("View", "Wrap words"), ("Search", "Find next"),
         from_context_menu("Main toolbar"), BY_F11),
    What("sqlitebrowser", 5, ["sqlitebrowser"], "MainWindow", "toolbarDB",
         ("View", "Plot"), ("View", "Remote"), from_menu("View", "DB Toolbar")),
    What("qgit", 5, ["qgit"], "MainImpl", "toolBar",
         ("Edit", "Find next"), ("Help", "About QGit"), from_context_menu("Toolbar")),
    What("djview4", 5, ["djview4"], "QDjView", "toolbar",
         ("Settings", "Show Statusbar"), ("Settings", "Preferences"), by_key("F10"),
         drag_to=BOTTOM),
    What("photoflare", 5, ["photoflare"], "MainWindow", "toolBar",
         ("View", "Zoom In"), ("View", "Zoom Out"), from_menu("View", "Filterbar"),
         keeps_hidden=False),
    What("qpdfview", 5, ["qpdfview"], "qpdfview::MainWindow", "viewToolBar",
         ("View / Docks", "Outline"), ("File", "Open"), from_menu("View", "Tool bars", "View"),
         BY_F11),
    What("glogg", 5, ["glogg"], "MainWindow", "QToolBar",
         ("View", "Follow File"), ("View", "Matches overview"), from_context_menu("Toolbar"),
         drag_to=None),
    What("qpwgraph", 6, ["qpwgraph"], "qpwgraph_form", "graphToolbar",
         ("Edit", "Select All"), ("Edit", "Select Invert"), from_menu("View", "Toolbar", "Graph"),
         # On the left, its buttons lose their texts, but only until the next start.
         drag_to=BOTTOM, close=from_menu("Graph", "Quit")),
    What("retext", 6, ["retext"], "ReTextWindow", "QToolBar",
         ("Edit", "Move line up"), ("Edit", "Find text"), from_context_menu("File toolbar"),
         (by_button("Fullscreen mode"),) * 2,
         place_of_tool_bar=("title", "File toolbar")),
    What("qxgedit", 6, ["qxgedit"], "qxgeditMainForm", "ToolBar",
         ("View", "Statusbar"), ("View", "Options"), from_menu("View", "Toolbar"),
         # Its window has no room for another line of toolbars.
         drag_to=FLOATING),
    # Nothing plays here, but it works: at each start it says that it has found no server.
    What("qsampler", 6, ["qsampler"], "QSampler::MainForm", "editToolbar",
         ("View", "Statusbar"), ("View", "Options"), from_menu("View", "Toolbar"),
         after_start=closes("QMessageBox")),
]
