# SPDX-License-Identifier: MIT
"""The guided tour of the text editor, started by run.sh.

Each step of the story does what a user does, then checks from outside that it had its effect, and
returns what was checked.
"""

import os
import signal
import sys

from desktop import Point, XDesktop
from texteditor import (CUSTOMIZE, SEPARATOR, TextEditor, entries_of, is_upright, listed,
                        place_in_menu)
from waiting import NotSo, expect, settled, wait_for

UNDO = "Undo Toolbar Change"
REDO = "Redo Toolbar Change"
REMOVE = "Remove from toolbar"
LOCK = "Lock toolbars"
GUIDE = "Making the toolbars your own"
PROFILE = "plain"
NAME = "My Tools"
NEW_NAME = "Writing"
CONTENT = ["Bold", SEPARATOR, "Find", "Save"]
DEFAULT_TOOL_BAR = "File"
# The second one is for each toolbar that is dragged on Wayland.
QT_WARNINGS = ("qt.", "This plugin supports grabbing the mouse only for popup windows")


class Tour:
    """What the steps share: the desktop, the running editor and its dialog."""

    def __init__(self, program, output, desktop):
        self.desktop = desktop
        self.editor = None
        self.menu = None
        self.dialog = None
        self.shipped = None
        self.place = None
        self._program = program
        self._output = output
        self._settings = os.path.join(os.environ["HOME"], "texteditor.ini")
        self._document = os.path.join(os.path.dirname(os.path.dirname(os.path.abspath(__file__))),
                                      "sample.html")
        self.log = self.output_file("log/texteditor.log")

    def output_file(self, name):
        return os.path.join(self._output, name)

    def start_editor(self, *options):
        command = [self._program, "--settings", self._settings, *options, self._document]
        self.editor = TextEditor(self.desktop, command, self.log)
        self.editor.wait_for_window()

    def quit_editor(self):
        self.desktop.press("ctrl+q")
        self.editor.wait_for_end()

    def open_dialog(self):
        self.dialog = self.editor.open_dialog_from(self.editor.open_menu("Settings"))

    def choose_in_settings(self, name):
        menu = self.editor.open_menu("Settings")
        self.desktop.click(place_in_menu(menu, name))

    def expect_tool_bars(self, wanted):
        def other_than_wanted():
            found = self.editor.tool_bars()
            return [f"{title}: {listed(found.get(title, []))}, not {listed(wanted.get(title, []))}"
                    for title in {**wanted, **found} if found.get(title) != wanted.get(title)]

        expect("the toolbars in the window that are wrong", other_than_wanted, [])

    def expect_content(self, *wanted):
        expect("the entries in the dialog", self.dialog.content, list(wanted))

    def warnings(self):
        """What the editor wrote, without what Qt wrote about the display and the bus."""
        with open(self.log, encoding="utf-8") as log:
            return [line for line in log if not line.startswith(QT_WARNINGS)]

    def expect_entry(self, name):
        wait_for(f"the menu does not offer {name}", lambda: place_in_menu(self.menu, name))

    def restart(self, *options):
        self.quit_editor()
        self.start_editor(*options)


# --- A toolbar of one's own ---

def first_start(tour):
    tour.start_editor()
    title = tour.editor.main_window.name
    if "sample.html" not in title:
        raise NotSo(f'the window\'s title "{title}" does not name the document')
    tour.shipped = settled("the content of the toolbars", tour.editor.tool_bars)
    if not tour.shipped or NAME in tour.shipped:
        raise NotSo(f"the toolbars at the first start: {tour.shipped}")
    return f"The text editor shows its document and its own toolbars: {listed(tour.shipped)}"


def settings_menu(tour):
    tour.menu = tour.editor.open_menu("Settings")
    tour.expect_entry(CUSTOMIZE)
    return 'The Settings menu is open and offers "Customize Toolbars…"'


def dialog_opened(tour):
    tour.dialog = tour.editor.open_dialog_from(tour.menu)
    expect("the toolbars in the dialog", tour.dialog.tool_bars, sorted(tour.shipped))
    return f"The dialog lists the toolbars: {listed(sorted(tour.shipped))}"


def new_toolbar(tour):
    tour.dialog.press("New")
    expect("the name in the editor", tour.dialog.edited_name, "Custom Toolbar")
    return 'New adds a toolbar, and "Custom Toolbar" is ready to be renamed in place'


def toolbar_named(tour):
    tour.dialog.type_name(NAME)
    expect("the toolbars in the dialog", tour.dialog.tool_bars, sorted([*tour.shipped, NAME]))
    expect("the selected toolbar", tour.dialog.current_tool_bar, NAME)
    tour.expect_content()
    return f'The new toolbar is called "{NAME}", is selected and is empty'


def action_found(tour):
    tour.dialog.search("save")
    expect("the current action", tour.dialog.current_action, "Save")
    return 'Typing "save" into the search line finds Save'


def action_added_by_return(tour):
    tour.desktop.press("Return")
    tour.expect_content("Save")
    tour.dialog.clear_search()
    return f'Return adds it, and Escape clears the line: {listed(tour.dialog.content())}'


def action_added_by_button(tour):
    tour.dialog.select_action("Edit", "Find")
    tour.dialog.press("->")
    tour.expect_content("Save", "Find")
    return f'The button -> adds the selected Find: {listed(tour.dialog.content())}'


def action_dragged(tour):
    tour.dialog.drag_action("Format", "Bold")
    tour.expect_content("Save", "Find", "Bold")
    return f"Dragging Bold to the toolbar adds it: {listed(tour.dialog.content())}"


def separator_added(tour):
    tour.dialog.double_click_action(SEPARATOR)
    tour.expect_content("Save", "Find", "Bold", SEPARATOR)
    return f"A double click on the separator entry adds one: {listed(tour.dialog.content())}"


def entry_dragged(tour):
    tour.dialog.drag_entry_behind("Save", "Find")
    tour.expect_content("Find", "Save", "Bold", SEPARATOR)
    return f"Save is dragged behind Find: {listed(tour.dialog.content())}"


def entries_moved_up(tour):
    for entry in "Bold", SEPARATOR:
        tour.dialog.select_entry(entry)
        tour.dialog.press("Up")
        tour.dialog.press("Up")
    tour.expect_content(*CONTENT)
    expect("the selected entry", tour.dialog.current_entry, SEPARATOR)
    tour.desktop.picture_of_window(tour.dialog.window.rect, tour.output_file("dialog.png"))
    return f"Up moves Bold and the separator to the front: {listed(tour.dialog.content())}"


def toolbar_in_window(tour):
    tour.dialog.close_with("OK")
    tour.expect_tool_bars({**tour.shipped, NAME: CONTENT})
    window = tour.editor.main_window
    tour.desktop.picture_of_window(window.rect, tour.output_file("window.png"))
    return f'The toolbar "{NAME}" is in the window: {listed(CONTENT)}'


def toolbar_moved(tour):
    window = tour.editor.main_window.rect
    before = tour.editor.place_of(NAME)
    left_edge = Point(window.x + 8, window.center.y)
    tour.desktop.drag(tour.editor.handle_of(NAME), left_edge)
    wait_for(f'"{NAME}" is not upright at the left edge', lambda: is_at_the_left(tour))
    tour.expect_tool_bars({**tour.shipped, NAME: CONTENT})
    tour.place = settled(f'the place of "{NAME}"', lambda: tour.editor.place_of(NAME))
    return f'Dragged to the left edge, "{NAME}" moves from {at(before)} to {at(tour.place)}'


# --- What the next start restores ---

def quit_highlighted(tour):
    tour.menu = tour.editor.open_menu("File")
    tour.expect_entry("Quit")
    tour.editor.go_up_to(tour.menu, "Quit")
    return "In the File menu the Up key highlights Quit"


def editor_ended(tour):
    tour.desktop.press("Return")
    tour.editor.wait_for_end()
    return "The Return key quits the text editor, which ends without an error"


def toolbar_back(tour):
    tour.start_editor()
    tour.expect_tool_bars({**tour.shipped, NAME: CONTENT})
    expect(f'the place of "{NAME}"', lambda: tour.editor.place_of(NAME), tour.place)
    return f'After a new start "{NAME}" is back at {at(tour.place)}: {listed(CONTENT)}'


# --- A new name ---

def context_menu(tour):
    tour.menu = tour.editor.open_context_menu(NAME)
    tour.expect_entry(CUSTOMIZE)
    return f'A right click on "{NAME}" opens a menu that offers "Customize Toolbars…"'


def dialog_lists_toolbar(tour):
    tour.dialog = tour.editor.open_dialog_by_key_from(tour.menu)
    expect("the toolbars in the dialog", tour.dialog.tool_bars, sorted([*tour.shipped, NAME]))
    tour.dialog.select_tool_bar(NAME)
    tour.expect_content(*CONTENT)
    return f'The dialog lists "{NAME}" with its entries: {listed(CONTENT)}'


def name_in_place(tour):
    tour.dialog.press("Rename")
    expect("the name in the editor", tour.dialog.edited_name, NAME)
    return f'Rename opens "{NAME}" in place'


def renamed_in_dialog(tour):
    tour.dialog.type_name(NEW_NAME)
    expect("the toolbars in the dialog", tour.dialog.tool_bars, sorted([*tour.shipped, NEW_NAME]))
    return f'The dialog lists the toolbar as "{NEW_NAME}"'


def name_applied(tour):
    tour.dialog.press("Apply")
    expect("the toolbars in the dialog", tour.dialog.tool_bars, sorted([*tour.shipped, NEW_NAME]))
    return f'Apply leaves the dialog open, with "{NEW_NAME}"'


def cancel_keeps_what_was_applied(tour):
    tour.dialog.close_with("Cancel")
    tour.menu = tour.editor.open_context_menu(NAME)
    expect("the name in the menu",
           lambda: [name for name in entries_of(tour.menu) if name in (NAME, NEW_NAME)], [NEW_NAME])
    return f'After Cancel the window keeps what was applied: its menu lists "{NEW_NAME}"'


def new_name_back(tour):
    tour.editor.close_menu_by_key(tour.menu)
    tour.restart()
    tour.expect_tool_bars({**tour.shipped, NEW_NAME: CONTENT})
    expect(f'the place of "{NEW_NAME}"', lambda: tour.editor.place_of(NEW_NAME), tour.place)
    return f'After a new start "{NEW_NAME}" is back with its new name, content and place'


# --- What Cancel and Restore Defaults do ---

def entry_removed_in_dialog(tour):
    tour.open_dialog()
    tour.dialog.select_tool_bar(NEW_NAME)
    tour.dialog.select_entry("Find")
    tour.dialog.press("<-")
    tour.expect_content("Bold", SEPARATOR, "Save")
    return f'The button <- removes Find: {listed(tour.dialog.content())}'


def cancel_changes_nothing(tour):
    tour.dialog.close_with("Cancel")
    tour.expect_tool_bars({**tour.shipped, NEW_NAME: CONTENT})
    return f'After Cancel "{NEW_NAME}" is unchanged: {listed(CONTENT)}'


def default_toolbar_changed(tour):
    first, *rest = tour.shipped[DEFAULT_TOOL_BAR]
    tour.open_dialog()
    tour.dialog.select_tool_bar(DEFAULT_TOOL_BAR)
    tour.expect_content(first, *rest)
    tour.dialog.double_click_entry(first)
    tour.expect_content(*rest)
    tour.dialog.press("Apply")
    tour.expect_tool_bars({**tour.shipped, NEW_NAME: CONTENT, DEFAULT_TOOL_BAR: rest})
    return (f'A double click and Apply take {first} off "{DEFAULT_TOOL_BAR}" in the window: '
            f"{listed(rest)}")


def defaults_in_dialog(tour):
    tour.dialog.press("Restore Defaults")
    tour.dialog.answer("Restore Defaults")
    expect("the toolbars in the dialog", tour.dialog.tool_bars, sorted(tour.shipped))
    tour.expect_content(*tour.shipped[DEFAULT_TOOL_BAR])
    wait_for("the window has lost its toolbar", lambda: NEW_NAME in tour.editor.tool_bars())
    return f'Restore Defaults leaves the dialog without "{NEW_NAME}", but not yet the window'


def defaults_in_window(tour):
    tour.dialog.close_with("OK")
    tour.expect_tool_bars(tour.shipped)
    return f"After OK every toolbar is as shipped: {listed(tour.shipped)}"


def defaults_undone(tour):
    changed = {**tour.shipped, NEW_NAME: CONTENT,
               DEFAULT_TOOL_BAR: tour.shipped[DEFAULT_TOOL_BAR][1:]}
    tour.choose_in_settings(UNDO)
    tour.expect_tool_bars(changed)
    tour.choose_in_settings(REDO)
    tour.expect_tool_bars(tour.shipped)
    return f'"{UNDO}" brings "{NEW_NAME}" back, and "{REDO}" the defaults'


def defaults_back(tour):
    tour.restart()
    tour.expect_tool_bars(tour.shipped)
    return "After a new start every toolbar is still as shipped"


# --- What is around the dialog ---

def toolbars_locked(tour):
    handle = tour.editor.handle_of(DEFAULT_TOOL_BAR)
    place = tour.editor.place_of(DEFAULT_TOOL_BAR)
    tour.menu = tour.editor.open_context_menu(DEFAULT_TOOL_BAR)
    tour.desktop.click(place_in_menu(tour.menu, LOCK))
    wait_for("the menu stays open", tour.menu.is_gone)
    tour.restart()
    window = tour.editor.main_window.rect
    tour.desktop.drag(handle, Point(window.x + 8, window.center.y))
    expect("the place of a locked toolbar",
           lambda: at(tour.editor.place_of(DEFAULT_TOOL_BAR)), at(place))
    tour.expect_tool_bars(tour.shipped)
    return f'After "{LOCK}" and a new start, "{DEFAULT_TOOL_BAR}" cannot be dragged'


def leaving_asks(tour):
    first, *rest = tour.shipped[DEFAULT_TOOL_BAR]
    tour.open_dialog()
    tour.dialog.select_tool_bar(DEFAULT_TOOL_BAR)
    tour.dialog.select_entry(first)
    tour.desktop.press("Delete")
    tour.expect_content(*rest)
    tour.desktop.press("Escape")
    tour.dialog.answer("Cancel")
    tour.expect_content(*rest)
    return f"The Delete key removes {first}, Escape asks before that is lost, and Cancel stays"


def guide_opened(tour):
    tour.desktop.press("F1")
    tour.editor.window("dialog", GUIDE)
    return f'The F1 key opens "{GUIDE}"'


def guide_closed(tour):
    tour.desktop.press("Escape")
    expect("open dialogs", lambda: len(tour.editor.windows("dialog")), 1)
    tour.dialog.close_with("Cancel")
    tour.expect_tool_bars(tour.shipped)
    return "Escape closes the guide, and Cancel the dialog, and nothing has changed"


def button_removed_by_menu(tour):
    first, *rest = tour.shipped[DEFAULT_TOOL_BAR]
    tour.menu = tour.editor.open_menu_of_button(DEFAULT_TOOL_BAR, first)
    tour.desktop.click(place_in_menu(tour.menu, REMOVE))
    tour.expect_tool_bars({**tour.shipped, DEFAULT_TOOL_BAR: rest})
    tour.choose_in_settings(UNDO)
    tour.expect_tool_bars(tour.shipped)
    return f'A right click on {first} and "{REMOVE}" take it off, and "{UNDO}" brings it back'


def profile_saved(tour):
    tour.restart("--profiles")
    tour.open_dialog()
    tour.dialog.save_profile(PROFILE)
    tour.dialog.select_tool_bar(DEFAULT_TOOL_BAR)
    first, *rest = tour.shipped[DEFAULT_TOOL_BAR]
    tour.dialog.double_click_entry(first)
    tour.expect_content(*rest)
    tour.dialog.press("Apply")
    tour.expect_tool_bars({**tour.shipped, DEFAULT_TOOL_BAR: rest})
    return f'The toolbars are saved as "{PROFILE}", then {first} is taken off'


def profile_chosen(tour):
    tour.dialog.choose_profile(PROFILE)
    tour.expect_tool_bars(tour.shipped)
    tour.dialog.close_with("OK")
    tour.expect_tool_bars(tour.shipped)
    return f'Choosing "{PROFILE}" makes every toolbar as shipped'


def nothing_to_complain_about(tour):
    tour.quit_editor()
    expect("what the text editor wrote", tour.warnings, [])
    return "The text editor has ended and wrote no warning"


STORY = [
    first_start,
    settings_menu,
    dialog_opened,
    new_toolbar,
    toolbar_named,
    action_found,
    action_added_by_return,
    action_added_by_button,
    action_dragged,
    separator_added,
    entry_dragged,
    entries_moved_up,
    toolbar_in_window,
    toolbar_moved,
    quit_highlighted,
    editor_ended,
    toolbar_back,
    context_menu,
    dialog_lists_toolbar,
    name_in_place,
    renamed_in_dialog,
    name_applied,
    cancel_keeps_what_was_applied,
    new_name_back,
    entry_removed_in_dialog,
    cancel_changes_nothing,
    default_toolbar_changed,
    defaults_in_dialog,
    defaults_in_window,
    defaults_undone,
    defaults_back,
    toolbars_locked,
    leaving_asks,
    guide_opened,
    guide_closed,
    button_removed_by_menu,
    profile_saved,
    profile_chosen,
    nothing_to_complain_about,
]


def is_at_the_left(tour):
    place = tour.editor.place_of(NAME)
    return place.x == 0 and is_upright(place)


def at(place):
    return f"{place.x},{place.y}"


def take_step(tour, number, step):
    """Runs one step and saves its picture; returns whether it passed."""
    name = f'{number:02}-{step.__name__.replace("_", "-")}'
    try:
        done = step(tour)
        tour.desktop.picture_of_step(tour.output_file(f"{name}.png"))
    except Exception as error:  # any error; the picture shows more
        picture = tour.output_file(f"{name}-failed.png")
        print(f"not ok {number:02} {step.__name__}: {error} (see {picture})", flush=True)
        tour.desktop.picture(picture)
        return False
    print(f"ok {number:02} {done}", flush=True)
    return True


def leave_outline(tour):
    if tour.editor:
        with open(tour.output_file("log/widgets.txt"), "w", encoding="utf-8") as file:
            file.write("\n".join(tour.editor.root.outline()) + "\n")


def run(program, output, desktop):
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    tour = Tour(program, output, desktop)
    try:
        for number, step in enumerate(STORY, start=1):
            if not take_step(tour, number, step):
                leave_outline(tour)
                return 1
    finally:
        if tour.editor:
            tour.editor.stop()
    print(f"All {len(STORY)} steps hold")
    return 0


if __name__ == "__main__":
    sys.exit(run(*sys.argv[1:], XDesktop()))
