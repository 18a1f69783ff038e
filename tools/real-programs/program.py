# SPDX-License-Identifier: MIT
"""A program with the library that attaches a kit and answers questions."""

import json
import os
import socket
import subprocess

from desktop import Desktop, Point, Rect
from programs import BOTTOM, FLOATING, LEFT
from waiting import PATIENCE, NotSo, settled, wait_for

DIALOG = "RyCustomizedDialog"
MINIMIZED = 1


class Program:
    """One run of a program, from its start to its end."""

    def __init__(self, desktop, what, folder, log, with_kit):
        self._desktop = desktop
        self._what = what
        self._socket = os.path.join(folder, "socket")
        if os.path.exists(self._socket):
            os.remove(self._socket)
        environment = dict(os.environ, **what.environment, LD_PRELOAD=os.environ["RY_LIBRARY"],
                           RY_KIT_SOCKET=self._socket, HOME=os.path.join(folder, "home"))
        if with_kit:
            environment["RY_KIT_SETTINGS"] = os.path.join(folder, "kit.ini")
        with open(log, "ab") as output:
            self._process = subprocess.Popen(what.command, stdout=output, stderr=output,
                                             env=environment, cwd=environment["HOME"])
        try:
            wait_for("no main window appears", self._find_window)
            what.after_start(self)
            self.report()
        except NotSo:
            self.stop()
            raise

    # --- What there is to see ---

    def report(self):
        """The report of the main window, once it no longer changes."""
        return settled("the window", self._find_window)

    def widgets(self):
        return self._ask("widgets")["widgets"]

    def widget(self, window=None, **wanted):
        """The only visible widget with these values, in a window of this class."""
        def fitting():
            return [widget for widget in self.widgets()
                    if window in (None, widget["windowClass"])
                    and all(plain(widget[key]) == value for key, value in wanted.items())]

        return wait_for(f"there is not one {wanted}", fitting, lambda all: len(all) == 1)[0]

    def has_dialog(self):
        return any(widget["class"] == DIALOG for widget in self.widgets())

    # --- What a user does ---

    def click(self, target, button=Desktop.LEFT):
        self._desktop.click(Rect(*target["rect"]).center, button)

    def press(self, *keys):
        self._desktop.press(*keys)

    def type(self, text):
        self._desktop.type(text)

    def choose(self, *path):
        """Clicks on an entry of the menu bar, given the texts on the way to it."""
        first, second, *others = path
        self.click(self._part("QMenuBar", first))
        self._move_to(self._part("QMenu", second), sideways_first=False)
        for text in others:
            self._move_to(self._part("QMenu", text), sideways_first=True)
        self._desktop.press_button(Desktop.LEFT)

    def right_click_menu_bar(self):
        """Right of the last menu."""
        bar = next(widget for widget in self.widgets() if "QMenuBar" in widget["kinds"])
        left, top, width, height = bar["rect"]
        self._desktop.click(Point(left + width - 8, top + height // 2), Desktop.RIGHT)

    def drag_tool_bar(self, key, value, place):
        """Drags a toolbar by its handle to a side of the window, or to its middle."""
        x, y, width, height = self.report()["geometry"]
        bottom = min([y + height] + [widget["rect"][1] for widget in self.widgets()
                                     if "QStatusBar" in widget["kinds"]])
        targets = {FLOATING: Point(x + width // 2, y + height // 2),
                   LEFT: Point(x + 10, y + height // 2), BOTTOM: Point(x + 100, bottom - 20)}
        left, top, _, height = self._tool_bar(key, value)["rect"]
        self._desktop.drag(Point(left + 4, top + height // 2), targets[place])

    def click_on_tool_bar(self, title, index):
        """Clicks on a button of the toolbar with this title."""
        self.click(self._tool_bar("title", title)["parts"][index])

    def click_button(self, text):
        button = self.widget(**{"class": "QToolButton", "text": text})
        self.click(button)

    def choose_from_popup(self, text):
        self.click(self._part("QMenu", text))

    def open_dialog(self):
        self._ask("customize")
        wait_for("the dialog does not open", self.has_dialog)
        self.activate(DIALOG)
        return ToolBarDialog(self)

    def activate(self, window):
        wait_for(f"no {window} is active",
                 lambda: any(widget["windowClass"] == window and widget["active"]
                             for widget in self.widgets()))

    def click_on_title(self):
        """Makes the main window the active one, rather than a floating toolbar."""
        x, y, width, _ = self.report()["geometry"]
        self._desktop.click(Point(x + width // 2, y - 8))

    def picture(self, path):
        self._desktop.picture(path)

    def turn_wheel(self, view, down):
        self._desktop.point_at(Rect(*view["rect"]).center)
        self._desktop.turn_wheel(Desktop.WHEEL_DOWN if down else Desktop.WHEEL_UP)

    def close_message(self, window):
        self.activate(window)
        self.press("Escape")
        wait_for(f"{window} does not close", lambda: not any(
            widget["class"] == window for widget in self.widgets()))

    def minimize(self):
        """Makes the window an icon and brings it back."""
        self.activate(self._what.window)
        window = self._desktop.active_window()
        self._desktop.minimize(window)
        wait_for("the window is no icon", lambda: self.report()["state"] & MINIMIZED)
        self._desktop.activate(window)
        wait_for("the window is still an icon", lambda: not self.report()["state"] & MINIMIZED)

    def close(self):
        """Closes the window as a user does, and waits for the end of the program."""
        self.click_on_title()
        self._what.close(self)
        try:
            status = self._process.wait(PATIENCE)
        except subprocess.TimeoutExpired:
            raise NotSo("the program does not end") from None
        if status != self._what.status:
            raise NotSo(f"the program ended with status {status}")

    def stop(self):
        """Ends the program if it still runs."""
        if self._process.poll() is None:
            self._process.terminate()
            try:
                self._process.wait(PATIENCE)
            except subprocess.TimeoutExpired:
                self._process.kill()
                self._process.wait()

    # --- Details ---

    def _ask(self, command):
        with socket.socket(socket.AF_UNIX) as connection:
            connection.settimeout(PATIENCE)
            connection.connect(self._socket)
            connection.sendall(command.encode() + b"\n")
            answer = b"".join(iter(lambda: connection.recv(1 << 16), b""))
        return json.loads(answer)

    def _find_window(self):
        if self._process.poll() is not None:
            raise NotSo(f"the program ended with status {self._process.returncode}")
        try:
            windows = self._ask("report")["windows"]
        except (OSError, ValueError):
            return None
        return next((window for window in windows
                     if window["visible"] and window["class"] == self._what.window), None)

    def _move_to(self, target, sideways_first):
        """Moves the pointer to an entry of a menu and opens no other menu on the way."""
        here, there = self._desktop.pointer(), Rect(*target["rect"]).center
        corner = Point(there.x, here.y) if sideways_first else Point(here.x, there.y)
        self._desktop.point_at(corner)
        self._desktop.point_at(there)

    def _tool_bar(self, key, value):
        found = [widget for widget in self.widgets()
                 if "QToolBar" in widget["kinds"] and plain(widget[key]) == value]
        if not found:
            raise NotSo(f"there is no toolbar {value}")
        return found[0]

    def _part(self, kind, text):
        """The entry of a menu or menu bar, once it is in its place."""
        def places():
            return [part for widget in self.widgets() if kind in widget["kinds"]
                    for part in widget["parts"] if plain(part["text"]) == text]

        return settled(f'the entry "{text}"', lambda: wait_for(
            f'there is no entry "{text}"', places)[-1])


class ToolBarDialog:
    """The dialog that customizes the toolbars."""

    def __init__(self, program):
        self._program = program

    def categories(self):
        return [row["path"][0] for row in self._tree()["rows"] if len(row["path"]) == 1]

    def offered(self):
        """The path of each action."""
        return [row["path"] for row in self._tree()["rows"] if len(row["path"]) > 1]

    def tool_bars(self):
        return [row["path"][0] for row in self._view("toolBarList")["rows"]]

    def content(self):
        return [row["path"][0] for row in self._view("currentToolBarList")["rows"]]

    def select_tool_bar(self, texts):
        """Selects the toolbar whose content fits these texts best; its title may be empty."""
        rows = self._view("toolBarList")["rows"]
        fitting = []
        for index in [*range(len(rows)), None]:
            if index is None:
                index = max(fitting)[1]
            row = settled("the row", lambda: self._view("toolBarList")["rows"][index])
            self._program.click(row)
            wait_for("the toolbar is not selected",
                     lambda: self._view("toolBarList")["rows"][index]["current"])
            content = {plain(text) for text in self.content()}
            fitting.append((len({plain(text) for text in texts} & content), index))

    def select_action(self, path):
        category = self._row("actionTree", path[:1])
        self._select("actionTree", path[:1])
        if not self._row("actionTree", path)["visible"]:
            self._program.press("Right")
        self._select("actionTree", path)
        return category

    def add(self):
        self._press(name="rightButton")

    def create(self, title):
        self._press(name="newButton")
        self._program.widget(DIALOG, **{"class": "QExpandingLineEdit"})
        self._program.type(title)
        self._program.press("Return")
        wait_for("there is no new toolbar", lambda: title in self.tool_bars())

    def accept(self):
        self._press(**{"class": "QPushButton", "text": "OK"})
        wait_for("the dialog does not close", lambda: not self._program.has_dialog())

    def reset(self):
        self._press(text="Restore Defaults")

    def _press(self, **wanted):
        self._program.click(self._program.widget(DIALOG, **wanted))

    def _tree(self):
        return self._view("actionTree")

    def _view(self, name):
        # The page of the ribbon has views with the same names.
        return self._program.widget(DIALOG, name=name)

    def _row(self, view, path):
        rows = self._view(view)["rows"]
        found = [row for row in rows if [plain(text) for text in row["path"]] == list(path)]
        if not found:
            raise NotSo(f"the dialog does not offer {path}")
        return found[0]

    def _select(self, name, path):
        for _ in range(100):
            view, row = self._view(name), self._row(name, path)
            if row["visible"]:
                break
            self._program.turn_wheel(view, down=row["rect"][1] > view["rect"][1])
        self._program.click(settled("the row", lambda: self._row(name, path)))
        wait_for(f"{path} is not selected", lambda: self._row(name, path)["current"])


def plain(text):
    """The text of a command without the mark of its key, its shortcut and the dots."""
    if not isinstance(text, str):
        return text
    marker = "\0"
    text = text.partition("\t")[0].replace("&&", marker).replace("&", "").replace(marker, "&")
    return text.removesuffix("…").removesuffix("...")
