#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""What a screen reader says in the kit's dialog.

    tst_dialog_spoken.py PROGRAM EXPECTED

The program opens the dialog. The script uses it with real keys and asks for everything over the
accessibility bus, as a screen reader does. It compares what it hears with the file EXPECTED, or writes
that file if RY_UPDATE_SPOKEN is set. Read what is written there as if you could not see the dialog.

Runs on a display with a window manager and in a session with a message bus. Debian's own Python has
the bindings.
"""

import difflib
import os
import sys
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(ROOT / 'examples' / 'texteditor' / 'tour'))

from application import Application, Atspi, GLib, Widget  # noqa: E402
from desktop import XDesktop  # noqa: E402
from waiting import NotSo, deliver_events, wait_for  # noqa: E402

LISTS = ('tree', 'list')
# What every user of a screen reader knows, and what only containers have.
SILENT_ROLES = ('filler', 'layered pane', 'panel', 'scroll bar', 'split pane', 'table column header',
                'unknown')


class Heard:
    """The events that a screen reader speaks, in order."""

    def __init__(self):
        self.focused = None
        self.notifications = []
        self._listener = Atspi.EventListener.new(self._take)
        for event in ('object:state-changed:focused', 'object:state-changed:showing'):
            self._listener.register(event)

    def _take(self, event):
        try:
            if event.detail1 != 1:
                return
            if event.type.endswith('focused'):
                self.focused = event.source
            elif event.source.get_role_name() == 'notification':
                self.notifications.append(event.source.get_name())
        except GLib.Error:
            pass  # gone already


def states_of(accessible):
    held = {state.value_nick for state in accessible.get_state_set().get_states()}
    words = []
    if 'sensitive' not in held:
        words.append('unavailable')
    if 'expandable' in held:
        words.append('expanded' if 'expanded' in held else 'collapsed')
    if 'editable' in held:
        words.append(f'text "{Atspi.Text.get_text(accessible, 0, -1)}"')
    return words


def spoken(accessible):
    """One line: name, role, states, and after a colon the description."""
    role = accessible.get_role_name()
    line = ', '.join([accessible.get_name() or '(no name)', role, *states_of(accessible)])
    description = accessible.get_description()
    return f'{line}: {description}' if description else line


class Session:
    """The dialog, and what was heard in it so far."""

    def __init__(self, program, log):
        self.lines = []
        self._heard = Heard()
        self._desktop = XDesktop()
        self._application = Application([program], log)
        self.dialog = self._application.window('dialog')
        self._inside = None
        self._last = None

    def stop(self):
        self._application.stop()

    def say(self, line):
        self.lines.append(f'    {line}'.rstrip())

    def title(self, text):
        self.lines += ['', text] if self.lines else [text]

    def focus(self):
        """Where the focus has come to. In a list it is always on an item."""
        def settled():
            found = self._heard.focused
            # The program answers once it has sent all events of what it does.
            if not found or found == self._last or found.get_role_name() in LISTS:
                return None
            deliver_events()
            return found if found == self._heard.focused else None

        return wait_for('nothing else has the focus', settled)

    def hear_focus(self):
        found = self.focus()
        inside = found.get_parent()
        if inside != self._inside and inside.get_role_name() in LISTS:
            self.say(spoken(inside))
        self.say(spoken(found))
        self._inside = inside
        self._last = found
        return found

    def press(self, *keys):
        """Presses the keys and hears where that leads."""
        self.title(' '.join(keys))
        self._desktop.press(*keys)
        return self.hear_focus()

    def change(self, *keys):
        """Presses the keys and hears what they have changed."""
        self.title(' '.join(keys))
        deliver_events()
        self._heard.notifications.clear()
        self._desktop.press(*keys)
        wait_for('nothing is announced', lambda: self._heard.notifications)
        # The focus is reported before, perhaps where it was.
        self._last = None
        self.hear_focus()
        self.say(f'Notification: {self._heard.notifications[-1]}')

    def type(self, text):
        self._desktop.type(text)

    def everything(self):
        """All that is shown, from the beginning to the end."""
        self.title('Everything in the dialog')
        self._outline(self.dialog, 0)

    def _outline(self, widget, depth):
        accessible = widget._accessible
        if widget.role not in SILENT_ROLES or accessible.get_name():
            self.say('    ' * depth + spoken(accessible))
            depth += 1
        for child in widget.children():
            if child.has('showing'):
                self._outline(child, depth)


def walk(session):
    """Tab from the first control back to it."""
    session.title('The dialog opens')
    session.say(spoken(session.dialog._accessible))
    first = spoken(session.hear_focus())
    for _ in range(40):
        if spoken(session.press('Tab')) == first:
            return
    raise NotSo('Tab does not come back to where it began')


def story(session):
    """What a user does: each command by its key."""
    session.press('Down')
    session.change('Insert')
    session.press('Down')
    session.press('Right', 'Down')
    session.press('alt+t')
    session.press('Down')
    session.press('Tab')
    session.change('space')
    session.press('shift+Tab')
    session.press('F2')
    session.type('Tools')
    session.press('Return')
    session.press('alt+c')
    session.change('alt+Down')
    session.change('Delete')
    session.press('alt+t')
    session.change('Delete')
    session.press('F1')
    session.press('Escape')


def hear(program):
    with tempfile.TemporaryDirectory() as scratch:
        log = Path(scratch) / 'program.log'
        session = None
        try:
            session = Session(program, log)
            walk(session)
            session.everything()
            story(session)
        except NotSo as problem:
            print(f'{problem}\n', *(session.lines if session else []), sep='\n')
            print(log.read_text() if log.exists() else '')
            sys.exit(1)
        finally:
            if session:
                session.stop()
    return [f'{line}\n' for line in session.lines]


def main():
    program, expected = sys.argv[1], Path(sys.argv[2])
    lines = hear(program)
    if os.environ.get('RY_UPDATE_SPOKEN'):
        expected.write_text(''.join(lines))
    wanted = expected.read_text().splitlines(True)
    sys.stdout.writelines(difflib.unified_diff(wanted, lines, expected.name, 'heard'))
    nameless = [line for line in lines if '(no name)' in line]
    if nameless:
        print('without a name:', *nameless)
    return 1 if lines != wanted or nameless else 0


if __name__ == '__main__':
    sys.exit(main())
