# SPDX-License-Identifier: MIT
"""The text editor as its user knows it: menus, toolbars, and the dialog that customizes them."""

from application import Application, plain
from desktop import Desktop, Point
from waiting import NotSo, expect, settled, wait_for

CUSTOMIZE = "Customize Toolbars"
SEPARATOR = "|"
SEPARATOR_ENTRY = "Separator"
# What screen readers say for the text of a button in the dialog.
SPOKEN = {"New": "Add new toolbar", "Rename": "Rename toolbar", "Up": "Move action up",
          "Down": "Move action down", "<-": "Remove action from toolbar",
          "->": "Add action to toolbar"}
THICKEST_SEPARATOR = 12
HANDLE_MIDDLE = 5


class TextEditor(Application):
    """One run of the text editor."""

    def __init__(self, desktop, command, log):
        super().__init__(command, log)
        self._desktop = desktop

    @property
    def main_window(self):
        return self.window("frame")

    def wait_for_window(self):
        self.window("frame")

    # --- Menus ---

    def open_menu(self, title):
        entry = self.main_window.find("menu bar", "").find("menu item", title)
        return self.popup_after(lambda: self._desktop.click(entry.rect.center))

    def close_menu_by_key(self, menu):
        self._desktop.press("Escape")
        wait_for("Escape does not close the menu", menu.is_gone)

    def open_context_menu(self, title):
        handle = self.handle_of(title)
        return self.popup_after(lambda: self._desktop.click(handle, Desktop.RIGHT))

    def open_menu_of_button(self, title, name):
        tool_bar = self.main_window.find("tool bar", title)
        button, = [part for part in tool_bar.children() if plain(part.name) == name]
        return self.popup_after(lambda: self._desktop.click(button.rect.center, Desktop.RIGHT))

    def open_dialog_from(self, menu):
        self._desktop.click(place_in_menu(menu, CUSTOMIZE))
        return ToolBarDialog(self._desktop, self)

    def open_dialog_by_key_from(self, menu):
        self.go_up_to(menu, CUSTOMIZE)
        self._desktop.press("Return")
        return ToolBarDialog(self._desktop, self)

    def go_up_to(self, menu, name):
        """Highlights an entry of an open menu, coming from its end."""
        for entry in menu.children_from_last():
            if entry.role != "separator" and entry.has("sensitive"):
                self._desktop.press("Up")
            if plain(entry.name) == name:
                break
        expect("the highlighted entry", lambda: plain(self.last_focused().name), name)

    # --- Toolbars ---

    def tool_bars(self):
        """The content of every visible toolbar, by title.

        The program always reports the title that a toolbar had when it was first asked. A menu
        with a list of the toolbars shows the current title.
        """
        return {part.name: content_of(part) for part in self._window().children()
                if part.role == "tool bar" and part.is_showing()}

    def place_of(self, title):
        """Where a toolbar is, relative to the corner of its window."""
        window = self._window()
        return window.find("tool bar", title).rect.relative_to(window.rect)

    def handle_of(self, title):
        tool_bar = self.main_window.find("tool bar", title)
        rect = settled(f'the place of "{title}"', lambda: tool_bar.rect)
        if is_upright(rect):
            return Point(rect.center.x, rect.y + HANDLE_MIDDLE)
        return Point(rect.x + HANDLE_MIDDLE, rect.center.y)

    def _window(self):
        """The main window, active or behind a dialog."""
        window, = self.windows("frame")
        return window


class ToolBarDialog:
    """The dialog that customizes the toolbars, on its toolbar page."""

    def __init__(self, desktop, application):
        self._desktop = desktop
        self._application = application
        self.window = application.window("dialog", "Customize Toolbars")
        expect("pages to choose from", lambda: len(self.window.showing("page tab")), 0)

    # --- What it shows ---

    def tool_bars(self):
        return names_in(self._tool_bar_list())

    def current_tool_bar(self):
        return self._current_in(self._tool_bar_list())

    def content(self):
        return names_in(self._content_list())

    def current_entry(self):
        return self._current_in(self._content_list())

    def current_action(self):
        tree, = self.window.showing("tree")
        return self._current_in(tree, "table cell")

    def edited_name(self):
        """The text of the in-place editor in the list of toolbars, if it has the keyboard."""
        focused = self._application.last_focused()
        is_editor = (focused.role == "text" and focused.has("focused")
                     and self._tool_bar_list().rect.contains(focused.rect))
        return focused.text if is_editor else None

    # --- What its user does ---

    def press(self, button):
        """Clicks a button, named by its text."""
        self._desktop.click(self._enabled_button(button).rect.center)

    def close_with(self, button):
        self.press(button)
        expect("open dialogs", lambda: len(self._application.windows("dialog")), 0)

    def search(self, words):
        line, = self.window.showing("text")
        self._desktop.click(line.rect.center)
        self._desktop.type(words)
        expect("the text of the search line", lambda: line.text, words)

    def clear_search(self):
        self._desktop.press("Escape")
        expect("the text of the search line", lambda: self.window.showing("text")[0].text, "")

    def answer(self, button):
        """Answers a question of the dialog."""
        question = wait_for("nothing is asked", lambda: self._application.windows("alert"))[0]
        self._desktop.click(question.find("push button", button).rect.center)
        wait_for("the question stays open", lambda: not self._application.windows("alert"))

    def save_profile(self, name):
        self.press("Save As")
        self._application.window("dialog", "Save Profile")
        self._desktop.type(name)
        self._desktop.press("Return")
        expect("open dialogs", lambda: len(self._application.windows("dialog")), 1)

    def choose_profile(self, name):
        box, = self.window.showing("combo box")
        self._desktop.click(box.rect.center)
        self._desktop.click(box.find("list item", name).rect.center)
        wait_for("the list of profiles stays open", lambda: not box.has("expanded"))

    def select_tool_bar(self, title):
        self._desktop.click(self._row(self._tool_bar_list(), title).rect.center)
        expect("the selected toolbar", self.current_tool_bar, title)

    def type_name(self, name):
        self._desktop.type(name)
        expect("the name in the editor", self.edited_name, name)
        self._desktop.press("Return")

    def select_action(self, *path):
        action = self._action(*path)
        self._desktop.click(action.rect.center)
        wait_for(f"{path[-1]} is not selected", lambda: self._action(*path).has("selected"))

    def double_click_action(self, *path):
        self._desktop.double_click(self._action(*path).rect.center)

    def drag_action(self, *path):
        """Drags an action behind the entries of the toolbar."""
        content = self._content_list().rect
        below = Point(content.center.x, content.y + content.height - 8)
        self._desktop.drag(self._action(*path).rect.center, below)

    def drag_entry_behind(self, name, other):
        row = self._row(self._content_list(), other).rect
        self._desktop.drag(self._row(self._content_list(), name).rect.center,
                           Point(row.center.x, row.y + row.height - 2))

    def select_entry(self, name):
        self._desktop.click(self._row(self._content_list(), name).rect.center)
        expect("the selected entry", self.current_entry, name)

    def double_click_entry(self, name):
        self._desktop.double_click(self._row(self._content_list(), name).rect.center)

    # --- Where things are ---

    def _enabled_button(self, name):
        button = self.window.find("push button", SPOKEN.get(name, name))
        wait_for(f"the button {name} is disabled", lambda: button.has("enabled", "sensitive"))
        return button

    def _tool_bar_list(self):
        return self._lists()[0]

    def _content_list(self):
        return self._lists()[1]

    def _lists(self):
        lists = sorted(self.window.showing("list"), key=lambda widget: widget.rect.y)
        if len(lists) != 2:
            raise NotSo(f"the dialog shows {len(lists)} lists")
        return lists

    def _action(self, *path):
        """The row of an action in the tree, given its category and name, brought into view."""
        tree, = self.window.showing("tree")
        *categories, name = path
        for category in categories:
            self._expand(tree, category)
        return self._row(tree, name, "table cell")

    def _expand(self, tree, category):
        row = self._row(tree, category, "table cell")
        if not row.has("expanded"):
            arrow = Point((tree.rect.x + row.rect.x) // 2, row.rect.center.y)
            self._desktop.click(arrow)
            wait_for(f"{category} does not expand", lambda: row.has("expanded"))

    def _row(self, view, name, role="list item"):
        """The row of a name in a list or tree, brought into view."""
        def named():
            return [row for row in rows_of(view, role) if shown_name(row) == name]

        row = wait_for(f"there is not one row {name}", named, lambda all: len(all) == 1)[0]
        self._scroll_to(view, row)
        return row

    def _scroll_to(self, view, row):
        top, bottom = view.rect.y, view.rect.y + view.rect.height
        while row.rect.y < top or row.rect.y + row.rect.height > bottom:
            before = row.rect
            self._desktop.point_at(view.rect.center)
            self._desktop.turn_wheel(Desktop.WHEEL_UP if before.y < top else Desktop.WHEEL_DOWN)
            wait_for("the list does not scroll", lambda: row.rect != before)

    @staticmethod
    def _current_in(view, role="list item"):
        current = [shown_name(row) for row in rows_of(view, role) if row.has("selected")]
        return current[0] if len(current) == 1 else None


def entries_of(menu):
    return [plain(entry.name) for entry in menu.children()]


def place_in_menu(menu, name):
    """Where to click on an entry of an open menu; None if there is no such entry.

    Entries are counted from the last one up, and none is asked for its place: Qt ties an entry to
    the first menu in which it is queried. In any other menu it reports a wrong place, and when the
    first menu is gone it reports nothing.
    """
    bottom = menu.rect.y + menu.rect.height
    for entry in menu.children_from_last():
        height = entry.rect.height
        if plain(entry.name) == name:
            return Point(menu.rect.center.x, bottom - height // 2)
        bottom -= height
    return None


def content_of(tool_bar):
    """The content of a toolbar, in the visible order."""
    parts = [part for part in tool_bar.children() if part.is_showing() and not is_extension(part)]
    if is_upright(tool_bar.rect):
        parts.sort(key=lambda part: part.rect.y)
    else:
        parts.sort(key=lambda part: part.rect.x)
    return [SEPARATOR if is_separator(part) else plain(part.name) for part in parts]


def is_extension(part):
    """The arrow of a toolbar that hides the entries that do not fit."""
    return part.role == "check box" and not part.name


def is_separator(part):
    thickness = min(part.rect.width, part.rect.height)
    return part.role == "filler" and not part.name and thickness <= THICKEST_SEPARATOR


def is_upright(rect):
    return rect.height > rect.width


def rows_of(view, role="list item"):
    return [row for row in view.children() if row.role == role]


def names_in(view):
    return [shown_name(row) for row in rows_of(view)]


def shown_name(row):
    return SEPARATOR if row.name == SEPARATOR_ENTRY else plain(row.name)


def listed(names):
    """Names as one text: "Bold, |, Find"."""
    return ", ".join(names) or "nothing"
